#include "core/RecentFiles.h"

#include "core/Settings.h"

namespace gustline {

void RecentFiles::Load(Settings& settings) {
  for (int i = 0; i < kCount; ++i) {
    RecentEntry& entry = entries_[static_cast<std::size_t>(i)];
    entry.caption = settings.GetSetting(RecentFileKey(i), i == 0 ? kEmptyRecentEntry : "");
    // The placeholder stands for an empty list only: below a name it is not shown.
    if (i > 0 && entry.caption == kEmptyRecentEntry) entry.caption.clear();
    entry.visible = !entry.caption.empty();
    entry.enabled = entry.visible && entry.caption != kEmptyRecentEntry;
  }
}

void RecentFiles::Save(Settings& settings) const {
  for (int i = 0; i < kCount; ++i)
    settings.SaveSetting(RecentFileKey(i), entries_[static_cast<std::size_t>(i)].caption);
}

void RecentFiles::Add(std::string_view name) {
  if (entries_[0].caption == kEmptyRecentEntry) entries_[0].caption.clear();
  std::size_t from = kCount - 1;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].caption == name) {
      from = i;
      break;
    }
  }
  for (std::size_t i = from; i >= 1; --i) entries_[i].caption = entries_[i - 1].caption;
  entries_[0].caption = std::string(name);
  for (RecentEntry& entry : entries_) entry.visible = entry.enabled = !entry.caption.empty();
}

}  // namespace gustline
