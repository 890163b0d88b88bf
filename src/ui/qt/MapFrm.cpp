#include "ui/qt/MapFrm.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>

#include "ui/qt/MapImage.h"
#include "ui_MapFrm.h"

namespace gustline {
namespace {

// The picture at 100 per cent: twice the size of its drawing, so that its notes read.
constexpr double kNaturalScale = 2;

MapSize SizeOf(QSize size) {
  return {static_cast<double>(size.width()), static_cast<double>(size.height())};
}

}  // namespace

MapFrm::MapFrm(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::MapFrm>()) {
  ui_->setupUi(this);
  image_ = new MapImage;
  ui_->Picture1->setWidget(image_);
  const QSize drawing = image_->PictureSize();
  natural_ = {drawing.width() * kNaturalScale, drawing.height() * kNaturalScale};
  image_->resize(static_cast<int>(natural_.width), static_cast<int>(natural_.height));
  for (const std::string_view item : kMapZoomItems)
    ui_->Combo1->addItem(QString::fromUtf8(item.data(), static_cast<int>(item.size())));
  ui_->Combo1->setCurrentText(QStringLiteral("100%"));

  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  connect(ui_->Command3, &QPushButton::clicked, this, &QDialog::hide);
  connect(ui_->Combo1, &QComboBox::textActivated, this,
          [this](const QString& text) { Combo1_Click(text); });
  connect(ui_->Combo1->lineEdit(), &QLineEdit::returnPressed, this, [this] { Combo1_Enter(); });
}

MapFrm::~MapFrm() = default;

MapSize MapFrm::PictureSize() const {
  return SizeOf(image_->size());
}

MapSize MapFrm::FrameSize() const {
  return SizeOf(ui_->Picture1->viewport()->size());
}

void MapFrm::Command1_Click() {
  Apply(ZoomIn({PictureSize(), ui_->Command2->isEnabled()}));
}

void MapFrm::Command2_Click() {
  Apply(ZoomOut({PictureSize(), ui_->Command2->isEnabled()}, FrameSize()));
}

void MapFrm::Combo1_Click(const QString& text) {
  const auto factor = ZoomFactor(text.toStdString());
  if (!factor) return;
  Apply(ZoomTo({PictureSize(), ui_->Command2->isEnabled()}, NaturalSize(), *factor, FrameSize()));
}

void MapFrm::Combo1_Enter() {
  const QString text = ui_->Combo1->currentText();
  Combo1_Click(text);
  ui_->Combo1->setEditText(QString::fromStdString(ZoomText(text.toStdString())));
}

void MapFrm::Apply(const MapZoom& zoom) {
  ui_->Command2->setEnabled(zoom.zoomOutEnabled);
  image_->resize(static_cast<int>(zoom.picture.width), static_cast<int>(zoom.picture.height));
}

MapFrm& ShowMapFrm(QWidget* caller) {
  QWidget* owner = caller;
  while (owner->parentWidget() != nullptr) owner = owner->parentWidget();
  auto* map = owner->findChild<MapFrm*>();
  if (map == nullptr) map = new MapFrm(owner);
  map->setWindowModality(Qt::ApplicationModal);
  map->show();
  map->raise();
  return *map;
}

}  // namespace gustline
