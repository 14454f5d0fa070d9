#include "host/quartzcore/animations/media_time.h"

#include "host/runtime/exported.h"
#include "host/runtime/run_loop.h"
#include "platform/QuartzCore/CAMediaTiming.h"

namespace host::quartzcore {

double media_time() {
  return RunLoop::has_main() ? RunLoop::main().now() : 0;
}

}  // namespace host::quartzcore

SONAVUE_EXPORTED double CACurrentMediaTime() {
  return host::quartzcore::media_time();
}
