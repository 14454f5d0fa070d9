#include "ui/M13ProgressViewRing.h"

#include "ui/progress_view_ring.h"

namespace sonavue {
namespace {

using Ring = ProgressViewRing;

void add_making_and_properties(objc::ClassBuilder& builder) {
  builder.method<&Ring::init>("init")
      .method<&Ring::init_with_frame>("initWithFrame:")
      .method<&Ring::init_with_coder>("initWithCoder:")
      .method<&Ring::set_up>("setup")
      .method<&Ring::set_primary_color>("setPrimaryColor:")
      .method<&Ring::set_secondary_color>("setSecondaryColor:")
      .method<&Ring::background_ring_width>("backgroundRingWidth")
      .method<&Ring::set_background_ring_width>("setBackgroundRingWidth:")
      .method<&Ring::progress_ring_width>("progressRingWidth")
      .method<&Ring::set_progress_ring_width>("setProgressRingWidth:")
      .method<&Ring::background_ring_width_overriden>("backgroundRingWidthOverriden")
      .method<&Ring::progress_ring_width_overriden>("progressRingWidthOverriden")
      .method<&Ring::show_percentage>("showPercentage")
      .method<&Ring::set_show_percentage>("setShowPercentage:")
      .method<&Ring::percentage_formatter>("percentageFormatter")
      .method<&Ring::percentage_label>("percentageLabel")
      .method<&Ring::background_layer>("backgroundLayer")
      .method<&Ring::progress_layer>("progressLayer")
      .method<&Ring::icon_layer>("iconLayer");
}

void add_drawing_and_progress(objc::ClassBuilder& builder) {
  builder.method<&Ring::set_frame>("setFrame:")
      .method<&Ring::layout_subviews>("layoutSubviews")
      .method<&Ring::draw_rect>("drawRect:")
      .method<&Ring::draw_background>("drawBackground")
      .method<&Ring::draw_icon>("drawIcon")
      .method<&Ring::draw_progress>("drawProgress")
      .method<&Ring::draw_success>("drawSuccess")
      .method<&Ring::draw_failure>("drawFailure")
      .method<&Ring::set_progress>("setProgress:animated:")
      .method<&Ring::animate_progress>("animateProgress:")
      .method<&Ring::display_link>("displayLink")
      .method<&Ring::animation_from_value>("animationFromValue")
      .method<&Ring::animation_to_value>("animationToValue")
      .method<&Ring::animation_start_time>("animationStartTime")
      .method<&Ring::set_indeterminate>("setIndeterminate:")
      .method<&Ring::perform_action>("performAction:animated:")
      .method<&Ring::current_action>("currentAction")
      .method<&Ring::show_animation>("showAnimation")
      .method<&Ring::hide_animation>("hideAnimation");
}

}  // namespace

void make_progress_view_ring() {
  objc::make_own_class<M13ProgressViewRing>([](objc::ClassBuilder& builder) {
    builder.state<Ring>();
    add_making_and_properties(builder);
    add_drawing_and_progress(builder);
  });
}

}  // namespace sonavue
