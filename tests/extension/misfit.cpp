// A library that gets through its load, or does not, in the way that the environment names.

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>
#include <thread>

#include "objc/hook.h"
#include "objc/send.h"
#include "platform/Dispatch/dispatch_queue.h"

namespace {

constexpr useconds_t kSoon = 100'000;

[[noreturn]] void never_return() {
  for (;;)
    pause();
}

[[gnu::noinline]] void abort_soon() {
  usleep(kSoon);
  std::abort();
}

[[gnu::noinline]] void fault_soon() {
  // Not a null pointer: the sanitizers would end the process before the fault.
  void* forbidden = mmap(nullptr, sizeof(int), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  usleep(kSoon);
  *static_cast<volatile int*>(forbidden) = 1;
}

void turn_for_ever() {
  for (volatile bool forever = true; forever;) {
  }
}

/// Waits until another process opens the other end of a pipe.
void wait_for_pipe() {
  const char* pipe = std::getenv("MISFIT_PIPE");
  const int end = pipe ? open(pipe, O_RDONLY | O_CLOEXEC) : -1;
  if (end >= 0) close(end);
}

void wait_instead(objc::Id, objc::Sel, objc::Id) {
  wait_for_pipe();
}

void hang_in_the_launch() {
  objc::Imp before = nullptr;
  MSHookMessageEx(objc_getClass("SpringBoard"), "applicationDidFinishLaunching:"_sel,
                  reinterpret_cast<objc::Imp>(&wait_instead), &before);
}

[[gnu::constructor]] void load() {
  const char* text = std::getenv("MISFIT");
  const std::string_view way = text ? text : "";
  if (way == "exit") std::exit(0);
  if (way == "hang") never_return();
  if (way == "hang in the loop")
    dispatch_async(dispatch_get_main_queue(), objc::block([] { turn_for_ever(); }));
  if (way == "hang in the launch") hang_in_the_launch();
  if (way == "wait") wait_for_pipe();
  if (way == "abort later") std::thread(&abort_soon).detach();
  if (way == "fault later") std::thread(&fault_soon).detach();
}

}  // namespace
