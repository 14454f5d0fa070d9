#include "host/application/wire/channel.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <cmath>
#include <cstring>

namespace host::application {
namespace {

constexpr std::size_t kReadAtOnce = 64 * 1024;

union DescriptorSpace {
  cmsghdr aligned;
  char bytes[CMSG_SPACE(sizeof(int))];
};

void attach(msghdr& message, DescriptorSpace& space, int descriptor) {
  message.msg_control = space.bytes;
  message.msg_controllen = sizeof space.bytes;
  cmsghdr* header = CMSG_FIRSTHDR(&message);
  header->cmsg_level = SOL_SOCKET;
  header->cmsg_type = SCM_RIGHTS;
  header->cmsg_len = CMSG_LEN(sizeof descriptor);
  std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
}

/// Returns the message's first descriptor and closes the others.
Descriptor descriptor_of(msghdr& message) {
  Descriptor first;
  for (cmsghdr* header = CMSG_FIRSTHDR(&message); header; header = CMSG_NXTHDR(&message, header)) {
    if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS) continue;
    const std::size_t count = (header->cmsg_len - CMSG_LEN(0)) / sizeof(int);
    for (std::size_t i = 0; i < count; ++i) {
      int number = -1;
      std::memcpy(&number, CMSG_DATA(header) + i * sizeof number, sizeof number);
      Descriptor one(number);
      if (!first) first = std::move(one);
    }
  }
  return first;
}

}  // namespace

Channel::Sending Channel::send(std::string_view bytes, Patience patience, int descriptor) const {
  const int flags = MSG_NOSIGNAL | (patience == Patience::NeverWaits ? MSG_DONTWAIT : 0);
  while (!bytes.empty()) {
    iovec part{const_cast<char*>(bytes.data()), bytes.size()};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    DescriptorSpace space{};
    if (descriptor >= 0) attach(message, space, descriptor);
    const auto count = sendmsg(socket_.get(), &message, flags);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && errno == EAGAIN) return Sending::Full;
    if (count <= 0) return Sending::Gone;
    descriptor = -1;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return Sending::Done;
}

Channel::Reading Channel::read_into(std::string& bytes) {
  char raw[kReadAtOnce];
  iovec part{raw, sizeof raw};
  msghdr message{};
  DescriptorSpace space{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = space.bytes;
  message.msg_controllen = sizeof space.bytes;
  const auto count = recvmsg(socket_.get(), &message, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return Reading::Nothing;
  if (count <= 0) return Reading::End;
  if (Descriptor came = descriptor_of(message)) received_ = std::move(came);
  bytes.append(raw, static_cast<std::size_t>(count));
  return Reading::Some;
}

Channel connect_to(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return {};
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  Descriptor made(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  const auto* where = reinterpret_cast<const sockaddr*>(&address);
  if (!made || connect(made.get(), where, sizeof address) != 0) return {};
  return Channel(std::move(made));
}

bool wait_until_readable(int descriptor, double seconds) {
  pollfd waiting{descriptor, POLLIN, 0};
  const int milliseconds = static_cast<int>(std::ceil(seconds * 1e3));
  return poll(&waiting, 1, milliseconds < 0 ? 0 : milliseconds) > 0;
}

}  // namespace host::application
