#include "settings/wizard/choice_pickers.h"

#include "settings/choices.h"
#include "settings/preferences.h"

namespace sonavue {
namespace {

/// Data source and delegate of a wheel whose rows are the texts of `choices`.
template <class Picker, NSArray (*choices)()>
class ChoicePicker : public objc::Implementation<ChoicePicker<Picker, choices>, Picker> {
  using Base = objc::Implementation<ChoicePicker<Picker, choices>, Picker>;

 public:
  using Base::Base;

  static void make() {
    objc::make_own_class<Picker>([](objc::ClassBuilder& builder) {
      builder.state<ChoicePicker>()
          .template method<&ChoicePicker::set_key>("setKey:")
          .template method<&ChoicePicker::components>("numberOfComponentsInPickerView:")
          .template method<&ChoicePicker::rows>("pickerView:numberOfRowsInComponent:")
          .template method<&ChoicePicker::title>("pickerView:titleForRow:forComponent:")
          .template method<&ChoicePicker::chosen>("pickerView:didSelectRow:inComponent:");
    });
  }

  void set_key(NSString key) { key_ = key; }
  NSInteger components(UIPickerView) { return 1; }
  NSInteger rows(UIPickerView, NSInteger) {
    return static_cast<NSInteger>(translated(choices()).count());
  }
  NSString title(UIPickerView, NSInteger row, NSInteger) {
    return objc::cast<NSString>(translated(choices()).objectAtIndex(static_cast<NSUInteger>(row)));
  }
  void chosen(UIPickerView, NSInteger row, NSInteger) {
    store(choices().objectAtIndex(static_cast<NSUInteger>(row)), PreferenceKey(key_));
  }

 private:
  // Not retained: it is one of the constant keys.
  NSString key_;
};

}  // namespace

void make_choice_pickers() {
  ChoicePicker<Tint, &color_choices>::make();
  ChoicePicker<Play, &ring_choices>::make();
}

}  // namespace sonavue
