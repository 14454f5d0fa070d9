#pragma once

#include "host/uikit/text/key_input.h"
#include "platform/Foundation/NSIndexPath.h"
#include "tests/tweak/coloured_panel.h"

namespace host::test {

/// The open panel on the page with the list of all songs, and touches on it.
class SongPage : public ColouredPanel {
 protected:
  static constexpr CGFloat kHeader = 31;

  /// Lists the songs in the cloud, which need no audio file.
  void list_cloud_songs() const {
    write_preferences(switch_entry("cloud", true) + "<key>checked</key><true/>");
  }
  /// Adds a song by Beatrix in the cloud; `title` is UTF-8 without single quotes.
  void add_title(const std::string& title) {
    add_cloud_song("song " + std::to_string(++added_),
                   "title = '" + title + "'\nartist = 'Beatrix'\nduration = 60.0\n");
  }

  void turn_page() {
    const CGFloat y = middle_of(view("container")).y;
    drag({screen().width * 0.85, y}, {screen().width * 0.15, y}, 0.2);
    lift();
    settle();
  }
  void open_song_page() {
    open_panel();
    turn_page();
    ASSERT_EQ(global<UIScrollView>("container").contentOffset().x, screen().width);
  }
  /// Pulls the list down to show its header, and taps on the field.
  void tap_on_search() {
    const CGPoint middle = middle_of(list());
    drag(middle, {middle.x, middle.y + 100}, 0.3);
    lift();
    settle();
    ASSERT_EQ(list().contentOffset().y, 0);
    tap_on(view("searchBar"));
    settle();
    ASSERT_TRUE(field().isFirstResponder());
  }

  UITableView list() const { return global<UITableView>("tableView"); }
  UITextField field() const { return global<UITextField>("searchBar"); }
  NSInteger rows() const { return list().numberOfRowsInSection(0); }
  /// Lays the list out first: rows would be laid out at the next frame.
  UITableViewCell cell(NSInteger row) const {
    list().layoutIfNeeded();
    return list().cellForRowAtIndexPath(NSIndexPath::indexPathForRow(row, 0));
  }
  /// The texts of the visible rows.
  std::vector<std::string> texts() const {
    std::vector<std::string> found;
    for (NSInteger row = 0; row < rows(); ++row)
      if (const auto shown = cell(row)) found.push_back(text(shown.textLabel().text()));
    return found;
  }
  NSInteger row_of(const std::string& title) const {
    const auto listed = titles(is("isSearching") ? "result" : "songItems");
    return std::find(listed.begin(), listed.end(), title) - listed.begin();
  }
  void tap_on_row(const std::string& title) {
    const UITableViewCell shown = cell(row_of(title));
    ASSERT_TRUE(shown) << title;
    tap_on(shown);
  }

 private:
  int added_ = 0;
};

}  // namespace host::test
