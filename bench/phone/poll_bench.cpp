#include "bench/phone/bench_phone.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"
#include "platform/SpringBoard/SpringBoard.h"

// Measures a poll of unchanged preferences, which happens ten times a second for as long as the
// phone runs. The reference is the time that it may take.

namespace {

constexpr int kPolls = 1000;
constexpr int kRounds = 9;
constexpr double kAllowed = 20e-6;

std::string property_list(const char* entries) {
  return std::string(R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>)") +
         entries + "</dict>\n</plist>\n";
}

constexpr const char* kPreferences = R"(
	<key>checked</key><true/>
	<key>cover</key><true/>
	<key>enabled</key><true/>
	<key>blur</key><string>3900</string>
	<key>play</key><string>volume</string>
	<key>tint</key><string>white</string>
)";
constexpr const char* kCleared = "<key>checked</key><false/>";

NSString path() {
  return "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist"_ns;
}

template <class Work>
double seconds_of_one(Work work) {
  std::vector<double> seconds;
  for (int round = 0; round <= kRounds; ++round) {
    const objc::AutoreleasePool pool;
    const double start = bench::core_seconds();
    for (int i = 0; i < kPolls; ++i)
      work();
    const double all = bench::core_seconds() - start;
    if (round > 0) seconds.push_back(all / kPolls);
  }
  return bench::summary(seconds).median;
}

}  // namespace

int main() {
  bench::BenchPhone phone(bench::Pace::kStepped, property_list(kPreferences));
  const auto springboard = objc::send<SpringBoard>(
      objc::Object(reinterpret_cast<objc::Id>(SpringBoard::cls())), "sharedApplication"_sel);
  const auto loaded = [] { return NSDictionary::dictionaryWithContentsOfFile(path()); };
  bench::require(loaded().count() == 6, "the preferences are not read");
  const double poll = seconds_of_one([&] { objc::send<>(springboard, "changePreferences"_sel); });
  const double read = seconds_of_one(loaded);
  const double watch = seconds_of_one([&] { objc::send<>(springboard, "Loping1"_sel); });
  // Check that polling really happens: the next poll must set a cleared mark again.
  phone.write_preferences(property_list(kCleared));
  bench::require(loaded().count() == 1, "a change is not seen");
  objc::send<>(springboard, "changePreferences"_sel);
  bench::require(objc::cast<NSNumber>(loaded().objectForKey("checked"_ns)).boolValue(),
                 "the mark is not set");
  bench::print_ratio("a preferences poll / 20 us", poll, kAllowed, 1);
  bench::print_ratio("  of it reading the file / 20 us", read, kAllowed, 1);
  bench::print_ratio("a look at the icon / 20 us", watch, kAllowed, 1);
}
