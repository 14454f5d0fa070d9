#include "platform/Foundation/NSAttributedString.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/UIKit/NSAttributedStringAdditions.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tweak/library/song_list.h"
#include "tweak/look/geometry.h"
#include "tweak/look/pieces.h"
#include "tweak/panel/scroller.h"

// The pages, the list of all songs with its search header, and the banner's grabber.

namespace sonavue {
namespace {

constexpr CGFloat kPages = 3;
constexpr CGFloat kHeaderHeight = 31;
constexpr CGRect kFieldFrame{0, 3, 0, 25};
constexpr CGFloat kFieldCorner = 5;
constexpr CGFloat kIconInset = 5;
constexpr CGFloat kGrabberHeight = 20;
constexpr CGSize kGrabSize{40, 15};

// How much shorter the list is on small screens. Twice the width is compared with numbers of
// pixels on purpose: the second one matches no screen of two pixels a point.
float small_screen_correction() {
  const float for_layout = max == 0 ? -15.0f : 0.0f;
  const float twice_the_width = static_cast<float>(2 * screen_width());
  const float for_width = twice_the_width == 750 ? -15.0f : twice_the_width == 1080 ? -25.0f : 0.0f;
  return for_layout + for_width;
}

UIView make_search_icon(CGFloat field_height) {
  const CGFloat side = field_height - 2 * kIconInset;
  search_icon = UIImageView::alloc().initWithFrame({kIconInset, kIconInset, side, side});
  search_icon.setImage(template_image("/Library/Application Support/Sonavue/search@2x.png"_ns));
  search_icon.setTintColor(UIColor::whiteColor());
  const CGFloat around = kIconInset + side + kIconInset;
  const UIView holder = UIView::alloc().initWithFrame({0, 0, around, around});
  holder.addSubview(search_icon);
  search_icon.release();
  return holder.autorelease();
}

void make_search_field(SpringBoard self) {
  searchBar = UITextField::alloc().initWithFrame(
      {0, kFieldFrame.min_y(), searchCont.frame().size.width, kFieldFrame.size.height});
  searchBar.layer().setCornerRadius(kFieldCorner);
  searchBar.setClipsToBounds(YES);
  searchBar.setTextColor(UIColor::whiteColor());
  searchBar.setBackgroundColor(UIColor::colorWithWhite(0, 0.4));
  set_placeholder(UIColor::whiteColor());
  searchBar.setLeftView(make_search_icon(kFieldFrame.size.height));
  searchBar.setLeftViewMode(UITextFieldViewModeAlways);
  searchBar.setDelegate(self);
  searchBar.addTarget(self, "textDidChange:"_sel, UIControlEventEditingChanged);
  searchCont.addSubview(searchBar);
  searchBar.release();
}

UIView line_on_pages(CGRect frame) {
  const UIView line = make_line(frame);
  container.addSubview(line);
  line.release();
  return line;
}

}  // namespace

void set_placeholder(UIColor colour) {
  const auto placeholder = NSAttributedString::alloc().initWithString(
      "Search"_ns, NSDictionary::dictionaryWithObject(colour, NSForegroundColorAttributeName));
  searchBar.setAttributedPlaceholder(placeholder);
  placeholder.release();
}

UIView make_line(CGRect frame) {
  const UIView line = UIView::alloc().initWithFrame(frame);
  line.setBackgroundColor(UIColor::whiteColor());
  return line;
}

void make_pages() {
  container = UIScrollView::alloc().initWithFrame(
      {0, screen_height() / 4, screen_width(), 3 * screen_height() / 4 - 20});
  container.setBackgroundColor(UIColor::clearColor());
  container.setAlpha(0);
  window.addSubview(container);
  container.release();
  window.bringSubviewToFront(music);
}

void make_library() {
  fullList = MPMediaQuery::alloc().init();
  songItems = NSMutableArray::alloc().initWithArray(fullList.items());
  songArtist = NSMutableArray::alloc().init();
}

void make_song_list(SpringBoard self) {
  const CGFloat width = screen_width() / 2;
  const CGFloat x = 1.25 * screen_width();
  const CGFloat height = 2 * container.frame().size.height / 3 + 10 + small_screen_correction();
  tableView = UITableView::alloc().initWithFrame({x, 0, width, height});
  tableView.setBackgroundColor(UIColor::clearColor());
  const auto source = Musicz::alloc().init();
  tableView.setDataSource(source);
  tableView.setDelegate(source);

  searchCont = UIView::alloc().initWithFrame({0, 0, width, kHeaderHeight});
  make_search_field(self);
  tableView.setTableHeaderView(searchCont);
  searchCont.release();
  container.addSubview(tableView);
  tableView.release();
  // The header starts hidden above the first row until the user pulls the list down.
  tableView.setContentOffset({0, kHeaderHeight});

  top = line_on_pages({x, 0, width, 1});
  bottom = line_on_pages({x, height - 1, width, 1});
}

void make_grabber(SpringBoard self) {
  const CGSize around = cover.frame().size;
  grabbers = UIView::alloc().initWithFrame(
      {0, around.height - kGrabberHeight, around.width, kGrabberHeight});
  const CGSize bar = grabbers.frame().size;
  grabs = UIImageView::alloc().initWithFrame({(bar.width - kGrabSize.width) / 2,
                                              (bar.height - kGrabSize.height) / 2, kGrabSize.width,
                                              kGrabSize.height});
  grabs.setImage(template_image("/Library/Application Support/Sonavue/grab_dragging@2x.png"_ns));
  grabs.setTintColor(UIColor::whiteColor());
  grabbers.addSubview(grabs);
  grabs.release();
  top2 = make_line({0, 0, bar.width, 0.5});
  grabbers.addSubview(top2);
  top2.release();

  const auto pan = UIPanGestureRecognizer::alloc().initWithTarget(self, "presentBanner:"_sel);
  grabbers.addGestureRecognizer(pan);
  pan.release();
  grabbers.setHidden(YES);
  // On the backdrop, and so unseen whenever that is.
  cover.addSubview(grabbers);
  grabbers.release();
}

void make_page_scrolling() {
  container.setContentSize({kPages * screen_width(), container.frame().size.height});
  container.setPagingEnabled(YES);
  container.setShowsHorizontalScrollIndicator(NO);
  container.setDelegate(Scroller::alloc().init());
}

}  // namespace sonavue
