#include "host/home_screen/lifeline.h"

#include <sys/socket.h>

#include <cerrno>
#include <utility>

namespace host::launcher {

Lifeline::Lifeline(RunLoop& loop, int descriptor) : loop_(loop), descriptor_(descriptor) {
  close_on_exec(descriptor);
}

Lifeline::~Lifeline() {
  if (watch_) loop_.unwatch(*watch_);
}

void Lifeline::begin(Orders orders) {
  if (!descriptor_) return;
  orders_ = std::move(orders);
  say(LifeSign::Started);
  watch_ = loop_.watch(descriptor_.get(), [this] { listen(); });
}

void Lifeline::answer_questions() const {
  say(LifeSign::Alive);
}

void Lifeline::say(LifeSign sign) const {
  const char byte = static_cast<char>(sign);
  if (descriptor_)
    static_cast<void>(!send(descriptor_.get(), &byte, 1, MSG_NOSIGNAL | MSG_DONTWAIT));
}

void Lifeline::listen() {
  char byte = 0;
  const auto count = recv(descriptor_.get(), &byte, 1, MSG_DONTWAIT);
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (count <= 0) {
    loop_.unwatch(*std::exchange(watch_, std::nullopt));
    return;
  }
  if (byte == static_cast<char>(Care::Question)) say(LifeSign::Alive);
  if (byte == static_cast<char>(Care::ShowWindow)) orders_.show_window();
  if (byte == static_cast<char>(Care::PlayFiles)) orders_.play_files();
}

}  // namespace host::launcher
