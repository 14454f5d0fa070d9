#include "host/uikit/picker/picker_view.h"

#include "host/runtime/on_pixel.h"
#include "platform/UIKit/UIWindow.h"

namespace host::uikit {
namespace {

constexpr CGFloat kHeights[] = {162, 180, 216};
constexpr CGFloat kDefaultWidth = 320;
constexpr CGFloat kPickerLineAlpha = 0.22;

/// Returns the tallest of the platform's heights that is not taller than `wanted`; the shortest
/// when all are taller.
CGFloat nearest_height(CGFloat wanted) {
  CGFloat height = kHeights[0];
  for (const CGFloat one : kHeights)
    if (one <= wanted) height = one;
  return wanted > 0 ? height : kHeights[2];
}

CGRect fitted(CGRect frame) {
  if (frame.size.width <= 0) frame.size.width = kDefaultWidth;
  frame.size.height = nearest_height(frame.size.height);
  return frame;
}

objc::Ref<UIView> add_line(UIView picker) {
  auto line = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({}));
  line->setUserInteractionEnabled(NO);
  line->setBackgroundColor(UIColor::colorWithWhite(0, kPickerLineAlpha));
  picker.addSubview(line.get());
  return line;
}

}  // namespace

// A wheel may still turn after its picker is gone.
PickerView::~PickerView() {
  for (const auto& one : wheels_)
    objc::state_of<PickerWheel>(one.get()).forget_picker();
}

UIView PickerView::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, fitted(frame))) return nil;
  self.setClipsToBounds(YES);
  upper_line_ = add_line(self);
  lower_line_ = add_line(self);
  return self;
}

void PickerView::set_frame(CGRect frame) {
  super<>("setFrame:"_sel, fitted(frame));
  self.setNeedsLayout();
}

CGSize PickerView::size_that_fits(CGSize) {
  return {kDefaultWidth, kHeights[2]};
}

void PickerView::set_data_source(objc::Object source) {
  data_source_ = source;
  loaded_ = false;
  self.setNeedsLayout();
}

void PickerView::set_delegate(objc::Object delegate) {
  delegate_ = delegate;
  loaded_ = false;
  self.setNeedsLayout();
}

void PickerView::load_if_needed() {
  if (!loaded_) self.reloadAllComponents();
}

void PickerView::reload() {
  loaded_ = true;
  const auto source = objc::cast<UIPickerViewDataSource>(data_source_);
  const NSInteger count = source ? source.numberOfComponentsInPickerView(self) : 0;
  while (wheels_.size() > static_cast<std::size_t>(count)) {
    wheels_.back()->removeFromSuperview();
    wheels_.pop_back();
  }
  while (wheels_.size() < static_cast<std::size_t>(count)) {
    const auto component = static_cast<NSInteger>(wheels_.size());
    wheels_.push_back(
        PickerWheel::make([this, component](NSInteger row) { chosen(row, component); }));
    self.insertSubview(wheels_.back().get(), 0);
  }
  for (NSInteger component = 0; component < count; ++component) {
    PickerWheel::Rows rows{source.numberOfRowsInComponent(self, component),
                           [this, component](NSInteger row) { return title(row, component); }};
    wheel(component)->load(std::move(rows));
  }
  self.setNeedsLayout();
}

void PickerView::layout_subviews() {
  super<>("layoutSubviews"_sel);
  load_if_needed();
  const CGSize size = self.bounds().size;
  const CGFloat width = size.width / static_cast<CGFloat>(std::max<std::size_t>(wheels_.size(), 1));
  CGFloat left = 0;
  for (const auto& one : wheels_) {
    const CGRect place{left, 0, width, size.height};
    if (one->frame() != place) one->setFrame(place);
    left += width;
  }
  upper_line_->setFrame({0, on_pixel((size.height - kPickerRow) / 2), size.width, hairline()});
  lower_line_->setFrame({0, on_pixel((size.height + kPickerRow) / 2), size.width, hairline()});
}

PickerWheel* PickerView::wheel(NSInteger component) {
  if (component < 0 || component >= static_cast<NSInteger>(wheels_.size())) return nullptr;
  return &objc::state_of<PickerWheel>(wheels_[static_cast<std::size_t>(component)].get());
}

NSInteger PickerView::number_of_components() {
  load_if_needed();
  return static_cast<NSInteger>(wheels_.size());
}

NSInteger PickerView::number_of_rows(NSInteger component) {
  load_if_needed();
  const PickerWheel* found = wheel(component);
  return found ? found->count() : 0;
}

void PickerView::select(NSInteger row, NSInteger component, BOOL animated) {
  load_if_needed();
  self.layoutIfNeeded();
  if (PickerWheel* found = wheel(component)) found->choose(row, animated && self.window());
}

NSInteger PickerView::selected(NSInteger component) {
  load_if_needed();
  const PickerWheel* found = wheel(component);
  return found ? found->chosen() : -1;
}

NSString PickerView::title(NSInteger row, NSInteger component) const {
  const auto delegate = objc::cast<UIPickerViewDelegate>(delegate_);
  if (!delegate.respondsToSelector("pickerView:titleForRow:forComponent:"_sel)) return nil;
  return delegate.titleForRow(self, row, component);
}

void PickerView::chosen(NSInteger row, NSInteger component) const {
  const auto delegate = objc::cast<UIPickerViewDelegate>(delegate_);
  if (delegate.respondsToSelector("pickerView:didSelectRow:inComponent:"_sel))
    delegate.didSelectRow(self, row, component);
}

void export_picker_view() {
  using Picker = PickerView;
  objc::ClassBuilder("UIPickerView", "UIView")
      .state<Picker>()
      .method<&Picker::init_with_frame>("initWithFrame:")
      .method<&Picker::set_frame>("setFrame:")
      .method<&Picker::size_that_fits>("sizeThatFits:")
      .method<&Picker::layout_subviews>("layoutSubviews")
      .method<&Picker::data_source>("dataSource")
      .method<&Picker::set_data_source>("setDataSource:")
      .method<&Picker::delegate>("delegate")
      .method<&Picker::set_delegate>("setDelegate:")
      .method<&Picker::number_of_components>("numberOfComponents")
      .method<&Picker::number_of_rows>("numberOfRowsInComponent:")
      .method<&Picker::reload>("reloadAllComponents")
      .method<&Picker::select>("selectRow:inComponent:animated:")
      .method<&Picker::selected>("selectedRowInComponent:")
      .finish();
}

}  // namespace host::uikit
