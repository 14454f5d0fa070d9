#include <gtest/gtest.h>

#include "device/check/library.h"
#include "device/check/signature.h"
#include "device/sign/code_signature.h"
#include "tests/device/library_bytes.h"

namespace sonavue::device {
namespace {

constexpr const char* kName = "org.example.library";

Bytes signed_bytes(const LibraryShape& shape = {}) {
  return signed_library(Image(library_bytes(shape)), kName);
}

Findings signature_findings(const Bytes& bytes) {
  Findings findings;
  check_signature("library", Image(bytes), kName, findings);
  return findings;
}

std::string refusal(const Bytes& bytes) {
  try {
    signed_library(Image(bytes), kName);
    return "";
  } catch (const FormatError& problem) {
    return problem.what();
  }
}

TEST(Sign, EveryPageHasBothHashes) {
  for (const std::size_t size : {1u, 4096u, 9000u, 20000u}) {
    LibraryShape shape;
    shape.code_size = size;
    EXPECT_EQ(signature_findings(signed_bytes(shape)), Findings()) << size;
  }
}

TEST(Sign, TheSameLibraryGetsTheSameSignature) {
  EXPECT_EQ(signed_bytes(), signed_bytes());
}

TEST(Sign, EveryByteOfTheCodeIsCovered) {
  const Bytes whole = signed_bytes();
  const std::size_t code = library_bytes().size();
  for (std::size_t at = 400; at < code; at += 511) {
    Bytes changed = whole;
    changed[at] ^= 1;
    EXPECT_EQ(signature_findings(changed).size(), 1u) << at;
  }
}

TEST(Sign, EveryPartOfTheSignatureIsChecked) {
  struct Part {
    std::size_t offset;
    const char* finding;
  };
  constexpr std::size_t kFirst = 36;  // offset of the directory of SHA-1 hashes
  const Part parts[] = {
      {3, "is invalid"},
      {7, "does not have the length that it states"},
      {11, "does not have three parts"},
      {15, "has its parts in the wrong order"},
      {23, "has its parts in the wrong order"},
      {31, "has its parts in the wrong order"},
      {kFirst + 3, "lacks a directory"},
      {kFirst + 15, "is not ad-hoc"},
      {kFirst + 19, "'s SHA-1 hashes do not match its bytes"},
      {kFirst + 23, "is for a different identifier"},
      {kFirst + 31, "has the wrong number of pages"},
      {kFirst + 35, "covers less than the code"},
      {kFirst + 36, "has the wrong kind of hashes in a directory"},
      {kFirst + 37, "has the wrong kind of hashes in a directory"},
      {kFirst + 39, "has the wrong page size"},
  };
  const Bytes whole = signed_bytes();
  const std::size_t start = little_32(whole, Image(whole).command(kCodeSignature)->offset + 8);
  for (const Part& part : parts) {
    Bytes changed = whole;
    changed[start + part.offset] ^= 1;
    const std::string separator = part.finding[0] == '\'' ? "" : " ";
    EXPECT_EQ(signature_findings(changed),
              Findings{"library: signature" + separator + part.finding})
        << part.offset;
  }
  const std::size_t requirements = start + big_32(whole, start + 24);
  Bytes changed = whole;
  changed[requirements + 11] ^= 1;
  EXPECT_EQ(signature_findings(changed), Findings{"library: signature has requirements"});
}

TEST(Sign, NothingFollowsTheSignature) {
  Bytes longer = signed_bytes();
  longer.push_back(0);
  EXPECT_EQ(signature_findings(longer), Findings{"library: signature is not at its end"});
}

TEST(Sign, BothKindsOfHashesAreChecked) {
  const Bytes whole = signed_bytes();
  const std::size_t start = little_32(whole, Image(whole).command(kCodeSignature)->offset + 8);
  const struct {
    std::size_t part;
    const char* kind;
  } kinds[] = {{0, "SHA-1"}, {2, "SHA-256"}};
  for (const auto& each : kinds) {
    const std::size_t directory = start + big_32(whole, start + 16 + each.part * 8);
    Bytes changed = whole;
    changed[directory + big_32(whole, directory + 16)] ^= 1;
    EXPECT_EQ(signature_findings(changed), Findings{std::string("library: signature's ") +
                                                    each.kind + " hashes do not match its bytes"});
  }
}

TEST(Sign, ADifferentIdentifierIsFound) {
  const Bytes other = signed_library(Image(library_bytes()), "org.example.another");
  EXPECT_EQ(signature_findings(other),
            Findings{"library: signature is for a different identifier"});
}

TEST(Sign, OtherFilesAreRejected) {
  EXPECT_EQ(refusal({}), "it is not a 64-bit library of the phone");
  EXPECT_EQ(refusal(Bytes(5000, 'x')), "it is not a 64-bit library of the phone");
  LibraryShape shape;
  shape.processor = 0x01000007;
  EXPECT_EQ(refusal(library_bytes(shape)), "its processor is not arm64");
  shape = {};
  shape.kind = 2;
  EXPECT_EQ(refusal(library_bytes(shape)), "it is neither a library nor a bundle");
}

TEST(Sign, LibrariesThatCannotBeSignedAreRejected) {
  LibraryShape shape;
  shape.room = 8;
  EXPECT_EQ(refusal(library_bytes(shape)), "its header has no room for one more load command");
  EXPECT_EQ(refusal(signed_bytes()), "it is already signed");
  Bytes longer = library_bytes();
  longer.push_back(0);
  EXPECT_EQ(refusal(longer), "its link information is not at the end of the file");
}

TEST(Sign, ALibraryTruncatedAnywhereIsRejected) {
  const Bytes whole = library_bytes();
  for (std::size_t size = 0; size < whole.size(); size += 7) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_NE(refusal(cut), "") << size;
  }
}

TEST(LoadCommands, ADifferentMinimumSystemIsFound) {
  LibraryShape shape;
  Findings fitting;
  check_load_commands("library", Image(signed_bytes(shape)), fitting);
  shape.least_system = 0x00090000;
  Findings other;
  check_load_commands("library", Image(signed_bytes(shape)), other);
  EXPECT_EQ(other.size(), fitting.size() + 1);
  EXPECT_EQ(other.back(), "library: does not have 8.0 as its minimum system version");
}

}  // namespace
}  // namespace sonavue::device
