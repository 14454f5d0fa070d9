#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace sonavue::device {

using Bytes = std::vector<std::uint8_t>;

/// Thrown if input has the wrong format. The text describes the problem for users.
class FormatError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads a whole file. Throws FormatError if it cannot be read.
Bytes read_file(const std::filesystem::path& path);

/// Writes a file atomically: on failure an existing file is unchanged. Throws FormatError.
void write_file(const std::filesystem::path& path, const Bytes& bytes);

/// `count` bytes from `offset`. Throws FormatError if they are not inside `bytes`.
const std::uint8_t* bytes_at(const Bytes& bytes, std::size_t offset, std::size_t count);

std::uint16_t little_16(const Bytes& bytes, std::size_t offset);
std::uint32_t little_32(const Bytes& bytes, std::size_t offset);
std::uint64_t little_64(const Bytes& bytes, std::size_t offset);
std::uint32_t big_32(const Bytes& bytes, std::size_t offset);
void put_little_32(Bytes& bytes, std::size_t offset, std::uint32_t value);
void put_little_64(Bytes& bytes, std::size_t offset, std::uint64_t value);
void append_big_32(Bytes& bytes, std::uint32_t value);

/// The string that starts at `offset` and is terminated by a zero before `end`.
std::string text_at(const Bytes& bytes, std::size_t offset, std::size_t end);

}  // namespace sonavue::device
