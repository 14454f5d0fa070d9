#include "host/launcher/folder_lock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "host/launcher/throwaway_folder.h"
#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::launcher;
namespace fs = std::filesystem;
using Outcome = FolderLock::Outcome;

class FolderLocks : public testing::Test {
 protected:
  fs::path folder() const { return folder_.path(); }

  /// Runs `work` in a process that is killed afterwards.
  template <class Work>
  static void killed_after(Work work) {
    const pid_t child = fork();
    if (child == 0) {
      work();
      kill(getpid(), SIGKILL);
    }
    waitpid(child, nullptr, 0);
  }

  TemporaryFolder folder_;
};

TEST_F(FolderLocks, HaveOneOwner) {
  FolderLock first;
  FolderLock second;
  EXPECT_EQ(first.take(folder()), Outcome::Taken);
  EXPECT_EQ(second.take(folder()), Outcome::HasOwner);
  first = FolderLock();
  EXPECT_EQ(second.take(folder()), Outcome::Taken);
}

TEST_F(FolderLocks, EndWithTheirProcess) {
  killed_after([this] {
    FolderLock lock;
    lock.take(folder());
    lock.introduce("/run/socket");
  });
  EXPECT_TRUE(owner_of(folder()));
  FolderLock lock;
  EXPECT_EQ(lock.take(folder()), Outcome::Taken);
  EXPECT_FALSE(owner_of(folder())) << "the one before is no longer named";
}

TEST_F(FolderLocks, NameTheirOwner) {
  FolderLock lock;
  ASSERT_EQ(lock.take(folder()), Outcome::Taken);
  EXPECT_FALSE(owner_of(folder()));
  lock.introduce("/a folder/socket");
  const auto owner = owner_of(folder());
  ASSERT_TRUE(owner);
  EXPECT_EQ(owner->process, getpid());
  EXPECT_EQ(owner->control_socket, "/a folder/socket");
  lock.introduce("/b");
  EXPECT_EQ(owner_of(folder())->control_socket, "/b");
}

TEST_F(FolderLocks, FollowNoLinkThatLiesInTheirPlace) {
  fs::create_symlink(folder() / "elsewhere", folder() / FolderLock::kFile);
  EXPECT_EQ(FolderLock().take(folder()), Outcome::Failed);
  EXPECT_EQ(errno, ELOOP);
  EXPECT_FALSE(fs::exists(folder() / "elsewhere"));
}

TEST_F(FolderLocks, AreTakenOverOnlyWhereOneWas) {
  EXPECT_EQ(FolderLock().take_over(folder()), Outcome::Failed);
  EXPECT_EQ(FolderLock().take(folder()), Outcome::Taken);
  EXPECT_EQ(FolderLock().take_over(folder()), Outcome::Taken);
}

class ThrowawayFolders : public FolderLocks {
 protected:
  ThrowawayFolders() { setenv("XDG_RUNTIME_DIR", folder().c_str(), 1); }
  ~ThrowawayFolders() override { unsetenv("XDG_RUNTIME_DIR"); }
  std::size_t count() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder()), fs::directory_iterator()));
  }
};

TEST_F(ThrowawayFolders, AreRemovedWithTheirContents) {
  {
    const ThrowawayFolder made({folder()});
    write_file(made.path() / "a/b", "text");
    EXPECT_EQ(count(), 1u);
  }
  EXPECT_EQ(count(), 0u);
}

TEST_F(ThrowawayFolders, AreMadeInTheFirstFolderThatIsThereAndFits) {
  fs::create_directory(folder() / "small");
  fs::create_directory(folder() / "large");
  const ThrowawayFolder made(
      {"relative", folder() / "missing", folder() / "small", folder() / "large"},
      [](const fs::path& path) { return path.string().find("large") != std::string::npos; });
  EXPECT_EQ(made.path().parent_path(), folder() / "large");
  EXPECT_TRUE(fs::is_empty(folder() / "small"));
  EXPECT_EQ(ThrowawayFolder({folder() / "missing"}).path(), "");
}

TEST_F(ThrowawayFolders, OfAKilledProcessAreRemovedByTheNext) {
  killed_after([this] { write_file(ThrowawayFolder(session_folders()).path() / "a", "text"); });
  EXPECT_EQ(count(), 0u) << "the destructor has run";
  killed_after([this] {
    auto* abandoned = new ThrowawayFolder({folder()});
    write_file(abandoned->path() / "a", "text");
  });
  ASSERT_EQ(count(), 1u);
  const ThrowawayFolder mine({folder()});
  fs::create_directory(folder() / "sonavue-strang");
  write_file(folder() / "sonavue-afile1", "text");
  remove_abandoned_folders();
  EXPECT_EQ(count(), 3u) << "mine, and what is not locked";
  EXPECT_TRUE(fs::exists(mine.path()));
}

}  // namespace
