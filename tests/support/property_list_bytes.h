#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host::test {

/// A binary list of these encoded objects, in the order of their references; the first is the root.
inline std::string binary_list(const std::vector<std::string>& objects) {
  constexpr std::size_t kWord = 8;
  const auto number = [](std::size_t value, std::size_t size) {
    std::string bytes;
    for (std::size_t i = size; i-- > 0;)
      bytes += static_cast<char>(value >> (8 * i));
    return bytes;
  };
  std::string bytes = "bplist00";
  std::string table;
  constexpr std::size_t kOffset = 4;
  for (const std::string& object : objects) {
    table += number(bytes.size(), kOffset);
    bytes += object;
  }
  const std::size_t table_at = bytes.size();
  return bytes + table + number(0, 6) + number(kOffset, 1) + number(1, 1) +
         number(objects.size(), kWord) + number(0, kWord) + number(table_at, kWord);
}

}  // namespace host::test
