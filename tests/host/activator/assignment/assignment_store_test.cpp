#include "host/activator/assignment/assignment_store.h"

#include <gmock/gmock.h>

#include "tests/host/activator/support/service_test.h"
#include "tests/support/no_descriptors.h"
#include "tests/support/ordinary_user.h"

namespace host::test {
namespace {

using activator::AssignmentStore;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AssignmentStores : public ActivatorTest {
 protected:
  static const std::vector<std::string>& shake(AssignmentStore& store) {
    return store.current().listeners("shake", "springboard");
  }
};

TEST_F(AssignmentStores, OutliveTheProcess) {
  AssignmentStore().assign("shake", "springboard", "a");
  AssignmentStore().assign("shake", "springboard", "Ünï·1");
  AssignmentStore().assign("home-hold", "lockscreen", "a");
  AssignmentStore later;
  EXPECT_THAT(shake(later), ElementsAre("a", "Ünï·1"));
  EXPECT_TRUE(later.current().contains("home-hold", "lockscreen", "a"));
  EXPECT_FALSE(later.current().contains("home-hold", "springboard", "a"));
}

TEST_F(AssignmentStores, AreVisibleToEarlierReaders) {
  AssignmentStore one;
  AssignmentStore other;
  EXPECT_THAT(shake(one), IsEmpty());
  other.assign("shake", "springboard", "a");
  EXPECT_THAT(shake(one), ElementsAre("a"));
  one.assign("shake", "springboard", "b");
  other.unassign("shake", "springboard", "a");
  EXPECT_THAT(shake(one), ElementsAre("b"));
}

TEST_F(AssignmentStores, AssigningTwiceHasNoFurtherEffect) {
  AssignmentStore store;
  EXPECT_TRUE(store.assign("shake", "springboard", "a"));
  EXPECT_TRUE(store.assign("shake", "springboard", "a"));
  EXPECT_THAT(shake(store), ElementsAre("a"));
  EXPECT_TRUE(store.unassign("shake", "springboard", "a"));
  EXPECT_TRUE(store.unassign("shake", "springboard", "a"));
  EXPECT_THAT(shake(store), IsEmpty());
}

class DamagedAssignments : public AssignmentStores,
                           public ::testing::WithParamInterface<const char*> {};

TEST_P(DamagedAssignments, AreSetAsideWithOneLine) {
  AssignmentStore().assign("shake", "springboard", "a");
  media_tests::write_bytes(assignments_file(), GetParam());
  media_tests::CapturedLog log;
  AssignmentStore store;
  EXPECT_THAT(shake(store), IsEmpty());
  EXPECT_THAT(shake(store), IsEmpty());
  EXPECT_EQ(log.count("gesture-assignments.plist is damaged"), 1);
  EXPECT_EQ(media_tests::read_bytes(assignments_file() + ".damaged"), GetParam());
  EXPECT_TRUE(store.assign("shake", "springboard", "b"));
  EXPECT_THAT(shake(store), ElementsAre("b"));
}

INSTANTIATE_TEST_SUITE_P(
    , DamagedAssignments,
    ::testing::Values("", "no property list <", "<plist><array><string>a</string></array></plist>",
                      "<plist><dict><key>springboard</key><string>shake</string></dict></plist>",
                      "<plist><dict><key>springboard</key><dict><key>shake</key><array><true/>"
                      "</array></dict></dict></plist>",
                      "bplist00\xff\xff\xff\xff\xff"));

TEST_F(AssignmentStores, AreSetAsideUnderAFreeName) {
  AssignmentStore().assign("shake", "springboard", "a");
  for (const char* bytes : {"first <", "second <"}) {
    media_tests::write_bytes(assignments_file(), bytes);
    EXPECT_THAT(shake(*std::make_unique<AssignmentStore>()), IsEmpty());
  }
  EXPECT_EQ(media_tests::read_bytes(assignments_file() + ".damaged"), "first <");
  EXPECT_EQ(media_tests::read_bytes(assignments_file() + ".damaged-2"), "second <");
}

class UnreadableAssignments : public AssignmentStores {
 protected:
  UnreadableAssignments() {
    AssignmentStore().assign("shake", "springboard", "a");
    before = media_tests::read_bytes(assignments_file());
  }
  void expect_untouched() {
    EXPECT_THAT(shake(store), IsEmpty());
    EXPECT_FALSE(store.assign("shake", "springboard", "b"));
    EXPECT_THAT(shake(store), IsEmpty());
  }
  int files() const {
    const auto folder = std::filesystem::path(assignments_file()).parent_path();
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder),
                                          std::filesystem::directory_iterator()));
  }
  std::string before;
  AssignmentStore store;
};

TEST_F(UnreadableAssignments, StayAsTheyAreWithOneLineUntilTheyCanBeRead) {
  media_tests::CapturedLog log;
  const std::filesystem::path file = assignments_file();
  std::filesystem::permissions(file, std::filesystem::perms::none);
  {
    const OrdinaryUser user;
    expect_untouched();
  }
  EXPECT_EQ(log.count("cannot be read: Permission denied"), 1);
  EXPECT_EQ(files(), 1);
  EXPECT_EQ(media_tests::read_bytes(file), before);
  EXPECT_THAT(shake(store), ElementsAre("a"));
}

TEST_F(UnreadableAssignments, SurviveALackOfDescriptors) {
  {
    const NoDescriptors none;
    expect_untouched();
  }
  EXPECT_EQ(files(), 1);
  EXPECT_THAT(shake(store), ElementsAre("a"));
}

TEST_F(UnreadableAssignments, SurviveAnErrorOfTheDisk) {
  // Reading from address 0 of a process fails like reading from a broken disk.
  std::filesystem::remove(assignments_file());
  std::filesystem::create_symlink("/proc/self/mem", assignments_file());
  media_tests::CapturedLog log;
  expect_untouched();
  EXPECT_EQ(log.count("cannot be read: Input/output error"), 1);
  EXPECT_EQ(std::filesystem::read_symlink(assignments_file()), "/proc/self/mem");
  EXPECT_EQ(files(), 1);
}

TEST_F(UnreadableAssignments, MayBeALoopOfLinks) {
  std::filesystem::remove(assignments_file());
  std::filesystem::create_symlink(assignments_file(), assignments_file());
  media_tests::CapturedLog log;
  expect_untouched();
  EXPECT_EQ(log.count("Too many levels of symbolic links"), 1);
  EXPECT_TRUE(std::filesystem::is_symlink(assignments_file()));
}

TEST_F(AssignmentStores, AFolderInTheirPlaceIsSetAsideToo) {
  std::filesystem::create_directories(assignments_file());
  media_tests::CapturedLog log;
  AssignmentStore store;
  EXPECT_TRUE(store.assign("shake", "springboard", "a"));
  EXPECT_EQ(log.count("is damaged"), 1);
  EXPECT_THAT(shake(store), ElementsAre("a"));
}

TEST_F(AssignmentStores, AnAssignmentThatCannotBeWrittenFails) {
  media_tests::write_bytes(device / "var", "a file where a folder should be");
  AssignmentStore store;
  EXPECT_FALSE(store.assign("shake", "springboard", "a"));
  EXPECT_THAT(shake(store), IsEmpty());
}

TEST_F(AssignmentStores, LeaveNoUnfinishedFileBehind) {
  AssignmentStore store;
  store.assign("shake", "springboard", "a");
  store.assign("shake", "springboard", "b");
  const auto folder = std::filesystem::path(assignments_file()).parent_path();
  int files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder))
    ++files;
  EXPECT_EQ(files, 1);
}

}  // namespace
}  // namespace host::test
