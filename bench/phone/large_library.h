#pragma once

#include <filesystem>

#include "bench/phone/bench_phone.h"

namespace bench {

/// A library of 100,000 songs in 5,000 albums, or of as many as wanted, each album with its own
/// cover, besides the demo music: real folders and files, of which only the demo music can be
/// played. The destructor removes the files.
class LargeLibrary {
 public:
  static constexpr int kAlbums = 5000;
  static constexpr int kSongsOfAlbum = 20;
  static constexpr int kSongs = kAlbums * kSongsOfAlbum;

  explicit LargeLibrary(int albums = kAlbums);
  ~LargeLibrary();
  LargeLibrary(const LargeLibrary&) = delete;
  LargeLibrary& operator=(const LargeLibrary&) = delete;

  /// The music to start a phone with, which finds the library as if from an earlier start.
  Music music() const;
  int songs() const { return albums_ * kSongsOfAlbum; }

 private:
  void remember(const std::filesystem::path& index) const;

  int albums_;
  std::filesystem::path folder_;
  std::filesystem::path demo_;
};

}  // namespace bench
