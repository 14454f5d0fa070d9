#pragma once

#include <functional>

#include "tests/macho/loader/memory.h"
#include "tests/macho/loader/registered_frames.h"
#include "tests/macho/loader/tables.h"

namespace macho_tests {

/// The processor whose images can be run in this process.
#if defined(__aarch64__)
inline constexpr Processor kOwnProcessor = kArm64;
#else
inline constexpr Processor kOwnProcessor = kX86;
#endif

/// An image of the phone's file format in this process's memory: moved to where there was room,
/// bound to others' symbols, protected, with its frames known. Its code stays until the object
/// goes.
class LoadedImage {
 public:
  /// The address of a library's symbol as the file names it; null where there is none.
  using FindSymbol = std::function<void*(const std::string& library, const std::string& symbol)>;

  /// A FormatError says why an image is not loaded; nothing stays mapped then.
  LoadedImage(const Image& image, const FindSymbol& find);

  /// Runs what the image wants to run before anything else, in the file's order.
  void run_initialisers() const;

  /// The address of a symbol that the image exports; null where it does not.
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
