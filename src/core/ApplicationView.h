#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/RecentFiles.h"

namespace gustline {

namespace wb {
class Workbook;
}

// What the core asks of the main window: the status bar and its five panels, the progress
// bar, the caption, the zoom, the two bars, the recent list and the window itself. The GUI
// implements it on its widgets; the command line uses NullView and tests RecordingView.
class ApplicationView {
 public:
  virtual ~ApplicationView() = default;

  virtual void ShowSplash(bool shown) = 0;
  virtual void ShowMainWindow() = 0;
  // The tools menu is hidden and disabled for good in this version.
  virtual void HideToolsMenu() = 0;
  virtual void ShowReport() = 0;
  // Normal state and out of view, so that the steps of an exit do not show.
  virtual void MoveOutOfView() = 0;
  virtual void SetCaption(std::string_view caption) = 0;

  // Switches the status bar from simple text to its five panels.
  virtual void SetStatusPanelStyle() = 0;
  // Panels are numbered 1 to 5.
  virtual void SetStatusPanel(int panel, std::string_view text) = 0;
  virtual void RepaintStatusBar() = 0;
  virtual void SetProgressVisible(bool visible) = 0;
  virtual void SetProgress(int value) = 0;

  // Places the report between the bars that are shown.
  virtual void LayoutReport() = 0;
  // The zoom list of the toolbar, and the checked entry of the zoom menu (0 to 7, 5 is 100%).
  virtual void SetZoomListIndex(int index) = 0;
  virtual void SetZoomIndex(int index) = 0;
  virtual int ZoomIndex() const = 0;
  virtual void SetToolbarVisible(bool visible) = 0;
  virtual bool ToolbarVisible() const = 0;
  virtual void SetStatusbarVisible(bool visible) = 0;
  virtual bool StatusbarVisible() const = 0;
  virtual void ShowRecentFiles(const RecentFiles& recentFiles) = 0;
  // The report printed into a PDF file, page for page as the printer prints it.
  virtual void PrintReportToPdf(wb::Workbook& report, const std::string& path) = 0;
};

// A window that is not there; it remembers only what the core reads back.
class NullView : public ApplicationView {
 public:
  void ShowSplash(bool) override {}
  void ShowMainWindow() override {}
  void HideToolsMenu() override {}
  void ShowReport() override {}
  void MoveOutOfView() override {}
  void SetCaption(std::string_view) override {}
  void SetStatusPanelStyle() override {}
  void SetStatusPanel(int, std::string_view) override {}
  void RepaintStatusBar() override {}
  void SetProgressVisible(bool) override {}
  void SetProgress(int) override {}
  void LayoutReport() override {}
  void SetZoomListIndex(int) override {}
  void SetZoomIndex(int index) override { zoomIndex_ = index; }
  int ZoomIndex() const override { return zoomIndex_; }
  void SetToolbarVisible(bool visible) override { toolbarVisible_ = visible; }
  bool ToolbarVisible() const override { return toolbarVisible_; }
  void SetStatusbarVisible(bool visible) override { statusbarVisible_ = visible; }
  bool StatusbarVisible() const override { return statusbarVisible_; }
  void ShowRecentFiles(const RecentFiles&) override {}
  void PrintReportToPdf(wb::Workbook&, const std::string&) override {}

 private:
  int zoomIndex_ = 5;
  bool toolbarVisible_ = true;
  bool statusbarVisible_ = true;
};

// Keeps the last state of everything shown, and the order of the progress values.
class RecordingView : public ApplicationView {
 public:
  void ShowSplash(bool shown) override { splashShown = shown; }
  void ShowMainWindow() override { mainWindowShown = true; }
  void HideToolsMenu() override { toolsMenuHidden = true; }
  void ShowReport() override { reportShown = true; }
  void MoveOutOfView() override { movedOutOfView = true; }
  void SetCaption(std::string_view text) override { caption = text; }
  void SetStatusPanelStyle() override { panelStyle = true; }
  void SetStatusPanel(int panel, std::string_view text) override {
    panels.at(static_cast<std::size_t>(panel)) = text;
  }
  void RepaintStatusBar() override {}
  void SetProgressVisible(bool visible) override { progressVisible = visible; }
  void SetProgress(int value) override { progress.push_back(value); }
  void LayoutReport() override { ++layouts; }
  void SetZoomListIndex(int index) override { zoomListIndex = index; }
  void SetZoomIndex(int index) override { zoomIndex = index; }
  int ZoomIndex() const override { return zoomIndex; }
  void SetToolbarVisible(bool visible) override { toolbarVisible = visible; }
  bool ToolbarVisible() const override { return toolbarVisible; }
  void SetStatusbarVisible(bool visible) override { statusbarVisible = visible; }
  bool StatusbarVisible() const override { return statusbarVisible; }
  void ShowRecentFiles(const RecentFiles& shown) override { recentFiles = shown; }
  void PrintReportToPdf(wb::Workbook&, const std::string& path) override { pdfPath = path; }

  bool splashShown = false;
  bool mainWindowShown = false;
  bool toolsMenuHidden = false;
  bool reportShown = false;
  bool movedOutOfView = false;
  bool panelStyle = false;
  std::string caption;
  std::array<std::string, 6> panels;  // index 1 to 5
  bool progressVisible = false;
  std::vector<int> progress;
  int layouts = 0;
  int zoomListIndex = -1;
  int zoomIndex = -1;
  bool toolbarVisible = false;
  bool statusbarVisible = false;
  RecentFiles recentFiles;
  std::string pdfPath;
};

}  // namespace gustline
