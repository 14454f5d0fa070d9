// A gesture listener that does not return from its event until another process opens the other end
// of the pipe that the environment names.

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

#include "objc/class_builder.h"
#include "platform/Activator/LAActivator.h"

namespace {

struct Lingerer : objc::Bound<Lingerer, "Lingerer", NSObject> {};

void receive_event(Lingerer, LAActivator, LAEvent) {
  const char* pipe = std::getenv("LINGERER_PIPE");
  const int end = pipe ? open(pipe, O_RDONLY | O_CLOEXEC) : -1;
  if (end >= 0) close(end);
}

[[gnu::constructor]] void load() {
  objc::ClassBuilder("Lingerer", "NSObject")
      .method<&receive_event>("activator:receiveEvent:")
      .finish();
  LAActivator::sharedInstance().registerListener(Lingerer::alloc().init(), "test.lingerer"_ns);
}

}  // namespace
