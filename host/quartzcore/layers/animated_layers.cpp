#include "host/quartzcore/layers/animated_layers.h"

#include <utility>

namespace host::quartzcore {

void AnimatedLayers::add(CALayer layer) {
  layers_.push_back(layer);
  update_frames();
}

void AnimatedLayers::remove(CALayer layer) {
  note_news();
  std::erase(layers_, layer);
  update_frames();
}

std::vector<CALayer> AnimatedLayers::take() {
  auto all = std::exchange(layers_, {});
  update_frames();
  return all;
}

void AnimatedLayers::ask_for_frames(RunLoop& loop, RunLoop::Work work) {
  loop_ = &loop;
  work_ = std::move(work);
  update_frames();
}

void AnimatedLayers::stop_frames() {
  if (frame_observer_) loop_->remove_frame_observer(std::exchange(frame_observer_, 0));
  loop_ = nullptr;
}

void AnimatedLayers::update_frames() {
  if (!loop_) return;
  if (!layers_.empty() && !frame_observer_) {
    frame_observer_ = loop_->add_frame_observer([this](double) { work_(); });
  } else if (layers_.empty() && frame_observer_) {
    loop_->remove_frame_observer(std::exchange(frame_observer_, 0));
  }
}

// Never destroyed: layers may outlive other static objects.
AnimatedLayers& animated_layers() {
  static auto* const made = new AnimatedLayers;
  return *made;
}

}  // namespace host::quartzcore
