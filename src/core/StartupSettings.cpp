#include "core/StartupSettings.h"

#include <charconv>
#include <cmath>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/Settings.h"
#include "core/TextTools.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline {
namespace {

constexpr int kZoomEntries = 8;
constexpr int kDefaultZoom = 5;

[[noreturn]] void RaiseUnreadable(std::string_view key, std::string_view text) {
  throw wb::FacilityError(
      wb::errc::kBadArgument,
      "The setting " + std::string(key) + " does not read: \"" + std::string(text) + "\"");
}

bool ReadDouble(std::string_view text, double& number) {
  const char* end = text.data() + text.size();
  const auto [ptr, ec] = std::from_chars(text.data(), end, number);
  return !text.empty() && ec == std::errc() && ptr == end && std::isfinite(number);
}

}  // namespace

int SettingInt(std::string_view key, std::string_view text) {
  double number = 0;
  if (!ReadDouble(TrimBlanks(text), number)) RaiseUnreadable(key, text);
  const double rounded = std::nearbyint(number);
  if (rounded < -32768 || rounded > 32767) RaiseUnreadable(key, text);
  return static_cast<int>(rounded);
}

bool SettingBool(std::string_view key, std::string_view text) {
  const std::string_view trimmed = TrimBlanks(text);
  if (wb::EqualNoCase(trimmed, "True")) return true;
  if (wb::EqualNoCase(trimmed, "False")) return false;
  double number = 0;
  if (!ReadDouble(trimmed, number)) RaiseUnreadable(key, text);
  return number != 0;
}

std::string BoolSettingText(bool value) {
  return value ? "True" : "False";
}

void ApplyStartupSettings(Application& app) {
  Settings& settings = app.settings;
  const int zoom = SettingInt(settingkey::kZoom,
                              settings.GetSetting(settingkey::kZoom, std::to_string(kDefaultZoom)));
  if (zoom < 0 || zoom >= kZoomEntries) RaiseUnreadable(settingkey::kZoom, std::to_string(zoom));
  app.view.SetZoomIndex(zoom);
  app.view.SetToolbarVisible(
      SettingBool(settingkey::kToolbar, settings.GetSetting(settingkey::kToolbar, "True")));
  app.view.LayoutReport();
  app.view.SetStatusbarVisible(
      SettingBool(settingkey::kStatusbar, settings.GetSetting(settingkey::kStatusbar, "True")));
  app.view.LayoutReport();
  app.state.recentFiles.Load(settings);
  app.view.ShowRecentFiles(app.state.recentFiles);
}

void SaveStartupSettings(Application& app) {
  Settings& settings = app.settings;
  settings.SaveSetting(settingkey::kZoom, std::to_string(app.view.ZoomIndex()));
  settings.SaveSetting(settingkey::kToolbar, BoolSettingText(app.view.ToolbarVisible()));
  settings.SaveSetting(settingkey::kStatusbar, BoolSettingText(app.view.StatusbarVisible()));
  settings.SaveSetting(settingkey::kTemplate, app.state.activeTemplatePath);
  app.state.recentFiles.Save(settings);
}

}  // namespace gustline
