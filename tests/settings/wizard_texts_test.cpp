#include "platform/UIKit/NSStringDrawing.h"
#include "tests/settings/every_device.h"
#include "tests/settings/wizard_pages_test.h"

// What the wizard says.

namespace sonavue::test {
namespace {

class WizardTexts : public OnEveryDevice<WizardPages> {
 protected:
  void expect_whole(UILabel label) {
    ASSERT_TRUE(label);
    photograph_device("wizard-" + std::to_string(++shown_));
    const CGSize room = label.frame().size;
    const CGSize wanted =
        objc::cast<NSStringDrawing>(label.text())
            .sizeWithFont(label.font(), {room.width, 10'000}, NSLineBreakByWordWrapping);
    EXPECT_LE(wanted.height, room.height) << label.text().UTF8String();
    EXPECT_LT(wanted.height, (label.numberOfLines() + 0.5) * label.font().lineHeight())
        << label.text().UTF8String();
  }

 private:
  int shown_ = 0;
};

TEST_P(WizardTexts, EveryTextIsShownWhole) {
  start();
  expect_whole(objc::cast<UILabel>(welcome.subviews().objectAtIndex(2)));
  objc::send<>(page, "showSetup"_sel);
  advance(2);
  find_questions();
  for (int question = 0; question < 11; ++question, next_page())
    expect_whole(part<UILabel>("UILabel"));
  objc::send<>(page, "showTutorial"_sel);
  advance(3);
  for (int number = 0; number < 4; ++number, next_page())
    expect_whole(part<UILabel>("UILabel"));
}
INSTANTIATE_TEST_SUITE_P(Devices, WizardTexts, every_device(), device_name);

}  // namespace
}  // namespace sonavue::test
