#include "host/desktop/sleep/sleep_lock.h"

#include <gmock/gmock.h>
#include <poll.h>
#include <unistd.h>

#include "tests/support/caught_log.h"
#include "tests/support/desktop_fixture.h"

namespace {

using host::Descriptor;
using host::desktop::Bus;
using host::desktop::SleepLock;
using host::desktop::SlotRef;
using host::test::BusPeer;
using host::test::run_until;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kPortalName = "org.freedesktop.portal.Desktop";
constexpr const char* kPortalPath = "/org/freedesktop/portal/desktop";
constexpr const char* kLoginName = "org.freedesktop.login1";

/// Notes what it is asked, as the portal of a desktop does it.
class Portal {
 public:
  explicit Portal(host::RunLoop& loop, bool is_slow = false) : is_slow_(is_slow), peer_(loop) {
    peer_.keep(peer_.bus.add_object(kPortalPath, "org.freedesktop.portal.Inhibit", kTable, this));
    peer_.keep(
        peer_.bus.add_object("/request/1", "org.freedesktop.portal.Request", kRequest, this));
    EXPECT_TRUE(peer_.take_name(kPortalName));
  }

  /// Answers what a slow portal has not answered.
  void answer() {
    const host::desktop::MessageRef call(sd_bus_message_ref(unanswered_.get()));
    unanswered_.reset();
    sd_bus_reply_method_return(call.get(), "o", "/request/1");
  }
  bool is_asked() const { return !log.empty(); }
  /// Returns when the bus has its answers.
  void catch_up() { peer_.catch_up_with("org.freedesktop.DBus"); }

  std::vector<std::string> log;

 private:
  static int inhibit(sd_bus_message* call, void* data, sd_bus_error*) {
    auto& portal = *static_cast<Portal*>(data);
    portal.log.push_back("Inhibit " + host::test::contents_of(call));
    if (!portal.is_slow_) return sd_bus_reply_method_return(call, "o", "/request/1");
    portal.unanswered_.reset(sd_bus_message_ref(call));
    return 1;
  }
  static int close(sd_bus_message* call, void* data, sd_bus_error*) {
    static_cast<Portal*>(data)->log.push_back("Close");
    return sd_bus_reply_method_return(call, nullptr);
  }

  static constexpr auto kFree = SD_BUS_VTABLE_UNPRIVILEGED;
  static const sd_bus_vtable kTable[];
  static const sd_bus_vtable kRequest[];

  bool is_slow_;
  host::desktop::MessageRef unanswered_;
  BusPeer peer_;
};

const sd_bus_vtable Portal::kTable[] = {
    SD_BUS_VTABLE_START(0), SD_BUS_METHOD("Inhibit", "sua{sv}", "o", &Portal::inhibit, kFree),
    SD_BUS_VTABLE_END};
const sd_bus_vtable Portal::kRequest[] = {SD_BUS_VTABLE_START(0),
                                          SD_BUS_METHOD("Close", "", "", &Portal::close, kFree),
                                          SD_BUS_VTABLE_END};

/// The login service, on the system's bus: a lock is the writing end of a pipe.
class LoginService {
 public:
  explicit LoginService(host::RunLoop& loop) : bus_(loop, Bus::Kind::kSystem) {
    bus_.open();
    object_ =
        bus_.add_object("/org/freedesktop/login1", "org.freedesktop.login1.Manager", kTable, this);
    bool has_name = false;
    name_ =
        bus_.request_name(kLoginName, [&](const auto& answer) { has_name = !answer.is_error(); });
    EXPECT_TRUE(run_until(loop, [&] { return has_name; }));
  }

  /// Whether someone still holds the lock.
  bool is_locked() const {
    pollfd lock{lock_.get(), 0, 0};
    return lock_ && poll(&lock, 1, 0) == 0;
  }

  std::vector<std::string> log;

 private:
  static int inhibit(sd_bus_message* call, void* data, sd_bus_error*) {
    auto& service = *static_cast<LoginService*>(data);
    service.log.push_back("Inhibit " + host::test::contents_of(call));
    int ends[2];
    EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
    service.lock_ = Descriptor(ends[0]);
    const Descriptor lock(ends[1]);
    return sd_bus_reply_method_return(call, "h", lock.get());
  }

  static const sd_bus_vtable kTable[];

