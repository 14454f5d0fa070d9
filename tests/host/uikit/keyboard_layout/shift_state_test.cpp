#include "host/uikit/keyboard_layout/shift_state.h"

#include <gtest/gtest.h>

namespace {

using host::uikit::ShiftState;
using Value = ShiftState::Value;

TEST(ShiftState, AppliesToOneLetter) {
  ShiftState shift;
  shift.press(0);
  shift.release();
  EXPECT_EQ(shift.value(), Value::Once);
  shift.typed();
  EXPECT_EQ(shift.value(), Value::Off);
}

TEST(ShiftState, TwoQuickPressesLockUntilTheNextOne) {
  ShiftState shift;
  shift.press(1);
  shift.release();
  shift.press(1.2);
  shift.release();
  EXPECT_EQ(shift.value(), Value::Locked);
  shift.typed();
  shift.typed();
  EXPECT_EQ(shift.value(), Value::Locked);
  shift.press(1.3);
  EXPECT_EQ(shift.value(), Value::Off);
}

TEST(ShiftState, TwoSlowPressesTurnItOnAndOff) {
  ShiftState shift;
  shift.press(1);
  shift.release();
  shift.press(2);
  EXPECT_EQ(shift.value(), Value::Off);
}

TEST(ShiftState, WhileHeldAppliesToEveryLetter) {
  ShiftState shift;
  shift.press(0);
  shift.typed();
  shift.typed();
  EXPECT_EQ(shift.value(), Value::Once);
  shift.release();
  EXPECT_EQ(shift.value(), Value::Off);
}

TEST(ShiftState, ASentenceMaySuggestACapitalUnlessItIsLocked) {
  ShiftState shift;
  shift.suggest(true);
  EXPECT_EQ(shift.value(), Value::Once);
  shift.suggest(false);
  EXPECT_EQ(shift.value(), Value::Off);
  shift.press(1);
  shift.press(1.1);
  shift.suggest(false);
  EXPECT_EQ(shift.value(), Value::Locked);
}

}  // namespace
