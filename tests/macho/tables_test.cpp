#include "tests/macho/loader/tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/macho/image_bytes.h"

namespace macho_tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

constexpr std::uint64_t kData = ImageShape::kData;
constexpr std::uint64_t kBackByOnePointer = ~std::uint64_t{0} - 7;

Image image_of(const ImageShape& shape) {
  return Image(image_bytes(shape), sonavue::device::kX86);
}

std::vector<std::uint64_t> rebased(const Bytes& table) {
  return rebased_places(image_of({.rebase = table}));
}

std::vector<Binding> bound(const Bytes& table) {
  return bindings(image_of({.bind = table}));
}

template <class Read>
std::string refusal(Read read) {
  try {
    read();
    return "";
  } catch (const FormatError& problem) {
    return problem.what();
  }
}

std::string rebase_refusal(const Bytes& table) {
  return refusal([&] { rebased(table); });
}

std::string bind_refusal(const Bytes& table) {
  return refusal([&] { bound(table); });
}

/// The symbol `_a` of the first library, bound to pointers from the start of the data.
Bytes symbol_a() {
  return joined({{0x11, 0x40}, zero_ended("_a"), {0x51, 0x71, 0x00}});
}

Binding binding_of_a(std::uint64_t place) {
  return {place, "_a", "/usr/lib/first.dylib", 0, false};
}

TEST(RebaseTable, SomePointersInARow) {
  EXPECT_THAT(rebased({0x11, 0x21, 0x10, 0x53, 0x00}),
              ElementsAre(kData + 0x10, kData + 0x18, kData + 0x20));
}

TEST(RebaseTable, ManyPointersInARow) {
  const auto places = rebased({0x11, 0x21, 0x00, 0x60, 0x90, 0x01, 0x00});
  ASSERT_EQ(places.size(), 144u);
  EXPECT_EQ(places.back(), kData + 143 * 8);
}

TEST(RebaseTable, GapsBetweenPointers) {
  EXPECT_THAT(rebased({0x11, 0x21, 0x00, 0x30, 0x08, 0x51, 0x42, 0x70, 0x10, 0x51, 0x00}),
              ElementsAre(kData + 0x08, kData + 0x20, kData + 0x38));
  EXPECT_THAT(rebased({0x11, 0x21, 0x00, 0x80, 0x03, 0x18, 0x00}),
              ElementsAre(kData, kData + 0x20, kData + 0x40));
}

TEST(RebaseTable, NumbersBeyondTheEndGoBackwards) {
  EXPECT_THAT(rebased(joined({{0x11, 0x21, 0x10, 0x51, 0x30},
                              packed(kBackByOnePointer),
                              {0x30},
                              packed(kBackByOnePointer),
                              {0x51, 0x00}})),
              ElementsAre(kData + 0x10, kData + 0x08));
}

TEST(RebaseTable, EndsAtTheLastByteOrAtTheDoneOpcode) {
  EXPECT_THAT(rebased({}), IsEmpty());
  EXPECT_THAT(rebased({0x11, 0x21, 0x00, 0x51}), ElementsAre(kData));
  EXPECT_THAT(rebased({0x11, 0x21, 0x00, 0x51, 0x00, 0xff}), ElementsAre(kData));
}

TEST(RebaseTable, ErrorsSayWhatIsWrongAndWhere) {
  const std::string damaged = "the rebase table is damaged at byte ";
  EXPECT_EQ(rebase_refusal({0x21}), damaged + "1: it is truncated");
  EXPECT_EQ(rebase_refusal({0x21, 0x80}), damaged + "2: it is truncated");
  EXPECT_EQ(rebase_refusal({0x12}), damaged + "1: only pointers can be rebased");
  EXPECT_EQ(rebase_refusal({0x90}), damaged + "1: an opcode is unknown");
  EXPECT_EQ(rebase_refusal({0x51}), damaged + "1: no place was given");
  EXPECT_EQ(rebase_refusal({0x23, 0x00}), damaged + "2: there is no such segment");
  EXPECT_EQ(rebase_refusal({0x20, 0x00, 0x51}), damaged + "3: __TEXT cannot be written");
  EXPECT_EQ(rebase_refusal({0x21, 0xf9, 0x1f, 0x51}), damaged + "4: the place is outside __DATA");
  EXPECT_EQ(rebase_refusal(
                joined({{0x21, 0x00, 0x80}, packed(~std::uint64_t{0}), packed(kBackByOnePointer)})),
            damaged + "23: it refers to too many places");
  EXPECT_EQ(rebase_refusal({0x21, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0x02}),
            damaged + "11: a number is too large");
}

TEST(BindTable, OneSymbolAtEveryKindOfStride) {
  EXPECT_THAT(bound(joined({symbol_a(), {0x90, 0x80, 0x10, 0xa0, 0x08, 0xb2, 0x90, 0x00}})),
              ElementsAre(binding_of_a(kData), binding_of_a(kData + 0x18),
                          binding_of_a(kData + 0x28), binding_of_a(kData + 0x40)));
  EXPECT_THAT(bound(joined({symbol_a(), {0xc0, 0x02, 0x08}})),
              ElementsAre(binding_of_a(kData), binding_of_a(kData + 0x10)));
}

TEST(BindTable, WhatIsSetStaysUntilItIsSetAgain) {
  const Bytes another = joined({{0x20, 0x02, 0x60, 0x7c, 0x41}, zero_ended("_b"), {0x90}});
  const Binding binding_of_b{kData + 8, "_b", "/usr/lib/second.dylib", -4, true};
  EXPECT_THAT(bound(joined({symbol_a(), {0x90}, another})),
              ElementsAre(binding_of_a(kData), binding_of_b));
}

