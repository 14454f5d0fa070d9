#include "tweak/look/pieces.h"

#include "platform/Foundation/NSAttributedString.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/UIKit/NSAttributedStringAdditions.h"
#include "tweak/Sonavue2.h"
#include "tweak/look/measures.h"

namespace sonavue {

objc::Ref<UIView> make_line(CGRect frame) {
  auto line = objc::adopt(UIView::alloc().initWithFrame(frame));
  line->setBackgroundColor(UIColor::whiteColor());
  return line;
}

UIView add_line_to_pages(CGRect frame) {
  const auto line = make_line(frame);
  container.addSubview(line);
  return line;
}

NSString tile_font() {
  return "HelveticaNeue"_ns;
}

objc::Ref<UILabel> make_tile_title(CGRect frame, NSString text) {
  auto label = objc::adopt(UILabel::alloc().initWithFrame(frame));
  label->setNumberOfLines(1);
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setFont(UIFont::fontWithName(tile_font(), kTileTitleSize));
  label->setText(text);
  return label;
}

void set_placeholder(UIColor colour) {
  const auto placeholder = objc::adopt(NSAttributedString::alloc().initWithString(
      "Search"_ns, NSDictionary::dictionaryWithObject(colour, NSForegroundColorAttributeName)));
  searchBar.setAttributedPlaceholder(placeholder);
}

}  // namespace sonavue
