#pragma once

#include <fmt/core.h>

#include <cstdint>
#include <iterator>
#include <random>
#include <string>

namespace bench {

/// Realistic titles: a few words, capitals, occasionally a number or a letter beyond ASCII. Equal
/// seeds give equal titles, so that programs of different kinds search the same ones.
inline std::string make_title(std::mt19937& random) {
  static constexpr const char* words[] = {
      "Love",   "Night", "Blue",  "the",  "of",   "Dance",    "River", "In",   "Heart",
      "Summer", "Ghost", "Train", "Slow", "Fire", "Electric", "Rain",  "Moon", "Little",
      "Garden", "Snow",  "My",    "Lost", "Song", "Runner",   "City",  "Déjà", "Señor"};
  std::string title = words[random() % std::size(words)];
  for (std::uint32_t more = random() % 5; more > 0; --more)
    title += std::string{" "} + words[random() % std::size(words)];
  if (random() % 8 == 0) title += fmt::format(" ({})", 1950 + random() % 70);
  if (random() % 10'000 == 0) title += " Zanzibar";
  return title;
}

constexpr std::uint32_t kTitleSeed = 7;
/// From frequent to absent. The first is too short for an index of three letters.
constexpr const char* kTitleQueries[] = {"a", "lov", "zanzibar", "no such title"};

}  // namespace bench
