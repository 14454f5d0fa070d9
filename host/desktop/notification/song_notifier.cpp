#include "host/desktop/notification/song_notifier.h"

#include <string_view>
#include <utility>

#include "host/basics/program_identity.h"
#include "host/basics/xml.h"
#include "host/runtime/log.h"

namespace host::desktop {
namespace {

constexpr const char* kService = "org.freedesktop.Notifications";
constexpr const char* kPath = "/org/freedesktop/Notifications";
constexpr const char* kClick = "default";
constexpr std::uint8_t kLowUrgency = 0;
constexpr int kUsualTime = -1;

std::string body_of(const SongFacts& song) {
  if (song.artist.empty() || song.album.empty()) return song.artist + song.album;
  return song.artist + "\n" + song.album;
}

void append_hints(sd_bus_message* call, const SongFacts& song) {
  sd_bus_message_open_container(call, 'a', "{sv}");
  sd_bus_message_append(call, "{sv}", "desktop-entry", "s", kDesktopEntry);
  sd_bus_message_append(call, "{sv}", "urgency", "y", kLowUrgency);
  sd_bus_message_append(call, "{sv}", "suppress-sound", "b", 1);
  // It is not kept in a list of what the user has missed.
  sd_bus_message_append(call, "{sv}", "transient", "b", 1);
  if (!song.cover_address.empty())
    sd_bus_message_append(call, "{sv}", "image-path", "s", song.cover_address.c_str());
  sd_bus_message_close_container(call);
}

}  // namespace

SongNotifier::SongNotifier(Bus& bus, NowPlaying& now_playing, Choices choices)
    : bus_(bus), now_playing_(now_playing), choices_(std::move(choices)) {
  bus_.add_client(*this);
  now_playing_.add_listener(*this);
}

SongNotifier::~SongNotifier() {
  now_playing_.remove_listener(*this);
  bus_.remove_client(*this);
}

void SongNotifier::bus_did_close() {
  waiting_.reset();
  number_ = 0;
  question_.reset();
  clicks_.reset();
}

void SongNotifier::player_did_change(const PlayerState& state) {
  if (!state.is_playing() || !state.song || state.awaits_cover) return;
  if (std::exchange(last_song_, state.song->id) == state.song->id) return;
  if (!bus_.is_open() || !choices_.is_wanted() || choices_.is_window_in_front()) return;
  waiting_ = state.song;
  if (!question_) ask_abilities();
}

/// Asked each time, since the service may be replaced by another.
void SongNotifier::ask_abilities() {
  question_ = bus_.call({kService, kPath, kService, "GetCapabilities"}, nullptr,
                        [this](const Answer& answer) { take_abilities(answer); });
}

void SongNotifier::take_abilities(const Answer& answer) {
  question_.reset();
  if (answer.is_error() || sd_bus_message_enter_container(answer.message(), 'a', "s") < 0) {
    waiting_.reset();
    spdlog::info("the desktop shows no notifications: {}", answer.problem());
    return;
  }
  Abilities abilities;
  const char* name = nullptr;
  while (sd_bus_message_read(answer.message(), "s", &name) > 0) {
    if (std::string_view(name) == "body-markup") abilities.has_markup = true;
    if (std::string_view(name) == "actions") abilities.has_actions = true;
  }
  notify(abilities);
}

void SongNotifier::notify(const Abilities& abilities) {
  const SongFacts song = *std::exchange(waiting_, std::nullopt);
  const bool has_click = abilities.has_actions && choices_.raise;
  if (has_click) listen();
  const auto fill = [&](sd_bus_message* call) {
    const std::string body = body_of(song);
    sd_bus_message_append(call, "susss", kProgramName, number_, kDesktopEntry, song.title.c_str(),
                          abilities.has_markup ? xml::escaped(body).c_str() : body.c_str());
    if (has_click) {
      sd_bus_message_append(call, "as", 2, kClick, "Show");
    } else {
      sd_bus_message_append(call, "as", 0);
    }
    append_hints(call, song);
    sd_bus_message_append(call, "i", kUsualTime);
  };
  question_ = bus_.call({kService, kPath, kService, "Notify"}, fill,
                        [this](const Answer& answer) { take_number(answer); });
}

void SongNotifier::take_number(const Answer& answer) {
  question_.reset();
  if (answer.is_error() || sd_bus_message_read(answer.message(), "u", &number_) < 0) number_ = 0;
  if (waiting_) ask_abilities();
}

void SongNotifier::listen() {
  if (!clicks_)
    clicks_ = bus_.on_signal(kService, kService, "ActionInvoked",
                             [this](sd_bus_message* signal) { clicked(signal); });
}

void SongNotifier::clicked(sd_bus_message* signal) {
  std::uint32_t number = 0;
  const char* action = "";
  if (sd_bus_message_read(signal, "us", &number, &action) < 0) return;
  if (number == number_ && std::string_view(action) == kClick) choices_.raise();
}

}  // namespace host::desktop
