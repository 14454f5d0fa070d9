#include "host/recording/script_file.h"

#include <gtest/gtest.h>

#include "tests/host/launcher/temporary_folder.h"
#include "tests/support/caught_log.h"
#include "tests/support/full_disk.h"

namespace {

using host::recording::ScriptFile;

TEST(ScriptFiles, HaveEachLineAtOnce) {
  const TemporaryFolder folder;
  std::string problem;
  auto file = ScriptFile::make(folder.path() / "a.scn", problem);
  ASSERT_TRUE(file) << problem;
  file->put("one");
  EXPECT_EQ(lines_of(folder.path() / "a.scn"), std::vector<std::string>({"one"}));
  file->put("two");
  EXPECT_EQ(lines_of(folder.path() / "a.scn"), std::vector<std::string>({"one", "two"}));
}

TEST(ScriptFiles, ReplaceNoOtherFile) {
  const TemporaryFolder folder;
  const std::string path = folder.path() / "a.scn";
  write_file(path, "kept\n");
  std::string problem;
  EXPECT_FALSE(ScriptFile::make(path, problem));
  EXPECT_EQ(problem, path + ": File exists");
  EXPECT_EQ(lines_of(path), std::vector<std::string>({"kept"}));
}

TEST(ScriptFiles, TellOnceThatTheyEndEarly) {
  const TemporaryFolder folder;
  const std::string path = folder.path() / "a.scn";
  std::string problem;
  auto file = ScriptFile::make(path, problem);
  ASSERT_TRUE(file) << problem;
  file->put("one");
  host::test::CaughtLog log;
  {
    const FullDisk disk(4);
    file->put("two");
  }
  file->put("three");
  EXPECT_EQ(log.text(), "error: the recording in " + path +
                            " ends early: File too large; record once more, to another place\n");
  EXPECT_EQ(lines_of(path), std::vector<std::string>({"one"}));
}

}  // namespace
