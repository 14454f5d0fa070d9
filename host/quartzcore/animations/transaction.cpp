#include "host/quartzcore/animations/transaction.h"

#include <vector>

#include "host/runtime/run_loop.h"
#include "objc/class_builder.h"
#include "objc/ref.h"

namespace host::quartzcore {
namespace {

// The platform's duration, in seconds, of a change without an explicit one.
constexpr double kStandardDuration = 0.25;

struct Level {
  Actions actions = Actions::Enabled;
  double duration = kStandardDuration;
  objc::Ref<CAMediaTimingFunction> timing;
  std::shared_ptr<TransactionGroup> group = std::make_shared<TransactionGroup>();
};

std::vector<Level>& levels() {
  // The first level is the turn's implicit transaction.
  static std::vector<Level> stack(1);
  return stack;
}

Level& innermost() {
  return levels().back();
}

void begin(objc::Object) {
  Level inner;
  inner.actions = innermost().actions;
  inner.duration = innermost().duration;
  inner.timing = innermost().timing;
  levels().push_back(std::move(inner));
}

void commit(objc::Object) {
  if (levels().size() > 1) {
    levels().pop_back();
  } else {
    end_implicit_transaction();
  }
}

BOOL disable_actions(objc::Object) {
  return innermost().actions == Actions::Disabled;
}
void set_disable_actions(objc::Object, BOOL disable) {
  innermost().actions = disable ? Actions::Disabled : Actions::Enabled;
}
double animation_duration(objc::Object) {
  return innermost().duration;
}
void set_animation_duration(objc::Object, double seconds) {
  innermost().duration = seconds;
}
CAMediaTimingFunction animation_timing_function(objc::Object) {
  return innermost().timing.get();
}
void set_animation_timing_function(objc::Object, CAMediaTimingFunction function) {
  innermost().timing.reset(function);
}
void set_completion_block(objc::Object, objc::Block<void()> completion) {
  // Animations added earlier keep their group, as on the platform.
  Level& level = innermost();
  level.group = std::make_shared<TransactionGroup>();
  level.group->completion = objc::OwnedBlock<void()>(completion);
}

}  // namespace

TransactionGroup::~TransactionGroup() {
  if (!completion || !RunLoop::has_main()) return;
  RunLoop::main().perform([block = std::move(completion)] { block.get()(); });
}

Actions current_actions() {
  return innermost().actions;
}
double current_animation_duration() {
  return innermost().duration;
}
CAMediaTimingFunction current_timing_function() {
  return innermost().timing.get();
}
std::shared_ptr<TransactionGroup> current_group() {
  return innermost().group;
}

void end_implicit_transaction() {
  levels().front() = Level();
}

void export_transaction() {
  objc::ClassBuilder("CATransaction", "NSObject")
      .class_method<&begin>("begin")
      .class_method<&commit>("commit")
      .class_method<&disable_actions>("disableActions")
      .class_method<&set_disable_actions>("setDisableActions:")
      .class_method<&animation_duration>("animationDuration")
      .class_method<&set_animation_duration>("setAnimationDuration:")
      .class_method<&animation_timing_function>("animationTimingFunction")
      .class_method<&set_animation_timing_function>("setAnimationTimingFunction:")
      .class_method<&set_completion_block>("setCompletionBlock:")
      .finish();
}

}  // namespace host::quartzcore
