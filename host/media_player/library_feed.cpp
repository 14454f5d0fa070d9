#include "host/media_player/library_feed.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "host/media/log.h"

namespace host::media_player {

using media::ScanProgress;
using media::ScanStage;
using media::ScanUpdate;

std::string default_demo_folder() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data && *data == '/') return std::string{data} + "/sonavue/demo-music";
  const char* home = std::getenv("HOME");
  return std::string{home ? home : ""} + "/.local/share/sonavue/demo-music";
}

namespace {

// At the end of a turn, after the layers and the screen.
constexpr int kAfterPicture = 1000;

FirstScan first_scan_for(const MediaOptions& options) {
  const bool is_stepped = options.pace == media::PlayerPace::stepped;
  const bool is_scanned = options.first_scan != FirstScan::kNever;
  return is_stepped && is_scanned ? FirstScan::kBeforeStart : options.first_scan;
}

/// Removes the songs that a folder among the roots contains: no song is found twice.
void remove_contained(std::vector<std::string>& roots) {
  const std::vector<std::string> all = roots;
  std::erase_if(roots, [&all](const std::string& root) {
    return std::ranges::any_of(all, [&root](const std::string& other) {
      return other != root && media::is_within(root, {&other, 1});
    });
  });
}

void report_missing_demo(const std::string& failure) {
  media::warn_user("the demo music cannot be made: " + failure, "The demo music cannot be made");
}

}  // namespace

LibraryFeed::LibraryFeed(const MediaOptions& options, Listener listener)
    : roots_(options.music_folders),
      demo_(options.demo),
      index_path_(options.index_path),
      first_scan_(first_scan_for(options)),
      watches_folders_(options.watches_folders),
      is_stepped_(options.pace == media::PlayerPace::stepped),
      listener_(std::move(listener)) {
  if (demo_) roots_.push_back(demo_->folder);
}

LibraryFeed::~LibraryFeed() {
  if (turn_) RunLoop::main().remove_turn_observer(turn_);
  if (demo_watch_) RunLoop::main().unwatch(demo_watch_);
  if (scan_watch_) RunLoop::main().unwatch(scan_watch_);
}

void LibraryFeed::start() {
  if (first_scan_ == FirstScan::kNever) {
    load_now();
  } else if (scans_at_once()) {
    make_demo_now();
    scan_now();
  } else if (missing_demo()) {
    if (first_scan_ == FirstScan::kBeside) deliver(media::Library::build({}));
    start_demo();
  } else if (first_scan_ == FirstScan::kBeside) {
    start_beside();
  } else {
    request_scan();
  }
}

void LibraryFeed::load_now() {
  media::Index index{index_path_};
  deliver(media::remembered_library(index));
}

void LibraryFeed::start_beside() {
  // A screen that begins without what the last scan left would have to be filled twice.
  deliver(scanner().remember(roots_));
  // On a machine with few cores, the scan would delay the first picture.
  RunLoop& loop = RunLoop::main();
  turn_ = loop.add_turn_observer(kAfterPicture, [this, &loop] {
    loop.remove_turn_observer(std::exchange(turn_, 0));
    if (last_request_ == 0) request_scan();
  });
  loop.perform([] {});
}

const DemoMusic* LibraryFeed::missing_demo() const {
  std::error_code ignored;
  return demo_ && !std::filesystem::exists(demo_->folder, ignored) ? &*demo_ : nullptr;
}

void LibraryFeed::make_demo_now() {
  const DemoMusic* demo = missing_demo();
  if (!demo) return;
  const auto failure = media::make_demo_library(
      demo->folder, demo->covers, [this](media::DemoProgress progress) { report_demo(progress); });
  if (failure) report_missing_demo(*failure);
}

