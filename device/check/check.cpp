#include "device/check/check.h"

#include <fmt/core.h>

#include <optional>

#include "device/check/calls.h"
#include "device/check/layout.h"
#include "device/check/library.h"
#include "device/check/linker_stubs.h"
#include "device/check/phone_page.h"
#include "device/check/platform.h"
#include "device/check/signature.h"
#include "device/check/unwind.h"

namespace sonavue::device {
namespace {

std::optional<Image> image_in(const PackageFile& package, const char* path, Findings& findings) {
  const PackagedFile* file = package.data_file(path);
  if (!file) return std::nullopt;
  try {
    return Image(file->content);
  } catch (const FormatError& problem) {
    findings.push_back(fmt::format("{}: {}", path, problem.what()));
    return std::nullopt;
  }
}

void check_platform(const PackageFile& package, const Image& library,
                    const std::filesystem::path& source, Findings& findings) {
  const PackagedFile* control = package.control_file("control");
  if (!control) return;
  const Knowledge known = read_knowledge(source);
  try {
    const std::string text(control->content.begin(), control->content.end());
    const SystemRange promised = promised_range(text);
    check_platform(platform_use(library), known, promised, findings);
    check_phone_page(source, promised, findings);
  } catch (const FormatError& problem) {
    findings.push_back(problem.what());
  }
}

}  // namespace

Findings check_package(const PackageFile& package, const std::filesystem::path& source) {
  Findings findings;
  check_layout(package, source, findings);
  const auto library = image_in(package, kLibraryPath, findings);
  const auto bundle = image_in(package, kBundlePath, findings);
  if (!library || !bundle) return findings;

  check_load_commands("library", *library, findings);
  check_load_commands("settings bundle", *bundle, findings);
  check_library(*library, findings);
  check_bundle(*bundle, findings);
  check_signature("library", *library, "org.plumvane.sonavue2", findings);
  check_signature("settings bundle", *bundle, "org.plumvane.SonavueSettings", findings);
  check_symbols(*library, *bundle, source, findings);
  check_platform(package, *library, source, findings);
  check_calls(*library, findings);
  check_unwinding("library", *library, findings);
  check_unwinding("settings bundle", *bundle, findings);
  return findings;
}

}  // namespace sonavue::device
