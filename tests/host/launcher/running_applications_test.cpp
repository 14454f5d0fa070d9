#include "host/launcher/running_applications.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <filesystem>
#include <fstream>

#include "host/launcher/unix_socket.h"
#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::launcher;

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

TEST_F(Applications, AreNotOpenedWithoutTheirProgram) {
  EXPECT_FALSE(applications_.open(kBundle, "no-such-program"));
  EXPECT_FALSE(applications_.is_running(kBundle));
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
