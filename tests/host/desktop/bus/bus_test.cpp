#include "host/desktop/bus/bus.h"

#include <gmock/gmock.h>

#include <limits>

#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"
#include "tests/support/private_bus.h"

namespace {

using host::desktop::Answer;
using host::desktop::Bus;
using host::desktop::BusClient;
using host::desktop::SlotRef;
using host::test::run_until;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kDaemon = "org.freedesktop.DBus";
constexpr Bus::Method kPing = {kDaemon, "/", "org.freedesktop.DBus.Peer", "Ping"};
constexpr const char* kName = "org.example.Echo";
constexpr const char* kPath = "/echo";
// Ten of them are more than the library lets wait in the socket, which is 8 MB.
constexpr std::size_t kLongText = 1'000'000;

int echo(sd_bus_message* call, void*, sd_bus_error*) {
  const char* text = nullptr;
  sd_bus_message_read(call, "s", &text);
  return sd_bus_reply_method_return(call, "s", text);
}

const sd_bus_vtable kEcho[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Say", "s", "s", &echo, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END,
};

/// Puts an object and a name on each connection.
class Echo : public BusClient {
 public:
  explicit Echo(Bus& bus) : bus_(bus) {}
  ~Echo() override { bus_.remove_client(*this); }
  void bus_did_open() override {
    ++opened;
    object_ = bus_.add_object(kPath, kName, kEcho, nullptr);
    name_ =
        bus_.request_name(kName, [this](const Answer& answer) { has_name = !answer.is_error(); });
  }
  void bus_did_close() override {
    ++closed;
    has_name = false;
    object_.reset();
    name_.reset();
  }

  int opened = 0;
  int closed = 0;
  bool has_name = false;

 private:
  Bus& bus_;
  SlotRef object_;
  SlotRef name_;
};

class ABus : public host::test::HostTest {
 protected:
  bool opens() {
    return bus_.open() && run_until(loop, [&] { return echo_.has_name; });
  }
  std::string say(const std::string& text) {
    return host::test::BusPeer(loop).ask({kName, kPath, kName, "Say"}, [&](sd_bus_message* call) {
      sd_bus_message_append(call, "s", text.c_str());
    });
  }
  /// The number of seconds until the loop has something to do, from now on.
  double next_try() const { return loop.next_due() - clock.now(); }

