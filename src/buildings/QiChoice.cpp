#include "buildings/QiChoice.h"

#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {

QiChoice LoadQi(wb::Workbook& project, const QiCells& cells) {
  QiChoice qi;
  qi.useQz = wb::ReadNamedInt(project, cells.useQi) != 0;
  const double z = wb::ReadNamedNumber(project, cells.z);
  qi.z = wb::FormatNumber(z == 0 ? wb::ReadNamedNumber(project, "Height") : z, "General");
  qi.table64 = wb::ReadNamedInt(project, "Table64");
  if (!QiChoiceEnabled(qi.table64)) {
    qi.useQz = false;
    wb::WriteNamedInt(project, cells.useQi, 0);
  }
  return qi;
}

void SaveQi(wb::Workbook& project, const QiCells& cells, bool useQz, std::string_view z) {
  if (QiChoiceEnabled(wb::ReadNamedInt(project, "Table64"))) {
    wb::WriteNamedNumber(project, cells.z, rules::FieldValue(z));
    wb::WriteNamedInt(project, cells.useQi, useQz ? 1 : 0);
  } else {
    wb::WriteNamedNumber(project, cells.z, wb::ReadNamedNumber(project, "Height"));
    wb::WriteNamedInt(project, cells.useQi, 0);
  }
}

}  // namespace gustline
