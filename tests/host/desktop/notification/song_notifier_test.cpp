#include "host/desktop/notification/song_notifier.h"

#include <gmock/gmock.h>

#include "tests/support/caught_log.h"
#include "tests/support/desktop_fixture.h"

namespace {

using host::desktop::SongNotifier;
using host::test::BusPeer;
using host::test::run_until;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kService = "org.freedesktop.Notifications";
constexpr const char* kObject = "/org/freedesktop/Notifications";
constexpr std::uint32_t kNumber = 7;

/// Notes the notifications, as the service of a desktop shows them.
class Notifications {
 public:
  Notifications(host::RunLoop& loop, std::vector<const char*> capabilities)
      : capabilities_(std::move(capabilities)), peer_(loop) {
    peer_.keep(peer_.bus.add_object(kObject, kService, kTable, this));
    EXPECT_TRUE(peer_.take_name(kService));
  }

  /// The user clicks on a notification.
  void click(std::uint32_t number) {
    peer_.bus.emit(kObject, kService, "ActionInvoked", [number](sd_bus_message* signal) {
      sd_bus_message_append(signal, "us", number, "default");
    });
    peer_.catch_up_with("org.freedesktop.DBus");
  }

  std::vector<std::string> shown;

 private:
  static int notify(sd_bus_message* call, void* data, sd_bus_error*) {
    static_cast<Notifications*>(data)->shown.push_back(host::test::contents_of(call));
    return sd_bus_reply_method_return(call, "u", kNumber);
  }
  static int capabilities(sd_bus_message* call, void* data, sd_bus_error*) {
    auto& names = static_cast<Notifications*>(data)->capabilities_;
    sd_bus_message* answer = nullptr;
    sd_bus_message_new_method_return(call, &answer);
    const host::desktop::MessageRef owned(answer);
    sd_bus_message_open_container(answer, 'a', "s");
    for (const char* name : names)
      sd_bus_message_append(answer, "s", name);
    sd_bus_message_close_container(answer);
    return sd_bus_send(nullptr, answer, nullptr);
  }

  static const sd_bus_vtable kTable[];

  std::vector<const char*> capabilities_;
  BusPeer peer_;
};

const sd_bus_vtable Notifications::kTable[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Notify", "susssasa{sv}i", "u", &Notifications::notify,
                  SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_METHOD("GetCapabilities", "", "as", &Notifications::capabilities,
                  SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END};

class ANotification : public host::test::DesktopTest {
 protected:
  ANotification() {
    follow();
    begin();
  }
  ~ANotification() override {
    notifier_.reset();
    now_playing.reset();
  }

  void begin() {
    notifier_ = std::make_unique<SongNotifier>(
        bus, *now_playing,
        SongNotifier::Choices{[this] { return is_wanted_; }, [this] { return is_in_front_; },
                              [this] { ++raised_; }});
  }
  /// Returns when everything that was sent has been answered.
  void catch_up() {
    settle();
    for (int i = 0; i < 3; ++i)
      BusPeer(loop).catch_up_with(kService);
  }

  bool is_wanted_ = true;
  bool is_in_front_ = false;
  int raised_ = 0;
  std::unique_ptr<SongNotifier> notifier_;
  host::test::CaughtLog log_;
};

TEST_F(ANotification, ShowsTheSongWithItsCover) {
  Notifications desktop(loop, {"actions", "body", "body-markup"});
  play("Alpha");
  ASSERT_TRUE(run_until(loop, [&] { return !desktop.shown.empty(); }));
  ASSERT_THAT(desktop.shown, SizeIs(1));
  EXPECT_THAT(desktop.shown[0],
              AllOf(StartsWith("\"Sonavue\" 0 \"sonavue\" \"Alpha\" \"Xenia\nOne\" "
                               "[\"default\" \"Show\"] {\"desktop-entry\": \"sonavue\""),
                    HasSubstr("\"image-path\": \"file://" + cover_folder())));
}

TEST_F(ANotification, ReplacesTheOneBefore) {
  Notifications desktop(loop, {"body"});
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return desktop.shown.size() == 1; }));
  catch_up();
  media().changeTrack(1);
  ASSERT_TRUE(run_until(loop, [&] { return desktop.shown.size() == 2; }));
  EXPECT_THAT(desktop.shown[0], StartsWith("\"Sonavue\" 0 \"sonavue\" \"Bravo\""));
  EXPECT_THAT(desktop.shown[1], StartsWith("\"Sonavue\" 7 \"sonavue\" \"Charlie\""));
  EXPECT_THAT(desktop.shown[1], HasSubstr(" [] {")) << "this desktop has no clicks";
}

