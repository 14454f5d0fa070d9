#include "host/activator/page/page_look.h"

#include <algorithm>
#include <cmath>

#include "host/activator/event/strings.h"
#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UILabel.h"

namespace host::activator {
namespace {

constexpr CGFloat kCaptionFont = 13;
constexpr CGFloat kCaptionRise = 7;  // from the rows
constexpr CGFloat kNoteGap = 8;
constexpr CGFloat kIconCorner = 6.5;
constexpr CGFloat kDotSide = 13;

objc::Ref<UILabel> make_text(NSString text, CGFloat width) {
  auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame({0, 0, width, 0}));
  label->setFont(UIFont::systemFontOfSize(kCaptionFont));
  label->setTextColor(caption_color());
  label->setNumberOfLines(0);
  label->setText(text);
  return label;
}

void draw_placeholder() {
  UIColor::colorWithWhite(0.78, 1).setFill();
  UIBezierPath::bezierPathWithRect({0, 0, kIconSide, kIconSide}).fill();
  UIColor::whiteColor().setFill();
  const CGFloat start = (kIconSide - kDotSide) / 2;
  UIBezierPath::bezierPathWithOvalInRect({start, start, kDotSide, kDotSide}).fill();
}

}  // namespace

UIColor ground_color() {
  return UIColor::colorWithRed(239.0 / 255, 239.0 / 255, 244.0 / 255, 1);
}

UIColor caption_color() {
  return UIColor::colorWithRed(109.0 / 255, 109.0 / 255, 114.0 / 255, 1);
}

objc::Ref<UITableView> make_table(CGRect bounds, objc::Object source) {
  auto table = objc::Ref<UITableView>::adopt(
      UITableView::alloc().initWithFrame(bounds, UITableViewStyleGrouped));
  table->setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  table->setBackgroundColor(ground_color());
  table->setDataSource(source);
  table->setDelegate(source);
  return table;
}

UIView make_caption(NSString text, CGFloat width, CGFloat height) {
  const auto ground = UIView::alloc().initWithFrame({0, 0, width, height}).autorelease();
  ground.setBackgroundColor(ground_color());
  const auto label = make_text(text.uppercaseString(), width - 2 * kMargin);
  const CGFloat line = std::ceil(label->sizeThatFits({width, height}).height);
  label->setFrame({kMargin, height - line - kCaptionRise, width - 2 * kMargin, line});
  label->setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  ground.addSubview(label.get());
  return ground;
}

CGFloat note_height(NSString text, CGFloat width) {
  const CGFloat room = width - 2 * kMargin;
  return std::ceil(make_text(text, room)->sizeThatFits({room, kManyLines}).height) + 2 * kNoteGap;
}

UIView make_note(NSString text, CGFloat width) {
  const CGFloat height = note_height(text, width);
  const auto ground = UIView::alloc().initWithFrame({0, 0, width, height}).autorelease();
  ground.setBackgroundColor(ground_color());
  const auto label = make_text(text, width - 2 * kMargin);
  label->setFrame({kMargin, kNoteGap, width - 2 * kMargin, height - 2 * kNoteGap});
  label->setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  ground.addSubview(label.get());
  return ground;
}

UIImage row_icon(const std::string& file) {
  const CGRect place{0, 0, kIconSide, kIconSide};
  const UIImage picture = file.empty() ? UIImage() : UIImage::imageWithContentsOfFile(to_ns(file));
  UIGraphicsBeginImageContextWithOptions(place.size, NO, 0);
  UIBezierPath::bezierPathWithRoundedRect(place, kIconCorner).addClip();
  if (picture) {
    picture.drawInRect(place);
  } else {
    draw_placeholder();
  }
  const UIImage icon = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return icon;
}

}  // namespace host::activator
