#include <gmock/gmock.h>
#include <mpv/client.h>
#include <poll.h>
#include <taglib/fileref.h>
#include <taglib/tpropertymap.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <numbers>
#include <numeric>

#include "host/demo_music/audio_file.h"
#include "host/media/mpv_player.h"
#include "host/media/queue_player.h"
#include "tests/support/sound_sink.h"

using namespace host::media;
using namespace media_tests;

namespace {

constexpr int rate = 48000;
constexpr int song_samples = rate / 2;
constexpr int silence = 400;  // Milliseconds.

// A sine that rises through both songs, so that each moment of it sounds different.
double sweep(double seconds) {
  constexpr double first_hertz = 300;
  constexpr double hertz_a_second = 1400;
  return std::sin(2 * std::numbers::pi * seconds * (first_hertz + hertz_a_second * seconds / 2));
}

// The place in `heard` that sounds most like `samples` samples of the sweep from `begin` on.
int place_of(int begin, int samples, const std::vector<std::int16_t>& heard) {
  std::vector<double> wanted;
  for (int i = 0; i < samples; ++i)
    wanted.push_back(sweep(static_cast<double>(begin + i) / rate));
  constexpr int farthest = rate / 4;
  const int last = static_cast<int>(heard.size()) - samples;
  int best = 0;
  double best_likeness = 0;
  for (int place = std::max(0, begin - farthest); place < std::min(last, begin + farthest);
       ++place) {
    const double likeness =
        std::inner_product(wanted.begin(), wanted.end(), heard.begin() + place, 0.0);
    if (likeness > best_likeness) best = place;
    best_likeness = std::max(best_likeness, likeness);
  }
  return best;
}

// The samples between the two songs that belong to neither; negative when some are missing.
int gap(const std::vector<std::int16_t>& heard) {
  constexpr int samples = 2000;
  constexpr int first = song_samples / 2;
  return place_of(first + song_samples, samples, heard) - place_of(first, samples, heard) -
         song_samples;
}

// The sweep in two files.
class HeardMusic : public testing::Test {
 protected:
  void write_songs(const std::string& first, const std::string& second) const {
    write_part(first, 0);
    write_part(second, 1);
  }
  void write_part(const std::string& name, int part, int at_rate = rate) const {
    constexpr double seconds = static_cast<double>(song_samples) / rate;
    std::vector<float> samples(static_cast<std::size_t>(seconds * at_rate));
    for (std::size_t i = 0; i < samples.size(); ++i) {
      const double moment = part * seconds + static_cast<double>(i) / at_rate;
      samples[i] = static_cast<float>(0.5 * sweep(moment));
    }
    ASSERT_TRUE(write_audio(folder_ / name, samples, at_rate));
  }

  // A player that pulls the next song in time, as the phone does.
  struct Played {
    explicit Played(const HeardMusic& music, const std::vector<std::string>& names)
        : queue(*player, [=, folder = music.folder_.path()](std::uint64_t id) {
            return SongFile{folder + "/" + names[id], {}};
          }) {
      std::vector<std::uint64_t> ids(names.size());
      std::iota(ids.begin(), ids.end(), 0);
      queue.set_queue(make_song_list(ids));
      queue.on_song_change = [this] { queue.offer_next(); };
      queue.play();
    }
    void pump_until(const std::function<bool()>& is_done) {
      pollfd waiting{player->descriptor(), POLLIN, 0};
      for (int looks = 0; !is_done() && looks < 600; ++looks) {
        ::poll(&waiting, 1, 50);
        player->pump();
      }
      ASSERT_TRUE(is_done());
    }
    void play_to_the_end() {
      pump_until([this] { return queue.state() == PlaybackState::stopped; });
    }

    std::unique_ptr<MpvPlayer> player =
        std::make_unique<MpvPlayer>(MpvOptions{"pulse", PlayerPace::real, {}});
    QueuePlayer queue;
  };

  std::vector<std::int16_t> heard_by_us(const std::vector<std::string>& names) const {
    const SoundSink sink(rate);
    Played(*this, names).play_to_the_end();
    sink.wait_for_silence(silence);
    return sink.heard();
  }

  // The gap in what the phone plays. A busy machine may starve the device for a moment; a gap of
  // the player's own is in every take.
  int smallest_gap(const std::vector<std::string>& names) const {
    int smallest = gap(heard_by_us(names));
    for (int take = 1; take < 3 && smallest != 0; ++take)
      smallest = std::min(smallest, gap(heard_by_us(names)),
                          [](int a, int b) { return std::abs(a) < std::abs(b); });
    return smallest;
  }

  // Plays the files with the engine alone.
  std::vector<std::int16_t> heard_by_the_engine(const std::vector<std::string>& names) const {
    const SoundSink sink(rate);
    mpv_handle* engine = mpv_create();
    for (const auto& [name, value] : {std::pair{"ao", "pulse"},
                                      {"gapless-audio", "yes"},
                                      {"vid", "no"},
                                      {"config", "no"},
                                      {"idle", "yes"}})
      mpv_set_option_string(engine, name, value);
    mpv_initialize(engine);
    for (const std::string& name : names) {
      const std::string path = folder_ / name;
      const char* command[] = {"loadfile", path.c_str(), "append-play", nullptr};
      mpv_command(engine, command);
    }
    sink.wait_for_silence(silence);
    mpv_terminate_destroy(engine);
    return sink.heard();
  }

