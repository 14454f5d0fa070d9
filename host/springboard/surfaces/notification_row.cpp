#include "host/springboard/surfaces/notification_row.h"

#include "host/springboard/common/make_view.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"
#include "platform/SpringBoard/SBIconController.h"

namespace host::springboard {
namespace {

constexpr CGFloat kMargin = 15;
constexpr CGFloat kIcon = 20;
constexpr CGFloat kTextLeft = 46;
constexpr CGFloat kTop = 9;
constexpr CGFloat kLine = 19;
constexpr CGFloat kTitleSize = 14;
constexpr CGFloat kTimeWidth = 70;
constexpr CGFloat kTimeSize = 12;

}  // namespace

objc::Ref<UIView> add_notification_row(UIView parent, CGRect frame,
                                       const Notification& notification) {
  auto row = make_view<UIView>(frame);
  row->setUserInteractionEnabled(NO);
  parent.addSubview(*row);
  const SBIcon icon =
      SBIconController::sharedInstance().model().expectedIconForDisplayIdentifier(to_ns(kMessages));
  const auto image = make_view<UIImageView>({kMargin, kTop, kIcon, kIcon});
  image->setImage(icon.generateIconImage(SBIconImageFormatHomeScreen));
  row->addSubview(*image);
  const CGFloat width = frame.size.width - kTextLeft - kMargin;
  const auto title = add_label(
      *row, {kTextLeft, kTop, width - kTimeWidth, kLine},
      {"HelveticaNeue-Medium"_ns, kTitleSize, UIColor::whiteColor(), NSTextAlignmentLeft});
  title->setText(to_ns(notification.title));
  const auto time = add_label(
      *row, {kTextLeft + width - kTimeWidth, kTop, kTimeWidth, kLine},
      {"HelveticaNeue"_ns, kTimeSize, UIColor::colorWithWhite(1, 0.6), NSTextAlignmentRight});
  time->setText(to_ns(notification.time));
  const auto text =
      add_label(*row, {kTextLeft, kTop + kLine, width, kLine},
                {"HelveticaNeue"_ns, kTitleSize, UIColor::whiteColor(), NSTextAlignmentLeft});
  text->setText(to_ns(notification.text));
  return row;
}

}  // namespace host::springboard
