#include "host/browser/web/server.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <cerrno>
#include <utility>

#include "host/runtime/log.h"
#include "host/runtime/log_line.h"

namespace host::browser {
namespace {

constexpr std::size_t kPiece = 4096;
constexpr int kAcceptedPerTurn = 16;

}  // namespace

Server::Server(RunLoop& loop, int listener, std::span<const PageFile> files, Upgraded upgraded)
    : loop_(loop),
      listener_(listener),
      files_(files),
      upgraded_(std::move(upgraded)),
      watch_(loop.watch(listener, [this] { accept_some(); })) {}

Server::~Server() {
  loop_.unwatch(watch_);
  while (!connections_.empty())
    drop(connections_.begin());
}

void Server::accept_some() {
  for (int i = 0; i < kAcceptedPerTurn; ++i) {
    Descriptor accepted(accept4(listener_, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (!accepted) return;
    if (connections_.size() >= kMostConnections) {
      if (crowd_.is_due())
        spdlog::warn("browser: more than {} connections at once: others are closed",
                     kMostConnections);
      continue;
    }
    // What the phone shows does not wait for more.
    const int at_once = 1;
    setsockopt(accepted.get(), IPPROTO_TCP, TCP_NODELAY, &at_once, sizeof at_once);
    const Place place = connections_.emplace(connections_.end());
    place->descriptor = std::move(accepted);
    place->watch = loop_.watch(place->descriptor.get(), [this, place] { serve(place); });
    place->timer = loop_.add_timer(loop_.now() + kPatience, 0, [this, place] {
      place->timer = 0;
      drop(place);
    });
  }
}

void Server::serve(Place place) {
  if (place->answer.empty() && !read(*place)) return drop(place);
  if (!place->answer.empty()) write(place);
}

/// Returns false when the connection has ended, or what it says is no request.
bool Server::read(Connection& connection) {
  char piece[kPiece];
  const ssize_t count = recv(connection.descriptor.get(), piece, sizeof piece, 0);
  if (count < 0) return errno == EAGAIN || errno == EINTR;
  if (count == 0) return false;
  switch (connection.reader.append({piece, static_cast<std::size_t>(count)})) {
    case RequestReader::State::kIncomplete:
      return true;
    case RequestReader::State::kInvalid:
    case RequestReader::State::kTooLong:
      return false;
    case RequestReader::State::kComplete:
      break;
  }
  const Request& request = connection.reader.request();
  Answer made;
  if (auto refused = refusal(request)) {
    made = std::move(*refused);
  } else if (request.wants_socket()) {
    made = handshake(request);
    constexpr int kSwitchingProtocols = 101;
    connection.is_upgraded = made.status == kSwitchingProtocols;
  } else {
    made = browser::answer(request, files_);
  }
  constexpr int kForbidden = 403;
  if (made.status == kForbidden && foreign_.is_due()) {
    spdlog::warn("browser: refused a request to the host '{}' by a page of '{}'",
                 on_one_line(request.header("host")), on_one_line(request.header("origin")));
  }
  connection.answer = std::move(made.bytes);
  return true;
}

void Server::write(Place place) {
  Connection& connection = *place;
  while (!connection.answer.empty()) {
    const ssize_t count = send(connection.descriptor.get(), connection.answer.data(),
                               connection.answer.size(), MSG_NOSIGNAL);
    if (count < 0) {
      if (errno != EAGAIN && errno != EINTR) return drop(place);
      return loop_.wait_to_write(connection.watch, true);
    }
    connection.answer.erase(0, static_cast<std::size_t>(count));
  }
  finish(place);
}

void Server::finish(Place place) {
  if (!place->is_upgraded) {
    // What the client still sends is not read; closing at once could cost it the answer.
    shutdown(place->descriptor.get(), SHUT_WR);
    return drop(place);
  }
  Descriptor connection = std::move(place->descriptor);
  std::string early = place->reader.rest();
  drop(place);
  upgraded_(std::move(connection), std::move(early));
}

void Server::drop(Place place) {
  loop_.unwatch(place->watch);
  if (place->timer) loop_.remove_timer(place->timer);
  connections_.erase(place);
}

}  // namespace host::browser
