#include "host/uikit/scroll/cell_accessory.h"

#include <initializer_list>

#include "platform/QuartzCore/CAShapeLayer.h"
#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UIColor.h"

namespace host::uikit {
namespace {

constexpr CGSize kChevronSize{8, 13};
constexpr CGSize kCheckmarkSize{14, 11};
constexpr CGFloat kLineWidth = 2;

objc::Ref<UIView> make_mark(CGSize size, std::initializer_list<CGPoint> points, UIColor color) {
  const UIBezierPath line = UIBezierPath::bezierPath();
  bool is_first = true;
  for (const CGPoint point : points) {
    is_first ? line.moveToPoint(point) : line.addLineToPoint(point);
    is_first = false;
  }
  auto mark = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({{}, size}));
  mark->setUserInteractionEnabled(NO);
  const CAShapeLayer shape = CAShapeLayer::layer();
  shape.setFrame({{}, size});
  shape.setPath(line.CGPath());
  shape.setFillColor(nullptr);
  shape.setStrokeColor(color.CGColor());
  shape.setLineWidth(kLineWidth);
  mark->layer().addSublayer(shape);
  return mark;
}

}  // namespace

objc::Ref<UIView> make_cell_accessory(UITableViewCellAccessoryType type) {
  switch (type) {
    case UITableViewCellAccessoryDisclosureIndicator:
    case UITableViewCellAccessoryDetailDisclosureButton:
      return make_mark(kChevronSize, {{1, 1}, {6.5, 6.5}, {1, 12}},
                       UIColor::colorWithRed(199.0 / 255, 199.0 / 255, 204.0 / 255, 1));
    case UITableViewCellAccessoryCheckmark:
      return make_mark(kCheckmarkSize, {{1, 5.5}, {5, 9.5}, {13, 1}},
                       UIColor::colorWithRed(0, 122.0 / 255, 1, 1));
    case UITableViewCellAccessoryNone:
      break;
  }
  return {};
}

}  // namespace host::uikit
