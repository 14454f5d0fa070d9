#include "device/sign/code_signature.h"

#include <algorithm>
#include <utility>

#include "device/sign/digest.h"

namespace sonavue::device {
namespace {

constexpr std::uint32_t kDirectoryVersion = 0x20100;
constexpr std::size_t kDirectoryHeader = 48;
constexpr std::uint8_t kPageSizeLog2 = 12;
// The hash of the Info property list, which a library does not have, and that of the requirements.
constexpr std::uint32_t kSpecialHashes = 2;
constexpr std::size_t kSignatureCommandSize = 16;
constexpr std::size_t kSignatureAlignment = 16;
constexpr std::size_t kMemoryPage = 0x4000;
constexpr std::size_t kBlobIndexSize = 8;
constexpr std::size_t kSuperBlobHeader = 12;
constexpr std::size_t kBlobs = 3;

std::size_t rounded_up(std::size_t size, std::size_t unit) {
  return (size + unit - 1) / unit * unit;
}

std::size_t page_count(std::size_t size) {
  return (size + kPageSize - 1) / kPageSize;
}

void append(Bytes& bytes, const Bytes& more) {
  bytes.insert(bytes.end(), more.begin(), more.end());
}

Bytes empty_requirements() {
  Bytes blob;
  append_big_32(blob, kRequirementsMagic);
  append_big_32(blob, kSuperBlobHeader);
  append_big_32(blob, 0);
  return blob;
}

std::size_t directory_size(const DigestKind& kind, std::size_t code, const std::string& name) {
  return kDirectoryHeader + name.size() + 1 + (kSpecialHashes + page_count(code)) * kind.size;
}

Bytes code_directory(const DigestKind& kind, const Bytes& code, const std::string& name) {
  const auto first_hash = static_cast<std::uint32_t>(kDirectoryHeader + name.size() + 1 +
                                                     std::size_t{kSpecialHashes} * kind.size);
  Bytes blob;
  append_big_32(blob, kCodeDirectoryMagic);
  append_big_32(blob, static_cast<std::uint32_t>(directory_size(kind, code.size(), name)));
  append_big_32(blob, kDirectoryVersion);
  append_big_32(blob, kAdHoc);
  append_big_32(blob, first_hash);
  append_big_32(blob, kDirectoryHeader);
  append_big_32(blob, kSpecialHashes);
  append_big_32(blob, static_cast<std::uint32_t>(page_count(code.size())));
  append_big_32(blob, static_cast<std::uint32_t>(code.size()));
  append(blob, {kind.size, kind.number, 0, kPageSizeLog2});
  append_big_32(blob, 0);
  append_big_32(blob, 0);
  blob.insert(blob.end(), name.begin(), name.end());
  blob.push_back(0);

  const Bytes requirements = empty_requirements();
  append(blob, digest(kind, requirements.data(), requirements.size()));
  append(blob, Bytes(kind.size, 0));
  for (std::size_t page = 0; page < code.size(); page += kPageSize)
    append(blob, digest(kind, code.data() + page, std::min(kPageSize, code.size() - page)));
  return blob;
}

std::size_t signature_size(std::size_t code, const std::string& name) {
  return kSuperBlobHeader + kBlobs * kBlobIndexSize + directory_size(kSha1, code, name) +
         empty_requirements().size() + directory_size(kSha256, code, name);
}

Bytes super_blob(const Bytes& code, const std::string& name) {
  const std::pair<std::uint32_t, Bytes> blobs[kBlobs] = {
      {kCodeDirectorySlot, code_directory(kSha1, code, name)},
      {kRequirementsSlot, empty_requirements()},
      {kAlternateSlot, code_directory(kSha256, code, name)},
  };
  Bytes whole;
  append_big_32(whole, kSuperBlobMagic);
  append_big_32(whole, static_cast<std::uint32_t>(signature_size(code.size(), name)));
  append_big_32(whole, kBlobs);
  std::size_t offset = kSuperBlobHeader + kBlobs * kBlobIndexSize;
  for (const auto& [slot, blob] : blobs) {
    append_big_32(whole, slot);
    append_big_32(whole, static_cast<std::uint32_t>(offset));
    offset += blob.size();
  }
  for (const auto& each : blobs)
    append(whole, each.second);
  return whole;
}

/// The offset of the first section's or segment's bytes. Load commands may grow up to there.
std::size_t room_for_commands(const Image& library) {
  std::size_t first = library.bytes().size();
  for (const Section& section : library.sections())
    if (section.offset != 0) first = std::min<std::size_t>(first, section.offset);
  for (const Segment& segment : library.segments())
    if (segment.offset != 0) first = std::min<std::size_t>(first, segment.offset);
  return first;
}

const Segment& link_edit_at_the_end(const Image& library) {
  const Segment* found = library.segment("__LINKEDIT");
  if (!found || found->offset + found->size != library.bytes().size())
    throw FormatError("its link information is not at the end of the file");
  return *found;
}

void add_command(Bytes& bytes, const Image& library, std::size_t offset, std::size_t size) {
  const std::size_t at = library.end_of_commands();
  put_little_32(bytes, at, kCodeSignature);
  put_little_32(bytes, at + 4, kSignatureCommandSize);
  put_little_32(bytes, at + 8, static_cast<std::uint32_t>(offset));
  put_little_32(bytes, at + 12, static_cast<std::uint32_t>(size));
  put_little_32(bytes, kCommandCountOffset, little_32(bytes, kCommandCountOffset) + 1);
  put_little_32(bytes, kCommandBytesOffset,
                little_32(bytes, kCommandBytesOffset) + kSignatureCommandSize);
}

}  // namespace

Bytes signed_library(const Image& library, const std::string& identifier) {
  if (identifier.empty()) throw FormatError("a signature needs an identifier");
  if (library.command(kCodeSignature)) throw FormatError("it is already signed");
  if (library.end_of_commands() + kSignatureCommandSize > room_for_commands(library))
    throw FormatError("its header has no room for one more load command");
  const Segment& link_edit = link_edit_at_the_end(library);

  Bytes bytes = library.bytes();
  const std::size_t code = rounded_up(bytes.size(), kSignatureAlignment);
  const std::size_t size = signature_size(code, identifier);
  bytes.resize(code);
  add_command(bytes, library, code, size);
  const std::size_t linked = code + size - link_edit.offset;
  put_little_64(bytes, link_edit.command + kSegmentSizeOffset, linked);
  put_little_64(bytes, link_edit.command + kSegmentMemorySizeOffset,
                rounded_up(linked, kMemoryPage));
  const Bytes signature = super_blob(bytes, identifier);
  append(bytes, signature);
  return bytes;
}

}  // namespace sonavue::device
