#include "host/uikit/scroll/section_title.h"

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UILabel.h"

namespace host::uikit {
namespace {

constexpr double kSectionMargin = 15;
constexpr double kSectionFontSize = 14;
constexpr double kGrey = 247.0 / 255;

}  // namespace

objc::Ref<UIView> make_section_title(NSString title) {
  // An arbitrary size: the label resizes with the bar when the table sets its frame.
  constexpr double kWidth = 320;
  constexpr double kHeight = 28;
  auto bar = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({0, 0, kWidth, kHeight}));
  bar->setBackgroundColor(UIColor::colorWithWhite(kGrey, 1));
  const UILabel label =
      UILabel::alloc().initWithFrame({kSectionMargin, 0, kWidth - 2 * kSectionMargin, kHeight});
  label.setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  label.setFont(UIFont::boldSystemFontOfSize(kSectionFontSize));
  label.setText(title);
  bar->addSubview(label);
  label.release();
  return bar;
}

}  // namespace host::uikit
