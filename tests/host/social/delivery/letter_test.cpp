#include "host/social/delivery/letter.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "host/social/delivery/addresses.h"
#include "host/social/delivery/configuration.h"
#include "tests/host/social/delivery/desktop.h"
#include "tests/support/host_test.h"

namespace {

using namespace host::social;
using host::test::FakeDesktop;
using host::test::Variable;
using media_tests::read_bytes;
using media_tests::TemporaryFolder;

/// A desktop's registry that knows one kind of address, or hangs.
class FakeRegistry {
 public:
  explicit FakeRegistry(const std::string& known)
      : path_("PATH", folder_.path() + ":" + std::getenv("PATH")) {
    write_program("xdg-mime", "[ \"$*\" = 'query default " + known + "' ] && echo some.desktop");
    // An opener that accepts everything.
    write_program("xdg-open", "");
  }

  /// Never comes to an end, and never names a program.
  void ramble() const { write_program("xdg-mime", "exec yes ' '"); }

 private:
  void write_program(const char* name, const std::string& line) const {
    const std::string script = folder_ / name;
    std::ofstream(script) << "#!/bin/sh\n" << line << "\nexit 0\n";
    chmod(script.c_str(), 0700);
  }

  TemporaryFolder folder_;
  Variable path_;
};

class Letters : public host::test::HostTest {
 protected:
  ~Letters() override { configure({}); }
  void configure_desktop(Desktop desktop) const {
    Configuration configuration;
    configuration.desktop = desktop;
    configuration.outbox = folder / "Outbox";
    configure(configuration);
  }
  std::string in_outbox(const std::string& name) const {
    return read_bytes(folder / ("Outbox/" + name));
  }
  static Letter mail() {
    return {LetterKind::Mail, {"a@example.org", "b c@example.org"}, "Song & dance", "1\n2"};
  }
  static Letter message() { return {LetterKind::Message, {"+123"}, {}, "I'm here"}; }

  TemporaryFolder folder;
};

TEST_F(Letters, PutEverythingIntoTheAddress) {
  EXPECT_EQ(mail().address(),
            "mailto:a@example.org,b%20c@example.org?subject=Song%20%26%20dance&body=1%0D%0A2");
  EXPECT_EQ(message().address(), "sms:+123?body=I%27m%20here");
}

TEST_F(Letters, GoToTheOutboxInReadableFormWithoutADesktop) {
  configure_desktop(Desktop::Absent);
  EXPECT_EQ(send_letter(mail()), HandedTo::Outbox);
  EXPECT_EQ(in_outbox("mail-1.txt"),
            "To: a@example.org, b c@example.org\nSubject: Song & dance\n\n1\n2\n");
  EXPECT_EQ(send_letter(message()), HandedTo::Outbox);
  EXPECT_EQ(in_outbox("message-1.txt"), "To: +123\n\nI'm here\n");
}

TEST_F(Letters, GoToTheDesktopsProgram) {
  const FakeDesktop desktop;
  configure_desktop(Desktop::Present);
  EXPECT_EQ(send_letter(mail()), HandedTo::Desktop);
  EXPECT_EQ(desktop.given(), "1|" + mail().address() + "|");
  desktop.let_end(loop);
}

TEST_F(Letters, AMessageWithoutADesktopHandlerGoesToTheOutbox) {
  const FakeRegistry registry("x-scheme-handler/other");
  configure_desktop(Desktop::Present);
  EXPECT_EQ(send_letter(message()), HandedTo::Outbox);
}

TEST_F(Letters, TheDesktopIsAskedForTheHandlerOfAScheme) {
  const FakeRegistry registry("x-scheme-handler/known");
  configure_desktop(Desktop::Present);
  EXPECT_TRUE(can_open_address("known://anything"));
  EXPECT_TRUE(can_open_address("KNOWN:x"));
  EXPECT_FALSE(can_open_address("unknown://anything"));
  EXPECT_FALSE(open_address("unknown://anything"));
  EXPECT_TRUE(can_open_address("https://example.org/"));
}

TEST_F(Letters, ARegistryThatRamblesKnowsNothing) {
  const FakeRegistry registry("x-scheme-handler/known");
  registry.ramble();
  configure_desktop(Desktop::Present);
  EXPECT_FALSE(can_open_address("known://anything"));
}

TEST_F(Letters, TheDesktopIsNotAskedAboutInvalidAddresses) {
  const FakeRegistry registry("x-scheme-handler/");
  configure_desktop(Desktop::Present);
  for (const char* address : {"", ":x", "no address", "/usr/bin/x", "--help:x"})
    EXPECT_FALSE(can_open_address(address)) << address;
}

TEST_F(Letters, WithoutADesktopOnlyTheWebMailAndTextsAreOpened) {
  configure_desktop(Desktop::Absent);
  for (const char* address : {"http://example.org/", "https://example.org/", "mailto:a", "sms:1"})
    EXPECT_TRUE(can_open_address(address)) << address;
  for (const char* address : {"other://x", "", "no address", ":x", "1a:x", "a b:x"})
    EXPECT_FALSE(can_open_address(address)) << address;
  EXPECT_TRUE(open_address("https://example.org/?a=b"));
  EXPECT_EQ(in_outbox("link-1.txt"), "https://example.org/?a=b\n");
}

}  // namespace