  Bus bus_;
  SlotRef object_;
  SlotRef name_;
  Descriptor lock_;
};

const sd_bus_vtable LoginService::kTable[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Inhibit", "ssss", "h", &LoginService::inhibit, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END};

constexpr const char* kAsked = "Inhibit \"\" 4 {\"reason\": \"Music is playing\"}";

class ASleepLock : public host::test::DesktopTest {
 protected:
  ASleepLock() {
    follow();
    lock_ = std::make_unique<SleepLock>(loop, bus, *now_playing);
  }
  ~ASleepLock() override {
    lock_.reset();
    now_playing.reset();
  }

  std::unique_ptr<SleepLock> lock_;
  host::test::CaughtLog log_;
};

TEST_F(ASleepLock, IsThePortalsWhileMusicPlays) {
  Portal portal(loop);
  loop.run_ready();
  EXPECT_THAT(portal.log, IsEmpty()) << "nothing plays";
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return portal.is_asked(); }));
  media().changeTrack(1);
  loop.run_ready();
  EXPECT_THAT(portal.log, ElementsAre(kAsked)) << "a song that follows another changes nothing";
  player().pause();
  ASSERT_TRUE(run_until(loop, [&] { return portal.log.size() == 2; }));
  player().play();
  ASSERT_TRUE(run_until(loop, [&] { return portal.log.size() == 3; }));
  EXPECT_THAT(portal.log, ElementsAre(kAsked, "Close", kAsked));
  EXPECT_EQ(log_.text(), "");
}

TEST_F(ASleepLock, IsGivenBackWhenTheQueueIsOver) {
  Portal portal(loop);
  play("Delta");
  ASSERT_TRUE(run_until(loop, [&] { return portal.is_asked(); }));
  advance(21);
  EXPECT_TRUE(run_until(loop, [&] { return portal.log.size() == 2; }));
  EXPECT_THAT(portal.log, ElementsAre(kAsked, "Close"));
}

TEST_F(ASleepLock, IsGivenBackAtTheEndOfThePhone) {
  Portal portal(loop);
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return portal.is_asked(); }));
  portal.catch_up();
  catch_up();
  lock_.reset();
  EXPECT_TRUE(run_until(loop, [&] { return portal.log.size() == 2; }));
  EXPECT_EQ(portal.log.back(), "Close");
}

TEST_F(ASleepLock, ThatComesAfterAPauseIsGivenBack) {
  Portal portal(loop, true);
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return portal.is_asked(); }));
  player().pause();
  loop.run_ready();
  EXPECT_THAT(portal.log, ElementsAre(kAsked));
  portal.answer();
  ASSERT_TRUE(run_until(loop, [&] { return portal.log.size() == 2; }));
  EXPECT_EQ(portal.log.back(), "Close");
}

TEST_F(ASleepLock, OfAPortalThatIsStartedAgainIsAskedForAgain) {
  auto portal = std::make_unique<Portal>(loop);
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return portal->is_asked(); }));
  portal->catch_up();
  catch_up();
  portal.reset();
  Portal next(loop);
  ASSERT_TRUE(run_until(loop, [&] { return next.is_asked(); }));
  EXPECT_EQ(next.log.front(), kAsked);
}

TEST_F(ASleepLock, WithoutAPortalIsTheLoginServices) {
  const host::test::PrivateBus system("DBUS_SYSTEM_BUS_ADDRESS");
  LoginService service(loop);
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return service.is_locked(); }));
  EXPECT_THAT(service.log,
              ElementsAre("Inhibit \"sleep\" \"Sonavue\" \"Music is playing\" \"block\""));
  // The answer's message, which has the descriptor as well, ends with the question.
  player().pause();
  EXPECT_TRUE(run_until(loop, [&] { return !service.is_locked(); }));
  player().play();
  ASSERT_TRUE(run_until(loop, [&] { return service.is_locked(); }));
  EXPECT_EQ(log_.text(), "");
}

TEST_F(ASleepLock, WithoutASessionIsTheLoginServices) {
  const host::test::PrivateBus system("DBUS_SYSTEM_BUS_ADDRESS");
  LoginService service(loop);
  Portal portal(loop);
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return portal.is_asked(); }));
  daemon.kill();
  EXPECT_TRUE(run_until(loop, [&] { return service.is_locked(); }));
}

TEST_F(ASleepLock, WithoutBothSaysSoOnce) {
  play("Bravo");
  ASSERT_TRUE(run_until(loop, [&] { return !log_.text().empty(); }));
  player().pause();
  loop.run_ready();
  player().play();
  host::test::BusPeer(loop).catch_up_with("org.freedesktop.DBus");
  loop.run_ready();
  EXPECT_EQ(log_.take(),
            "info: the machine may go to sleep while music plays: there is neither a portal nor a "
            "login service\n");
}

}  // namespace
