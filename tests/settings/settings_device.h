#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "host/foundation/device_paths.h"
#include "platform/Foundation/NSDictionary.h"

namespace sonavue::test {

namespace fs = std::filesystem;

/// A device for one test. It has the English texts, unless the test changes them, and no
/// preferences file.
class SettingsDevice {
 public:
  SettingsDevice() {
    std::string pattern = (fs::temp_directory_path() / "settings-XXXXXX").string();
    device = mkdtemp(pattern.data());
    fs::create_directories(languages());
    fs::create_directories(preferences().parent_path());
    fs::copy_file(SONAVUE_ENGLISH_TEXTS, languages() / "en.plist");
    host::foundation::set_device_root(device);
  }
  ~SettingsDevice() {
    host::foundation::set_device_root("");
    fs::remove_all(device);
  }

  fs::path pictures() const { return device / "Library/Application Support/Sonavue"; }
  fs::path languages() const { return pictures() / "Languages"; }
  fs::path preferences() const {
    return device / "var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";
  }

  /// Writes a file with a dictionary of these entries, given as XML.
  static void write_dictionary(const fs::path& file, std::string_view entries) {
    write(file, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" +
                    std::string(entries) + "</dict></plist>");
  }
  static void write(const fs::path& file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
  }
  static std::string text_entry(std::string_view key, std::string_view value) {
    return "<key>" + std::string(key) + "</key><string>" + std::string(value) + "</string>";
  }
  static std::string switch_entry(std::string_view key, bool on) {
    return "<key>" + std::string(key) + "</key>" + (on ? "<true/>" : "<false/>");
  }

  /// The contents of the preferences file as `key = value` pairs, sorted by key.
  std::string stored() const {
    const NSDictionary all = NSDictionary::dictionaryWithContentsOfFile(
        "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist"_ns);
    std::string text;
    const NSArray keys = all.allKeys().sortedArrayUsingSelector("compare:"_sel);
    for (const NSString key : keys.of<NSString>()) {
      const auto value = objc::cast<NSObject>(all.objectForKey(key));
      text += (text.empty() ? "" : ", ") + std::string(key.UTF8String()) + " = " +
              value.description().UTF8String();
    }
    return text;
  }

  fs::path device;
};

}  // namespace sonavue::test
