#include "tests/tweak/search/short_memory.h"

#include "tests/tweak/search/title_search.h"

namespace host::test {
namespace {

/// Titles that contain an "a". Every fifth can only be compared by the platform.
std::vector<std::string> many_titles(int count) {
  std::vector<std::string> titles;
  for (int i = 0; i < count; ++i)
    titles.push_back((i % 5 == 0 ? "\u200da" : "a") + std::to_string(i));
  return titles;
}

TEST_F(TitleSearch, FindsTheSameWheneverMemoryRunsOut) {
  // A single letter, and a text that takes the other search path. The second list is longer,
  // because the arrays keep the memory that they have.
  const struct {
    const char* typed;
    int count;
  } searches[] = {{"a", 1500}, {"a12", 6000}};
  for (const auto& [typed, count] : searches) {
    const std::vector<std::string> all = many_titles(count);
    int refused = 0;
    int times = 0;
    do {
      // Different songs with the same titles, so that the titles are read again.
      list_titles(all);
      const auto expected = found_one_by_one(typed);
      {
        const ShortMemory memory("/Sonavue2.so", times++);
        search_for(typed);
        refused = memory.refused();
      }
      EXPECT_EQ(titles("result"), expected) << typed << ", " << times;
    } while (refused > 0);
    EXPECT_GT(times, 3) << "the search requested no memory";
  }
}

}  // namespace
}  // namespace host::test
