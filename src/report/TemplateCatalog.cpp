#include "report/TemplateCatalog.h"

#include <algorithm>
#include <filesystem>

#include "core/workbook/FacilityError.h"
#include "core/workbook/TextCompare.h"
#include "core/workbook/Workbook.h"

namespace gustline::report {
namespace {

using enum TemplateContainer;

// The open-structure family: one member per container by gust treatment.
void AddOpenStructureFamily(std::vector<TemplateId>& all, TemplateContainer container,
                            std::string_view figure619, std::string_view figure621,
                            std::string_view figure622, std::string_view figure618Prefix) {
  for (const char letter : {'A', 'B', 'C', 'D'})
    all.push_back({std::string(figure618Prefix) + letter, container});
  for (const char letter : {'A', 'B', 'C'})
    all.push_back({std::string("Fig619") + letter, container});
  all.push_back({"Fig620", container});
  all.push_back({std::string(figure619), container});
  all.push_back({std::string(figure621), container});
  all.push_back({std::string(figure622), container});
}

std::vector<TemplateId> BuildCatalog() {
  std::vector<TemplateId> all;
  AddOpenStructureFamily(all, A, "Figure619A", "Figure621A", "Figure622A", "Figure618");
  all.push_back({"Figure68B", B});
  AddOpenStructureFamily(all, B, "Figure619B", "Figure621B", "Figure622B", "Fig618");
  for (const char* name :
       {"Figure610", "Figure66A", "Figure66B", "Figure68A", "Figure611B", "Figure613", "Figure614A",
        "Figure614B", "Figure617", "TableSpecial", "TableSpecialB"})
    all.push_back({name, D});
  for (const char* name : {"SimpMFWRS", "SimpCompAndClad", "Figure66C", "Figure68C", "Figure68B"})
    all.push_back({name, F});
  AddOpenStructureFamily(all, F, "Figure619C", "Figure621C", "Figure622C", "Fig618");
  all.push_back({"TableSpecialD", F});
  for (const char* name : {"Figure67A", "Figure67B", "Figure67C", "figure616A"})
    all.push_back({name, G});
  return all;
}

// The catalog's entry of a name on a container, spelled as the catalog spells it.
const TemplateId* FindEntry(const TemplateId& id) {
  const auto& all = AllTemplates();
  const auto found = std::find_if(all.begin(), all.end(), [&id](const TemplateId& entry) {
    return entry.container == id.container && wb::EqualNoCase(entry.name, id.name);
  });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace

std::string_view ContainerLetter(TemplateContainer container) {
  switch (container) {
    case A:
      return "A";
    case B:
      return "B";
    case D:
      return "D";
    case F:
      return "F";
    case G:
      return "G";
  }
  return "D";
}

std::optional<TemplateContainer> ContainerFromLetter(std::string_view letter) {
  for (const TemplateContainer container : {A, B, D, F, G})
    if (wb::EqualNoCase(letter, ContainerLetter(container))) return container;
  return std::nullopt;
}

const std::vector<TemplateId>& AllTemplates() {
  static const std::vector<TemplateId> all = BuildCatalog();
  return all;
}

std::vector<std::string> TemplateNamesOn(TemplateContainer container) {
  std::vector<std::string> names;
  for (const TemplateId& id : AllTemplates())
    if (id.container == container) names.push_back(id.name);
  return names;
}

std::vector<TemplateContainer> ContainersOf(std::string_view name) {
  std::vector<TemplateContainer> containers;
  for (const TemplateId& id : AllTemplates())
    if (wb::EqualNoCase(id.name, name)) containers.push_back(id.container);
  return containers;
}

std::string TemplatePath(std::string_view applicationPath, const TemplateId& id) {
  return (std::filesystem::path(applicationPath) / "workbooks" / "templates" /
          std::string(ContainerLetter(id.container)) / (id.name + ".gwb"))
      .string();
}

std::unique_ptr<wb::Workbook> LoadTemplate(std::string_view applicationPath, const TemplateId& id) {
  const std::string where = "Container" + std::string(ContainerLetter(id.container));
  const TemplateId* entry = FindEntry(id);
  if (entry == nullptr)
    throw wb::FacilityError(wb::errc::kTemplateMissing,
                            "There is no report template " + id.name + " on " + where);
  const std::string path = TemplatePath(applicationPath, *entry);
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error))
    throw wb::FacilityError(
        wb::errc::kTemplateMissing,
        "The report template " + id.name + " of " + where + " is not built yet (" + path + ")");
  auto book = std::make_unique<wb::Workbook>(entry->name);
  book->ReadWorkbook(path);
  return book;
}

}  // namespace gustline::report
