#include "ui/frmWindPropValues.h"

#include "core/workbook/NamedCells.h"
#include "core/workbook/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

using rules::FieldValue;

std::string General(wb::Workbook& project, std::string_view name) {
  return wb::FormatNumber(wb::ReadNamedNumber(project, name), "General");
}

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

void SetCategory(WindProperties& values, int category) {
  values.hurricane = category == 4;
  values.categoryOption = category == 4 ? 0 : category;
}

WindProperties LoadWindProperties(wb::Workbook& project) {
  WindProperties v;
  v.system = wb::ReadNamedInt(project, "System");
  v.structure = wb::ReadNamedInt(project, "Structure");
  v.table64 = wb::ReadNamedInt(project, "Table64");
  v.kd = wb::ReadNamedInt(project, "kd") == 1;
  SetCategory(v, wb::ReadNamedInt(project, "Category"));
  v.exposure = wb::ReadNamedInt(project, "Exposure");
  v.windSpeed = wb::FormatNumber(wb::ReadNamedNumber(project, "WindSpeed"), "0.00");
  v.meanSeaLevel = General(project, "MeanSeaLevel");
  v.height = General(project, "Height");
  v.width = General(project, "Width");
  v.depth = General(project, "Depth");
  v.frequency = General(project, "Frequency");
  v.dampingPercent = wb::FormatNumber(wb::ReadNamedNumber(project, "Damping") * 100.0, "General");
  v.hillType = wb::ReadNamedInt(project, "HillType");
  v.hillHeight = General(project, "HillHeight");
  v.hillLh = General(project, "HillLh");
  v.hillX = General(project, "HillX");
  v.gustType = wb::ReadNamedInt(project, "GustType");
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

void SaveWindProperties(wb::Workbook& project, const WindProperties& v, int tab) {
  wb::WriteNamedInt(project, "System", v.system);
  wb::WriteNamedInt(project, "Structure", v.structure);
  wb::WriteNamedInt(project, "Table64", v.table64);
  wb::WriteNamedInt(project, "kd", v.kd ? 1 : 0);
  wb::WriteNamedInt(project, "Category", CategoryValue(v.categoryOption, v.hurricane));
  wb::WriteNamedInt(project, "Exposure", v.exposure);
  wb::WriteNamedNumber(project, "WindSpeed", FieldValue(v.windSpeed));
  wb::WriteNamedNumber(project, "MeanSeaLevel", FieldValue(v.meanSeaLevel));
  wb::WriteNamedNumber(project, "Height", FieldValue(v.height));
  wb::WriteNamedNumber(project, "Width", FieldValue(v.width));
  wb::WriteNamedNumber(project, "Depth", FieldValue(v.depth));
  wb::WriteNamedNumber(project, "Frequency", FieldValue(v.frequency));
  wb::WriteNamedNumber(project, "Damping", FieldValue(v.dampingPercent) / 100.0);
  wb::WriteNamedInt(project, "HillType", v.hillType);
  wb::WriteNamedNumber(project, "Hillheight", FieldValue(v.hillHeight));
  wb::WriteNamedNumber(project, "HillLh", FieldValue(v.hillLh));
  wb::WriteNamedNumber(project, "HillX", FieldValue(v.hillX));
  wb::WriteNamedInt(project, "GustType", v.gustType);
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
    wb::WriteNamedNumber(project, "B145", FieldValue(v.height));
  }
  wb::WriteNamedInt(project, "B124", 0);
}

}  // namespace gustline
