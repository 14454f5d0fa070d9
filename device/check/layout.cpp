#include "device/check/layout.h"

#include <fmt/core.h>

#include <iterator>
#include <set>

#include "device/check/control_fields.h"

namespace sonavue::device {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kProgramMode = 0755;
constexpr unsigned kFileMode = 0644;
constexpr const char* kFilterPath = "Library/MobileSubstrate/DynamicLibraries/Sonavue2.plist";
constexpr const char* kProduct = "Library/Application Support/Sonavue/";
constexpr const char* kBundle = "Library/PreferenceBundles/SonavueSettings.bundle/";
constexpr const char* kIcon = "SonavueSettingsIcon";

void add_scales(std::set<std::string>& files, const std::string& stem) {
  for (const char* scale : {"", "@2x", "@3x"})
    files.insert(stem + scale + ".png");
}

std::set<std::string> expected_files(const fs::path& source) {
  std::set<std::string> files = {
      kLibraryPath,
      kFilterPath,
      kBundlePath,
      std::string(kBundle) + "Info.plist",
      "Library/PreferenceLoader/Preferences/Sonavue.plist",
  };
  for (const auto& each : fs::recursive_directory_iterator(source / "resources/pictures"))
    if (each.path().extension() == ".svg")
      add_scales(files, kProduct + each.path().stem().string());
  for (const auto& each : fs::directory_iterator(source / "resources/languages"))
    files.insert(std::string(kProduct) + "Languages/" + each.path().filename().string());
  add_scales(files, std::string(kBundle) + kIcon);
  return files;
}

void check_entry(const PackagedFile& file, unsigned mode, Findings& findings) {
  if (file.mode != mode)
    findings.push_back(fmt::format("{}: mode {:o} instead of {:o}", file.path, file.mode, mode));
  if (file.owner != 0 || file.group != 0)
    findings.push_back(fmt::format("{}: does not belong to root:root", file.path));
  if (!file.is_folder && !file.is_plain)
    findings.push_back(fmt::format("{}: is neither a file nor a folder", file.path));
  if (file.is_plain && file.content.empty())
    findings.push_back(fmt::format("{}: is empty", file.path));
}

void check_files(const PackageFile& package, const fs::path& source, Findings& findings) {
  std::set<std::string> missing = expected_files(source);
  for (const PackagedFile& file : package.data) {
    const bool is_program = file.path == kLibraryPath || file.path == kBundlePath;
    check_entry(file, file.is_folder || is_program ? kProgramMode : kFileMode, findings);
    if (!file.is_folder && missing.erase(file.path) == 0)
      findings.push_back(fmt::format("{}: does not belong in the package", file.path));
  }
  for (const std::string& path : missing)
    findings.push_back(fmt::format("{}: is missing", path));
}

void check_control(const PackageFile& package, Findings& findings) {
  const std::set<std::string> scripts = {"postinst", "postrm"};
  for (const PackagedFile& file : package.control) {
    if (file.is_folder) continue;
    const bool is_script = scripts.count(file.path) != 0;
    check_entry(file, is_script ? kProgramMode : kFileMode, findings);
    if (is_script || file.path == "control" || file.path == "md5sums") continue;
    findings.push_back(fmt::format("control/{}: does not belong in the package", file.path));
  }
  for (const std::string& script : scripts) {
    const PackagedFile* file = package.control_file(script);
    const std::string text =
        file ? std::string(file->content.begin(), file->content.end()) : std::string();
    if (text.find("finish:restart") == std::string::npos)
      findings.push_back(fmt::format("{}: does not request a restart of the home screen", script));
    if (text.find("kill") != std::string::npos)
      findings.push_back(fmt::format("{}: ends processes", script));
  }
}

void check_fields(const PackageFile& package, Findings& findings) {
  const PackagedFile* file = package.control_file("control");
  if (!file) {
    findings.push_back("control: is missing");
    return;
  }
  const std::string text = "\n" + std::string(file->content.begin(), file->content.end());
  const auto need = [&](const std::string& words, const std::string& after) {
    if (text.find(words + after) == std::string::npos)
      findings.push_back(
          fmt::format("control: lacks `{}`", words.substr(words.find_first_not_of('\n'))));
  };
  for (const char* line :
       {"\nPackage: org.plumvane.sonavue2", "\nName: Sonavue", "\nArchitecture: iphoneos-arm"})
    need(line, "\n");
  need("\nDepends: mobilesubstrate, preferenceloader, libactivator", ", firmware ");
  need(kProcessors, "");
  for (const char* field : {"Version", "Maintainer", "Section", "Description", "Installed-Size"})
    if (text.find(fmt::format("\n{}: ", field)) == std::string::npos)
      findings.push_back(fmt::format("control: lacks the field {}", field));
  check_control_fields(text.substr(1), findings);
}

/// Checks the filter, which names the processes that load the library.
void check_filter(const PackageFile& package, Findings& findings) {
  const PackagedFile* file = package.data_file(kFilterPath);
  if (!file) return;
  const std::string text(file->content.begin(), file->content.end());
  for (const char* bundle : {"com.apple.springboard", "com.apple.Preferences"})
    if (text.find(fmt::format("<string>{}</string>", bundle)) == std::string::npos)
      findings.push_back(fmt::format("the filter: does not name {}", bundle));
}

}  // namespace

void check_layout(const PackageFile& package, const fs::path& source, Findings& findings) {
  const std::vector<std::string> parts = {"debian-binary", "control.tar.gz", "data.tar.gz"};
  if (package.parts != parts)
    findings.push_back("the package: its parts are not compressed with gzip");
  check_files(package, source, findings);
  check_control(package, findings);
  check_fields(package, findings);
  check_filter(package, findings);
}

}  // namespace sonavue::device