void LibraryFeed::scan_now() {
  media::Index index{index_path_};
  auto outcome = media::scan_folders(index, roots_, [this](const ScanProgress& files) {
    report_files(MediaProgress::Stage::kReadingFiles, files);
  });
  deliver(std::move(outcome.library));
  say_left_out(outcome.left_out);
  report_files(MediaProgress::Stage::kReady, outcome.progress);
}

void LibraryFeed::start_demo() {
  demo_maker_ = std::make_unique<DemoMaker>(*demo_);
  demo_watch_ = RunLoop::main().watch(demo_maker_->descriptor(), [this] { receive_demo_news(); });
}

void LibraryFeed::receive_demo_news() {
  const DemoMaker::News news = demo_maker_->take_news();
  report_demo(news.progress);
  if (!news.is_over) return;
  if (news.failure) report_missing_demo(*news.failure);
  RunLoop::main().unwatch(std::exchange(demo_watch_, 0));
  demo_maker_.reset();
  request_scan();
}

media::Scanner::Work LibraryFeed::work() const {
  using Work = media::Scanner::Work;
  if (first_scan_ == FirstScan::kNever) return Work::load;
  return watches_folders_ ? Work::watch : Work::scan;
}

media::Scanner& LibraryFeed::scanner() {
  if (!scanner_) {
    scanner_ = std::make_unique<media::Scanner>(index_path_, work());
    scan_watch_ = RunLoop::main().watch(scanner_->descriptor(), [this] { receive_scan_updates(); });
  }
  return *scanner_;
}

void LibraryFeed::request_scan() {
  last_request_ = scanner().request(roots_);
}

void LibraryFeed::bring_in(const std::vector<std::string>& paths, std::function<void()> then) {
  for (const std::string& path : paths) {
    if (!covers(path)) roots_.push_back(path);
  }
  remove_contained(roots_);
  if (scans_at_once()) {
    scan_now();
    return then();
  }
  // The demo music is made first; its scan is the first request.
  if (scanner_) request_scan();
  waiting_.push_back({std::max<std::uint64_t>(last_request_, 1), std::move(then)});
}

void LibraryFeed::reload() {
  if (is_stepped_) return load_now();
  request_scan();
}

void LibraryFeed::receive_scan_updates() {
  while (const auto update = scanner_->take_update())
    take(*update);
}

void LibraryFeed::take(const ScanUpdate& update) {
  const bool is_ready = update.stage == ScanStage::finished;
  const bool is_early = !is_ready && first_scan_ == FirstScan::kAwaited;
  if (update.library && !is_early) deliver(update.library);
  if (is_ready) say_left_out(update.left_out);
  report_files(is_ready ? MediaProgress::Stage::kReady : MediaProgress::Stage::kReadingFiles,
               update.progress);
  if (is_ready) answer_waiting(update.request);
}

void LibraryFeed::answer_waiting(std::uint64_t request) {
  for (Waiting& one : std::exchange(waiting_, {})) {
    if (one.request > request) {
      waiting_.push_back(std::move(one));
    } else {
      one.then();
    }
  }
}

void LibraryFeed::say_left_out(const media::LeftOut& left_out) {
  std::string line = media::line_of(left_out);
  if (line == said_left_out_) return;
  said_left_out_ = std::move(line);
  if (!said_left_out_.empty()) media::log_note(said_left_out_);
}

void LibraryFeed::deliver(std::shared_ptr<const media::Library> library) {
  if (library == library_) return;
  library_ = std::move(library);
  listener_.on_library(library_);
}

void LibraryFeed::report_demo(media::DemoProgress progress) {
  MediaProgress news;
  news.stage = MediaProgress::Stage::kMakingMusic;
  news.made = progress.made;
  news.to_make = progress.total;
  listener_.on_progress(news);
}

void LibraryFeed::report_files(MediaProgress::Stage stage, const ScanProgress& files) {
  MediaProgress news;
  news.stage = stage;
  news.files = files;
  news.songs = library_ ? library_->tracks().size() : 0;
  listener_.on_progress(news);
}

}  // namespace host::media_player
