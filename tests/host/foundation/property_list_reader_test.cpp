#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"
#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"
#include "tests/support/no_descriptors.h"

namespace {

struct PropertyListReaderTest : host::test::HostTest {
  PropertyListReaderTest()
      : file(std::filesystem::temp_directory_path() /
             ("property-list-reader-" + std::to_string(getpid()) + ".plist")),
        path(NSString::stringWithUTF8String(file.c_str())) {}
  ~PropertyListReaderTest() override { std::filesystem::remove_all(file); }

  void write(const std::string& entries) const {
    std::ofstream(file) << R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>)"
                        << entries << "</dict></plist>\n";
  }
  NSDictionary read() const { return NSDictionary::dictionaryWithContentsOfFile(path); }

  std::filesystem::path file;
  NSString path;
};

TEST_F(PropertyListReaderTest, ASecondReadIsEqualToTheFirst) {
  write("<key>on</key><true/><key>name</key><string>blue</string>");
  const NSDictionary first = read();
  ASSERT_EQ(first.count(), 2u);
  EXPECT_TRUE(read().isEqualToDictionary(first));
  EXPECT_TRUE(objc::cast<NSNumber>(read().objectForKey("on"_ns)).boolValue());
}

TEST_F(PropertyListReaderTest, AChangedByteIsNoticedEvenWithTheSameSizeAndTime) {
  write("<key>name</key><string>a</string>");
  struct stat before {};
  ASSERT_EQ(stat(file.c_str(), &before), 0);
  read();
  ASSERT_TRUE(read().objectForKey("name"_ns));
  write("<key>name</key><string>b</string>");
  const timespec times[] = {before.st_atim, before.st_mtim};
  ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
  EXPECT_TRUE(objc::cast<NSObject>(read().objectForKey("name"_ns)).isEqual("b"_ns));
}

TEST_F(PropertyListReaderTest, AMissingOrBrokenFileOrAFolderReadsAsNil) {
  write("<key>on</key><true/>");
  ASSERT_TRUE(read());
  std::ofstream(file) << "<plist";
  EXPECT_FALSE(read());
  std::filesystem::remove(file);
  EXPECT_FALSE(read());
  std::filesystem::create_directory(file);
  EXPECT_FALSE(read());
  std::filesystem::remove(file);
  write("<key>on</key><true/>");
  EXPECT_TRUE(read());
}

TEST_F(PropertyListReaderTest, OneReadersChangesAreNotVisibleToTheNext) {
  write("<key>list</key><array><string>a</string></array><key>on</key><true/>");
  const auto list = objc::cast<NSMutableArray>(read().objectForKey("list"_ns));
  if (list.isKindOfClass(NSMutableArray::cls())) list.addObject("b"_ns);
  EXPECT_EQ(objc::cast<NSArray>(read().objectForKey("list"_ns)).count(), 1u);
}

TEST_F(PropertyListReaderTest, AnUnchangedFileIsParsedOnce) {
  write("<key>list</key><array><string>a</string></array>");
  const objc::Object list = read().objectForKey("list"_ns);
  ASSERT_TRUE(list);
  EXPECT_EQ(read().objectForKey("list"_ns), list);
  write("<key>list</key><array><string>b</string></array>");
  EXPECT_NE(read().objectForKey("list"_ns), list);
}

// A file that has changed within two seconds is read in any case, so these files of the sources are
// read through a link.
TEST_F(PropertyListReaderTest, AnUnchangedFileIsNotOpenedAgain) {
  std::filesystem::create_symlink(SETTLED_LISTS "/preferences-xml.plist", file);
  const NSDictionary first = read();
  ASSERT_TRUE(first);
  const NoDescriptors none;
  EXPECT_TRUE(read().isEqualToDictionary(first));
}

TEST_F(PropertyListReaderTest, AnotherOldFileInItsPlaceIsNoticed) {
  std::filesystem::create_symlink(SETTLED_LISTS "/preferences-xml.plist", file);
  const NSDictionary first = read();
  ASSERT_TRUE(first);
  std::filesystem::remove(file);
  EXPECT_FALSE(read());
  std::filesystem::create_symlink(SETTLED_LISTS "/../../../docs/settings.plist", file);
  const NSDictionary second = read();
  ASSERT_TRUE(second);
  EXPECT_FALSE(second.isEqualToDictionary(first));
}

TEST_F(PropertyListReaderTest, ADamagedFileIsParsedAndReportedOnce) {
  host::test::CaughtLog log;
  std::ofstream(file) << "{a = b\nc = d; }";
  for (int i = 0; i < 3; ++i)
    EXPECT_FALSE(read());
  EXPECT_EQ(log.take(), "warning: " + file.string() +
                            " is not read: it is damaged in line 2: a ';' is missing\n");
  // Another writer, the same mistake.
  std::ofstream(file) << "{a = c\nc = d; }";
  EXPECT_FALSE(read());
  EXPECT_EQ(log.take(), "");
  std::ofstream(file) << "{a = b; }";
  EXPECT_TRUE(read());
  std::ofstream(file) << "{a = b\nc = d; }";
  EXPECT_FALSE(read());
  EXPECT_NE(log.take(), "");
}

TEST_F(PropertyListReaderTest, AHugeFileIsRefusedUnread) {
  host::test::CaughtLog log;
  write("<key>on</key><true/>");
  // Its bytes take no room, but reading them would take memory and time.
  std::filesystem::resize_file(file, std::uintmax_t{1} << 40);
  EXPECT_FALSE(read());
  EXPECT_EQ(log.take(), "warning: " + file.string() + " is not read: it is larger than 32 MB\n");
}

TEST_F(PropertyListReaderTest, WhatIsNoRegularFileIsReportedOnceAndNotWaitedFor) {
  host::test::CaughtLog log;
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
  for (int i = 0; i < 3; ++i)
    EXPECT_FALSE(read());
  EXPECT_EQ(log.take(), "warning: " + file.string() + " is not read: it is not a regular file\n");
  std::filesystem::remove(file);
  EXPECT_FALSE(read());
  EXPECT_EQ(log.take(), "");
}

TEST_F(PropertyListReaderTest, AMutableDictionaryStaysMutableOnEveryRead) {
  write("<key>on</key><true/>");
  read();
  for (int i = 0; i < 2; ++i) {
    const auto changed =
        objc::send<NSMutableDictionary>(objc::Object(objc_getClass("NSMutableDictionary")),
                                        "dictionaryWithContentsOfFile:"_sel, path);
    ASSERT_EQ(changed.count(), 1u);
    changed.setObject("b"_ns, "more"_ns);
  }
  EXPECT_EQ(read().count(), 1u);
}

}  // namespace
