#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <chrono>
#include <fstream>
#include <optional>
#include <set>

#include "tests/random_use/hardships.h"
#include "tests/random_use/oracle.h"
#include "tests/random_use/random_user.h"
#include "tests/random_use/shrinking.h"

// Uses phones at random and checks after every burst whether the phone is still usable. On a fault
// it prints the shortest script that reproduces it, and exits with 1 at the end.

namespace {

using namespace random_use;

struct Options {
  std::uint32_t first = 1;
  std::uint32_t last = 1;
  double seconds = 0;
  double shrinking = 240;
  std::string faults;
  bool drawn = false;
  bool hardships = false;
  bool aloud = false;
};

double now() {
  using std::chrono::steady_clock;
  return std::chrono::duration<double>(steady_clock::now().time_since_epoch()).count();
}

struct Figures {
  int bursts = 0;
  int actions = 0;
  int faults = 0;
  int hardships = 0;
  double simulated = 0;
  double real = 0;
  double most_memory = 0;

  void add(const Figures& other) {
    bursts += other.bursts;
    actions += other.actions;
    faults += other.faults;
    hardships += other.hardships;
    simulated += other.simulated;
    real += other.real;
    most_memory = std::max(most_memory, other.most_memory);
  }
  void print(const std::string& name) const {
    fmt::print(
        "{}: {} bursts, {} actions, {} hardships, {:.0f} simulated s, {:.0f} real s, {:.0f} MB, {} "
        "faults\n",
        name, bursts, actions, hardships, simulated, real, most_memory, faults);
    std::fflush(stdout);
  }
};

constexpr const char* kGrowth = "growth";

/// Reports every fault once, with the shortest script that reproduces it.
class Reports {
 public:
  explicit Reports(const Options& options) : options_(options) {}

  void add(std::uint32_t seed, const Story& story, const std::vector<std::size_t>& bursts,
           bool may_shrink) {
    fmt::print("seed {}, burst {}: {}\n", seed, bursts.size(), story.fault.text);
    std::fflush(stdout);
    if (!kinds_.insert(story.fault.kind).second) return;
    // Hours of use cannot be reduced to a few lines.
    const bool can_shrink = may_shrink && story.fault.kind != kGrowth;
    tell(seed, can_shrink ? shrunk(story, bursts, {options_.drawn, options_.shrinking}) : story);
  }

 private:
  void tell(std::uint32_t seed, const Story& story) const {
    std::string text = fmt::format("# Seed {}: {}\n# Songs: {}\n", seed, story.fault.text, kSongs);
    for (const std::string& line : story.lines)
      text += line + "\n";
    fmt::print("{}", text);
    std::fflush(stdout);
    if (options_.faults.empty()) return;
    std::ofstream(fmt::format("{}/seed-{}-{}.scn", options_.faults, seed, kinds_.size())) << text;
  }

  const Options& options_;
  std::set<std::string> kinds_;
};

#if defined(__SANITIZE_ADDRESS__)
// In MB. Freed memory is kept for a while, to detect its use.
constexpr double kMostGrowth = 400;
#else
constexpr double kMostGrowth = 40;
#endif

/// The home screen's process must stay about as large as it is once everything has been used.
class Memory {
 public:
  /// In MB, after each burst; nothing while the process is restarting.
  void look(std::optional<double> memory) {
    if (!memory) return;
    most_ = std::max(most_, *memory);
    if (looks_++ < kFirstBursts) warm_ = most_;
  }
  double most() const { return most_; }
  std::optional<Fault> fault() const {
    if (most_ <= warm_ + kMostGrowth) return std::nullopt;
    return Fault{
        kGrowth, fmt::format("the memory grew from {:.0f} to {:.0f} MB", warm_, most_), {}};
  }

 private:
  static constexpr int kFirstBursts = 30;

  double warm_ = 0;
  double most_ = 0;
  int looks_ = 0;
};

/// The use of one phone until the seed's time is over, or until its first fault.
class Use {
 public:
  Use(std::uint32_t seed, std::uint32_t phones_before, const Options& options)
      : seed_(seed),
        phone_(options.drawn),
        user_(phone_, seed + kSeeds * phones_before),
        oracle_(phone_),
        can_shrink_(!options.hardships) {
    if (options.hardships) hardships_.emplace(phone_, seed);
    if (options.aloud) phone_.print_lines();
  }

  Figures play(double seconds, Reports& reports) {
    const double start = now();
    Figures figures;
    user_.prepare();
    while (phone_.seconds() < seconds && !figures.faults) {
      bursts_.push_back(phone_.lines().size());
      if (hardships_) hardships_->strike();
      user_.burst();
      if (hardships_) hardships_->relieve();
      ++figures.bursts;
      const std::size_t done = phone_.lines().size();
      auto fault = oracle_.judge();
      memory_.look(phone_.memory());
      if (!fault) fault = memory_.fault();
      if (fault) {
        ++figures.faults;
        std::vector<std::string> lines = phone_.lines();
        lines.resize(done);
        reports.add(seed_, {*fault, lines}, bursts_, can_shrink_);
      }
    }
    figures.actions = user_.actions();
    figures.simulated = phone_.seconds();
    figures.real = now() - start;
    figures.most_memory = memory_.most();
    if (hardships_) figures.hardships = hardships_->count();
    return figures;
  }

 private:
  // A phone that replaces a faulty one is used with a seed that no other phone has.
  static constexpr std::uint32_t kSeeds = 1'000'000;

  std::uint32_t seed_;
  UsedPhone phone_;
  RandomUser user_;
  Oracle oracle_;
  // What befell the phone is not in the script.
  bool can_shrink_;
  std::optional<Hardships> hardships_;
  Memory memory_;
  std::vector<std::size_t> bursts_;
};

Figures play(std::uint32_t seed, const Options& options, Reports& reports) {
  Figures figures;
  for (std::uint32_t phones = 0; figures.simulated < options.seconds; ++phones)
    figures.add(Use(seed, phones, options).play(options.seconds - figures.simulated, reports));
  return figures;
}

int use(const Options& options) {
  Reports reports(options);
  Figures all;
  for (std::uint32_t seed = options.first; seed <= options.last; ++seed) {
    const Figures figures = play(seed, options, reports);
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
  CLI::App parser{"Uses phones at random and reports their faults"};
  parser.add_option("first", options.first, "The first seed")->required();
  parser.add_option("last", options.last, "The last seed")->required();
  parser.add_option("seconds", options.seconds, "Simulated seconds for each seed")->required();
  parser.add_option("--shrinking", options.shrinking, "Real seconds to shorten each script");
  parser.add_option("--faults", options.faults, "A folder for the scripts");
  parser.add_flag("--drawn", options.drawn, "Draws every frame, which takes long");
  parser.add_flag("--hardships", options.hardships,
                  "Hides files, fills the disk, stops and crashes processes in the middle of it");
  parser.add_flag("--aloud", options.aloud, "Prints the console's lines");
  CLI11_PARSE(parser, count, arguments);
  return use(options);
}
