#include "host/uikit/scroll/group_title.h"

#include <cmath>

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UILabel.h"

namespace host::uikit {
namespace {

constexpr double kGroupMargin = 15;
constexpr double kGroupFontSize = 13;
/// The gap between the text and its rows.
constexpr double kRise = 7;
constexpr double kFirstGap = 35;
constexpr double kGap = 17.5;
constexpr double kBelowFooter = 10;
constexpr double kManyLines = 10000;

objc::Ref<UILabel> make_label(NSString text, GroupEnd end) {
  auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame({}));
  label->setFont(UIFont::systemFontOfSize(kGroupFontSize));
  label->setTextColor(UIColor::colorWithRed(109.0 / 255, 109.0 / 255, 114.0 / 255, 1));
  label->setNumberOfLines(0);
  label->setText(end == GroupEnd::Header ? text.uppercaseString() : text);
  return label;
}

double text_height(UILabel label, double width) {
  return std::ceil(label.sizeThatFits({width - 2 * kGroupMargin, kManyLines}).height);
}

}  // namespace

UIColor group_ground_color() {
  return UIColor::colorWithRed(239.0 / 255, 239.0 / 255, 244.0 / 255, 1);
}

double group_title_height(NSString text, GroupEnd end, bool is_first, double width) {
  const bool is_header = end == GroupEnd::Header;
  const double gap = is_header && is_first ? kFirstGap : kGap;
  if (text.length() == 0) return gap;
  const double height = text_height(make_label(text, end).get(), width);
  return is_header ? gap + height + kRise : kRise + height + kBelowFooter;
}

objc::Ref<UIView> make_group_title(NSString text, GroupEnd end, CGSize size) {
  auto ground = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({{}, size}));
  const auto label = make_label(text, end);
  const double height = text_height(label.get(), size.width);
  const double top = end == GroupEnd::Header ? size.height - kRise - height : kRise;
  label->setFrame({kGroupMargin, top, size.width - 2 * kGroupMargin, height});
  label->setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  ground->addSubview(label.get());
  return ground;
}

}  // namespace host::uikit
