#include "tweak/search/title_reader.h"

#include "tweak/Sonavue2.h"
#include "tweak/search/title_index.h"

namespace sonavue {
namespace {

// Reading so many takes half a millisecond on a desktop.
constexpr NSUInteger kTitlesAtOnce = 1024;
// Four times in a frame.
constexpr NSTimeInterval kInterval = 1 / 240.0;

}  // namespace

void TitleReader::start() {
  stop();
  if (!title_index().read_some(songItems, kTitlesAtOnce))
    timer_.reset(
        NSTimer::scheduledTimerWithTimeInterval(kInterval, self, "readTitles:"_sel, nil, YES));
}

void TitleReader::stop() {
  if (timer_) timer_->invalidate();
  timer_.reset();
}

void TitleReader::read_some(NSTimer) {
  if (title_index().read_some(songItems, kTitlesAtOnce)) stop();
}

void make_title_reader() {
  objc::make_own_class<SVTitleReader>([](objc::ClassBuilder& builder) {
    builder.state<TitleReader>().method<&TitleReader::read_some>("readTitles:");
  });
}

TitleReader* title_reader() {
  static const SVTitleReader made = SVTitleReader::alloc().init();
  return made ? &objc::state_of<TitleReader>(made) : nullptr;
}

}  // namespace sonavue
