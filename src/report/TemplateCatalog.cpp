#include "report/TemplateCatalog.h"

#include <algorithm>
#include <filesystem>

#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::report {
namespace {

using enum TemplateContainer;

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

const TemplateEntry& FindTemplate(const TemplateId& id) {
  const auto& all = AllTemplates();
  const auto found = std::find_if(all.begin(), all.end(), [&id](const TemplateEntry& entry) {
    return entry.id.container == id.container && wb::EqualNoCase(entry.id.name, id.name);
  });
  if (found == all.end())
    throw wb::FacilityError(wb::errc::kTemplateMissing,
                            "There is no report template " + id.name + " on Container" +
                                std::string(ContainerLetter(id.container)));
  return *found;
}

std::vector<std::string> TemplateNamesOn(TemplateContainer container) {
  std::vector<std::string> names;
  for (const TemplateEntry& entry : AllTemplates())
    if (entry.id.container == container) names.push_back(entry.id.name);
  return names;
}

std::vector<TemplateContainer> ContainersOf(std::string_view name) {
  std::vector<TemplateContainer> containers;
  for (const TemplateEntry& entry : AllTemplates())
    if (wb::EqualNoCase(entry.id.name, name)) containers.push_back(entry.id.container);
  return containers;
}

std::string TemplatePath(std::string_view applicationPath, const TemplateId& id) {
  return (std::filesystem::path(applicationPath) / "workbooks" / "templates" /
          std::string(ContainerLetter(id.container)) / (id.name + ".gwb"))
      .string();
}

std::unique_ptr<wb::Workbook> LoadTemplate(std::string_view applicationPath, const TemplateId& id) {
  // The file and the book take the name as the catalog spells it.
  const TemplateId& listed = FindTemplate(id).id;
  const std::string path = TemplatePath(applicationPath, listed);
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error))
    throw wb::FacilityError(wb::errc::kTemplateMissing,
                            "The report template " + id.name + " of Container" +
                                std::string(ContainerLetter(id.container)) + " is not built yet (" +
                                path + ")");
  auto book = std::make_unique<wb::Workbook>(listed.name);
  book->ReadWorkbook(path);
  return book;
}

}  // namespace gustline::report
