#include "host/launcher/running_applications.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <filesystem>
#include <fstream>

#include "host/launcher/control_socket.h"
#include "host/launcher/unix_socket.h"
#include "tests/host/launcher/temporary_folder.h"
#include "tests/support/caught_log.h"

namespace {

using namespace host::launcher;
using testing::AllOf;
using testing::HasSubstr;

constexpr const char* kBundle = "org.example.Sleeper";

constexpr const char* kProgram = "sleeper";

/// The programs of a test: one runs until it is killed, whatever its arguments.
class Programs : public TemporaryFolder {
 public:
  Programs() {
    const auto program = path() / kProgram;
    std::ofstream(program) << "#!/bin/sh\nexec sleep 1000\n";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  }
};

class Applications : public testing::Test {
 protected:
  Programs programs_;
  TemporaryFolder sockets_;
  RunningApplications applications_{{programs_.path(), sockets_.path()}, {}};

  bool open() { return applications_.open(kBundle, kProgram); }
  bool can_be_reached() const {
    return static_cast<bool>(connected_socket(application_socket(sockets_.path(), kBundle)));
  }
};

TEST_F(Applications, CanBeReachedAsSoonAsTheyAreOpen) {
  EXPECT_FALSE(can_be_reached());
  EXPECT_TRUE(open());
  EXPECT_TRUE(can_be_reached());
  EXPECT_NE(applications_.process(kBundle), 0);
}

TEST_F(Applications, AreOpenedOnce) {
  ASSERT_TRUE(open());
  const pid_t process = applications_.process(kBundle);
  EXPECT_TRUE(open());
  EXPECT_EQ(applications_.process(kBundle), process);
}

TEST_F(Applications, AreNotOpenedWithoutTheirProgramAndTheLogSaysWhy) {
  const host::test::CaughtLog log;
  EXPECT_FALSE(applications_.open(kBundle, "no-such-program"));
  EXPECT_FALSE(applications_.is_running(kBundle));
  EXPECT_THAT(log.text(), AllOf(HasSubstr("no-such-program"), HasSubstr("No such file")));
}

TEST_F(Applications, AreNotOpenedWithoutRoomForASocketAndTheLogSaysWhy) {
  const host::test::CaughtLog log;
  RunningApplications others({programs_.path(), sockets_.path() / std::string(100, 's')}, {});
  EXPECT_FALSE(others.open(kBundle, kProgram));
  EXPECT_THAT(log.text(), AllOf(HasSubstr(kProgram), HasSubstr("name too long")));
}

TEST_F(Applications, ThatAreNoProgramsAreNamedInTheLog) {
  write_file(programs_.path() / "text",
             "\x7f"
             "ELF and nothing else");
  std::filesystem::permissions(programs_.path() / "text", std::filesystem::perms::owner_all);
  const host::test::CaughtLog log;
  EXPECT_TRUE(applications_.open(kBundle, "text"));
  while (applications_.is_running(kBundle))
    applications_.reap();
  EXPECT_THAT(log.text(), HasSubstr((programs_.path() / "text").string() + " cannot be run"));
}

TEST_F(Applications, AreKilledByTheNameOfTheirProgram) {
  ASSERT_TRUE(open());
  EXPECT_TRUE(applications_.is_program_running(kProgram));
  EXPECT_FALSE(applications_.kill("sleep"));
  EXPECT_TRUE(applications_.kill(kProgram));
  EXPECT_FALSE(applications_.is_program_running(kProgram));
  EXPECT_FALSE(applications_.kill(kProgram));
}

TEST_F(Applications, AreGoneOnceTheyAreClosed) {
  ASSERT_TRUE(open());
  const pid_t process = applications_.process(kBundle);
  EXPECT_TRUE(applications_.close(kBundle));
  EXPECT_FALSE(applications_.is_running(kBundle));
  EXPECT_FALSE(can_be_reached());
  EXPECT_EQ(kill(process, 0), -1);
  EXPECT_TRUE(applications_.close(kBundle));
}

TEST_F(Applications, OpenAgainAfterTheyHaveEnded) {
  ASSERT_TRUE(open());
  const pid_t process = applications_.process(kBundle);
  kill(process, SIGKILL);
  while (applications_.is_running(kBundle))
    applications_.reap();
  EXPECT_FALSE(std::filesystem::exists(application_socket(sockets_.path(), kBundle)));
  EXPECT_TRUE(open());
  EXPECT_TRUE(can_be_reached());
}

TEST_F(Applications, EndWithTheirOwner) {
  pid_t process = 0;
  {
    RunningApplications others({programs_.path(), sockets_.path()}, {});
    ASSERT_TRUE(others.open("org.example.Other", kProgram));
    process = others.process("org.example.Other");
  }
  EXPECT_EQ(kill(process, 0), -1);
}

}  // namespace
