#include "host/uikit/navigation/back_button.h"

#include <cmath>

#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/QuartzCore/CAShapeLayer.h"
#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UILabel.h"

namespace host::uikit {
namespace {

constexpr char kBackButtonClassName[] = "UINavigationBarBackButton";
constexpr CGFloat kBackFontSize = 17;
constexpr CGFloat kChevronLeft = 8;
constexpr CGSize kChevronSize{13, 21};
constexpr CGFloat kChevronLine = 3;
/// How far the line's corners extend beyond the chevron.
constexpr CGFloat kChevronEdge = 2;
constexpr CGFloat kBackMargin = 8;
constexpr CGFloat kPressedBackAlpha = 0.2;

objc::Ref<UIView> make_chevron(UIColor color, CGFloat height) {
  const CGRect frame{kChevronLeft, (height - kChevronSize.height) / 2, kChevronSize.width,
                     kChevronSize.height};
  const auto view = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(frame));
  const CGFloat right = kChevronSize.width - kChevronEdge;
  const UIBezierPath line = UIBezierPath::bezierPath();
  line.moveToPoint({right, kChevronEdge / 2});
  line.addLineToPoint({kChevronEdge, kChevronSize.height / 2});
  line.addLineToPoint({right, kChevronSize.height - kChevronEdge / 2});
  const CAShapeLayer shape = CAShapeLayer::layer();
  shape.setFrame(view->bounds());
  shape.setPath(line.CGPath());
  shape.setFillColor(nullptr);
  shape.setStrokeColor(color.CGColor());
  shape.setLineWidth(kChevronLine);
  view->layer().addSublayer(shape);
  return view;
}

objc::Ref<UILabel> make_title(NSString title, UIColor tint, CGFloat height, CGFloat room) {
  const auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame({}));
  label->setFont(UIFont::systemFontOfSize(kBackFontSize));
  label->setTextColor(tint);
  const auto width_with = [&](NSString text) {
    label->setText(text);
    return std::ceil(label->sizeThatFits({HUGE_VAL, height}).width);
  };
  CGFloat width = width_with(title);
  if (kBackTitleLeft + width > room) width = width_with("Back"_ns);
  label->setFrame({kBackTitleLeft, 0, width, height});
  return label;
}

}  // namespace

void BackButton::fill(NSString title, UIColor tint, CGFloat height, CGFloat room) {
  chevron_ = make_chevron(tint, height);
  title_.reset(make_title(title, tint, height, room).get());
  for (const UIView part : {chevron_.get(), title_.get()}) {
    part.setUserInteractionEnabled(NO);
    self.addSubview(part);
  }
  self.setFrame({0, 0, CGRect(title_->frame()).max_x() + kBackMargin, height});
}

void BackButton::set_highlighted(BOOL highlighted) {
  super<>("setHighlighted:"_sel, highlighted);
  const CGFloat alpha = highlighted ? kPressedBackAlpha : 1;
  chevron_->setAlpha(alpha);
  title_->setAlpha(alpha);
}

void BackButton::place(CGFloat position) const {
  // Moves with the title of its page, which comes from or goes to the middle of the bar.
  const CGFloat middle = (self.superview().bounds().size.width - title_->bounds().size.width) / 2;
  title_->setTransform(CGAffineTransformMakeTranslation(position * (middle - kBackTitleLeft), 0));
}

objc::Ref<UIControl> make_back_button(NSString title, UIColor tint, CGFloat height, CGFloat room) {
  const auto made =
      objc::send<UIView>(objc::Object(objc_getClass(kBackButtonClassName)), "alloc"_sel);
  const auto button = objc::cast<UIControl>(made.initWithFrame({}));
  objc::state_of<BackButton>(button).fill(title, tint, height, room);
  return objc::Ref<UIControl>::adopt(button);
}

void export_back_button() {
  objc::ClassBuilder(kBackButtonClassName, "UIControl")
      .state<BackButton>()
      .method<&BackButton::set_highlighted>("setHighlighted:")
      .finish();
}

}  // namespace host::uikit
