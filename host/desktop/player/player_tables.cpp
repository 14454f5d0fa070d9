#include "host/desktop/player/player_tables.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "host/basics/program_identity.h"
#include "host/desktop/bus/bus_text.h"
#include "host/desktop/player/metadata.h"
#include "host/desktop/player/players_interface.h"
#include "host/media/song_name.h"

namespace host::desktop {
namespace {

constexpr const char* kFileScheme = "file";
constexpr double kRate = 1;

const char* name_of(media::PlaybackState state) {
  switch (state) {
    case media::PlaybackState::playing:
      return "Playing";
    case media::PlaybackState::paused:
      return "Paused";
    case media::PlaybackState::stopped:
      break;
  }
  return "Stopped";
}

// In the order of the enumeration.
constexpr std::array kLoopNames{"None", "Track", "Playlist"};

int append(sd_bus_message* reply, bool value) {
  return sd_bus_message_append(reply, "b", static_cast<int>(value));
}
int append(sd_bus_message* reply, double value) {
  return sd_bus_message_append(reply, "d", value);
}
int append(sd_bus_message* reply, std::int64_t value) {
  return sd_bus_message_append(reply, "x", value);
}
int append(sd_bus_message* reply, const char* value) {
  return sd_bus_message_append(reply, "s", value);
}

}  // namespace

struct PlayerTables::Handlers {
  using Self = PlayersInterface;
  using Commands = PlayerCommands;

  static Self& of(void* data) { return *static_cast<Self*>(data); }
  static const PlayerState& state(void* data) { return of(data).told_; }

  /// What the command has changed is told before it is answered.
  static int done(Self& self, sd_bus_message* call) {
    self.now_playing_.tell();
    return sd_bus_reply_method_return(call, nullptr);
  }

  template <auto Command>
  static int command(sd_bus_message* call, void* data, sd_bus_error*) {
    (of(data).commands_.*Command)();
    return done(of(data), call);
  }

  template <auto Value>
  static int get(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply, void* data,
                 sd_bus_error*) {
    return append(reply, Value(data));
  }

  static int raise(sd_bus_message* call, void* data, sd_bus_error*) {
    if (of(data).window_.raise) of(data).window_.raise();
    return sd_bus_reply_method_return(call, nullptr);
  }

  static int quit(sd_bus_message* call, void* data, sd_bus_error*) {
    of(data).window_.quit();
    return sd_bus_reply_method_return(call, nullptr);
  }

  static int seek(sd_bus_message* call, void* data, sd_bus_error*) {
    std::int64_t offset = 0;
    const int result = sd_bus_message_read(call, "x", &offset);
    if (result < 0) return result;
    of(data).commands_.move_by(offset);
    return done(of(data), call);
  }

  /// A position for another song came too late.
  static int set_position(sd_bus_message* call, void* data, sd_bus_error*) {
    const char* track = nullptr;
    std::int64_t position = 0;
    const int result = sd_bus_message_read(call, "ox", &track, &position);
    if (result < 0) return result;
    const auto& song = state(data).song;
    if (song && track_path(*song) == track) of(data).commands_.move_to(position);
    return done(of(data), call);
  }

  static int open(sd_bus_message* call, void* data, sd_bus_error* error) {
    const char* address = nullptr;
    const int result = sd_bus_message_read(call, "s", &address);
    if (result < 0) return result;
    const std::string refusal = of(data).commands_.open(address);
    if (refusal.empty()) return done(of(data), call);
    return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, bus_text(refusal).c_str());
  }

  template <auto Command, class Value, char Type>
  static int set(sd_bus*, const char*, const char*, const char*, sd_bus_message* message,
                 void* data, sd_bus_error*) {
    Value value{};
    const int result = sd_bus_message_read_basic(message, Type, &value);
    if (result < 0) return result;
    (of(data).commands_.*Command)(value);
    of(data).now_playing_.tell();
    return 1;
  }

