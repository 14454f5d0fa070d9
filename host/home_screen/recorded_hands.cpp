#include "host/home_screen/recorded_hands.h"

#include <fmt/format.h>

#include <memory>

#include "host/activator/event/event_kinds.h"
#include "host/recording/script_file.h"
#include "host/runtime/device_model.h"

namespace host::launcher {

using recording::Recorder;

RecordedHands::Refusal RecordedHands::record(const std::string& file) {
  if (recorder_) return fmt::format("{} is being recorded; `record off` ends it", file_);
  std::string problem;
  auto made = recording::ScriptFile::make(file, problem);
  if (!made) return problem;
  const auto script = std::make_shared<recording::ScriptFile>(std::move(*made));
  script->put(fmt::format("# Recorded on {}.", current_device().identifier));
  file_ = file;
  recorder_.emplace(fidelity_, loop_.now(),
                    [script](const std::string& line) { script->put(line); });
  return std::nullopt;
}

RecordedHands::Refusal RecordedHands::end_recording() {
  if (!recorder_) return "nothing is being recorded";
  recorder_->end(loop_.now());
  recorder_.reset();
  return std::nullopt;
}

void RecordedHands::note(std::string_view line) {
  if (recorder_) recorder_->line(line, loop_.now());
}

void RecordedHands::touch(int finger, screen::TouchPhase phase, CGPoint point) {
  if (recorder_) recorder_->touch(finger, phase, point, loop_.now());
  hands_.touch(finger, phase, point);
}

RecordedHands::Refusal RecordedHands::wheel(CGPoint point, CGPoint by, screen::WheelKind kind) {
  return recorded(hands_.wheel(point, by, kind),
                  [&](Recorder& recorder, double now) { recorder.wheel(point, by, kind, now); });
}

RecordedHands::Refusal RecordedHands::type(std::string_view text) {
  return recorded(hands_.type(text),
                  [&](Recorder& recorder, double now) { recorder.type(text, now); });
}

RecordedHands::Refusal RecordedHands::key(std::string_view name) {
  // A field gets the space as text, too, and in a script the key stands for both.
  const bool comes_as_text = name == "space" && Hands::caret();
  return recorded(hands_.key(name), [&](Recorder& recorder, double now) {
    if (!comes_as_text) recorder.key(name, now);
  });
}

RecordedHands::Refusal RecordedHands::right_click(CGPoint point) {
  return recorded(hands_.right_click(point),
                  [&](Recorder& recorder, double now) { recorder.right_click(point, now); });
}

RecordedHands::Refusal RecordedHands::press(screen::Button button) {
  return recorded(hands_.press(button),
                  [&](Recorder& recorder, double now) { recorder.press(button, now); });
}

RecordedHands::Refusal RecordedHands::button(screen::Button button, screen::ButtonPhase phase) {
  return recorded(hands_.button(button, phase),
                  [&](Recorder& recorder, double now) { recorder.button(button, phase, now); });
}

void RecordedHands::shake() {
  hands_.shake();
  note(fmt::format("gesture {}", activator::kShake));
}

}  // namespace host::launcher
