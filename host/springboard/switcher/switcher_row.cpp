#include "host/springboard/switcher/switcher_row.h"

#include <algorithm>
#include <cmath>

#include "host/springboard/common/make_view.h"
#include "platform/CoreGraphics/CGAffineTransform.h"

namespace host::springboard {
namespace {

// A share of the screen's size.
constexpr CGFloat kCardPart = 0.54;
constexpr CGFloat kCardTop = 0.15;
constexpr CGFloat kCardGap = 22;
constexpr double kMovingUp = 0.35;

}  // namespace

SwitcherRow::SwitcherRow(UIView parent, objc::Object delegate)
    : scroll_(make_view<UIScrollView>(parent.bounds())) {
  scroll_->setShowsHorizontalScrollIndicator(NO);
  scroll_->setShowsVerticalScrollIndicator(NO);
  scroll_->setAlwaysBounceHorizontal(YES);
  scroll_->setDecelerationRate(UIScrollViewDecelerationRateFast);
  scroll_->setDelegate(delegate);
  parent.addSubview(*scroll_);
}

SwitcherRow::~SwitcherRow() {
  cards_.clear();
  thrown_.clear();
  scroll_->setDelegate(nil);
  scroll_->removeFromSuperview();
}

CGRect SwitcherRow::first_frame() const {
  const CGSize screen = CGRect(scroll_->bounds()).size;
  const CGSize card{std::round(screen.width * kCardPart), std::round(screen.height * kCardPart)};
  return {{std::round((screen.width - card.width) / 2), std::round(screen.height * kCardTop)},
          card};
}

CGFloat SwitcherRow::pitch() const {
  return first_frame().size.width + kCardGap;
}

CGFloat SwitcherRow::centre_of(std::size_t index) const {
  return first_frame().centre().x + static_cast<CGFloat>(index) * pitch();
}

void SwitcherRow::update_size() const {
  const CGSize screen = CGRect(scroll_->bounds()).size;
  const auto last = static_cast<CGFloat>(std::max<std::size_t>(cards_.size(), 1) - 1);
  scroll_->setContentSize({screen.width + last * pitch(), screen.height});
}

void SwitcherRow::add(const SwitcherCard::Content& content, SwitcherCard::Callbacks callbacks) {
  cards_.push_back(
      std::make_unique<SwitcherCard>(*scroll_, first_frame(), content, std::move(callbacks)));
  cards_.back()->set_centre_x(centre_of(cards_.size() - 1));
  update_size();
}

const SwitcherCard* SwitcherRow::card(const std::string& bundle) const {
  for (const auto& card : cards_) {
    if (card->bundle() == bundle) return card.get();
  }
  return nullptr;
}

void SwitcherRow::throw_away(const std::string& bundle) {
  const auto found = std::find_if(cards_.begin(), cards_.end(),
                                  [&](const auto& card) { return card->bundle() == bundle; });
  if (found == cards_.end()) return;
  SwitcherCard* leaving = found->get();
  thrown_.push_back(std::move(*found));
  cards_.erase(found);
  leaving->fly_away([this, leaving, life = std::weak_ptr<void>(life_)] {
    if (life.expired()) return;
    std::erase_if(thrown_, [leaving](const auto& card) { return card.get() == leaving; });
  });
  const CGFloat stop = stop_near(CGPoint(scroll_->contentOffset()).x);
  UIView::animateWithDuration(kMovingUp, 0, UIViewAnimationOptionAllowUserInteraction,
                              objc::block([this, stop] {
                                for (std::size_t i = 0; i < cards_.size(); ++i)
                                  cards_[i]->set_centre_x(centre_of(i));
                                scroll_->setContentOffset({stop, 0});
                              }),
                              objc::Block<void(BOOL)>());
  update_size();
}

void SwitcherRow::show_card(const std::string& bundle) const {
  if (const SwitcherCard* shown = card(bundle))
    scroll_->setContentOffset({shown->centre().x - first_frame().centre().x, 0});
}

void SwitcherRow::zoom_onto(const std::string& bundle) const {
  const SwitcherCard* onto = card(bundle);
  if (!onto) return;
  const CGRect screen = scroll_->superview().bounds();
  const CGPoint offset = scroll_->contentOffset();
  const CGPoint seen{onto->centre().x - offset.x, onto->centre().y - offset.y};
  const CGPoint middle = screen.centre();
  const CGFloat scale = screen.size.height / first_frame().size.height;
  scroll_->setTransform(
      {scale, 0, 0, scale, -scale * (seen.x - middle.x), -scale * (seen.y - middle.y)});
  for (const auto& card : cards_)
    card->set_label_alpha(0);
}

void SwitcherRow::zoom_out() const {
  scroll_->setTransform(CGAffineTransform());
  for (const auto& card : cards_)
    card->set_label_alpha(1);
}

CGFloat SwitcherRow::stop_near(CGFloat offset) const {
  const CGFloat last = static_cast<CGFloat>(std::max<std::size_t>(cards_.size(), 1) - 1);
  return std::clamp<CGFloat>(std::round(offset / pitch()), 0, last) * pitch();
}

}  // namespace host::springboard
