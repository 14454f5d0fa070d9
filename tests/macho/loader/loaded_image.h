#pragma once

#include <functional>

#include "tests/macho/loader/memory.h"
#include "tests/macho/loader/registered_frames.h"
#include "tests/macho/loader/tables.h"

namespace macho_tests {

/// The processor whose images can run in this process.
#if defined(__aarch64__)
inline constexpr Processor kOwnProcessor = kArm64;
#else
inline constexpr Processor kOwnProcessor = kX86;
#endif

/// An image in the phone's file format, loaded into this process: relocated, bound, protected, and
/// with its frames registered. Its code stays mapped until this object is destroyed.
class LoadedImage {
 public:
  /// Returns the address of a library's symbol, by its name in the file; null if there is none.
  using FindSymbol = std::function<void*(const std::string& library, const std::string& symbol)>;

  /// Throws FormatError if the image cannot be loaded. Then nothing stays mapped.
  LoadedImage(const Image& image, const FindSymbol& find);

  /// Runs the image's initialisers in the file's order.
  void run_initialisers() const;

  /// The address of an exported symbol; null if the image does not export it.
  void* exported(const std::string& symbol) const;

  std::size_t count_of_bindings() const { return bindings_.size(); }

 private:
  void rebase(const Image& image);
  void bind(const FindSymbol& find);
  std::uintptr_t address_for(const Binding& binding, const FindSymbol& find) const;
  void read_initialisers(const Image& image);

  std::map<std::string, std::uint64_t> exports_;
  std::vector<Binding> bindings_;
  std::vector<std::uint64_t> initialisers_;
  Memory memory_;
  RegisteredFrames frames_;
};

}  // namespace macho_tests
