#include "host/home_screen/first_music.h"

#include "host/process/device_images.h"
#include "host/uikit/geometry/window_list.h"
#include "tests/support/phone_fixture.h"
#include "tests/support/photograph.h"

namespace {

using namespace host;
using launcher::FirstMusic;
using media_player::MediaProgress;
using Stage = MediaProgress::Stage;

MediaProgress reading(std::size_t seen, std::size_t all) {
  MediaProgress progress;
  progress.stage = Stage::kReadingFiles;
  progress.files.seen = seen;
  progress.files.to_see = all;
  return progress;
}

/// A phone before its home screen.
class WaitingForMusic : public test::PhoneTest {
 protected:
  /// All texts of the window, and the share of the bar.
  static std::vector<std::string> texts() {
    std::vector<std::string> found;
    for (const UIView view : uikit::visible_windows().back().subviews().of<UIView>()) {
      if (!view.isKindOfClass(UILabel::cls())) continue;
      const char* text = objc::cast<UILabel>(view).text().UTF8String();
      found.emplace_back(text ? text : "");
    }
    return found;
  }
  static std::size_t windows() { return uikit::visible_windows().size(); }
  void show(const MediaProgress& progress) {
    advance(1);
    waiting.take(progress);
    quartzcore::flush_layers();
  }

  FirstMusic waiting{loop, FirstMusic::Screen::kShown};
};

using testing::ElementsAre;

TEST_F(WaitingForMusic, TheScreenSaysWhatIsDoneAndHowMuchOfIt) {
  loop.perform([this] {
    EXPECT_THAT(texts(), ElementsAre("Looking for your music", ""));
    test::photograph("boot-looking", loop.now());
  });
  loop.perform([this] {
    show(reading(4204, 20'000));
    EXPECT_THAT(texts(), ElementsAre("Reading your music", "4,204 of 20,000 songs"));
    test::photograph("boot-reading", loop.now());
    MediaProgress making;
    making.stage = Stage::kMakingMusic;
    making.made = 30;
    making.to_make = 44;
    show(making);
    EXPECT_THAT(texts(), ElementsAre("Composing the demo music", "30 of 44 songs"));
    test::photograph("boot-composing", loop.now());
    MediaProgress ready;
    ready.stage = Stage::kReady;
    waiting.take(ready);
  });
  EXPECT_TRUE(waiting.wait());
  EXPECT_EQ(windows(), 0u);
}

TEST_F(WaitingForMusic, EndsWhenThePhoneIsSwitchedOff) {
  loop.perform([this] {
    show(reading(1, 2));
    loop.stop();
  });
  EXPECT_FALSE(waiting.wait());
  EXPECT_EQ(windows(), 0u);
}

TEST_F(WaitingForMusic, DoesNotWaitForSongsThatAreThere) {
  MediaProgress ready;
  ready.stage = Stage::kReady;
  waiting.take(ready);
  EXPECT_TRUE(waiting.wait());
}

}  // namespace
