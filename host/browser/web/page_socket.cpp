#include "host/browser/web/page_socket.h"

#include <sys/socket.h>
#include <wslay/wslay.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace host::browser {
namespace {

// More is read in the next turn: a page that floods the phone does not hold it up.
constexpr std::size_t kBytesPerTurn = 64 * 1024;
constexpr std::size_t kMostQueued = 256;

long would_block_or_fail(wslay_event_context* context) {
  const bool waits = errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
  wslay_event_set_error(context, waits ? WSLAY_ERR_WOULDBLOCK : WSLAY_ERR_CALLBACK_FAILURE);
  return -1;
}

}  // namespace

struct PageSocket::Callbacks {
  static ssize_t read(wslay_event_context* context, std::uint8_t* bytes, std::size_t size, int,
                      void* user) {
    auto& self = *static_cast<PageSocket*>(user);
    size = std::min(size, self.budget_);
    if (size == 0) {
      errno = EAGAIN;
      return would_block_or_fail(context);
    }
    if (!self.early_.empty()) {
      size = std::min(size, self.early_.size());
      std::copy_n(self.early_.data(), size, bytes);
      self.early_.erase(0, size);
    } else {
      const ssize_t count = recv(self.connection_.get(), bytes, size, 0);
      if (count < 0) return would_block_or_fail(context);
      if (count == 0) {
        errno = 0;
        return would_block_or_fail(context);
      }
      size = static_cast<std::size_t>(count);
    }
    self.budget_ -= size;
    return static_cast<ssize_t>(size);
  }

  static ssize_t write(wslay_event_context* context, const std::uint8_t* bytes, std::size_t size,
                       int flags, void* user) {
    const auto& self = *static_cast<PageSocket*>(user);
    const int more = (flags & WSLAY_MSG_MORE) != 0 ? MSG_MORE : 0;
    const ssize_t count = ::send(self.connection_.get(), bytes, size, MSG_NOSIGNAL | more);
    return count < 0 ? would_block_or_fail(context) : count;
  }

  static void message(wslay_event_context*, const wslay_event_on_msg_recv_arg* got, void* user) {
    auto& self = *static_cast<PageSocket*>(user);
    if (self.is_ending_) return;
    if (got->opcode == WSLAY_TEXT_FRAME) self.end_soon("sends text, where bytes are due");
    if (got->opcode == WSLAY_BINARY_FRAME)
      self.received_.emplace_back(reinterpret_cast<const char*>(got->msg), got->msg_length);
  }
};

PageSocket::PageSocket(RunLoop& loop, Descriptor connection, std::string early, Events events)
    : loop_(loop),
      connection_(std::move(connection)),
      early_(std::move(early)),
      events_(std::move(events)) {
  const wslay_event_callbacks callbacks{
      &Callbacks::read, &Callbacks::write, nullptr, nullptr, nullptr, nullptr, &Callbacks::message};
  wslay_event_context_server_init(&context_, &callbacks, this);
  wslay_event_config_set_max_recv_msg_length(context_, kLongestMessage);
  watch_ = loop_.watch(connection_.get(), [this] { receive(); });
  if (!early_.empty()) {
    loop_.perform([this, life = std::weak_ptr<void>(life_)] {
      if (!life.expired()) receive();
    });
  }
}

PageSocket::~PageSocket() {
  if (watch_) loop_.unwatch(watch_);
  wslay_event_context_free(context_);
}

// A message may delete this object, so each is delivered after the library is done with it.
void PageSocket::receive() {
  const std::weak_ptr<void> life = life_;
  if (!is_open()) return;
  budget_ = kBytesPerTurn;
  if (wslay_event_recv(context_) != 0) end_soon("");
  for (const std::string& message : std::exchange(received_, {})) {
    if (!is_open()) break;
    // By value: the listener may set other events.
    if (const auto deliver = events_.message) deliver(message);
    if (life.expired()) return;
  }
  transmit();
}

void PageSocket::send(std::string_view message) {
  if (!is_open() || is_ending_) return;
  const wslay_event_msg queued{
      WSLAY_BINARY_FRAME, reinterpret_cast<const std::uint8_t*>(message.data()), message.size()};
  if (wslay_event_queue_msg(context_, &queued) != 0) end_soon("");
  transmit();
}

void PageSocket::close() {
  if (!is_open() || is_ending_) return;
  wslay_event_queue_close(context_, WSLAY_CODE_NORMAL_CLOSURE, nullptr, 0);
  transmit();
}

void PageSocket::transmit() {
  if (!is_open()) return;
  if (wslay_event_send(context_) != 0) end_soon("");
  look_after_queue();
  const bool is_over = !wslay_event_want_read(context_) && !wslay_event_want_write(context_);
  if (is_ending_ || is_over) return end();
  loop_.wait_to_write(watch_, wslay_event_want_write(context_) != 0);
}

void PageSocket::look_after_queue() {
  if (wslay_event_get_queued_msg_length(context_) > kLongestQueue ||
      wslay_event_get_queued_msg_count(context_) > kMostQueued)
    end_soon("does not read what it is sent");
  const std::uint16_t status = wslay_event_get_status_code_sent(context_);
  if (status == WSLAY_CODE_MESSAGE_TOO_BIG) end_soon("sends a message that is too long");
  if (status == WSLAY_CODE_PROTOCOL_ERROR) end_soon("breaks the protocol");
}

void PageSocket::end_soon(std::string reason) {
  is_ending_ = true;
  if (reason_.empty()) reason_ = std::move(reason);
}

// The caller may still be using this object, which the listener may delete.
void PageSocket::end() {
  if (watch_) loop_.unwatch(std::exchange(watch_, 0));
  connection_.reset();
  loop_.perform([this, life = std::weak_ptr<void>(life_)] {
    if (life.expired()) return;
    if (const auto tell = events_.ended) tell(reason_);
  });
}

}  // namespace host::browser
