#include "host/springboard/processes/message_budget.h"

#include <gtest/gtest.h>

namespace {

using host::springboard::MessageBudget;

void say(MessageBudget& budget, double second, int messages) {
  for (int i = 0; i < messages; ++i)
    budget.count(second + static_cast<double>(i) / messages);
}

TEST(MessageBudget, AcceptsAnHonestApplication) {
  MessageBudget budget;
  for (int second = 0; second < 60; ++second)
    say(budget, second, 300);
  EXPECT_FALSE(budget.is_flooded());
}

TEST(MessageBudget, ForgivesOneBusySecond) {
  MessageBudget budget;
  say(budget, 100, MessageBudget::kMessagesPerSecond * 3);
  say(budget, 101, 10);
  say(budget, 102, 10);
  say(budget, 103, MessageBudget::kMessagesPerSecond * 3);
  say(budget, 104, 10);
  EXPECT_FALSE(budget.is_flooded());
}

TEST(MessageBudget, TwoBusySecondsAreAFlood) {
  MessageBudget budget;
  say(budget, 100, MessageBudget::kMessagesPerSecond * 2);
  say(budget, 101, MessageBudget::kMessagesPerSecond * 2);
  EXPECT_FALSE(budget.is_flooded());
  say(budget, 102, 1);
  EXPECT_TRUE(budget.is_flooded());
}

TEST(MessageBudget, DoesNotAddUpSeparateSeconds) {
  MessageBudget budget;
  for (int second = 0; second < 40; second += 4)
    say(budget, second, MessageBudget::kMessagesPerSecond * 2);
  EXPECT_FALSE(budget.is_flooded());
}

}  // namespace
