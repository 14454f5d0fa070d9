#include <gmock/gmock.h>

#include "tests/host/activator/support/service_test.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Registry : public ActivatorTest {};

TEST_F(Registry, CallsTheListenerThatTheEventIsAssignedTo) {
  add(plain_listener(), "a");
  ASSERT_TRUE(assign("shake", "a"));
  send("shake");
  EXPECT_THAT(script().events, ElementsAre("shake springboard"));
}

TEST_F(Registry, CallsNoListenerForAnotherModeOrEvent) {
  add(plain_listener(), "a");
  ASSERT_TRUE(assign("shake", "a"));
  send("shake", "lockscreen");
  send("home-hold");
  EXPECT_THAT(script().events, IsEmpty());
}

TEST_F(Registry, CallsSeveralListenersInTheOrderOfTheirAssignment) {
  add(plain_listener(), "a");
  add(plain_listener(), "b");
  ASSERT_TRUE(assign("shake", "b"));
  ASSERT_TRUE(assign("shake", "a"));
  const NSArray names = service().assignedListenerNamesForEvent(event("shake"));
  EXPECT_STREQ(names.componentsJoinedByString(","_ns).UTF8String(), "b,a");
  send("shake");
  EXPECT_EQ(script().events.size(), 2u);
}

TEST_F(Registry, PassesTheSameEventToEveryListener) {
  add(plain_listener(), "a");
  add(plain_listener(), "b");
  assign("shake", "a");
  assign("shake", "b");
  std::vector<BOOL> handled;
  script().on_event = [&](LAEvent told) {
    handled.push_back(told.isHandled());
    told.setHandled(YES);
  };
  send("shake");
  EXPECT_THAT(handled, ElementsAre(NO, YES));
}

TEST_F(Registry, AListenerThatItsOwnerReleasedIsStillCalled) {
  add(plain_listener(), "a");
  assign("shake", "a");
  EXPECT_EQ(script().living, 1);
  send("shake");
  EXPECT_EQ(script().events.size(), 1u);
}

TEST_F(Registry, ReleasesUnregisteredListeners) {
  add(plain_listener(), "a");
  assign("shake", "a");
  service().unregisterListenerWithName("a"_ns);
  EXPECT_EQ(script().living, 0);
  EXPECT_FALSE(service().listenerForName("a"_ns));
  send("shake");
  EXPECT_THAT(script().events, IsEmpty());
}

TEST_F(Registry, ASecondListenerOfTheSameNameReplacesTheFirst) {
  add(plain_listener(), "a");
  const LAListener second = plain_listener();
  add(second, "a");
  EXPECT_EQ(script().living, 1);
  EXPECT_EQ(service().listenerForName("a"_ns), second);
  assign("shake", "a");
  send("shake");
  EXPECT_EQ(script().events.size(), 1u);
}

TEST_F(Registry, AListenerMayUnregisterItselfFromItsEvent) {
  add(plain_listener(), "a");
  assign("shake", "a");
  script().on_event = [&](LAEvent) {
    service().unregisterListenerWithName("a"_ns);
    EXPECT_EQ(script().living, 1);
  };
  send("shake");
  EXPECT_EQ(script().living, 0);
}

TEST_F(Registry, CallsAllAssignedListenersWhateverTheFirstOneChanges) {
  const auto names = {"the first listener", "the second listener", "the third listener"};
  for (const char* name : names) {
    add(plain_listener(), name);
    assign("shake", name);
  }
  script().on_event = [&](LAEvent told) {
    for (const char* name : names)
      service().unassignEvent(told, to_ns(name));
  };
  send("shake");
  EXPECT_EQ(script().events.size(), 3u);
}

TEST_F(Registry, AnExceptionDoesNotKeepOthersFromTheEvent) {
  add(plain_listener(), "first");
  add(plain_listener(), "second");
  assign("shake", "first");
  assign("shake", "second");
  media_tests::CapturedLog log;
  script().on_event = [&](LAEvent) {
    if (script().events.size() == 1) raise_exception();
  };
  send("shake");
  EXPECT_EQ(script().events.size(), 2u);
  EXPECT_EQ(log.count("gesture listener first threw"), 1);
}

TEST_F(Registry, NilUnnamedAndUnresponsiveListenersAreHarmless) {
  service().registerListener(nil, "nobody"_ns);
  service().registerListener(plain_listener().autorelease(), nil);
  EXPECT_EQ(service().availableListenerNames().count(), 0u);
  add(deaf_listener(), "deaf");
  assign("shake", "deaf");
  assign("shake", "nobody");
  send("shake");
  EXPECT_EQ(service().availableListenerNames().count(), 1u);
}

TEST_F(Registry, RefusesUnknownNamesAndModesThatTheListenerLacks) {
  script().on_question = [](const std::string& question) -> objc::Object {
    return question == "modes" ? NSArray::arrayWithObjects("lockscreen"_ns, "application"_ns)
                               : NSArray();
  };
  add(answering_listener(), "a");
  EXPECT_FALSE(assign("shake", "a", "springboard"));
  EXPECT_FALSE(assign("dance", "a", "lockscreen"));
  EXPECT_FALSE(assign("shake", "a", "underwater"));
  EXPECT_FALSE(std::filesystem::exists(assignments_file()));
  EXPECT_TRUE(assign("shake", "a", "lockscreen"));
}

TEST_F(Registry, AGestureIsSentInTheNextTurnInTheCurrentMode) {
  add(plain_listener(), "a");
  assign("shake", "a", "lockscreen");
  EXPECT_FALSE(Service::shared().recognized("shake"));
  mode.mode = Mode::LockScreen;
  EXPECT_TRUE(Service::shared().recognized("shake"));
  EXPECT_THAT(script().events, IsEmpty());
  loop.run_ready();
  EXPECT_THAT(script().events, ElementsAre("shake lockscreen"));
}

TEST_F(Registry, AGestureEndsWithTheServiceThatRecognizedIt) {
  add(plain_listener(), "a");
  assign("shake", "a");
  EXPECT_TRUE(Service::shared().recognized("shake"));
  // Twice, since the second service may get the address of the first.
  start_again();
  start_again();
  add(plain_listener(), "a");
  loop.run_ready();
  EXPECT_THAT(script().events, IsEmpty());
}

TEST_F(Registry, AGestureOfAnAbsentListenerIsNotSent) {
  EXPECT_TRUE(assign("shake", "not there"));
  EXPECT_FALSE(Service::shared().recognized("shake"));
}

}  // namespace
}  // namespace host::test
