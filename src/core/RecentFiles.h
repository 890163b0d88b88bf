#pragma once

#include <array>
#include <string>
#include <string_view>

namespace gustline {

class Settings;

// The caption of the first entry while nothing has been opened.
inline constexpr std::string_view kEmptyRecentEntry = "(Empty)";

// One entry of the recent list on the File menu.
struct RecentEntry {
  std::string caption;
  bool visible = false;
  bool enabled = false;
  bool operator==(const RecentEntry&) const = default;
};

// The four most recent projects, newest first, without duplicates. The entries are the
// menu's own state: the window shows them as they are.
class RecentFiles {
 public:
  static constexpr int kCount = 4;

  // Captions from File0 to File3; an empty caption hides its entry.
  void Load(Settings& settings);
  void Save(Settings& settings) const;
  // Puts the name on top; a name already listed moves up, else the oldest drops off. The
  // placeholder of an empty list goes with the first name.
  void Add(std::string_view name);

  const RecentEntry& Entry(int index) const { return entries_.at(static_cast<std::size_t>(index)); }

 private:
  std::array<RecentEntry, kCount> entries_;
};

}  // namespace gustline
