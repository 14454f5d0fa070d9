#include "settings/wizard/row.h"

#include "objc/ref.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"

namespace sonavue {
namespace {

constexpr CGFloat kRowLine = 0.5;
constexpr CGPoint kIconOrigin = {20, 8};
constexpr CGFloat kTitleGap = 15;

/// Adds the icon and returns the x at which the title begins.
CGFloat add_icon(UIView view, UIImage image) {
  const CGFloat side = view.frame().size.height - 2 * kIconOrigin.y;
  const auto icon = objc::adopt(UIImageView::alloc().initWithFrame({kIconOrigin, {side, side}}));
  icon->setContentMode(UIViewContentModeCenter);
  icon->setImage(image);
  view.addSubview(icon);
  return image ? kIconOrigin.x + side + kTitleGap : kTitleGap;
}

void add_title(UIView view, NSString text, CGFloat x) {
  const auto title = objc::adopt(UILabel::alloc().init());
  title->setText(text);
  title->sizeToFit();
  const CGSize size = title->frame().size;
  title->setFrame({{x, (view.frame().size.height - size.height) / 2}, size});
  view.addSubview(title);
}

}  // namespace

void add_hairline(UIView view) {
  view.layer().setBorderWidth(kRowLine);
  view.layer().setBorderColor(UIColor::grayColor().CGColor());
}

void dress_as_row(UIView view, NSString name, UIImage image, RowBorder border) {
  view.setBackgroundColor(UIColor::whiteColor());
  view.layer().setName(name);
  if (border == RowBorder::kHairline) {
    view.layer().setMasksToBounds(YES);
    add_hairline(view);
  }
  add_title(view, name, add_icon(view, image));
}

}  // namespace sonavue