TEST(BindTable, SymbolsOfTheImageItselfOrOfAnyLibrary) {
  for (const std::uint8_t library : {0x10, 0x30, 0x3e}) {
    const auto found = bound(joined({symbol_a(), {library, 0x90}}));
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].library, "");
  }
}

TEST(BindTable, EachLazyEntryEndsSeparately) {
  const Bytes lazy = joined({symbol_a(), {0x90, 0x00}, symbol_a(), {0x80, 0x08, 0x90, 0x00, 0x00}});
  EXPECT_THAT(bindings(image_of({.lazy_bind = lazy})),
              ElementsAre(binding_of_a(kData), binding_of_a(kData + 8)));
}

TEST(BindTable, TheThreeTablesAreReadInOrder) {
  const auto table = [](const char* name, std::uint8_t offset) {
    return joined({{0x40}, zero_ended(name), {0x71, offset, 0x90, 0x00}});
  };
  const auto found = bindings(image_of(
      {.bind = table("_b", 0), .weak_bind = table("_w", 8), .lazy_bind = table("_l", 16)}));
  ASSERT_EQ(found.size(), 3u);
  EXPECT_EQ(found[0].symbol + found[1].symbol + found[2].symbol, "_b_w_l");
}

TEST(BindTable, AStrongDefinitionBindsNothing) {
  const Bytes weak = joined({{0x48}, zero_ended("_w"), {0x00}});
  EXPECT_THAT(bindings(image_of({.weak_bind = weak})), IsEmpty());
}

TEST(BindTable, ErrorsSayWhatIsWrongAndWhere) {
  const std::string damaged = "the binding table is damaged at byte ";
  EXPECT_EQ(bind_refusal({0x40, '_', 'a'}), damaged + "3: it is truncated");
  EXPECT_EQ(bind_refusal({0x13}), damaged + "1: there is no such library");
  EXPECT_EQ(bind_refusal({0x53}), damaged + "1: only pointers can be bound");
  EXPECT_EQ(bind_refusal({0xd0}), damaged + "1: an opcode is unknown");
  EXPECT_EQ(bind_refusal({0x71, 0x00, 0x90}), damaged + "3: no symbol was named");
  EXPECT_EQ(bind_refusal({0x40, 'a', 0x00, 0x90}), damaged + "4: no place was given");
  EXPECT_EQ(bind_refusal({0x40, 'a', 0x00, 0x72, 0x00, 0x90}),
            damaged + "6: __LINKEDIT cannot be written");
  EXPECT_THAT(refusal([] { bindings(image_of({.lazy_bind = {0xd0}})); }),
              HasSubstr("the lazy binding table"));
  EXPECT_THAT(refusal([] { bindings(image_of({.weak_bind = {0xd0}})); }),
              HasSubstr("the weak binding table"));
}

/// `_one` at 0x800 and `_other` at 0x1010, which share a prefix.
const Bytes kTwoExports = {0x00, 0x01, '_',  'o',  0,    0x06,                               // root
                           0x00, 0x02, 'n',  'e',  0,    0x12, 't', 'h', 'e', 'r', 0, 0x17,  // _o
                           0x03, 0x00, 0x80, 0x10, 0x00,                                     // _one
                           0x03, 0x04, 0x90, 0x20, 0x00};  // _other

TEST(ExportTable, NamesAreJoinedAlongThePath) {
  EXPECT_THAT(exports(image_of({.exports = kTwoExports})),
              ElementsAre(Pair("_one", 0x800), Pair("_other", 0x1010)));
  EXPECT_THAT(exports(image_of({})), IsEmpty());
}

TEST(ExportTable, ErrorsSayWhatIsWrongAndWhere) {
  const auto export_refusal = [](const Bytes& table) {
    return refusal([&] { exports(image_of({.exports = table})); });
  };
  const std::string damaged = "the exports table is damaged at byte ";
  for (std::size_t size = 1; size < kTwoExports.size(); ++size)
    EXPECT_THAT(export_refusal(Bytes(kTwoExports.begin(), kTwoExports.begin() + size)),
                HasSubstr(damaged))
        << size;
  EXPECT_EQ(export_refusal({0x00, 0x01, 'a', 0, 0x00}), damaged + "5: it has no end");
  EXPECT_EQ(export_refusal({0x00, 0x01, 'a', 0, 0x05}), damaged + "5: it points outside itself");
  EXPECT_EQ(export_refusal({0x03, 0x08, 0x00, 0x00}), damaged + "2:  is not an ordinary symbol");
}

TEST(Tables, AreMissingWithoutTheirCommand) {
  Bytes bytes = image_bytes({});
  const Image whole(bytes, sonavue::device::kX86);
  const std::size_t command = whole.command(sonavue::device::kDyldInformation)->offset;
  bytes[command] ^= 1;
  EXPECT_EQ(refusal([&] { rebased_places(Image(bytes, sonavue::device::kX86)); }),
            "it has no classic dyld information");
}

TEST(Tables, MustNotReachBeyondTheFile) {
  Bytes bytes = image_bytes({});
  const Image whole(bytes, sonavue::device::kX86);
  const std::size_t command = whole.command(sonavue::device::kDyldInformation)->offset;
  sonavue::device::put_little_32(bytes, command + 20, 0x7fffffff);
  EXPECT_EQ(refusal([&] { bindings(Image(bytes, sonavue::device::kX86)); }),
            "the binding table reaches beyond the file");
}

}  // namespace
}  // namespace macho_tests
