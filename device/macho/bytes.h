#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace sonavue::device {

using Bytes = std::vector<std::uint8_t>;

/// Something that was read is not what it has to be; the text says what, for people.
class FormatError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The whole of a file.
Bytes read_file(const std::filesystem::path& path);

/// Puts a file in the place of what was there in one step: a failure leaves that untouched.
void write_file(const std::filesystem::path& path, const Bytes& bytes);

/// `count` bytes from `offset` on; whatever lies outside of `bytes` is a FormatError.
const std::uint8_t* bytes_at(const Bytes& bytes, std::size_t offset, std::size_t count);

std::uint16_t little_16(const Bytes& bytes, std::size_t offset);
std::uint32_t little_32(const Bytes& bytes, std::size_t offset);
std::uint64_t little_64(const Bytes& bytes, std::size_t offset);
std::uint32_t big_32(const Bytes& bytes, std::size_t offset);
void put_little_32(Bytes& bytes, std::size_t offset, std::uint32_t value);
void put_little_64(Bytes& bytes, std::size_t offset, std::uint64_t value);
void append_big_32(Bytes& bytes, std::uint32_t value);

/// The text that begins at `offset` and ends with a zero before `end`.
std::string text_at(const Bytes& bytes, std::size_t offset, std::size_t end);

}  // namespace sonavue::device
