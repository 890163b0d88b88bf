#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "core/RecentFiles.h"
#include "core/Settings.h"

namespace gustline {
namespace {

std::vector<std::string> Captions(const RecentFiles& files) {
  std::vector<std::string> captions;
  captions.reserve(RecentFiles::kCount);
  for (int i = 0; i < RecentFiles::kCount; ++i) captions.push_back(files.Entry(i).caption);
  return captions;
}

RecentFiles Loaded(const std::vector<std::string>& captions) {
  MemorySettings settings;
  for (std::size_t i = 0; i < captions.size(); ++i)
    settings.SaveSetting(RecentFileKey(static_cast<int>(i)), captions[i]);
  RecentFiles files;
  files.Load(settings);
  return files;
}

TEST(RecentFiles, FirstRunShowsEmptyDisabledAndHidesTheRest) {
  const RecentFiles files = Loaded({});
  EXPECT_EQ(files.Entry(0), (RecentEntry{"(Empty)", true, false}));
  for (int i = 1; i < RecentFiles::kCount; ++i) EXPECT_FALSE(files.Entry(i).visible) << i;
}

TEST(RecentFiles, OpeningTheThirdEntryMovesItToTheTop) {
  RecentFiles files = Loaded({"a.gln", "b.gln", "c.gln", "d.gln"});
  files.Add("c.gln");
  EXPECT_EQ(Captions(files), (std::vector<std::string>{"c.gln", "a.gln", "b.gln", "d.gln"}));
}

TEST(RecentFiles, FiveOpensKeepTheLastFourNewestFirst) {
  RecentFiles files = Loaded({});
  for (const char* name : {"1.gln", "2.gln", "3.gln", "4.gln", "5.gln"}) files.Add(name);
  EXPECT_EQ(Captions(files), (std::vector<std::string>{"5.gln", "4.gln", "3.gln", "2.gln"}));
  for (int i = 0; i < RecentFiles::kCount; ++i)
    EXPECT_EQ(files.Entry(i), (RecentEntry{Captions(files)[i], true, true})) << i;
}

// The placeholder goes with the first open, and one that older settings kept below a name
// is not shown after a restart.
TEST(RecentFiles, NoPlaceholderStandsBelowAName) {
  RecentFiles files = Loaded({});
  files.Add("a.gln");
  MemorySettings settings;
  files.Save(settings);
  RecentFiles restarted;
  restarted.Load(settings);
  const RecentFiles older = Loaded({"a.gln", "(Empty)"});
  for (const RecentFiles* list :
       std::initializer_list<const RecentFiles*>{&files, &restarted, &older}) {
    EXPECT_EQ(list->Entry(0), (RecentEntry{"a.gln", true, true}));
    for (int i = 1; i < RecentFiles::kCount; ++i)
      EXPECT_EQ(list->Entry(i), (RecentEntry{"", false, false})) << i;
  }
}

}  // namespace
}  // namespace gustline
