#pragma once

#include <filesystem>

#include "bench/phone/bench_phone.h"

namespace bench {

/// A library of 100,000 songs in 5,000 albums, each with a cover of its own, besides the demo
/// music: real folders and files, of which only the demo music can be played. The files are removed
/// again at the end.
class LargeLibrary {
 public:
  static constexpr int kAlbums = 5000;
  static constexpr int kSongsOfAlbum = 20;
  static constexpr int kSongs = kAlbums * kSongsOfAlbum;

  LargeLibrary();
  ~LargeLibrary();
  LargeLibrary(const LargeLibrary&) = delete;
  LargeLibrary& operator=(const LargeLibrary&) = delete;

  /// What a phone is started with: it finds the library as an earlier start would have left it.
  Music music() const;

 private:
  void remember(const std::filesystem::path& index) const;

  std::filesystem::path folder_;
  std::filesystem::path demo_;
};

}  // namespace bench
