#pragma once

#include <memory>

#include "core/ApplicationView.h"

class QSplashScreen;

namespace gustline {

class MainFrm;

// The core's view of the window, on MainFrm's widgets, with the splash shown during start.
class QtApplicationView : public ApplicationView {
 public:
  explicit QtApplicationView(MainFrm& window);
  ~QtApplicationView() override;

  void ShowSplash(bool shown) override;
  void ShowMainWindow() override;
  void HideToolsMenu() override;
  void ShowReport() override;
  void MoveOutOfView() override;
  void SetCaption(std::string_view caption) override;
  void SetStatusPanelStyle() override;
  void SetStatusPanel(int panel, std::string_view text) override;
  void RepaintStatusBar() override;
  void SetProgressVisible(bool visible) override;
  void SetProgress(int value) override;
  void LayoutReport() override;
  void SetZoomListIndex(int index) override;
  void SetZoomIndex(int index) override;
  int ZoomIndex() const override;
  void SetToolbarVisible(bool visible) override;
  bool ToolbarVisible() const override;
  void SetStatusbarVisible(bool visible) override;
  bool StatusbarVisible() const override;
  void ShowRecentFiles(const RecentFiles& recentFiles) override;
  void PrintReportToPdf(wb::Workbook& report, const std::string& path) override;

 private:
  MainFrm& window_;
  std::unique_ptr<QSplashScreen> splash_;
};

}  // namespace gustline
