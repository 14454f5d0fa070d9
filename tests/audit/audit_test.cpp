#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "device/check/platform.h"
#include "host/process/device_images.h"
#include "host/runtime/run_loop.h"
#include "objc/binding_table.h"
#include "objc/encoding.h"
#include "tests/audit/all_bindings.h"
#include "ui/M13ProgressView.h"
#include "ui/M13ProgressViewRing.h"

// Every binding is compared with this process: the class exists and responds to the selector, with
// the same types. It is also compared with the facts about the phone's systems: one of them has it,
// with the same types.

namespace {

// Handles for delegate protocols, which no class implements.
bool is_protocol(std::string_view name) {
  return name.ends_with("Delegate") || name.ends_with("DataSource") || name == "LAListener";
}

sonavue::device::Message message_of(const objc::Binding& binding) {
  return {binding.class_name, (binding.of_class ? "+" : "-") + std::string(binding.selector),
          binding.encoding};
}

const sonavue::device::Knowledge& knowledge() {
  static const auto known = sonavue::device::read_knowledge(SOURCE_FOLDER);
  return known;
}

/// A message whose existence is checked before it is sent may be missing.
bool is_guarded(const objc::Binding& binding) {
  return knowledge().lists.guarded.count(message_of(binding).name()) != 0;
}

void check(const objc::Binding& binding) {
  const objc::Class cls = objc_getClass(binding.class_name);
  ASSERT_TRUE(cls) << binding.class_name << " is bound and not implemented";
  const objc::Sel selector = sel_registerName(binding.selector);
  const objc::Method method = binding.of_class ? class_getClassMethod(cls, selector)
                                               : class_getInstanceMethod(cls, selector);
  const std::string name = message_of(binding).name();
  ASSERT_TRUE(method) << name << " is bound and not implemented";
  EXPECT_TRUE(objc::same_encoding(binding.encoding, method_getTypeEncoding(method)))
      << name << " is bound as " << binding.encoding << " and implemented as "
      << method_getTypeEncoding(method);
}

struct AuditTest : ::testing::Test {
  AuditTest() : loop(clock) {
    host::RunLoop::set_main(&loop);
    host::process::start_home_screen();
    for (const host::DeviceImage& image : host::process::device_images())
      host::load_device_image(image.path);
    sonavue::make_progress_view();
    sonavue::make_progress_view_ring();
  }
  ~AuditTest() override { host::RunLoop::set_main(nullptr); }

  host::SteppedClock clock;
  host::RunLoop loop;
};

TEST_F(AuditTest, EveryBindingIsImplementedWithTheSameTypes) {
  int checked = 0;
  for (const objc::Binding* at = objc::Binding::first; at; at = at->next) {
    if (is_protocol(at->class_name) || is_guarded(*at)) continue;
    check(*at);
    ++checked;
  }
  EXPECT_GT(checked, 500) << "the table of bindings is not what it should be";
}

TEST(Facts, ListEveryBinding) {
  const auto& known = knowledge();
  for (const objc::Binding* at = objc::Binding::first; at; at = at->next) {
    if (known.own.count(at->class_name) != 0) continue;
    EXPECT_TRUE(known.facts.class_named(at->class_name)) << at->class_name << " is a class of none";
    EXPECT_EQ(contradiction(known, message_of(*at)), "");
  }
}

}  // namespace
