#include "platform/CoreGraphics/CGColor.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UIWindow.h"
#include "platform/UIKit/_UIBackdropView.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

/// The panel as it is built, before any setting is applied.
class ViewLook : public PanelTest {
 protected:
  void SetUp() override {
    load_extension();
    silence("changesPrefs"_sel);
    launch();
  }

  std::vector<UIView> subviews(const char* name) const {
    std::vector<UIView> found;
    for (const auto subview : view(name).subviews().of<UIView>())
      found.push_back(subview);
    return found;
  }
  std::vector<UIView> named(std::initializer_list<const char*> names) const {
    std::vector<UIView> found;
    for (const char* name : names)
      found.push_back(view(name));
    return found;
  }
  /// The recognisers of one kind that a view has.
  template <class Recognizer>
  std::vector<Recognizer> recognizers(const char* name) const {
    std::vector<Recognizer> found;
    for (const auto one : view(name).gestureRecognizers().of<Recognizer>()) {
      if (one.isKindOfClass(Recognizer::cls())) found.push_back(one);
    }
    return found;
  }
  static std::string class_of(NSObject object) { return object.className().UTF8String(); }
  static bool is_white(UIColor color, CGFloat of_white, CGFloat of_alpha) {
    CGFloat white = -1, opacity = -1;
    return color.getWhite(&white, &opacity) && is_near(white, of_white) &&
           is_near(opacity, of_alpha);
  }
};

TEST_F(ViewLook, TheWindowsViewsAreInOrder) {
  EXPECT_EQ(subviews("window"), named({"cover", "container", "music"}));
  EXPECT_EQ(subviews("cover"), named({"main", "grabbers"}));
}

TEST_F(ViewLook, ThePagesViewsAreInOrder) {
  const std::vector<UIView> found = subviews("container");
  const std::vector<UIView> first = {found.begin(), found.begin() + 6};
  EXPECT_EQ(first, named({"art", "container1", "play", "back", "next", "tableView"}));
  for (const char* name : {"top", "bottom", "albums", "top1", "bottom1"})
    EXPECT_EQ(view(name).superview(), view("container")) << name;
}

TEST_F(ViewLook, EveryOtherViewHasItsParent) {
  const struct {
    const char* child;
    const char* parent;
  } pairs[] = {{"blurTable", "art"}, {"title", "container1"},     {"artist", "container1"},
               {"ring", "play"},     {"searchBar", "searchCont"}, {"grabs", "grabbers"},
               {"top2", "grabbers"}};
  for (const auto& pair : pairs)
    EXPECT_EQ(view(pair.child).superview(), view(pair.parent)) << pair.child;
  EXPECT_TRUE(view("tablev").isDescendantOfView(view("blurTable")));
  EXPECT_TRUE(view("search_icon").isDescendantOfView(view("searchBar")));
}

TEST_F(ViewLook, NothingIsVisible) {
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_EQ(alpha("container"), 0);
  EXPECT_EQ(alpha("container1"), 0);
  EXPECT_TRUE(view("music").isHidden());
  EXPECT_TRUE(view("grabbers").isHidden());
  EXPECT_TRUE(is_white(view("window").backgroundColor(), 0, 0));
}

TEST_F(ViewLook, TheBlursStartWithThePasscodeLook) {
  for (const char* name : {"main", "blurTable"}) {
    const auto settings = global<_UIBackdropView>(name).inputSettings();
    EXPECT_EQ(class_of(settings), "_UIBackdropViewSettingsPasscodePaddle") << name;
    EXPECT_FALSE(global<_UIBackdropView>(name).autosizesToFitSuperview()) << name;
  }
  EXPECT_TRUE(view("cover").clipsToBounds());
}

TEST_F(ViewLook, TheArtworkIsRoundedBorderedAndTouchable) {
  const UIView art = view("art");
  EXPECT_TRUE(art.clipsToBounds());
  EXPECT_EQ(art.layer().cornerRadius(), 50);
  EXPECT_EQ(art.layer().borderWidth(), 4);
  EXPECT_TRUE(CGColorEqualToColor(art.layer().borderColor(), UIColor::whiteColor().CGColor()));
  EXPECT_TRUE(is_white(art.backgroundColor(), 0, 0.3));
  EXPECT_TRUE(art.isUserInteractionEnabled());
}

TEST_F(ViewLook, TextsAreCentredInTheSystemsLightFace) {
  for (const char* name : {"title", "artist"}) {
    const auto label = global<UILabel>(name);
    EXPECT_EQ(label.textAlignment(), NSTextAlignmentCenter) << name;
    EXPECT_EQ(text(label.font().fontName()), "HelveticaNeue") << name;
  }
  EXPECT_EQ(global<UILabel>("title").font().pointSize(), 15);
}

TEST_F(ViewLook, PicturesUseTheTintOfTheirViews) {
  for (const char* name : {"play", "back", "next"}) {
    const UIImage picture = global<UIButton>(name).imageForState(UIControlStateNormal);
    ASSERT_TRUE(picture) << name;
    EXPECT_EQ(picture.renderingMode(), UIImageRenderingModeAlwaysTemplate) << name;
  }
  for (const char* name : {"grabs", "search_icon"}) {
    const UIImage picture = global<UIImageView>(name).image();
    ASSERT_TRUE(picture) << name;
    EXPECT_EQ(picture.renderingMode(), UIImageRenderingModeAlwaysTemplate) << name;
  }
}

