#include <cmath>
#include <map>

#include "platform/UIKit/UIScrollView.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

constexpr const char* kControls[] = {"back", "play", "next", "container1"};

struct Screen {
  const char* model;
  CGFloat divisor;
  bool sinks;
};

void PrintTo(const Screen& screen, std::ostream* out) {
  *out << screen.model;
}

/// The open panel of a phone that plays a song, whose pages are turned.
class PageScrolling : public PanelTest {
 protected:
  explicit PageScrolling(std::string_view model = kDefaultDevice) : PanelTest(model) {}

  void SetUp() override {
    launch();
    play("Alpha");
    open_panel();
    for (const char* control : kControls)
      rest_[control] = frame(control);
    twin_ = frame("music");
    icon_ = music_icon().frame();
  }

  UIScrollView pages() const { return global<UIScrollView>("container"); }
  CGFloat x() const { return pages().contentOffset().x; }
  /// Touches the pages as at the start of every page turn, so that the positions are saved.
  void begin_drag_of_pages() {
    hold({screen().width / 2, middle_of(view("container")).y});
    move_by(-12, 0);
  }
  void save_positions() {
    begin_drag_of_pages();
    // Rest, so that the release is not a flick.
    advance(0.5);
    lift();
    settle();
    ASSERT_EQ(x(), 0);
  }
  void turn_page(int direction) {
    const CGFloat middle = screen().width / 2;
    const CGFloat y = middle_of(view("container")).y;
    drag({middle + direction * 0.35 * screen().width, y},
         {middle - direction * 0.35 * screen().width, y}, 0.2);
    lift();
    settle();
  }

  /// Expects the controls at the same place on the screen for every offset, but lower by `fall`.
  void expect_controls_at(CGFloat offset, CGFloat fall) const {
    const CGFloat width = screen().width;
    const std::map<std::string, CGFloat> places = {
        {"next", offset + width / 6 + 2 * width / 3 - 40},
        {"play", offset + (width - frame("play").size.width) / 2},
        {"back", offset + width / 6},
        {"container1", offset + (width - frame("container1").size.width) / 2}};
    for (const auto& [control, place] : places) {
      const CGRect before = rest_.at(control);
      EXPECT_THAT(frame(control.c_str()),
                  IsNear(CGRect{{place, before.origin.y + fall}, before.size}))
          << control << " at " << offset;
    }
  }
  void expect_icon_raised_by(CGFloat rise) const {
    EXPECT_THAT(frame("music"),
                IsNear(CGRect{{twin_.origin.x, twin_.origin.y - rise}, twin_.size}));
    EXPECT_THAT(music_icon().frame(),
                IsNear(CGRect{{icon_.origin.x, icon_.origin.y - rise}, icon_.size}));
  }

  std::map<std::string, CGRect> rest_;
  CGRect twin_;
  CGRect icon_;
};

class EveryPageScrolling : public PageScrolling, public ::testing::WithParamInterface<Screen> {
 protected:
  EveryPageScrolling() : PageScrolling(GetParam().model) {}
};

std::string name_of_screen(const ::testing::TestParamInfo<Screen>& info) {
  std::string name = info.param.model;
  name[name.find(',')] = '_';
  return name;
}

// The iPad also counts as fourth generation.
INSTANTIATE_TEST_SUITE_P(, EveryPageScrolling,
                         ::testing::Values(Screen{"iPhone4,1", 3.5, false},
                                           Screen{"iPhone5,1", 3.5, true},
                                           Screen{"iPhone7,2", 3.5, true},
                                           Screen{"iPhone7,1", 4.0, true},
                                           Screen{"iPad4,1", 3.5, false}),
                         name_of_screen);

TEST_P(EveryPageScrolling, KeepsTheControlsInPlaceSinksThemAndRaisesTheIcon) {
  const auto [model, divisor, sinks] = GetParam();
  save_positions();
  const CGFloat width = screen().width;
  for (const CGFloat offset : {0.0, 1.0, width / 2, width, 1.5 * width, 2 * width, -30.0, 0.0}) {
    pages().setContentOffset({offset, 0});
    const CGFloat root = std::sqrt(std::abs(offset));
    expect_controls_at(offset, sinks ? divisor * root : 0);
    expect_icon_raised_by(root / divisor);
  }
}

TEST_P(EveryPageScrolling, ARealTurnEndsWhereTheFormulasSay) {
  const auto [model, divisor, sinks] = GetParam();
  turn_page(1);
  const CGFloat width = screen().width;
  ASSERT_EQ(x(), width);
  expect_controls_at(width, sinks ? divisor * std::sqrt(width) : 0);
  expect_icon_raised_by(std::sqrt(width) / divisor);
  turn_page(1);
  ASSERT_EQ(x(), 2 * width);
  expect_controls_at(2 * width, sinks ? divisor * std::sqrt(2 * width) : 0);
  turn_page(-1);
  turn_page(-1);
  ASSERT_EQ(x(), 0);
  expect_controls_at(0, 0);
  expect_icon_raised_by(0);
}

class Pages : public PageScrolling {};

