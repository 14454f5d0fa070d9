#include "device/check/unwind.h"

#include <fmt/core.h>

#include <algorithm>

#include "device/macho/frame_table.h"

namespace sonavue::device {
namespace {

constexpr std::uint32_t kVersion = 1;
constexpr std::uint32_t kPlainPage = 2;
constexpr std::uint32_t kPackedPage = 3;
constexpr std::size_t kNumber = sizeof(std::uint32_t);
constexpr std::size_t kIndexEntrySize = 3 * kNumber;
constexpr int kBitsOfDistance = 24;
constexpr std::uint32_t kDistanceMask = (1u << kBitsOfDistance) - 1;
constexpr std::uint32_t kModeMask = 0x0f000000;

/// How to find the caller of code from `address` up to the next encoding's address.
struct Encoding {
  std::uint64_t address;
  std::uint32_t code;
};

/// The mode that refers to `__eh_frame`; the rest of the number is the offset in that section.
std::uint32_t described_mode(const Image& image) {
  return image.processor() == kArm64 ? 0x03000000 : 0x04000000;
}

/// Reads `__unwind_info`: an index of pages, whose entries are plain or compressed.
class CompactTable {
 public:
  CompactTable(const Image& image, const Section& table)
      : bytes_(image.content(table)), base_(image.segment("__TEXT")->address) {
    if (number(0) != kVersion) throw FormatError("the table of encodings has an unknown version");
  }

  std::vector<Encoding> read() {
    const std::uint32_t index = number(5 * kNumber);
    const std::uint32_t count = number(6 * kNumber);
    // The last entry only marks the end of the code.
    for (std::uint32_t i = 0; i < count; ++i) {
      const std::size_t entry = index + i * kIndexEntrySize;
      const std::uint64_t address = base_ + number(entry);
      const std::uint32_t page = number(entry + kNumber);
      if (i + 1 == count || page == 0)
        found_.push_back({address, 0});
      else
        read_page(page, address);
    }
    return std::move(found_);
  }

 private:
  std::uint32_t number(std::size_t offset) const { return little_32(bytes_, offset); }

  void read_page(std::size_t page, std::uint64_t first_address) {
    const std::uint32_t kind = number(page);
    const std::size_t entries = page + little_16(bytes_, page + 4);
    const std::size_t count = little_16(bytes_, page + 6);
    if (kind != kPlainPage && kind != kPackedPage)
      throw FormatError("a page of encodings has an unknown kind");
    for (std::size_t i = 0; i < count; ++i) {
      if (kind == kPlainPage) {
        const std::size_t entry = entries + i * 2 * kNumber;
        found_.push_back({base_ + number(entry), number(entry + kNumber)});
      } else {
        const std::uint32_t entry = number(entries + i * kNumber);
        found_.push_back(
            {first_address + (entry & kDistanceMask), packed_code(page, entry >> kBitsOfDistance)});
      }
    }
  }

  /// Frequent encodings are shared by all pages; each page has its own table for the others.
  std::uint32_t packed_code(std::size_t page, std::uint32_t which) const {
    const std::uint32_t common = number(kNumber);
    const std::uint32_t count = number(2 * kNumber);
    if (which < count) return number(common + which * kNumber);
    const std::size_t own = page + little_16(bytes_, page + 8);
    if (which - count >= little_16(bytes_, page + 10))
      throw FormatError("a page has fewer encodings than it uses");
    return number(own + (which - count) * kNumber);
  }

  const Bytes bytes_;
  const std::uint64_t base_;
  std::vector<Encoding> found_;
};

class Coverage {
 public:
  explicit Coverage(const Image& image)
      : described_(described_mode(image)), descriptions_(frame_descriptions(image)) {
    const Section* table = image.section("__TEXT", "__unwind_info");
    if (table) encodings_ = CompactTable(image, *table).read();
    if (!std::is_sorted(encodings_.begin(), encodings_.end(), before))
      throw FormatError("the encodings are out of order");
  }

  /// Whether every piece of a function has an encoding with which its caller can be found.
  bool covers(std::uint64_t begin, std::uint64_t end) const {
    auto next = std::upper_bound(encodings_.begin(), encodings_.end(), Encoding{begin, 0}, before);
    if (next == encodings_.begin()) return false;
    for (auto each = next - 1; each != encodings_.end() && each->address < end; ++each)
      if (!finds_caller(each->code, std::max(begin, each->address))) return false;
    return true;
  }

 private:
  static bool before(const Encoding& left, const Encoding& right) {
    return left.address < right.address;
  }

  bool finds_caller(std::uint32_t code, std::uint64_t address) const {
    const std::uint32_t mode = code & kModeMask;
    if (mode != described_) return mode != 0;
    return std::any_of(descriptions_.begin(), descriptions_.end(), [&](const auto& each) {
      return each.offset == (code & kDistanceMask) && address - each.address < each.size;
    });
  }

  std::uint32_t described_;
  std::vector<FrameDescription> descriptions_;
  std::vector<Encoding> encodings_;
};

}  // namespace

void check_unwinding(const std::string& path, const Image& image, Findings& findings) {
  const Section* code = image.section("__TEXT", "__text");
  if (!code || code->size == 0) return;
  try {
    const Coverage coverage(image);
    std::vector<std::uint64_t> starts = image.function_starts();
    const std::uint64_t end = code->address + code->size;
    std::erase_if(starts, [&](std::uint64_t each) { return each < code->address || each >= end; });
    if (starts.empty() || starts.front() != code->address)
      findings.push_back(fmt::format("{}: does not list its functions", path));
    starts.push_back(end);
    std::size_t missing = 0;
    for (std::size_t i = 0; i + 1 < starts.size(); ++i) {
      if (coverage.covers(starts[i], starts[i + 1])) continue;
      if (missing++ == 0)
        findings.push_back(
            fmt::format("{}: no exception can pass through the code at {:#x}", path, starts[i]));
    }
    if (missing > 1)
      findings.push_back(fmt::format("{}: nor through {} more of its {} functions", path,
                                     missing - 1, starts.size() - 1));
  } catch (const FormatError& problem) {
    findings.push_back(fmt::format("{}: its unwind tables are damaged: {}", path, problem.what()));
  }
}

}  // namespace sonavue::device
