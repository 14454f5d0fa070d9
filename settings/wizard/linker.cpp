#include "settings/wizard/linker.h"

#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"
#include "settings/pictures.h"
#include "settings/wizard/row.h"
#include "ui/taps.h"

namespace sonavue {
namespace {

constexpr CGFloat kArrowWidth = 25;
constexpr CGFloat kArrowFromRight = 45;

void add_arrow(UIView view) {
  const CGSize size = view.frame().size;
  const auto arrow = objc::adopt(UIImageView::alloc().initWithFrame(
      {size.width - kArrowFromRight, 0, kArrowWidth, size.height}));
  arrow->setContentMode(UIViewContentModeCenter);
  arrow->setImage(imageFromFile("dir"_ns));
  view.addSubview(arrow);
}

void inizialize(Linker self, NSString name, UIImage image, BOOL border, objc::Object target,
                objc::Sel action) {
  dress_as_row(self, name, image, border ? RowBorder::kHairline : RowBorder::kNone);
  add_arrow(self);
  add_tap(self, target, action);
}

Linker init_linker(Linker self, CGRect frame, NSString name, UIImage image, BOOL border,
                   objc::Object target, objc::Sel action) {
  const auto made = objc::send_super<Linker>(self, Linker::cls(), "initWithFrame:"_sel, frame);
  objc::send<>(made, "inizialize:image:border:target:action:"_sel, name, image, border, target,
               action);
  return made;
}

}  // namespace

void make_linker() {
  objc::make_own_class<Linker>([](objc::ClassBuilder& builder) {
    builder.method<&init_linker>("initWithFrame:name:image:border:target:action:")
        .method<&inizialize>("inizialize:image:border:target:action:");
  });
}

}  // namespace sonavue
