#include "settings/pane/header_cell.h"

#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScreen.h"

namespace sonavue {
namespace {

constexpr CGFloat kLogoSide = 130;
constexpr CGFloat kLogoTop = 10;
constexpr CGFloat kNameTop = kLogoTop + kLogoSide + 5;
constexpr CGFloat kNameHeight = 50;
constexpr CGFloat kNameSize = 50;
constexpr CGFloat kHeight = 184;

UIImageView logo(CGFloat width) {
  const UIImageView view =
      UIImageView::alloc().initWithFrame({(width - kLogoSide) / 2, kLogoTop, kLogoSide, kLogoSide});
  view.setImage(
      UIImage::imageWithContentsOfFile("/Library/Application Support/Sonavue/logo_setup.png"_ns));
  return view;
}

UILabel name(CGFloat width) {
  const UILabel label = UILabel::alloc().initWithFrame({0, kNameTop, width, kNameHeight});
  label.setText("Sonavue2"_ns);
  label.setTextAlignment(NSTextAlignmentCenter);
  label.setFont(UIFont::fontWithName("HelveticaNeue-UltraLight"_ns, kNameSize));
  label.setTextColor(UIColor::redColor());
  return label;
}

class HeaderCell : public objc::Implementation<HeaderCell, HeaderCellForSonavue> {
 public:
  using Implementation::Implementation;

  HeaderCellForSonavue init(PSSpecifier specifier) {
    const auto made =
        super<HeaderCellForSonavue>("initWithStyle:reuseIdentifier:specifier:"_sel,
                                    UITableViewCellStyleDefault, "headerCell"_ns, specifier);
    if (made) objc::state_of<HeaderCell>(made).build();
    made.setBackgroundColor(UIColor::clearColor());
    return made;
  }

  CGFloat preferred_height(CGFloat) { return kHeight; }

 private:
  void build() {
    const CGFloat width = UIScreen::mainScreen().bounds().size.width;
    background_ = logo(width);
    desc_ = name(width);
    self.addSubview(background_);
    self.addSubview(desc_);
    objc::send<>(desc_, "startShimmering"_sel);
    background_.release();
    desc_.release();
  }

  // Both belong to the cell.
  UIImageView background_;
  UILabel desc_;
};

}  // namespace

void make_header_cell() {
  objc::make_own_class<HeaderCellForSonavue>([](objc::ClassBuilder& builder) {
    builder.state<HeaderCell>()
        .method<&HeaderCell::init>("initWithSpecifier:")
        .method<&HeaderCell::preferred_height>("preferredHeightForWidth:");
  });
}

}  // namespace sonavue
