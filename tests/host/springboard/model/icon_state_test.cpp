#include "host/springboard/model/icon_state.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "host/springboard/model/default_layout.h"
#include "host/springboard/model/strings.h"
#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"
#include "tests/support/no_descriptors.h"

namespace host::springboard {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

class IconStateTest : public test::HostTest {
 public:
  IconStateTest() {
    std::string pattern = (std::filesystem::temp_directory_path() / "icons-XXXXXX").string();
    folder = mkdtemp(pattern.data());
  }
  ~IconStateTest() override { std::filesystem::remove_all(folder); }

  foundation::PropertyListFile file(const std::string& name) const {
    return foundation::PropertyListFile((folder / name).string());
  }
  std::optional<HomeLayout> read(const std::string& name) const;

  void write(const std::filesystem::path& name, const std::string& text) const {
    std::filesystem::create_directories((folder / name).parent_path());
    std::ofstream(folder / name) << text;
  }

  std::filesystem::path folder;
};

class ApplicationCatalogTest : public IconStateTest {};

constexpr HomeLayout::Capacity kCapacity{4, 2, 9};

std::optional<HomeLayout> IconStateTest::read(const std::string& name) const {
  foundation::PropertyListFile state = file(name);
  return read_icon_state(state, kCapacity);
}

std::vector<InstalledApplication> installed(std::initializer_list<const char*> bundles) {
  std::vector<InstalledApplication> applications;
  for (const char* bundle : bundles)
    applications.push_back({bundle, bundle, {}});
  return applications;
}

std::vector<std::string> ids(const HomeLayout::List& list) {
  std::vector<std::string> found;
  for (const Slot& slot : list)
    found.push_back(slot.id);
  return found;
}

std::string info(const std::string& entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + entries +
         "</dict></plist>";
}

TEST_F(IconStateTest, WhatIsWrittenIsReadBack) {
  HomeLayout layout(kCapacity);
  for (const char* id : {"a", "b", "c", "d", "e"})
    layout.append({id, false, {}, {}});
  layout.append_to_dock({"phone", false, {}, {}});
  layout.drop_on("a", "b", "Käse & Brot");

  ASSERT_TRUE(write_icon_state(layout, file("below/IconState.plist")));
  EXPECT_EQ(read("below/IconState.plist"), layout);
}

TEST_F(IconStateTest, AMissingFileReturnsNothing) {
  EXPECT_EQ(read("nowhere.plist"), std::nullopt);
}

TEST_F(IconStateTest, AMalformedFileIsSetAside) {
  write("broken.plist", "<plist><dict><key>");
  write("list.plist", "(a, b)");
  write("empty.plist", "");
  write("other.plist", info("<key>buttonBar</key><string>no</string>"));
  for (const char* name : {"broken.plist", "list.plist", "empty.plist", "other.plist"}) {
    EXPECT_EQ(read(name), std::nullopt) << name;
    EXPECT_FALSE(std::filesystem::exists(folder / name));
    EXPECT_TRUE(std::filesystem::exists(folder / (std::string(name) + ".damaged")));
  }
}

TEST_F(IconStateTest, EntriesThatAreNotIconsAreSkipped) {
  write("odd.plist", info("<key>buttonBar</key><array><integer>3</integer></array>"
                          "<key>iconLists</key><array><string>x</string>"
                          "<array><true/><string>a</string></array></array>"));
  const auto layout = read("odd.plist");
  ASSERT_TRUE(layout);
  EXPECT_THAT(layout->applications(), ElementsAre("a"));
}

TEST_F(IconStateTest, OnlySoManyIconsAreArranged) {
  // A hundred thousand folders and icons would take hours.
  std::string entries;
  for (int i = 0; i < 50'000; ++i)
    entries += "{iconLists = ((a" + std::to_string(i) + "));}, b" + std::to_string(i) + ", ";
  write("IconState.plist", "{buttonBar = (dock); iconLists = ((" + entries + "));}");
  test::CaughtLog log;
  const auto layout = read("IconState.plist");
  ASSERT_TRUE(layout);
  EXPECT_EQ(layout->applications().size(), 667u);
  EXPECT_THAT(log.take(), testing::HasSubstr("holds more than 1000 icons"));
}

TEST_F(IconStateTest, AnUnwritableFileIsReported) {
  write("file", "not a folder");
  EXPECT_FALSE(write_icon_state(HomeLayout(kCapacity), file("file/IconState.plist")));
}

TEST_F(IconStateTest, AnUnreadableFileIsNotReplaced) {
  HomeLayout layout(kCapacity);
  layout.append({"a", false, {}, {}});
  ASSERT_TRUE(write_icon_state(layout, file("IconState.plist")));
  foundation::PropertyListFile state = file("IconState.plist");
  {
    const NoDescriptors none;
    EXPECT_EQ(read_icon_state(state, kCapacity), std::nullopt);
  }
  EXPECT_FALSE(write_icon_state(HomeLayout(kCapacity), state));
  EXPECT_EQ(read("IconState.plist"), layout);
}

TEST_F(IconStateTest, AnArrangementIsFittedToTheInstalledApplications) {
  HomeLayout saved(kCapacity);
  for (const char* id : {"a", "gone", "b", "a"})
    saved.append({id, false, {}, {}});
  saved.append({{}, true, "Empty", {"gone"}}, 1);
  saved.append({"last", false, {}, {}}, 1);

  const HomeLayout layout = fit_to_installed(saved, installed({"a", "b", "last", "new"}));

  ASSERT_EQ(layout.pages().size(), 2u);
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre("a", "b"));
  EXPECT_THAT(ids(layout.pages()[1]), ElementsAre("last", "new"));
}

TEST_F(IconStateTest, ByDefaultMusicIsInTheBottomRowOfTheFirstPage) {
  std::vector<InstalledApplication> all;
  for (const std::string& bundle : default_applications())
    all.push_back({bundle, bundle, {}});
  const HomeLayout layout = default_layout({16, 4, 9}, all);
  const auto place = layout.find("com.apple.Music");
  ASSERT_TRUE(place);
  EXPECT_EQ(*place, (Place{Area::kPage, 0, {}, 12}));
  EXPECT_EQ(layout.pages()[0].size(), 16u);
  EXPECT_EQ(layout.dock().size(), 4u);
}

TEST_F(IconStateTest, TheDefaultArrangementHasNoGapsForMissingApplications) {
  const HomeLayout layout =
      default_layout({16, 4, 9}, installed({"com.apple.Preferences", "org.example.unknown"}));
  ASSERT_EQ(layout.pages().size(), 1u);
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre("com.apple.Preferences", "org.example.unknown"));
  EXPECT_TRUE(layout.dock().empty());
}

