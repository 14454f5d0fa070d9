#include "host/launcher/console_front.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <future>

#include "host/basics/console_line.h"
#include "host/basics/descriptor.h"
#include "host/launcher/supervisor.h"
#include "tests/host/launcher/child_signals.h"
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
  int run(const Script& script, int input = -1) {
    ConsoleFront front(script, input, output_.file(), errors_.file());
    return run_with(front, "echo");
  }
  int run_with(ConsoleFront& front, const std::string& behaviour) {
    const ChildCommand command{PROGRAM_FOLDER "/SpringBoard",
                               {(folder_.path() / "starts").string(), behaviour},
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

TEST_F(ConsoleFronts, AnAnswerWithSeveralLinesIsPrintedWholeAndOneAnswer) {
  EXPECT_EQ(run({"a.scn", {"list", "after"}}), 0);
  EXPECT_EQ(output_.lines(), Lines({"  one", "    two", "after"}));
  EXPECT_EQ(run_typed("list\nafter\n"), 0);
  EXPECT_EQ(output_.lines(),
            Lines({"  one", "    two", "after", "  one", "    two", "ok", "after", "ok"}));
}

TEST_F(ConsoleFronts, AWitnessSeesWhatIsPlayedAndWhatIsLeftOut) {
  struct Witness final : ScriptWitness {
    void printed(std::string_view text) override { seen += "printed " + std::string(text); }
    void answered(const ScriptLine& line, std::string_view failure) override {
      seen += std::to_string(line.number) + " " + line.text + ": " + std::string(failure) + "\n";
    }
    void left_out(const ScriptLine& line) override { seen += "not " + line.text + "\n"; }
    std::string seen;
  } witness;
  write_file(folder_.path() / "b.scn", "list\nerror: no\ninner\n");
  ConsoleFront front({folder_.path() / "a.scn", {"ok", "play b.scn", "outer"}}, -1, output_.file(),
                     errors_.file());
  front.tell(&witness);
  EXPECT_EQ(run_with(front, "echo"), 1);
  EXPECT_EQ(witness.seen,
            "1 ok: \nprinted   one\nprinted     two\n1 list: \n2 error: no: no\n"
            "not inner\nnot outer\n");
}

TEST_F(ConsoleFronts, EveryTypedLineIsAnswered) {
  EXPECT_EQ(run_typed("one\nerror: two\nthree\n"), 0);
  EXPECT_EQ(output_.lines(), Lines({"one", "error: two", "three", "ok"}));
}

TEST_F(ConsoleFronts, InputThatEndsInTheMiddleOfALineIsAnErrorAfterTheLinesBefore) {
  EXPECT_EQ(run_typed("one\ntwo"), 1);
  EXPECT_EQ(output_.lines(), Lines({"one"}));
  EXPECT_EQ(errors_.lines(),
            Lines({"standard input ends in the middle of a line, which is ignored: two"}));
}

TEST_F(ConsoleFronts, ALineThatIsTooLongIsRefusedAndTheNextIsServed) {
  const std::string longest(host::kLongestConsoleLine, 'x');
  write_file(folder_.path() / "typed",
             longest + "\n" + longest + "x\n" + std::string(1'000'000, 'y') + "\nlast\n");
  const Descriptor typed(open((folder_.path() / "typed").c_str(), O_RDONLY | O_CLOEXEC));
  EXPECT_EQ(run({}, typed.get()), 0);
  EXPECT_EQ(output_.lines(), Lines({longest, "error: the line is too long",
                                    "error: the line is too long", "last", "ok"}));
}

TEST_F(ConsoleFronts, NeverWaitForAProcessThatDoesNotRead) {
  for (const std::size_t length : {std::size_t{1'000'000}, host::kLongestConsoleLine}) {
    ConsoleFront front({"a.scn", {std::string(length, 'x')}}, -1, output_.file(), errors_.file());
    EXPECT_EQ(run_with(front, "deaf"), 128 + SIGTERM) << length;
  }
}

TEST_F(ConsoleFronts, NeverWaitForAReaderOfTheAnswers) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const Descriptor reading(ends[0]);
  std::FILE* output = fdopen(ends[1], "w");
  std::vector<std::string> lines(50, std::string(10'000, 'x'));
  lines.emplace_back("terminate");
  ConsoleFront front({"a.scn", lines}, -1, output, errors_.file());
  EXPECT_EQ(run_with(front, "echo"), 128 + SIGTERM);
  std::fclose(output);
}

TEST_F(ConsoleFronts, PrintEveryAnswerForASlowReader) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const Descriptor reading(ends[0]);
  std::FILE* output = fdopen(ends[1], "w");
  block_child_signals();
  auto received = std::async(std::launch::async, [&reading] {
    std::size_t sum = 0;
    char bytes[4096];
    for (ssize_t count = 0; (count = read(reading.get(), bytes, sizeof bytes)) > 0;)
      sum += static_cast<std::size_t>(count);
    return sum;
  });
  ConsoleFront front({"a.scn", std::vector<std::string>(50, std::string(9'999, 'x'))}, -1, output,
                     errors_.file());
  EXPECT_EQ(run_with(front, "echo"), 0);
  std::fclose(output);
  EXPECT_EQ(received.get(), 500'000u);
}

TEST_F(ConsoleFronts, PlayOnlyFiles) {
  const std::string pipe = folder_.path() / "pipe.scn";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(run_typed("play " + pipe + "\nplay /dev/zero\nplay /\n"), 0);
  EXPECT_EQ(output_.lines(), Lines({"error: " + pipe + " cannot be read: it is not a file",
                                    "error: /dev/zero cannot be read: it is not a file",
                                    "error: / cannot be read: it is not a file", "ok"}));
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

TEST_F(ConsoleFronts, APictureToCompareIsLookedUpBesideTheScriptThatNamesIt) {
  const std::string folder = folder_.path();
  write_file(folder_.path() / "more/b.scn", "  compare b c.png\ncompare\n");
  EXPECT_EQ(run({folder + "/a.scn", {"compare a.png", "play more/b.scn", "compare /c.png"}}), 0);
  EXPECT_EQ(output_.lines(),
            Lines({"compare " + folder + "/a.png", "compare " + folder + "/more/b c.png", "compare",
                   "compare /c.png"}));
  EXPECT_EQ(run({folder + "/two\nlines/a.scn", {"compare a.png"}}), 0);
  EXPECT_EQ(output_.lines().back(), "compare a.png");
}

TEST_F(ConsoleFronts, AScriptThatIsMissingOrPlaysItselfIsAnError) {
  const std::string a = folder_.path() / "a.scn";
  EXPECT_EQ(run({a, {"play b.scn"}}), 1);
  write_file(a, "play a.scn\n");
  EXPECT_EQ(run({a, {"play a.scn"}}), 1);
  EXPECT_EQ(errors_.lines(), Lines({a + ":1: error: " + (folder_.path() / "b.scn").string() +
                                        " cannot be read: No such file or directory",
                                    a + ":1: error: the scripts are nested too deeply"}));
}

TEST_F(ConsoleFronts, ATypedPlayCanFailAndTypingContinues) {
  const std::string b = folder_.path() / "b.scn";
  write_file(b, "2\nerror: no\n3\n");
  EXPECT_EQ(run_typed("1\nplay " + b + "\n4\nplay " + b + "5\n"), 0);
  EXPECT_EQ(
      output_.lines(),
      Lines({"1", "2", "4", "error: " + b + "5 cannot be read: No such file or directory", "ok"}));
  EXPECT_EQ(errors_.lines(), Lines({b + ":2: error: no"}));
}

TEST(Scripts, AreReadByLineUnlessMissing) {
  const TemporaryFolder folder;
  write_file(folder.path() / "a.scn", "one\n\n# two");
  std::string problem;
  const auto script = read_script(folder.path() / "a.scn", Pipes::Refused, problem);
  ASSERT_TRUE(script);
  EXPECT_EQ(script->lines, std::vector<std::string>({"one", "", "# two"}));
  const std::string missing = folder.path() / "missing.scn";
  EXPECT_FALSE(read_script(missing, Pipes::Refused, problem));
  EXPECT_EQ(problem, missing + " cannot be read: No such file or directory");
}

TEST(Scripts, MayBePipesThatAreReadUntilTheirEnd) {
  const TemporaryFolder folder;
  const std::string pipe = folder.path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  auto written = std::async(std::launch::async, [&pipe] { std::ofstream(pipe) << "one\ntwo\n"; });
  std::string problem;
  const auto script = read_script(pipe, Pipes::Allowed, problem);
  ASSERT_TRUE(script) << problem;
  EXPECT_EQ(script->lines, std::vector<std::string>({"one", "two"}));
}

TEST(Scripts, HaveASizeThatIsSane) {
  const TemporaryFolder folder;
  const auto large = folder.path() / "large.scn";
  write_file(large, "");
  std::filesystem::resize_file(large, 100'000'000);
  std::string problem;
  EXPECT_FALSE(read_script(large, Pipes::Refused, problem));
  EXPECT_EQ(problem, large.string() + " is too large for a script");
}

}  // namespace