  host::test::PrivateBus daemon_;
  Bus bus_{loop, Bus::Kind::kSession};
  Echo echo_{bus_};
  host::test::CaughtLog log_;
};

TEST_F(ABus, AnswersCallsOfOthers) {
  bus_.add_client(echo_);
  ASSERT_TRUE(opens());
  EXPECT_EQ(say("hello"), "\"hello\"");
}

TEST_F(ABus, TellsAClientThatComesLater) {
  ASSERT_TRUE(bus_.open());
  bus_.add_client(echo_);
  EXPECT_EQ(echo_.opened, 1);
}

TEST_F(ABus, AtRestWakesNothing) {
  bus_.add_client(echo_);
  ASSERT_TRUE(opens());
  EXPECT_EQ(say("hello"), "\"hello\"");
  EXPECT_EQ(loop.next_due(), std::numeric_limits<double>::infinity());
  int turns = 0;
  const auto observer = loop.add_turn_observer(0, [&] { ++turns; });
  loop.run_ready();
  EXPECT_EQ(turns, 0);
  loop.remove_turn_observer(observer);
}

TEST_F(ABus, WaitsForAnAnswerNoLongerThanTheLibraryDoes) {
  ASSERT_TRUE(bus_.open());
  const auto question = bus_.call(kPing, nullptr, [](const Answer&) {});
  EXPECT_LT(next_try(), 100) << "the call's own timeout wakes the loop";
}

TEST_F(ABus, SendsTheRestWhenTheDaemonTakesIt) {
  bus_.add_client(echo_);
  ASSERT_TRUE(opens());
  host::test::BusPeer peer(loop);
  peer.record(kPath);
  constexpr int kSignals = 20;
  const std::string long_text(kLongText, 'x');
  daemon_.freeze();
  for (int i = 0; i < kSignals; ++i)
    bus_.emit(kPath, kName, "Said", [&](sd_bus_message* signal) {
      sd_bus_message_append(signal, "s", long_text.c_str());
    });
  loop.run_ready();
  daemon_.thaw();
  std::size_t received = 0;
  EXPECT_TRUE(run_until(loop, [&] {
    received += peer.take_signals().size();
    return received == kSignals;
  })) << received;
}

TEST_F(ABus, ThatDoesNotAnswerKeepsTheLoopAsleep) {
  bus_.add_client(echo_);
  ASSERT_TRUE(opens());
  daemon_.freeze();
  const std::string long_text(10 * kLongText, 'x');
  bus_.emit(kPath, kName, "Said",
            [&](sd_bus_message* signal) { sd_bus_message_append(signal, "s", long_text.c_str()); });
  loop.run_ready();
  int turns = 0;
  const auto observer = loop.add_turn_observer(0, [&] { ++turns; });
  loop.run_ready();
  EXPECT_EQ(turns, 0) << "there is something to send, and no room for it";
  loop.remove_turn_observer(observer);
  daemon_.thaw();
}

TEST_F(ABus, OfManyMessagesHandlesSomeATurn) {
  bus_.add_client(echo_);
  ASSERT_TRUE(opens());
  host::test::BusPeer peer(loop);
  constexpr int kCalls = 1000;
  int answers = 0;
  int most_a_turn = 0;
  int before = 0;
  const auto observer = loop.add_turn_observer(
      0, [&] { most_a_turn = std::max(most_a_turn, answers - std::exchange(before, answers)); });
  std::vector<SlotRef> questions;
  for (int i = 0; i < kCalls; ++i)
    questions.push_back(peer.bus.call(kPing, nullptr, [&](const Answer&) { ++answers; }));
  EXPECT_TRUE(run_until(loop, [&] { return answers == kCalls; }));
  EXPECT_LE(most_a_turn, 64);
  loop.remove_turn_observer(observer);
}

TEST_F(ABus, WithoutADaemonIsNoError) {
  daemon_.kill();
  std::filesystem::remove(daemon_.address().substr(10));
  EXPECT_FALSE(bus_.open());
  EXPECT_EQ(log_.text(), "");
  EXPECT_EQ(loop.next_due(), std::numeric_limits<double>::infinity()) << "it is not looked for";
}

TEST_F(ABus, WithoutAnAddressIsNoError) {
  const host::test::Variable none("DBUS_SESSION_BUS_ADDRESS", "");
  unsetenv("DBUS_SESSION_BUS_ADDRESS");
  const host::test::Variable nowhere("XDG_RUNTIME_DIR", "/nowhere");
  EXPECT_FALSE(bus_.open());
  EXPECT_EQ(log_.text(), "");
}

TEST_F(ABus, AnAddressThatMakesNoSenseIsSaid) {
  const host::test::Variable odd("DBUS_SESSION_BUS_ADDRESS", "carrier pigeon");
  EXPECT_FALSE(bus_.open());
  EXPECT_THAT(log_.text(), HasSubstr("the session bus cannot be reached"));
}

TEST_F(ABus, ThatEndsAndReturnsHasItsClientsAgain) {
  bus_.add_client(echo_);
  ASSERT_TRUE(opens());
  daemon_.kill();
  ASSERT_TRUE(run_until(loop, [&] { return echo_.closed == 1; }));
  EXPECT_THAT(log_.take(), HasSubstr("the session bus has ended"));
  daemon_.start();
  advance(1);
  ASSERT_TRUE(run_until(loop, [&] { return echo_.has_name; }));
  EXPECT_EQ(echo_.opened, 2);
  EXPECT_EQ(say("again"), "\"again\"");
  EXPECT_EQ(log_.take(), "info: the session bus is back\n");
}

TEST_F(ABus, ThatStaysAwayIsLookedForEverMoreSeldom) {
  bus_.add_client(echo_);
  ASSERT_TRUE(opens());
  daemon_.kill();
  ASSERT_TRUE(run_until(loop, [&] { return echo_.closed == 1; }));
  std::vector<double> pauses;
  for (int i = 0; i < 9; ++i) {
    pauses.push_back(next_try());
    advance(next_try());
  }
  EXPECT_THAT(pauses, ElementsAre(1, 2, 4, 8, 16, 32, 60, 60, 60));
  EXPECT_EQ(echo_.opened, 1);
  EXPECT_THAT(log_.take(),
              testing::AllOf(HasSubstr("has ended"), testing::Not(HasSubstr("bus is back"))));
}

TEST_F(ABus, ThatEndsAnswersWhatIsStillAsked) {
  ASSERT_TRUE(bus_.open());
  ASSERT_NE(host::test::BusPeer(loop).ask(kPing), "no answer");
  host::test::BusPeer silent(loop);
  ASSERT_TRUE(silent.take_name("org.example.Silent"));
  // A match that takes the call and never answers it.
  const auto kept = silent.bus.add_object(
      "/", "org.example.Silent",
      [] {
        static const sd_bus_vtable table[] = {
            SD_BUS_VTABLE_START(0),
            SD_BUS_METHOD(
                "Ask", "", "", [](sd_bus_message*, void*, sd_bus_error*) { return 1; },
                SD_BUS_VTABLE_UNPRIVILEGED),
            SD_BUS_VTABLE_END};
        return table;
      }(),
      nullptr);
  std::string problem;
  const auto question = bus_.call(
      {"org.example.Silent", "/", "org.example.Silent", "Ask"}, nullptr,
      [&](const Answer& answer) { problem = answer.is_error() ? answer.problem() : "?"; });
  daemon_.kill();
  ASSERT_TRUE(run_until(loop, [&] { return !problem.empty(); }));
  EXPECT_THAT(problem, HasSubstr("org.freedesktop.DBus.Error"));
}

TEST_F(ABus, ACallWhoseSlotIsReleasedIsNotAnswered) {
  ASSERT_TRUE(bus_.open());
  bool is_answered = false;
  auto question = bus_.call(kPing, nullptr, [&](const Answer&) { is_answered = true; });
  question.reset();
  host::test::BusPeer peer(loop);
  peer.catch_up_with(kDaemon);
  std::optional<bool> later;
  const auto next = bus_.call(kPing, nullptr, [&](const Answer&) { later = true; });
  ASSERT_TRUE(run_until(loop, [&] { return later.has_value(); }));
  EXPECT_FALSE(is_answered);
}

}  // namespace
