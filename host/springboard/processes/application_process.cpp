#include "host/springboard/processes/application_process.h"

#include <cmath>
#include <utility>

#include "host/basics/user_warning.h"
#include "host/quartzcore/layers/screen_density.h"
#include "host/runtime/device_model.h"

namespace host::springboard {

using namespace application;

namespace {

// More messages than an application can need to send before it has caught up with the clock.
constexpr int kMostMessagesInOneWait = 20000;
constexpr int kReadsPerTurn = 16;

int pixels(double points, double scale) {
  return static_cast<int>(std::lround(points * scale));
}

SurfaceSize surface_size() {
  const DeviceModel& device = current_device();
  const int width = pixels(device.width, device.scale);
  return {width, pixels(device.height, device.scale),
          cairo_format_stride_for_width(CAIRO_FORMAT_ARGB32, width)};
}

ScreenPixels screen_pixels() {
  const DeviceModel& device = current_device();
  const double scale = device.scale * quartzcore::screen_density();
  return {pixels(device.width, scale), pixels(device.height, scale)};
}

}  // namespace

ApplicationProcess::ApplicationProcess(Channel channel, Time time, Events events)
    : loop_(RunLoop::main()),
      channel_(std::move(channel)),
      time_(time),
      events_(std::move(events)),
      surface_(SharedSurface::make(surface_size())) {
  if (!surface_ || !greet()) channel_.close();
  if (!is_alive()) return;
  if (quartzcore::screen_density() != 1) write(screen_pixels());
  watch();
  if (time_ == Time::Stepped) catch_up_soon();
}

ApplicationProcess::~ApplicationProcess() {
  life_.reset();
  stop_watching();
}

bool ApplicationProcess::greet() {
  const SurfaceSize& size = surface_->size();
  const Hello hello{time_ == Time::Stepped, loop_.now(), size.width, size.height, size.stride};
  return channel_.send(encoded(ToApplication(hello)), Channel::Patience::NeverWaits,
                       surface_->descriptor()) == Channel::Sending::Done;
}

void ApplicationProcess::adopt_screen_density() {
  send(screen_pixels());
}

CGImageRef ApplicationProcess::picture() const {
  return reinterpret_cast<CGImageRef>(picture_.get().id());
}

void ApplicationProcess::set_in_front(bool is_in_front) {
  is_in_front_ = is_in_front;
  send(Visibility{is_in_front});
  watch_liveness();
}

void ApplicationProcess::send(const ToApplication& message) {
  write(message);
  if (time_ == Time::Stepped && is_alive()) catch_up_soon();
}

// The socket buffer holds much more than a responsive application leaves unread, so a full one
// means that it no longer answers.
void ApplicationProcess::write(const ToApplication& message) {
  if (!is_alive()) return;
  const auto sending = channel_.send(encoded(message), Channel::Patience::NeverWaits);
  if (sending == Channel::Sending::Full) end(ProcessEnd::NoAnswer);
  if (sending == Channel::Sending::Gone) end(ProcessEnd::Ended);
}

std::optional<std::string> ApplicationProcess::ask(const std::string& line) {
  if (time_ == Time::Stepped) catch_up();
  answer_.reset();
  write(ConsoleLine{line});
  if (!read_until([this] { return answer_.has_value(); })) return std::nullopt;
  if (time_ == Time::Stepped) catch_up_soon();
  return std::exchange(answer_, std::nullopt);
}

void ApplicationProcess::watch() {
  if (!watch_ && is_alive()) watch_ = loop_.watch(channel_.descriptor(), [this] { read(); });
}

void ApplicationProcess::stop_watching() {
  if (watch_) loop_.unwatch(*watch_);
  watch_.reset();
  if (screen_frames_) loop_.remove_frame_observer(*screen_frames_);
  screen_frames_.reset();
  for (auto* timer : {&pause_, &due_, &questions_}) {
    if (*timer) loop_.remove_timer(**timer);
    timer->reset();
  }
}

void ApplicationProcess::read() {
  if (std::exchange(is_reading_, true)) return;
  const std::weak_ptr<void> life = life_;
  int left = MessageBudget::kMessagesPerTurn;
  for (int reads = 0; reads < kReadsPerTurn && left > 0; ++reads) {
    std::string bytes;
    const auto reading = channel_.read_into(bytes);
    channel_.take_descriptor();  // unsolicited: discard it
    reader_.append(bytes);
    while (left > 0 && is_alive()) {
      const auto message = reader_.next();
      if (!message) break;
      --left;
      budget_.count(loop_.now());
      take(*message);
      if (life.expired()) return;
    }
    if (reader_.has_failed()) end(ProcessEnd::Garbage);
    if (budget_.is_flooded()) end(ProcessEnd::Flood);
    if (reading == Channel::Reading::End && left > 0) end(ProcessEnd::Ended);
    if (life.expired()) return;
    if (!is_alive() || reading == Channel::Reading::Nothing) break;
  }
  is_reading_ = false;
  new_frame_came();
  if (left == 0) read_on_next_frame();
}

void ApplicationProcess::read_on_next_frame() {
  if (!is_alive() || pause_) return;
  if (watch_) loop_.unwatch(*watch_);
  watch_.reset();
  pause_ = loop_.add_timer(loop_.now() + RunLoop::kFrame, 0, [this] {
    pause_.reset();
    watch();
    read();
  });
}

bool ApplicationProcess::read_until(const std::function<bool()>& came) {
  const RealClock machine;
  const double began = machine.now();
  int messages = 0;
  while (is_alive() && !came()) {
    if (const auto message = reader_.next()) {
      take(*message);
      if (++messages > kMostMessagesInOneWait) end(ProcessEnd::Flood);
      continue;
    }
    if (reader_.has_failed()) {
      end(ProcessEnd::Garbage);
      break;
    }
    new_frame_came();
    const double left = began + patience() - machine.now();
    if (left <= 0 || !wait_until_readable(channel_.descriptor(), left)) {
      end(ProcessEnd::NoAnswer);
      break;
    }
    std::string bytes;
    if (channel_.read_into(bytes) == Channel::Reading::End) end(ProcessEnd::Ended);
    reader_.append(bytes);
  }
  new_frame_came();
  return is_alive();
}

void ApplicationProcess::take(const ToHome& message) {
  has_answered_ = true;
  std::visit([this](const auto& one) { take(one); }, message);
}

void ApplicationProcess::take(const NewFrame& frame) {
  const SurfaceSize& size = surface_->size();
  if (frame.buffer >= SharedSurface::kBuffers || frame.picture_width <= 0 ||
      frame.picture_width > size.width || frame.picture_height <= 0 ||
      frame.picture_height > size.height) {
    end(ProcessEnd::Garbage);
    return;
  }
  new_frame_ = frame;
}

void ApplicationProcess::take(const ReachedTime& reached) {
  reached_ = reached.time;
  next_due_ = reached.next_due;
}

void ApplicationProcess::take(const ConsoleAnswer& answer) {
  answer_ = answer.line;
}

void ApplicationProcess::take(const Pong& pong) {
  if (pong.number <= asked_) answered_ = pong.number;
}

void ApplicationProcess::take(const SteerPlayer& command) {
  if (events_.steers) events_.steers(command);
}

void ApplicationProcess::take(const TextInputIs& input) {
  caret_.reset();
  if (input.takes_text) caret_ = CGRect(input.x, input.y, input.width, input.height);
}

void ApplicationProcess::take(const UserWarning& warning) {
  warn_user(warning.few_words);
}

void ApplicationProcess::end(ProcessEnd reason) {
  if (!is_alive()) return;
  channel_.close();
  stop_watching();
  if (events_.ended) events_.ended(reason);
}

}  // namespace host::springboard
