#include "host/desktop/player/metadata.h"

#include <fmt/format.h>

namespace host::desktop {
namespace {

/// Appends the entries of one dictionary and keeps the first error.
class Entries {
 public:
  explicit Entries(sd_bus_message* message)
      : message_(message), result_(sd_bus_message_open_container(message, 'a', "{sv}")) {}

  void text(const char* key, const std::string& value) {
    if (!value.empty()) note(append(key, "s", value.c_str()));
  }
  void texts(const char* key, const std::string& only) {
    if (!only.empty()) note(append(key, "as", 1, only.c_str()));
  }
  void path(const char* key, const std::string& value) { note(append(key, "o", value.c_str())); }
  void number(const char* key, int value) {
    if (value > 0) note(append(key, "i", value));
  }
  void duration(const char* key, std::int64_t microseconds) {
    if (microseconds > 0) note(append(key, "x", microseconds));
  }
  int finish() {
    note(result_ < 0 ? result_ : sd_bus_message_close_container(message_));
    return result_;
  }

 private:
  template <class... Values>
  int append(const char* key, const char* types, Values... values) {
    return result_ < 0 ? result_ : sd_bus_message_append(message_, "{sv}", key, types, values...);
  }
  void note(int result) {
    if (result_ >= 0) result_ = result;
  }

  sd_bus_message* message_;
  int result_;
};

}  // namespace

std::string track_path(const SongFacts& song) {
  return fmt::format("/sonavue/song/{}", song.id);
}

int append_metadata(sd_bus_message* message, const std::optional<SongFacts>& song) {
  Entries entries(message);
  if (!song) return entries.finish();
  entries.path("mpris:trackid", track_path(*song));
  entries.duration("mpris:length", song->microseconds);
  entries.text("mpris:artUrl", song->cover_address);
  entries.text("xesam:title", song->title);
  entries.texts("xesam:artist", song->artist);
  entries.text("xesam:album", song->album);
  entries.texts("xesam:albumArtist", song->album_artist);
  entries.texts("xesam:genre", song->genre);
  entries.texts("xesam:composer", song->composer);
  entries.number("xesam:trackNumber", song->track_number);
  entries.number("xesam:discNumber", song->disc_number);
  entries.text("xesam:url", song->address);
  return entries.finish();
}

}  // namespace host::desktop
