#include "host/applications/settings/settings_application.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "host/activator/service/service.h"
#include "host/applications/loader/loader_entries.h"
#include "host/applications/program/player_remote.h"
#include "host/foundation/device_paths.h"
#include "host/media_player/music_choices.h"
#include "host/process/device_images.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/common/wallpaper.h"
#include "host/uikit/application/application.h"
#include "platform/Foundation/NSValue.h"
#include "platform/Preferences/PSListController.h"
#include "tests/host/uikit/support/page_test.h"
#include "tests/support/media_fixtures.h"

namespace host::test {
namespace {

using application::PlayerRemote;
using application::SteerPlayer;

constexpr CGPoint kBack{30, 42};

class SettingsTest : public PageTest {
 protected:
  SettingsTest() {
    foundation::set_device_root(device.path());
    process::start_program(settings::kImages);
    settings::export_settings_classes();
    activator::Service::restart(activator::Service::Role::Guest, nullptr);
    springboard::Configuration configuration;
    configuration.pictures_folder = SONAVUE_SPRINGBOARD_PICTURES;
    springboard::configure(configuration);
    if (!objc_getClass("TestSettingsPane"))
      objc::ClassBuilder("TestSettingsPane", "PSListController").finish();
  }
  ~SettingsTest() override {
    application.release();
    PlayerRemote::shared().send = {};
    PlayerRemote::shared().take({});
    springboard::configure({});
    foundation::set_device_root("");
  }
  void write(const std::string& file, const std::string& text) const {
    const std::filesystem::path path = device.path() + file;
    std::filesystem::create_directories(path.parent_path());
    media_tests::write_bytes(path, text);
  }
  void write_entry(const std::string& file, const std::string& keys) const {
    write(
        settings::kLoaderFolder + ("/" + file),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>entry</key>"
        "<dict>" +
            keys + "</dict></dict></plist>\n");
  }
  static std::string text(const std::string& key, const std::string& value) {
    return "<key>" + key + "</key><string>" + value + "</string>";
  }
  void launch() {
    application = uikit::launch_application("PreferencesAppController");
    advance(0.2);
  }
  UINavigationController navigation() const {
    return objc::send<UINavigationController>(application, "navigation"_sel);
  }
  UIViewController top() const { return navigation().topViewController(); }
  std::vector<std::string> rows() const {
    std::vector<std::string> names;
    const auto list = objc::cast<PSListController>(top());
    for (const PSSpecifier one : list.specifiers().of<PSSpecifier>())
      if (one.name()) names.push_back(one.name().UTF8String());
    return names;
  }
  void open(const char* row) {
    const auto list = objc::cast<PSListController>(top());
    for (const UITableViewCell cell : list.table().visibleCells().of<UITableViewCell>()) {
      if (!cell.textLabel().text().isEqualToString(NSString::stringWithUTF8String(row))) continue;
      tap(cell.convertPointToView({80, 20}, nil));
      advance(1);
      return;
    }
    ADD_FAILURE() << "no row " << row;
  }

