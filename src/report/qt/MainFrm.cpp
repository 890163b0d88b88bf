#include "report/qt/MainFrm.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QProgressBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <utility>

#include "core/Application.h"
#include "core/ProcessState.h"
#include "core/RecentFiles.h"
#include "geometry/qt/Geometry.h"
#include "report/qt/MaintenanceKeys.h"
#include "report/qt/PrintPreview.h"
#include "report/qt/ReportView.h"
#include "simplified/qt/frmSimplified.h"

namespace gustline {
namespace {

constexpr int kZoomEntries = 8;

// A toolbar picture for a command without a standard one: a short label on a page.
QIcon GlyphIcon(const QString& label, const QColor& colour) {
  QPixmap pixmap(24, 24);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour.darker(150), 1));
  painter.setBrush(colour.lighter(170));
  painter.drawRoundedRect(QRectF(2.5, 2.5, 19, 19), 3, 3);
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(label.size() > 1 ? 9 : 12);
  painter.setFont(font);
  painter.setPen(colour.darker(200));
  painter.drawText(QRect(2, 2, 20, 20), Qt::AlignCenter, label);
  return QIcon(pixmap);
}

}  // namespace

MainFrm::MainFrm(QWidget* parent) : QMainWindow(parent) {
  setObjectName(QStringLiteral("MainFrm"));
  resize(1000, 760);
  reportArea_ = new QStackedWidget(this);
  reportArea_->setObjectName(QStringLiteral("reportArea"));
  reportArea_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(reportArea_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& pos) { ShowPopup(reportArea_->mapToGlobal(pos)); });
  setCentralWidget(reportArea_);
  BuildMenus();
  BuildToolbar();
  BuildStatusBar();
  auto* leaveFullScreen = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  connect(leaveFullScreen, &QShortcut::activated, this, [this] {
    if (fullScreenView_) RunCommand("mnuViewNormal");
  });
  for (const auto& [key, step] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
    auto* turn = new QShortcut(QKeySequence(key), this);
    // clang 14 cannot capture a structured binding itself, only a copy of it.
    connect(turn, &QShortcut::activated, this, [this, step = step] { TurnPage(step); });
  }
  AddMaintenanceKeys(*this, [this] { return app_; });
  ApplyZoom(5);
}

MainFrm::~MainFrm() = default;

void MainFrm::SetApplication(Application* app) {
  app_ = app;
  delete reportView_;
  delete preview_;
  wb::Workbook& book = app_->state.ReportWorkbook();
  reportView_ = new report::ReportView(book, reportArea_);
  reportView_->setObjectName(QStringLiteral("ServerSS"));
  connect(reportView_, &report::ReportView::PopupRequested, this, &MainFrm::ShowPopup);
  preview_ = new report::PrintPreview(book, reportArea_);
  connect(preview_, &report::PrintPreview::PrintRequested, this, [this] { PrintCommand(); });
  connect(preview_, &report::PrintPreview::FullScreenRequested, this,
          [this] { SetFullScreenView(!fullScreenView_); });
  connect(preview_, &report::PrintPreview::CloseRequested, this, &MainFrm::LeavePreview);
  reportArea_->addWidget(reportView_);
  reportArea_->addWidget(preview_);
  reportArea_->setCurrentWidget(reportView_);
  ApplyZoom(zoomIndex_);
}

void MainFrm::RefreshReport() {
  if (reportView_) reportView_->Refresh();
}

void MainFrm::SwitchMenusForPreview(bool previewing) {
  for (const char* name : {"mnuViewNormal", "mnuViewFullScreen", "mnuViewStatus", "mnuViewToolBar",
                           "mnuZoom", "mnuFilePrintPreview", "mnuEditCopy", "mnuEditLastCmd",
                           "mnuFormatNumber", "mnuFormatWidth"})
    Command(name)->setEnabled(!previewing);
  toolbar_->setVisible(!previewing && !fullScreenView_ && toolbarShown_);
}

void MainFrm::EnterPreview() {
  if (!preview_ || previewing_) return;
  previewing_ = true;
  SwitchMenusForPreview(true);
  reportArea_->setCurrentWidget(preview_);
  preview_->Enter();
}