TEST_F(ApplicationCatalogTest, ReadsIdentifierNameAndPath) {
  write("Music.app/Info.plist", info("<key>CFBundleIdentifier</key><string>com.apple.Music</string>"
                                     "<key>CFBundleDisplayName</key><string>Music</string>"));
  const auto applications = read_applications(to_ns(folder.string()));
  ASSERT_EQ(applications.size(), 1u);
  EXPECT_EQ(applications[0],
            (InstalledApplication{"com.apple.Music", "Music", (folder / "Music.app").string()}));
}

TEST_F(ApplicationCatalogTest, LeavesOutFoldersThatAreNotApplications) {
  write("Broken.app/Info.plist", "<plist>");
  write("Nameless.app/Info.plist", info("<key>CFBundleName</key><string>Nameless</string>"));
  write("Number.app/Info.plist", info("<key>CFBundleIdentifier</key><integer>4</integer>"));
  write("First.app/Info.plist", info("<key>CFBundleIdentifier</key><string>same</string>"));
  write("Second.app/Info.plist", info("<key>CFBundleIdentifier</key><string>same</string>"));
  write("notes.txt", "no folder");
  const auto applications = read_applications(to_ns(folder.string()));
  ASSERT_EQ(applications.size(), 1u);
  EXPECT_EQ(applications[0].path, (folder / "First.app").string());
  EXPECT_EQ(applications[0].name, "same") << "without a name the identifier is used";
}

TEST_F(ApplicationCatalogTest, AMissingFolderHasNoApplications) {
  EXPECT_TRUE(read_applications(to_ns((folder / "nowhere").string())).empty());
}

TEST_F(ApplicationCatalogTest, TheBuildCreatesEveryApplicationOfTheDefaultArrangement) {
  std::vector<std::string> bundles;
  for (const auto& application : read_applications(SONAVUE_APPLICATIONS ""_ns)) {
    bundles.push_back(application.bundle);
    EXPECT_TRUE(std::filesystem::exists(application.path + "/Icon@2x.png")) << application.path;
  }
  EXPECT_THAT(bundles, UnorderedElementsAreArray(default_applications()));
}

}  // namespace
}  // namespace host::springboard
