#include "host/runtime/exported.h"
#include "host/runtime/run_loop.h"
#include "platform/QuartzCore/CAMediaTiming.h"

SONAVUE_EXPORTED double CACurrentMediaTime() {
  return host::RunLoop::has_main() ? host::RunLoop::main().now() : 0;
}
