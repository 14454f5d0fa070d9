#include "host/springboard/surfaces/notification_centre_panel.h"

#include <algorithm>

#include "host/springboard/common/make_view.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"
#include "host/springboard/surfaces/notification_row.h"

namespace host::springboard {
namespace {

constexpr CGFloat kGlassAboveCentre = 160;
constexpr CGFloat kTabsTop = 28;
constexpr CGFloat kTabsHeight = 29;
constexpr CGFloat kTabsWidth = 290;
constexpr CGFloat kTabSize = 13;
constexpr CGFloat kTabRadius = 4;
constexpr CGFloat kPageTop = 74;
constexpr CGFloat kGrip = 34;
constexpr CGFloat kPageMargin = 15;
constexpr CGFloat kWidestPage = 600;
constexpr CGFloat kTodaySize = 38;
constexpr CGFloat kDateLine = 46;
constexpr CGFloat kHeader = 34;
constexpr CGFloat kPageLineAlpha = 0.2;

}  // namespace

NotificationCentrePanel::NotificationCentrePanel(UIView window, const WallClock& clock,
                                                 Callbacks callbacks) {
  const CGSize screen = window.bounds().size;
  sheet_ = make_view<UIView>(
      {0, -screen.height - kGlassAboveCentre, screen.width, screen.height + kGlassAboveCentre});
  window.addSubview(*sheet_);
  add_backdrop(*sheet_, sheet_->bounds(), kDarkBackdrop);
  add_tabs();
  add_today(clock);
  add_messages(std::move(callbacks.clear));
  const auto grip =
      make_view<UIView>({0, kGlassAboveCentre + screen.height - kGrip, screen.width, kGrip});
  sheet_->addSubview(*grip);
  add_grabber(*grip, {screen.width / 2, kGrip - 10}, UIColor::colorWithWhite(1, 0.45));
  actions_.on_pan(*sheet_, callbacks.pan);
  show_messages();
}

void NotificationCentrePanel::add_tabs() {
  const CGFloat left = (sheet_->bounds().size.width - kTabsWidth) / 2;
  const CGRect frame{left, kGlassAboveCentre + kTabsTop, kTabsWidth, kTabsHeight};
  const auto outline = add_plate(*sheet_, frame, UIColor::clearColor(), kTabRadius);
  outline->layer().setBorderWidth(1);
  outline->layer().setBorderColor(UIColor::whiteColor().CGColor());
  chosen_ = add_plate(*sheet_, {left, frame.origin.y, kTabsWidth / 2, kTabsHeight},
                      UIColor::whiteColor(), kTabRadius);
  today_tab_ = add_tab("Today"_ns, {left, frame.origin.y, kTabsWidth / 2, kTabsHeight});
  messages_tab_ = add_tab("Notifications"_ns,
                          {left + kTabsWidth / 2, frame.origin.y, kTabsWidth / 2, kTabsHeight});
  actions_.on_press(*today_tab_, [this] { show_today(); });
  actions_.on_press(*messages_tab_, [this] { show_messages(); });
}

objc::Ref<UIButton> NotificationCentrePanel::add_tab(NSString title, CGRect frame) {
  auto tab = make_view<UIButton>(frame);
  tab->titleLabel().setFont(UIFont::fontWithName("HelveticaNeue-Medium"_ns, kTabSize));
  tab->setTitle(title, UIControlStateNormal);
  sheet_->addSubview(*tab);
  return tab;
}

void NotificationCentrePanel::add_today(const WallClock& clock) {
  const CGSize size = sheet_->bounds().size;
  const CGFloat width = std::min(size.width, kWidestPage);
  today_ = make_view<UIView>({(size.width - width) / 2, kGlassAboveCentre + kPageTop, width,
                              size.height - kGlassAboveCentre - kPageTop - kGrip});
  sheet_->addSubview(*today_);
  const std::string date = clock.date_text();
  const std::size_t comma = date.find(", ");
  const TextLook look{"HelveticaNeue-Thin"_ns, kTodaySize, UIColor::whiteColor(),
                      NSTextAlignmentLeft};
  const auto first = add_label(*today_, {kPageMargin, 8, width - 2 * kPageMargin, kDateLine}, look);
  const auto second =
      add_label(*today_, {kPageMargin, 8 + kDateLine, width - 2 * kPageMargin, kDateLine}, look);
  first->setText(to_ns(date.substr(0, comma) + ","));
  second->setText(to_ns(comma == std::string::npos ? "" : date.substr(comma + 2)));
  const auto line =
      add_label(*today_, {kPageMargin, 22 + 2 * kDateLine, width - 2 * kPageMargin, 22},
                {"HelveticaNeue"_ns, 15, UIColor::colorWithWhite(1, 0.6), NSTextAlignmentLeft});
  line->setText("There is nothing in the calendar for today."_ns);
}

void NotificationCentrePanel::add_messages(std::function<void()> clear) {
  const CGSize size = sheet_->bounds().size;
  const CGFloat width = std::min(size.width, kWidestPage);
  messages_ = make_view<UIView>(today_->frame());
  messages_->setClipsToBounds(YES);
  sheet_->addSubview(*messages_);
  header_ = make_view<UIView>({0, 0, width, kHeader});
  messages_->addSubview(*header_);
  const auto title =
      add_label(*header_, {kPageMargin, 0, width - 2 * kPageMargin, kHeader},
                {"HelveticaNeue-Medium"_ns, 17, UIColor::whiteColor(), NSTextAlignmentLeft});
  title->setText("Messages"_ns);
  clear_ = add_glyph_button(*header_, "surface-clear"_ns,
                            {width - kPageMargin - 30, 0, 40, kHeader}, UIColor::whiteColor());
  actions_.on_press(*clear_, std::move(clear));
  rows_ = make_view<UIView>({0, kHeader, width, messages_->bounds().size.height - kHeader});
  rows_->setUserInteractionEnabled(NO);
  messages_->addSubview(*rows_);
  empty_ = add_label(*messages_, {0, messages_->bounds().size.height * 0.36, width, 30},
                     {"HelveticaNeue-Light"_ns, 22, UIColor::colorWithWhite(1, 0.5)});
  empty_->setText("No Notifications"_ns);
}

void NotificationCentrePanel::show(const std::vector<Notification>& messages) {
  for (const UIView row : rows_->subviews().of<UIView>())
    row.removeFromSuperview();
  empty_->setHidden(messages.empty() ? NO : YES);
  header_->setHidden(messages.empty() ? YES : NO);
  const CGFloat width = rows_->bounds().size.width;
  const CGFloat pixel = 1 / UIScreen::mainScreen().scale();
  CGFloat top = 0;
  for (const Notification& message : messages) {
    add_plate(*rows_, {kPageMargin, top, width - kPageMargin, pixel},
              UIColor::colorWithWhite(1, kPageLineAlpha));
    add_notification_row(*rows_, {0, top, width, kNotificationRowHeight}, message);
    top += kNotificationRowHeight;
  }
}

void NotificationCentrePanel::show_today() {
  show_tab(true);
}

void NotificationCentrePanel::show_messages() {
  show_tab(false);
}

void NotificationCentrePanel::show_tab(bool today) {
  today_->setHidden(today ? NO : YES);
  messages_->setHidden(today ? YES : NO);
  chosen_->setFrame((today ? today_tab_ : messages_tab_)->frame());
  const UIColor on_white = UIColor::colorWithWhite(0.1, 1);
  today_tab_->setTitleColor(today ? on_white : UIColor::whiteColor(), UIControlStateNormal);
  messages_tab_->setTitleColor(today ? UIColor::whiteColor() : on_white, UIControlStateNormal);
}

}  // namespace host::springboard
