#pragma once

#include <functional>

#include "host/applications/music/player_state.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Foundation/NSIndexPath.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UIViewController.h"

namespace host::music {

struct MusicSongsController
    : objc::Bound<MusicSongsController, "MusicSongsController", UIViewController> {};

/// The list of all songs. A tap plays one; the playing one is red.
class SongsPage : public objc::Implementation<SongsPage, MusicSongsController> {
 public:
  using Implementation::Implementation;
  ~SongsPage();

  /// `chosen` is called with the song that the user taps.
  static objc::Ref<MusicSongsController> make(const PlayerState& player,
                                              std::function<void(MPMediaItem)> chosen);
  std::function<void(bool)> on_visible;
  std::function<void()> on_library_change;

  void view_did_load();
  void view_will_appear(BOOL animated);
  void view_will_disappear(BOOL animated);
  /// Call when another song plays.
  void player_changed();
  /// The library was replaced.
  void library_changed(objc::Object);

  NSInteger rows(UITableView table, NSInteger section);
  UITableViewCell cell(UITableView table, NSIndexPath path);
  void selected(UITableView table, NSIndexPath path);
  UITableView table() const { return table_.get(); }

 private:
  MPMediaItem song_at(NSInteger row) const;
  void fill(UITableViewCell cell, MPMediaItem song) const;

  const PlayerState* player_ = nullptr;
  std::function<void(MPMediaItem)> chosen_;
  objc::Ref<UITableView> table_;
  objc::Ref<NSArray> songs_;
  std::uint64_t shown_song_ = 0;
};

void export_songs_page();

}  // namespace host::music
