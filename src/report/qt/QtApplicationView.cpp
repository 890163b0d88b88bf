#include "report/qt/QtApplicationView.h"

#include <QApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QSplashScreen>
#include <QStackedWidget>
#include <QStatusBar>

#include "report/qt/MainFrm.h"
#include "report/qt/ReportPrinting.h"

namespace gustline {
namespace {

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The splash picture: the program's name and what it computes.
QPixmap SplashPicture() {
  QPixmap pixmap(460, 260);
  QPainter painter(&pixmap);
  QLinearGradient sky(0, 0, 0, 260);
  sky.setColorAt(0, QColor(34, 68, 120));
  sky.setColorAt(1, QColor(110, 160, 210));
  painter.fillRect(pixmap.rect(), sky);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(255, 255, 255, 120), 3));
  for (int line = 0; line < 3; ++line) {
    const int y = 150 + line * 22;
    QPainterPath gust(QPointF(30, y));
    gust.cubicTo(130, y - 18, 230, y + 18, 330 + line * 30, y);
    painter.drawPath(gust);
  }
  painter.setPen(Qt::white);
  QFont title = painter.font();
  title.setPixelSize(44);
  title.setBold(true);
  painter.setFont(title);
  painter.drawText(QRect(30, 40, 400, 60), Qt::AlignLeft | Qt::AlignVCenter,
                   QStringLiteral("Gustline"));
  QFont line = painter.font();
  line.setPixelSize(15);
  line.setBold(false);
  painter.setFont(line);
  painter.drawText(QRect(32, 100, 400, 24), Qt::AlignLeft,
                   QStringLiteral("Design wind pressures by ASCE 7-05, Chapter 6"));
  return pixmap;
}

}  // namespace

QtApplicationView::QtApplicationView(MainFrm& window) : window_(window) {}

QtApplicationView::~QtApplicationView() = default;

void QtApplicationView::ShowSplash(bool shown) {
  if (shown) {
    splash_ = std::make_unique<QSplashScreen>(SplashPicture());
    splash_->show();
    splash_->repaint();
    QApplication::processEvents();
  } else if (splash_ && window_.isVisible()) {
    splash_->close();
    splash_.reset();
  }
}

void QtApplicationView::ShowMainWindow() {
  window_.show();
  window_.repaint();
  // The splash stays until the window stands in its place. Finishing it against a window not
  // yet shown would wait a second for the window to appear.
  if (splash_) {
    splash_->close();
    splash_.reset();
  }
}

void QtApplicationView::HideToolsMenu() {
  window_.HideToolsMenu();
}

void QtApplicationView::ShowReport() {
  window_.ReportArea()->setVisible(true);
}

void QtApplicationView::MoveOutOfView() {
  window_.showNormal();
  window_.move(-20000, window_.y());
}

void QtApplicationView::SetCaption(std::string_view caption) {
  window_.setWindowTitle(ToQString(caption));
}

void QtApplicationView::SetStatusPanelStyle() {
  window_.SetStatusPanelStyle();
}

void QtApplicationView::SetStatusPanel(int panel, std::string_view text) {
  window_.SetStatusPanel(panel, ToQString(text));
}

void QtApplicationView::RepaintStatusBar() {
  window_.statusBar()->repaint();
}

void QtApplicationView::SetProgressVisible(bool visible) {
  window_.SetProgressVisible(visible);
}

void QtApplicationView::SetProgress(int value) {
  window_.SetProgress(value);
}

void QtApplicationView::LayoutReport() {
  window_.ReportArea()->updateGeometry();
  window_.RefreshReport();
}

void QtApplicationView::SetZoomListIndex(int index) {
  window_.ApplyZoom(index);
}

void QtApplicationView::SetZoomIndex(int index) {
  window_.ApplyZoom(index);
}

int QtApplicationView::ZoomIndex() const {
  return window_.ZoomIndex();
}

void QtApplicationView::SetToolbarVisible(bool visible) {
  window_.SetToolbarVisible(visible);
}

bool QtApplicationView::ToolbarVisible() const {
  return window_.ToolbarVisible();
}

void QtApplicationView::SetStatusbarVisible(bool visible) {
  window_.SetStatusbarVisible(visible);
}

bool QtApplicationView::StatusbarVisible() const {
  return window_.StatusbarVisible();
}

void QtApplicationView::PrintReportToPdf(wb::Workbook& report, const std::string& path) {
  report::WriteReportPdf(report, path);
}

void QtApplicationView::ShowRecentFiles(const RecentFiles& recentFiles) {
  window_.ShowRecentFiles(recentFiles);
}

}  // namespace gustline
