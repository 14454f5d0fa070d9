#include "host/foundation/notifications.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <vector>

#include "host/basics/ascii.h"
#include "host/basics/descriptor.h"
#include "host/files/folder.h"
#include "host/foundation/device_paths.h"
#include "host/runtime/log.h"
#include "host/runtime/run_loop.h"

// A notification is a file of the device that is opened for writing and closed: the system tells
// every process that watches the folder. The phone needs no connections between its processes for
// it, and a process that observes nothing is not woken.

namespace host::foundation {
namespace {

constexpr std::string_view kNotifications = "/var/mobile/Library/Caches/notifications";
// Keeps the names "." and ".." from being folders.
constexpr std::string_view kPrefix = "posted-";

std::string file_name(std::string_view name) {
  std::string made(kPrefix);
  for (const char letter : ascii_of(name))
    made += letter == '/' ? std::string("%2f") : std::string(1, letter);
  return made;
}

struct Observation {
  const void* owner;
  std::string name;
  std::function<void()> work;
};

/// The observations of this process, and its watch over the folder, which lasts as long as there
/// are any.
class Observers {
 public:
  static Observers& shared() {
    static auto* const observers = new Observers;
    return *observers;
  }

  void add(Observation observation) {
    if (!events_) watch();
    observations_.push_back(std::move(observation));
  }

  void remove(const void* owner, std::string_view name) {
    std::erase_if(observations_, [&](const Observation& each) {
      return each.owner == owner && (name.empty() || each.name == name);
    });
    if (observations_.empty()) end_watch();
  }

 private:
  void watch() {
    const std::string folder = path_on_this_machine(kNotifications);
    auto error = files::make_folders(folder);
    events_ = Descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    if (!error && inotify_add_watch(events_.get(), folder.c_str(), IN_CLOSE_WRITE) < 0)
      error = files::last_error();
    if (error) {
      spdlog::error("no notifications of other processes: {}: {}", folder, error.message());
      return;
    }
    watch_ = RunLoop::main().watch(events_.get(), [this] { take(); });
  }

  void end_watch() {
    if (watch_ && RunLoop::has_main()) RunLoop::main().unwatch(watch_);
    watch_ = 0;
    events_.reset();
  }

  void take() {
    alignas(inotify_event) char bytes[4096];
    ssize_t count = 0;
    while ((count = ::read(events_.get(), bytes, sizeof bytes)) > 0) {
      for (const char* at = bytes; at < bytes + count;) {
        const auto& event = *reinterpret_cast<const inotify_event*>(at);
        at += sizeof event + event.len;
        const std::string_view file = event.len ? event.name : "";
        if (file.starts_with(kPrefix)) tell(bytes_of_ascii(file.substr(kPrefix.size())));
      }
    }
  }

  /// An observer may end observations, also its own.
  void tell(const std::string& name) const {
    const std::vector<Observation> now = observations_;
    for (const Observation& each : now)
      if (each.name == name) each.work();
  }

  Descriptor events_;
  RunLoop::Id watch_ = 0;
  std::vector<Observation> observations_;
};

}  // namespace

void post_to_processes(std::string_view name) {
  const std::string folder = path_on_this_machine(kNotifications);
  const std::string file = folder + "/" + file_name(name);
  if (const auto error = files::make_folders(folder))
    return spdlog::warn("a notification is lost: {}: {}", folder, error.message());
  const Descriptor opened(open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
  if (!opened) spdlog::warn("a notification is lost: {}: {}", file, files::last_error().message());
}

void observe_processes(const void* owner, std::string name, std::function<void()> work) {
  Observers::shared().add({owner, std::move(name), std::move(work)});
}

void stop_observing_processes(const void* owner, std::string_view name) {
  Observers::shared().remove(owner, name);
}

}  // namespace host::foundation
