#pragma once

#include "platform/UIKit/_UIBackdropView.h"
#include "tests/tweak/coloured_panel.h"

namespace host::test {

/// The open panel on the page with the album tiles.
class AlbumPage : public ColouredPanel {
 protected:
  using ColouredPanel::ColouredPanel;

  /// Adds an album with one song that is only in the cloud; `more` is TOML for its entry.
  void add_album(const std::string& album, const std::string& more = "") {
    const std::string song = "Song " + std::to_string(++added_);
    add_cloud_song(song,
                   "title = '" + song + "'\nalbum = '" + album + "'\nduration = 60.0\n" + more);
  }
  void open_album_page() {
    open_panel();
    for (int page = 0; page < 2; ++page) {
      const CGFloat y = middle_of(view("container")).y;
      drag({screen().width * 0.85, y}, {screen().width * 0.15, y}, 0.2);
      lift();
      settle();
    }
    ASSERT_EQ(global<UIScrollView>("container").contentOffset().x, 2 * screen().width);
  }
  /// Opens that page while Alpha plays; the artwork then shows its cover.
  void open_while_playing() {
    launch();
    play("Alpha");
    open_album_page();
  }

  UIScrollView strip() const { return global<UIScrollView>("albums"); }
  std::vector<UIView> tiles() const {
    std::vector<UIView> found;
    for (const auto tile : strip().subviews().of<UIView>())
      found.push_back(tile);
    return found;
  }
  static UIImageView cover_of(UIView tile) {
    return objc::cast<UIImageView>(tile.subviews().objectAtIndex(0));
  }
  static UILabel title_of(UIView tile) {
    return objc::cast<UILabel>(tile.subviews().objectAtIndex(1));
  }
  std::vector<std::string> tile_titles() const {
    std::vector<std::string> found;
    for (const UIView tile : tiles())
      found.push_back(text(title_of(tile).text()));
    return found;
  }
  UIView tile(const std::string& album) const {
    for (const UIView one : tiles())
      if (text(title_of(one).text()) == album) return one;
    return nil;
  }
  CGFloat tile_side() const { return (frame("albums").size.width - 30) * 0.5; }

  // The zoomed album.

  CGFloat zoomed_side() const { return frame("albums").size.width - 20; }
  void zoom_in(const std::string& album) {
    tap_on(tile(album));
    settle();
    ASSERT_FALSE(strip().isScrollEnabled());
  }
  /// Taps the strip next to the zoomed tile.
  void tap_beside() {
    const CGRect place = view("albums").convertRectToView(view("albums").bounds(), nil);
    tap({place.min_x() + 5, place.max_y() - 5});
  }
  static _UIBackdropView backdrop_of(UIView tile) {
    for (const auto part : cover_of(tile).subviews().of<UIView>())
      if (part.isKindOfClass(_UIBackdropView::cls())) return objc::cast<_UIBackdropView>(part);
    return nil;
  }
  static UIScrollView grid_of(UIView tile) {
    for (const auto part : backdrop_of(tile).subviews().of<UIView>())
      if (part.isKindOfClass(UIScrollView::cls())) return objc::cast<UIScrollView>(part);
    return nil;
  }
  static std::vector<UIView> songs_of(UIView tile) {
    std::vector<UIView> found;
    for (const auto song : grid_of(tile).subviews().of<UIView>())
      found.push_back(song);
    return found;
  }
  /// The song of the zoomed album with that title.
  UIView song(const std::string& album, const std::string& title) const {
    for (const UIView one : songs_of(tile(album)))
      if (text(title_of(one).text()) == title) return one;
    return nil;
  }

 private:
  int added_ = 0;
};

}  // namespace host::test
