#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <chrono>
#include <fstream>

#include "tests/random_use/oracle.h"
#include "tests/random_use/random_user.h"
#include "tests/random_use/shrinking.h"

// Uses phones at random and looks after every burst whether the phone can still be used. Ends with
// 1 when there was a fault, having told the shortest script that shows it.

namespace {

using namespace random_use;

struct Options {
  std::uint32_t first = 1;
  std::uint32_t last = 1;
  double seconds = 0;
  double shrinking = 240;
  std::string faults;
  bool aloud = false;
};

struct Figures {
  int bursts = 0;
  int actions = 0;
  double simulated = 0;
  double real = 0;
  int faults = 0;
  double most_memory = 0;

  void add(const Figures& other) {
    bursts += other.bursts;
    actions += other.actions;
    simulated += other.simulated;
    real += other.real;
    faults += other.faults;
    most_memory = std::max(most_memory, other.most_memory);
  }
  void print(const std::string& name) const {
    fmt::print(
        "{}: {} bursts, {} actions, {:.0f} simulated seconds, {:.0f} real seconds, {} MB, {}\n",
        name, bursts, actions, simulated, real, static_cast<int>(most_memory),
        faults ? fmt::format("{} faults", faults) : "no fault");
    std::fflush(stdout);
  }
};

void tell(const Story& story, std::uint32_t seed, const Options& options) {
  std::string text = fmt::format("# Seed {}: {}\n", seed, story.fault.text);
  text += "# options: --music DEVICE" + std::string(kSongs) + "\n";
  for (const std::string& line : story.lines)
    text += line + "\n";
  fmt::print("{}", text);
  std::fflush(stdout);
  if (options.faults.empty()) return;
  std::ofstream(fmt::format("{}/seed-{}.scn", options.faults, seed)) << text;
}

/// One seed on one phone, to its end or its first fault.
class Use {
 public:
  Use(std::uint32_t seed, const Options& options)
      : seed_(seed), options_(options), user_(phone_, seed), oracle_(phone_) {
    if (options.aloud) phone_.say_aloud();
  }

  Figures play() {
    const auto start = std::chrono::steady_clock::now();
    Figures figures;
    user_.prepare();
    while (phone_.seconds() < options_.seconds && !figures.faults) {
      bursts_.push_back(phone_.lines().size());
      user_.burst();
      ++figures.bursts;
      const std::size_t done = phone_.lines().size();
      if (const auto fault = oracle_.judge()) {
        ++figures.faults;
        report(*fault, done);
      }
      figures.most_memory = std::max(figures.most_memory, phone_.memory().value_or(0));
    }
    figures.actions = user_.actions();
    figures.simulated = phone_.seconds();
    figures.real = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return figures;
  }

 private:
  /// `done` lines were said before the phone was judged.
  void report(const Fault& fault, std::size_t done) {
    fmt::print("seed {}, burst {}: {}\n", seed_, bursts_.size(), fault.text);
    if (fault.expectations.empty()) fmt::print("{}\n", phone_.errors());
    std::fflush(stdout);
    std::vector<std::string> lines = phone_.lines();
    lines.resize(done);
    tell(shrunk({fault, lines}, bursts_, options_.shrinking), seed_, options_);
  }

  std::uint32_t seed_;
  const Options& options_;
  UsedPhone phone_;
  RandomUser user_;
  Oracle oracle_;
  std::vector<std::size_t> bursts_;
};

int use(const Options& options) {
  Figures all;
  for (std::uint32_t seed = options.first; seed <= options.last; ++seed) {
    const Figures figures = Use(seed, options).play();
    figures.print(fmt::format("seed {}", seed));
    all.add(figures);
  }
  if (options.last > options.first)
    all.print(fmt::format("{} seeds", options.last - options.first + 1));
  return all.faults ? 1 : 0;
}

}  // namespace

int main(int count, char** arguments) {
  Options options;
  CLI::App parser{"Uses phones at random, one for each seed, and tells what they do not survive"};
  parser.add_option("first", options.first, "The first seed")->required();
  parser.add_option("last", options.last, "The last seed")->required();
  parser.add_option("seconds", options.seconds, "Of each phone's clock")->required();
  parser.add_option("--shrinking", options.shrinking, "Real seconds spent on each fault's script");
  parser.add_option("--faults", options.faults, "A folder for the scripts");
  parser.add_flag("--aloud", options.aloud, "Tells the console's lines");
  CLI11_PARSE(parser, count, arguments);
  return use(options);
}
