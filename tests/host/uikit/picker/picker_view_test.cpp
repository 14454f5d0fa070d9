#include <map>

#include "platform/UIKit/UIPickerView.h"
#include "tests/host/uikit/support/page_test.h"

namespace host::test {
namespace {

struct TestPickerRows : objc::Bound<TestPickerRows, "TestPickerRows", NSObject> {};

class PickerRows : public objc::Implementation<PickerRows, TestPickerRows> {
 public:
  using Implementation::Implementation;

  NSInteger components(UIPickerView) { return component_count; }
  NSInteger rows(UIPickerView, NSInteger) { return 13; }
  NSString title(UIPickerView, NSInteger row, NSInteger) {
    return NSString::stringWithUTF8String(("Row " + std::to_string(row)).c_str());
  }
  void selected(UIPickerView, NSInteger row, NSInteger component) {
    UIKitTest::events().push_back("row " + std::to_string(row) + " of " +
                                  std::to_string(component));
  }

  NSInteger component_count = 1;
};

class PickerTest : public PageTest {
 protected:
  PickerTest() {
    if (!TestPickerRows::cls()) {
      objc::ClassBuilder("TestPickerRows", "NSObject")
          .state<PickerRows>()
          .method<&PickerRows::components>("numberOfComponentsInPickerView:")
          .method<&PickerRows::rows>("pickerView:numberOfRowsInComponent:")
          .method<&PickerRows::title>("pickerView:titleForRow:forComponent:")
          .method<&PickerRows::selected>("pickerView:didSelectRow:inComponent:")
          .finish();
    }
    rows = objc::Ref<TestPickerRows>::adopt(TestPickerRows::alloc().init());
    picker = UIPickerView::alloc().initWithFrame({0, 300, 375, 487}).autorelease();
    picker.setDataSource(rows.get());
    picker.setDelegate(rows.get());
    window.addSubview(picker);
    advance(0.1);
  }
  ~PickerTest() override {
    picker.setDataSource(nil);
    picker.setDelegate(nil);
    picker.removeFromSuperview();
  }

  UIScrollView wheel() const { return objc::cast<UIScrollView>(picker.subviews().firstObject()); }

  objc::Ref<TestPickerRows> rows;
  UIPickerView picker;
  const CGPoint middle{187, 408};
};

TEST_F(PickerTest, IsAsTallAsPickersAreAndBeginsWithItsFirstRow) {
  EXPECT_EQ(picker.frame(), (CGRect{0, 300, 375, 216}));
  EXPECT_EQ(picker.numberOfComponents(), 1);
  EXPECT_EQ(picker.numberOfRowsInComponent(0), 13);
  EXPECT_EQ(picker.selectedRowInComponent(0), 0);
  EXPECT_TRUE(shows(picker, "Row 0"_ns));
  EXPECT_FALSE(shows(picker, "Row 9"_ns)) << "on the wheel's back";
  EXPECT_EQ(told(), Events{});
}

TEST_F(PickerTest, AFingerTurnsTheWheelWhichRestsOnARowAndReportsItOnce) {
  press(middle);
  glide(middle, {187, 300}, 0.5);
  EXPECT_EQ(told(), Events{});
  advance(0.3);
  lift({187, 300});
  advance(2);
  const NSInteger row = picker.selectedRowInComponent(0);
  EXPECT_EQ(row, 3);
  EXPECT_NEAR(wheel().contentOffset().y, 3 * 32 - 92, 0.01) << "exactly in the middle";
  EXPECT_EQ(told(), Events{"row 3 of 0"});
  photograph("picker", clock.now());
}

TEST_F(PickerTest, AFlingRunsOnAndStopsExactlyOnARow) {
  press(middle);
  glide(middle, {187, 380}, 0.06);
  lift({187, 380});
  advance(4);
  const NSInteger row = picker.selectedRowInComponent(0);
  EXPECT_GT(row, 3);
  EXPECT_LT(row, 12) << "not by the wheel's end";
  EXPECT_NEAR(wheel().contentOffset().y, 32.0 * static_cast<double>(row) - 92, 0.01);
  EXPECT_EQ(told(), Events{"row " + std::to_string(row) + " of 0"});
}

TEST_F(PickerTest, ATapBringsARowToTheMiddle) {
  tap({187, 408 + 33});
  advance(1);
  EXPECT_EQ(picker.selectedRowInComponent(0), 1);
  EXPECT_EQ(told(), Events{"row 1 of 0"});
  tap({187, 408});
  advance(1);
  EXPECT_EQ(told(), Events{}) << "it is chosen already";
  tap({187, 408 - 95});
  advance(1);
  EXPECT_EQ(told(), Events{}) << "there is no row";
}

TEST_F(PickerTest, RowsLieOnARoundRim) {
  picker.selectRow(5, 0, NO);
  advance(0.1);
  std::map<std::string, CGFloat> heights;
  for (const UIView part : wheel().subviews().of<UIView>()) {
    if (!part.isKindOfClass(UILabel::cls())) continue;
    heights[objc::cast<UILabel>(part).text().UTF8String()] =
        part.convertPointToView({0, part.bounds().size.height / 2}, nil).y;
  }
  const CGFloat near = heights["Row 6"] - heights["Row 5"];
  const CGFloat far = heights["Row 8"] - heights["Row 7"];
  EXPECT_NEAR(heights["Row 5"], 408, 0.5);
  EXPECT_NEAR(near, 32, 1);
  EXPECT_GT(far, 5);
  EXPECT_LT(far, near - 4) << "foreshortened";
  tap({187, heights["Row 8"]});
  advance(1);
  EXPECT_EQ(picker.selectedRowInComponent(0), 8) << "the row seen there is the row touched";
}

TEST_F(PickerTest, SelectingByProgramTellsNoDelegate) {
  picker.selectRow(9, 0, YES);
  EXPECT_EQ(picker.selectedRowInComponent(0), 9);
  advance(2);
  EXPECT_TRUE(shows(picker, "Row 9"_ns));
  picker.selectRow(2, 0, NO);
  advance(0.1);
  EXPECT_TRUE(shows(picker, "Row 2"_ns));
  picker.selectRow(99, 0, NO);
  EXPECT_EQ(picker.selectedRowInComponent(0), 12);
  EXPECT_EQ(picker.selectedRowInComponent(4), -1);
  EXPECT_EQ(told(), Events{});
}

TEST_F(PickerTest, BeyondItsEndsTheWheelSpringsBack) {
  press(middle);
  glide(middle, {187, 520}, 0.4);
  advance(0.3);
  lift({187, 520});
  advance(2);
  EXPECT_EQ(picker.selectedRowInComponent(0), 0);
  EXPECT_EQ(told(), Events{});
}

TEST_F(PickerTest, WheelsAreSideBySideAndTurnIndependently) {
  objc::state_of<PickerRows>(rows.get()).component_count = 2;
  picker.reloadAllComponents();
  advance(0.1);
  tap({280, 408 + 33});
  advance(1);
  EXPECT_EQ(told(), Events{"row 1 of 1"});
  EXPECT_EQ(picker.selectedRowInComponent(0), 0);
  EXPECT_EQ(picker.selectedRowInComponent(1), 1);
}

}  // namespace
}  // namespace host::test
