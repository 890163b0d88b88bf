// The menu bar, the popup menu of the report and the prompts of status panel 1: every entry
// with its object name, caption, prompt and handler.
#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "core/FileOpen.h"
#include "core/FileSave.h"
#include "core/FileSaveAs.h"
#include "factors/frmMinPressure.h"
#include "report/qt/MainFrm.h"
#include "report/qt/ReportPrinting.h"
#include "ui/About.h"
#include "ui/Headings.h"
#include "ui/PageSetup.h"
#include "ui/Template.h"
#include "ui/Units.h"

namespace gustline {
namespace {

constexpr const char* kMenuTitlePrompt =
    "Press letter on menu title, or use arrow keys and press ENTER";
constexpr const char* kPromptProperty = "prompt";

constexpr std::array<const char*, 8> kZoomCaptions = {"25%", "50%",  "75%",  "80%",
                                                      "90%", "100%", "125%", "150%"};

}  // namespace

QMenu* MainFrm::AddMenu(QMenu* parent, const char* name, const char* caption) {
  QMenu* menu = parent ? parent->addMenu(QString::fromUtf8(caption))
                       : menuBar()->addMenu(QString::fromUtf8(caption));
  menu->setObjectName(QString::fromUtf8(name));
  menu->menuAction()->setObjectName(QString::fromUtf8(name));
  menu->menuAction()->setProperty(kPromptProperty, QString::fromUtf8(kMenuTitlePrompt));
  WatchPrompts(menu);
  return menu;
}

QAction* MainFrm::AddEntry(QMenu* menu, const char* name, const char* caption, const char* prompt,
                           std::function<void()> handler, bool storesCommand) {
  auto* action = new QAction(QString::fromUtf8(caption), this);
  action->setObjectName(QString::fromUtf8(name));
  action->setProperty(kPromptProperty, QString::fromUtf8(prompt ? prompt : ""));
  if (menu) menu->addAction(action);
  // Shortcuts keep working while full screen hides the menus.
  addAction(action);
  const std::string key(name);
  entries_[key] = Entry{action, storesCommand, std::move(handler)};
  connect(action, &QAction::triggered, this, [this, key] { RunCommand(key); });
  return action;
}

void MainFrm::AddAlias(const char* name, const char* caption, const char* target, QMenu* menu) {
  const std::string targetName(target);
  AddEntry(
      menu, name, caption,
      entries_.at(targetName).action->property(kPromptProperty).toString().toUtf8().constData(),
      [this, targetName] { RunCommand(targetName); }, false);
}

void MainFrm::WatchPrompts(QMenu* menu) {
  connect(menu, &QMenu::aboutToShow, this,
          [this] { SetStatusPanel(1, QString::fromUtf8(kMenuTitlePrompt)); });
  connect(menu, &QMenu::hovered, this, [this](QAction* action) {
    SetStatusPanel(1, action->property(kPromptProperty).toString());
  });
  connect(menu, &QMenu::aboutToHide, this, [this] { SetStatusPanel(1, QString()); });
}

void MainFrm::BuildMenus() {
  connect(menuBar(), &QMenuBar::hovered, this, [this](QAction* action) {
    SetStatusPanel(1, action->property(kPromptProperty).toString());
  });

  QMenu* file = AddMenu(nullptr, "mnuFile", "&File");
  AddEntry(file, "mnuFileNew", "&New...", "Create new project.", [this] {
    FileNewCommand();
  })->setShortcut(QKeySequence::New);
  AddEntry(file, "mnuFileOpen", "&Open...", "Open an existing project.", [this] {
    WithApplication(FileOpen);
  })->setShortcut(QKeySequence::Open);
  AddEntry(file, "mnuFileTemplate", "&Template...", "Change default template.", [this] {
    if (app_) ShowTemplate(this, *app_);
  });
  file->addSeparator();
  AddEntry(file, "mnuFileSave", "&Save", "Save the active project.", [this] {
    WithApplication(FileSave);
  })->setShortcut(QKeySequence::Save);
  AddEntry(file, "mnuFileSaveAs", "Save &As...", "Save the active project with a new name.",
           [this] { WithApplication(FileSaveAs); });
  file->addSeparator();
  AddEntry(file, "mnuFilePrintSetup", "Print Set&up...",
           "Select printer, page orientation and paper size.", [this] { PrintSetupCommand(); });
  AddEntry(file, "mnuFilePageSetup", "Pag&e Setup...",
           "Define header, page margins, page centering.", [this] {
             if (app_) ShowPageSetup(this, *app_, report::PrinterIsLandscape());
           });
  AddEntry(file, "mnuFilePrintReport", "&Print...", "Print ASCE 7-05 Gustline Report.", [this] {
    PrintCommand();
  })->setShortcut(QKeySequence::Print);
  AddEntry(file, "mnuFilePrintPreview", "Print Pre&view", "Print Preview Report.",
           [this] { EnterPreview(); });
  file->addSeparator();
  for (int entry = 0; entry < 4; ++entry) {
    const std::string name = "mnuFileArray(" + std::to_string(entry) + ")";
    recentItems_[static_cast<std::size_t>(entry)] =
        AddEntry(file, name.c_str(), "", "Open this file.", [this, entry] {
          if (app_) OpenRecentFile(*app_, entry);
        });
    recentItems_[static_cast<std::size_t>(entry)]->setVisible(false);
  }
  file->addSeparator();
  AddEntry(file, "mnuFileExit", "E&xit",
           "Quits the application; Prompts you to save project properties.",
           [this] { FileExitCommand(); });

  QMenu* edit = AddMenu(nullptr, "mnuEdit", "&Edit");
  AddEntry(edit, "mnuEditCopy", "&Copy", "Copy selected cells to clipboard.", [this] {
    EditCopy();
  })->setShortcut(QKeySequence::Copy);
  AddEntry(
      edit, "mnuEditLastCmd", "&Repeat Command", "Repeat last executed command.",
      [this] { RepeatLastCommand(); }, false)
      ->setShortcut(QKeySequence(Qt::Key_F4));
  edit->addSeparator();
  AddEntry(edit, "mnuEditProperties", "Project Properties...", nullptr, nullptr, false);

  QMenu* view = AddMenu(nullptr, "mnuView", "&View");
  AddEntry(view, "mnuViewNormal", "&Normal", nullptr, [this] {
    SetFullScreenView(false);
    LeavePreview();
  });
  AddEntry(view, "mnuViewFullScreen", "F&ull Screen", nullptr, [this] { SetFullScreenView(true); });
  view->addSeparator();
  QAction* toolbarItem = AddEntry(view, "mnuViewToolBar", "&Toolbar", "Toggle Toolbar ON or OFF.",
                                  [this] { SetToolbarVisible(!ToolbarVisible()); });
  toolbarItem->setCheckable(true);
  toolbarItem->setChecked(true);
  QAction* statusItem =
      AddEntry(view, "mnuViewStatus", "&Statusbar", "Toggle Status Bar ON or OFF.",
               [this] { SetStatusbarVisible(!StatusbarVisible()); });
  statusItem->setCheckable(true);
  statusItem->setChecked(true);
  view->addSeparator();
  QMenu* zoom = AddMenu(view, "mnuZoom", "&Zoom");
  zoomGroup_ = new QActionGroup(this);
  for (int index = 0; index < 8; ++index) {
    const std::string name = "mnuZoomItem(" + std::to_string(index) + ")";
    QAction* item = AddEntry(zoom, name.c_str(), kZoomCaptions[static_cast<std::size_t>(index)],
                             "Changes magnification of displayed document.",
                             [this, index] { ApplyZoom(index); });
    item->setCheckable(true);
    zoomGroup_->addAction(item);
    zoomItems_[static_cast<std::size_t>(index)] = item;
  }

  QMenu* parameters = AddMenu(nullptr, "mnuParameters", "&Parameters");
  AddEntry(parameters, "mnuPropertiesEquation", "A&nalytical Procedure",
           "Use Method 2- Analytical Procedure", [this] { OpenWindProperties(0); });
  AddEntry(parameters, "mnuSimplified", "&Simplified Procedure",
           "Use Method 1 - Simplified Procedure", [this] { RefreshStatusSummary(); });
  parameters->addSeparator();
  AddEntry(parameters, "mnuPropertiesWind", "&Wind Data...",
           "Select basic wind speed, exposure, category, and mean sea level.",
           [this] { OpenWindProperties(1); });
  AddEntry(parameters, "mnuPropertiesBuilding", "&Building or Structure...",
           "Enter basic building dimensions and physical properties : Height, Width, Depth, "
           "Frequency and Damping.",
           [this] { OpenWindProperties(2); });
  AddEntry(parameters, "mnuPropertiesGust", "&Gust Factor...",
           "Select gust factor method, or combined gust-pressure coefficient.",
           [this] { OpenWindProperties(3); });
  AddEntry(parameters, "mnuPropertiesTopo", "&Topographic Factor...",
           "Enter hill geometry characteristics for obtaining topographic factor Kzt.",
           [this] { OpenWindProperties(4); });
  AddEntry(parameters, "mnuInternal", "&Internal Pressure Coefficient...",
           "Set internal pressure coefficient for buildings, GCpi.",
           [this] { OpenWindProperties(6); });
  AddEntry(parameters, "mnuMinPressure", "&Minimum Wind Pressure...", nullptr, [this] {
    if (app_) ShowMinPressure(this, *app_);
  });
  parameters->addSeparator();
  AddEntry(parameters, "mnuPropertiesIntervals", "&Height Intervals...",
           "Select height intervals, and order.", [this] { RefreshStatusSummary(); });
  AddEntry(parameters, "mnuPropertiesGeometry", "Define Geometry...",
           "Enter geometry X-Y coordinates.", [this] { RefreshStatusSummary(); });
  parameters->addSeparator();
  AddEntry(parameters, "mnuPropertiesHeadings", "Page Headings...",
           "Set page heading properties for ASCE 7-05 gustline report.", [this] {
             if (app_) ShowHeadings(this, *app_);
           });
  AddEntry(parameters, "mnuPropertiesUnits", "&Units...",
           "Select units of measure for pressure, force and moment.", [this] {
             if (app_) ShowUnits(this, *app_);
           });

  QMenu* format = AddMenu(nullptr, "mnuFormat", "F&ormat");
  AddEntry(format, "mnuFormatWidth", "Column &Width", "Change column width.",
           [this] { FormatWidth(); });
  AddEntry(format, "mnuFormatNumber", "Custom &Number", "Change number format.",
           [this] { FormatNumber(); });

  QMenu* tools = AddMenu(nullptr, "mnuTools", "&Tools");
  AddEntry(tools, "mnuToolsGustCalc", "&Gust Factor Calculator...", nullptr, nullptr);
  AddEntry(tools, "mnuToolsConvert", "&Convert Wind...", nullptr, nullptr, false);
  AddEntry(tools, "mnuToolsCustomize", "C&ustomize...", nullptr, nullptr, false);
  AddEntry(tools, "mnuOptions", "&Options...", nullptr, nullptr, false);

  QMenu* help = AddMenu(nullptr, "mnuHelp", "&Help");
  AddEntry(help, "mnuHelpContents", "&Contents", "Display help table of contents.", [this] {
    HelpContents();
  })->setShortcut(QKeySequence(Qt::Key_F1));
  AddEntry(help, "mnuHelpAbout", "&About ",
           "Displays program information, version number and copyright.",
           [this] { ShowAbout(this); });
}

void MainFrm::BuildPopup() {
  popup_ = new QMenu(this);
  popup_->setObjectName(QStringLiteral("mnuPopup"));
  WatchPrompts(popup_);
  AddAlias("mnuPopupCopy", "&Copy", "mnuEditCopy", popup_);
  popup_->addSeparator();
  AddAlias("mnuPopupPressure", "&Design Equation...", "mnuPropertiesEquation", popup_);
  AddAlias("mnuPopupWind", "&Wind Data...", "mnuPropertiesWind", popup_);
  AddAlias("mnuPopupBuilding", "&Building or Structure...", "mnuPropertiesBuilding", popup_);
  AddAlias("mnuPopupGust", "&Gust Factor...", "mnuPropertiesGust", popup_);
  // The coefficient tab has no entry of its own on the menu bar, so nothing to repeat.
  AddEntry(
      popup_, "mnuPopupForce", "&Force or Pressure Coefficients...", nullptr,
      [this] { OpenWindProperties(5); }, false);
  AddAlias("mnuPopupInternal", "&Internal Pressure Coefficients...", "mnuInternal", popup_);
  popup_->addSeparator();
  AddAlias("mnuPopupUnits", "&Units...", "mnuPropertiesUnits", popup_);
}

}  // namespace gustline
