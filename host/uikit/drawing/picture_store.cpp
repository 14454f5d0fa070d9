#include "host/uikit/drawing/picture_store.h"

#include <algorithm>
#include <functional>
#include <list>
#include <map>
#include <mutex>

#include "host/files/read_file.h"

namespace host::uikit {
namespace {

using PicturePtr = std::shared_ptr<quartzcore::EncodedImage>;

// Programs load small pictures again and again, for rows and buttons; large ones once.
constexpr std::size_t kLargestKept = std::size_t{512} << 10;  // bytes of pixels
constexpr std::size_t kMostKept = std::size_t{4} << 20;
constexpr std::size_t kFewFiles = 64;

class PictureStore {
 public:
  PicturePtr picture(const std::string& path) {
    const std::lock_guard lock(mutex_);
    const files::OpenFile file = files::open_file(path);
    if (file.error) {
      known_.erase(path);
      return nullptr;
    }
    PicturePtr picture = current(known_[path], path, file);
    if (picture) keep(picture);
    forget_unused();
    return picture;
  }

 private:
  struct KnownFile {
    files::Stamp stamp;
    bool is_settled = false;
    std::size_t hash = 0;
    std::weak_ptr<quartzcore::EncodedImage> picture;
  };

  static PicturePtr current(KnownFile& known, const std::string& path,
                            const files::OpenFile& file) {
    PicturePtr picture = known.picture.lock();
    if (picture && known.is_settled && known.stamp == file.stamp) return picture;
    auto contents = files::read_file(file);
    const std::size_t hash = std::hash<std::string>{}(contents.bytes);
    if (!picture || hash != known.hash)
      picture = quartzcore::EncodedImage::read(std::move(contents.bytes), path);
    known = {file.stamp, files::has_settled(file.stamp), hash, picture};
    return picture;
  }

  void keep(const PicturePtr& picture) {
    if (picture->byte_count() > kLargestKept) return;
    if (const auto before = std::find(recent_.begin(), recent_.end(), picture);
        before != recent_.end())
      return recent_.splice(recent_.begin(), recent_, before);
    recent_.push_front(picture);
    kept_ += picture->byte_count();
    for (; kept_ > kMostKept; recent_.pop_back())
      kept_ -= recent_.back()->byte_count();
  }

  void forget_unused() {
    if (known_.size() < most_known_) return;
    std::erase_if(known_, [](const auto& one) { return one.second.picture.expired(); });
    most_known_ = 2 * known_.size() + kFewFiles;
  }

  std::mutex mutex_;
  std::map<std::string, KnownFile> known_;
  std::size_t most_known_ = kFewFiles;
  std::list<PicturePtr> recent_;  // the latest first
  std::size_t kept_ = 0;          // bytes of their pixels
};

}  // namespace

PicturePtr picture_of_file(const std::string& path) {
  // Never destroyed, because programs may load pictures while the process ends.
  static auto* const store = new PictureStore;
  return store->picture(path);
}

}  // namespace host::uikit
