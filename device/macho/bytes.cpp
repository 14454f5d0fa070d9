#include "device/macho/bytes.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

namespace sonavue::device {
namespace {

constexpr int kBitsOfByte = 8;

std::uint64_t little(const Bytes& bytes, std::size_t offset, std::size_t count) {
  const std::uint8_t* first = bytes_at(bytes, offset, count);
  std::uint64_t value = 0;
  for (std::size_t i = count; i-- > 0;)
    value = value << kBitsOfByte | first[i];
  return value;
}

void put_little(Bytes& bytes, std::size_t offset, std::uint64_t value, std::size_t count) {
  bytes_at(bytes, offset, count);
  for (std::size_t i = 0; i < count; ++i)
    bytes[offset + i] = static_cast<std::uint8_t>(value >> i * kBitsOfByte);
}

}  // namespace

Bytes read_file(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file || std::filesystem::is_directory(path))
    throw FormatError(path.string() + " cannot be read");
  return Bytes(std::istreambuf_iterator<char>(file), {});
}

void write_file(const std::filesystem::path& path, const Bytes& bytes) {
  const std::filesystem::path beside = path.string() + ".new";
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  std::error_code problem;
  if (file) std::filesystem::rename(beside, path, problem);
  if (file && !problem) return;
  std::error_code ignored;
  std::filesystem::remove(beside, ignored);
  throw FormatError(path.string() + " cannot be written");
}

const std::uint8_t* bytes_at(const Bytes& bytes, std::size_t offset, std::size_t count) {
  if (offset > bytes.size() || count > bytes.size() - offset)
    throw FormatError("the file is truncated");
  return bytes.data() + offset;
}

std::uint16_t little_16(const Bytes& bytes, std::size_t offset) {
  return static_cast<std::uint16_t>(little(bytes, offset, sizeof(std::uint16_t)));
}

std::uint32_t little_32(const Bytes& bytes, std::size_t offset) {
  return static_cast<std::uint32_t>(little(bytes, offset, sizeof(std::uint32_t)));
}

std::uint64_t little_64(const Bytes& bytes, std::size_t offset) {
  return little(bytes, offset, sizeof(std::uint64_t));
}

std::uint32_t big_32(const Bytes& bytes, std::size_t offset) {
  const std::uint8_t* first = bytes_at(bytes, offset, sizeof(std::uint32_t));
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < sizeof value; ++i)
    value = value << kBitsOfByte | first[i];
  return value;
}

void put_little_32(Bytes& bytes, std::size_t offset, std::uint32_t value) {
  put_little(bytes, offset, value, sizeof value);
}

void put_little_64(Bytes& bytes, std::size_t offset, std::uint64_t value) {
  put_little(bytes, offset, value, sizeof value);
}

void append_big_32(Bytes& bytes, std::uint32_t value) {
  for (std::size_t i = sizeof value; i-- > 0;)
    bytes.push_back(static_cast<std::uint8_t>(value >> i * kBitsOfByte));
}

std::string text_at(const Bytes& bytes, std::size_t offset, std::size_t end) {
  if (end > bytes.size() || offset > end) throw FormatError("a string is outside the file");
  const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(offset);
  const auto last = bytes.begin() + static_cast<std::ptrdiff_t>(end);
  return std::string(first, std::find(first, last, 0));
}

}  // namespace sonavue::device