  media_tests::TemporaryFolder device;
  UIApplication application;
};

TEST_F(SettingsTest, TheRootListsThePhonesOwnPages) {
  launch();
  EXPECT_STREQ(top().title().UTF8String(), "Settings");
  EXPECT_THAT(rows(), ::testing::ElementsAre("Sounds", "Wallpaper", "Gestures", "Music", "About"));
  const auto list = objc::cast<PSListController>(top());
  for (const UITableViewCell cell : list.table().visibleCells().of<UITableViewCell>())
    EXPECT_TRUE(cell.imageView().image());
  photograph("settings-root", clock.now());
}

TEST_F(SettingsTest, ExtensionsAddRowsThatOpenTheirPages) {
  write_entry("b.plist", text("label", "Zebra") + text("detail", "TestSettingsPane"));
  write_entry("a.plist", text("label", "Ant") + text("detail", "TestSettingsPane") +
                             text("bundle", "Ant") + text("icon", "icon.png"));
  launch();
  EXPECT_THAT(rows(), ::testing::ElementsAre("Sounds", "Wallpaper", "Gestures", "Ant", "Zebra",
                                             "Music", "About"));
  open("Zebra");
  EXPECT_TRUE(top().isKindOfClass(objc_getClass("TestSettingsPane")));
  EXPECT_STREQ(top().title().UTF8String(), "Zebra");
}

TEST_F(SettingsTest, AListMayHaveTheRowsOfItsPageInIt) {
  write(settings::kLoaderFolder + std::string("/inline.plist"),
        R"({ entry = { cell = PSLinkCell; label = "Inline"; bundle = Inline; };
             items = ({ cell = PSSwitchCell; label = "Here"; key = here; default = 1;
                        defaults = "com.example.inline"; }); })");
  launch();
  EXPECT_THAT(rows(), ::testing::Contains("Inline"));
  open("Inline");
  EXPECT_STREQ(top().title().UTF8String(), "Inline");
  EXPECT_THAT(rows(), ::testing::ElementsAre("Here"));
  const auto list = objc::cast<PSListController>(top());
  const auto cell = objc::cast<UITableViewCell>(list.table().visibleCells().objectAtIndex(0));
  tap(cell.accessoryView().convertPointToView({25, 15}, nil));
  advance(1);
  const auto saved = NSDictionary::dictionaryWithContentsOfFile(
      "/var/mobile/Library/Preferences/com.example.inline.plist"_ns);
  ASSERT_TRUE(saved);
  EXPECT_FALSE(objc::cast<NSNumber>(saved.objectForKey("here"_ns)).boolValue());
}

TEST_F(SettingsTest, APageFindsTheBundleOfItsEntry) {
  write(settings::kBundleFolder + std::string("/Ant.bundle/Ant.plist"),
        "{ items = ({ cell = PSStaticTextCell; label = Legs; }); }");
  write_entry("a.plist",
              text("label", "Ant") + text("detail", "TestSettingsPane") + text("bundle", "Ant"));
  launch();
  open("Ant");
  const auto read =
      objc::send<NSArray>(top(), "loadSpecifiersFromPlistName:target:"_sel, "Ant"_ns, top());
  ASSERT_EQ(read.count(), 1u);
  EXPECT_STREQ(objc::cast<PSSpecifier>(read.objectAtIndex(0)).name().UTF8String(), "Legs");
}

TEST_F(SettingsTest, DamagedEntriesAreSkippedAndLogged) {
  write(settings::kLoaderFolder + std::string("/broken.plist"), "no property list");
  write_entry("nameless.plist", text("detail", "TestSettingsPane"));
  write_entry("lost.plist", text("label", "Lost") + text("detail", "NoSuchClass"));
  write_entry("good.plist", text("label", "Good") + text("detail", "TestSettingsPane"));
  write(settings::kLoaderFolder + std::string("/notes.txt"), "not meant for us");
  const media_tests::CapturedLog log;
  launch();
  EXPECT_THAT(rows(), ::testing::Contains("Good"));
  EXPECT_EQ(rows().size(), 6u);
  EXPECT_EQ(log.count("is left out of the settings"), 3);
  EXPECT_EQ(log.count("notes.txt"), 0);
}

TEST_F(SettingsTest, AnIconIsFoundInTheBundleOrBesideTheList) {
  const auto icon = std::string(settings::kBundleFolder) + "/Ant.bundle/icon.png";
  write_entry("a.plist", text("label", "Ant") + text("detail", "TestSettingsPane") +
                             text("bundle", "Ant") + text("icon", "icon.png"));
  EXPECT_EQ(settings::read_loader_entries().at(0).icon,
            settings::kLoaderFolder + std::string("/icon.png"));
  write(icon, "");
  EXPECT_EQ(settings::read_loader_entries().at(0).icon, icon);
}

TEST_F(SettingsTest, TheVolumeSliderFollowsTheFingerAndTheButtons) {
  std::vector<double> volumes;
  PlayerRemote::shared().send = [&](const SteerPlayer& command) {
    volumes.push_back(command.value);
  };
  application::PlaybackIs playback;
  playback.volume = 0.5;
  PlayerRemote::shared().take(playback);
  launch();
  open("Sounds");
  photograph("settings-sounds", clock.now());
  const UITableViewCell row = objc::cast<PSListController>(top()).table().cellForRowAtIndexPath(
      NSIndexPath::indexPathForRow(0, 0));
  const CGPoint knob = row.convertPointToView({187, 22}, nil);
  press(knob);
  glide(knob, {knob.x + 60, knob.y}, 0.3);
  lift({knob.x + 60, knob.y});
  advance(0.1);
  ASSERT_FALSE(volumes.empty());
  EXPECT_NEAR(volumes.back(), 0.5 + 60.0 / (375 - 2 * 47 - 26), 0.02);
  EXPECT_EQ(navigation().viewControllers().count(), 2u) << "no page was taken away meanwhile";
}

TEST_F(SettingsTest, MusicIsPlayedAsChosen) {
  using media_player::MusicChoices;
  int told = 0;
  PlayerRemote::shared().send = [&](const SteerPlayer& command) {
    told += command.command == application::PlayerCommand::ReadChoices;
  };
  launch();
  open("Music");
  photograph("settings-music", clock.now());
  EXPECT_EQ(media_player::read_music_choices(), MusicChoices());
  const auto turn = [this](NSInteger section, NSInteger row) {
    const UITableViewCell cell = objc::cast<PSListController>(top()).table().cellForRowAtIndexPath(
        NSIndexPath::indexPathForRow(row, section));
    tap(cell.accessoryView().convertPointToView({20, 15}, nil));
    advance(1);
  };
  open("Repeat");
  photograph("settings-repeat", clock.now());
  open("One");
  EXPECT_EQ(media_player::read_music_choices().repeat, media::Repeat::one);
  EXPECT_EQ(std::exchange(told, 0), 1);
  tap(kBack);
  advance(1);
  turn(0, 1);
  EXPECT_EQ(media_player::read_music_choices(),
            (MusicChoices{media::ReplayGain::off, media::Repeat::one, true, false}));
  EXPECT_EQ(std::exchange(told, 0), 1);
  open("ReplayGain");
  photograph("settings-replay-gain", clock.now());
  open("Album");
  EXPECT_EQ(media_player::read_music_choices().replay_gain, media::ReplayGain::album);
  EXPECT_EQ(told, 1);
  tap(kBack);
  advance(1);
  turn(2, 0);
  EXPECT_EQ(media_player::read_music_choices(),
            (MusicChoices{media::ReplayGain::album, media::Repeat::one, true, true}));
  EXPECT_EQ(told, 2);
}

TEST_F(SettingsTest, ChoicesThatMakeNoSenseAreThoseOfANewPhone) {
  const std::string file = "/var/mobile/Library/Preferences/com.apple.mobileipod.plist";
  for (const char* entries :
       {"<key>ReplayGain</key><string>loud</string>", "<key>ReplayGain</key><integer>2</integer>",
        "<key>Repeat</key><string>twice</string>", "<key>Repeat</key><true/>",
        "<key>Shuffle</key><string>yes</string>",
        "<key>AnnouncesSongs</key><string>yes</string>"}) {
    write(file, std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">"
                            "<dict>") +
                    entries + "</dict></plist>\n");
    EXPECT_EQ(media_player::read_music_choices(), media_player::MusicChoices()) << entries;
  }
}

