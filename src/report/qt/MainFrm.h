#pragma once

#include <QKeySequence>
#include <QMainWindow>
#include <QString>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "report/qt/RepeatCommand.h"

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QProgressBar;
class QStackedWidget;
class QToolBar;

namespace gustline {

class frmSimplified;

namespace geometry {
class Geometry;
}
namespace report {
class PrintPreview;
class ReportView;
}  // namespace report
struct Application;
class RecentFiles;

// The main window: menus, the popup of the report, Toolbar1 with cboZoom, the report view
// and StatusBar1 with its five panels. Its commands run on the Application given; the
// window's close request becomes File Exit.
class MainFrm : public QMainWindow {
  Q_OBJECT

 public:
  // What a line of the menus makes.
  enum class MenuKind {
    Menu,       // a menu of the menu bar, or of the menu named
    Command,    // an entry that Repeat Command runs again
    Once,       // an entry that Repeat Command leaves alone
    Toggle,     // a command ticked on and off, ticked at first
    Choice,     // a command ticked alone among the choices of its menu
    Alias,      // runs the entry named in `runs`, with its prompt, and is not stored
    Separator,  // a line between the entries of the menu
  };

  // One line of the menu bar or of the report's popup menu mnuPopup, in the order shown.
  struct MenuEntry {
    MenuKind kind;
    std::string_view menu;  // the menu it stands in; empty for the menu bar
    std::string_view name = {};
    std::string_view caption = {};
    std::string_view prompt = {};  // status panel 1 while the entry is highlighted
    void (*command)(MainFrm&) = nullptr;
    QKeySequence shortcut = {};
    std::string_view runs = {};
  };

  // The menus; standard shortcuts come from the platform of the running application.
  static std::vector<MenuEntry> MenuEntries();

  explicit MainFrm(QWidget* parent = nullptr);
  ~MainFrm() override;

  // Commands run on this application, and the report view and preview show its report.
  void SetApplication(Application* app);

  // A menu entry, popup entry or toolbar button by its object name; nullptr when unknown.
  QAction* Command(std::string_view objectName) const;
  QMenu* PopupMenu() const { return popup_; }
  // Runs a command as the user would: stores it as the last command when it stores one,
  // then runs its handler.
  void RunCommand(std::string_view objectName);
  const RepeatCommand& Repeat() const { return repeat_; }

  // Status panels 1 to 5; before the panel style panel 1 alone is shown.
  void SetStatusPanel(int panel, const QString& text);
  QString StatusPanel(int panel) const;
  void SetStatusPanelStyle();
  void SetProgressVisible(bool visible);
  void SetProgress(int value);

  // The zoom menu entry checked and cboZoom, index 0 to 7 (5 is 100%); both always agree.
  void ApplyZoom(int index);
  int ZoomIndex() const { return zoomIndex_; }
  int ZoomPercent() const;
  void SetToolbarVisible(bool visible);
  bool ToolbarVisible() const;
  void SetStatusbarVisible(bool visible);
  bool StatusbarVisible() const;
  void ShowRecentFiles(const RecentFiles& recentFiles);
  void HideToolsMenu();
  void SetFullScreenView(bool fullScreen);

  // The area between the bars where the report or its preview stands.
  QStackedWidget* ReportArea() const { return reportArea_; }
  // Shows the report book as it now stands.
  void RefreshReport();
  // The print preview in place of the report view, and back.
  void EnterPreview();
  void LeavePreview();
  bool Previewing() const { return previewing_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  struct Entry {
    QAction* action = nullptr;
    bool storesCommand = true;
    std::function<void()> handler;
  };

  void BuildMenus();
  void BuildToolbar();
  void BuildStatusBar();
  QMenu* AddMenu(QMenu* parent, const MenuEntry& entry);
  QAction* AddEntry(QMenu* menu, const MenuEntry& entry);
  void WatchPrompts(QMenu* menu);
  void ShowPopup(const QPoint& globalPos);

  // Command handlers.
  // Runs a command of the core on the application, when there is one.
  void WithApplication(bool (*command)(Application&)) {
    if (app_) command(*app_);
  }
  void FileNewCommand();
  void OpenRecent(int entry);
  void FileExitCommand();
  void EditCopy();
  void RepeatLastCommand();
  void HelpContents();
  void RefreshStatusSummary();
  // The spreadsheet's own dialogs for the selection of the report.
  void FormatWidth();
  void FormatNumber();
  void PrintCommand();
  void PrintSetupCommand();
  void TurnPage(int step);
  // The entries that the preview disables, and the toolbar it hides.
  void SwitchMenusForPreview(bool previewing);
  // frmWindProp at its tab: 0 design equation to 6 internal pressure.
  void OpenWindProperties(int tab);
  // The Geometry dialog at its intervals tab (0) or coordinates tab (1); made on first use.
  void OpenGeometry(int tab);
  // The simplified procedure's dialog; made on first use and kept.
  void OpenSimplified();

  Application* app_ = nullptr;
  RepeatCommand repeat_;
  std::map<std::string, Entry, std::less<>> entries_;
  QMenu* popup_ = nullptr;
  QToolBar* toolbar_ = nullptr;
  QComboBox* zoomList_ = nullptr;
  std::array<QAction*, 8> zoomItems_{};
  std::array<QAction*, 4> recentItems_{};
  std::array<QLabel*, 5> panels_{};
  QProgressBar* progressBar_ = nullptr;
  QStackedWidget* reportArea_ = nullptr;
  report::ReportView* reportView_ = nullptr;
  report::PrintPreview* preview_ = nullptr;
  std::unique_ptr<geometry::Geometry> geometry_;
  std::unique_ptr<frmSimplified> simplified_;
  bool previewing_ = false;
  int zoomIndex_ = 5;
  bool fullScreenView_ = false;
  bool toolsMenuVisible_ = true;
  // What the View menu ticks say; full screen hides the bars without changing them.
  bool toolbarShown_ = true;
  bool statusbarShown_ = true;
};

}  // namespace gustline
