#include "ui/rules/qt/FieldDisplay.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTabWidget>
#include <algorithm>

namespace gustline::rules {
namespace {

// The margin that a text box keeps on either side of its text, and the caret's width.
constexpr int kTextMargin = 2;
constexpr int kCaretWidth = 1;

int WidthForText(const QLineEdit& box) {
  QStyleOptionFrame option;
  option.initFrom(&box);
  option.lineWidth =
      box.hasFrame() ? box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &box) : 0;
  const QMargins text = box.textMargins();
  const QMargins contents = box.contentsMargins();
  const int width = box.fontMetrics().horizontalAdvance(box.text()) + 2 * kTextMargin +
                    kCaretWidth + text.left() + text.right() + contents.left() + contents.right();
  return box.style()
      ->sizeFromContents(QStyle::CT_LineEdit, &option, QSize(width, box.sizeHint().height()), &box)
      .width();
}

}  // namespace

void FitTextBoxes(QWidget& form) {
  for (QLineEdit* box : form.findChildren<QLineEdit*>()) {
    box->setMinimumWidth(std::max(box->minimumWidth(), WidthForText(*box)));
  }
}

void BringForward(QWidget& control) {
  for (QWidget* parent = control.parentWidget(); parent != nullptr;
       parent = parent->parentWidget()) {
    auto* tabs = qobject_cast<QTabWidget*>(parent);
    if (tabs == nullptr) continue;
    for (int i = 0; i < tabs->count(); ++i) {
      if (tabs->widget(i)->isAncestorOf(&control)) tabs->setCurrentIndex(i);
    }
  }
}

}  // namespace gustline::rules
