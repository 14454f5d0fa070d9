#include <gmock/gmock.h>

#include "tests/tweak/panel_steps.h"

namespace host::test {
namespace {

class AppearanceOrder : public PanelSteps {
 protected:
  void SetUp() override { launch(); }
  void apply() const { objc::send<>(application, "changesPrefs"_sel); }
};

TEST_F(AppearanceOrder, ChangesInTheListedOrder) {
  write_preferences(switch_entry("legibility", true) + "<key>checked</key><true/>");
  EXPECT_THAT(steps_of([this] { apply(); }),
              ::testing::ElementsAre("tableView reload",                   //
                                     "musicIcon loses", "musicIcon gets",  //
                                     "art corner", "art border",           //
                                     "tile border", "tile text", "tile border", "tile text",
                                     "tile border", "tile text", "back tint", "play tint",
                                     "next tint", "search_icon tint",                //
                                     "searchBar text", "title text", "artist text",  //
                                     "searchBar placeholder, legible",               //
                                     "tableView separators", "tablev separators",    //
                                     "top colour", "bottom colour", "top1 colour", "top2 colour",
                                     "bottom1 colour", "ring arc", "ring circle", "grabs tint",  //
                                     "main style", "blurTable style", "main input",
                                     "blurTable input", "main apply", "blurTable apply"));
}

TEST_F(AppearanceOrder, LegibilityIsReadAfterTheTextsAreColoured) {
  write_preferences(switch_entry("legibility", true) + "<key>checked</key><true/>");
  std::vector<bool> legible;
  const ReceiverSpy<UILabel, "setTextColor:", UIColor> texts(
      [&](UILabel, UIColor) { legible.push_back(is("legibility")); });
  apply();
  EXPECT_THAT(legible, ::testing::Each(false));
  EXPECT_FALSE(legible.empty());
  EXPECT_TRUE(is("legibility"));
}

/// Describes the observable state of a view and of everything inside it.
void describe(UIView view, const std::string& indent, std::string& out) {
  std::ostringstream line;
  const auto colour = [&](const char* name, const Rgba& value) {
    line << " " << name;
    PrintTo(value, &line);
  };
  line << indent << view.className().UTF8String() << " ";
  PrintTo(view.frame(), &line);
  line << " alpha " << view.alpha() << (view.isHidden() ? " hidden" : "")
       << (view.isUserInteractionEnabled() ? "" : " untouchable") << " corner "
       << view.layer().cornerRadius() << " border " << view.layer().borderWidth();
  colour("border", rgba(view.layer().borderColor()));
  colour("tint", rgba(view.tintColor()));
  colour("back", rgba(view.backgroundColor()));
  if (view.isKindOfClass(UILabel::cls()))
    line << " '" << text(objc::cast<UILabel>(view).text()) << "'";
  for (const auto recognizer : view.gestureRecognizers().of<NSObject>())
    line << " " << recognizer.className().UTF8String();
  if (view.isKindOfClass(_UIBackdropView::cls())) {
    const auto backdrop = objc::cast<_UIBackdropView>(view);
    line << " style " << backdrop.style() << " "
         << backdrop.inputSettings().className().UTF8String();
  }
  out += line.str() + "\n";
  for (const auto part : view.subviews().of<UIView>())
    describe(part, indent + "  ", out);
}

TEST_F(AppearanceOrder, ApplyingTwiceChangesNothing) {
  play("Alpha");
  open_panel();
  for (const bool on : {true, false}) {
    write_preferences(text_entry("tint", "red") + text_entry("font_tint", "cyan") +
                      text_entry("blur", "dark") + switch_entry("square", on) +
                      switch_entry("cloud", on) + switch_entry("enable", on) +
                      switch_entry("legibility", on) + "<key>checked</key><true/>");
    const auto whole = [this] {
      advance(0.1);
      std::string out;
      describe(view("window"), "", out);
      describe(music_icon(), "", out);
      for (const auto& title : titles("songItems"))
        out += title + "\n";
      for (const auto& colours : {control_colours(), text_colours()})
        out += ::testing::PrintToString(colours);
      return out + ::testing::PrintToString(std::vector<bool>{is("enabled"), is("legibility"),
                                                              is("added"), is("isSearching")});
    };
    apply();
    const std::string once = whole();
    ASSERT_GT(once.size(), 2000u);
    apply();
    EXPECT_EQ(whole(), once);
  }
}

}  // namespace
}  // namespace host::test
