#include "bench/screen/viewer.h"

#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <csignal>
#include <new>
#include <utility>

#include "bench/support/require.h"

namespace bench {
namespace {

Seen* shared_memory() {
  void* const memory =
      mmap(nullptr, sizeof(Seen), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  require(memory != MAP_FAILED, "memory for a viewer");
  return new (memory) Seen;
}

}  // namespace

Viewer::Viewer(Look look) : seen_(shared_memory()) {
  std::array<int, 2> ends{};
  require(pipe2(ends.data(), O_CLOEXEC) == 0, "a pipe to a viewer");
  host::Descriptor mine(ends[0]);
  addresses_ = host::Descriptor(ends[1]);
  process_ = fork();
  require(process_ >= 0, "a process for a viewer");
  if (process_ > 0) return;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  addresses_.reset();
  Address server;
  if (read(mine.get(), &server, sizeof server) == sizeof server) look(*seen_, server);
  _exit(0);
}

Viewer::~Viewer() {
  look_away();
  munmap(seen_, sizeof(Seen));
}

void Viewer::look_at(const Address& server) {
  require(write(addresses_.get(), &server, sizeof server) == sizeof server, "a viewer");
}

void Viewer::look_away() {
  if (process_ == 0) return;
  const pid_t process = std::exchange(process_, 0);
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
}

std::uint64_t received_bytes(int connection) {
  tcp_info info{};
  socklen_t size = sizeof info;
  if (getsockopt(connection, IPPROTO_TCP, TCP_INFO, &info, &size) != 0) return 0;
  return info.tcpi_bytes_received;
}

}  // namespace bench
