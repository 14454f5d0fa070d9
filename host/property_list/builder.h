#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/property_list/reader.h"

namespace host::property_list {

/// A list may be walked by recursion: by its readers, when it is described or written, and when
/// it is released.
inline constexpr int kDeepest = 100;
/// As a walk through the list counts them: an object with two places counts twice.
inline constexpr std::size_t kMostObjects = 1 << 20;

using Objects = std::vector<objc::Object>;

/// Makes the objects of one list and keeps count of them. After the first problem every maker
/// returns nil.
class Builder {
 public:
  explicit Builder(Mutability mutability) : mutability_(mutability) {}

  objc::Object text(std::string_view utf8);
  /// A text that is never mutable.
  objc::Object key(std::string_view utf8);
  objc::Object data(std::string_view bytes);
  objc::Object integer(std::int64_t value);
  objc::Object unsigned_integer(std::uint64_t value);
  objc::Object real(double value);
  objc::Object boolean(bool value);
  objc::Object date(double since_1970);
  objc::Object array(const Objects& objects);
  objc::Object dictionary(const Objects& keys, const Objects& values);

  /// Counts `count` more objects. False when they are too many.
  bool count(std::size_t count = 1);
  /// Begins a container. False when it is too deep.
  bool enter();
  void leave() { --depth_; }
  int depth() const { return depth_; }

  /// Keeps the first problem. Returns nil.
  objc::Object damaged(std::string problem);
  objc::Object too_deep();
  objc::Object too_many();

  Reading reading(objc::Object list, Form form) const;

 private:
  objc::Object exceeds(std::string problem);

  Mutability mutability_;
  std::size_t count_ = 0;
  int depth_ = 0;
  std::string problem_;
  bool exceeds_bounds_ = false;
};

}  // namespace host::property_list
