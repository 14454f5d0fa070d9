#pragma once

#include "host/springboard/system/system_actions.h"
#include "tests/tweak/panel_test.h"

namespace host::test {

/// A phone and where its Music icon is.
struct IconPlace {
  const char* model;
  bool in_dock;
};

/// A launched phone whose Music icon is about to be dragged, from a page or from the dock.
class DragTest : public PanelTest, public ::testing::WithParamInterface<IconPlace> {
 protected:
  DragTest() : PanelTest(GetParam().model) { use_no_songs(); }

  void SetUp() override {
    launch();
    if (!GetParam().in_dock) return;
    ASSERT_TRUE(springboard::move_out_of_dock(kPhone));
    ASSERT_TRUE(springboard::move_to_dock(kMusic));
    settle();
    ASSERT_TRUE(music_icon().isInDock());
  }

  CGRect icon_on_screen() const {
    return music_icon().superview().convertRectToView(music_icon().frame(), nil);
  }
};

inline void PrintTo(const IconPlace& place, std::ostream* out) {
  *out << place.model << (place.in_dock ? " in the dock" : " on a page");
}

inline std::string name_of_place(const ::testing::TestParamInfo<IconPlace>& info) {
  std::string name = info.param.model;
  name[name.find(',')] = '_';
  return name + (info.param.in_dock ? "InTheDock" : "OnAPage");
}

// The two smallest screens and the largest, each with the icon on a page and in the dock.
#define SONAVUE_ON_EVERY_SCREEN(Suite)                                                \
  INSTANTIATE_TEST_SUITE_P(                                                           \
      , Suite,                                                                        \
      ::testing::Values(IconPlace{"iPhone4,1", false}, IconPlace{"iPhone4,1", true},  \
                        IconPlace{"iPhone7,2", false}, IconPlace{"iPhone7,2", true},  \
                        IconPlace{"iPhone7,1", false}, IconPlace{"iPhone7,1", true}), \
      name_of_place)

}  // namespace host::test
