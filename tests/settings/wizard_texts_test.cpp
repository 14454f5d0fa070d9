#include "platform/UIKit/NSStringDrawing.h"
#include "tests/settings/every_device.h"
#include "tests/settings/wizard_pages_test.h"

// The texts of the wizard.

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

TEST_P(WizardTexts, EveryTextIsShownInFull) {
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

// Verbatim, including their mistakes.
constexpr const char* kWelcome =
    "Welcome to Sonavue, a tweak that will improve the way of listening to Music! Swipe this page "
    "and set your preferences!";
constexpr const char* kQuestions[] = {
    "Sonavue reinvents the way of listening to your Music adding a lot of new features to your "
    "iPhone. Do you want to enable Sonavue?",
    "Sonavue can recognize if your Music is in your iPhone or if it is from cloud. Do you want to "
    "use your Cloud's Music?",
    "Sonavue brings to your Iphone a new interface that let you to interact with Music. This "
    "interface can be modified every time the current now playing song changes by blurring the "
    "Artwork of the Music. Do you want this property on?",
    "The Artwork in the middle of Sonavue's interface has, by default, rounded corners. Do you "
    "want squared corners?",
    "Do you want to use automatic color in order to make Sonavue2 interface more legible?",
    "Set an Activator Gesture to invoke Sonavue from anywhere",
    "Sonavue offers a lot of ways to customize it, for example you can choose what type of blur "
    "you want in Sonavue's interface. Which one?",
    "What do you want around the play/pause button?",
    "Which tint color you want to use for Sonavue's interface?",
    "Which Font tint color you want to use for Sonavue's interface?",
    "You are now ready to do a small tutorial to learn how Sonavue works.\nThis will be easy!"};
constexpr const char* kTutorial[] = {
    "To start using Sonavue just put your finger on the Music's icon and drag it. When you're "
    "ready release your finger and the interface will come.",
    "Sonavue's interface is easy to understand. In the middle there's the song artwork. If you tap "
    "twice this view you'll get a table that will contains all songs by the same artist ad the now "
    "playing music. There's also play/pause, nex, back to control easily your Music. If you swipe "
    "from the right youll' get a list of all of your Songs.",
    "You can invoke Sonavue also with an Activator Gesture. Sonavue's interface will change to a "
    "banner. You can now easily drag it like Notification Center.",
    "Finish"};

TEST_F(WizardPages, EverySentenceIsUnchanged) {
  const auto text = [](UILabel label) { return std::string(label.text().UTF8String()); };
  start();
  EXPECT_EQ(text(objc::cast<UILabel>(welcome.subviews().objectAtIndex(1))), "Sonavue");
  EXPECT_EQ(text(objc::cast<UILabel>(welcome.subviews().objectAtIndex(2))), kWelcome);
  drag_welcome(200);
  release_welcome(200);
  advance(2);
  find_questions();
  for (const char* question : kQuestions) {
    EXPECT_EQ(text(part<UILabel>("UILabel")), question);
    next_page();
  }
  objc::send<>(page, "showTutorial"_sel);
  advance(3);
  for (const char* explanation : kTutorial) {
    EXPECT_EQ(text(part<UILabel>("UILabel")), explanation);
    next_page();
  }
}

TEST_F(WizardPages, RowsAreNamedAfterTheirSettingsOrActions) {
  start_questions();
  for (const char* name : {"Enable Sonavue", "Music in the cloud", "Artwork as background",
                           "Square artwork", "Automatic colors", "Activator"}) {
    EXPECT_TRUE(find(shown_page().view(), name)) << name;
    next_page();
  }
}

}  // namespace
}  // namespace sonavue::test
