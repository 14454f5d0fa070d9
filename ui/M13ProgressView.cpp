#include "ui/M13ProgressView.h"

#include "objc/ref.h"

namespace sonavue {
namespace {

class ProgressView : public objc::Implementation<ProgressView, M13ProgressView> {
 public:
  using Implementation::Implementation;

  UIColor primary_color() { return primary_color_.get(); }
  void set_primary_color(UIColor color) { primary_color_.reset(color); }
  UIColor secondary_color() { return secondary_color_.get(); }
  void set_secondary_color(UIColor color) { secondary_color_.reset(color); }
  BOOL indeterminate() { return indeterminate_; }
  void set_indeterminate(BOOL indeterminate) { indeterminate_ = indeterminate; }
  double animation_duration() { return animation_duration_; }
  void set_animation_duration(double seconds) { animation_duration_ = seconds; }
  float progress() { return progress_; }
  void set_progress(float progress, BOOL) { progress_ = progress; }
  void perform_action(NSInteger, BOOL) {}

 private:
  objc::Ref<UIColor> primary_color_;
  objc::Ref<UIColor> secondary_color_;
  double animation_duration_ = 0;
  float progress_ = 0;
  BOOL indeterminate_ = NO;
};

}  // namespace

void make_progress_view() {
  objc::make_own_class<M13ProgressView>([](objc::ClassBuilder& builder) {
    builder.state<ProgressView>()
        .method<&ProgressView::primary_color>("primaryColor")
        .method<&ProgressView::set_primary_color>("setPrimaryColor:")
        .method<&ProgressView::secondary_color>("secondaryColor")
        .method<&ProgressView::set_secondary_color>("setSecondaryColor:")
        .method<&ProgressView::indeterminate>("indeterminate")
        .method<&ProgressView::set_indeterminate>("setIndeterminate:")
        .method<&ProgressView::animation_duration>("animationDuration")
        .method<&ProgressView::set_animation_duration>("setAnimationDuration:")
        .method<&ProgressView::progress>("progress")
        .method<&ProgressView::set_progress>("setProgress:animated:")
        .method<&ProgressView::perform_action>("performAction:animated:");
  });
}

}  // namespace sonavue
