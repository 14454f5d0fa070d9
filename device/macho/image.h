#pragma once

#include <string_view>

#include "device/macho/bytes.h"

namespace sonavue::device {

/// The load commands that are used here, with their numbers in the file format.
enum Command : std::uint32_t {
  kSymbolTable = 0x2,
  kDynamicSymbolTable = 0xb,
  kLoadLibrary = 0xc,
  kOwnName = 0xd,
  kSegment = 0x19,
  kCodeSignature = 0x1d,
  kUuid = 0x1b,
  kEncryption = 0x2c,
  kDyldInformation = 0x80000022,
  kMinimumPhoneVersion = 0x25,
  kFunctionStarts = 0x26,
  kDataInCode = 0x29,
  kBuildVersion = 0x32,
  kExportsTrie = 0x80000033,
  kChainedFixups = 0x80000034,
};

enum FileKind : std::uint32_t { kLibrary = 6, kBundle = 8 };

enum Processor : std::uint32_t { kX86 = 0x01000007, kArm64 = 0x0100000c };

struct LoadCommand {
  std::uint32_t kind;
  std::size_t offset;
  std::size_t size;
};

struct Section {
  std::string segment;
  std::string name;
  std::uint64_t address;
  std::uint64_t size;
  std::uint32_t offset;
  std::uint32_t flags;
  /// For a section of stubs: its first index in the indirect symbol table, and the size of a stub.
  std::uint32_t first_indirect;
  std::uint32_t stub_size;
};

struct Segment {
  std::string name;
  std::size_t command;
  std::uint64_t address;
  std::uint64_t memory_size;
  std::uint64_t offset;
  std::uint64_t size;
  std::uint32_t protection;
};

struct Symbol {
  std::string name;
  std::uint8_t kind;
  std::uint64_t value;

  bool is_undefined() const;
  bool is_external() const;
};

/// A library or bundle for the phone and one processor, with its tables parsed.
class Image {
 public:
  /// Throws FormatError for any other file.
  explicit Image(Bytes bytes, Processor processor = kArm64);

  const Bytes& bytes() const { return bytes_; }
  Processor processor() const { return processor_; }
  std::uint32_t file_kind() const;
  std::size_t end_of_commands() const;
  const std::vector<LoadCommand>& commands() const { return commands_; }
  const std::vector<Segment>& segments() const { return segments_; }
  const std::vector<Section>& sections() const { return sections_; }

  const LoadCommand* command(std::uint32_t kind) const;
  const Segment* segment(std::string_view name) const;
  const Section* section(std::string_view segment, std::string_view name) const;
  Bytes content(const Section& section) const;

  std::string own_name() const;
  std::vector<std::string> libraries() const;
  std::vector<Symbol> symbols() const;
  /// The start addresses of the functions.
  std::vector<std::uint64_t> function_starts() const;
  /// The strings in the section of C strings.
  std::vector<std::string> strings() const;

 private:
  void read_segment(const LoadCommand& command);
  std::string library_name(const LoadCommand& command) const;

  Bytes bytes_;
  Processor processor_;
  std::vector<LoadCommand> commands_;
  std::vector<Segment> segments_;
  std::vector<Section> sections_;
};

/// Sizes and offsets of the format's structures.
inline constexpr std::size_t kHeaderSize = 32;
inline constexpr std::size_t kCommandCountOffset = 16;
inline constexpr std::size_t kCommandBytesOffset = 20;
inline constexpr std::size_t kSegmentMemorySizeOffset = 32;
inline constexpr std::size_t kSegmentSizeOffset = 48;

}  // namespace sonavue::device
