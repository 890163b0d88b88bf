#include "structures/Figure620Values.h"

#include "core/workbook/model/NamedCells.h"
#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {

Figure620Values LoadFigure620(wb::Workbook& project) {
  Figure620Values v;
  rules::LoadFields(project, kFigure620Fields, v);
  return v;
}

void SaveFigure620(wb::Workbook& project, const Figure620Values& v) {
  rules::SaveFields(project, kFigure620Fields, v);
  const double b = rules::FieldValue(v.horzDim);
  const double s = rules::FieldValue(v.vertDim);
  const double h = rules::FieldValue(v.height);
  const double lr = rules::FieldValue(v.returnCorner);
  wb::WriteNamedNumber(project, "ClearanceRatio", s / h);
  wb::WriteNamedNumber(project, "AspectRatio", b / s);
  wb::WriteNamedNumber(project, "DepthRatio", lr / s);
}

std::optional<Message> Figure620Refusal(const Figure620Values& v) {
  const double h = rules::FieldValue(v.height);
  if (h > 0 && rules::FieldValue(v.vertDim) <= h) return std::nullopt;
  return Message{"Error",
                 "Value too small for height to top - it must be at least as large as Vertical "
                 "dimension",
                 PromptIcon::Exclamation};
}

}  // namespace gustline
