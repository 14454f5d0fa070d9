#include "host/runtime/exported.h"
#include "host/runtime/run_loop.h"
#include "objc/block.h"

// The main queue of the platform's C interface: a block submitted to it runs in the next turn of
// the main run loop.

struct dispatch_queue_s {
  char unused;
};

extern "C" {
__attribute__((visibility("default"), used)) dispatch_queue_s _dispatch_main_q{};
}

SONAVUE_EXPORTED void dispatch_async(dispatch_queue_s* queue, const void* block) {
  if (queue != &_dispatch_main_q || !block || !host::RunLoop::has_main()) return;
  const objc::OwnedBlock<void()> kept{objc::Block<void()>(block)};
  host::RunLoop::main().perform([kept] { kept.get()(); });
}
