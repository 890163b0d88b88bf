#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/Settings.h"

class QSettings;

namespace gustline {

// The settings in Qt's per-user store of the application "Gustline05", section "Startup"
// (on Linux ~/.config/Gustline05.conf). Each save reaches the disk at once.
class QtSettings : public Settings {
 public:
  QtSettings();
  ~QtSettings() override;

  std::string GetSetting(std::string_view key, std::string_view defaultValue) override;
  void SaveSetting(std::string_view key, std::string_view value) override;

 private:
  std::unique_ptr<QSettings> store_;
};

}  // namespace gustline
