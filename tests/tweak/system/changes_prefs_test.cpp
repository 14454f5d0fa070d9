#include "tests/tweak/coloured_panel.h"

namespace host::test {
namespace {

constexpr CGFloat kRoundCorner = 50;

class Appearance : public ColouredPanel {
 protected:
  void SetUp() override { launch(); }
};

TEST_F(Appearance, EveryNamedColourReachesEveryPart) {
  const std::size_t names = std::size(kNamedColours);
  for (std::size_t index = 0; index < names; ++index) {
    const NamedColour& tint = kNamedColours[index];
    const NamedColour& font = kNamedColours[(index + 5) % names];
    SCOPED_TRACE(tint.name);
    change_settings(text_entry("tint", tint.name) + text_entry("font_tint", font.name));
    EXPECT_THAT(control_colours(), AreAll(tint.colour));
    EXPECT_THAT(text_colours(), AreAll(font.colour));
  }
  // One, Two and the songs without an album have a tile each.
  EXPECT_EQ(control_colours().size(), kColouredControls);
  EXPECT_EQ(text_colours().size(), kColouredTexts);
}

TEST_F(Appearance, AnUnknownNameIsBlack) {
  for (const char* name : {"yellow", "Red", " red", "", "clearly"}) {
    SCOPED_TRACE(name);
    change_settings(text_entry("tint", "red") + text_entry("font_tint", "red"));
    change_settings(text_entry("tint", name) + text_entry("font_tint", name));
    EXPECT_THAT(control_colours(), AreAll(kBlack));
    EXPECT_THAT(text_colours(), AreAll(kBlack));
  }
}

TEST_F(Appearance, AMissingNameIsBlackWhenThereIsAFile) {
  change_settings(text_entry("tint", "red") + text_entry("font_tint", "red"));
  change_settings("");
  EXPECT_THAT(control_colours(), AreAll(kBlack));
  EXPECT_THAT(text_colours(), AreAll(kBlack));
}

TEST_F(Appearance, AValueThatIsNotAStringIsBlack) {
  change_settings("<key>tint</key><integer>3</integer><key>font_tint</key><array/>");
  EXPECT_THAT(control_colours(), AreAll(kBlack));
  EXPECT_THAT(text_colours(), AreAll(kBlack));
}

TEST_F(Appearance, TheArtworksCornersAreRoundUnlessSquareIsOn) {
  const auto corner = [this] { return view("art").layer().cornerRadius(); };
  change_settings(switch_entry("square", true));
  EXPECT_EQ(corner(), 0);
  change_settings(switch_entry("square", false));
  EXPECT_EQ(corner(), kRoundCorner);
  change_settings(switch_entry("square", true));
  change_settings("");
  EXPECT_EQ(corner(), kRoundCorner);
}

TEST_F(Appearance, OnlyPicturesAndLabelsOfATileAreColoured) {
  const auto tile = objc::cast<UIView>(view("albums").subviews().firstObject());
  const auto other = UIView::alloc().initWithFrame({0, 0, 5, 5});
  other.layer().setBorderColor(UIColor::greenColor().CGColor());
  other.setBackgroundColor(UIColor::greenColor());
  tile.addSubview(other);
  change_settings(text_entry("tint", "red") + text_entry("font_tint", "blue"));
  EXPECT_EQ(rgba(other.layer().borderColor()), (Rgba{0, 1, 0, 1}));
  EXPECT_EQ(rgba(other.backgroundColor()), (Rgba{0, 1, 0, 1}));
  // The tile itself is not coloured.
  EXPECT_FALSE(rgba(tile.layer().borderColor()) == (Rgba{1, 0, 0, 1}));
  EXPECT_THAT(control_colours(), AreAll(Rgba{1, 0, 0, 1}));
  other.release();
}

TEST_F(Appearance, ThePlaceholderKeepsItsText) {
  change_settings(text_entry("font_tint", "red"));
  EXPECT_EQ(text(global<UITextField>("searchBar").attributedPlaceholder().string()), "Search");
}

TEST_F(Appearance, TheLegibilityColourIsTheTintAtLaunch) {
  const UIColor before = global<UIColor>("newColor");
  change_settings(text_entry("tint", "red") + text_entry("font_tint", "blue"));
  EXPECT_EQ(global<UIColor>("newColor"), before);
  EXPECT_EQ(rgba(before), kBlack);
}

TEST_F(Appearance, LegibilityFollowsItsSetting) {
  for (const bool on : {true, false, true}) {
    change_settings(switch_entry("legibility", on));
    EXPECT_EQ(is("legibility"), on);
  }
  change_settings("");
  EXPECT_FALSE(is("legibility"));
}

TEST_F(Appearance, AnOpenPanelChangesWithinATenthOfASecond) {
  play("Alpha");
  open_panel();
  change_settings(text_entry("tint", "red"));
  write_preferences(text_entry("tint", "green") + "<key>checked</key><false/>");
  const double waited = seconds_until([this] {
    return rgba(view("play").tintColor()) == (Rgba{0, 1, 0, 1});
  });
  EXPECT_GE(waited, 0);
  EXPECT_LE(waited, 0.1 + RunLoop::kFrame);
  EXPECT_THAT(control_colours(), AreAll(Rgba{0, 1, 0, 1}));
  EXPECT_TRUE(is("isShow"));
}

class AppearanceAtTheStart : public ColouredPanel {};

TEST_F(AppearanceAtTheStart, WithoutAFileEverythingIsTranslucentBlack) {
  use_no_preferences();
  load_extension();
  silence("changePreferences"_sel);
  launch();
  EXPECT_THAT(control_colours(), AreAll(kTranslucentBlack));
  EXPECT_THAT(text_colours(), AreAll(kTranslucentBlack));
  EXPECT_EQ(view("art").layer().cornerRadius(), kRoundCorner);
  EXPECT_FALSE(is("legibility"));
}

TEST_F(AppearanceAtTheStart, TheChosenSettingsAreAppliedAtOnce) {
  write_preferences(text_entry("tint", "orange") + text_entry("font_tint", "purple") +
                    switch_entry("square", true) + switch_entry("legibility", true) +
                    "<key>checked</key><true/>");
  launch();
  EXPECT_THAT(control_colours(), AreAll(Rgba{1, 0.5, 0, 1}));
  EXPECT_THAT(text_colours(), AreAll(Rgba{0.5, 0, 0.5, 1}));
  EXPECT_EQ(view("art").layer().cornerRadius(), 0);
  EXPECT_TRUE(is("legibility"));
  EXPECT_EQ(rgba(global<UIColor>("newColor")), (Rgba{1, 0.5, 0, 1}));
}

}  // namespace
}  // namespace host::test
