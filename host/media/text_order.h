#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace host::media {

// Returns the places of the texts in the order of their bytes; `comes_first` orders the places of
// equal texts. No text contains a zero byte.
std::vector<std::uint32_t> order_of_texts(
    std::span<const std::string_view> texts,
    const std::function<bool(std::uint32_t, std::uint32_t)>& comes_first);

}  // namespace host::media
