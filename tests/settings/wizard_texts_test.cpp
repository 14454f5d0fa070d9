#include "host/runtime/device_model.h"
#include "platform/UIKit/NSStringDrawing.h"
#include "platform/UIKit/UIScreen.h"
#include "tests/settings/wizard_pages_test.h"

// What the wizard says.

namespace host {

void PrintTo(const DeviceModel& model, std::ostream* stream) {
  *stream << model.name;
}

}  // namespace host

namespace sonavue::test {
namespace {

/// The wizard on every device that there is.
class WizardTexts : public WizardPages, public testing::WithParamInterface<host::DeviceModel> {
 protected:
  WizardTexts() {
    host::set_current_device(GetParam());
    window.setFrame(UIScreen::mainScreen().bounds());
  }
  ~WizardTexts() override { host::set_current_device(*host::device_model(host::kDefaultDevice)); }

  void expect_whole(UILabel label) {
    ASSERT_TRUE(label);
    photograph("wizard-" + std::string(GetParam().identifier) + "-" + std::to_string(++shown_));
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
INSTANTIATE_TEST_SUITE_P(Models, WizardTexts, testing::ValuesIn(host::device_models()),
                         [](const auto& model) {
                           std::string name(model.param.name);
                           std::erase(name, ' ');
                           return name;
                         });

}  // namespace
}  // namespace sonavue::test
