#include "host/social/delivery/share_target.h"

#include <sys/stat.h>

#include <filesystem>

#include "host/social/delivery/configuration.h"
#include "tests/host/social/delivery/desktop.h"
#include "tests/support/host_test.h"

namespace {

using namespace host::social;
using host::test::FakeDesktop;
using host::test::Variable;
using media_tests::CapturedLog;
using media_tests::read_bytes;
using media_tests::TemporaryFolder;
using media_tests::write_bytes;

class ShareTargets : public host::test::HostTest {
 protected:
  ~ShareTargets() override { configure({}); }

  ShareTarget target_of(const std::string& line) const {
    write_bytes(folder / "share-target", line);
    return ShareTarget::read(folder / "share-target");
  }
  void configure_desktop(Desktop desktop) const {
    Configuration configuration;
    configuration.desktop = desktop;
    configuration.outbox = folder / "Outbox";
    configuration.share_target = folder / "share-target";
    configure(configuration);
  }
  std::string in_outbox(const std::string& name) const {
    return read_bytes(folder / ("Outbox/" + name));
  }

  TemporaryFolder folder;
};

TEST_F(ShareTargets, AreANewMailByDefault) {
  const ShareTarget target = ShareTarget::read(folder / "missing");
  EXPECT_EQ(target.address_for("#a b&c=d?"),
            "mailto:?subject=Now%20playing&body=%23a%20b%26c%3Dd%3F");
  EXPECT_EQ(ShareTarget::read({}).address_for(""), "mailto:?subject=Now%20playing&body=");
}

TEST_F(ShareTargets, UseMailLineEndsInLetters) {
  EXPECT_EQ(ShareTarget().address_for("a\nb"), "mailto:?subject=Now%20playing&body=a%0D%0Ab");
  EXPECT_EQ(target_of("https://example.org/{text}").address_for("a\nb"),
            "https://example.org/a%0Ab");
}

TEST_F(ShareTargets, PutTheTextWhereverTheFileSays) {
  const ShareTarget target = target_of("  https://example.org/?q={text}&again={text}\r\nsecond\n");
  EXPECT_EQ(target.address_for("{text}"), "https://example.org/?q=%7Btext%7D&again=%7Btext%7D");
}

TEST_F(ShareTargets, RejectInvalidAddresses) {
  for (const char* line :
       {"\n", "{text}", "https://example.org/", "--help {text}", "-x:{text}", "/usr/bin/x:{text}",
        ":{text}", "a b:{text}", "a/b:{text}", "https://a b/{text}"}) {
    const CapturedLog log;
    EXPECT_EQ(target_of(line).address_for("x"), ShareTarget().address_for("x")) << line;
    EXPECT_EQ(log.count("share-target"), 1) << line;
  }
}

TEST_F(ShareTargets, AreNotWaitedForAndHaveAnEnd) {
  const std::string file = folder / "share-target";
  // No one ever writes into it.
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
  const CapturedLog log;
  EXPECT_EQ(ShareTarget::read(file).address_for("x"), ShareTarget().address_for("x"));
  std::filesystem::remove(file);
  std::filesystem::create_symlink("/dev/zero", file);
  EXPECT_EQ(ShareTarget::read(file).address_for("x"), ShareTarget().address_for("x"));
  std::filesystem::remove(file);
  EXPECT_EQ(target_of("https://example.org/{text}" + std::string(5000, 'a')).address_for("x"),
            ShareTarget().address_for("x"));
  EXPECT_EQ(log.count("share-target"), 3);
}

TEST_F(ShareTargets, AreFoundWhereTheUserKeepsSettings) {
  {
    const Variable settings("XDG_CONFIG_HOME", "/settings");
    EXPECT_EQ(default_share_target_file(), "/settings/sonavue/share-target");
  }
  const Variable settings("XDG_CONFIG_HOME", "");
  const Variable home("HOME", "/home/somebody");
  EXPECT_EQ(default_share_target_file(), "/home/somebody/.config/sonavue/share-target");
}

TEST_F(ShareTargets, WithoutADesktopTheTextGoesToTheOutbox) {
  const FakeDesktop desktop;
  configure_desktop(Desktop::Absent);
  EXPECT_EQ(hand_over_share("text"), HandedTo::Outbox);
  EXPECT_EQ(in_outbox("share-1.txt"), "text\n");
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "the opener was started";
}

TEST_F(ShareTargets, ADesktopOpensTheAddress) {
  const FakeDesktop desktop;
  configure_desktop(Desktop::Present);
  target_of("https://example.org/?q={text}");
  EXPECT_EQ(hand_over_share("שלום #1"), HandedTo::Desktop);
  EXPECT_EQ(desktop.given(), "1|https://example.org/?q=%D7%A9%D7%9C%D7%95%D7%9D%20%231|");
  desktop.let_end(loop);
  EXPECT_FALSE(std::filesystem::exists(folder / "Outbox"));
}

TEST_F(ShareTargets, ATextThatTheDesktopRefusesGoesToTheOutbox) {
  const TemporaryFolder empty;
  const Variable path("PATH", empty.path());
  configure_desktop(Desktop::Present);
  EXPECT_EQ(hand_over_share("text"), HandedTo::Outbox);
  EXPECT_EQ(in_outbox("share-1.txt"), "text\n");
}

TEST_F(ShareTargets, ATextThatTheDesktopAcceptsAndLosesGoesToTheOutbox) {
  const FakeDesktop desktop(4);
  configure_desktop(Desktop::Present);
  EXPECT_EQ(hand_over_share("text"), HandedTo::Desktop);
  desktop.given();
  desktop.let_end(loop);
  EXPECT_EQ(in_outbox("share-1.txt"), "text\n");
}

TEST_F(ShareTargets, AnUndeliverableTextStaysWithTheCaller) {
  write_bytes(folder / "Outbox", "a file where the folder would be");
  configure_desktop(Desktop::Absent);
  const CapturedLog log;
  EXPECT_EQ(hand_over_share("text"), HandedTo::Failed);
  EXPECT_EQ(log.count(""), 1);
}

}  // namespace
