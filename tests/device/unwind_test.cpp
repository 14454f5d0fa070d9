#include "device/check/unwind.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/device/frame_bytes.h"

namespace sonavue::device {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kMagic = 0xfeedfacf;
constexpr std::uint32_t kReadAndRun = 5;
constexpr std::size_t kCommandsSize = ByteWriter::kSegmentSize + 3 * ByteWriter::kSectionSize + 16;

// Three functions of the same size, followed by the tables.
constexpr std::uint64_t kFirst = 0x200;
constexpr std::uint64_t kSecond = 0x300;
constexpr std::uint64_t kThird = 0x400;
constexpr std::uint64_t kEnd = 0x500;
constexpr std::uint64_t kEncodings = 0x600;
constexpr std::uint64_t kFrames = 0x800;
constexpr std::uint64_t kStarts = 0xa00;
constexpr std::size_t kSize = 0xb00;

constexpr std::uint32_t kNothing = 0;
constexpr std::uint32_t kFrame = 0x04000001;
constexpr std::uint32_t kLeaf = 0x02000000;
constexpr std::uint32_t kBasePointer = 0x01000001;
constexpr std::uint32_t kDescribed = 0x03000000;
constexpr std::uint32_t kDescribedOnX86 = 0x04000000;

struct Encoding {
  std::uint64_t address;
  std::uint32_t code;
};
using Encodings = std::vector<Encoding>;

const Bytes kListed = {0x80, 0x04, 0x80, 0x02, 0x80, 0x02, 0};

struct Shape {
  Bytes encodings;
  Bytes frames = {};
  Bytes starts = kListed;
  Processor processor = kArm64;
  const char* name_of_encodings = "__unwind_info";
};

Findings findings(const Shape& shape) {
  ByteWriter writer(kSize);
  writer.numbers({kMagic, shape.processor, 0, kLibrary, 2, kCommandsSize, 0, 0});
  writer.segment("__TEXT", {0, kSize, 0, kSize}, kReadAndRun, 3);
  writer.section("__text", "__TEXT", {kFirst, kEnd - kFirst, kFirst, 0});
  writer.section(shape.name_of_encodings, "__TEXT",
                 {kEncodings, shape.encodings.size(), kEncodings, shape.encodings.size()});
  writer.section("__eh_frame", "__TEXT",
                 {kFrames, shape.frames.size(), kFrames, shape.frames.size()});
  writer.numbers({kFunctionStarts, 16, kStarts, shape.starts.size()});
  writer.put(shape.encodings, kEncodings);
  writer.put(shape.frames, kFrames);
  writer.put(shape.starts, kStarts);
  Findings found;
  check_unwinding("library", Image(writer.take(), shape.processor), found);
  return found;
}

Bytes plain(const Encodings& encodings) {
  const std::size_t count = encodings.size();
  ByteWriter writer(60 + 8 * count);
  writer.numbers({1, 28, 0, 28, 0, 28, 2});
  writer.numbers({encodings[0].address, 52, 52, kEnd, 0, 52});
  writer.numbers({2, 8 | count << 16});
  for (const Encoding& each : encodings)
    writer.numbers({each.address, each.code});
  return writer.take();
}

/// The first encoding is in the table of frequent encodings, the others are in the page.
Bytes packed(const Encodings& encodings) {
  const std::size_t count = encodings.size();
  ByteWriter writer(68 + 8 * (count - 1) + 4);
  writer.numbers({1, 28, 1, 32, 0, 32, 2, encodings[0].code});
  writer.numbers({encodings[0].address, 56, 56, kEnd, 0, 56});
  writer.numbers({3, 12 | count << 16, (12 + 4 * count) | (count - 1) << 16});
  for (std::size_t i = 0; i < count; ++i)
    writer.numbers({(encodings[i].address - encodings[0].address) | i << 24});
  for (std::size_t i = 1; i < count; ++i)
    writer.numbers({encodings[i].code});
  return writer.take();
}

Bytes described(std::uint64_t address, std::uint64_t size) {
  return frame_bytes(kFrames, address, size);
}

TEST(Unwinding, EachFunctionHasAnEncoding) {
  for (const auto& table : {plain, packed}) {
    EXPECT_THAT(findings({table({{kFirst, kFrame}})}), IsEmpty());
    EXPECT_THAT(findings({table({{kFirst, kFrame}, {kSecond, kLeaf}, {kThird, kFrame}})}),
                IsEmpty());
    EXPECT_THAT(findings({table({{kFirst, kFrame}, {kSecond, kNothing}, {kThird, kLeaf}})}),
                ElementsAre("library: no exception can pass through the code at 0x300"));
  }
}

TEST(Unwinding, TheFirstUncoveredFunctionIsNamedAndTheOthersAreCounted) {
  EXPECT_THAT(findings({plain({{kSecond, kFrame}, {kThird, kNothing}})}),
              ElementsAre("library: no exception can pass through the code at 0x200",
                          "library: nor through 1 more of its 3 functions"));
}

TEST(Unwinding, WithoutTablesNoFunctionIsCovered) {
  EXPECT_THAT(findings({plain({{kFirst, kFrame}}), {}, kListed, kArm64, "__nothing"}),
              ElementsAre("library: no exception can pass through the code at 0x200",
                          "library: nor through 2 more of its 3 functions"));
}

TEST(Unwinding, AFunctionHasItsEncodingFromItsStartToItsEnd) {
  EXPECT_THAT(findings({plain({{kFirst + 4, kFrame}})}),
              ElementsAre("library: no exception can pass through the code at 0x200"));
  EXPECT_THAT(findings({plain({{kFirst, kFrame}, {kEnd - 4, kNothing}})}),
              ElementsAre("library: no exception can pass through the code at 0x400"));
}

TEST(Unwinding, AnEncodingMayReferToTheFrameTable) {
  const struct {
    Processor processor;
    std::uint32_t mode;
  } homes[] = {{kArm64, kDescribed}, {kX86, kDescribedOnX86}};
  for (const auto& home : homes) {
    Shape shape{
        plain({{kFirst, kBasePointer}, {kSecond, home.mode | kCommonFrameSize}, {kThird, kLeaf}}),
        described(kSecond, 0x100)};
    shape.processor = home.processor;
    EXPECT_THAT(findings(shape), IsEmpty());
    for (const Bytes& other : {described(kThird, 0x100), described(kSecond - 8, 8), Bytes()}) {
      shape.frames = other;
      EXPECT_THAT(findings(shape),
                  ElementsAre("library: no exception can pass through the code at 0x300"));
    }
    shape.frames = described(kSecond, 0x100);
    shape.encodings = plain({{kFirst, kBasePointer}, {kSecond, home.mode | 4}, {kThird, kLeaf}});
    EXPECT_THAT(findings(shape),
                ElementsAre("library: no exception can pass through the code at 0x300"));
  }
}

TEST(Unwinding, AllFunctionsMustBeListed) {
  EXPECT_THAT(findings({plain({{kFirst, kFrame}}), {}, {0x80, 0x06, 0}}),
              ElementsAre("library: does not list its functions"));
}

/// Changes every byte of a table in turn. The checker must report the damaged table and must not
/// fail otherwise.
template <class Change>
int damaged(const Shape& whole, Bytes Shape::*table, Change change) {
  int named = 0;
  for (std::size_t at = 0; at < (whole.*table).size(); ++at) {
    Shape shape = whole;
    change(shape.*table, at);
    const Findings found = findings(shape);
    named += !found.empty();
  }
  return named;
}

TEST(Unwinding, DamagedTablesAreNamed) {
  const Encodings encodings = {
      {kFirst, kFrame}, {kSecond, kDescribed | kCommonFrameSize}, {kThird, kLeaf}};
  const auto flip = [](Bytes& table, std::size_t at) { table[at] ^= 0xff; };
  const auto cut = [](Bytes& table, std::size_t at) { table.resize(at); };
  for (const auto& table : {plain, packed}) {
    const Shape whole{table(encodings), described(kSecond, 0x100)};
    EXPECT_THAT(findings(whole), IsEmpty());
    EXPECT_GT(damaged(whole, &Shape::encodings, flip), 30);
    EXPECT_EQ(damaged(whole, &Shape::encodings, cut), static_cast<int>(whole.encodings.size()));
    EXPECT_GT(damaged(whole, &Shape::frames, flip), 20);
    EXPECT_EQ(damaged(whole, &Shape::frames, cut), static_cast<int>(whole.frames.size()));
    EXPECT_GT(damaged(whole, &Shape::starts, flip), 0);
  }
}

TEST(Unwinding, ErrorsSayWhatIsWrongWithATable) {
  const std::string damage = "library: its unwind tables are damaged: ";
  Shape shape{plain({{kFirst, kFrame}}), described(kSecond, 0x100)};
  shape.encodings[0] = 2;
  EXPECT_THAT(findings(shape),
              ElementsAre(damage + "the table of encodings has an unknown version"));
  shape.encodings = plain({{kFirst, kFrame}, {kThird, kFrame}, {kSecond, kFrame}});
  EXPECT_THAT(findings(shape), ElementsAre(damage + "the encodings are out of order"));
  shape.encodings = plain({{kFirst, kFrame}});
  shape.frames[9] = 'P';
  EXPECT_THAT(findings(shape), ElementsAre(damage + "the frame table's entry at byte 0 has an "
                                                    "unsupported augmentation"));
}

}  // namespace
}  // namespace sonavue::device