  TemporaryFolder folder_;
};

int peak(const std::vector<std::int16_t>& heard) {
  return heard.empty() ? 0 : std::ranges::max(heard);
}

void set_loudness(const std::string& path, const char* gain, const char* peak) {
  TagLib::FileRef file{path.c_str()};
  TagLib::PropertyMap tags = file.file()->properties();
  for (const char* kind : {"TRACK", "ALBUM"}) {
    const std::string name = std::string{"REPLAYGAIN_"} + kind;
    tags.replace(name + "_GAIN", TagLib::String{gain});
    tags.replace(name + "_PEAK", TagLib::String{peak});
  }
  file.file()->setProperties(tags);
  ASSERT_TRUE(file.save());
}

}  // namespace

TEST_F(HeardMusic, FlacContinuesWithoutASampleBetween) {
  write_songs("1.flac", "2.flac");
  EXPECT_EQ(smallest_gap({"1.flac", "2.flac"}), 0);
}

// An encoder may add silence to what it is given. The engine alone shows how much of it cannot be
// taken away.
TEST_F(HeardMusic, OtherFormatsContinueAsTheEngineCan) {
  write_part("1.flac", 0, 44100);
  for (const auto& names :
       {std::vector<std::string>{"1.opus", "2.opus"}, {"1.mp3", "2.mp3"}, {"1.flac", "2.opus"}}) {
    if (names[0] != "1.flac") write_part(names[0], 0);
    write_part(names[1], 1);
    const int ours = smallest_gap(names);
    EXPECT_LE(std::abs(ours), std::abs(gap(heard_by_the_engine(names))))
        << names[0] << ", " << names[1];
    RecordProperty("gap_" + names[0].substr(2) + "_" + names[1].substr(2), ours);
  }
}

TEST_F(HeardMusic, MusicAfterSpeechHasItsOwnRate) {
  write_part("1.wav", 0, 16000);
  write_part("2.wav", 1, 48000);
  const SoundSink sink(rate);
  Played played(*this, {"1.wav", "2.wav"});
  played.pump_until([&] { return played.queue.current() == 1u; });
  played.pump_until([&] { return sink.players().find(" 2ch 48000Hz") != std::string::npos; });
}

TEST_F(HeardMusic, TheMixerShowsTheSong) {
  SongTags tags;
  tags.title = "Morgenröte";
  tags.artist = "Die Leisen";
  write_song(folder_ / "song.flac", tags, {}, 20);
  const SoundSink sink(rate);
  Played played(*this, {"song.flac"});
  played.pump_until([&] { return !sink.players().empty(); });
  played.pump_until([&] {
    return sink.players().find("media.name = \"Die Leisen – Morgenröte\"") != std::string::npos;
  });
  EXPECT_THAT(sink.players(), testing::HasSubstr("application.name = \"Sonavue\""));
  EXPECT_THAT(sink.players(), testing::HasSubstr("application.icon_name = \"sonavue\""));
}

TEST_F(HeardMusic, ADeviceThatGoesAwayPausesTheMusic) {
  write_tone(folder_ / "long.flac", 20);
  SoundSink sink(rate);
  Played played(*this, {"long.flac"});
  played.pump_until([&] { return played.player->position() > 0.1; });
  const CapturedLog log;
  sink.disappear();
  played.pump_until([&] { return played.queue.state() == PlaybackState::paused; });
  EXPECT_EQ(log.count("the sound device has gone"), 1);
  EXPECT_EQ(log.count("device"), 1);
}

TEST_F(HeardMusic, AFileThatVanishesBeforeItsTurnIsSkipped) {
  write_songs("1.flac", "3.flac");
  write_part("2.flac", 1);
  const SoundSink sink(rate);
  Played played(*this, {"1.flac", "2.flac", "3.flac"});
  played.queue.offer_next();
  std::filesystem::remove(folder_ / "2.flac");
  played.pump_until([&] { return played.queue.current() == 2u; });
  played.play_to_the_end();
}

TEST_F(HeardMusic, ANextSongThatIsTakenBackIsNotHeard) {
  write_songs("1.flac", "2.flac");
  write_tone(folder_ / "3.flac", 0.3);
  const SoundSink sink(rate);
  Played played(*this, {"1.flac", "2.flac", "3.flac"});
  played.queue.offer_next();
  played.queue.set_queue(make_song_list({0, 2}));
  played.queue.offer_next();
  std::vector<std::uint64_t> songs;
  played.queue.on_song_change = [&] { songs.push_back(played.queue.current().value_or(99)); };
  played.play_to_the_end();
  EXPECT_THAT(songs, testing::ElementsAre(2, 99));
}

TEST_F(HeardMusic, ReplayGainChangesLoudSongsAndClipsNone) {
  for (const char* name : {"plain.flac", "loud.flac", "quiet.flac"})
    write_part(name, 0);
  set_loudness(folder_ / "loud.flac", "-6.02 dB", "0.5");
  set_loudness(folder_ / "quiet.flac", "+20 dB", "0.5");
  const auto peak_of = [&](const char* name, ReplayGain gain) {
    const SoundSink sink(rate);
    Played played(*this, {name});
    played.player->set_replay_gain(gain);
    played.play_to_the_end();
    sink.wait_for_silence(silence);
    return static_cast<double>(peak(sink.heard()));
  };
  const double plain = peak_of("plain.flac", ReplayGain::album);
  EXPECT_NEAR(peak_of("loud.flac", ReplayGain::off) / plain, 1, 0.01);
  EXPECT_NEAR(peak_of("loud.flac", ReplayGain::track) / plain, 0.5, 0.01);
  EXPECT_NEAR(peak_of("loud.flac", ReplayGain::album) / plain, 0.5, 0.01);
  EXPECT_NEAR(peak_of("quiet.flac", ReplayGain::track) / plain, 2, 0.02) << "up to its peak";
}
