#include "host/desktop/bus/bus_text.h"

#include <gtest/gtest.h>

#include "host/basics/utf8.h"

namespace {

using host::desktop::bus_text;
using host::desktop::kLongestBusText;

TEST(BusText, KeepsTextOfAnyLanguage) {
  for (const char* const text : {"", "Füür & \"Wasser\"", "東京 🎵", "e\u0301", "<b>bold</b>"})
    EXPECT_EQ(bus_text(text), text);
}

TEST(BusText, HasNoControlCharacters) {
  EXPECT_EQ(bus_text("one\ntwo\r\tthree"), "one two  three");
  EXPECT_EQ(bus_text("a\x1b[2Kb\x7f\x01"), "a[2Kb");
  EXPECT_EQ(bus_text(std::string_view("a\0b", 3)), "ab");
  EXPECT_EQ(bus_text("a\xc2\x9b"
                     "b\xe2\x80\xa8"
                     "c\xe2\x80\xae"),
            "abc");
}

TEST(BusText, ReplacesWhatIsNoText) {
  EXPECT_EQ(bus_text("caf\xe9"), "caf\xef\xbf\xbd");
  EXPECT_EQ(bus_text("cut \xe2\x80"), "cut \xef\xbf\xbd\xef\xbf\xbd");
  EXPECT_EQ(bus_text("\xed\xa0\x80"), "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd") << "half a pair";
  EXPECT_EQ(bus_text("x\xef\xbf\xbf"
                     "y"),
            "x\xef\xbf\xbd"
            "y")
      << "no character";
  EXPECT_EQ(bus_text("x\xef\xb7\x90"
                     "y"),
            "x\xef\xbf\xbd"
            "y")
      << "no character";
}

TEST(BusText, IsCutBetweenCharacters) {
  std::string notes;
  for (int i = 0; i < 10'000; ++i)
    notes += "ü";
  const std::string cut = bus_text(notes);
  EXPECT_LE(cut.size(), kLongestBusText + 3);
  EXPECT_TRUE(host::utf8::is_valid(cut));
  EXPECT_TRUE(cut.ends_with("ü…"));
  EXPECT_EQ(bus_text(std::string(kLongestBusText, 'x')), std::string(kLongestBusText, 'x'));
}

}  // namespace
