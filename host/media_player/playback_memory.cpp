#include "host/media_player/playback_memory.h"

#include <cmath>
#include <cstdlib>

#include "host/files/folder.h"
#include "host/foundation/device_paths.h"
#include "host/property_list/xml_writer.h"
#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"

namespace host::media_player {
namespace {

template <class T>
T typed(objc::Object value) {
  return value && objc::cast<NSObject>(value).isKindOfClass(T::cls()) ? objc::cast<T>(value) : T();
}

NSString string_from(const std::string& text) {
  return NSString::stringWithUTF8String(text.c_str());
}

// Identifiers are stored as text: a property list may change the type of such large numbers.
NSString text_of(std::uint64_t id) {
  return string_from(std::to_string(id));
}

std::uint64_t identifier(objc::Object value) {
  const auto text = typed<NSString>(value);
  return text ? std::strtoull(text.UTF8String(), nullptr, 10) : 0;
}

std::optional<double> number(objc::Object value) {
  const auto found = typed<NSNumber>(value);
  if (!found || !std::isfinite(found.doubleValue())) return std::nullopt;
  return found.doubleValue();
}

NSDictionary list_of(const RememberedPlayback& playback) {
  const NSMutableDictionary kept = NSMutableDictionary::dictionary();
  kept.setObject(text_of(playback.song), "song"_ns);
  kept.setObject(NSNumber::numberWithDouble(playback.position_seconds), "position"_ns);
  if (playback.volume) {
    kept.setObject(NSNumber::numberWithDouble(*playback.volume), "volume"_ns);
  }
  if (playback.queue) {
    const NSMutableArray queue = NSMutableArray::array();
    for (const std::uint64_t id : *playback.queue)
      queue.addObject(text_of(id));
    kept.setObject(queue, "queue"_ns);
  }
  return kept;
}

}  // namespace

PlaybackFile::PlaybackFile(const std::string& path, Pace pace)
    : list_(path), bytes_(foundation::path_on_this_machine(path), pace) {}

RememberedPlayback PlaybackFile::read() {
  const objc::AutoreleasePool pool;
  RememberedPlayback playback;
  const NSDictionary kept = list_.read();
  playback.song = identifier(kept.objectForKey("song"_ns));
  playback.position_seconds = number(kept.objectForKey("position"_ns)).value_or(0);
  playback.volume = number(kept.objectForKey("volume"_ns));
  if (const auto queue = typed<NSArray>(kept.objectForKey("queue"_ns))) {
    playback.queue.emplace();
    for (const auto id : queue.of<objc::Object>())
      playback.queue->push_back(identifier(id));
  }
  return playback;
}

bool PlaybackFile::write(const RememberedPlayback& playback) {
  if (list_.is_unread()) return false;
  const objc::AutoreleasePool pool;
  const auto bytes = property_list::xml_of(list_of(playback));
  if (!bytes) return false;
  // If this fails, so does writing, which says why.
  files::make_folders(files::folder_of(foundation::path_on_this_machine(list_.path())));
  bytes_.write(*bytes);
  return bytes_.is_writable();
}

}  // namespace host::media_player
