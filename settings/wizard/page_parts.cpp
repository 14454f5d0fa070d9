#include "settings/wizard/page_parts.h"

#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"
#include "settings/wizard/linker.h"

namespace sonavue {
namespace {

constexpr CGFloat kTextSize = 30;

}  // namespace

UIView add_text_page(NSMutableArray pages, const PageText& text) {
  const auto page = objc::adopt(UIViewController::alloc().init());
  page->view().setBackgroundColor(UIColor::whiteColor());
  const auto label = objc::adopt(UILabel::alloc().initWithFrame(text.frame));
  label->setText(text.text);
  label->setNumberOfLines(text.lines);
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setFont(UIFont::fontWithName("HelveticaNeue-UltraLight"_ns, kTextSize));
  page->view().addSubview(label);
  pages.addObject(page);
  return page->view();
}

void add_linker(UIView page, CGRect frame, NSString name, NSString picture, styleController target,
                objc::Sel action) {
  const auto linker = objc::adopt(Linker::alloc().initWithFrame(
      frame, name, UIImage::imageWithContentsOfFile(picture), YES, target, action));
  if (linker) page.addSubview(linker);
}

}  // namespace sonavue
