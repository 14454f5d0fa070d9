#pragma once

#include <vector>

#include "host/browser/phone/phone_page.h"
#include "objc/object.h"

namespace host::launcher {

/// Tells the page in the browser which views the home screen has.
class PageViews final : public browser::ViewSource {
 public:
  /// What a page is told at most: more would slow down both.
  static constexpr std::uint32_t kMostViews = 2000;
  static constexpr std::size_t kLongestText = 120;
  static constexpr std::size_t kLongestDescription = std::size_t{64} * 1024;

  /// The page outlives this object; it may be null.
  explicit PageViews(browser::PhonePage* page) : page_(page) {
    if (page_) page_->set_views(this);
  }
  ~PageViews() override {
    if (page_) page_->set_views(nullptr);
  }
  PageViews(const PageViews&) = delete;
  PageViews& operator=(const PageViews&) = delete;

  browser::Views views() override;
  std::string description(std::uint32_t view) override;

 private:
  browser::PhonePage* const page_;
  /// Of the views that were listed last. Views go, their classes stay.
  std::vector<objc::Class> classes_;
  bool has_warned_ = false;
};

}  // namespace host::launcher
