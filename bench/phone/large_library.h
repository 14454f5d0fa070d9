#pragma once

#include <filesystem>

#include "bench/phone/bench_phone.h"

namespace bench {

/// Where the albums of a library have their covers.
enum class Covers { kEach, kEverySecond, kNone, kHugeInEachSong };

struct LibraryShape {
  int albums = 0;
  int songs_of_album = 0;
  Covers covers = Covers::kEach;

  int songs() const { return albums * songs_of_album; }
};

/// A library of 100,000 songs in 5,000 albums, each with its own cover, or of another shape,
/// besides the demo music: real folders and files, of which only the demo music can be played. The
/// destructor removes the files.
class LargeLibrary {
 public:
  static constexpr int kAlbums = 5000;
  static constexpr int kSongsOfAlbum = 20;
  static constexpr int kSongs = kAlbums * kSongsOfAlbum;

  explicit LargeLibrary(const LibraryShape& shape = {kAlbums, kSongsOfAlbum});
  ~LargeLibrary();
  LargeLibrary(const LargeLibrary&) = delete;
  LargeLibrary& operator=(const LargeLibrary&) = delete;

  /// The music to start a phone with, which finds the library as if from an earlier start.
  Music music() const;
  /// The demo music alone, found in the same way.
  Music demo() const;
  /// Without the demo music.
  int songs() const { return shape_.songs(); }

 private:
  void remember(const std::filesystem::path& index) const;

  LibraryShape shape_;
  std::filesystem::path folder_;
  std::filesystem::path demo_;
};

}  // namespace bench
