#include "host/springboard/icon/icon_image.h"

#include "host/springboard/screen_grid.h"
#include "platform/UIKit/NSStringDrawing.h"
#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"

namespace host::springboard {
namespace {

// Of the side; the platform's icons are a little rounder than a circle's arc makes them.
constexpr CGFloat kCornerRatio = 0.225;
constexpr CGFloat kFolderGroundAlpha = 0.38;
constexpr CGFloat kFolderMargin = 0.13;
constexpr CGFloat kFolderGap = 0.07;
constexpr NSUInteger kFolderColumns = 3;
constexpr NSUInteger kFolderCount = 9;
constexpr CGFloat kGrey = 0.45;
constexpr CGFloat kLetterRatio = 0.6;

/// Draws into an image of one icon's size at the screen's scale.
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

UIImage initial_image(NSString name) {
  const CGFloat side = screen_grid().icon_side;
  return drawn_image(side, [&] {
    fill_ground(side, UIColor::colorWithWhite(kGrey, 1));
    if (name.length() == 0) return;
    const UIFont font = UIFont::fontWithName("HelveticaNeue-Light"_ns, side * kLetterRatio);
    const NSString letter = name.substringToIndex(1);
    UIColor::whiteColor().set();
    const CGRect line(0, (side - font.lineHeight()) / 2, side, font.lineHeight());
    objc::cast<NSStringDrawing>(letter).drawInRect(line, font, NSLineBreakByClipping,
                                                   NSTextAlignmentCenter);
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
