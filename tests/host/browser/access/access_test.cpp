#include "host/browser/access/access.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <set>

#include "host/browser/access/loopback.h"

namespace {

using namespace host;
using namespace host::browser;

struct Accesses : testing::Test {
  Accesses() : memory(Access::make()), access(Access::open(memory.get())) {}

  Descriptor memory;
  std::unique_ptr<Access> access;
};

TEST_F(Accesses, ATokenIsGoodOnce) {
  const std::string token = access->token();
  EXPECT_EQ(token.size(), Access::kKeyLength);
  const auto secret = access->admit(token);
  ASSERT_TRUE(secret);
  EXPECT_EQ(secret->size(), Access::kKeyLength);
  EXPECT_NE(*secret, token);
  EXPECT_EQ(access->token(), "");
  EXPECT_FALSE(access->admit(token));
}

TEST_F(Accesses, ASecretIsGoodAgainAndAgain) {
  const auto secret = access->admit(access->token());
  EXPECT_EQ(access->admit(*secret), secret);
  EXPECT_EQ(access->admit(*secret), secret);
}

TEST_F(Accesses, NoOtherKeyIsGood) {
  std::string almost = access->token();
  almost.back() = almost.back() == '0' ? '1' : '0';
  for (const std::string& key : {std::string(), std::string("x"), almost, access->token() + "0",
                                 std::string(Access::kKeyLength, '\0')})
    EXPECT_FALSE(access->admit(key)) << key;
  EXPECT_TRUE(access->admit(access->token()));
}

TEST_F(Accesses, AnotherProcessKnowsTheSame) {
  const auto other = Access::open(memory.get());
  const auto secret = access->admit(access->token());
  EXPECT_EQ(other->token(), "");
  EXPECT_EQ(other->admit(*secret), secret);
}

TEST_F(Accesses, ANewLinkLeavesThePageInUntilItIsUsed) {
  const auto secret = access->admit(access->token());
  ASSERT_TRUE(access->renew());
  EXPECT_EQ(access->admit(*secret), secret);
  const auto next = access->admit(access->token());
  ASSERT_TRUE(next);
  EXPECT_NE(next, secret);
  EXPECT_FALSE(access->admit(*secret));
}

TEST_F(Accesses, EveryKeyIsAnother) {
  std::set<std::string> keys;
  for (int i = 0; i < 100; ++i) {
    ASSERT_TRUE(access->renew());
    keys.insert(access->token());
  }
  EXPECT_EQ(keys.size(), 100u);
}

TEST(Access, OtherMemoryIsNone) {
  EXPECT_EQ(Access::open(-1), nullptr);
  EXPECT_EQ(Access::open(0), nullptr);
}

TEST(Loopback, ListensOnThisMachineOnly) {
  const Descriptor listener = listen_on_loopback();
  ASSERT_TRUE(listener);
  sockaddr_in address{};
  socklen_t size = sizeof address;
  ASSERT_EQ(getsockname(listener.get(), reinterpret_cast<sockaddr*>(&address), &size), 0);
  EXPECT_EQ(address.sin_addr.s_addr, htonl(INADDR_LOOPBACK));
  EXPECT_EQ(link_to(listener.get(), "abc"),
            "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/#abc");
}

}  // namespace
