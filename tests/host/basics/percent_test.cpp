#include "host/basics/percent.h"

#include <gtest/gtest.h>

namespace {

using host::percent_encoded;

TEST(PercentEncoding, KeepsLettersDigitsAndFourMarks) {
  EXPECT_EQ(percent_encoded("AZaz09-._~"), "AZaz09-._~");
}

TEST(PercentEncoding, EncodesEveryReservedCharacter) {
  EXPECT_EQ(percent_encoded(":/?#[]@"), "%3A%2F%3F%23%5B%5D%40");
  EXPECT_EQ(percent_encoded("!$&'()*+,;="), "%21%24%26%27%28%29%2A%2B%2C%3B%3D");
  EXPECT_EQ(percent_encoded("% \"<>\\^`{|}"), "%25%20%22%3C%3E%5C%5E%60%7B%7C%7D");
}

TEST(PercentEncoding, EncodesControlsAndEveryByteBeyondAscii) {
  EXPECT_EQ(percent_encoded(std::string_view("\0\n\x7F", 3)), "%00%0A%7F");
  EXPECT_EQ(percent_encoded("é"), "%C3%A9");
  EXPECT_EQ(percent_encoded("e\u0301"), "e%CC%81");
  EXPECT_EQ(percent_encoded("שלום"), "%D7%A9%D7%9C%D7%95%D7%9D");
  EXPECT_EQ(percent_encoded("\U0001F600"), "%F0%9F%98%80");
}

TEST(PercentEncoding, OfTenThousandCharactersLosesNone) {
  const std::string encoded = percent_encoded(std::string(10000, '#'));
  EXPECT_EQ(encoded.size(), 30000u);
  EXPECT_EQ(encoded.find_first_not_of("%23"), encoded.npos);
}

TEST(FileAddress, KeepsTheSlashesAndEncodesTheRest) {
  using host::file_address;
  EXPECT_EQ(file_address("/home/u/So \"x\" #1?.flac"),
            "file:///home/u/So%20%22x%22%20%231%3F.flac");
  EXPECT_EQ(file_address("/m/caf\xe9"), "file:///m/caf%E9");
}

}  // namespace
