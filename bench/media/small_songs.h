#pragma once

#include <cstddef>
#include <filesystem>

namespace bench {

/// Writes so many short songs with tags of their own, in folders of artists and albums, below a new
/// folder. Returns false when that fails.
bool make_small_songs(const std::filesystem::path& folder, std::size_t count);

}  // namespace bench
