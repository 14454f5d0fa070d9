#pragma once

#include "host/media/library.h"
#include "host/media_player/item_store.h"
#include "tests/tweak/song_page.h"

namespace host::test {

/// A search through any titles that a test chooses, next to the platform's own comparison.
class TitleSearch : public SongPage {
 protected:
  void SetUp() override { launch(); }

  /// Items with these titles, in the library's order.
  static NSArray songs_titled(const std::vector<std::string>& titles) {
    std::vector<media::SongRecord> records(titles.size());
    for (std::size_t i = 0; i < titles.size(); ++i) {
      records[i].id = i + 1;
      records[i].path = "/music/" + std::to_string(i) + ".flac";
      records[i].tags.title = titles[i];
    }
    const auto store = std::make_shared<media_player::ItemStore>(media::Library::build(records));
    return media_player::ItemList::make(store).autorelease();
  }
  NSMutableArray songs() const { return global<NSMutableArray>("songItems"); }
  NSMutableArray hits() const { return global<NSMutableArray>("result"); }
  void list_titles(const std::vector<std::string>& titles) const {
    songs().removeAllObjects();
    songs().addObjectsFromArray(songs_titled(titles));
  }
  /// The hits for `typed`. Sets the field's text and runs the search, without typing.
  std::vector<std::string> found_by(const std::string& typed) const {
    search_for(typed);
    return titles("result");
  }
  void search_for(const std::string& typed) const {
    field().setText(NSString::stringWithUTF8String(typed.c_str()));
    objc::send<>(global<SpringBoard>("Spring"), "textDidChange:"_sel, field());
  }
  /// The hits when every title is compared by itself, with the platform's search.
  std::vector<std::string> found_one_by_one(const std::string& typed) const {
    const NSString wanted = NSString::stringWithUTF8String(typed.c_str()).lowercaseString();
    std::vector<std::string> found;
    for (const auto song : songs().of<MPMediaItem>()) {
      const auto title = objc::cast<NSString>(song.valueForProperty(MPMediaItemPropertyTitle));
      if (title.lowercaseString().rangeOfString(wanted).length > 0) found.push_back(text(title));
    }
    return found;
  }
};

}  // namespace host::test
