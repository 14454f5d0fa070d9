#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "host/foundation/device_paths.h"
#include "host/quartzcore/exports.h"
#include "host/quartzcore/layer_service.h"
#include "host/uikit/drawing/exports.h"
#include "host/uikit/text/exports.h"
#include "host/uikit/view/exports.h"
#include "platform/Foundation/NSDictionary.h"
#include "tests/support/host_test.h"

namespace sonavue::test {

namespace fs = std::filesystem;

/// A process with the platform's views and a device of its own, which has the English texts unless
/// a test says otherwise, and no preferences file.
class SettingsTest : public host::test::HostTest {
 public:
  SettingsTest() {
    std::string pattern = (fs::temp_directory_path() / "settings-XXXXXX").string();
    device = mkdtemp(pattern.data());
    fs::create_directories(languages());
    fs::create_directories(preferences().parent_path());
    fs::copy_file(SONAVUE_ENGLISH_TEXTS, languages() / "en.plist");
    host::foundation::set_device_root(device);
    host::quartzcore::export_quartzcore();
    host::uikit::export_drawing();
    host::uikit::export_views();
    host::uikit::export_text();
    service_.emplace(loop);
  }
  ~SettingsTest() override {
    service_.reset();
    host::foundation::set_device_root("");
    fs::remove_all(device);
  }

  fs::path pictures() const { return device / "Library/Application Support/Sonavue"; }
  fs::path languages() const { return pictures() / "Languages"; }
  fs::path preferences() const {
    return device / "var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";
  }

  /// A file with a dictionary of these entries, as XML.
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

  /// All of the preferences file, one `key = value` after another, by key.
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

 private:
  std::optional<host::quartzcore::LayerService> service_;
};

}  // namespace sonavue::test
