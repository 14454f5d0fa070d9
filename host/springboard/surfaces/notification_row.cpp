#include "host/springboard/surfaces/notification_row.h"

#include "host/springboard/common/make_view.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"
#include "platform/SpringBoard/SBIconController.h"

namespace host::springboard {
namespace {

constexpr CGFloat kRowMargin = 15;
constexpr CGFloat kIcon = 20;
constexpr CGFloat kTextLeft = 46;
constexpr CGFloat kTop = 9;
constexpr CGFloat kTextLine = 19;
constexpr CGFloat kRowTitleSize = 14;
constexpr CGFloat kAgeWidth = 70;
constexpr CGFloat kAgeSize = 12;

}  // namespace

objc::Ref<UIView> add_notification_row(UIView parent, CGRect frame,
                                       const Notification& notification) {
  auto row = make_view<UIView>(frame);
  row->setUserInteractionEnabled(NO);
  parent.addSubview(*row);
  const SBIcon icon =
      SBIconController::sharedInstance().model().expectedIconForDisplayIdentifier(to_ns(kMessages));
  const auto image = make_view<UIImageView>({kRowMargin, kTop, kIcon, kIcon});
  image->setImage(icon.generateIconImage(SBIconImageFormatHomeScreen));
  row->addSubview(*image);
  const CGFloat width = frame.size.width - kTextLeft - kRowMargin;
  const auto title = add_label(
      *row, {kTextLeft, kTop, width - kAgeWidth, kTextLine},
      {"HelveticaNeue-Medium"_ns, kRowTitleSize, UIColor::whiteColor(), NSTextAlignmentLeft});
  title->setText(to_ns(notification.title));
  const auto time = add_label(
      *row, {kTextLeft + width - kAgeWidth, kTop, kAgeWidth, kTextLine},
      {"HelveticaNeue"_ns, kAgeSize, UIColor::colorWithWhite(1, 0.6), NSTextAlignmentRight});
  time->setText(to_ns(notification.time));
  const auto text =
      add_label(*row, {kTextLeft, kTop + kTextLine, width, kTextLine},
                {"HelveticaNeue"_ns, kRowTitleSize, UIColor::whiteColor(), NSTextAlignmentLeft});
  text->setText(to_ns(notification.text));
  return row;
}

}  // namespace host::springboard
