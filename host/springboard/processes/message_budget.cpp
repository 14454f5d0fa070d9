#include "host/springboard/processes/message_budget.h"

namespace host::springboard {

void MessageBudget::count(double now) {
  if (now >= second_began_ + 1) {
    const bool follows = now < second_began_ + 2;
    const bool was_flooded = in_this_second_ > kMessagesPerSecond;
    flooded_seconds_ = follows && was_flooded ? flooded_seconds_ + 1 : 0;
    second_began_ = now;
    in_this_second_ = 0;
  }
  ++in_this_second_;
}

}  // namespace host::springboard
