#include "bench/phone/bench_phone.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstring>
#include <fstream>

#include "bench/support/core_time.h"
#include "host/foundation/device_paths.h"
#include "host/foundation/loader.h"
#include "host/home_screen/launch.h"
#include "host/home_screen/music.h"
#include "host/launcher/device_root.h"
#include "host/launcher/installation.h"
#include "host/runtime/device_model.h"
#include "host/runtime/log.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using namespace host;

constexpr const char* kPreferences =
    "var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";
constexpr const char* kIndex = "var/mobile/Media/library.sqlite";

fs::path new_device() {
  std::string name = (fs::temp_directory_path() / "bench-phone-XXXXXX").string();
  require(mkdtemp(name.data()) != nullptr, "a folder for the device");
  const fs::path root = name;
  require(!launcher::prepare_device_root(root), "a device");
  const auto problem = launcher::stage(launcher::find_installation().staging, root, {});
  require(!problem, problem.value_or(""));
  return root;
}

}  // namespace

BenchPhone::BenchPhone(Pace pace, std::string_view preferences, const Music& music)
    : root_(new_device()), loop_(pace == Pace::kReal ? static_cast<Clock&>(real_) : stepped_) {
  write_preferences(preferences);
  if (music.remember) {
    fs::create_directories((root_ / kIndex).parent_path());
    music.remember(root_ / kIndex);
  }
  RunLoop::set_main(&loop_);
  foundation::set_device_root(root_);
  set_current_device(*device_model(kBenchDevice));
  layers_ = std::make_unique<quartzcore::LayerService>(loop_);
  launcher::ProcessOptions options;
  options.device = kBenchDevice;
  options.root = root_;
  options.music = music.folders;
  options.headless = true;
  options.stepped = pace == Pace::kStepped;
  launcher::launch_home_screen(options);
  phone_screen_ = std::make_unique<process::PhoneScreen>(loop_, screen_);
  console_phone_ = std::make_unique<launcher::ConsolePhone>(
      recorded_hands_,
      launcher::ConsolePhone::Parts{
          [this](double seconds) { loop_.advance_to(stepped_, stepped_.now() + seconds); },
          [this](const auto& use) { return phone_screen_->with_picture(use); },
          fs::temp_directory_path()});
  for (const auto& library : foundation::loaded_libraries())
    globals_.add_table(static_cast<const console::ExportedGlobal*>(
        dlsym(library.handle, console::Globals::kTableSymbol)));
  session_ = std::make_unique<console::Session>(*console_phone_, globals_);
  require(globals_.has("musicIcon"), "the extension is not loaded");
}

BenchPhone::~BenchPhone() {
  launcher::stop_music();
  phone_screen_.reset();
  fs::remove_all(root_);
}

void BenchPhone::write_preferences(std::string_view text) const {
  const fs::path file = root_ / kPreferences;
  fs::create_directories(file.parent_path());
  std::ofstream(file) << text;
}

std::string BenchPhone::run(std::string_view line) {
  const console::Answer answer = session_->execute(line);
  require(answer.kind != console::Answer::Kind::Error, std::string(line) + ": " + answer.text);
  return answer.text;
}

objc::Object BenchPhone::global(std::string_view name) const {
  const auto value = globals_.value(name);
  const auto* object = value ? value->as<objc::Object>() : nullptr;
  require(object != nullptr, name);
  return *object;
}

void BenchPhone::frame() {
  loop_.advance_to(stepped_, stepped_.now() + RunLoop::kFrame);
}

void BenchPhone::settle() {
  constexpr int kMostRounds = 300;
  constexpr useconds_t kRound = 100'000;
  constexpr double kAtRest = 0.01;
  for (int round = 0; round < kMostRounds; ++round) {
    const double before = process_seconds();
    usleep(kRound);
    const double beside = process_seconds() - before;
    turn();
    if (beside < kAtRest) return;
  }
  require(false, "the phone does not come to rest");
}

void BenchPhone::live(double seconds) {
  loop_.add_timer(loop_.now() + seconds, 0, [this] { loop_.stop(); });
  loop_.run();
}

std::vector<std::uint32_t> BenchPhone::pixels() const {
  const screen::Picture& picture = screen_.picture();
  std::vector<std::uint32_t> copy(static_cast<std::size_t>(picture.width) * picture.height);
  for (int y = 0; y < picture.height; ++y)
    std::memcpy(copy.data() + static_cast<std::size_t>(y) * picture.width,
                picture.pixels + static_cast<std::ptrdiff_t>(y) * picture.stride,
                static_cast<std::size_t>(picture.width) * 4);
  return copy;
}

}  // namespace bench
