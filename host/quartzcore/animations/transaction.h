#pragma once

#include <memory>

#include "objc/block.h"
#include "platform/QuartzCore/CATransaction.h"

namespace host::quartzcore {

/// Shared by the animations of one transaction. The completion is due when it is destroyed.
class TransactionGroup {
 public:
  TransactionGroup() = default;
  TransactionGroup(const TransactionGroup&) = delete;
  TransactionGroup& operator=(const TransactionGroup&) = delete;
  /// Schedules the completion for the next turn of the run loop.
  ~TransactionGroup();

  objc::OwnedBlock<void()> completion;
};

enum class Actions { Enabled, Disabled };

/// The innermost transaction's settings, which apply to property changes made now.
Actions current_actions();
double current_animation_duration();
CAMediaTimingFunction current_timing_function();
/// The group of an animation added now.
std::shared_ptr<TransactionGroup> current_group();
/// Ends the implicit transaction of the current turn of the run loop.
void end_implicit_transaction();

/// Registers CATransaction, except `flush`, which `export_layer_flush` adds.
void export_transaction();

}  // namespace host::quartzcore