void MainFrm::LeavePreview() {
  if (!preview_ || !previewing_) return;
  previewing_ = false;
  preview_->Leave();
  // The preview leaves every sheet at 100%; the zoom of the menu returns with the next report.
  reportView_->SetZoom(100);
  SwitchMenusForPreview(false);
  reportArea_->setCurrentWidget(reportView_);
  RefreshReport();
}

void MainFrm::TurnPage(int step) {
  if (previewing_) {
    if (step > 0)
      preview_->PageDown();
    else
      preview_->PageUp();
  } else if (reportView_) {
    reportView_->TurnPage(step);
  }
}

void MainFrm::BuildToolbar() {
  toolbar_ = addToolBar(QStringLiteral("Toolbar1"));
  toolbar_->setObjectName(QStringLiteral("Toolbar1"));
  toolbar_->setMovable(false);
  toolbar_->setIconSize(QSize(24, 24));
  struct Button {
    const char* key;
    const char* toolTip;
    const char* command;
  };
  constexpr std::array<Button, 8> kButtons = {{
      {"New", "New", "mnuFileNew"},
      {"Open", "Open", "mnuFileOpen"},
      {"Save", "Save", "mnuFileSave"},
      {"Print", "Print", "mnuFilePrintReport"},
      {"PrintPreview", "Print Preview", "mnuFilePrintPreview"},
      {"Analytical", "Analytical Procedure", "mnuPropertiesEquation"},
      {"Simplified", "Simplified Procedure", "mnuSimplified"},
      {"Geometry", "Define Geometry", "mnuPropertiesGeometry"},
  }};
  const QColor blue(70, 110, 170);
  const QColor green(70, 140, 90);
  const std::array<QIcon, 8> icons = {
      style()->standardIcon(QStyle::SP_FileIcon),
      style()->standardIcon(QStyle::SP_DialogOpenButton),
      style()->standardIcon(QStyle::SP_DialogSaveButton),
      GlyphIcon(QStringLiteral("P"), blue),
      GlyphIcon(QStringLiteral("PV"), blue),
      GlyphIcon(QStringLiteral("M2"), green),
      GlyphIcon(QStringLiteral("M1"), green),
      GlyphIcon(QStringLiteral("XY"), QColor(160, 110, 60)),
  };
  for (std::size_t i = 0; i < kButtons.size(); ++i) {
    const Button& button = kButtons[i];
    if (i == 3 || i == 5) toolbar_->addSeparator();
    const std::string command(button.command);
    QAction* action = toolbar_->addAction(icons[i], QString::fromUtf8(button.toolTip));
    action->setObjectName(QString::fromUtf8(button.key));
    action->setToolTip(QString::fromUtf8(button.toolTip));
    connect(action, &QAction::triggered, this, [this, command] { RunCommand(command); });
  }
  toolbar_->addSeparator();
  zoomList_ = new QComboBox(toolbar_);
  zoomList_->setObjectName(QStringLiteral("cboZoom"));
  for (QAction* item : zoomItems_) zoomList_->addItem(item->text());
  zoomList_->setToolTip(QStringLiteral("Zoom"));
  toolbar_->addWidget(zoomList_);
  connect(zoomList_, &QComboBox::activated, this, [this](int index) { ApplyZoom(index); });
}

void MainFrm::BuildStatusBar() {
  QStatusBar* bar = statusBar();
  bar->setObjectName(QStringLiteral("StatusBar1"));
  bar->setSizeGripEnabled(false);
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    auto* label = new QLabel(bar);
    label->setObjectName(QStringLiteral("Panel%1").arg(i + 1));
    label->setFrameShape(QFrame::StyledPanel);
    label->setFrameShadow(QFrame::Sunken);
    label->setMinimumWidth(i == 0 ? 200 : 110);
    panels_[i] = label;
  }
  bar->addPermanentWidget(panels_[0], 1);
  progressBar_ = new QProgressBar(bar);
  progressBar_->setObjectName(QStringLiteral("ProgressBar1"));
  progressBar_->setRange(0, 100);
  progressBar_->setMaximumWidth(220);
  progressBar_->setVisible(false);
  bar->addPermanentWidget(progressBar_);
  for (std::size_t i = 1; i < panels_.size(); ++i) {
    bar->addPermanentWidget(panels_[i]);
    panels_[i]->setVisible(false);
  }
}

