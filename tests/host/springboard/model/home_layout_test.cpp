#include "host/springboard/model/home_layout.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace host::springboard {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Slot application(std::string id) {
  return {std::move(id), false, {}, {}};
}

std::vector<std::string> ids(const HomeLayout::List& list) {
  std::vector<std::string> found;
  for (const Slot& slot : list)
    found.push_back(slot.id);
  return found;
}

/// Two pages of at most three icons, a dock of at most two, folders of at most two.
HomeLayout small_layout() {
  HomeLayout layout({3, 2, 2});
  for (const char* id : {"a", "b", "c", "d"})
    layout.append(application(id));
  layout.append_to_dock(application("phone"));
  return layout;
}

TEST(HomeLayout, AppendFillsPagesInOrder) {
  const HomeLayout layout = small_layout();
  ASSERT_EQ(layout.pages().size(), 2u);
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre("a", "b", "c"));
  EXPECT_THAT(ids(layout.pages()[1]), ElementsAre("d"));
  EXPECT_EQ(layout.find("d"), (Place{Area::kPage, 1, {}, 0}));
  EXPECT_EQ(layout.find("nobody"), std::nullopt);
}

TEST(HomeLayout, MovingWithinAPageUsesIndexesWithoutTheIcon) {
  HomeLayout layout = small_layout();
  EXPECT_TRUE(layout.move("a", {Area::kPage, 0, {}, 2}));
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre("b", "c", "a"));
}

TEST(HomeLayout, AFullPagePushesItsLastIconToTheNext) {
  HomeLayout layout = small_layout();
  EXPECT_TRUE(layout.move("phone", {Area::kPage, 0, {}, 1}));
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre("a", "phone", "b"));
  EXPECT_THAT(ids(layout.pages()[1]), ElementsAre("c", "d"));
  EXPECT_THAT(layout.dock(), IsEmpty());
}

TEST(HomeLayout, AFullDockRefusesAndChangesNothing) {
  HomeLayout layout = small_layout();
  EXPECT_TRUE(layout.move("a", {Area::kDock, 0, {}, 0}));
  const HomeLayout before = layout;
  EXPECT_FALSE(layout.move("b", {Area::kDock, 0, {}, 0}));
  EXPECT_EQ(layout, before);
  EXPECT_TRUE(layout.move("a", {Area::kDock, 0, {}, 1})) << "its own icons may change places";
  EXPECT_THAT(ids(layout.dock()), ElementsAre("phone", "a"));
}

TEST(HomeLayout, DroppingOnAnApplicationMakesAFolderInItsSlot) {
  HomeLayout layout = small_layout();
  EXPECT_TRUE(layout.drop_on("a", "c", "Utilities"));
  ASSERT_EQ(layout.pages()[0].size(), 2u);
  const Slot& folder = layout.pages()[0][1];
  EXPECT_TRUE(folder.is_folder);
  EXPECT_EQ(folder.title, "Utilities");
  EXPECT_THAT(folder.contents, ElementsAre("c", "a"));
  EXPECT_EQ(layout.find("a"), (Place{Area::kFolder, 0, folder.id, 1}));
}

TEST(HomeLayout, AFullFolderRefusesAndChangesNothing) {
  HomeLayout layout = small_layout();
  layout.drop_on("a", "c", "Utilities");
  const std::string folder = layout.pages()[0][1].id;
  const HomeLayout before = layout;
  EXPECT_FALSE(layout.drop_on("b", folder, "ignored"));
  EXPECT_EQ(layout, before);
}

TEST(HomeLayout, AFolderCannotGoIntoAFolder) {
  HomeLayout layout({4, 2, 3});
  for (const char* id : {"a", "b", "c", "d"})
    layout.append(application(id));
  layout.drop_on("a", "b", "One");
  layout.drop_on("c", "d", "Two");
  const std::string one = layout.pages()[0][0].id;
  const std::string two = layout.pages()[0][1].id;
  EXPECT_FALSE(layout.drop_on(one, two, "ignored"));
  EXPECT_TRUE(layout.move(one, {Area::kPage, 0, {}, 1}));
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre(two, one));
}

TEST(HomeLayout, LeavingAFolderPutsTheIconBehindIt) {
  HomeLayout layout = small_layout();
  layout.drop_on("a", "b", "Utilities");
  const std::string folder = layout.pages()[0][0].id;
  EXPECT_TRUE(layout.move_out_of_folder("b"));
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre(folder, "b", "c"));
}

TEST(HomeLayout, TheLastIconReplacesItsFolder) {
  HomeLayout layout = small_layout();
  layout.drop_on("a", "b", "Utilities");
  layout.move_out_of_folder("b");
  EXPECT_TRUE(layout.move_out_of_folder("a"));
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre("a", "b", "c"));
}

TEST(HomeLayout, TheOnlyIconOfAFolderMayMoveWithinIt) {
  HomeLayout layout = small_layout();
  layout.drop_on("a", "b", "Utilities");
  layout.move_out_of_folder("b");
  const std::string folder = layout.find("a")->folder;
  EXPECT_TRUE(layout.move("a", {Area::kFolder, 0, folder, 0}));
  EXPECT_THAT(layout.folder(folder)->contents, ElementsAre("a"));
}

TEST(HomeLayout, LeavingAFolderInAFullDockGoesToTheFirstPage) {
  HomeLayout layout = small_layout();
  layout.move("a", {Area::kDock, 0, {}, 1});
  layout.drop_on("b", "a", "Utilities");
  EXPECT_TRUE(layout.move_out_of_folder("b"));
  EXPECT_EQ(layout.find("b"), (Place{Area::kPage, 0, {}, 1}));
}

TEST(HomeLayout, RemovingTheLastIconOfAFolderRemovesIt) {
  HomeLayout layout = small_layout();
  layout.drop_on("a", "b", "Utilities");
  EXPECT_TRUE(layout.remove("a"));
  EXPECT_TRUE(layout.remove("b"));
  EXPECT_THAT(ids(layout.pages()[0]), ElementsAre("c"));
  EXPECT_FALSE(layout.remove("b"));
}

TEST(HomeLayout, AnEmptyPageIsRemovedOnRequest) {
  HomeLayout layout = small_layout();
  EXPECT_TRUE(layout.move("d", {Area::kPage, 9, {}, 0})) << "past the last page: a new one";
  EXPECT_EQ(layout.pages().size(), 3u);
  layout.remove_empty_pages();
  EXPECT_EQ(layout.pages().size(), 2u);
  EXPECT_EQ(layout.find("d"), (Place{Area::kPage, 1, {}, 0}));
}

TEST(HomeLayout, EveryChangeKeepsEachApplicationInOnePlace) {
  HomeLayout layout = small_layout();
  layout.move("d", {Area::kDock, 0, {}, 0});
  layout.drop_on("phone", "b", "Utilities");
  layout.move("c", {Area::kPage, 1, {}, 0});
  layout.move_out_of_folder("phone");
  std::vector<std::string> all = layout.applications();
  std::sort(all.begin(), all.end());
  EXPECT_THAT(all, ElementsAre("a", "b", "c", "d", "phone"));
}

}  // namespace
}  // namespace host::springboard
