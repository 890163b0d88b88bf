#include "factors/qt/frmTopography.h"

#include "ui_frmTopography.h"

namespace gustline {

frmTopography::frmTopography(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmTopography>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, &QDialog::accept);
}

frmTopography::~frmTopography() = default;

}  // namespace gustline
