#include "host/desktop/player/players_interface.h"

#include <fmt/format.h>
#include <unistd.h>

#include <vector>

#include "host/desktop/player/player_tables.h"
#include "host/runtime/log.h"

namespace host::desktop {
namespace {

// Answers to a request for a name.
constexpr std::uint32_t kIsOwner = 1;
constexpr std::uint32_t kIsTaken = 3;

/// The names of the properties in which the states differ.
std::vector<const char*> changed_properties(const PlayerState& before, const PlayerState& now) {
  std::vector<const char*> names;
  const auto compare = [&](const char* name, bool is_same) {
    if (!is_same) names.push_back(name);
  };
  compare("PlaybackStatus", before.playback == now.playback);
  compare("LoopStatus", before.repeat == now.repeat);
  compare("Shuffle", before.shuffles == now.shuffles);
  compare("Metadata", before.song == now.song);
  compare("Volume", before.volume == now.volume);
  compare("CanGoNext", before.can_go_next == now.can_go_next);
  compare("CanGoPrevious", before.can_go_previous == now.can_go_previous);
  compare("CanPlay", before.can_play == now.can_play);
  compare("CanPause", before.can_pause() == now.can_pause());
  compare("CanSeek", before.can_seek() == now.can_seek());
  return names;
}

}  // namespace

PlayersInterface::PlayersInterface(Bus& bus, NowPlaying& now_playing, Window window)
    : bus_(bus), now_playing_(now_playing), commands_(now_playing), window_(std::move(window)) {
  now_playing_.add_listener(*this);
  bus_.add_client(*this);
}

PlayersInterface::~PlayersInterface() {
  if (!name_.empty()) bus_.release_name(name_);
  bus_.remove_client(*this);
  now_playing_.remove_listener(*this);
}

/// The objects come before the name: who sees the name asks them at once.
void PlayersInterface::bus_did_open() {
  root_ = bus_.add_object(kPath, kRoot, PlayerTables::root, this);
  player_ = bus_.add_object(kPath, kPlayer, PlayerTables::player, this);
  ask_for_name(kName);
}

void PlayersInterface::bus_did_close() {
  root_.reset();
  player_.reset();
  name_request_.reset();
  name_.clear();
}

void PlayersInterface::ask_for_name(const std::string& name) {
  name_request_ =
      bus_.request_name(name, [this, name](const Answer& answer) { take_name(name, answer); });
}

void PlayersInterface::take_name(const std::string& name, const Answer& answer) {
  std::uint32_t result = 0;
  const bool is_read =
      !answer.is_error() && sd_bus_message_read(answer.message(), "u", &result) > 0;
  if (is_read && result == kIsOwner) {
    name_ = name;
    return;
  }
  if (is_read && result == kIsTaken && name == kName)
    return ask_for_name(fmt::format("{}.instance{}", kName, getpid()));
  spdlog::warn("other programs cannot control the music: the name {} is not to be had: {}", name,
               is_read ? "another player has it" : answer.problem());
}

void PlayersInterface::player_did_change(const PlayerState& state) {
  const auto names = changed_properties(std::exchange(told_, state), state);
  bus_.emit_changed(kPath, kPlayer, names);
}

void PlayersInterface::player_did_jump(std::int64_t position) {
  bus_.emit(kPath, kPlayer, "Seeked",
            [position](sd_bus_message* signal) { sd_bus_message_append(signal, "x", position); });
}

}  // namespace host::desktop
