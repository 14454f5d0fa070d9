#pragma once

#include "objc/block.h"

struct dispatch_queue_s;
using dispatch_queue_t = dispatch_queue_s*;

extern "C" {
extern dispatch_queue_s _dispatch_main_q;
void dispatch_async(dispatch_queue_t queue, const void* block);
}

/// The queue whose blocks run on the main thread, each in a later turn of the main run loop.
inline dispatch_queue_t dispatch_get_main_queue() {
  return &_dispatch_main_q;
}

/// Copies the block, returns at once, and runs the copy when its turn in the queue comes.
inline void dispatch_async(dispatch_queue_t queue, objc::Block<void()> block) {
  dispatch_async(queue, block.get());
}
