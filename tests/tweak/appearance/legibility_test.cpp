#include <cmath>

#include "tests/tweak/panel_steps.h"

namespace host::test {
namespace {

constexpr const char* kLegible = "<key>legibility</key><true/><key>checked</key><true/>";
constexpr const char* kTinted =
    "<key>tint</key><string>red</string><key>font_tint</key><string>red</string>";
constexpr Rgba kRed{1, 0, 0, 1};

/// A phone with a song for each cover. The titles are the covers' colours.
class Legibility : public PanelSteps {
 protected:
  void SetUp() override {
    for (const std::uint32_t cover : {0xffffffu, 0x000000u, 0x7f7f7fu, 0x808080u, 0xffff00u})
      add_cover(cover);
    write_preferences(std::string(kTinted) + kLegible);
    launch();
  }
  void add_cover(std::uint32_t colour) const {
    media::SongTags tags;
    tags.title = title_of(colour);
    tags.artist = "Xenia";
    tags.album = "Covers";
    add_song(tags.title, tags, media_tests::jpeg_picture(64, 64, colour));
  }
  static std::string title_of(std::uint32_t colour) {
    char title[8];
    std::snprintf(title, sizeof title, "%06x", colour);
    return title;
  }
  void play_cover(std::uint32_t colour) { play(title_of(colour).c_str()); }
  Rgba panel_colour() const { return rgba(global<UIColor>("newColor")); }
  void refresh() { objc::send<>(application, "infoMusic"_sel); }
  /// Makes the next refresh see a new elapsed time.
  void mark_elapsed_as_changed() { global<double>("lastElapsed") = -1; }

  void expect_all_in(const Rgba& colour) const {
    EXPECT_THAT(control_colours(), AreAll(colour));
    EXPECT_THAT(text_colours(), AreAll(colour));
    EXPECT_EQ(panel_colour(), colour);
  }
};

TEST_F(Legibility, IsBlackOverABrightCoverAndWhiteOverADarkOne) {
  play_cover(0xffffff);
  expect_all_in(kBlack);
  play_cover(0x000000);
  expect_all_in(kWhite);
  // The mean of the three components decides.
  play_cover(0xffff00);
  expect_all_in(kBlack);
  play("Alpha");
  expect_all_in(kWhite);
}

TEST_F(Legibility, GreyBelowTheMiddleIsDarkAndAboveItIsBright) {
  play_cover(0x7f7f7f);
  expect_all_in(kWhite);
  play_cover(0x808080);
  expect_all_in(kBlack);
}

/// The value that every colour returns for its components; no picture has such a colour.
CGFloat said_component = 0;

BOOL say_components(UIColor, CGFloat* red, CGFloat* green, CGFloat* blue, CGFloat* alpha) {
  for (CGFloat* part : {red, green, blue})
    if (part) *part = said_component;
  if (alpha) *alpha = 1;
  return YES;
}

TEST_F(Legibility, TheMiddleItselfIsDark) {
  const auto method = class_getInstanceMethod(UIColor::cls(), "getRed:green:blue:alpha:"_sel);
  play_cover(0xffffff);
  const auto colour_over_mean = [&](CGFloat mean) {
    said_component = mean;
    const objc::Imp before = method_setImplementation(
        method, reinterpret_cast<objc::Imp>(&objc::MethodOf<&say_components>::call));
    mark_elapsed_as_changed();
    refresh();
    method_setImplementation(method, before);
    return panel_colour();
  };
  EXPECT_EQ(colour_over_mean(0.5), kWhite);
  EXPECT_EQ(colour_over_mean(static_cast<double>(std::nextafterf(0.5f, 1))), kBlack);
  // Closer to the middle than single precision can represent.
  EXPECT_EQ(colour_over_mean(0.5 + 1e-9), kWhite);
}

TEST_F(Legibility, RecoloursOnlyWhenTheSystemReportsAChange) {
  play_cover(0xffffff);
  expect_all_in(kBlack);
  change_settings(std::string(kTinted) + switch_entry("legibility", true));
  // Until then, the colours of the settings stay.
  advance(5);
  EXPECT_THAT(control_colours(), AreAll(kRed));
  EXPECT_THAT(text_colours(), AreAll(kRed));
  EXPECT_EQ(panel_colour(), kBlack);
  media().togglePlayPause();
  advance(3);
  EXPECT_THAT(control_colours(), AreAll(kRed));
  media().togglePlayPause();
  advance(1.1);
  expect_all_in(kBlack);
}

TEST_F(Legibility, RecoloursOnlyWhenItsSettingIsOn) {
  play_cover(0x000000);
  expect_all_in(kWhite);
  change_settings(std::string(kTinted) + switch_entry("legibility", false));
  play_cover(0xffffff);
  EXPECT_THAT(control_colours(), AreAll(kRed));
  EXPECT_THAT(text_colours(), AreAll(kRed));
  EXPECT_EQ(panel_colour(), kWhite);
  change_settings(std::string(kTinted) + switch_entry("legibility", true));
  play_cover(0xffff00);
  expect_all_in(kBlack);
}

TEST_F(Legibility, RecoloursInOrderBeforeTheAlbumListIsRebuilt) {
  play_cover(0xffffff);
  Colours when_reloaded;
  mark_elapsed_as_changed();
  Steps steps = steps_of([this] { refresh(); });
  EXPECT_FALSE(is("did"));
  // Only the last of the refresh's own steps matters here.
  ASSERT_FALSE(steps.empty());
  EXPECT_EQ(steps.back(), "tablev reload");
  const auto first = std::find(steps.begin(), steps.end(), "art border");
  ASSERT_NE(first, steps.end());
  steps.erase(steps.begin(), first);
  steps.pop_back();
  Steps expected = {"art border"};
  for (std::size_t tile = 0; tile < tile_parts<UILabel>().size(); ++tile)
    expected.insert(expected.end(), {"tile border", "tile text"});
  for (const char* step :
       {"back tint", "play tint", "next tint", "search_icon tint", "searchBar text", "title text",
        "artist text", "searchBar placeholder, legible", "tableView separators",
        "tablev separators", "top colour", "bottom colour", "top1 colour", "top2 colour",
        "bottom1 colour", "ring arc", "ring circle", "grabs tint"})
    expected.push_back(step);
  EXPECT_EQ(steps, expected);
}

TEST_F(Legibility, LeavesOtherPartsOfATileAlone) {
  const auto tile = objc::cast<UIView>(view("albums").subviews().firstObject());
  const auto other = UIView::alloc().initWithFrame({0, 0, 5, 5});
  other.layer().setBorderColor(UIColor::greenColor().CGColor());
  tile.addSubview(other);
  play_cover(0xffffff);
  EXPECT_EQ(rgba(other.layer().borderColor()), (Rgba{0, 1, 0, 1}));
  other.release();
}

TEST_F(Legibility, ThePlaceholderKeepsItsText) {
  play_cover(0xffffff);
  EXPECT_EQ(text(global<UITextField>("searchBar").attributedPlaceholder().string()), "Search");
}

}  // namespace
}  // namespace host::test