QAction* MainFrm::Command(std::string_view objectName) const {
  if (const auto found = entries_.find(objectName); found != entries_.end())
    return found->second.action;
  return findChild<QAction*>(
      QString::fromUtf8(objectName.data(), static_cast<qsizetype>(objectName.size())));
}

void MainFrm::RunCommand(std::string_view objectName) {
  const auto found = entries_.find(objectName);
  if (found == entries_.end()) return;
  const Entry& entry = found->second;
  if (entry.storesCommand) repeat_.Store(entry.action->text().toStdString());
  if (entry.handler) entry.handler();
}

void MainFrm::SetStatusPanel(int panel, const QString& text) {
  if (panel < 1 || panel > static_cast<int>(panels_.size())) return;
  panels_[static_cast<std::size_t>(panel - 1)]->setText(text);
}

QString MainFrm::StatusPanel(int panel) const {
  if (panel < 1 || panel > static_cast<int>(panels_.size())) return {};
  return panels_[static_cast<std::size_t>(panel - 1)]->text();
}

void MainFrm::SetStatusPanelStyle() {
  for (std::size_t i = 1; i < panels_.size(); ++i) panels_[i]->setVisible(true);
}

void MainFrm::SetProgressVisible(bool visible) {
  progressBar_->setVisible(visible);
}

void MainFrm::SetProgress(int value) {
  progressBar_->setValue(value);
}

void MainFrm::ApplyZoom(int index) {
  if (index < 0 || index >= kZoomEntries) return;
  zoomIndex_ = index;
  zoomItems_[static_cast<std::size_t>(index)]->setChecked(true);
  zoomList_->setCurrentIndex(index);
  if (reportView_) {
    reportView_->SetZoom(ZoomPercent());
    reportView_->Refresh();
  }
}

int MainFrm::ZoomPercent() const {
  return zoomItems_[static_cast<std::size_t>(zoomIndex_)]->text().chopped(1).toInt();
}

void MainFrm::SetToolbarVisible(bool visible) {
  toolbarShown_ = visible;
  Command("mnuViewToolBar")->setChecked(visible);
  if (!fullScreenView_) toolbar_->setVisible(visible);
}

bool MainFrm::ToolbarVisible() const {
  return toolbarShown_;
}

void MainFrm::SetStatusbarVisible(bool visible) {
  statusbarShown_ = visible;
  Command("mnuViewStatus")->setChecked(visible);
  if (!fullScreenView_) statusBar()->setVisible(visible);
}

bool MainFrm::StatusbarVisible() const {
  return statusbarShown_;
}

void MainFrm::ShowRecentFiles(const RecentFiles& recentFiles) {
  for (int i = 0; i < RecentFiles::kCount; ++i) {
    const RecentEntry& entry = recentFiles.Entry(i);
    QAction* item = recentItems_[static_cast<std::size_t>(i)];
    // A file name is shown as it is: an ampersand in it marks no access key.
    item->setText(QString::fromStdString(entry.caption).replace('&', QStringLiteral("&&")));
    item->setVisible(entry.visible);
    item->setEnabled(entry.enabled);
  }
}

void MainFrm::HideToolsMenu() {
  toolsMenuVisible_ = false;
  QAction* tools = findChild<QMenu*>(QStringLiteral("mnuTools"))->menuAction();
  tools->setVisible(false);
  tools->setEnabled(false);
}

void MainFrm::SetFullScreenView(bool fullScreen) {
  fullScreenView_ = fullScreen;
  for (const char* name :
       {"mnuFile", "mnuEdit", "mnuView", "mnuParameters", "mnuFormat", "mnuHelp"})
    findChild<QMenu*>(QString::fromUtf8(name))->menuAction()->setVisible(!fullScreen);
  findChild<QMenu*>(QStringLiteral("mnuTools"))
      ->menuAction()
      ->setVisible(!fullScreen && toolsMenuVisible_);
  menuBar()->setVisible(!fullScreen);
  toolbar_->setVisible(!fullScreen && toolbarShown_);
  statusBar()->setVisible(!fullScreen && statusbarShown_);
}

void MainFrm::ShowPopup(const QPoint& globalPos) {
  popup_->popup(globalPos);
}

void MainFrm::closeEvent(QCloseEvent* event) {
  // The window ends only through File Exit, which may be cancelled.
  event->ignore();
  RunCommand("mnuFileExit");
}

}  // namespace gustline
