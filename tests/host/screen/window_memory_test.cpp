#include "host/screen/window_memory.h"

#include <gtest/gtest.h>

#include "host/screen/desktop_scale.h"
#include "tests/support/media_fixtures.h"

namespace {

using host::screen::scale_of_resources;
using host::screen::WindowMemory;

class WindowMemories : public testing::Test {
 protected:
  std::filesystem::path file() const { return folder_.path() + "/state/sonavue/window"; }
  std::optional<CGSize> recalled() const { return WindowMemory(file()).recall(); }
  std::optional<CGSize> recalled_from(std::string_view contents) const {
    std::filesystem::create_directories(file().parent_path());
    media_tests::write_bytes(file(), contents);
    return recalled();
  }

  media_tests::TemporaryFolder folder_;
  media_tests::CapturedLog log_;
};

TEST_F(WindowMemories, ASizeIsRecalledInTheNextRun) {
  EXPECT_EQ(recalled(), std::nullopt);
  WindowMemory(file()).keep({428, 828});
  EXPECT_EQ(recalled(), (CGSize{428, 828}));
  EXPECT_EQ(log_.count("size of a window"), 0);
}

TEST_F(WindowMemories, BadContentsAreIgnoredWithALine) {
  int lines = 0;
  for (const char* bad : {"", "428", "428 828", "428 828 \n", " 428 828\n", "0 0\n", "-428 828\n",
                          "428 99999999999999999999\n", "99 400\n", "\x1b[2J", "428x828\n"}) {
    EXPECT_EQ(recalled_from(bad), std::nullopt) << bad;
    EXPECT_EQ(log_.count("does not hold the size of a window"), ++lines) << bad;
  }
  EXPECT_EQ(recalled_from(std::string(1000, '4')), std::nullopt);
  WindowMemory(file()).keep({428, 828});
  EXPECT_EQ(recalled(), (CGSize{428, 828}));
}

TEST_F(WindowMemories, WithoutAFileNothingIsKept) {
  WindowMemory none("");
  none.keep({428, 828});
  EXPECT_EQ(none.recall(), std::nullopt);
}

TEST(DesktopScales, AreReadFromTheResolutionForText) {
  EXPECT_EQ(scale_of_resources("Xft.hinting:\t1\nXft.dpi:\t192\nXft.rgba:\tnone\n"), 2);
  EXPECT_EQ(scale_of_resources("Xft.dpi: 144"), 1.5);
  EXPECT_EQ(scale_of_resources("Xft.dpi: 100000"), 4);
  EXPECT_EQ(scale_of_resources("Xft.dpi:"), 0);
  EXPECT_EQ(scale_of_resources("Xft.dpi: x"), 0);
  EXPECT_EQ(scale_of_resources("XTerm*font: fixed\n"), 0);
  EXPECT_EQ(scale_of_resources(""), 0);
}

}  // namespace