  static constexpr auto set_rate = set<&PlayerCommands::set_rate, double, 'd'>;
  static constexpr auto set_volume = set<&PlayerCommands::set_volume, double, 'd'>;
  static constexpr auto set_shuffles = set<&PlayerCommands::set_shuffles, int, 'b'>;

  static int set_loop(sd_bus*, const char*, const char*, const char*, sd_bus_message* value,
                      void* data, sd_bus_error* error) {
    const char* name = nullptr;
    const int result = sd_bus_message_read(value, "s", &name);
    if (result < 0) return result;
    const auto found = std::ranges::find(kLoopNames, std::string_view(name));
    if (found == kLoopNames.end())
      return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, "no such LoopStatus");
    of(data).commands_.set_repeat(static_cast<media::Repeat>(found - kLoopNames.begin()));
    of(data).now_playing_.tell();
    return 1;
  }

  static int get_metadata(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply,
                          void* data, sd_bus_error*) {
    return append_metadata(reply, state(data).song);
  }

  static int get_schemes(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply,
                         void*, sd_bus_error*) {
    return sd_bus_message_append(reply, "as", 1, kFileScheme);
  }

  static int get_mime_types(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply,
                            void*, sd_bus_error*) {
    int result = sd_bus_message_open_container(reply, 'a', "s");
    for (const char* type : media::audio_types) {
      if (result >= 0) result = append(reply, type);
    }
    return result < 0 ? result : sd_bus_message_close_container(reply);
  }

  static bool yes(void*) { return true; }
  static bool no(void*) { return false; }
  static double rate(void*) { return kRate; }
  static const char* identity(void*) { return kProgramName; }
  static const char* entry(void*) { return kDesktopEntry; }
  static bool can_raise(void* data) { return of(data).window_.raise != nullptr; }
  static const char* status(void* data) { return name_of(state(data).playback); }
  static const char* loop(void* data) {
    return kLoopNames[static_cast<std::size_t>(state(data).repeat)];
  }
  static bool shuffles(void* data) { return state(data).shuffles; }
  static double volume(void* data) { return state(data).volume; }
  static std::int64_t position(void* data) { return of(data).now_playing_.position(); }
  static bool can_go_next(void* data) { return state(data).can_go_next; }
  static bool can_go_previous(void* data) { return state(data).can_go_previous; }
  static bool can_play(void* data) { return state(data).can_play; }
  static bool can_pause(void* data) { return state(data).can_pause(); }
  static bool can_seek(void* data) { return state(data).can_seek(); }
};

// The bus belongs to the user, so nothing on it needs a privilege. The position changes all the
// time: only jumps are told.
namespace {

constexpr auto kFree = SD_BUS_VTABLE_UNPRIVILEGED;
constexpr auto kConstant = SD_BUS_VTABLE_PROPERTY_CONST;
constexpr auto kTold = SD_BUS_VTABLE_PROPERTY_EMITS_CHANGE;

}  // namespace

const sd_bus_vtable PlayerTables::root[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Raise", "", "", &Handlers::raise, kFree),
    SD_BUS_METHOD("Quit", "", "", &Handlers::quit, kFree),
    SD_BUS_PROPERTY("CanQuit", "b", &Handlers::get<&Handlers::yes>, 0, kConstant),
    SD_BUS_PROPERTY("CanRaise", "b", &Handlers::get<&Handlers::can_raise>, 0, kConstant),
    SD_BUS_PROPERTY("HasTrackList", "b", &Handlers::get<&Handlers::no>, 0, kConstant),
    SD_BUS_PROPERTY("Identity", "s", &Handlers::get<&Handlers::identity>, 0, kConstant),
    SD_BUS_PROPERTY("DesktopEntry", "s", &Handlers::get<&Handlers::entry>, 0, kConstant),
    SD_BUS_PROPERTY("SupportedUriSchemes", "as", &Handlers::get_schemes, 0, kConstant),
    SD_BUS_PROPERTY("SupportedMimeTypes", "as", &Handlers::get_mime_types, 0, kConstant),
    SD_BUS_VTABLE_END,
};

