#include <gtest/gtest.h>

#include "host/basics/ascii.h"
#include "host/basics/utf8.h"

namespace {

using host::ascii_of;
using host::bytes_of_ascii;

TEST(OddBytes, GoThroughAnArgument) {
  EXPECT_EQ(ascii_of("/music/One song.flac"), "/music/One song.flac");
  EXPECT_EQ(ascii_of("/a\xff%"), "/a%ff%25");
  for (const std::string path : {"/plain", "/100%", "/%41", "/\xc3\xa9\xff\x01\x7f", "/%", "/%4"})
    EXPECT_EQ(bytes_of_ascii(ascii_of(path)), path);
  EXPECT_EQ(bytes_of_ascii("%4%zz%"), "%4%zz%");
}

TEST(OddBytes, AreNoUtf8) {
  for (const char* text : {"", "plain", "\xc3\xa9", "\xe2\x82\xac", "\xed\x9f\xbf",
                           "\xf0\x9f\x98\x80", "\xf4\x8f\xbf\xbf"})
    EXPECT_TRUE(host::utf8::is_valid(text)) << text;
  for (const char* text : {"\xff", "\xc3", "a\x80", "\xc0\xaf", "\xe0\x9f\xbf", "\xed\xa0\x80",
                           "\xe2\x82", "\xf0\x8f\xbf\xbf", "\xf4\x90\x80\x80", "\xf0\x9f\x98"})
    EXPECT_FALSE(host::utf8::is_valid(text)) << text;
}

}  // namespace
