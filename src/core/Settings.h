#pragma once

#include <map>
#include <string>
#include <string_view>

namespace gustline {

// The per-user settings live under this application name and section.
inline constexpr std::string_view kSettingsApplication = "Gustline05";
inline constexpr std::string_view kSettingsSection = "Startup";

namespace settingkey {
inline constexpr std::string_view kTemplate = "Template";
inline constexpr std::string_view kZoom = "Zoom";
inline constexpr std::string_view kToolbar = "Toolbar";
inline constexpr std::string_view kStatusbar = "Statusbar";
}  // namespace settingkey

// "File0" to "File3", the recent list from the newest.
std::string RecentFileKey(int entry);

// A per-user key-value store of texts, bound to the application and section above. All
// settings are strings in the store; readers convert them.
class Settings {
 public:
  virtual ~Settings() = default;
  virtual std::string GetSetting(std::string_view key, std::string_view defaultValue) = 0;
  virtual void SaveSetting(std::string_view key, std::string_view value) = 0;
};

// A store in memory, for tests and for runs that must leave the user's settings alone.
class MemorySettings : public Settings {
 public:
  std::string GetSetting(std::string_view key, std::string_view defaultValue) override;
  void SaveSetting(std::string_view key, std::string_view value) override;

  std::map<std::string, std::string, std::less<>> values;
};

}  // namespace gustline
