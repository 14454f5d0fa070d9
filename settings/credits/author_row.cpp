#include "settings/credits/author_row.h"

#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScreen.h"
#include "settings/pictures.h"

namespace sonavue {
namespace {

constexpr CGFloat kRowPhotoSide = 60;
constexpr CGFloat kPhotoX = 10;
constexpr CGFloat kTextX = kPhotoX + kRowPhotoSide + 10;
constexpr CGFloat kRowRoleSize = 14;
constexpr CGFloat kLineGap = 2;
constexpr CGSize kArrow = {8, 15};
constexpr CGFloat kArrowMargin = 15;

void add_photo(PSTableCell cell, const Author& author) {
  const auto photo = objc::adopt(UIImageView::alloc().initWithFrame(
      {kPhotoX, (kAuthorRowHeight - kRowPhotoSide) / 2, kRowPhotoSide, kRowPhotoSide}));
  photo->layer().setMasksToBounds(YES);
  photo->layer().setCornerRadius(kRowPhotoSide / 2);
  photo->setImage(imageFromFile(as_text(author.photo)));
  cell.addSubview(photo);
}

/// A label of the size of its text.
objc::Ref<UILabel> line(const char* text, UIFont font) {
  auto label = objc::adopt(UILabel::alloc().init());
  label->setText(as_text(text));
  label->setFont(font);
  label->sizeToFit();
  return label;
}

/// Adds both lines, centred vertically as a pair.
void add_texts(PSTableCell cell, const Author& author) {
  const auto name = line(author.name, UIFont::fontWithName("HelveticaNeue-UltraLight"_ns,
                                                           UIFont::labelFontSize() + 1));
  const auto role = line(author.role, UIFont::fontWithName("HelveticaNeue-Light"_ns, kRowRoleSize));
  const CGSize name_size = name->frame().size;
  const CGSize role_size = role->frame().size;
  const CGFloat top = (kAuthorRowHeight - name_size.height - kLineGap - role_size.height) / 2;
  name->setFrame({{kTextX, top}, name_size});
  role->setFrame({{kTextX, top + name_size.height + kLineGap}, role_size});
  cell.addSubview(name);
  cell.addSubview(role);
}

void add_arrow(PSTableCell cell) {
  const CGFloat width = UIScreen::mainScreen().bounds().size.width;
  const auto arrow = objc::adopt(UIImageView::alloc().initWithFrame(
      {{width - kArrowMargin - kArrow.width, (kAuthorRowHeight - kArrow.height) / 2}, kArrow}));
  arrow->setImage(imageFromFile("dir"_ns));
  cell.addSubview(arrow);
}

}  // namespace

void fill_author_row(PSTableCell cell, const Author& author) {
  add_photo(cell, author);
  add_texts(cell, author);
  add_arrow(cell);
  cell.setBackgroundColor(UIColor::whiteColor());
}

}  // namespace sonavue
