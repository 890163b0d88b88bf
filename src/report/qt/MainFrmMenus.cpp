// The menu bar, the popup menu of the report and the prompts of status panel 1: every entry
// with its object name, caption, prompt, handler and shortcut, built from one table.
#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "core/FileOpen.h"
#include "core/FileSave.h"
#include "core/FileSaveAs.h"
#include "factors/qt/frmGustCalc.h"
#include "factors/qt/frmMinPressure.h"
#include "report/qt/MainFrm.h"
#include "report/qt/ReportPrinting.h"
#include "ui/qt/About.h"
#include "ui/qt/Headings.h"
#include "ui/qt/PageSetup.h"
#include "ui/qt/Template.h"
#include "ui/qt/Units.h"
#include "ui/rules/qt/PropertyDialog.h"

namespace gustline {
namespace {

constexpr const char* kMenuTitlePrompt =
    "Press letter on menu title, or use arrow keys and press ENTER";
constexpr const char* kPromptProperty = "prompt";
constexpr std::string_view kRecentPrompt = "Open this file.";
constexpr std::string_view kZoomPrompt = "Changes magnification of displayed document.";

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

std::vector<MainFrm::MenuEntry> MainFrm::MenuEntries() {
  using enum MenuKind;
  return {
      {Menu, "", "mnuFile", "&File"},
      {Command, "mnuFile", "mnuFileNew", "&New...", "Create new project.",
       [](MainFrm& w) { w.FileNewCommand(); }, QKeySequence::New},
      {Command, "mnuFile", "mnuFileOpen", "&Open...", "Open an existing project.",
       [](MainFrm& w) { w.WithApplication(FileOpen); }, QKeySequence::Open},
      {Command, "mnuFile", "mnuFileTemplate", "&Template...", "Change default template.",
       [](MainFrm& w) {
         if (w.app_) ShowTemplate(&w, *w.app_);
       }},
      {Separator, "mnuFile"},
      {Command, "mnuFile", "mnuFileSave", "&Save", "Save the active project.",
       [](MainFrm& w) { w.WithApplication(FileSave); }, QKeySequence::Save},
      {Command, "mnuFile", "mnuFileSaveAs", "Save &As...",
       "Save the active project with a new name.",
       [](MainFrm& w) { w.WithApplication(FileSaveAs); }},
      {Separator, "mnuFile"},
      {Command, "mnuFile", "mnuFilePrintSetup", "Print Set&up...",
       "Select printer, page orientation and paper size.",
       [](MainFrm& w) { w.PrintSetupCommand(); }},
      {Command, "mnuFile", "mnuFilePageSetup", "Pag&e Setup...",
       "Define header, page margins, page centering.",
       [](MainFrm& w) {
         if (w.app_) ShowProperties<PageSetup>(&w, *w.app_, report::PrinterIsLandscape());
       }},
      {Command, "mnuFile", "mnuFilePrintReport", "&Print...", "Print ASCE 7-05 Gustline Report.",
       [](MainFrm& w) { w.PrintCommand(); }, QKeySequence::Print},
      {Command, "mnuFile", "mnuFilePrintPreview", "Print Pre&view", "Print Preview Report.",
       [](MainFrm& w) { w.EnterPreview(); }},
      {Separator, "mnuFile"},
      {Command, "mnuFile", "mnuFileArray(0)", "", kRecentPrompt,
       [](MainFrm& w) { w.OpenRecent(0); }},
      {Command, "mnuFile", "mnuFileArray(1)", "", kRecentPrompt,
       [](MainFrm& w) { w.OpenRecent(1); }},
      {Command, "mnuFile", "mnuFileArray(2)", "", kRecentPrompt,
       [](MainFrm& w) { w.OpenRecent(2); }},
      {Command, "mnuFile", "mnuFileArray(3)", "", kRecentPrompt,
       [](MainFrm& w) { w.OpenRecent(3); }},
      {Separator, "mnuFile"},
      {Command, "mnuFile", "mnuFileExit", "E&xit",
       "Quits the application; Prompts you to save project properties.",
       [](MainFrm& w) { w.FileExitCommand(); }},

      {Menu, "", "mnuEdit", "&Edit"},
      {Command, "mnuEdit", "mnuEditCopy", "&Copy", "Copy selected cells to clipboard.",
       [](MainFrm& w) { w.EditCopy(); }, QKeySequence::Copy},
      {Once, "mnuEdit", "mnuEditLastCmd", "&Repeat Command", "Repeat last executed command.",
       [](MainFrm& w) { w.RepeatLastCommand(); }, Qt::Key_F4},
      {Separator, "mnuEdit"},
      {Once, "mnuEdit", "mnuEditProperties", "Project Properties..."},

      {Menu, "", "mnuView", "&View"},
      {Command, "mnuView", "mnuViewNormal", "&Normal", "",
       [](MainFrm& w) {
         w.SetFullScreenView(false);
         w.LeavePreview();
       }},
      {Command, "mnuView", "mnuViewFullScreen", "F&ull Screen", "",
       [](MainFrm& w) { w.SetFullScreenView(true); }},
      {Separator, "mnuView"},
      {Toggle, "mnuView", "mnuViewToolBar", "&Toolbar", "Toggle Toolbar ON or OFF.",
       [](MainFrm& w) { w.SetToolbarVisible(!w.ToolbarVisible()); }},
      {Toggle, "mnuView", "mnuViewStatus", "&Statusbar", "Toggle Status Bar ON or OFF.",
       [](MainFrm& w) { w.SetStatusbarVisible(!w.StatusbarVisible()); }},
      {Separator, "mnuView"},
      {Menu, "mnuView", "mnuZoom", "&Zoom"},
      {Choice, "mnuZoom", "mnuZoomItem(0)", "25%", kZoomPrompt, [](MainFrm& w) { w.ApplyZoom(0); }},
      {Choice, "mnuZoom", "mnuZoomItem(1)", "50%", kZoomPrompt, [](MainFrm& w) { w.ApplyZoom(1); }},
      {Choice, "mnuZoom", "mnuZoomItem(2)", "75%", kZoomPrompt, [](MainFrm& w) { w.ApplyZoom(2); }},
      {Choice, "mnuZoom", "mnuZoomItem(3)", "80%", kZoomPrompt, [](MainFrm& w) { w.ApplyZoom(3); }},
      {Choice, "mnuZoom", "mnuZoomItem(4)", "90%", kZoomPrompt, [](MainFrm& w) { w.ApplyZoom(4); }},
      {Choice, "mnuZoom", "mnuZoomItem(5)", "100%", kZoomPrompt,
       [](MainFrm& w) { w.ApplyZoom(5); }},
      {Choice, "mnuZoom", "mnuZoomItem(6)", "125%", kZoomPrompt,
       [](MainFrm& w) { w.ApplyZoom(6); }},
      {Choice, "mnuZoom", "mnuZoomItem(7)", "150%", kZoomPrompt,
       [](MainFrm& w) { w.ApplyZoom(7); }},

      {Menu, "", "mnuParameters", "&Parameters"},
      {Command, "mnuParameters", "mnuPropertiesEquation", "A&nalytical Procedure",
       "Use Method 2- Analytical Procedure", [](MainFrm& w) { w.OpenWindProperties(0); }},
      {Command, "mnuParameters", "mnuSimplified", "&Simplified Procedure",
       "Use Method 1 - Simplified Procedure", [](MainFrm& w) { w.OpenSimplified(); }},
      {Separator, "mnuParameters"},
      {Command, "mnuParameters", "mnuPropertiesWind", "&Wind Data...",
       "Select basic wind speed, exposure, category, and mean sea level.",
       [](MainFrm& w) { w.OpenWindProperties(1); }},
      {Command, "mnuParameters", "mnuPropertiesBuilding", "&Building or Structure...",
       "Enter basic building dimensions and physical properties : Height, Width, Depth, "
       "Frequency and Damping.",
       [](MainFrm& w) { w.OpenWindProperties(2); }},
      {Command, "mnuParameters", "mnuPropertiesGust", "&Gust Factor...",
       "Select gust factor method, or combined gust-pressure coefficient.",
       [](MainFrm& w) { w.OpenWindProperties(3); }},
      {Command, "mnuParameters", "mnuPropertiesTopo", "&Topographic Factor...",
       "Enter hill geometry characteristics for obtaining topographic factor Kzt.",
       [](MainFrm& w) { w.OpenWindProperties(4); }},
      {Command, "mnuParameters", "mnuInternal", "&Internal Pressure Coefficient...",
       "Set internal pressure coefficient for buildings, GCpi.",
       [](MainFrm& w) { w.OpenWindProperties(6); }},
      {Command, "mnuParameters", "mnuMinPressure", "&Minimum Wind Pressure...", "",
       [](MainFrm& w) {
         if (w.app_) ShowProperties<frmMinPressure>(&w, *w.app_);
       }},
      {Separator, "mnuParameters"},
      {Command, "mnuParameters", "mnuPropertiesIntervals", "&Height Intervals...",
       "Select height intervals, and order.", [](MainFrm& w) { w.OpenGeometry(0); }},
      {Command, "mnuParameters", "mnuPropertiesGeometry", "Define Geometry...",
       "Enter geometry X-Y coordinates.", [](MainFrm& w) { w.OpenGeometry(1); }},
      {Separator, "mnuParameters"},
      {Command, "mnuParameters", "mnuPropertiesHeadings", "Page Headings...",
       "Set page heading properties for ASCE 7-05 gustline report.",
       [](MainFrm& w) {
         if (w.app_) ShowProperties<Headings>(&w, *w.app_);
       }},
      {Command, "mnuParameters", "mnuPropertiesUnits", "&Units...",
       "Select units of measure for pressure, force and moment.",
       [](MainFrm& w) {
         if (w.app_) ShowProperties<Units>(&w, *w.app_);
       }},

      {Menu, "", "mnuFormat", "F&ormat"},
      {Command, "mnuFormat", "mnuFormatWidth", "Column &Width", "Change column width.",
       [](MainFrm& w) { w.FormatWidth(); }},
      {Command, "mnuFormat", "mnuFormatNumber", "Custom &Number", "Change number format.",
       [](MainFrm& w) { w.FormatNumber(); }},

      {Menu, "", "mnuTools", "&Tools"},
      {Command, "mnuTools", "mnuToolsGustCalc", "&Gust Factor Calculator...", "",
       [](MainFrm& w) {
         if (w.app_) ShowGustCalc(&w, *w.app_);
       }},
      {Once, "mnuTools", "mnuToolsConvert", "&Convert Wind..."},
      {Once, "mnuTools", "mnuToolsCustomize", "C&ustomize..."},
      {Once, "mnuTools", "mnuOptions", "&Options..."},

      {Menu, "", "mnuHelp", "&Help"},
      {Command, "mnuHelp", "mnuHelpContents", "&Contents", "Display help table of contents.",
       [](MainFrm& w) { w.HelpContents(); }, Qt::Key_F1},
      {Command, "mnuHelp", "mnuHelpAbout", "&About ",
       "Displays program information, version number and copyright.",
       [](MainFrm& w) { ShowAbout(&w); }},

      {Alias, "mnuPopup", "mnuPopupCopy", "&Copy", "", nullptr, {}, "mnuEditCopy"},
      {Separator, "mnuPopup"},
      {Alias,
       "mnuPopup",
       "mnuPopupPressure",
       "&Design Equation...",
       "",
       nullptr,
       {},
       "mnuPropertiesEquation"},
      {Alias, "mnuPopup", "mnuPopupWind", "&Wind Data...", "", nullptr, {}, "mnuPropertiesWind"},
      {Alias,
       "mnuPopup",
       "mnuPopupBuilding",
       "&Building or Structure...",
       "",
       nullptr,
       {},
       "mnuPropertiesBuilding"},
      {Alias, "mnuPopup", "mnuPopupGust", "&Gust Factor...", "", nullptr, {}, "mnuPropertiesGust"},
      // The coefficient tab has no entry of its own on the menu bar, so nothing to repeat.
      {Once, "mnuPopup", "mnuPopupForce", "&Force or Pressure Coefficients...", "",
       [](MainFrm& w) { w.OpenWindProperties(5); }},
      {Alias,
       "mnuPopup",
       "mnuPopupInternal",
       "&Internal Pressure Coefficients...",
       "",
       nullptr,
       {},
       "mnuInternal"},
      {Separator, "mnuPopup"},
      {Alias, "mnuPopup", "mnuPopupUnits", "&Units...", "", nullptr, {}, "mnuPropertiesUnits"},
  };
}

QMenu* MainFrm::AddMenu(QMenu* parent, const MenuEntry& entry) {
  QMenu* menu =
      parent ? parent->addMenu(Text(entry.caption)) : menuBar()->addMenu(Text(entry.caption));
  menu->setObjectName(Text(entry.name));
  menu->menuAction()->setObjectName(Text(entry.name));
  menu->menuAction()->setProperty(kPromptProperty, QString::fromUtf8(kMenuTitlePrompt));
  WatchPrompts(menu);
  return menu;
}

QAction* MainFrm::AddEntry(QMenu* menu, const MenuEntry& entry) {
  auto* action = new QAction(Text(entry.caption), this);
  action->setObjectName(Text(entry.name));
  action->setShortcut(entry.shortcut);
  action->setCheckable(entry.kind == MenuKind::Toggle || entry.kind == MenuKind::Choice);
  action->setChecked(entry.kind == MenuKind::Toggle);
  menu->addAction(action);
  // Shortcuts keep working while full screen hides the menus.
  addAction(action);
  Entry built{action, entry.kind != MenuKind::Once && entry.kind != MenuKind::Alias, {}};
  if (entry.kind == MenuKind::Alias) {
    const std::string target(entry.runs);
    action->setProperty(kPromptProperty, entries_.at(target).action->property(kPromptProperty));
    built.handler = [this, target] { RunCommand(target); };
  } else {
    action->setProperty(kPromptProperty, Text(entry.prompt));
    if (entry.command) built.handler = [this, command = entry.command] { command(*this); };
  }
  const std::string key(entry.name);
  entries_[key] = std::move(built);
  connect(action, &QAction::triggered, this, [this, key] { RunCommand(key); });
  return action;
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
  popup_ = new QMenu(this);
  popup_->setObjectName(QStringLiteral("mnuPopup"));
  WatchPrompts(popup_);

  std::map<std::string, QMenu*, std::less<>> menus = {{"mnuPopup", popup_}};
  std::map<QMenu*, QActionGroup*> choices;
  for (const MenuEntry& entry : MenuEntries()) {
    QMenu* menu = entry.menu.empty() ? nullptr : menus.find(entry.menu)->second;
    if (entry.kind == MenuKind::Menu) {
      menus.emplace(entry.name, AddMenu(menu, entry));
    } else if (entry.kind == MenuKind::Separator) {
      menu->addSeparator();
    } else {
      QAction* action = AddEntry(menu, entry);
      if (entry.kind != MenuKind::Choice) continue;
      QActionGroup*& group = choices[menu];
      if (group == nullptr) group = new QActionGroup(this);
      group->addAction(action);
    }
  }

  for (std::size_t i = 0; i < recentItems_.size(); ++i) {
    recentItems_[i] = Command("mnuFileArray(" + std::to_string(i) + ")");
    recentItems_[i]->setVisible(false);
  }
  for (std::size_t i = 0; i < zoomItems_.size(); ++i) {
    zoomItems_[i] = Command("mnuZoomItem(" + std::to_string(i) + ")");
  }
}

}  // namespace gustline
