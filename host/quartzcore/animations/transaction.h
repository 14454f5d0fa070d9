#pragma once

#include <memory>

#include "objc/block.h"
#include "platform/QuartzCore/CATransaction.h"

namespace host::quartzcore {

/// Shared by the animations of one transaction; its end is the moment when the completion is due.
class TransactionGroup {
 public:
  TransactionGroup() = default;
  TransactionGroup(const TransactionGroup&) = delete;
  TransactionGroup& operator=(const TransactionGroup&) = delete;
  /// Lets the completion run in the next turn of the run loop.
  ~TransactionGroup();

  objc::OwnedBlock<void()> completion;
};

enum class Actions { Enabled, Disabled };

/// What holds for property changes now: the innermost transaction's word.
Actions current_actions();
double current_animation_duration();
CAMediaTimingFunction current_timing_function();
/// The group that an animation added now belongs to.
std::shared_ptr<TransactionGroup> current_group();
/// Ends the transaction that every turn of the run loop has by itself.
void end_implicit_transaction();

/// Makes CATransaction, but for `flush`, which is the layers'.
void export_transaction();

}  // namespace host::quartzcore
