#include "host/desktop/sleep/sleep_lock.h"

#include <fcntl.h>

#include <string_view>
#include <utility>

#include "host/basics/program_identity.h"
#include "host/runtime/log.h"

namespace host::desktop {
namespace {

constexpr const char* kPortal = "org.freedesktop.portal.Desktop";
constexpr Bus::Method kInhibit = {kPortal, "/org/freedesktop/portal/desktop",
                                  "org.freedesktop.portal.Inhibit", "Inhibit"};
// Of logging out, switching the user, sleeping and being idle.
constexpr std::uint32_t kSleeping = 4;

constexpr Bus::Method kLoginInhibit = {"org.freedesktop.login1", "/org/freedesktop/login1",
                                       "org.freedesktop.login1.Manager", "Inhibit"};
constexpr const char* kWhy = "Music is playing";

}  // namespace

SleepLock::SleepLock(RunLoop& loop, Bus& session, NowPlaying& now_playing)
    : session_(session), system_(loop, Bus::Kind::kSystem), now_playing_(now_playing) {
  session_.add_client(*this);
  now_playing_.add_listener(*this);
}

SleepLock::~SleepLock() {
  now_playing_.remove_listener(*this);
  session_.remove_client(*this);
  give_back();
}

void SleepLock::player_did_change(const PlayerState& state) {
  if (std::exchange(is_wanted_, state.is_playing()) == state.is_playing()) return;
  if (is_wanted_) {
    ask();
  } else {
    give_back();
  }
}

void SleepLock::ask() {
  const bool is_held = !request_.empty() || lock_;
  if (!is_wanted_ || is_held || portal_question_ || login_question_) return;
  if (session_.is_open()) {
    ask_portal();
  } else {
    ask_login_service();
  }
}

void SleepLock::ask_portal() {
  portal_watch_ =
      session_.on_owner_change(kPortal, [this](sd_bus_message* change) { portal_changed(change); });
  const auto fill = [](sd_bus_message* call) {
    sd_bus_message_append(call, "sua{sv}", "", kSleeping, 1, "reason", "s", kWhy);
  };
  portal_question_ =
      session_.call(kInhibit, fill, [this](const Answer& answer) { take_request(answer); });
}

void SleepLock::take_request(const Answer& answer) {
  portal_question_.reset();
  const char* request = nullptr;
  if (answer.is_error() || sd_bus_message_read(answer.message(), "o", &request) < 0) {
    if (is_wanted_) ask_login_service();
    return;
  }
  request_ = request;
  if (!is_wanted_) give_back();
}

/// A portal that is started again knows nothing of what the one before has granted.
void SleepLock::portal_changed(sd_bus_message* change) {
  const char* owner_before = "";
  if (sd_bus_message_read(change, "sss", nullptr, &owner_before, nullptr) < 0) return;
  if (!std::string_view(owner_before).empty()) request_.clear();
  ask();
}

/// The lock is a descriptor that needs no connection to the bus.
void SleepLock::ask_login_service() {
  if (!system_.open()) return complain("there is neither a portal nor a login service");
  const auto fill = [](sd_bus_message* call) {
    sd_bus_message_append(call, "ssss", "sleep", kProgramName, kWhy, "block");
  };
  login_question_ =
      system_.call(kLoginInhibit, fill, [this](const Answer& answer) { take_lock(answer); });
}

void SleepLock::take_lock(const Answer& answer) {
  int lock = -1;
  if (answer.is_error() || sd_bus_message_read(answer.message(), "h", &lock) < 0) {
    complain(answer.problem());
  } else if (is_wanted_) {
    lock_ = Descriptor(fcntl(lock, F_DUPFD_CLOEXEC, 0));
  }
  login_question_.reset();
  system_.close();
}

void SleepLock::give_back() {
  lock_.reset();
  portal_watch_.reset();
  if (request_.empty()) return;
  session_.send({kPortal, request_.c_str(), "org.freedesktop.portal.Request", "Close"}, nullptr);
  request_.clear();
}

void SleepLock::bus_did_close() {
  portal_question_.reset();
  portal_watch_.reset();
  request_.clear();
  ask();
}

void SleepLock::complain(const std::string& problem) {
  if (std::exchange(has_complained_, true)) return;
  spdlog::info("the machine may go to sleep while music plays: {}", problem);
}

}  // namespace host::desktop
