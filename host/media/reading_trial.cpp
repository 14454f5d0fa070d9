#include "host/media/reading_trial.h"

#include <poll.h>

#include "host/media/cloud_song.h"
#include "host/media/cover_file.h"
#include "host/media/mpv_player.h"
#include "host/media/picture.h"

namespace host::media {
namespace {

constexpr int whole_picture = 4096;
constexpr int slice_milliseconds = 20;
constexpr int most_slices = 100;

struct Ending : PlayerListener {
  bool is_over = false;
  void player_did_reach_end() override { is_over = true; }
  void player_did_fail(const std::string&, const std::string&) override { is_over = true; }
};

void decode(const std::string& path) {
  const auto home = has_audio_name(path) ? CoverFile::Home::in_song : CoverFile::Home::own_file;
  if (home == CoverFile::Home::own_file) read_picture_file_header(path);
  decode_cover({1, path, home}, whole_picture);
}

void begin_to_play(const std::string& path) {
  Ending ending;
  MpvPlayer player{{"null", PlayerPace::real, {}}};
  player.set_listener(&ending);
  player.load(path);
  player.play();
  for (int i = 0; i < most_slices && !ending.is_over && player.position() <= 0; ++i) {
    pollfd waiting{player.descriptor(), POLLIN, 0};
    ::poll(&waiting, 1, slice_milliseconds);
    player.pump();
  }
}

}  // namespace

void read_for_trial(Reading reading, const std::string& path) {
  switch (reading) {
    case Reading::cover:
      return decode(path);
    case Reading::song:
      read_song(path);
      return;
    case Reading::sound:
      return begin_to_play(path);
  }
}

}  // namespace host::media
