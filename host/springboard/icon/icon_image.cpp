#include "host/springboard/icon/icon_image.h"

#include <string>

#include "host/springboard/common/screen_grid.h"
#include "host/springboard/model/strings.h"
#include "platform/UIKit/NSStringDrawing.h"
#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"

namespace host::springboard {
namespace {

// A share of the side; the platform's corners are slightly rounder than a circular arc.
constexpr CGFloat kCornerRatio = 0.225;
constexpr CGFloat kFolderGroundAlpha = 0.38;
constexpr CGFloat kFolderMargin = 0.13;
constexpr CGFloat kFolderGap = 0.07;
constexpr NSUInteger kFolderColumns = 3;
constexpr NSUInteger kFolderCount = 9;
constexpr CGFloat kGrey = 0.45;
constexpr CGFloat kLetterRatio = 0.6;
// The band and the texts of a calendar's picture, as shares of the side.
constexpr CGFloat kBandRatio = 0.258;
constexpr CGFloat kWeekdayRatio = 0.165;
constexpr CGFloat kDayRatio = 0.6;

/// Draws into an image of the size of an icon, at the screen's scale.
template <class Draw>
UIImage drawn_image(CGFloat side, Draw draw) {
  UIGraphicsBeginImageContextWithOptions({side, side}, NO, 0);
  draw();
  const UIImage image = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return image;
}

void fill_ground(CGFloat side, UIColor color) {
  color.setFill();
  UIBezierPath::bezierPathWithRoundedRect({0, 0, side, side}, side * kCornerRatio).fill();
}

/// Draws one centred line of text whose vertical middle is at `middle`.
void draw_line(NSString text, NSString font_name, CGFloat size, CGFloat side, CGFloat middle) {
  const UIFont font = UIFont::fontWithName(font_name, size);
  const CGFloat height = font.lineHeight();
  objc::cast<NSStringDrawing>(text).drawInRect({0, middle - height / 2, side, height}, font,
                                               NSLineBreakByClipping, NSTextAlignmentCenter);
}

CGRect folder_cell(CGFloat side, NSUInteger index) {
  const CGFloat margin = side * kFolderMargin;
  const CGFloat gap = side * kFolderGap;
  const CGFloat cell = (side - 2 * margin - 2 * gap) / kFolderColumns;
  return {margin + static_cast<CGFloat>(index % kFolderColumns) * (cell + gap),
          margin + static_cast<CGFloat>(index / kFolderColumns) * (cell + gap), cell, cell};
}

}  // namespace

UIImage application_image(SBApplication application) {
  const NSString name = is_tablet_screen() ? "/Icon~ipad.png"_ns : "/Icon.png"_ns;
  return UIImage::imageWithContentsOfFile(application.path().stringByAppendingString(name));
}

UIImage calendar_image(UIImage ground, const CalendarDay& day) {
  const CGFloat side = screen_grid().icon_side;
  return drawn_image(side, [&] {
    ground.drawInRect({0, 0, side, side});
    const CGFloat band = side * kBandRatio;
    UIColor::whiteColor().set();
    draw_line(to_ns(day.weekday), "HelveticaNeue-Medium"_ns, side * kWeekdayRatio, side, band / 2);
    UIColor::blackColor().set();
    draw_line(to_ns(std::to_string(day.number)), "HelveticaNeue-Light"_ns, side * kDayRatio, side,
              (band + side) / 2);
  });
}

UIImage initial_image(NSString name) {
  const CGFloat side = screen_grid().icon_side;
  return drawn_image(side, [&] {
    fill_ground(side, UIColor::colorWithWhite(kGrey, 1));
    if (name.length() == 0) return;
    UIColor::whiteColor().set();
    draw_line(name.substringToIndex(1), "HelveticaNeue-Light"_ns, side * kLetterRatio, side,
              side / 2);
  });
}

UIImage folder_image(NSArray images) {
  const CGFloat side = screen_grid().icon_side;
  return drawn_image(side, [&] {
    fill_ground(side, UIColor::colorWithWhite(1, kFolderGroundAlpha));
    NSUInteger index = 0;
    for (const UIImage image : images.of<UIImage>()) {
      if (index == kFolderCount) break;
      image.drawInRect(folder_cell(side, index++));
    }
  });
}

}  // namespace host::springboard
