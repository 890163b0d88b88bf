#include "ui/frmWindPropValues.h"

#include <variant>

#include "core/workbook/model/NamedCells.h"
#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

// A field without a rule goes to its cell as it stands: a number when it reads as one.
void WriteFieldText(wb::Workbook& project, std::string_view name, const std::string& text) {
  if (const auto number = rules::FieldNumber(text)) {
    wb::WriteNamedNumber(project, name, *number);
  } else {
    wb::WriteNamedText(project, name, text);
  }
}

}  // namespace

int CategoryValue(int categoryOption, bool hurricane) {
  return categoryOption == 0 && hurricane ? 4 : categoryOption;
}

WindProperties LoadWindProperties(wb::Workbook& project) {
  WindProperties v;
  rules::LoadFields(project, kWindPropertiesFields, v);
  SetCategory(v, wb::ReadNamedInt(project, "Category"));
  v.figure = wb::ReadNamedInt(project, "Figure");
  v.table = wb::ReadNamedInt(project, "Table");
  v.computeRi = wb::ReadNamedInt(project, "B148") == 1;
  v.aog = wb::ReadNamedText(project, "B149");
  v.vi = wb::ReadNamedText(project, "B150");
  v.table66RoofType = wb::ReadNamedNumber(project, "Table66RoofType");
  v.note5Applies = wb::ReadNamedNumber(project, "Note5Applies");
  v.interval = wb::ReadNamedInt(project, "Interval");
  return v;
}

WindProperties MergeProjectChanges(WindProperties shown, const WindProperties& loaded,
                                   const WindProperties& project) {
  const auto take = [&](auto member) {
    if (loaded.*member != project.*member) shown.*member = project.*member;
  };
  for (const auto& field : kWindPropertiesFields) std::visit(take, field.member);
  take(&WindProperties::figure);
  take(&WindProperties::table);
  take(&WindProperties::table66RoofType);
  take(&WindProperties::note5Applies);
  take(&WindProperties::interval);
  return shown;
}

void SaveWindProperties(wb::Workbook& project, const WindProperties& v, int tab) {
  rules::SaveFields(project, kWindPropertiesFields, v);
  wb::WriteNamedInt(project, "Category", CategoryValue(v.categoryOption, v.hurricane));
  wb::WriteNamedInt(project, "Figure", v.figure);
  wb::WriteNamedInt(project, "Table", v.table);
  // Ri is computed only for partially enclosed buildings; Aog and Vi keep their cells.
  const bool computeRi = v.table64 == 1 && v.computeRi;
  wb::WriteNamedInt(project, "B148", computeRi ? 1 : 0);
  if (computeRi) {
    WriteFieldText(project, "B149", v.aog);
    WriteFieldText(project, "B150", v.vi);
  }
  wb::WriteNamedNumber(project, "Table66RoofType", v.table66RoofType);
  wb::WriteNamedNumber(project, "Note5Applies", v.note5Applies);
  if (tab == kTopographyTab) {
    wb::WriteNamedNumber(project, "B144", 0.0);
    wb::WriteNamedNumber(project, "B145", rules::FieldValue(v.height));
  }
  wb::WriteNamedInt(project, "B124", 0);
}

}  // namespace gustline
