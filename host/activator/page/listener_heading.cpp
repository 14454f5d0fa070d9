#include "host/activator/page/listener_heading.h"

#include <algorithm>
#include <cmath>

#include "host/activator/event/strings.h"
#include "host/activator/page/page_look.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"

namespace host::activator {
namespace {

constexpr CGFloat kTop = 20;
constexpr CGFloat kBelow = 12;
constexpr CGFloat kTitleFont = 17;
constexpr CGFloat kTextFont = 13;

/// Returns the bottom of the label.
CGFloat add_label(UIView view, NSString text, UIFont font, UIColor color, CGPoint origin,
                  CGFloat width) {
  if (text.length() == 0) return origin.y;
  const UILabel label = UILabel::alloc().initWithFrame({origin, {width, 0}});
  label.setFont(font);
  label.setTextColor(color);
  label.setNumberOfLines(0);
  label.setText(text);
  const CGFloat height = std::ceil(label.sizeThatFits({width, kManyLines}).height);
  label.setFrame({origin, {width, height}});
  view.addSubview(label);
  label.release();
  return origin.y + height;
}

}  // namespace

UIView make_listener_heading(const ListenerRecord& record, CGFloat width) {
  const auto heading = UIView::alloc().initWithFrame({0, 0, width, 0}).autorelease();
  heading.setBackgroundColor(ground_color());
  const UIImageView icon = UIImageView::alloc().initWithImage(row_icon(record.icon));
  icon.setFrame({kMargin, kTop, kIconSide, kIconSide});
  heading.addSubview(icon);
  icon.release();

  const CGFloat left = kMargin + kIconSide + kMargin;
  const CGFloat room = width - left - kMargin;
  CGFloat bottom =
      add_label(heading, to_ns(record.shown_title()), UIFont::boldSystemFontOfSize(kTitleFont),
                UIColor::blackColor(), {left, kTop}, room);
  bottom = add_label(heading, to_ns(record.description), UIFont::systemFontOfSize(kTextFont),
                     caption_color(), {left, bottom}, room);
  heading.setFrame({0, 0, width, std::max(bottom, kTop + kIconSide) + kBelow});
  return heading;
}

}  // namespace host::activator