TEST_F(Pages, ADragFromTheArtworkSavesThePositions) {
  for (const char* place : {"firstBack1", "firstPlay1", "firstNext1", "firstContainer1"})
    global<float>(place) = -1;
  global<CGRect>("firstMusic") = {};
  global<CGRect>("firstMusicIcon") = {};
  begin_drag_of_pages();
  EXPECT_THAT(static_cast<CGFloat>(global<float>("firstBack1")), IsNear(rest_["back"].origin.y));
  EXPECT_THAT(static_cast<CGFloat>(global<float>("firstPlay1")), IsNear(rest_["play"].origin.y));
  EXPECT_THAT(static_cast<CGFloat>(global<float>("firstNext1")), IsNear(rest_["next"].origin.y));
  EXPECT_THAT(static_cast<CGFloat>(global<float>("firstContainer1")),
              IsNear(rest_["container1"].origin.y));
  EXPECT_EQ(global<CGRect>("firstMusic"), twin_);
  EXPECT_EQ(global<CGRect>("firstMusicIcon"), icon_);
  lift();
}

TEST_F(Pages, PositionsSavedWhileTheControlsMoveAreNotShiftedAgain) {
  media().togglePlayPause();
  ASSERT_GE(seconds_until([this] { return is("hide"); }), 0);
  begin_drag_of_pages();
  advance(0.5);
  lift();
  settle();
  ASSERT_EQ(x(), 0);
  EXPECT_THAT(frame("play").origin.y, IsNear(rest_["play"].origin.y - 45));
  EXPECT_THAT(static_cast<CGFloat>(global<float>("firstPlay1")), IsNear(frame("play").origin.y));
}

TEST_F(Pages, ADragFromAnotherPageSavesNothing) {
  turn_page(1);
  const float places[] = {global<float>("firstBack1"), global<float>("firstPlay1"),
                          global<float>("firstNext1"), global<float>("firstContainer1")};
  const CGRect twin = global<CGRect>("firstMusic");
  ASSERT_EQ(twin, twin_);
  turn_page(1);
  turn_page(-1);
  ASSERT_EQ(x(), screen().width);
  EXPECT_EQ(global<float>("firstBack1"), places[0]);
  EXPECT_EQ(global<float>("firstPlay1"), places[1]);
  EXPECT_EQ(global<float>("firstNext1"), places[2]);
  EXPECT_EQ(global<float>("firstContainer1"), places[3]);
  EXPECT_EQ(global<CGRect>("firstMusic"), twin);
  EXPECT_EQ(global<CGRect>("firstMusicIcon"), icon_);
  // Nor does one from between two pages, however near.
  pages().setContentOffset({0.5, 0});
  objc::send<>(pages().delegate(), "scrollViewWillBeginDragging:"_sel, pages());
  EXPECT_EQ(global<float>("firstPlay1"), places[1]);
}

TEST_F(Pages, TheArtworksFrameDecidesWhichPageIsItsOwn) {
  // With the artwork moved aside by a quarter of the screen, this offset centres it.
  const CGFloat aside = screen().width / 4;
  const CGRect art = frame("art");
  view("art").setFrame({{art.origin.x + aside, art.origin.y}, art.size});
  const auto begin_at = [&](CGFloat offset) {
    pages().setContentOffset({offset, 0});
    global<float>("firstPlay1") = -1;
    objc::send<>(pages().delegate(), "scrollViewWillBeginDragging:"_sel, pages());
    return static_cast<CGFloat>(global<float>("firstPlay1"));
  };
  const CGFloat recorded = begin_at(aside);
  EXPECT_NE(recorded, -1);
  EXPECT_THAT(recorded, IsNear(frame("play").origin.y));
  EXPECT_EQ(begin_at(0), -1);
}

TEST_F(Pages, TheBannerMovesTheTwinButNotTheIcon) {
  save_positions();
  global<BOOL>("isBanner") = YES;
  pages().setContentOffset({screen().width, 0});
  EXPECT_EQ(music_icon().frame(), icon_);
  EXPECT_THAT(frame("music").origin.y, IsNear(twin_.origin.y - std::sqrt(screen().width) / 3.5));
  expect_controls_at(screen().width, 3.5 * std::sqrt(screen().width));
}

TEST_F(Pages, ControlsStayInPlaceOnTheScreenWhilePagesMove) {
  begin_drag_of_pages();
  const CGFloat play = middle_of(view("play")).x;
  const CGFloat back = middle_of(view("back")).x;
  CGFloat moved = 0;
  for (int step = 0; step < 10; ++step) {
    move_by(-15, 0);
    EXPECT_GT(x(), moved);
    moved = x();
    EXPECT_THAT(middle_of(view("play")).x, IsNear(play));
    EXPECT_THAT(middle_of(view("back")).x, IsNear(back));
  }
  lift();
}

TEST_F(Pages, ControlsWorkOnEveryPage) {
  turn_page(1);
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Bravo");
  turn_page(1);
  advance(global<float>("time_wait"));
  tap_on(view("next"));
  EXPECT_EQ(sounding(), "Charlie");
}

}  // namespace
}  // namespace host::test
