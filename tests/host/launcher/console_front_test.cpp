#include "host/launcher/console_front.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "host/basics/descriptor.h"
#include "host/launcher/supervisor.h"
#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::launcher;
using host::Descriptor;

/// A C stream whose output can be read back.
class Printed {
 public:
  explicit Printed(std::filesystem::path path)
      : path_(std::move(path)), file_(std::fopen(path_.c_str(), "w")) {}
  ~Printed() { std::fclose(file_); }
  std::FILE* file() { return file_; }
  std::vector<std::string> lines() {
    std::fflush(file_);
    return lines_of(path_);
  }

 private:
  std::filesystem::path path_;
  std::FILE* file_;
};

class ConsoleFronts : public testing::Test {
 protected:
  int run(Script script, int input = -1) {
    ConsoleFront front(std::move(script), input, output_.file(), errors_.file());
    const ChildCommand command{PROGRAM_FOLDER "/SpringBoard",
                               {(folder_.path() / "starts").string(), "echo"},
                               {{"PATH", DEVICE_TOOLS ":/usr/bin:/bin"}}};
    return Supervisor({command, {}}, clock_, &front).run();
  }
  int run_typed(const std::string& text) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const Descriptor reading(ends[0]);
    {
      const Descriptor writing(ends[1]);
      EXPECT_EQ(write(writing.get(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    return run({}, reading.get());
  }
  std::size_t starts() const { return lines_of(folder_.path() / "starts").size(); }

  using Lines = std::vector<std::string>;
  TemporaryFolder folder_;
  Printed output_{folder_.path() / "output"};
  Printed errors_{folder_.path() / "errors"};
  host::SteppedClock clock_;
};

TEST_F(ConsoleFronts, AScriptThatSucceedsPrintsOnlyValuesAndEndsThePhone) {
  EXPECT_EQ(run({"a.scn", {"ok", "3.5", "ok"}}), 0);
  EXPECT_EQ(output_.lines(), Lines({"3.5"}));
  EXPECT_EQ(errors_.lines(), Lines());
}

TEST_F(ConsoleFronts, AScriptStopsAtTheFirstFailureAndNamesTheLine) {
  EXPECT_EQ(run({"a.scn", {"ok", "error: expected 1 == 2", "never sent"}}), 1);
  EXPECT_EQ(errors_.lines(), Lines({"a.scn:2: error: expected 1 == 2"}));
  EXPECT_EQ(output_.lines(), Lines());
}

TEST_F(ConsoleFronts, EveryTypedLineIsAnswered) {
  EXPECT_EQ(run_typed("one\nerror: two\nthree\n"), 0);
  EXPECT_EQ(output_.lines(), Lines({"one", "error: two", "three", "ok"}));
}

TEST_F(ConsoleFronts, AnUnterminatedLastLineIsAnsweredToo) {
  EXPECT_EQ(run_typed("one"), 0);
  EXPECT_EQ(output_.lines(), Lines({"one", "ok"}));
}

TEST_F(ConsoleFronts, NothingIsSentAfterQuit) {
  EXPECT_EQ(run_typed("one\nquit\ntwo\n"), 0);
  EXPECT_EQ(output_.lines(), Lines({"one", "ok"}));
}

TEST_F(ConsoleFronts, AScriptContinuesInTheRestartedProcess) {
  EXPECT_EQ(run({"a.scn", {"before", "killall", "after"}}), 0);
  EXPECT_EQ(output_.lines(), Lines({"before", "after"}));
  EXPECT_EQ(starts(), 2u);
}

TEST_F(ConsoleFronts, ACrashFailsTheLineThatWasWaiting) {
  EXPECT_EQ(run({"a.scn", {"before", "crash", "after"}}), 1);
  EXPECT_EQ(errors_.lines(), Lines({"a.scn:2: error: the process ended before it answered"}));
  EXPECT_EQ(starts(), 1u);
}

TEST_F(ConsoleFronts, ATypedLineThatCrashesIsAnErrorAndTheNextIsServed) {
  EXPECT_EQ(run_typed("crash\nafter\n"), 0);
  EXPECT_EQ(output_.lines(), Lines({"error: the process ended before it answered", "after", "ok"}));
  EXPECT_EQ(starts(), 2u);
}

TEST_F(ConsoleFronts, AScriptPlaysAnotherBesideIt) {
  write_file(folder_.path() / "more/b.scn", "2\nplay c.scn\n");
  write_file(folder_.path() / "more/c.scn", "3\n");
  EXPECT_EQ(run({folder_.path() / "a.scn", {"1", "play more/b.scn", "4"}}), 0);
  EXPECT_EQ(output_.lines(), Lines({"1", "2", "3", "4"}));
}

TEST_F(ConsoleFronts, AFailureNamesTheScriptThatWasPlayedAndEndsBoth) {
  write_file(folder_.path() / "b.scn", "2\nerror: no\nnever sent\n");
  EXPECT_EQ(run({folder_.path() / "a.scn", {"1", "play b.scn", "never sent"}}), 1);
  EXPECT_EQ(errors_.lines(), Lines({(folder_.path() / "b.scn").string() + ":2: error: no"}));
  EXPECT_EQ(output_.lines(), Lines({"1", "2"}));
}

TEST_F(ConsoleFronts, AScriptThatIsMissingOrPlaysItselfIsAnError) {
  const std::string a = folder_.path() / "a.scn";
  EXPECT_EQ(run({a, {"play b.scn"}}), 1);
  write_file(a, "play a.scn\n");
  EXPECT_EQ(run({a, {"play a.scn"}}), 1);
  EXPECT_EQ(errors_.lines(),
            Lines({a + ":1: error: " + (folder_.path() / "b.scn").string() + " cannot be read",
                   a + ":1: error: the scripts are nested too deeply"}));
}

TEST_F(ConsoleFronts, ATypedPlayCanFailAndTypingContinues) {
  const std::string b = folder_.path() / "b.scn";
  write_file(b, "2\nerror: no\n3\n");
  EXPECT_EQ(run_typed("1\nplay " + b + "\n4\nplay " + b + "5\n"), 0);
  EXPECT_EQ(output_.lines(), Lines({"1", "2", "4", "error: " + b + "5 cannot be read", "ok"}));
  EXPECT_EQ(errors_.lines(), Lines({b + ":2: error: no"}));
}

TEST(Scripts, AreReadByLineUnlessMissing) {
  const TemporaryFolder folder;
  write_file(folder.path() / "a.scn", "one\n\n# two");
  const auto script = read_script(folder.path() / "a.scn");
  ASSERT_TRUE(script);
  EXPECT_EQ(script->lines, std::vector<std::string>({"one", "", "# two"}));
  EXPECT_FALSE(read_script(folder.path() / "missing.scn"));
}

}  // namespace