const sd_bus_vtable PlayerTables::player[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Next", "", "", &Handlers::command<&PlayerCommands::next>, kFree),
    SD_BUS_METHOD("Previous", "", "", &Handlers::command<&PlayerCommands::previous>, kFree),
    SD_BUS_METHOD("Pause", "", "", &Handlers::command<&PlayerCommands::pause>, kFree),
    SD_BUS_METHOD("PlayPause", "", "", &Handlers::command<&PlayerCommands::toggle>, kFree),
    SD_BUS_METHOD("Stop", "", "", &Handlers::command<&PlayerCommands::stop>, kFree),
    SD_BUS_METHOD("Play", "", "", &Handlers::command<&PlayerCommands::play>, kFree),
    SD_BUS_METHOD_WITH_ARGS("Seek", SD_BUS_ARGS("x", Offset), SD_BUS_NO_RESULT, &Handlers::seek,
                            kFree),
    SD_BUS_METHOD_WITH_ARGS("SetPosition", SD_BUS_ARGS("o", TrackId, "x", Position),
                            SD_BUS_NO_RESULT, &Handlers::set_position, kFree),
    SD_BUS_METHOD_WITH_ARGS("OpenUri", SD_BUS_ARGS("s", Uri), SD_BUS_NO_RESULT, &Handlers::open,
                            kFree),
    SD_BUS_SIGNAL_WITH_ARGS("Seeked", SD_BUS_ARGS("x", Position), 0),
    SD_BUS_PROPERTY("PlaybackStatus", "s", &Handlers::get<&Handlers::status>, 0, kTold),
    SD_BUS_WRITABLE_PROPERTY("LoopStatus", "s", &Handlers::get<&Handlers::loop>,
                             &Handlers::set_loop, 0, kTold | kFree),
    SD_BUS_WRITABLE_PROPERTY("Shuffle", "b", &Handlers::get<&Handlers::shuffles>,
                             Handlers::set_shuffles, 0, kTold | kFree),
    SD_BUS_WRITABLE_PROPERTY("Rate", "d", &Handlers::get<&Handlers::rate>, Handlers::set_rate, 0,
                             kTold | kFree),
    SD_BUS_PROPERTY("MinimumRate", "d", &Handlers::get<&Handlers::rate>, 0, kTold),
    SD_BUS_PROPERTY("MaximumRate", "d", &Handlers::get<&Handlers::rate>, 0, kTold),
    SD_BUS_PROPERTY("Metadata", "a{sv}", &Handlers::get_metadata, 0, kTold),
    SD_BUS_WRITABLE_PROPERTY("Volume", "d", &Handlers::get<&Handlers::volume>, Handlers::set_volume,
                             0, kTold | kFree),
    SD_BUS_PROPERTY("Position", "x", &Handlers::get<&Handlers::position>, 0, 0),
    SD_BUS_PROPERTY("CanGoNext", "b", &Handlers::get<&Handlers::can_go_next>, 0, kTold),
    SD_BUS_PROPERTY("CanGoPrevious", "b", &Handlers::get<&Handlers::can_go_previous>, 0, kTold),
    SD_BUS_PROPERTY("CanPlay", "b", &Handlers::get<&Handlers::can_play>, 0, kTold),
    SD_BUS_PROPERTY("CanPause", "b", &Handlers::get<&Handlers::can_pause>, 0, kTold),
    SD_BUS_PROPERTY("CanSeek", "b", &Handlers::get<&Handlers::can_seek>, 0, kTold),
    SD_BUS_PROPERTY("CanControl", "b", &Handlers::get<&Handlers::yes>, 0, kConstant),
    SD_BUS_VTABLE_END,
};

}  // namespace host::desktop
