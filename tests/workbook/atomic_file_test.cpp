// The one writer: what it does to the files around its target, in the cases where a plain
// "write NAME.tmp and rename" loses or damages data.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "TempFolder.h"
#include "core/workbook/io/AtomicFile.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void Write(const fs::path& path, const std::string& content) {
  AtomicFile file(path.string());
  file.Stream() << content;
  file.Commit();
}

class AtomicFileTest : public ::testing::Test {
 public:  // the cases' lambdas reach the folder too
  void SetUp() override { fs::create_directories(folder_); }
  void TearDown() override {
    std::error_code ignored;
    fs::permissions(folder_, fs::perms::owner_all, ignored);
    fs::remove_all(folder_, ignored);
  }
  fs::path At(const std::string& name) const { return folder_ / name; }
  // The names in the folder: a temporary file left behind shows here.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  fs::path folder_ = gustline::testing::UniqueTempFolder("gustline-atomic-");
};

TEST_F(AtomicFileTest, SavesThatReplaceKeepWhatSurroundsTheTarget) {
  struct Case {
    const char* what;
    std::function<void(AtomicFileTest&)> before;
    std::function<void(AtomicFileTest&)> after;
  };
  const Case cases[] = {
      {"a new file takes the umask's mode", [](AtomicFileTest&) {},
       [](AtomicFileTest& t) {
         EXPECT_EQ(fs::status(t.At("P.GLN")).permissions() & fs::perms::owner_write,
                   fs::perms::owner_write);
       }},
      {"a private file stays private",
       [](AtomicFileTest& t) {
         std::ofstream(t.At("P.GLN")) << "old";
         fs::permissions(t.At("P.GLN"), fs::perms::owner_read | fs::perms::owner_write);
       },
       [](AtomicFileTest& t) {
         EXPECT_EQ(fs::status(t.At("P.GLN")).permissions(),
                   fs::perms::owner_read | fs::perms::owner_write);
       }},
      {"a file named like a fixed temporary file is left alone",
       [](AtomicFileTest& t) { std::ofstream(t.At("P.GLN.tmp")) << "mine"; },
       [](AtomicFileTest& t) { EXPECT_EQ(Read(t.At("P.GLN.tmp")), "mine"); }},
      {"a link named like a fixed temporary file is not followed",
       [](AtomicFileTest& t) {
         std::ofstream(t.At("victim")) << "victim";
         fs::create_symlink(t.At("victim"), t.At("P.GLN.tmp"));
       },
       [](AtomicFileTest& t) {
         EXPECT_EQ(Read(t.At("victim")), "victim");
         EXPECT_TRUE(fs::is_symlink(t.At("P.GLN.tmp")));
       }},
      {"a save through a link replaces the file it names and keeps the link",
       [](AtomicFileTest& t) {
         fs::create_directories(t.At("real"));
         std::ofstream(t.At("real/P.GLN")) << "old";
         fs::create_symlink("real/P.GLN", t.At("P.GLN"));
       },
       [](AtomicFileTest& t) {
         EXPECT_TRUE(fs::is_symlink(t.At("P.GLN")));
         EXPECT_EQ(Read(t.At("real/P.GLN")), "new");
       }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    TearDown();
    SetUp();
    c.before(*this);
    Write(At("P.GLN"), "new");
    EXPECT_EQ(Read(At("P.GLN")), "new");
    c.after(*this);
    for (const std::string& name : Names()) EXPECT_EQ(name.find(".P.GLN."), std::string::npos);
  }
}

TEST_F(AtomicFileTest, RefusedSavesLeaveTheTargetAndNoTemporaryFile) {
  struct Case {
    const char* what;
    std::function<void(AtomicFileTest&)> before;
    const char* target;
  };
  const Case cases[] = {
      {"a read-only file",
       [](AtomicFileTest& t) {
         std::ofstream(t.At("P.GLN")) << "old";
         fs::permissions(t.At("P.GLN"),
                         fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
       },
       "P.GLN"},
      {"a folder", [](AtomicFileTest& t) { fs::create_directories(t.At("P.GLN")); }, "P.GLN"},
      {"a folder that does not exist", [](AtomicFileTest&) {}, "none/P.GLN"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    TearDown();
    SetUp();
    c.before(*this);
    const std::vector<std::string> before = Names();
    const std::string content = fs::is_regular_file(At(c.target)) ? Read(At(c.target)) : "";
    try {
      Write(At(c.target), "new");
      ADD_FAILURE() << "written";
    } catch (const FacilityError& error) {
      EXPECT_EQ(error.Number(), errc::kFileWrite);
      EXPECT_NE(std::string(error.what()).find(At(c.target).string()), std::string::npos);
    }
    EXPECT_EQ(Names(), before);
    if (fs::is_regular_file(At(c.target))) {
      EXPECT_EQ(Read(At(c.target)), content);
    }
  }
}

TEST_F(AtomicFileTest, AnUncommittedFileLeavesTheOldOneAsItWas) {
  std::ofstream(At("P.GLN")) << "old";
  {
    AtomicFile file(At("P.GLN").string());
    file.Stream() << "half";
  }
  EXPECT_EQ(Read(At("P.GLN")), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"P.GLN"});
}

TEST_F(AtomicFileTest, ADeviceIsWrittenToAndStaysADevice) {
  Write("/dev/null", "anything");
  struct stat info {};
  ASSERT_EQ(stat("/dev/null", &info), 0);
  EXPECT_TRUE(S_ISCHR(info.st_mode));
}

TEST_F(AtomicFileTest, ADeviceThatRefusesTheWriteIsAnError) {
  EXPECT_THROW(Write("/dev/full", "anything"), FacilityError);
}

TEST_F(AtomicFileTest, TwoSavesAtOnceLeaveOneWholeFile) {
  const std::string first(100000, 'a');
  const std::string second(50000, 'b');
  auto saveMany = [this](const std::string& content) {
    for (int i = 0; i < 100; ++i) Write(At("P.GLN"), content);
  };
  std::thread one(saveMany, first);
  std::thread two(saveMany, second);
  one.join();
  two.join();
  const std::string result = Read(At("P.GLN"));
  EXPECT_TRUE(result == first || result == second);
  EXPECT_EQ(Names(), std::vector<std::string>{"P.GLN"});
}

}  // namespace
}  // namespace gustline::wb
