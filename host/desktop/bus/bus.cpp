#include "host/desktop/bus/bus.h"

#include <fmt/format.h>
#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <system_error>
#include <utility>

#include "host/runtime/log.h"

namespace host::desktop {
namespace {

// In seconds.
constexpr double kFirstPause = 1;
constexpr double kLongestPause = 60;
constexpr double kLeastWait = 0.001;
// The rest of a flood of messages waits for the next turn, which has the screen's frame.
constexpr int kMostMessagesATurn = 64;

constexpr const char* kDaemon = "org.freedesktop.DBus";

std::string reason(int error) {
  return std::generic_category().message(-error);
}

/// The library's timeouts are times of the machine's clock, whatever clock the loop has.
double seconds_until(std::uint64_t microseconds) {
  const double rest = static_cast<double>(microseconds) * 1e-6 - RealClock().now();
  return std::max(rest, kLeastWait);
}

auto with_answer(Bus::OnAnswer work) {
  return [work = std::move(work)](sd_bus_message* answer) { work(Answer(answer)); };
}

}  // namespace

std::string Answer::problem() const {
  const sd_bus_error* error = sd_bus_message_get_error(message_);
  if (!error || !error->name) return "no reason given";
  return fmt::format("{}: {}", error->name, error->message ? error->message : "");
}

bool Bus::open() {
  if (is_open()) return true;
  const int result = connect();
  if (result >= 0) return true;
  // A machine without a bus has neither an address nor a socket.
  if (result != -ENOMEDIUM && result != -ENOENT)
    spdlog::warn("the {} bus cannot be reached: {}; the phone does without it", name(),
                 reason(result));
  return false;
}

int Bus::connect() {
  sd_bus* made = nullptr;
  const int result = kind_ == Kind::kSession ? sd_bus_open_user(&made) : sd_bus_open_system(&made);
  if (result < 0) return result;
  connection_.reset(made);
  begin();
  return result;
}

void Bus::begin() {
  watch_ = loop_.watch(sd_bus_get_fd(connection_.get()), [this] { process(); });
  for (BusClient* client : std::vector(clients_))
    client->bus_did_open();
  arm();
}

void Bus::add_client(BusClient& client) {
  clients_.push_back(&client);
  if (!is_open()) return;
  client.bus_did_open();
  arm();
}

void Bus::close() {
  if (retry_) loop_.remove_timer(std::exchange(retry_, 0));
  pause_ = 0;
  release_connection();
}

void Bus::release_connection() {
  if (!is_open()) return;
  loop_.unwatch(watch_);
  if (timer_) loop_.remove_timer(std::exchange(timer_, 0));
  const BusRef ended = std::move(connection_);
  for (BusClient* client : std::vector(clients_))
    client->bus_did_close();
}

void Bus::process() {
  for (int messages = 0; messages < kMostMessagesATurn; ++messages) {
    const int result = sd_bus_process(connection_.get(), nullptr);
    // A message may have closed the connection.
    if (!is_open()) return;
    if (result < 0) return lose();
    if (result == 0) break;
  }
  if (pause_ > 0 && sd_bus_is_ready(connection_.get()) > 0) {
    pause_ = 0;
    spdlog::info("the {} bus is back", name());
  }
  arm();
}

/// Makes the loop wait for what the connection waits for. Needed after everything that may send.
void Bus::arm() {
  if (!is_open()) return;
  const int events = sd_bus_get_events(connection_.get());
  loop_.wait_to_write(watch_, events > 0 && (events & POLLOUT) != 0);
  if (timer_) loop_.remove_timer(std::exchange(timer_, 0));
  std::uint64_t due = std::numeric_limits<std::uint64_t>::max();
  const int result = sd_bus_get_timeout(connection_.get(), &due);
  if (result <= 0 || due == std::numeric_limits<std::uint64_t>::max()) return;
  const double wait = due == 0 ? 0 : seconds_until(due);
  timer_ = loop_.add_timer(loop_.now() + wait, 0, [this] {
    timer_ = 0;
    process();
  });
}

void Bus::lose() {
  if (pause_ == 0 && kind_ == Kind::kSession)
    spdlog::info(
        "the session bus has ended: other programs cannot control the music until it is back; it "
        "is looked for after 1, 2, 4 seconds and so on, then once a minute");
  release_connection();
  if (kind_ == Kind::kSession) try_again();
}

void Bus::try_again() {
  pause_ = pause_ == 0 ? kFirstPause : std::min(pause_ * 2, kLongestPause);
  retry_ = loop_.add_timer(loop_.now() + pause_, 0, [this] {
    retry_ = 0;
    if (connect() < 0) try_again();
  });
}

int Bus::deliver(sd_bus_message* message, void* work, sd_bus_error*) {
  (*static_cast<OnMessage*>(work))(message);
  return 0;
}

/// `start` gets the place of the slot and the data of `deliver`. The slot owns `work`.
template <class Start>
SlotRef Bus::deliver_to(OnMessage work, const Start& start) {
  if (!is_open()) return nullptr;
  auto owned = std::make_unique<OnMessage>(std::move(work));
  sd_bus_slot* slot = nullptr;
  const int result = start(&slot, owned.get());
  arm();
  if (result < 0) {
    spdlog::warn("a message to the {} bus cannot be sent: {}", name(), reason(result));
    return nullptr;
  }
  static_cast<void>(owned.release());
  sd_bus_slot_set_destroy_callback(slot, [](void* kept) { delete static_cast<OnMessage*>(kept); });
  return SlotRef(slot);
}

MessageRef Bus::message_for(const Method& method, const Fill& fill) {
  sd_bus_message* made = nullptr;
  if (sd_bus_message_new_method_call(connection_.get(), &made, method.service, method.path,
                                     method.interface, method.name) >= 0 &&
      fill)
    fill(made);
  return MessageRef(made);
}

SlotRef Bus::call(const Method& method, const Fill& fill, OnAnswer on_answer) {
  const auto start = [&](sd_bus_slot** slot, void* work) {
    const MessageRef message = message_for(method, fill);
    return sd_bus_call_async(connection_.get(), slot, message.get(), &deliver, work, 0);
  };
  return deliver_to(with_answer(std::move(on_answer)), start);
}

void Bus::send(const Method& method, const Fill& fill) {
  if (!is_open()) return;
  const MessageRef message = message_for(method, fill);
  sd_bus_message_set_expect_reply(message.get(), 0);
  sd_bus_send(connection_.get(), message.get(), nullptr);
  arm();
}

SlotRef Bus::request_name(const std::string& wanted, OnAnswer on_answer) {
  const auto start = [&](sd_bus_slot** slot, void* work) {
    return sd_bus_request_name_async(connection_.get(), slot, wanted.c_str(), 0, &deliver, work);
  };
  return deliver_to(with_answer(std::move(on_answer)), start);
}

void Bus::release_name(const std::string& held) {
  if (!is_open()) return;
  sd_bus_release_name_async(connection_.get(), nullptr, held.c_str(), nullptr, nullptr);
  arm();
}

SlotRef Bus::on_signal(const char* service, const char* interface, const char* signal,
                       OnMessage on_message) {
  const auto start = [&](sd_bus_slot** slot, void* work) {
    return sd_bus_match_signal_async(connection_.get(), slot, service, nullptr, interface, signal,
                                     &deliver, nullptr, work);
  };
  return deliver_to(std::move(on_message), start);
}

SlotRef Bus::on_owner_change(const char* service, OnMessage on_message) {
  const auto start = [&](sd_bus_slot** slot, void* work) {
    const std::string rule = fmt::format(
        "type='signal',sender='{0}',interface='{0}',member='NameOwnerChanged',arg0='{1}'", kDaemon,
        service);
    return sd_bus_add_match_async(connection_.get(), slot, rule.c_str(), &deliver, nullptr, work);
  };
  return deliver_to(std::move(on_message), start);
}

SlotRef Bus::add_object(const char* path, const char* interface, const sd_bus_vtable* table,
                        void* object) {
  if (!is_open()) return nullptr;
  sd_bus_slot* slot = nullptr;
  const int result =
      sd_bus_add_object_vtable(connection_.get(), &slot, path, interface, table, object);
  if (result < 0) spdlog::warn("{} cannot be put on the {} bus: {}", path, name(), reason(result));
  return SlotRef(slot);
}

void Bus::emit(const char* path, const char* interface, const char* signal, const Fill& fill) {
  if (!is_open()) return;
  sd_bus_message* made = nullptr;
  if (sd_bus_message_new_signal(connection_.get(), &made, path, interface, signal) < 0) return;
  const MessageRef message(made);
  if (fill) fill(made);
  sd_bus_send(connection_.get(), made, nullptr);
  arm();
}

void Bus::emit_changed(const char* path, const char* interface,
                       std::span<const char* const> names) {
  if (!is_open() || names.empty()) return;
  std::vector<char*> list;
  // The library copies the names; only its signature is not const.
  for (const char* changed : names)
    list.push_back(const_cast<char*>(changed));
  list.push_back(nullptr);
  sd_bus_emit_properties_changed_strv(connection_.get(), path, interface, list.data());
  arm();
}

}  // namespace host::desktop
