#include "tweak/search/search_field.h"

#include "tweak/Sonavue2.h"
#include "tweak/look/measures.h"
#include "tweak/look/pieces.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

objc::Ref<UIView> make_search_icon() {
  const CGFloat side = kSearchFieldHeight - 2 * kSearchIconInset;
  const auto icon = objc::adopt(
      UIImageView::alloc().initWithFrame({kSearchIconInset, kSearchIconInset, side, side}));
  search_icon = icon;
  icon->setImage(template_asset<"search@2x.png">());
  icon->setTintColor(UIColor::whiteColor());
  const CGFloat around = kSearchIconInset + side + kSearchIconInset;
  auto holder = objc::adopt(UIView::alloc().initWithFrame({0, 0, around, around}));
  holder->addSubview(icon);
  return holder;
}

}  // namespace

void make_search_field(SpringBoard self) {
  const auto field = objc::adopt(UITextField::alloc().initWithFrame(
      {0, kSearchFieldTop, searchCont.frame().size.width, kSearchFieldHeight}));
  searchBar = field;
  field->layer().setCornerRadius(kSearchFieldCorner);
  field->setClipsToBounds(YES);
  field->setTextColor(UIColor::whiteColor());
  field->setBackgroundColor(UIColor::colorWithWhite(0, 0.4));
  set_placeholder(UIColor::whiteColor());
  const auto icon = make_search_icon();
  field->setLeftView(icon);
  field->setLeftViewMode(UITextFieldViewModeAlways);
  field->setDelegate(self);
  field->addTarget(self, "textDidChange:"_sel, UIControlEventEditingChanged);
  searchCont.addSubview(field);
}

}  // namespace sonavue