TEST_F(SettingsTest, AWallpaperIsChosenByATapAndKept) {
  write("/var/mobile/Library/Preferences/com.apple.springboard.plist",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Other</key>"
        "<string>kept</string></dict></plist>\n");
  launch();
  EXPECT_STREQ(springboard::chosen_wallpaper().UTF8String(), "wallpaper-1");
  open("Wallpaper");
  photograph("settings-wallpaper", clock.now());
  tap({280, 200});
  advance(0.2);
  EXPECT_STREQ(springboard::chosen_wallpaper().UTF8String(), "wallpaper-2");
  const auto kept = NSDictionary::dictionaryWithContentsOfFile(
      "/var/mobile/Library/Preferences/com.apple.springboard.plist"_ns);
  EXPECT_TRUE(kept.objectForKey("Other"_ns));
}

TEST_F(SettingsTest, AMissingWallpaperFallsBackToTheFirst) {
  std::filesystem::create_directories(device.path() + "/var/mobile/Library/Preferences");
  springboard::choose_wallpaper("wallpaper-2"_ns);
  EXPECT_STREQ(springboard::chosen_wallpaper().UTF8String(), "wallpaper-2");
  springboard::choose_wallpaper("wallpaper-99"_ns);
  EXPECT_STREQ(springboard::chosen_wallpaper().UTF8String(), "wallpaper-1");
}

TEST_F(SettingsTest, AboutDescribesThePhone) {
  launch();
  open("About");
  EXPECT_TRUE(shows(top().view(), "iPhone 6"_ns));
  EXPECT_TRUE(shows(top().view(), "iPhone7,2"_ns));
  EXPECT_TRUE(shows(top().view(), "750 × 1334"_ns));
  photograph("settings-about", clock.now());
}

TEST_F(SettingsTest, HasNoClassesOfUnrequestedFrameworks) {
  launch();
  for (const char* name : {"UITableView", "PSListController"})
    EXPECT_TRUE(objc_getClass(name)) << name;
  for (const char* name :
       {"SpringBoard", "SBIconController", "SBMediaController", "MPMusicPlayerController",
        "MPUNowPlayingController", "TWTweetComposeViewController", "MFMailComposeViewController",
        "LAActivator", "LAListenerListViewController"})
    EXPECT_FALSE(objc_getClass(name)) << name;
}

TEST_F(SettingsTest, TheGesturesPageIsOpenedOnTheStack) {
  launch();
  open("Gestures");
  EXPECT_TRUE(top().isKindOfClass(objc_getClass("LAListenerListViewController")));
  photograph("settings-gestures", clock.now());
  tap(kBack);
  advance(1);
  EXPECT_STREQ(top().title().UTF8String(), "Settings");
}

}  // namespace
}  // namespace host::test
