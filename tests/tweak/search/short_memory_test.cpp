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
  // The second list is longer, because the arrays keep the memory that they have.
  const struct {
    const char* typed;
    int count;
  } searches[] = {{"a", 300}, {"a12", 5000}};
  for (const auto& [typed, count] : searches) {
    list_titles(many_titles(count));
    const auto expected = found_one_by_one(typed);
    int failures = 0;
    int refused = 1;
    // With few requests granted, each attempt gets one request further than the previous one; then
    // more are needed at a time.
    for (int granted = 1; refused > 0; ++granted) {
      for (int attempt = 0; attempt < 15 && refused > 0; ++attempt) {
        // Different songs with the same titles, so that the titles are read again.
        list_titles(many_titles(count));
        {
          const ShortMemory memory("/Sonavue2.so", granted);
          search_for(typed);
          refused = memory.refused();
        }
        failures += refused > 0;
        ASSERT_EQ(titles("result"), expected) << typed << ", " << granted << ", " << attempt;
      }
    }
    EXPECT_GT(failures, 5) << "the search requested no memory";
  }
}

}  // namespace
}  // namespace host::test
