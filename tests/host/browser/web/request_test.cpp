#include "host/browser/web/request.h"

#include <gtest/gtest.h>

namespace {

using host::browser::RequestReader;
using State = RequestReader::State;

TEST(Requests, AreReadInPieces) {
  const std::string head =
      "GET /phone.js?x HTTP/1.1\r\nHost: localhost:80\r\nX-EMPTY:\r\nUpgrade: WebSocket\r\n\r\n";
  RequestReader reader;
  for (std::size_t i = 0; i + 1 < head.size(); ++i)
    ASSERT_EQ(reader.append(head.substr(i, 1)), State::kIncomplete) << i;
  ASSERT_EQ(reader.append("\nearly"), State::kComplete);
  EXPECT_EQ(reader.request().method, "GET");
  EXPECT_EQ(reader.request().target, "/phone.js?x");
  EXPECT_EQ(reader.request().header("host"), "localhost:80");
  EXPECT_EQ(reader.request().header("x-empty"), "");
  EXPECT_EQ(reader.request().header("missing"), "");
  EXPECT_TRUE(reader.request().wants_socket());
  EXPECT_EQ(reader.rest(), "early");
}

TEST(Requests, AHeaderThatIsRepeatedIsNeitherOfBoth) {
  RequestReader reader;
  ASSERT_EQ(reader.append("GET / HTTP/1.1\r\nHost: localhost\r\nHost: evil.example\r\n\r\n"),
            State::kComplete);
  EXPECT_EQ(reader.request().header("host"), "localhost, evil.example");
}

TEST(Requests, OtherBytesAreInvalid) {
  for (const char* bytes : {"\x16\x03\x01", "GET\r\n", "GET / HTTP/9.9x\r\n\r\n"}) {
    RequestReader reader;
    EXPECT_EQ(reader.append(bytes), State::kInvalid) << bytes;
  }
}

TEST(Requests, AHeadHasABound) {
  RequestReader reader;
  ASSERT_EQ(reader.append("GET / HTTP/1.1\r\n"), State::kIncomplete);
  State state = State::kIncomplete;
  std::size_t sent = 0;
  while (state == State::kIncomplete) {
    state = reader.append("X: " + std::string(1000, 'x') + "\r\n");
    sent += 1000;
    ASSERT_LE(sent, 2 * RequestReader::kLongestHead);
  }
  EXPECT_EQ(state, State::kTooLong);
}

}  // namespace
