#pragma once

#include "platform/UIKit/UIScrollView.h"
#include "tests/settings/pages_test.h"

namespace sonavue::test {

/// The page with the authors, and an author's card over it.
class Credits : public PagesTest {
 protected:
  void open_credits() { open("creatorsController"); }
  /// The author's row, by its class.
  UIView author(const char* class_name) const { return cell_in(window, objc_getClass(class_name)); }
  static UIView cell_in(UIView top, objc::Class cls) {
    if (top.isKindOfClass(cls)) return top;
    for (const UIView part : top.subviews().of<UIView>()) {
      if (const UIView found = cell_in(part, cls)) return found;
    }
    return nil;
  }
  UIViewController presented() const {
    return page.presentedViewController() ? page.presentedViewController()
                                          : stack.presentedViewController();
  }
  void open_card(const char* class_name) {
    open_credits();
    cell = author(class_name);
    ASSERT_TRUE(cell);
    tap_middle(cell);
    card = presented();
    ASSERT_TRUE(card);
  }
  /// The names on the tiles of the card's strips, in order.
  std::vector<std::string> tiles() const {
    std::vector<std::string> names;
    for (const UIView part : card.view().subviews().of<UIView>()) {
      if (!part.isKindOfClass(UIScrollView::cls())) continue;
      for (const UIView tile : part.subviews().of<UIView>()) {
        const auto label = objc::cast<UILabel>(tile.subviews().lastObject());
        if (label.isKindOfClass(UILabel::cls())) names.emplace_back(label.text().UTF8String());
      }
    }
    return names;
  }

  UIView cell;
  UIViewController card;
};

}  // namespace sonavue::test
