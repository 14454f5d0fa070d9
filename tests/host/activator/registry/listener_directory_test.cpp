#include "host/activator/registry/listener_directory.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/host/activator/support/service_test.h"
#include "tests/support/full_disk.h"
#include "tests/support/told_user.h"

namespace host::test {
namespace {

using activator::ListenerDirectory;
using activator::ListenerRecord;
using ::testing::IsEmpty;

class Directories : public ActivatorTest {
 protected:
  UIImage picture() const {
    const auto bytes = media_tests::png_picture(20, 10, 0x00ff00);
    return UIImage::imageWithData(NSData::dataWithBytes(bytes.data(), bytes.size()), 2);
  }
  std::vector<ListenerRecord> records() const { return ListenerDirectory().read(); }
};

TEST_F(Directories, ShareListenersAnswersWithOtherProcesses) {
  script().on_question = [this](const std::string& question) -> objc::Object {
    if (question == "title") return "A Tïtle"_ns;
    if (question == "description") return "Does things"_ns;
    if (question == "group") return "Group"_ns;
    if (question == "small icon") return picture();
    return NSArray::arrayWithObject("lockscreen"_ns);
  };
  add(answering_listener(), "org.example/a b");
  EXPECT_THAT(records(), IsEmpty());
  loop.run_ready();
  ASSERT_EQ(records().size(), 1u);
  const ListenerRecord record = records().front();
  EXPECT_EQ(record.name, "org.example/a b");
  EXPECT_EQ(record.title, "A Tïtle");
  EXPECT_EQ(record.description, "Does things");
  EXPECT_EQ(record.group, "Group");
  EXPECT_TRUE(record.admits("lockscreen"));
  EXPECT_FALSE(record.admits("springboard"));
  const UIImage icon = UIImage::imageWithContentsOfFile(to_ns(record.icon));
  EXPECT_EQ(icon.size(), (CGSize{10, 5}));
}

TEST_F(Directories, TellTheUserOfAnIconThatCannotBeKept) {
  const host::test::ToldUser user;
  const FullDisk full(1);
  EXPECT_EQ(ListenerDirectory().keep_icon("a", picture()), "");
  EXPECT_THAT(user.words(), testing::ElementsAre(kDiskWarning));
}

TEST_F(Directories, ReplaceAnIconAtOnce) {
  const std::string path = ListenerDirectory().keep_icon("a", picture());
  const std::string file = foundation::path_on_this_machine(path);
  std::filesystem::create_hard_link(file, file + ".before");
  std::filesystem::resize_file(file, 1);
  EXPECT_EQ(ListenerDirectory().keep_icon("a", picture()), path);
  // A process that has the old file open still reads it.
  EXPECT_EQ(std::filesystem::file_size(file + ".before"), 1u);
  EXPECT_EQ(UIImage::imageWithContentsOfFile(to_ns(path)).size(), (CGSize{10, 5}));
}

TEST_F(Directories, AListenerWithoutAnswersHasItsNameAndEveryMode) {
  add(plain_listener(), "plain");
  loop.run_ready();
  ASSERT_EQ(records().size(), 1u);
  EXPECT_EQ(records().front().shown_title(), "plain");
  EXPECT_EQ(records().front().icon, "");
  EXPECT_TRUE(records().front().admits("application"));
}

TEST_F(Directories, AnswersOfTheWrongTypeAreIgnored) {
  script().on_question = [](const std::string&) -> objc::Object {
    return NSDictionary::dictionary();
  };
  add(answering_listener(), "odd");
  loop.run_ready();
  ASSERT_EQ(records().size(), 1u);
  EXPECT_EQ(
      records().front(),
      (ListenerRecord{
          .name = "odd", .title = {}, .description = {}, .group = {}, .icon = {}, .modes = {}}));
}

TEST_F(Directories, AListenerThatThrowsIsListedByItsName) {
  script().on_question = [](const std::string&) -> objc::Object {
    raise_exception();
    return nil;
  };
  add(answering_listener(), "thrower");
  add(plain_listener(), "other");
  media_tests::CapturedLog log;
  loop.run_ready();
  EXPECT_EQ(records().size(), 2u);
  EXPECT_GE(log.count("gesture listener thrower threw"), 1);
}

TEST_F(Directories, QueryEachListenerOncePerTurn) {
  int titles = 0;
  script().on_question = [&](const std::string& question) -> objc::Object {
    titles += question == "title" ? 1 : 0;
    return nil;
  };
  for (const char* name : {"a", "b", "c"})
    add(answering_listener(), name);
  loop.run_ready();
  EXPECT_EQ(titles, 3);
  add(answering_listener(), "d");
  loop.run_ready();
  EXPECT_EQ(titles, 3 + 4);
}

TEST_F(Directories, AListenerMayUnregisterItselfWhenQueried) {
  script().on_question = [&](const std::string& question) -> objc::Object {
    if (question == "title") service().unregisterListenerWithName("a"_ns);
    return nil;
  };
  add(answering_listener(), "a");
  add(plain_listener(), "b");
  loop.run_ready();
  ASSERT_EQ(records().size(), 1u);
  EXPECT_EQ(records().front().name, "b");
}

TEST_F(Directories, ForgetUnregisteredListenersAndThoseOfAnEarlierProcess) {
  add(plain_listener(), "a");
  add(plain_listener(), "b");
  loop.run_ready();
  service().unregisterListenerWithName("a"_ns);
  loop.run_ready();
  EXPECT_EQ(records().size(), 1u);
  start_again();
  loop.run_ready();
  EXPECT_THAT(records(), IsEmpty());
}

TEST_F(Directories, AreWrittenByTheHomeScreenOnly) {
  add(plain_listener(), "a");
  loop.run_ready();
  start_again(Service::Role::Guest);
  loop.run_ready();
  EXPECT_EQ(records().size(), 1u);
  add(plain_listener(), "b");
  loop.run_ready();
  EXPECT_EQ(records().size(), 1u);
}

TEST_F(Directories, AGuestRefusesModesAccordingToTheDirectory) {
  script().on_question = [](const std::string& question) -> objc::Object {
    return question == "modes" ? NSArray::arrayWithObject("lockscreen"_ns) : NSArray();
  };
  add(answering_listener(), "a");
  loop.run_ready();
  start_again(Service::Role::Guest);
  EXPECT_FALSE(assign("shake", "a", "springboard"));
  EXPECT_TRUE(assign("shake", "a", "lockscreen"));
}

TEST_F(Directories, BrokenFilesAreEmpty) {
  const std::string file = device.path() + activator::kDirectoryPath;
  for (const char* bytes : {"", "<", "<plist><array/></plist>",
                            "<plist><dict><key>listeners</key><array><true/><dict/></array>"
                            "</dict></plist>"}) {
    media_tests::write_bytes(file, bytes);
    EXPECT_THAT(records(), IsEmpty()) << bytes;
  }
}

}  // namespace
}  // namespace host::test
