// The catalog of workbooks/templates/catalog.txt against the decision tables, the book
// sources and the built templates.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <variant>

#include "report/ReportSelection.h"
#include "report/TemplateCatalog.h"

namespace gustline::report {
namespace {

namespace fs = std::filesystem;

using Key = std::pair<TemplateContainer, std::string>;

// Every template the decision tables choose, over every value of the inputs that they tell
// apart, with h/w at 0.25, which passes both ratio checks.
std::set<Key> ChosenTemplates() {
  std::set<Key> chosen;
  SelectionInputs in;
  in.height = 25;
  in.width = 100;
  for (in.b124 = 0; in.b124 <= 1; ++in.b124)
    for (in.system = -1; in.system <= 3; ++in.system)
      for (in.structure = -1; in.structure <= 3; ++in.structure)
        for (in.figure = -1; in.figure <= 10; ++in.figure)
          for (in.table = -1; in.table <= 8; ++in.table)
            for (in.gustType = -1; in.gustType <= 3; ++in.gustType)
              for (in.roofType = -1; in.roofType <= 5; ++in.roofType)
                for (const bool note5 : {false, true}) {
                  in.note5 = note5;
                  const Selection selection = SelectTemplate(in);
                  if (const auto* choice = std::get_if<ChosenTemplate>(&selection))
                    chosen.emplace(choice->id.container, choice->id.name);
                }
  return chosen;
}

TEST(TemplateCatalogTest, DecisionTablesChooseExactlyTheCatalogRows) {
  std::set<Key> rows;
  for (const TemplateEntry& entry : AllTemplates())
    EXPECT_TRUE(rows.emplace(entry.id.container, entry.id.name).second)
        << entry.id.name << " stands twice on " << ContainerLetter(entry.id.container);
  const std::set<Key> chosen = ChosenTemplates();
  for (const auto& [container, name] : chosen)
    EXPECT_TRUE(rows.contains({container, name}))
        << "no catalog row for " << name << " on " << ContainerLetter(container);
  for (const auto& [container, name] : rows)
    EXPECT_TRUE(chosen.contains({container, name}))
        << "the decision tables never choose " << name << " on " << ContainerLetter(container);
}

// A row names its book, which exists and is built, or is marked as not built yet.
TEST(TemplateCatalogTest, EveryBookExistsAndIsBuilt) {
  int books = 0;
  for (const TemplateEntry& entry : AllTemplates()) {
    if (entry.book.empty()) continue;
    ++books;
    const fs::path book = fs::path(GUSTLINE_TEMPLATE_SOURCE_DIR) / entry.book;
    EXPECT_EQ(book.extension(), ".book") << entry.book;
    EXPECT_TRUE(fs::is_regular_file(book)) << book;
    EXPECT_TRUE(fs::is_regular_file(TemplatePath(GUSTLINE_BIN_DIR, entry.id)))
        << entry.id.name << " on " << ContainerLetter(entry.id.container) << " is not built";
  }
  EXPECT_GT(books, 0);
}

}  // namespace
}  // namespace gustline::report
