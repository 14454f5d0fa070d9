#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "host/application/surface/shared_surface.h"
#include "host/application/wire/channel.h"
#include "host/application/wire/message_reader.h"

// An application without any of the platform's classes: it draws one colour, then behaves according
// to its arguments, `--behaviour NAME … --listener NUMBER`.

namespace {

using namespace host;
using namespace host::application;

constexpr std::uint32_t kColor = 0xFF336699;

void send(Channel& channel, const ToHome& message) {
  if (channel.send(encoded(message), Channel::Patience::Waits) != Channel::Sending::Done)
    std::exit(1);
}

void draw(Channel& channel, SharedSurface& surface) {
  const SurfaceSize& size = surface.size();
  for (std::size_t i = 0; i < size.buffer_bytes() / sizeof kColor; ++i)
    std::memcpy(surface.writable_buffer(0) + i * sizeof kColor, &kColor, sizeof kColor);
  send(channel, NewFrame{0, size.width, size.height, 0, 0, size.width, size.height});
}

/// Answers like any application, and draws on a touch and a turn of the wheel.
void answer(Channel& channel, SharedSurface& surface, const ToApplication& message) {
  if (const auto* time = std::get_if<TimeIs>(&message))
    send(channel, ReachedTime{time->time, time->time + 1000});
  if (const auto* ping = std::get_if<Ping>(&message)) send(channel, Pong{ping->number});
  if (const auto* line = std::get_if<ConsoleLine>(&message))
    send(channel, ConsoleAnswer{"\"" + line->text + "\""});
  if (const auto* pixels = std::get_if<ScreenPixels>(&message))
    send(channel, NewFrame{0, pixels->width, pixels->height, 0, 0, 1, 1});
  if (std::holds_alternative<FingerChange>(message) || std::holds_alternative<WheelTurn>(message))
    draw(channel, surface);
}

void misbehave(const std::string& behaviour, Channel& channel, SharedSurface& surface) {
  if (behaviour == "hang") {
    for (;;)
      pause();
  }
  if (behaviour == "crash") raise(SIGKILL);
  if (behaviour == "end") {
    send(channel, Closing{});
    std::exit(0);
  }
  if (behaviour == "warn") send(channel, UserWarning{"The disk cannot be written"});
  if (behaviour == "choose") send(channel, SteerPlayer{PlayerCommand::ReadChoices, 0, 0});
  if (behaviour == "garbage") channel.send("\xFF\xFF\xFF\xFFgarbage", Channel::Patience::Waits);
  if (behaviour == "bad-buffer") send(channel, NewFrame{7, 1, 1, 0, 0, 1, 1});
  if (behaviour == "bad-size") send(channel, NewFrame{0, 1, 100000, 0, 0, 1, 1});
  if (behaviour == "no-size") send(channel, NewFrame{0, 0, -1, 0, 0, 1, 1});
  // This would crash the home screen if it were allowed.
  if (behaviour == "shrink" && ftruncate(surface.descriptor(), 0) == 0) std::exit(1);
  if (behaviour == "flood") {
    for (;;)
      send(channel, NewFrame{0, 1, 1, 0, 0, 1, 1});
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 5) return 2;
  const std::string behaviour = arguments[2];
  Channel channel(Descriptor(accept(std::atoi(arguments[4]), nullptr, nullptr)));
  MessageReader<ToApplication> reader;
  std::shared_ptr<SharedSurface> surface;
  for (;;) {
    wait_until_readable(channel.descriptor(), 60);
    std::string bytes;
    if (channel.read_into(bytes) == Channel::Reading::End) return 0;
    reader.append(bytes);
    while (const auto message = reader.next()) {
      if (const auto* hello = std::get_if<Hello>(&*message)) {
        surface = SharedSurface::open(channel.take_descriptor(),
                                      {hello->width, hello->height, hello->stride});
        if (!surface) return 1;
        draw(channel, *surface);
        misbehave(behaviour, channel, *surface);
      } else if (surface) {
        answer(channel, *surface, *message);
      }
    }
  }
}
