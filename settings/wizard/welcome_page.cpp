#include "settings/wizard/welcome_page.h"

#include "objc/block.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

constexpr CGFloat kWelcomeLogoSide = 130;
constexpr CGFloat kWelcomeLogoTop = 50;
constexpr CGFloat kTitleTop = kWelcomeLogoTop + kWelcomeLogoSide + 25;
constexpr CGFloat kTitleHeight = 50;
constexpr CGFloat kHelloTop = kTitleTop + kTitleHeight - 20;
constexpr CGFloat kHelloMargin = 15;
constexpr CGFloat kHintX = 65;
constexpr CGSize kMarkSize = {20, 70};
constexpr CGFloat kMarkFromBottom = 80;
constexpr CGSize kLetterSize = {15, 50};
constexpr CGFloat kLetterFromBottom = 65;
constexpr double kPartsFade = 0.8;
constexpr double kFadeStep = 0.08;

struct Letter {
  const char* text;
  CGFloat kerning;  // distance from the end of the previous part
};

// Tuned by eye for these glyphs.
constexpr Letter kLetters[WelcomePage::kHintParts - 1] = {
    {"s", 5},  {"l", -3}, {"i", -10}, {"d", -10}, {"e", -1}, {"t", 4},
    {"o", -8}, {"s", 5},  {"e", -3},  {"t", -2},  {"u", -8}, {"p", -2}};

struct Style {
  NSString font;
  CGFloat size;
  UIColor color;
};

objc::Ref<UILabel> centred_label(CGRect frame, NSString text, const Style& style) {
  auto label = objc::adopt(UILabel::alloc().initWithFrame(frame));
  label->setText(text);
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setFont(UIFont::fontWithName(style.font, style.size));
  label->setTextColor(style.color);
  return label;
}

NSString ultra_light() {
  return "HelveticaNeue-UltraLight"_ns;
}

void add_logo(UIView page) {
  const CGFloat x = (page.frame().size.width - kWelcomeLogoSide) / 2;
  const auto logo = objc::adopt(
      UIImageView::alloc().initWithFrame({x, kWelcomeLogoTop, kWelcomeLogoSide, kWelcomeLogoSide}));
  logo->setContentMode(UIViewContentModeScaleAspectFill);
  logo->setImage(asset<"logo_setup.png">());
  page.addSubview(logo);
}

void add_title(UIView page) {
  const auto title = centred_label({0, kTitleTop, page.frame().size.width, kTitleHeight},
                                   "Sonavue"_ns, {ultra_light(), 55, UIColor::redColor()});
  page.addSubview(title);
}

}  // namespace

objc::Ref<UIView> WelcomePage::build(CGRect bounds) {
  const CGSize size = bounds.size;
  auto page = objc::adopt(UIView::alloc().initWithFrame(bounds));
  add_logo(page);
  add_title(page);
  hello_ = centred_label(
      {kHelloMargin, kHelloTop, size.width - 2 * kHelloMargin, size.height / 2},
      "Welcome to Sonavue, a tweak that will improve the way of listening to Music! Swipe this page and set your preferences!"_ns,
      {ultra_light(), 28, UIColor::blackColor()});
  hello_->setNumberOfLines(10);
  page->addSubview(hello_);
  hint_[0] = centred_label({{kHintX, size.height - kMarkFromBottom}, kMarkSize}, "›"_ns,
                           {ultra_light(), 80, UIColor::blackColor()});
  page->addSubview(hint_[0]);
  add_letters(page, bounds);
  return page;
}

void WelcomePage::add_letters(UIView page, CGRect bounds) {
  CGFloat end = kHintX + kMarkSize.width;
  for (int i = 1; i < kHintParts; ++i) {
    const Letter& letter = kLetters[i - 1];
    const CGPoint origin = {end + letter.kerning, bounds.size.height - kLetterFromBottom};
    hint_[i] = centred_label({origin, kLetterSize}, NSString::stringWithUTF8String(letter.text),
                             {"HelveticaNeue-Light"_ns, 25, UIColor::blackColor()});
    page.addSubview(hint_[i]);
    end = origin.x + kLetterSize.width;
  }
}

void WelcomePage::wave(objc::Block<void(BOOL)> at_end) const {
  for (int i = 0; i < kHintParts; ++i) {
    // Retained: the labels may be released while the last wave is still running.
    const objc::Ref<UILabel> part = hint_[i];
    const bool is_last = i == kHintParts - 1;
    const objc::OwnedBlock<void(BOOL)> end(is_last ? at_end : nullptr);
    UIView::animateWithDuration(
        kPartsFade, kFadeStep * i, UIViewAnimationOptions{},
        objc::block([part] { part->setAlpha(0); }), objc::block([part, end](BOOL) {
          UIView::animateWithDuration(kPartsFade, 0, UIViewAnimationOptions{},
                                      objc::block([part] { part->setAlpha(1); }), end.get());
        }));
  }
}

void WelcomePage::release_labels() {
  hello_.reset();
  for (objc::Ref<UILabel>& part : hint_)
    part.reset();
}

}  // namespace sonavue
