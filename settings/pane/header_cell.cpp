#include "settings/pane/header_cell.h"

#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScreen.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

constexpr CGFloat kHeaderLogoSide = 130;
constexpr CGFloat kHeaderLogoTop = 10;
constexpr CGFloat kNameTop = kHeaderLogoTop + kHeaderLogoSide + 5;
constexpr CGFloat kProductNameHeight = 50;
constexpr CGFloat kProductNameSize = 50;
constexpr CGFloat kHeight = 184;

objc::Ref<UIImageView> logo(CGFloat width) {
  auto view = objc::adopt(UIImageView::alloc().initWithFrame(
      {(width - kHeaderLogoSide) / 2, kHeaderLogoTop, kHeaderLogoSide, kHeaderLogoSide}));
  view->setImage(asset<"logo_setup.png">());
  return view;
}

objc::Ref<UILabel> name(CGFloat width) {
  auto label =
      objc::adopt(UILabel::alloc().initWithFrame({0, kNameTop, width, kProductNameHeight}));
  label->setText("Sonavue2"_ns);
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setFont(UIFont::fontWithName("HelveticaNeue-UltraLight"_ns, kProductNameSize));
  label->setTextColor(UIColor::redColor());
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
    const auto background = logo(width);
    const auto desc = name(width);
    self.addSubview(background);
    self.addSubview(desc);
    objc::send<>(*desc, "startShimmering"_sel);
    background_ = background;
    desc_ = desc;
  }

  // Borrowed: the cell owns both as subviews.
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
