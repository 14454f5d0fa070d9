#include "settings/credits/card.h"

#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScreen.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "settings/texts.h"
#include "settings/wizard/locked_view_controller.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

constexpr CGFloat kCardPhotoSide = 100;
constexpr CGFloat kPhotoTop = 70;
constexpr CGFloat kNameGap = 5;
constexpr CGFloat kCardNameHeight = 34;
constexpr CGFloat kCardNameSize = 25;
constexpr CGFloat kRoleHeight = 24;
constexpr CGFloat kCardRoleSize = 17;
constexpr CGFloat kStripGap = 28;
constexpr CGFloat kStripHeight = 130;
constexpr CGFloat kStripLine = 0.5;
constexpr CGRect kClose = {12, 26, 80, 36};
constexpr CGFloat kCardHeight = kPhotoTop + kCardPhotoSide + kNameGap + kCardNameHeight +
                                kRoleHeight + kStripGap + 2 * (kStripLine + kStripHeight);

constexpr CGFloat kTileMargin = 15;
constexpr CGSize kTileSize = {90, 110};
constexpr CGRect kTilePicture = {10, 10, 70, 70};
constexpr CGFloat kTileNameHeight = 30;
constexpr CGFloat kTileNameSize = 13.5;

NSString picture_path(const char* name, NSString ending) {
  return asset_path<"">().stringByAppendingString(as_text(name)).stringByAppendingString(ending);
}

/// Adds the photo and returns its bottom. On a short screen it moves up, so that the last strip is
/// still visible.
CGFloat add_photo(UIView card, const Author& author) {
  const CGSize size = card.frame().size;
  const CGFloat missing = size.height < kCardHeight ? kCardHeight - size.height : 0;
  const CGFloat top = kPhotoTop - missing;
  const auto photo = objc::adopt(UIImageView::alloc().initWithFrame(
      {(size.width - kCardPhotoSide) / 2, top, kCardPhotoSide, kCardPhotoSide}));
  photo->layer().setMasksToBounds(YES);
  photo->layer().setCornerRadius(kCardPhotoSide / 2);
  photo->setImage(UIImage::imageWithContentsOfFile(picture_path(author.photo, "@2x.png"_ns)));
  card.addSubview(photo);
  return top + kCardPhotoSide;
}

/// Adds a line of text and returns its bottom.
CGFloat add_line(UIView card, const char* text, CGFloat top, CGFloat height, CGFloat font_size) {
  const auto label =
      objc::adopt(UILabel::alloc().initWithFrame({0, top, card.frame().size.width, height}));
  label->setText(as_text(text));
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setFont(UIFont::fontWithName("HelveticaNeue-UltraLight"_ns, font_size));
  card.addSubview(label);
  return top + height;
}

void add_close_button(UIView card, PSTableCell cell) {
  const UIButton close = UIButton::buttonWithType(UIButtonTypeSystem);
  close.setFrame(kClose);
  close.setTitle(Translator("close"_ns), UIControlStateNormal);
  close.addTarget(cell, "dismissViewController"_sel, UIControlEventTouchUpInside);
  card.addSubview(close);
}

void add_hairline_above(UIView card, CGFloat top) {
  const auto line = objc::adopt(UIView::alloc().initWithFrame(
      {kTileMargin, top, card.frame().size.width - kTileMargin, kStripLine}));
  line->setBackgroundColor(UIColor::colorWithWhite(0, 0.2));
  card.addSubview(line);
}

objc::Ref<UIScrollView> strip(UIView card, CGFloat top) {
  add_hairline_above(card, top);
  auto made = objc::adopt(UIScrollView::alloc().initWithFrame(
      {0, top + kStripLine, card.frame().size.width, kStripHeight}));
  made->setShowsHorizontalScrollIndicator(NO);
  card.addSubview(made);
  return made;
}

void fit_content(UIScrollView strip) {
  const auto tiles = static_cast<CGFloat>(strip.subviews().count());
  strip.setContentSize({2 * kTileMargin + tiles * kTileSize.width, kStripHeight});
}

void add_packages(UIView card, const Author& author, PSTableCell cell, CGFloat top) {
  const auto packages = strip(card, top);
  for (int i = 0; i < author.package_count; ++i) {
    const Package& package = author.packages[i];
    objc::send<>(cell, "addObjectIn:withName:image:action:"_sel, UIView(packages.get()),
                 as_text(package.title), picture_path(package.picture, ".png"_ns),
                 sel_registerName(package.action));
  }
  fit_content(packages);
}

void add_contacts(UIView card, const Author& author, PSTableCell cell, CGFloat top) {
  struct Contact {
    const char* name;
    const char* picture;
    const char* action;
  };
  const Contact contacts[] = {{"Message", "Message", "message"},
                              {"Mail", "Mail", "email"},
                              {"Follow", "Twitter", author.follow_action}};
  const auto strip_of_contacts = strip(card, top);
  for (const Contact& contact : contacts) {
    objc::send<>(cell, "addObjectIn:withName:image:action:"_sel, UIView(strip_of_contacts.get()),
                 as_text(contact.name), picture_path(contact.picture, ".png"_ns),
                 sel_registerName(contact.action));
  }
  fit_content(strip_of_contacts);
}

}  // namespace

objc::Ref<UIViewController> make_card(const Author& author, PSTableCell cell) {
  auto controller = objc::adopt(UIViewController(LockedUIViewController::alloc().init()));
  if (!controller) return controller;
  const UIView card = controller->view();
  card.setFrame(UIScreen::mainScreen().bounds());
  card.setBackgroundColor(UIColor::whiteColor());
  const CGFloat photo_end = add_photo(card, author);
  const CGFloat name_end =
      add_line(card, author.name, photo_end + kNameGap, kCardNameHeight, kCardNameSize);
  const CGFloat role_end = add_line(card, author.role, name_end, kRoleHeight, kCardRoleSize);
  add_close_button(card, cell);
  add_packages(card, author, cell, role_end + kStripGap);
  add_contacts(card, author, cell, role_end + kStripGap + kStripHeight + kStripLine);
  return controller;
}

void add_tile(UIView container, NSString name, NSString picture_path, objc::Sel action,
              PSTableCell cell) {
  const auto before = static_cast<CGFloat>(container.subviews().count());
  const CGFloat height = container.frame().size.height;
  const auto tile = objc::adopt(UIView::alloc().initWithFrame(
      {{kTileMargin + kTileSize.width * before, (height - kTileSize.height) / 2}, kTileSize}));
  tile->setBackgroundColor(UIColor::clearColor());
  const auto picture = objc::adopt(UIImageView::alloc().initWithFrame(kTilePicture));
  picture->setImage(UIImage::imageWithContentsOfFile(picture_path));
  tile->addSubview(picture);
  const auto label = objc::adopt(
      UILabel::alloc().initWithFrame({0, kTilePicture.max_y(), kTileSize.width, kTileNameHeight}));
  label->setText(name);
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setFont(UIFont::fontWithName("Helvetica-Light"_ns, kTileNameSize));
  tile->addSubview(label);
  const auto tap = objc::adopt(UITapGestureRecognizer::alloc().initWithTarget(cell, action));
  tap->setCancelsTouchesInView(YES);
  tile->addGestureRecognizer(tap);
  container.addSubview(tile);
}

}  // namespace sonavue
