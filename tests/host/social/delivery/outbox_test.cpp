#include "host/social/delivery/outbox.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <iterator>
#include <set>
#include <thread>
#include <vector>

#include "tests/support/full_disk.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/told_user.h"

namespace {

using host::social::Outbox;
using media_tests::CapturedLog;
using media_tests::read_bytes;
using media_tests::TemporaryFolder;
using media_tests::write_bytes;

std::size_t files_in(const std::string& folder) {
  const std::filesystem::directory_iterator files(folder);
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(Outbox, MakesItsFolderAndNumbersItsFiles) {
  const TemporaryFolder folder;
  const Outbox outbox(folder / "Library/Outbox");
  EXPECT_EQ(outbox.put("share", "one").file, folder / "Library/Outbox/share-1.txt");
  EXPECT_EQ(outbox.put("share", "two").file, folder / "Library/Outbox/share-2.txt");
  EXPECT_EQ(outbox.put("mail", "three").file, folder / "Library/Outbox/mail-1.txt");
  EXPECT_EQ(read_bytes(folder / "Library/Outbox/share-1.txt"), "one\n");
  EXPECT_EQ(read_bytes(folder / "Library/Outbox/share-2.txt"), "two\n");
}

TEST(Outbox, NeverWritesOverAnEarlierText) {
  const TemporaryFolder folder;
  write_bytes(folder / "share-7.txt", "earlier");
  // Names that do not match its pattern do not count.
  write_bytes(folder / "share-99.txt.bak", "");
  write_bytes(folder / "share-98x.txt", "");
  write_bytes(folder / "share--1.txt", "");
  write_bytes(folder / "share297.txt", "");
  const auto result = Outbox(folder.path()).put("share", "later");
  EXPECT_EQ(result.file, folder / "share-8.txt");
  EXPECT_EQ(read_bytes(folder / "share-7.txt"), "earlier");
}

TEST(Outbox, LosesNothingWithManySimultaneousWriters) {
  constexpr int kTogether = 8;
  constexpr int kEach = 25;
  const TemporaryFolder folder;
  std::vector<std::thread> threads;
  for (int writer = 0; writer < kTogether; ++writer) {
    threads.emplace_back([&folder, writer] {
      for (int i = 0; i < kEach; ++i)
        Outbox(folder.path()).put("share", std::to_string(writer * kEach + i));
    });
  }
  for (std::thread& thread : threads)
    thread.join();
  std::set<std::string> texts;
  for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
    texts.insert(read_bytes(entry.path().string()));
  EXPECT_EQ(texts.size(), static_cast<std::size_t>(kTogether * kEach));
}

TEST(Outbox, KeepsTextsByteForByteAndPrivate) {
  const TemporaryFolder folder;
  std::string text;
  for (int i = 0; i < 2500; ++i)
    text += "\U0001F600e\u0301ש";
  const auto result = Outbox(folder.path()).put("share", text);
  EXPECT_EQ(read_bytes(result.file), text + "\n");
  struct stat status;
  ASSERT_EQ(stat(result.file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST(Outbox, OnAFullDiskReportsItOnceAndLeavesNoPartialFile) {
  const TemporaryFolder folder;
  const CapturedLog log;
  const host::test::ToldUser user;
  Outbox::Result result;
  {
    const FullDisk full(100);
    result = Outbox(folder.path()).put("share", std::string(1000, 'x'));
  }
  EXPECT_FALSE(result);
  EXPECT_NE(result.problem.find(folder.path()), std::string::npos);
  EXPECT_EQ(log.count(""), 1);
  EXPECT_EQ(log.count("outbox"), 1);
  EXPECT_EQ(user.words(), std::vector<std::string>{"The text could not be kept"});
  EXPECT_EQ(files_in(folder.path()), 0u);
  EXPECT_TRUE(Outbox(folder.path()).put("share", "room again"));
}

TEST(Outbox, ReportsAFolderThatCannotBeMade) {
  const TemporaryFolder folder;
  write_bytes(folder / "file", "");
  const CapturedLog log;
  EXPECT_FALSE(Outbox(folder / "file/Outbox").put("share", "text"));
  EXPECT_EQ(log.count("outbox"), 1);
}

}  // namespace
