#include "tests/macho/loader/memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace macho_tests {
namespace {

constexpr std::uint64_t kMostMemory = 1 << 28;
constexpr std::uint32_t kWritableCode = PROT_WRITE | PROT_EXEC;
constexpr std::uint32_t kEveryProtection = PROT_READ | PROT_WRITE | PROT_EXEC;

void check(const Segment& segment) {
  const auto page = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
  if (segment.address % page != 0) throw FormatError(segment.name + " does not start at a page");
  if (segment.memory_size > kMostMemory || segment.address > ~kMostMemory)
    throw FormatError(segment.name + " is too large");
  if (segment.size > segment.memory_size)
    throw FormatError(segment.name + " has more bytes in the file than in memory");
  if (segment.protection > kEveryProtection ||
      (segment.protection & kWritableCode) == kWritableCode)
    throw FormatError(segment.name + " is both writable and executable");
}

}  // namespace

Memory::Memory(const Image& image) {
  std::vector<Segment> segments = image.segments();
  if (segments.empty()) throw FormatError("it has no segments");
  std::sort(segments.begin(), segments.end(),
            [](const auto& left, const auto& right) { return left.address < right.address; });
  lowest_ = end_ = segments.front().address;
  for (const Segment& each : segments) {
    check(each);
    if (each.address < end_) throw FormatError(each.name + " overlaps another segment");
    end_ = each.address + each.memory_size;
  }
  if (end_ - lowest_ > kMostMemory) throw FormatError("its segments are too far apart");
  if (end_ == lowest_) throw FormatError("its segments are empty");
  map();
  for (const Segment& each : segments) {
    const std::uint8_t* bytes = bytes_at(image.bytes(), each.offset, each.size);
    std::memcpy(at(each.address), bytes, each.size);
  }
}

Memory::~Memory() {
  munmap(reinterpret_cast<void*>(base_), end_ - lowest_);
}

void Memory::map() {
  void* room =
      mmap(nullptr, end_ - lowest_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (room == MAP_FAILED) throw FormatError("it cannot be mapped: out of memory");
  base_ = reinterpret_cast<std::uintptr_t>(room);
}

void Memory::protect(const Image& image) {
  // Some processors need their instruction cache flushed before they run newly written code.
  auto* begin = reinterpret_cast<char*>(base_);
  __builtin___clear_cache(begin, begin + (end_ - lowest_));
  for (const Segment& each : image.segments())
    if (mprotect(at(each.address), each.memory_size, static_cast<int>(each.protection)) != 0)
      throw FormatError(each.name + " cannot be protected");
}

}  // namespace macho_tests
