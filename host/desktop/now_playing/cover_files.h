#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_set>

#include "host/media/cover_decoder.h"
#include "host/runtime/run_loop.h"

namespace host::desktop {

/// Covers as files for other programs, which read them when they like: decoded, scaled down and
/// written again, so that no other program's decoder meets a picture of any origin. The folder
/// keeps the latest ones.
class CoverFiles {
 public:
  static constexpr std::size_t kMostFiles = 24;
  static constexpr int kLongestSide = 512;

  CoverFiles(RunLoop& loop, std::string folder) : loop_(loop), folder_(std::move(folder)) {}
  ~CoverFiles();
  CoverFiles(const CoverFiles&) = delete;
  CoverFiles& operator=(const CoverFiles&) = delete;

  /// Called when the file of a cover is there, or is known not to come.
  std::function<void()> on_ready;

  /// Returns the path of the cover's file; nothing while it is made, and for what cannot be shown.
  std::optional<std::string> file_of(const media::CoverFile& cover);
  bool is_coming(const media::CoverFile& cover) const { return coming_.contains(cover.key); }

 private:
  std::string path_of(std::uint64_t key) const;
  void request(const media::CoverFile& cover);
  void receive();
  bool write(std::uint64_t key, const media::Picture& picture);
  void remove_oldest() const;

  RunLoop& loop_;
  std::string folder_;
  std::unordered_set<std::uint64_t> coming_;
  std::unordered_set<std::uint64_t> broken_;
  bool has_complained_ = false;
  RunLoop::Id watch_ = 0;
  media::CoverDecoder decoder_;
};

}  // namespace host::desktop
