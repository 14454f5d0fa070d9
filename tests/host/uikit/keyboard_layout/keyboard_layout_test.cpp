#include "host/uikit/keyboard_layout/keyboard_layout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "host/uikit/keyboard_layout/accents.h"

namespace {

using namespace host;
using namespace host::uikit;

std::vector<DeviceModel> devices() {
  std::vector<DeviceModel> all(device_models().begin(), device_models().end());
  DeviceModel coarse = *device_model("iPhone4,1");
  coarse.scale = 1;
  all.push_back(coarse);
  coarse = *device_model("iPhone7,2");
  coarse.scale = 1;
  all.push_back(coarse);
  return all;
}

KeyboardLayout layout_on(const DeviceModel& device, KeyPlane plane = KeyPlane::Letters,
                         KeyboardTraits traits = {}) {
  return make_layout(metrics_of(device), plane, traits);
}

const Key* find(const KeyboardLayout& layout, const std::string& text) {
  for (const Key& key : layout.keys) {
    if (key.text == text) return &key;
  }
  return nullptr;
}

TEST(KeyboardLayout, IsAsTallAsOnTheDevice) {
  EXPECT_EQ(layout_on(*device_model("iPhone5,1")).size, (CGSize{320, 216}));
  EXPECT_EQ(layout_on(*device_model("iPhone7,2")).size, (CGSize{375, 216}));
  EXPECT_EQ(layout_on(*device_model("iPhone7,1")).size, (CGSize{414, 226}));
}

TEST(KeyboardLayout, LettersOfAPhoneAreWhereThePlatformHasThem) {
  const KeyboardLayout layout = layout_on(*device_model("iPhone7,2"));
  EXPECT_EQ(find(layout, "q")->frame, (CGRect{3, 8, 31.5, 42}));
  EXPECT_EQ(find(layout, "p")->frame, (CGRect{340.5, 8, 31.5, 42}));
  EXPECT_EQ(layout.first_of(KeyKind::Space)->frame.size.width, 181.5);
}

TEST(KeyboardLayout, EveryKeyLiesOnWholePixelsWithinTheBoardAndOverlapsNone) {
  for (const DeviceModel& device : devices()) {
    for (const KeyPlane plane : {KeyPlane::Letters, KeyPlane::Numbers, KeyPlane::Symbols}) {
      const KeyboardLayout layout = layout_on(device, plane);
      const CGRect board({0, 0}, layout.size);
      for (const Key& key : layout.keys) {
        SCOPED_TRACE(std::string(device.name) + " " + key.label);
        for (const double edge : {key.frame.min_x(), key.frame.max_x(), key.frame.min_y()})
          EXPECT_NEAR(edge * device.scale, std::round(edge * device.scale), 1e-6);
        EXPECT_GE(key.frame.min_x(), 2);
        EXPECT_LE(key.frame.max_x(), layout.size.width - 2);
        EXPECT_LE(key.frame.max_y(), layout.size.height - 2);
        for (const Key& other : layout.keys) {
          if (&other == &key || other.row != key.row || other.frame.min_x() < key.frame.min_x())
            continue;
          EXPECT_GE(other.frame.min_x(), key.frame.max_x() + 4) << other.label;
        }
      }
    }
  }
}

TEST(KeyboardLayout, AllLettersAreEquallyWide) {
  for (const DeviceModel& device : devices()) {
    const KeyboardLayout layout = layout_on(device);
    const double width = find(layout, "q")->frame.size.width;
    for (const Key& key : layout.keys) {
      if (key.kind != KeyKind::Character) continue;
      EXPECT_NEAR(key.frame.size.width, width, 1e-6) << device.name << " " << key.label;
    }
  }
}

TEST(KeyboardLayout, RowsAreCentredOnTheScreen) {
  for (const DeviceModel& device : devices()) {
    if (device.is_tablet) continue;
    const KeyboardLayout layout = layout_on(device);
    for (const auto& [first, last] : {std::pair{"q", "p"}, {"a", "l"}, {"z", "m"}}) {
      const double left = find(layout, first)->frame.min_x();
      const double right = device.width - find(layout, last)->frame.max_x();
      EXPECT_NEAR(left, right, 1 / device.scale + 1e-6) << device.name << " " << first;
    }
  }
}

TEST(KeyboardLayout, AFingerBetweenKeysMeansTheNearestOne) {
  const KeyboardLayout layout = layout_on(*device_model("iPhone7,2"));
  const auto text_at = [&](CGPoint point) { return layout.keys[*layout.key_at(point)].text; };
  EXPECT_EQ(text_at({0, 0}), "q");
  EXPECT_EQ(text_at({374, 30}), "p");
  EXPECT_EQ(text_at({1, 80}), "a") << "the margin left of a short row belongs to its first key";
  EXPECT_EQ(text_at({374, 80}), "l");
  EXPECT_EQ(text_at({187, 215}), " ");
  EXPECT_EQ(text_at({36, 30}), "q");
  EXPECT_EQ(text_at({39, 30}), "w");
}

TEST(KeyboardLayout, TheKeyboardTypeDecidesWhichKeysExist) {
  const DeviceModel phone = *device_model("iPhone7,2");
  KeyboardTraits traits;
  traits.type = UIKeyboardTypeURL;
  EXPECT_TRUE(find(layout_on(phone, KeyPlane::Letters, traits), ".com"));
  EXPECT_FALSE(layout_on(phone, KeyPlane::Letters, traits).first_of(KeyKind::Space));
  traits.type = UIKeyboardTypeEmailAddress;
  EXPECT_TRUE(find(layout_on(phone, KeyPlane::Letters, traits), "@"));
  traits.type = UIKeyboardTypeNumberPad;
  EXPECT_TRUE(layout_on(phone, KeyPlane::Numbers, traits).is_number_pad);
  EXPECT_EQ(layout_on(phone, KeyPlane::Numbers, traits).keys.size(), 12U);
  EXPECT_EQ(first_plane(UIKeyboardTypeNumbersAndPunctuation), KeyPlane::Numbers);
  EXPECT_EQ(first_plane(UIKeyboardTypeDefault), KeyPlane::Letters);
}

TEST(KeyboardLayout, TheReturnKeyIsNamedAfterItsAction) {
  const DeviceModel phone = *device_model("iPhone7,2");
  KeyboardTraits traits;
  const auto return_key = [&] {
    return *layout_on(phone, KeyPlane::Letters, traits).first_of(KeyKind::Return);
  };
  EXPECT_EQ(return_key().label, "return");
  EXPECT_FALSE(return_key().is_action);
  traits.return_key = UIReturnKeySearch;
  EXPECT_EQ(return_key().label, "Search");
  EXPECT_TRUE(return_key().is_action);
  traits.return_key = UIReturnKeyDone;
  EXPECT_EQ(return_key().label, "Done");
  traits.return_key = UIReturnKeyGo;
  EXPECT_EQ(return_key().label, "Go");
  traits.return_key = static_cast<UIReturnKeyType>(99);
  EXPECT_EQ(return_key().label, "return");
}

TEST(KeyboardLayout, ATabletHasTwoShiftKeysAndADismissKey) {
  const KeyboardLayout layout = layout_on(*device_model("iPad4,1"));
  int shifts = 0;
  for (const Key& key : layout.keys)
    shifts += key.kind == KeyKind::Shift ? 1 : 0;
  EXPECT_EQ(shifts, 2);
  EXPECT_TRUE(layout.first_of(KeyKind::Dismiss));
}

TEST(Accents, BeginWithTheLetterItself) {
  for (const std::string letter : {"a", "e", "i", "o", "u", "n", "c", "s"}) {
    const auto offered = accents_of(letter);
    ASSERT_GE(offered.size(), 3U) << letter;
    EXPECT_EQ(offered.front(), letter);
    EXPECT_EQ(std::set<std::string>(offered.begin(), offered.end()).size(), offered.size());
  }
  EXPECT_TRUE(accents_of("q").empty());
  EXPECT_TRUE(accents_of("").empty());
}

}  // namespace
