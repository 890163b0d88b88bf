#include "structures/qt/Fig619.h"

#include <QEvent>
#include <QTimer>

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/AngleSlider.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Fig619.h"

namespace gustline {

Fig619::Fig619(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Fig619>()) {
  ui_->setupUi(this);
  for (QLineEdit* box : {ui_->RoofAngleEditBox, ui_->Dimension_a_EditBox, ui_->Zone1AreaEditBox,
                         ui_->Zone2AreaEditBox, ui_->Zone3AreaEditBox}) {
    box->installEventFilter(this);
  }
  rules::FollowAngle(*ui_->RoofAngleEditBox, *ui_->RoofAngleSlider);
  connect(ui_->OKButton, &QPushButton::clicked, this, [this] { OKButton_Click(); });
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
  const Fig619Values v = LoadFig619(app_.state.ProjectWorkbook());
  ShowValues(v);
  if (const auto error = Fig619RoofTypeError(v.roofType)) app_.prompt.Show(*error);
}

Fig619::~Fig619() = default;

Fig619Values Fig619::Values() const {
  Fig619Values v = loaded_;
  rules::ReadFields(*this, kFig619Fields, v);
  return v;
}

void Fig619::ShowValues(const Fig619Values& v) {
  loaded_ = v;
  rules::ShowFields(*this, kFig619Fields, v);
}

void Fig619::OKButton_Click() {
  const Fig619Values v = Values();
  AcceptPropertyValues(
      *this, app_, [&v](wb::Workbook& project) { SaveFig619(project, v); }, true);
}

bool Fig619::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    if (auto* box = qobject_cast<QLineEdit*>(watched)) {
      // After the click that gave the focus, which would otherwise place the caret.
      QTimer::singleShot(0, box, &QLineEdit::selectAll);
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace gustline
