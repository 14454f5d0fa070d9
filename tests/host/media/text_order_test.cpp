#include "host/media/text_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>

using namespace host::media;

namespace {

std::vector<std::uint32_t> order_of(const std::vector<std::string>& texts) {
  const std::vector<std::string_view> views{texts.begin(), texts.end()};
  return order_of_texts(views, std::ranges::greater{});
}

// Equal texts have the last place first.
std::vector<std::uint32_t> expected_order(const std::vector<std::string>& texts) {
  std::vector<std::uint32_t> places(texts.size());
  std::iota(places.rbegin(), places.rend(), 0u);
  std::ranges::stable_sort(places, {}, [&](std::uint32_t place) { return texts[place]; });
  return places;
}

}  // namespace

TEST(TextOrder, BytesCountAsTheyAreAndAnEndComesFirst) {
  const std::vector<std::string> texts = {"\xc3\xa4",  "b",           "",       "a", "12345678",
                                          "123456789", "1234567\x01", "1234567"};
  EXPECT_EQ(order_of(texts), expected_order(texts));
}

TEST(TextOrder, IsThatOfComparedTexts) {
  std::minstd_rand random;
  for (int round = 0; round < 200; ++round) {
    std::vector<std::string> texts(random() % 100);
    for (std::string& text : texts) {
      // Few letters and a common beginning, so that many are equal for long.
      text.assign(random() % 3 * 8, 'x');
      for (auto letters = random() % 12; letters > 0; --letters)
        text += "\x01z\xff"[random() % 3];
    }
    ASSERT_EQ(order_of(texts), expected_order(texts)) << "round " << round;
  }
}

TEST(TextOrder, LongEqualTextsAreNoTrouble) {
  const std::vector<std::string> texts(2000, std::string(5000, 'a'));
  EXPECT_EQ(order_of(texts), expected_order(texts));
}
