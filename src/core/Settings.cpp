#include "core/Settings.h"

namespace gustline {

std::string RecentFileKey(int entry) {
  return "File" + std::to_string(entry);
}

std::string MemorySettings::GetSetting(std::string_view key, std::string_view defaultValue) {
  const auto found = values.find(key);
  return found == values.end() ? std::string(defaultValue) : found->second;
}

void MemorySettings::SaveSetting(std::string_view key, std::string_view value) {
  values[std::string(key)] = std::string(value);
}

}  // namespace gustline