TEST_F(ANotification, OfManySkippedSongsOnlyShowsTheLast) {
  Notifications desktop(loop, {"body"});
  play("Alpha");
  for (int i = 0; i < 3; ++i) {
    media().changeTrack(1);
    now_playing->tell();
  }
  ASSERT_TRUE(run_until(loop, [&] { return !desktop.shown.empty(); }));
  catch_up();
  EXPECT_THAT(desktop.shown, SizeIs(1));
  EXPECT_THAT(desktop.shown.back(), HasSubstr("\"Delta\""));
}

TEST_F(ANotification, IsForNewSongsOnly) {
  Notifications desktop(loop, {"body"});
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return desktop.shown.size() == 1; }));
  player().pause();
  loop.run_ready();
  player().play();
  media().setVolume(0.2F);
  player().setCurrentPlaybackTime(3);
  catch_up();
  EXPECT_THAT(desktop.shown, SizeIs(1));
  player().pause();
  media().changeTrack(1);
  catch_up();
  EXPECT_THAT(desktop.shown, SizeIs(1)) << "a song that does not play";
}

TEST_F(ANotification, NeedsTheUsersChoiceAndAWindowBehindOthers) {
  Notifications desktop(loop, {"body"});
  is_wanted_ = false;
  play("Alpha");
  catch_up();
  is_wanted_ = true;
  is_in_front_ = true;
  media().changeTrack(1);
  catch_up();
  EXPECT_THAT(desktop.shown, IsEmpty());
  is_in_front_ = false;
  media().changeTrack(1);
  ASSERT_TRUE(run_until(loop, [&] { return !desktop.shown.empty(); }));
  EXPECT_THAT(desktop.shown[0], HasSubstr("\"Charlie\""));
}

TEST_F(ANotification, ThatIsClickedBringsTheWindow) {
  Notifications desktop(loop, {"actions"});
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return !desktop.shown.empty(); }));
  catch_up();
  desktop.click(kNumber + 1);
  catch_up();
  EXPECT_EQ(raised_, 0) << "another program's";
  desktop.click(kNumber);
  EXPECT_TRUE(run_until(loop, [this] { return raised_ == 1; }));
}

TEST_F(ANotification, EscapesTagsOnlyForADesktopWithMarkup) {
  host::media::SongTags tags;
  tags.title = "Echo";
  tags.artist = "<b>AC & DC";
  media_tests::write_song(song_path("e.flac"), tags);
  notifier_.reset();
  restart();
  begin();
  for (const bool has_markup : {true, false}) {
    Notifications desktop(loop, {has_markup ? "body-markup" : "body"});
    play("Alpha");
    catch_up();
    desktop.shown.clear();
    play("Echo");
    ASSERT_TRUE(run_until(loop, [&] { return !desktop.shown.empty(); }));
    EXPECT_THAT(desktop.shown[0],
                HasSubstr(has_markup ? "\"&lt;b&gt;AC &amp; DC\"" : "\"<b>AC & DC\""));
  }
}

TEST_F(ANotification, WithoutAServiceIsSaid) {
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return !log_.text().empty(); }));
  EXPECT_THAT(log_.text(), HasSubstr("the desktop shows no notifications: org.freedesktop.DBus"));
}

TEST_F(ANotification, SurvivesABusThatEnds) {
  {
    Notifications desktop(loop, {"body"});
    play("Bravo");
    ASSERT_TRUE(run_until(loop, [&] { return !desktop.shown.empty(); }));
  }
  daemon.kill();
  ASSERT_TRUE(run_until(loop, [this] { return !bus.is_open(); }));
  daemon.start();
  advance(1);
  Notifications desktop(loop, {"body"});
  media().changeTrack(1);
  ASSERT_TRUE(run_until(loop, [&] { return !desktop.shown.empty(); }));
  EXPECT_THAT(desktop.shown[0], StartsWith("\"Sonavue\" 0 ")) << "the old number means nothing";
}

}  // namespace
