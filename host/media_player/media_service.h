#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/foundation/property_list_file.h"
#include "host/media_player/artwork_images.h"
#include "host/media_player/item_store.h"
#include "host/media_player/library_feed.h"
#include "host/media_player/media_options.h"
#include "host/media_player/music_choices.h"
#include "host/media_player/playback.h"
#include "host/media_player/playback_memory.h"

namespace host::media_player {

/// Is told what the music of the process does, from inside the call that does it.
class MediaObserver {
 public:
  virtual ~MediaObserver() = default;
  /// Something may have changed: the library, the queue, the song, its state, place or volume.
  virtual void media_did_change() = 0;
  /// After that, when the song goes on at another place (`Playback::on_jump`).
  virtual void media_did_jump() = 0;
};

/// The music of a process: the library, the player and the covers behind the system's media
/// classes. The process that plays starts it once, on its main loop; without it the classes show an
/// empty library and play nothing.
class MediaService {
 public:
  /// Starts the service. Requires the process's run loop and the exported classes.
  static void start(MediaOptions options);
  /// Saves the playback state and releases everything. Call before the run loop is destroyed.
  static void stop();
  /// Returns null when the service is not running.
  static MediaService* current();

  ~MediaService();
  MediaService(const MediaService&) = delete;
  MediaService& operator=(const MediaService&) = delete;

  /// Replaced by another store when the library changes.
  const std::shared_ptr<ItemStore>& items() const { return items_; }
  Playback& playback() { return playback_; }
  ArtworkImages& artwork() { return artwork_; }

  /// Returns the loaded song; null if none is loaded or the library no longer contains it.
  /// A song whose file is gone stays there while it is loaded.
  const media::Track* now_playing() const;
  MPMediaItem now_playing_item();

  /// What the user has chosen; `choices_changed` reads what another process has written.
  const MusicChoices& choices() const { return choices_; }
  void choices_changed() { follow(read_music_choices()); }
  /// Chosen in this process, and kept.
  void choose(const MusicChoices& choices);

  /// Plays files, and the songs of folders, one after another; the library has them until the
  /// process ends. The log names what cannot be played.
  void play_files(std::vector<std::string> paths);

  /// Changes with the library, and differs between processes.
  std::uint64_t library_number() const { return library_number_; }
  /// Takes over what another process has changed in the index.
  void reload_library() { feed_.reload(); }

  /// With nothing loaded it plays the queue, or the whole library when the queue is empty. Returns
  /// false when there is nothing to play.
  bool play();
  /// Plays or pauses; returns the same.
  bool toggle();
  /// Whether `play` finds a song, and whether the queue has a song after the present one, or before
  /// it, that can be played.
  bool can_play() const;
  bool can_go_next() const;
  bool can_go_previous() const;

  /// The observer must outlive the service, or be removed.
  void add_observer(MediaObserver& observer) { observers_.push_back(&observer); }
  void remove_observer(MediaObserver& observer) { std::erase(observers_, &observer); }

 private:
  MediaService(MediaOptions options, std::unique_ptr<media::Player> player);

  void take(std::shared_ptr<const media::Library> library);
  media::SongFile file_of(std::uint64_t id) const;
  bool is_playable(std::uint64_t id) const;
  template <class Songs>
  bool has_playable(const Songs& songs) const;
  void follow(const MusicChoices& choices);
  void tell_change();
  void tell_jump();
  void play_found(const std::vector<std::string>& paths);
  void restore_playback();
  void save_playback_soon();
  void save_playback();

  MediaOptions options_;
  std::shared_ptr<ItemStore> items_;
  std::shared_ptr<ItemStore> departed_;  // has the loaded song when `items_` no longer does
  std::uint64_t library_number_ = 0;
  bool is_restored_ = false;
  ArtworkImages artwork_;
  Playback playback_;
  LibraryFeed feed_;
  std::optional<PlaybackFile> memory_;  // empty when nothing can be stored
  std::vector<MediaObserver*> observers_;
  bool needs_saving_ = false;
  double next_save_ = 0;
  MusicChoices choices_;
};

}  // namespace host::media_player
