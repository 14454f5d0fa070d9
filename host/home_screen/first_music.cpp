#include "host/home_screen/first_music.h"

namespace host::launcher {
namespace {

// In seconds. Counts that change faster cannot be read, but would be painted.
constexpr double kBetweenLooks = 1.0 / 30;

}  // namespace

void FirstMusic::take(const media_player::MediaProgress& progress) {
  if (progress.stage == media_player::MediaProgress::Stage::kReady) {
    is_ready_ = true;
    if (is_waiting_) loop_.stop();
    return;
  }
  if (!shown_ || loop_.now() < next_look_) return;
  next_look_ = loop_.now() + kBetweenLooks;
  shown_->show(progress);
}

bool FirstMusic::wait() {
  if (is_ready_) return true;
  if (screen_ == Screen::kShown) {
    shown_ = std::make_unique<BootScreen>();
    media_player::MediaProgress beginning;
    beginning.stage = media_player::MediaProgress::Stage::kReadingFiles;
    shown_->show(beginning);
  }
  is_waiting_ = true;
  loop_.run();
  is_waiting_ = false;
  shown_.reset();
  return is_ready_;
}

}  // namespace host::launcher
