#include "device/check/library.h"

#include <fmt/core.h>

#include <algorithm>

namespace sonavue::device {
namespace {

constexpr std::uint32_t kVersion8 = 0x00080000;
constexpr const char* kLibraryName = "/Library/MobileSubstrate/DynamicLibraries/Sonavue2.dylib";
constexpr std::size_t kPointer = 8;
constexpr std::size_t kInitialisers = 2;

bool is_load_function(const Image& library, std::uint64_t address) {
  const auto symbols = library.symbols();
  return std::any_of(symbols.begin(), symbols.end(), [&](const Symbol& each) {
    return each.value == address && each.name == "__ZN7sonavue12_GLOBAL__N_14loadEv";
  });
}

void check_initialisers(const Image& library, Findings& findings) {
  const Section* pointers = library.section("__DATA", "__mod_init_func");
  if (!pointers || pointers->size != kInitialisers * kPointer) {
    findings.push_back("library: has initialisers other than the settings' and the extension's");
    return;
  }
  // The settings' objects are linked first, so their load function precedes the extension's.
  const std::uint64_t settings = little_64(library.bytes(), pointers->offset);
  const std::uint64_t extension = little_64(library.bytes(), pointers->offset + kPointer);
  if (!is_load_function(library, settings) || !is_load_function(library, extension))
    findings.push_back("library: an initialiser is not ours");
  else if (settings >= extension)
    findings.push_back("library: the initialisers are out of order");
}

}  // namespace

void check_load_commands(const std::string& path, const Image& image, Findings& findings) {
  const auto need = [&](std::uint32_t kind, const char* what) {
    if (!image.command(kind)) findings.push_back(fmt::format("{}: has no {}", path, what));
  };
  const auto refuse = [&](std::uint32_t kind, const char* what) {
    if (image.command(kind)) findings.push_back(fmt::format("{}: has {}", path, what));
  };
  need(kDyldInformation, "classic dyld information");
  need(kUuid, "identifier of its build");
  need(kCodeSignature, "signature");
  refuse(kChainedFixups, "chained fixups");
  refuse(kExportsTrie, "an exports table that old systems do not read");
  refuse(kBuildVersion, "a build version instead of the minimum system version");
  refuse(kEncryption, "a load command for encryption");
  const LoadCommand* version = image.command(kMinimumPhoneVersion);
  if (!version || little_32(image.bytes(), version->offset + 8) != kVersion8)
    findings.push_back(fmt::format("{}: does not have 8.0 as its minimum system version", path));
}

void check_library(const Image& library, Findings& findings) {
  if (library.file_kind() != kLibrary) findings.push_back("library: is not a dynamic library");
  if (library.own_name() != kLibraryName)
    findings.push_back(fmt::format("library: has the install name {}", library.own_name()));
  check_initialisers(library, findings);
}

void check_bundle(const Image& bundle, Findings& findings) {
  if (bundle.file_kind() != kBundle) findings.push_back("settings bundle: is not a bundle");
  const auto libraries = bundle.libraries();
  if (std::find(libraries.begin(), libraries.end(), kLibraryName) == libraries.end())
    findings.push_back("settings bundle: does not load the library");
}

}  // namespace sonavue::device
