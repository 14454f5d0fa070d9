#include "host/springboard/switcher/switcher_card.h"

#include <cmath>

#include "host/springboard/common/make_view.h"
#include "host/springboard/parts/surface_parts.h"

namespace host::springboard {
namespace {

constexpr CGFloat kIconTop = 20;
constexpr CGFloat kNameTop = 4;
constexpr CGFloat kNameHeight = 18;
constexpr CGFloat kNameSize = 13;
constexpr CGFloat kCardGround = 0.13;
// A share of the card's height; a faster finger need not move as far.
constexpr CGFloat kFarEnoughToClose = 0.35;
constexpr CGFloat kFastEnoughToClose = 500;
// The share of the finger's movement that a card follows in a direction it cannot go.
constexpr CGFloat kCardGive = 0.25;
constexpr double kCardLeaving = 0.25;
constexpr double kFalling = 0.4;
constexpr CGFloat kCardDamping = 0.8;

}  // namespace

SwitcherCard::SwitcherCard(UIView row, CGRect frame, const Content& content, Callbacks callbacks)
    : bundle_(content.bundle),
      callbacks_(std::move(callbacks)),
      home_y_(frame.centre().y),
      screen_(make_view<UIImageView>(frame)) {
  screen_->setBackgroundColor(UIColor::colorWithWhite(kCardGround, 1));
  screen_->setImage(content.picture);
  screen_->setUserInteractionEnabled(YES);
  row.addSubview(*screen_);
  add_label(row, frame, content);
  actions_.on_tap(*screen_, [this] { callbacks_.chosen(); });
  actions_.on_tap(*label_, [this] { callbacks_.chosen(); });
  actions_.on_upright_pan(*screen_, [this](UIPanGestureRecognizer pan) { panned(pan); });
}

SwitcherCard::~SwitcherCard() {
  screen_->removeFromSuperview();
  label_->removeFromSuperview();
}

void SwitcherCard::add_label(UIView row, CGRect frame, const Content& content) {
  const CGSize icon = content.icon.size();
  const CGFloat height = icon.height + kNameTop + kNameHeight;
  label_ = make_view<UIView>({frame.min_x(), frame.max_y() + kIconTop, frame.size.width, height});
  row.addSubview(*label_);
  auto image = objc::Ref<UIImageView>::adopt(UIImageView::alloc().initWithImage(content.icon));
  image->setCenter({frame.size.width / 2, icon.height / 2});
  label_->addSubview(*image);
  const auto name =
      springboard::add_label(*label_, {0, icon.height + kNameTop, frame.size.width, kNameHeight},
                             {"HelveticaNeue"_ns, kNameSize, UIColor::whiteColor()});
  name->setText(content.name);
}

void SwitcherCard::set_centre_x(CGFloat x) const {
  screen_->setCenter({x, CGPoint(screen_->center()).y});
  label_->setCenter({x, CGPoint(label_->center()).y});
}

void SwitcherCard::set_label_alpha(CGFloat alpha) const {
  label_->setAlpha(alpha);
}

void SwitcherCard::panned(UIPanGestureRecognizer pan) {
  const CGFloat way = pan.translationInView(nil).y;
  switch (pan.state()) {
    case UIGestureRecognizerStateBegan:
    case UIGestureRecognizerStateChanged:
      lift(way);
      break;
    case UIGestureRecognizerStateEnded:
      if (is_thrown(way, pan.velocityInView(nil).y)) return callbacks_.thrown();
      [[fallthrough]];
    default:
      fall_back();
  }
}

bool SwitcherCard::is_thrown(CGFloat way, CGFloat velocity) const {
  if (bundle_.empty() || way >= 0 || velocity > kFastEnoughToClose) return false;
  return velocity < -kFastEnoughToClose ||
         -way > kFarEnoughToClose * CGRect(screen_->bounds()).size.height;
}

void SwitcherCard::lift(CGFloat way) const {
  const bool free = way < 0 && !bundle_.empty();
  const CGFloat moved = free ? way : way * kCardGive;
  screen_->setCenter({CGPoint(screen_->center()).x, home_y_ + moved});
}

void SwitcherCard::fall_back() const {
  UIView::animateWithDuration(kFalling, 0, kCardDamping, 0,
                              UIViewAnimationOptionAllowUserInteraction,
                              objc::block([screen = *screen_, y = home_y_] {
                                screen.setCenter({CGPoint(screen.center()).x, y});
                              }),
                              objc::Block<void(BOOL)>());
}

void SwitcherCard::fly_away(const std::function<void()>& flown) const {
  screen_->setUserInteractionEnabled(NO);
  label_->setUserInteractionEnabled(NO);
  const CGFloat above = -CGRect(screen_->bounds()).size.height / 2;
  UIView::animateWithDuration(kCardLeaving,
                              objc::block([screen = *screen_, label = *label_, above] {
                                screen.setCenter({CGPoint(screen.center()).x, above});
                                label.setAlpha(0);
                              }),
                              objc::block([flown](BOOL) { flown(); }));
}

}  // namespace host::springboard
