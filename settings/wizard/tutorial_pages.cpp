#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"
#include "settings/wizard/page_parts.h"
#include "settings/wizard/question_pages.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

constexpr CGFloat kPictureSide = 100;
constexpr CGFloat kPictureCorner = 30;
constexpr CGFloat kTutorialRowHeight = 45;

void add_picture(UIView page, CGSize size) {
  const auto picture = objc::adopt(UIImageView::alloc().initWithFrame(
      {(size.width - kPictureSide) / 2, size.height / 2 + 60, kPictureSide, kPictureSide}));
  picture->layer().setMasksToBounds(YES);
  picture->layer().setCornerRadius(kPictureCorner);
  picture->setImage(asset<"tut1.png">());
  page.addSubview(picture);
}

}  // namespace

void add_tutorial_pages(NSMutableArray pages, CGRect bounds, styleController target) {
  const CGSize size = bounds.size;
  const CGRect whole = {0, 30, size.width, size.height - 60};
  constexpr NSInteger kManyLines = 20;
  add_picture(
      add_text_page(
          pages,
          {"To start using Sonavue just put your finger on the Music's icon and drag it. When you're ready release your finger and the interface will come."_ns,
           {0, 80, size.width, 210}}),
      size);
  add_text_page(
      pages,
      {"Sonavue's interface is easy to understand. In the middle there's the song artwork. If you tap twice this view you'll get a table that will contains all songs by the same artist ad the now playing music. There's also play/pause, nex, back to control easily your Music. If you swipe from the right youll' get a list of all of your Songs."_ns,
       whole, kManyLines});
  add_text_page(
      pages,
      {"You can invoke Sonavue also with an Activator Gesture. Sonavue's interface will change to a banner. You can now easily drag it like Notification Center."_ns,
       whole, kManyLines});
  add_linker(
      add_text_page(pages, {"Finish"_ns, {0, 30, size.width, size.height - 150}, kManyLines}),
      {0, size.height / 2 + 100, size.width, kTutorialRowHeight}, "Done"_ns,
      asset_path<"Finish@2x.png">(), target, "dismissIntro"_sel);
}

}  // namespace sonavue
