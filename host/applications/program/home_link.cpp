#include "host/applications/program/home_link.h"

#include <poll.h>
#include <sys/socket.h>

#include <utility>

namespace host::application {

bool HomeLink::is_waiting(int descriptor) const {
  return descriptor >= 0 && wait_until_readable(descriptor, 0);
}

void HomeLink::wait() {
  pollfd waiting[] = {{listener_.get(), POLLIN, 0}, {channel_.descriptor(), POLLIN, 0}};
  poll(waiting, std::size(waiting), -1);
  receive();
}

void HomeLink::receive() {
  if (is_waiting(listener_.get())) accept_home();
  if (!is_waiting(channel_.descriptor())) return;
  std::string bytes;
  if (channel_.read_into(bytes) == Channel::Reading::End) {
    channel_.close();
    return;
  }
  reader_.append(bytes);
}

void HomeLink::accept_home() {
  Descriptor made(accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
  if (!made) return;
  channel_ = Channel(std::move(made));
  reader_ = {};
  put_back_.clear();
}

std::optional<ToApplication> HomeLink::next() {
  if (!put_back_.empty()) {
    ToApplication first = std::move(put_back_.front());
    put_back_.pop_front();
    return first;
  }
  return reader_.next();
}

void HomeLink::put_back(std::deque<ToApplication> messages) {
  while (!messages.empty()) {
    put_back_.push_front(std::move(messages.back()));
    messages.pop_back();
  }
}

void HomeLink::send(const ToHome& message) {
  if (!channel_) return;
  if (channel_.send(encoded(message), Channel::Patience::Waits) != Channel::Sending::Done)
    channel_.close();
}

}  // namespace host::application
