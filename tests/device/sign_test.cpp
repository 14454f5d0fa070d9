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

TEST(Sign, TheSameLibraryIsSignedTheSameWay) {
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

TEST(Sign, TheSignatureItselfIsLookedAt) {
  const Bytes whole = signed_bytes();
  const std::size_t start = little_32(whole, Image(whole).command(kCodeSignature)->offset + 8);
  // The magic number, the number of parts, the first part's slot, a directory's flags.
  for (const std::size_t at : {0u, 11u, 15u, 36u + 15u}) {
    Bytes changed = whole;
    changed[start + at] ^= 0x40;
    EXPECT_EQ(signature_findings(changed).size(), 1u) << at;
  }
  Bytes longer = whole;
  longer.push_back(0);
  EXPECT_EQ(signature_findings(longer).size(), 1u);
}

TEST(Sign, AnotherNameIsNoticed) {
  const Bytes other = signed_library(Image(library_bytes()), "org.example.another");
  EXPECT_EQ(signature_findings(other), Findings{"library: signature is for another name"});
}

TEST(Sign, WhatIsNoLibraryIsRefused) {
  EXPECT_EQ(refusal({}), "it is no 64-bit library of the phone");
  EXPECT_EQ(refusal(Bytes(5000, 'x')), "it is no 64-bit library of the phone");
  LibraryShape shape;
  shape.processor = 0x01000007;
  EXPECT_EQ(refusal(library_bytes(shape)), "it is for another processor than arm64");
  shape = {};
  shape.kind = 2;
  EXPECT_EQ(refusal(library_bytes(shape)), "it is neither a library nor a bundle");
}

TEST(Sign, WhatCannotBeSignedIsRefused) {
  LibraryShape shape;
  shape.room = 8;
  EXPECT_EQ(refusal(library_bytes(shape)), "its header has no room for one more load command");
  EXPECT_EQ(refusal(signed_bytes()), "it is signed already");
  Bytes longer = library_bytes();
  longer.push_back(0);
  EXPECT_EQ(refusal(longer), "its link information is not what the file ends with");
}

TEST(Sign, ACutLibraryIsRefusedWhereverItIsCut) {
  const Bytes whole = library_bytes();
  for (std::size_t size = 0; size < whole.size(); size += 7) {
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_NE(refusal(cut), "") << size;
  }
}

TEST(LoadCommands, AnotherLeastSystemIsNoticed) {
  LibraryShape shape;
  Findings fitting;
  check_load_commands("library", Image(signed_bytes(shape)), fitting);
  shape.least_system = 0x00090000;
  Findings other;
  check_load_commands("library", Image(signed_bytes(shape)), other);
  EXPECT_EQ(other.size(), fitting.size() + 1);
  EXPECT_EQ(other.back(), "library: is not made for the system from 8.0 on");
}

}  // namespace
}  // namespace sonavue::device
