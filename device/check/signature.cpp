#include "device/check/signature.h"

#include <fmt/core.h>
#include <openssl/sha.h>

#include <algorithm>

namespace sonavue::device {
namespace {

constexpr std::size_t kPage = 4096;
constexpr std::size_t kBlobHeader = 12;

struct Expected {
  const char* name;
  std::uint32_t slot;
  unsigned kind;
  unsigned hash_size;
  unsigned char* (*hash)(const unsigned char*, std::size_t, unsigned char*);
};

constexpr Expected kDirectories[] = {{"SHA-1", 0, 1, SHA_DIGEST_LENGTH, &SHA1},
                                     {"SHA-256", 0x1000, 2, SHA256_DIGEST_LENGTH, &SHA256}};

class SignatureReader {
 public:
  SignatureReader(const Image& image, std::string identifier)
      : bytes_(image.bytes()), identifier_(std::move(identifier)) {
    const LoadCommand* command = image.command(kCodeSignature);
    if (!command) throw FormatError("has no signature");
    start_ = little_32(bytes_, command->offset + 8);
    const std::size_t size = little_32(bytes_, command->offset + 12);
    require(start_ % 16 == 0 && start_ + size == bytes_.size(), "signature is not at its end");
    require(big_32(bytes_, start_) == 0xfade0cc0, "signature is invalid");
    require(big_32(bytes_, start_ + 4) == size,
            "signature does not have the length that it states");
  }

  void check() const {
    require(big_32(bytes_, start_ + 8) == 3, "signature does not have three parts");
    check_requirements();
    check_directory(0, kDirectories[0]);
    check_directory(2, kDirectories[1]);
  }

 private:
  static void require(bool holds, const char* otherwise) {
    if (!holds) throw FormatError(otherwise);
  }

  std::size_t blob(std::size_t index, std::uint32_t slot) const {
    const std::size_t entry = start_ + kBlobHeader + index * 8;
    require(big_32(bytes_, entry) == slot, "signature has its parts in the wrong order");
    return start_ + big_32(bytes_, entry + 4);
  }

  void check_requirements() const {
    const std::size_t at = blob(1, 2);
    require(big_32(bytes_, at) == 0xfade0c01 && big_32(bytes_, at + 4) == kBlobHeader &&
                big_32(bytes_, at + 8) == 0,
            "signature has requirements");
  }

  void check_directory(std::size_t index, const Expected& expected) const {
    const std::size_t at = blob(index, expected.slot);
    require(big_32(bytes_, at) == 0xfade0c02, "signature lacks a directory");
    require(big_32(bytes_, at + 12) == 2, "signature is not ad-hoc");
    require(*bytes_at(bytes_, at + 36, 1) == expected.hash_size &&
                *bytes_at(bytes_, at + 37, 1) == expected.kind,
            "signature has the wrong kind of hashes in a directory");
    require(*bytes_at(bytes_, at + 39, 1) == 12, "signature has the wrong page size");
    require(big_32(bytes_, at + 32) == start_, "signature covers less than the code");
    const std::size_t name = at + big_32(bytes_, at + 20);
    require(text_at(bytes_, name, bytes_.size()) == identifier_,
            "signature is for a different identifier");
    const std::size_t hashes = at + big_32(bytes_, at + 16);
    check_hash(expected, blob(1, 2), kBlobHeader, hashes - 2 * expected.hash_size);
    check_pages(expected, hashes, big_32(bytes_, at + 28));
  }

  void check_pages(const Expected& expected, std::size_t hashes, std::size_t count) const {
    require(count == (start_ + kPage - 1) / kPage, "signature has the wrong number of pages");
    for (std::size_t page = 0; page < count; ++page)
      check_hash(expected, page * kPage, std::min(kPage, start_ - page * kPage),
                 hashes + page * expected.hash_size);
  }

  void check_hash(const Expected& expected, std::size_t at, std::size_t size,
                  std::size_t stored) const {
    unsigned char computed[SHA256_DIGEST_LENGTH];
    expected.hash(bytes_at(bytes_, at, size), size, computed);
    if (!std::equal(computed, computed + expected.hash_size,
                    bytes_at(bytes_, stored, expected.hash_size)))
      throw FormatError(fmt::format("signature's {} hashes do not match its bytes", expected.name));
  }

  const Bytes& bytes_;
  std::string identifier_;
  std::size_t start_ = 0;
};

}  // namespace

void check_signature(const std::string& path, const Image& image, const std::string& identifier,
                     Findings& findings) {
  try {
    SignatureReader(image, identifier).check();
  } catch (const FormatError& problem) {
    findings.push_back(fmt::format("{}: {}", path, problem.what()));
  }
}

}  // namespace sonavue::device
