#include "host/applications/music/songs_page.h"

#include "host/applications/music/library.h"
#include "host/applications/music/look.h"
#include "platform/Foundation/NSNotificationCenter.h"
#include "platform/MediaPlayer/MPMediaQuery.h"
#include "platform/UIKit/UIFont.h"

namespace host::music {
namespace {

constexpr CGFloat kRowHeight = 57;
constexpr CGFloat kRowCoverSide = 45;
constexpr CGFloat kTitleSize = 16;
constexpr CGFloat kLineSize = 12;

UITableViewCell make_cell() {
  const auto cell =
      UITableViewCell::alloc().initWithStyle(UITableViewCellStyleSubtitle, "song"_ns).autorelease();
  cell.textLabel().setFont(UIFont::systemFontOfSize(kTitleSize));
  cell.detailTextLabel().setFont(UIFont::systemFontOfSize(kLineSize));
  cell.detailTextLabel().setTextColor(second_line_color());
  cell.setSeparatorInset({0, kMargin + kRowCoverSide + kMargin, 0, 0});
  return cell;
}

}  // namespace

SongsPage::~SongsPage() {
  NSNotificationCenter::defaultCenter().removeObserver(self);
  if (!table_) return;
  table_->setDataSource(nil);
  table_->setDelegate(nil);
}

objc::Ref<MusicSongsController> SongsPage::make(const PlayerState& player,
                                                std::function<void(MPMediaItem)> chosen) {
  auto made = objc::Ref<MusicSongsController>::adopt(MusicSongsController::alloc().init());
  auto& state = objc::state_of<SongsPage>(*made);
  state.player_ = &player;
  state.chosen_ = std::move(chosen);
  made->setTitle("Songs"_ns);
  return made;
}

void SongsPage::view_did_load() {
  super("viewDidLoad"_sel);
  songs_.reset(all_songs());
  self.view().setBackgroundColor(UIColor::whiteColor());
  table_ = objc::Ref<UITableView>::adopt(
      UITableView::alloc().initWithFrame(self.view().bounds(), UITableViewStylePlain));
  table_->setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  table_->setRowHeight(kRowHeight);
  table_->setSeparatorColor(separator_color());
  table_->setDataSource(self);
  table_->setDelegate(self);
  // Keeps the last song clear of the bar.
  const auto room =
      UIView::alloc().initWithFrame({0, 0, self.view().bounds().size.width, kMiniBarHeight});
  table_->setTableFooterView(room.autorelease());
  self.view().addSubview(*table_);
  NSNotificationCenter::defaultCenter().addObserver(self, "libraryChanged:"_sel,
                                                    MPMediaLibraryDidChangeNotification, nil);
}

void SongsPage::view_will_appear(BOOL animated) {
  super("viewWillAppear:"_sel, animated);
  if (on_visible) on_visible(true);
}

void SongsPage::view_will_disappear(BOOL animated) {
  super("viewWillDisappear:"_sel, animated);
  if (on_visible) on_visible(false);
}

void SongsPage::player_changed() {
  if (!table_ || shown_song_ == player_->song()) return;
  shown_song_ = player_->song();
  for (const UITableViewCell cell : table_->visibleCells().of<UITableViewCell>())
    fill(cell, song_at(table_->indexPathForCell(cell).row()));
}

void SongsPage::library_changed(objc::Object) {
  songs_.reset(all_songs());
  table_->reloadData();
  if (on_library_change) on_library_change();
}

MPMediaItem SongsPage::song_at(NSInteger row) const {
  return objc::cast<MPMediaItem>(songs_->objectAtIndex(static_cast<NSUInteger>(row)));
}

NSInteger SongsPage::rows(UITableView, NSInteger) {
  return static_cast<NSInteger>(songs_->count());
}

UITableViewCell SongsPage::cell(UITableView table, NSIndexPath path) {
  UITableViewCell cell = table.dequeueReusableCellWithIdentifier("song"_ns);
  if (!cell) cell = make_cell();
  const MPMediaItem song = song_at(path.row());
  cell.imageView().setImage(cover_of(song, kRowCoverSide));
  fill(cell, song);
  return cell;
}

void SongsPage::fill(UITableViewCell cell, MPMediaItem song) const {
  const bool plays = id_of(song) == player_->song();
  cell.textLabel().setText(title_of(song));
  cell.textLabel().setTextColor(plays ? accent_color() : UIColor::blackColor());
  cell.detailTextLabel().setText(line_of(song));
}

void SongsPage::selected(UITableView table, NSIndexPath path) {
  table.deselectRowAtIndexPath(path, YES);
  if (chosen_) chosen_(song_at(path.row()));
}

void export_songs_page() {
  objc::ClassBuilder("MusicSongsController", "UIViewController")
      .state<SongsPage>()
      .method<&SongsPage::view_did_load>("viewDidLoad")
      .method<&SongsPage::view_will_appear>("viewWillAppear:")
      .method<&SongsPage::view_will_disappear>("viewWillDisappear:")
      .method<&SongsPage::library_changed>("libraryChanged:")
      .method<&SongsPage::table>("table")
      .method<&SongsPage::rows>("tableView:numberOfRowsInSection:")
      .method<&SongsPage::cell>("tableView:cellForRowAtIndexPath:")
      .method<&SongsPage::selected>("tableView:didSelectRowAtIndexPath:")
      .finish();
}

}  // namespace host::music
