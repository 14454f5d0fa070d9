#include "objc/class_builder.h"
#include "platform/SpringBoard/SBIconController.h"
#include "tests/tweak/panel_test.h"

// Later systems have the map of the home screen's icons in another class.

namespace host::test {
namespace {

objc::Imp answered_before = nullptr;
int asked_controller = 0;

BOOL answers_without_the_map(objc::Object self, objc::Sel selector) {
  if (sel_isEqual(selector, "homescreenMap"_sel)) return NO;
  using Function = BOOL (*)(objc::Id, objc::Sel, objc::Sel);
  return reinterpret_cast<Function>(answered_before)(self.id(), "respondsToSelector:"_sel,
                                                     selector);
}

SBIconViewMap map_of_the_controller(objc::Object) {
  ++asked_controller;
  return SBIconViewMap::homescreenMap();
}

class IconMap : public PanelTest {
 protected:
  /// Makes the class deny that it has the map.
  static void hide_from_the_class() {
    const objc::Class cls = objc::class_of(reinterpret_cast<objc::Id>(SBIconViewMap::cls()));
    answered_before =
        method_getImplementation(class_getInstanceMethod(cls, "respondsToSelector:"_sel));
    objc::replace_method<&answers_without_the_map>(cls, "respondsToSelector:");
  }
  static void add_map_to_controller() {
    objc::add_method<&map_of_the_controller>(SBIconController::cls(), "homescreenIconViewMap");
  }
};

TEST_F(IconMap, UsesTheControllersMapIfTheClassHasNone) {
  hide_from_the_class();
  add_map_to_controller();
  launch();
  EXPECT_GT(asked_controller, 0);
  ASSERT_TRUE(music_icon());
  EXPECT_TRUE(is("added"));
}

TEST_F(IconMap, IgnoresTheControllerIfTheClassHasTheMap) {
  add_map_to_controller();
  launch();
  EXPECT_EQ(asked_controller, 0);
  EXPECT_TRUE(music_icon());
}

TEST_F(IconMap, WithoutEitherMapThereIsNoMusicIcon) {
  hide_from_the_class();
  launch();
  EXPECT_FALSE(music_icon());
}

}  // namespace
}  // namespace host::test
