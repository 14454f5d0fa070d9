#include "host/browser/web/answer.h"

#include <gmock/gmock.h>

#include <array>

namespace {

using namespace host::browser;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr std::array kFiles{PageFile{"/", "text/html; charset=utf-8", "<p>"}};

Request request(std::string host = "127.0.0.1:5000") {
  return {"GET", "/", {{"host", std::move(host)}}};
}

Request upgrade() {
  Request made = request();
  made.headers["origin"] = "http://127.0.0.1:5000";
  made.headers["upgrade"] = "websocket";
  made.headers["sec-websocket-version"] = "13";
  made.headers["sec-websocket-key"] = "dGhlIHNhbXBsZSBub25jZQ==";
  return made;
}

TEST(Answers, ServeTheFilesOfThePage) {
  const Answer made = answer(request(), kFiles);
  EXPECT_EQ(made.status, 200);
  EXPECT_THAT(made.bytes, AllOf(HasSubstr("Content-Type: text/html; charset=utf-8\r\n"),
                                HasSubstr("Content-Length: 3\r\n"), HasSubstr("\r\n\r\n<p>")));
}

TEST(Answers, ServeNothingElse) {
  for (const char* target : {"/x", "", "//", "/../etc/passwd", "/?", "http://127.0.0.1/"}) {
    Request other = request();
    other.target = target;
    EXPECT_EQ(answer(other, kFiles).status, 404) << target;
  }
}

TEST(Answers, AreNeverStored) {
  EXPECT_THAT(answer(request(), kFiles).bytes, HasSubstr("Cache-Control: no-store\r\n"));
}

TEST(Answers, LetThePageLoadAndReachNothingFromElsewhere) {
  EXPECT_THAT(
      answer(request(), kFiles).bytes,
      AllOf(HasSubstr("Content-Security-Policy: default-src 'none'; script-src 'self'; style-src "
                      "'self'; img-src 'self'; connect-src 'self' ws://127.0.0.1:5000; base-uri "
                      "'none'; form-action 'none'; frame-ancestors 'none'\r\n"),
            HasSubstr("Referrer-Policy: no-referrer\r\n"),
            HasSubstr("X-Content-Type-Options: nosniff\r\n"),
            HasSubstr("X-Frame-Options: DENY\r\n"),
            HasSubstr("Cross-Origin-Opener-Policy: same-origin\r\n"),
            HasSubstr("Cross-Origin-Resource-Policy: same-origin\r\n"),
            Not(HasSubstr("Access-Control-Allow"))));
}

TEST(Answers, OnlyGetIsKnown) {
  for (const char* method : {"POST", "HEAD", "OPTIONS", "DELETE"}) {
    Request other = request();
    other.method = method;
    const auto refused = refusal(other);
    ASSERT_TRUE(refused) << method;
    EXPECT_EQ(refused->status, 405);
  }
  EXPECT_FALSE(refusal(request()));
}

TEST(Answers, OnlyNamesOfThisMachineAreKnown) {
  for (const char* host : {"127.0.0.1", "localhost:1", "[::1]:65535", "127.0.0.1:5000"})
    EXPECT_FALSE(refusal(request(host))) << host;
  for (const char* host : {"", "evil.example", "evil.example:5000", "127.0.0.1.evil.example",
                           "localhost.evil.example:5000", "127.0.0.1:", "127.0.0.1:5000x",
                           "127.0.0.1:123456", "localhost, evil.example"}) {
    const auto refused = refusal(request(host));
    ASSERT_TRUE(refused) << host;
    EXPECT_EQ(refused->status, 403);
  }
}

TEST(Handshakes, AreProved) {
  const Answer made = handshake(upgrade());
  EXPECT_EQ(made.status, 101);
  // The example of RFC 6455.
  EXPECT_THAT(made.bytes, HasSubstr("Sec-WebSocket-Accept: s3pPLMBiTxaQ9kYGzzhZRbK+xOo=\r\n"));
}

TEST(Handshakes, AreOnlyForThePageItself) {
  for (const char* origin : {"", "null", "http://evil.example", "https://127.0.0.1:5000",
                             "http://127.0.0.1:5001", "http://localhost:5000"}) {
    Request foreign = upgrade();
    foreign.headers["origin"] = origin;
    EXPECT_EQ(handshake(foreign).status, 403) << origin;
  }
}

TEST(Handshakes, NeedTheVersionAndAKey) {
  Request old = upgrade();
  old.headers["sec-websocket-version"] = "8";
  EXPECT_EQ(handshake(old).status, 426);
  for (const char* key :
       {"", "short==", "dGhlIHNhbXBsZSBub25jZQ=x", "dGhlIHNhbXBsZSBub25j\r\n=="}) {
    Request odd = upgrade();
    odd.headers["sec-websocket-key"] = key;
    EXPECT_EQ(handshake(odd).status, 400) << key;
  }
}

}  // namespace
