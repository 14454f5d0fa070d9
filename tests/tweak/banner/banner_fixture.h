#pragma once

#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UIScrollView.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {

/// A launched phone whose panel is shown as a banner.
class BannerTest : public PanelTest {
 protected:
  explicit BannerTest(std::string_view model = kDefaultDevice) : PanelTest(model) {}

  void SetUp() override { launch(); }

  void show() {
    objc::send<>(application, "showBanner"_sel);
    settle();
  }
  void dismiss_and_settle() {
    objc::send<>(application, "dismissBanner"_sel);
    settle();
  }
  /// Presses the grabber and moves just far enough for a pan to start.
  void grab() {
    hold(middle_of(view("grabs")));
    move_by(0, 12);
  }
  void pull_open() {
    grab();
    move_by(0, 40);
    lift();
    settle();
  }

  CGFloat height() const { return screen().height; }
  CGFloat window_y() const { return frame("window").origin.y; }
  /// The visible height of the window.
  CGFloat hanging() const { return height() + window_y(); }
  CGFloat y_of(const char* name) const { return frame(name).origin.y; }
  bool is_laid_out_below_artwork(CGFloat lift) const {
    const CGFloat texts = frame("art").max_y() + 10;
    const CGFloat end = frame("container1").max_y() + lift;
    return y_of("container1") == texts && y_of("play") == end + 10 && y_of("back") == end + 20 &&
           y_of("next") == end + 20;
  }
};

inline constexpr const char* kGrabDragging =
    "/Library/Application Support/Sonavue/grab_dragging@2x.png";
inline constexpr const char* kGrabDone = "/Library/Application Support/Sonavue/grab_done@2x.png";

/// Records which pictures are loaded for the grabber.
class GrabberPicture {
 public:
  std::string last() const { return loaded_.count() > 0 ? text(std::get<0>(loaded_.last())) : ""; }

 private:
  MethodSpy<"imageWithContentsOfFile:", UIImage(NSObject, NSString)> loaded_{
      objc::class_of(reinterpret_cast<objc::Id>(UIImage::cls()))};
};

inline constexpr CGFloat kBannerWithoutTexts = 50 + 25 + 15;
inline constexpr CGFloat kBannerWithTexts = kBannerWithoutTexts + 60;
inline constexpr CGFloat kLiftWithoutTexts = -45;

}  // namespace host::test
