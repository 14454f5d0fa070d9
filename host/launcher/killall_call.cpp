#include "host/launcher/killall_call.h"

#include <signal.h>
#include <string.h>

#include <algorithm>
#include <charconv>
#include <string_view>

namespace host::launcher {
namespace {

/// An option that is followed by a value: its letter and its long name.
struct Valued {
  char letter;
  std::string_view name;
};

constexpr Valued kSignal{'s', "signal"};
constexpr Valued kPattern{'r', "regexp"};
constexpr Valued kValued[] = {
    kSignal,          {'u', "user"}, {'n', "ns"}, {'o', "older-than"}, {'y', "younger-than"},
    {'Z', "context"},
};

bool is_signal_name(std::string_view name) {
  if (name.starts_with("SIG")) name.remove_prefix(3);
  for (int signal = 1; signal < NSIG; ++signal) {
    const char* known = sigabbrev_np(signal);
    if (known && name == known) return true;
  }
  return false;
}

/// Empty for a signal that does not exist.
std::optional<bool> is_signal_zero(std::string_view text) {
  int number = -1;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec == std::errc() && read.ptr == text.data() + text.size() && number < NSIG)
    return number == 0;
  if (is_signal_name(text)) return false;
  return std::nullopt;
}

class Reader {
 public:
  Reader(const std::vector<std::string>& arguments, std::string& problem)
      : arguments_(arguments), problem_(problem) {}

  std::optional<KillallCall> read() {
    bool only_names = false;
    while (next_ < arguments_.size()) {
      const std::string_view argument = arguments_[next_++];
      if (only_names || !argument.starts_with('-') || argument == "-") {
        call_.names.emplace_back(argument);
      } else if (argument == "--") {
        only_names = true;
      } else if (!take_option(argument.substr(1))) {
        return std::nullopt;
      }
    }
    if (!call_.names.empty()) return call_;
    fail("name the processes of this phone");
    return std::nullopt;
  }

 private:
  bool fail(const std::string& problem) {
    problem_ = problem;
    return false;
  }

  bool take_option(std::string_view option) {
    if (option.starts_with('-')) return take_long(option.substr(1));
    if (is_signal_zero(option)) return take_signal(option);
    while (!option.empty()) {
      const char letter = option.front();
      option.remove_prefix(1);
      const auto* valued =
          std::find_if(std::begin(kValued), std::end(kValued),
                       [letter](const Valued& one) { return one.letter == letter; });
      if (valued != std::end(kValued)) return take_value(*valued, option, !option.empty());
      if (letter == kPattern.letter) return refuse_pattern();
      if (letter == 'q') call_.is_quiet = true;
    }
    return true;
  }

  bool take_long(std::string_view option) {
    const auto equals = std::min(option.find('='), option.size());
    const std::string_view name = option.substr(0, equals);
    const auto* valued = std::find_if(std::begin(kValued), std::end(kValued),
                                      [name](const Valued& one) { return one.name == name; });
    if (valued != std::end(kValued))
      return take_value(*valued, option.substr(std::min(equals + 1, option.size())),
                        equals < option.size());
    if (name == kPattern.name) return refuse_pattern();
    if (name == "quiet") call_.is_quiet = true;
    return true;
  }

  /// The value is in the same argument or is the next one.
  bool take_value(const Valued& option, std::string_view value, bool is_here) {
    if (!is_here) {
      if (next_ == arguments_.size())
        return fail("--" + std::string(option.name) + " is followed by nothing");
      value = arguments_[next_++];
    }
    return option.letter != kSignal.letter || take_signal(value);
  }

  bool take_signal(std::string_view text) {
    const auto zero = is_signal_zero(text);
    if (!zero) return fail(std::string(text) + " is not a signal");
    call_.only_looks = *zero;
    return true;
  }

  bool refuse_pattern() { return fail("processes are named, not matched by a pattern"); }

  const std::vector<std::string>& arguments_;
  std::string& problem_;
  std::size_t next_ = 0;
  KillallCall call_;
};

}  // namespace

std::optional<KillallCall> read_killall_call(const std::vector<std::string>& arguments,
                                             std::string& problem) {
  return Reader(arguments, problem).read();
}

}  // namespace host::launcher
