#include "host/console/line_server.h"

#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

#include "host/basics/console_line.h"

namespace host::console {
namespace {

const Answer kTooLong{Answer::Kind::Error, "the line is too long"};

}  // namespace

LineServer::LineServer(int descriptor, Session& session, std::function<void()> on_quit)
    : descriptor_(descriptor), session_(session), on_quit_(std::move(on_quit)) {}

void LineServer::serve() {
  if (busy_) return;
  char bytes[4096];
  const auto count = read(descriptor_, bytes, sizeof bytes);
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (count <= 0) return end();
  pending_.append(bytes, static_cast<std::size_t>(count));
  busy_ = true;
  execute_lines();
  busy_ = false;
}

// What the rest of an incomplete line would have been is unknown, so no part of it is executed.
void LineServer::end() {
  if (line_is_too_long_) {
    answer(kTooLong);
  } else if (!pending_.empty()) {
    answer({Answer::Kind::Error, "the input ended in the middle of a line"});
  }
  on_quit_();
}

void LineServer::execute_lines() {
  for (auto end = pending_.find('\n'); end != std::string::npos; end = pending_.find('\n')) {
    const std::string line = pending_.substr(0, end);
    pending_.erase(0, end + 1);
    if (line_is_too_long_ || line.size() > kLongestConsoleLine) {
      line_is_too_long_ = false;
      answer(kTooLong);
      continue;
    }
    const Answer made = session_.execute(line);
    answer(made);
    if (made.kind == Answer::Kind::Quit) {
      on_quit_();
      return;
    }
  }
  if (pending_.size() > kLongestConsoleLine) {
    pending_.clear();
    line_is_too_long_ = true;
  }
}

void LineServer::answer(const Answer& answer) {
  const std::string line = answer.line() + '\n';
  std::size_t sent = 0;
  while (sent < line.size()) {
    const auto count = send(descriptor_, line.data() + sent, line.size() - sent, MSG_NOSIGNAL);
    if (count <= 0) return;  // the other end is gone; the next read detects that
    sent += static_cast<std::size_t>(count);
  }
}

}  // namespace host::console
