#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ReportHook.h"
#include "report/ReportBuilders.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// A report template: its book name and the hidden form that stores it.
struct TemplateId {
  std::string name;
  TemplateContainer container = TemplateContainer::D;
  bool operator==(const TemplateId&) const = default;
};

// "A", "B", "D", "F" or "G".
std::string_view ContainerLetter(TemplateContainer container);
// The container of a letter, in either case; nullopt for any other text.
std::optional<TemplateContainer> ContainerFromLetter(std::string_view letter);

// A row of the catalog: the template, the builder that makes the report from it, and its
// book under workbooks/templates, empty while it is not built.
struct TemplateEntry {
  TemplateId id;
  ReportBuilder builder = ReportBuilder::Plain;
  std::string_view book;
};

// Every template that report selection can choose, container by container, as
// workbooks/templates/catalog.txt lists them. A name may stand on two containers
// (`Figure68B` on B and F, `Fig618A` on B and F, ...).
const std::vector<TemplateEntry>& AllTemplates();
// The row of a name on a container, the name matched without regard to case. Raises
// FacilityError kTemplateMissing for a name the container does not hold.
const TemplateEntry& FindTemplate(const TemplateId& id);
// The template names of one container, in the order of AllTemplates.
std::vector<std::string> TemplateNamesOn(TemplateContainer container);
// The containers that hold a name, without regard to case.
std::vector<TemplateContainer> ContainersOf(std::string_view name);

// Where a built template lies: <applicationPath>/workbooks/templates/<letter>/<name>.gwb.
std::string TemplatePath(std::string_view applicationPath, const TemplateId& id);

// Reads a template into a workbook of its own. Raises FacilityError kTemplateMissing for a
// name the container does not hold, or one whose file is not built; other read failures as
// ReadWorkbook raises them.
std::unique_ptr<wb::Workbook> LoadTemplate(std::string_view applicationPath, const TemplateId& id);

}  // namespace gustline::report
