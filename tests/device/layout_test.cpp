#include "device/check/layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace sonavue::device {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::Not;

/// Rules that the packing tools cannot be made to break.
class Layout : public testing::Test {
 protected:
  Layout() {
    std::string made = (fs::temp_directory_path() / "layout-XXXXXX").string();
    source_ = mkdtemp(made.data());
    fs::create_directories(source_ / "resources/pictures");
    fs::create_directories(source_ / "resources/languages");
  }
  ~Layout() override { fs::remove_all(source_); }

  Findings findings_with(const PackagedFile& control_file) const {
    PackageFile package;
    package.control.push_back(control_file);
    Findings findings;
    check_layout(package, source_, findings);
    return findings;
  }

 private:
  fs::path source_;
};

PackagedFile control_file(const std::string& path, unsigned mode) {
  return {path, false, true, mode, 0, 0, {'x'}};
}

TEST_F(Layout, ScriptsAreExecutableByAllAndWritableByTheirOwner) {
  EXPECT_THAT(findings_with(control_file("postinst", 0777)),
              Contains("postinst: mode 777 instead of 755"));
  EXPECT_THAT(findings_with(control_file("postrm", 0644)),
              Contains("postrm: mode 644 instead of 755"));
  EXPECT_THAT(findings_with(control_file("postrm", 0755)),
              Not(Contains(testing::StartsWith("postrm: mode"))));
}

TEST_F(Layout, TheControlFileIsNotExecutable) {
  EXPECT_THAT(findings_with(control_file("control", 0600)),
              Contains("control: mode 600 instead of 644"));
  EXPECT_THAT(findings_with(control_file("control", 0644)),
              Not(Contains(testing::StartsWith("control: mode"))));
}

TEST_F(Layout, ThereIsAControlFile) {
  EXPECT_THAT(findings_with(control_file("postrm", 0755)), Contains("control: is missing"));
  EXPECT_THAT(findings_with(control_file("control", 0644)), Not(Contains("control: is missing")));
}

}  // namespace
}  // namespace sonavue::device
