#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/media_player/artwork_images.h"
#include "host/media_player/item_store.h"
#include "host/media_player/library_feed.h"
#include "host/media_player/media_options.h"
#include "host/media_player/playback.h"

namespace host::media_player {

/// The music of a process: the library, the player and the covers behind the system's media
/// classes. Started once by the process that plays, on its main loop; without it the classes show
/// an empty library and play nothing.
class MediaService {
 public:
  /// Needs the process's run loop and the exported classes. Gives the reason when there can be no
  /// music at all.
  static std::optional<std::string> start(MediaOptions options);
  /// Remembers what plays and lets go of everything. Before the run loop goes.
  static void stop();
  /// Null when the service is not running.
  static MediaService* current();

  ~MediaService();
  MediaService(const MediaService&) = delete;
  MediaService& operator=(const MediaService&) = delete;

  /// Another store after the library has changed.
  const std::shared_ptr<ItemStore>& items() const { return items_; }
  Playback& playback() { return playback_; }
  ArtworkImages& artwork() { return artwork_; }

  /// The song that is loaded; null when there is none, or the library does not hold it any more.
  const media::Track* now_playing() const;
  MPMediaItem now_playing_item();

  /// Plays or pauses. With nothing loaded it plays the queue, or the whole library when there is no
  /// queue. False when there is nothing to play.
  bool toggle();

 private:
  MediaService(MediaOptions options, std::unique_ptr<media::Player> player);

  void take(std::shared_ptr<const media::Library> library);
  media::SongFile file_of(std::uint64_t id) const;
  void recall();
  void remember_soon();
  void remember();

  MediaOptions options_;
  std::shared_ptr<ItemStore> items_;
  ArtworkImages artwork_;
  Playback playback_;
  LibraryFeed feed_;
  bool is_memory_old_ = false;
};

}  // namespace host::media_player
