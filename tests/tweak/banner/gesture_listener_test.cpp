#include "platform/Activator/LAEvent.h"
#include "platform/UIKit/UIImage.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

class GestureListener : public PanelTest {
 protected:
  static NSObject make() {
    const objc::Object cls(reinterpret_cast<objc::Id>(objc_getClass("SVActivatorListener")));
    return objc::send<NSObject>(objc::send<objc::Object>(cls, "alloc"_sel), "init"_sel)
        .autorelease();
  }
  static NSString name() { return "org.plumvane.Sonavue2"_ns; }
};

TEST_F(GestureListener, AnEventShowsTheBanner) {
  launch();
  const MethodSpy<"showBanner", void(SpringBoard)> shown(SpringBoard::cls());
  objc::send<>(make(), "activator:receiveEvent:"_sel, objc::Object(), objc::Object());
  EXPECT_EQ(shown.count(), 1);
  EXPECT_TRUE(is("isBanner"));
}

TEST_F(GestureListener, LeavesEveryEventUnhandled) {
  launch();
  for (const NSString name : {"shake"_ns, "home-hold"_ns, "no event of this service"_ns}) {
    for (const NSString mode : {"springboard"_ns, "lockscreen"_ns, "application"_ns}) {
      const MethodSpy<"showBanner", void(SpringBoard)> shown(SpringBoard::cls());
      const LAEvent event = LAEvent::eventWithName(name, mode);
      objc::send<>(make(), "activator:receiveEvent:"_sel, objc::Object(), event);
      EXPECT_FALSE(event.isHandled());
      EXPECT_EQ(shown.count(), 1);
    }
  }
}

TEST_F(GestureListener, AnEventBeforeTheLaunchDoesNothing) {
  load_extension();
  objc::send<>(make(), "activator:receiveEvent:"_sel, objc::Object(), objc::Object());
  EXPECT_FALSE(is("isBanner"));
}

TEST_F(GestureListener, DescribesItself) {
  load_extension();
  const NSObject listener = make();
  const objc::Object service;
  EXPECT_EQ(text(objc::send<NSString>(
                listener, "activator:requiresLocalizedTitleForListenerName:"_sel, service, name())),
            "Sonavue");
  EXPECT_EQ(
      text(objc::send<NSString>(
          listener, "activator:requiresLocalizedDescriptionForListenerName:"_sel, service, name())),
      "Present/Dimiss Sonavue");
  EXPECT_FALSE(objc::send<NSString>(
      listener, "activator:requiresLocalizedGroupForListenerName:"_sel, service, name()));
  const auto modes = objc::send<NSArray>(
      listener, "activator:requiresCompatibleEventModesForListenerWithName:"_sel, service, name());
  ASSERT_EQ(modes.count(), 3u);
  EXPECT_EQ(text(modes.objectAtIndex(0)), "springboard");
  EXPECT_EQ(text(modes.objectAtIndex(1)), "lockscreen");
  EXPECT_EQ(text(modes.objectAtIndex(2)), "application");
}

TEST_F(GestureListener, ConformsToTheListenerProtocol) {
  launch();
  const objc::Object protocol(reinterpret_cast<objc::Id>(objc_getProtocol("LAListener")));
  ASSERT_TRUE(protocol);
  EXPECT_TRUE(objc::send<BOOL>(make(), "conformsToProtocol:"_sel, protocol));
  EXPECT_FALSE(objc::send<BOOL>(NSArray::array(), "conformsToProtocol:"_sel, protocol));
}

TEST_F(GestureListener, ShowsOnePictureAtEveryScale) {
  load_extension();
  const MethodSpy<"imageWithContentsOfFile:", UIImage(NSObject, NSString)> loaded(
      objc::class_of(reinterpret_cast<objc::Id>(UIImage::cls())));
  const NSObject listener = make();
  for (const CGFloat scale : {1.0, 2.0, 3.0}) {
    objc::send<UIImage>(listener, "activator:requiresIconForListenerName:scale:"_sel,
                        objc::Object(), name(), scale);
    objc::send<UIImage>(listener, "activator:requiresSmallIconForListenerName:scale:"_sel,
                        objc::Object(), name(), scale);
  }
  ASSERT_EQ(loaded.count(), 6);
  for (const auto& [path] : loaded.calls())
    EXPECT_EQ(text(path),
              "/Library/PreferenceBundles/SonavueSettings.bundle/SonavueSettingsIcon@2x.png");
}

}  // namespace
}  // namespace host::test
