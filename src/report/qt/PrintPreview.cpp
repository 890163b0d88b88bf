#include "report/qt/PrintPreview.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "core/workbook/model/Sheet.h"
#include "core/workbook/model/Workbook.h"
#include "report/qt/SheetRenderer.h"
#include "report/qt/ui_PrintPreview.h"

namespace gustline::report {
namespace {

const QString kWholePageText = QStringLiteral("Whole Page");
const QString kPageWidthText = QStringLiteral("Page Width");
constexpr double kTwipsPerInch = 1440;
constexpr double kScrollStepTwips = 100;
constexpr double kShadowOffsetTwips = 20;
constexpr double kShadowNarrowerTwips = 10;
constexpr int kMinimumPercent = 10;
constexpr int kMaximumPercent = 200;

// The number at the start of a text, 0 when there is none: "75%" gives 75.
double LeadingNumber(const QString& text) {
  const QString trimmed = text.trimmed();
  qsizetype end = 0;
  bool point = false;
  while (end < trimmed.size() && (trimmed[end].isDigit() || (trimmed[end] == u'.' && !point))) {
    point = point || trimmed[end] == u'.';
    ++end;
  }
  return trimmed.left(end).toDouble();
}

}  // namespace

QString NormalizePreviewZoom(const QString& typed) {
  const double value =
      std::clamp(LeadingNumber(typed), double{kMinimumPercent}, double{kMaximumPercent});
  return QString::number(value) + u'%';
}

double PreviewScale(const QString& zoomText, double backgroundWidthTwips,
                    double backgroundHeightTwips) {
  if (zoomText == kPageWidthText) return (backgroundWidthTwips - 400) / kPageWidthTwips;
  if (zoomText == kWholePageText) return (backgroundHeightTwips - 200) / kPageHeightTwips;
  return LeadingNumber(zoomText) / 100;
}

QString ZoomAfterClick(const QString& zoomText) {
  return zoomText == kWholePageText || zoomText == kPageWidthText ? QStringLiteral("100%")
                                                                  : kWholePageText;
}

PrintPreview::PrintPreview(wb::Workbook& report, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::PrintPreview>()), report_(report) {
  ui_->setupUi(this);
  ui_->cboPrevZoom->addItems({kWholePageText, kPageWidthText, QStringLiteral("10%"),
                              QStringLiteral("25%"), QStringLiteral("50%"), QStringLiteral("75%"),
                              QStringLiteral("100%"), QStringLiteral("125%"),
                              QStringLiteral("150%"), QStringLiteral("200%")});
  ui_->cboPrevZoom->setCurrentIndex(0);
  QPalette background = ui_->picBackGround->palette();
  background.setColor(QPalette::Window, Qt::gray);
  ui_->picBackGround->setPalette(background);
  ui_->picBackGround->setAutoFillBackground(true);
  ui_->picPage->setCursor(Qt::PointingHandCursor);
  ui_->picBackGround->installEventFilter(this);
  ui_->picPage->installEventFilter(this);

  connect(ui_->cboPrevZoom, &QComboBox::activated, this, [this] { DrawPage(true); });
  connect(ui_->cboPrevZoom->lineEdit(), &QLineEdit::returnPressed, this,
          [this] { SetZoomText(NormalizePreviewZoom(ui_->cboPrevZoom->currentText())); });
  connect(ui_->Zoom, &QToolButton::clicked, this,
          [this] { SetZoomText(ZoomText() == kWholePageText ? kPageWidthText : kWholePageText); });
  connect(ui_->Print, &QToolButton::clicked, this, &PrintPreview::PrintRequested);
  connect(ui_->FullScreen, &QToolButton::clicked, this, &PrintPreview::FullScreenRequested);
  connect(ui_->cmdClose, &QPushButton::clicked, this, &PrintPreview::CloseRequested);
  // The button is disabled while it turns the page, so that a double click turns one.
  const auto turn = [this](QToolButton* button, bool down) {
    button->setEnabled(false);
    button->setEnabled(true);
    if (down) {
      PageDown();
    } else {
      PageUp();
    }
  };
  connect(ui_->ssPgDn, &QToolButton::clicked, this, [this, turn] { turn(ui_->ssPgDn, true); });
  connect(ui_->ssPgUp, &QToolButton::clicked, this, [this, turn] { turn(ui_->ssPgUp, false); });
  connect(ui_->VScroll1, &QScrollBar::valueChanged, this, [this] { PlacePage(); });
  connect(ui_->HScroll1, &QScrollBar::valueChanged, this, [this] { PlacePage(); });
}

PrintPreview::~PrintPreview() = default;

QString PrintPreview::ZoomText() const {
  return ui_->cboPrevZoom->currentText();
}

void PrintPreview::SetZoomText(const QString& text) {
  const int index = ui_->cboPrevZoom->findText(text);
  if (index >= 0) {
    ui_->cboPrevZoom->setCurrentIndex(index);
  } else {
    ui_->cboPrevZoom->setEditText(text);
  }
  DrawPage(true);
}

void PrintPreview::Enter() {
  sheetPage_ = 0;
  DrawPage(true);
}

void PrintPreview::Leave() {
  for (int sheet = 1; sheet <= report_.SheetCount(); ++sheet) {
    wb::PrintSetup& setup = report_.GetSheet(sheet).Print();
    setup.hCenter = false;
    setup.vCenter = false;
  }
}

void PrintPreview::DrawPage(bool setScale) {
  if (setScale)
    for (int sheet = 1; sheet <= report_.SheetCount(); ++sheet)
      report_.GetSheet(sheet).Print().hCenter = true;
  const double twips = TwipsPerPixel();
  const QSize background = ui_->picBackGround->size();
  scale_ = std::max(
      0.01, PreviewScale(ZoomText(), background.width() * twips, background.height() * twips));
  const QSize page(static_cast<int>(std::lround(kPageWidthTwips * scale_ / twips)),
                   static_cast<int>(std::lround(kPageHeightTwips * scale_ / twips)));
  ui_->picPage->resize(page);
  const int step = static_cast<int>(std::lround(kScrollStepTwips / twips));
  const auto setBar = [step](QScrollBar* bar, int excess) {
    bar->setEnabled(excess > 0);
    bar->setRange(0, std::max(0, excess));
    bar->setSingleStep(step);
    bar->setPageStep(step);
  };
  setBar(ui_->HScroll1, page.width() - background.width());
  setBar(ui_->VScroll1, page.height() - background.height());
  PlacePage();
  ui_->picPage->update();
}

bool PrintPreview::PageDown() {
  if (sheetPage_ + 1 < SheetPageCount(report_, report_.ActiveSheet())) {
    ++sheetPage_;
  } else if (report_.ActiveSheet() < report_.SheetCount()) {
    report_.SetActiveSheet(report_.ActiveSheet() + 1);
    sheetPage_ = 0;
  } else {
    QApplication::beep();
    return false;
  }
  DrawPage(false);
  return true;
}

bool PrintPreview::PageUp() {
  if (sheetPage_ > 0) {
    --sheetPage_;
  } else if (report_.ActiveSheet() > 1) {
    report_.SetActiveSheet(report_.ActiveSheet() - 1);
    sheetPage_ = SheetPageCount(report_, report_.ActiveSheet()) - 1;
  } else {
    QApplication::beep();
    return false;
  }
  DrawPage(false);
  return true;
}

double PrintPreview::TwipsPerPixel() const {
  return kTwipsPerInch / std::max(1, logicalDpiX());
}

void PrintPreview::PlacePage() {
  const QSize background = ui_->picBackGround->size();
  const QSize page = ui_->picPage->size();
  const int x = page.width() < background.width() ? (background.width() - page.width()) / 2
                                                  : -ui_->HScroll1->value();
  const int y = page.height() < background.height() ? (background.height() - page.height()) / 2
                                                    : -ui_->VScroll1->value();
  ui_->picPage->move(x, y);
  ui_->picBackGround->update();
}

void PrintPreview::PaintPage() {
  QPainter painter(ui_->picPage);
  DrawSheetPage(painter, QRectF(ui_->picPage->rect()), report_, report_.ActiveSheet(), sheetPage_);
}

void PrintPreview::PaintShadow() {
  const double twips = TwipsPerPixel();
  const double offset = kShadowOffsetTwips / twips;
  QRectF shadow = QRectF(ui_->picPage->geometry()).translated(offset, offset);
  shadow.setWidth(shadow.width() - kShadowNarrowerTwips / twips);
  QPainter painter(ui_->picBackGround);
  painter.fillRect(shadow, Qt::black);
}

void PrintPreview::ClickPage(QPoint position) {
  const QPointF fraction(position.x() / std::max(1.0, double(ui_->picPage->width())),
                         position.y() / std::max(1.0, double(ui_->picPage->height())));
  SetZoomText(ZoomAfterClick(ZoomText()));
  const QSize page = ui_->picPage->size();
  const QSize background = ui_->picBackGround->size();
  ui_->HScroll1->setValue(static_cast<int>(fraction.x() * page.width() - background.width() / 2.0));
  ui_->VScroll1->setValue(
      static_cast<int>(fraction.y() * page.height() - background.height() / 2.0));
}

bool PrintPreview::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_->picPage && event->type() == QEvent::Paint) {
    PaintPage();
    return true;
  }
  if (watched == ui_->picPage && event->type() == QEvent::MouseButtonPress) {
    ClickPage(static_cast<QMouseEvent*>(event)->position().toPoint());
    return true;
  }
  if (watched == ui_->picBackGround && event->type() == QEvent::Paint) {
    PaintShadow();
    return false;
  }
  if (watched == ui_->picBackGround && event->type() == QEvent::Resize) DrawPage(false);
  return QWidget::eventFilter(watched, event);
}

void PrintPreview::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  DrawPage(false);
}

}  // namespace gustline::report
