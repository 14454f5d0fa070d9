#include "host/launcher/path_argument.h"

#include <gtest/gtest.h>

#include "host/basics/utf8.h"

namespace {

using host::is_utf8;
using host::launcher::path_argument;
using host::launcher::path_from_argument;

TEST(PathArguments, ArePlainTextForAnyName) {
  EXPECT_EQ(path_argument("/music/One song.flac"), "/music/One song.flac");
  EXPECT_EQ(path_argument("/a\xff\n%"), "/a%FF%0A%25");
  for (const std::string path : {"/plain", "/100%", "/%41", "/\xc3\xa9\xff\x01\x7f", "/%", "/%4"})
    EXPECT_EQ(path_from_argument(path_argument(path)), path);
  EXPECT_EQ(path_from_argument("%4%zz%"), "%4%zz%");
}

TEST(Utf8, IsWhatFoundationCanRead) {
  for (const char* text : {"", "plain", "\xc3\xa9", "\xe2\x82\xac", "\xed\x9f\xbf",
                           "\xf0\x9f\x98\x80", "\xf4\x8f\xbf\xbf"})
    EXPECT_TRUE(is_utf8(text)) << text;
  for (const char* text : {"\xff", "\xc3", "a\x80", "\xc0\xaf", "\xe0\x9f\xbf", "\xed\xa0\x80",
                           "\xe2\x82", "\xf0\x8f\xbf\xbf", "\xf4\x90\x80\x80", "\xf0\x9f\x98"})
    EXPECT_FALSE(is_utf8(text)) << text;
}

}  // namespace
