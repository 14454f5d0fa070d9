#include "host/media_player/demo_maker.h"

#include <utility>

namespace host::media_player {

DemoMaker::DemoMaker(DemoMusic demo)
    : thread_([this, demo = std::move(demo)](const std::stop_token& stop) { run(demo, stop); }) {}

DemoMaker::News DemoMaker::take_news() {
  const std::lock_guard lock{mutex_};
  signal_.clear();
  return news_;
}

void DemoMaker::run(const DemoMusic& demo, const std::stop_token& stop) {
  auto report = [this](media::DemoProgress progress) {
    const std::lock_guard lock{mutex_};
    news_.progress = progress;
    signal_.raise();
  };
  auto failure = media::make_demo_library(demo.folder, demo.covers, report, stop);
  const std::lock_guard lock{mutex_};
  news_.is_over = true;
  news_.failure = std::move(failure);
  signal_.raise();
}

}  // namespace host::media_player