TEST_F(ViewLook, EveryPictureIsADifferentOne) {
  const auto pixels = [](UIImage image) {
    const CFDataRef data = CGDataProviderCopyData(CGImageGetDataProvider(image.CGImage()));
    const auto bytes = reinterpret_cast<const char*>(CFDataGetBytePtr(data));
    const std::string copy(bytes, static_cast<std::size_t>(CFDataGetLength(data)));
    CFRelease(data);
    return copy;
  };
  const auto of_file = [&](NSString name) {
    return pixels(UIImage::imageWithContentsOfFile(
        "/Library/Application Support/Sonavue/"_ns.stringByAppendingString(name)));
  };
  const auto of_button = [&](const char* name) {
    return pixels(global<UIButton>(name).imageForState(UIControlStateNormal));
  };
  EXPECT_EQ(of_button("play"), of_file("Play.png"_ns));
  EXPECT_EQ(of_button("back"), of_file("indietro.png"_ns));
  EXPECT_EQ(of_button("next"), of_file("avanti.png"_ns));
  EXPECT_NE(of_button("back"), of_button("next"));
  EXPECT_EQ(pixels(global<UIImageView>("grabs").image()), of_file("grab_dragging@2x.png"_ns));
  EXPECT_EQ(pixels(global<UIImageView>("search_icon").image()), of_file("search@2x.png"_ns));
}

TEST_F(ViewLook, TheSearchFieldIsRoundAndDarkWithThePlaceholderSearch) {
  const auto field = global<UITextField>("searchBar");
  EXPECT_EQ(field.layer().cornerRadius(), 5);
  EXPECT_TRUE(field.clipsToBounds());
  EXPECT_TRUE(is_white(field.backgroundColor(), 0, 0.4));
  EXPECT_EQ(text(field.attributedPlaceholder().string()), "Search");
  EXPECT_EQ(field.leftViewMode(), UITextFieldViewModeAlways);
  EXPECT_EQ(global<UIImageView>("search_icon").frame(), (CGRect{5, 5, 15, 15}));
  EXPECT_EQ(field.leftView().frame().size, (CGSize{25, 25}));
}

TEST_F(ViewLook, TapsAndPansAreWhereTheyBelong) {
  using Tap = UITapGestureRecognizer;
  using Pan = UIPanGestureRecognizer;
  const auto closing = recognizers<Tap>("main");
  ASSERT_EQ(closing.size(), 1u);
  EXPECT_EQ(closing[0].numberOfTouchesRequired(), 1u);
  EXPECT_EQ(closing[0].delegate(), application);
  EXPECT_TRUE(closing[0].cancelsTouchesInView());

  ASSERT_EQ(recognizers<Tap>("art").size(), 1u);
  EXPECT_EQ(recognizers<Tap>("art")[0].numberOfTapsRequired(), 2u);
  ASSERT_EQ(recognizers<Tap>("ring").size(), 1u);
  EXPECT_EQ(recognizers<Tap>("ring")[0].numberOfTapsRequired(), 1u);
  EXPECT_TRUE(view("ring").isUserInteractionEnabled());

  ASSERT_EQ(recognizers<Tap>("music").size(), 1u);
  EXPECT_EQ(recognizers<Tap>("music")[0].numberOfTapsRequired(), 1u);
  ASSERT_EQ(recognizers<Pan>("music").size(), 1u);
  EXPECT_EQ(recognizers<Pan>("music")[0].delegate(), application);
  EXPECT_TRUE(recognizers<Pan>("music")[0].cancelsTouchesInView());

  EXPECT_EQ(music_icon().gestureRecognizers().count(), 1u);
  ASSERT_EQ(recognizers<Pan>("musicIcon").size(), 1u);
  EXPECT_TRUE(recognizers<Pan>("musicIcon")[0].cancelsTouchesInView());
  EXPECT_TRUE(is("added"));
  EXPECT_EQ(recognizers<Pan>("grabbers").size(), 1u);
}

TEST_F(ViewLook, PagesTurnOneByOneForTheirDelegate) {
  const auto container = global<UIScrollView>("container");
  EXPECT_TRUE(container.isPagingEnabled());
  EXPECT_EQ(class_of(objc::cast<NSObject>(container.delegate())), "Scroller");
  EXPECT_EQ(class_of(objc::cast<NSObject>(global<UITableView>("tableView").dataSource())),
            "Musicz");
  EXPECT_EQ(class_of(objc::cast<NSObject>(global<UITableView>("tablev").dataSource())),
            "MusicsAlbum");
}

TEST_F(ViewLook, TheListContainsTheWholeLibrary) {
  EXPECT_THAT(titles("songItems"),
              ::testing::UnorderedElementsAre("Alpha", "Bravo", "Charlie", "Delta", "Echo"));
  EXPECT_EQ(global<MPMediaQuery>("fullList").items().count(), 5u);
  EXPECT_EQ(global<UITableView>("tableView").numberOfRowsInSection(0), 5);
}

class BlurAtTheLaunch : public PanelTest {};

TEST_F(BlurAtTheLaunch, IsRequestedByItsNumber) {
  load_extension();
  using Settings = _UIBackdropViewSettingsPasscodePaddle;
  const MethodSpy<"settingsForStyle:", objc::Object(objc::Object, NSInteger)> asked(
      objc::class_of(reinterpret_cast<objc::Id>(Settings::cls())));
  PhoneTest::launch();
  ASSERT_EQ(asked.count(), 2);
  for (const auto& [style] : asked.calls())
    EXPECT_EQ(style, 3900);
}

}  // namespace
}  // namespace host::test
