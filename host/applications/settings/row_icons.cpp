#include "host/applications/settings/row_icons.h"

#include <initializer_list>
#include <numbers>

#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"

namespace host::settings {
namespace {

constexpr CGRect kPlace{0, 0, 29, 29};
constexpr CGFloat kIconCorner = 6.5;
constexpr CGFloat kLine = 1.75;
constexpr CGPoint kMiddle{14.5, 14.5};

UIColor color(int red, int green, int blue) {
  return UIColor::colorWithRed(red / 255.0, green / 255.0, blue / 255.0, 1);
}

UIBezierPath path_through(std::initializer_list<CGPoint> points) {
  const UIBezierPath path = UIBezierPath::bezierPath();
  bool is_first = true;
  for (const CGPoint point : points) {
    is_first ? path.moveToPoint(point) : path.addLineToPoint(point);
    is_first = false;
  }
  path.setLineWidth(kLine);
  return path;
}

void stroke_arc(CGPoint centre, CGFloat radius, CGFloat half_angle) {
  const UIBezierPath arc =
      UIBezierPath::bezierPathWithArcCenter(centre, radius, -half_angle, half_angle, YES);
  arc.setLineWidth(kLine);
  arc.stroke();
}

void draw_sounds() {
  path_through({{6.5, 12}, {9.5, 12}, {14, 8}, {14, 21}, {9.5, 17}, {6.5, 17}}).fill();
  constexpr CGFloat kSpread = std::numbers::pi / 4;
  stroke_arc({13, kMiddle.y}, 5, kSpread);
  stroke_arc({13, kMiddle.y}, 8.5, kSpread);
}

/// Two quavers on one beam.
void draw_music() {
  UIBezierPath::bezierPathWithOvalInRect({6.5, 18, 5.5, 4.5}).fill();
  UIBezierPath::bezierPathWithOvalInRect({16, 16, 5.5, 4.5}).fill();
  path_through({{11.1, 20}, {11.1, 9}, {20.6, 7}, {20.6, 18}}).stroke();
  path_through({{11.1, 8.2}, {20.6, 6.2}, {20.6, 9.4}, {11.1, 11.4}}).fill();
}

/// A flower: six petals around a centre.
void draw_wallpaper() {
  constexpr int kPetals = 6;
  for (int petal = 0; petal < kPetals; ++petal) {
    const CGFloat angle = petal * 2 * std::numbers::pi / kPetals;
    const CGPoint at{kMiddle.x + 5.4 * __builtin_cos(angle),
                     kMiddle.y + 5.4 * __builtin_sin(angle)};
    const UIBezierPath ring =
        UIBezierPath::bezierPathWithOvalInRect({at.x - 3.2, at.y - 3.2, 6.4, 6.4});
    ring.setLineWidth(1.25);
    ring.stroke();
  }
  UIBezierPath::bezierPathWithOvalInRect({kMiddle.x - 2, kMiddle.y - 2, 4, 4}).fill();
}

/// A fingertip and its path.
void draw_gestures() {
  UIBezierPath::bezierPathWithOvalInRect({6, 11, 7, 7}).fill();
  path_through({{14.5, kMiddle.y}, {23, kMiddle.y}}).stroke();
  path_through({{19.5, 11}, {23, kMiddle.y}, {19.5, 18}}).stroke();
}

void draw_about() {
  const UIBezierPath ring = UIBezierPath::bezierPathWithOvalInRect({6, 6, 17, 17});
  ring.setLineWidth(kLine);
  ring.stroke();
  UIBezierPath::bezierPathWithOvalInRect({13.25, 9.5, 2.5, 2.5}).fill();
  UIBezierPath::bezierPathWithRect({13.5, 13.25, 2, 6.25}).fill();
}

struct Drawing {
  int red, green, blue;
  void (*draw)();
};

Drawing drawing_of(RowIcon icon) {
  switch (icon) {
    case RowIcon::Sounds:
      return {255, 45, 85, &draw_sounds};
    case RowIcon::Music:
      return {255, 59, 48, &draw_music};
    case RowIcon::Wallpaper:
      return {84, 199, 252, &draw_wallpaper};
    case RowIcon::Gestures:
      return {88, 86, 214, &draw_gestures};
    case RowIcon::About:
      break;
  }
  return {142, 142, 147, &draw_about};
}

}  // namespace

UIImage row_icon(RowIcon icon) {
  const Drawing drawing = drawing_of(icon);
  UIGraphicsBeginImageContextWithOptions(kPlace.size, NO, 0);
  color(drawing.red, drawing.green, drawing.blue).setFill();
  UIBezierPath::bezierPathWithRoundedRect(kPlace, kIconCorner).fill();
  UIColor::whiteColor().set();
  drawing.draw();
  const UIImage image = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return image;
}

}  // namespace host::settings
