#include "host/media/mpv_engine.h"

#include <mpv/client.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <string_view>

#include "host/media/sound_libraries.h"

namespace host::media {
namespace {

constexpr MpvEngine::Option sound_only[] = {
    {"config", "no"},
    {"load-scripts", "no"},
    {"ytdl", "no"},
    {"autoload-files", "no"},
    {"access-references", "no"},
    {"idle", "yes"},
    {"vid", "no"},
    {"sid", "no"},
    {"audio-display", "no"},
    {"audio-fallback-to-null", "yes"},
    {"pause", "yes"},
    {"cache", "no"},
};

// Scripts for the engine's own window, each a thread with an interpreter. An engine that is built
// without the interpreter does not know these options.
constexpr const char* own_scripts[] = {"osc", "load-stats-overlay", "load-osd-console",
                                       "load-auto-profiles"};

}  // namespace

void MpvEngine::Destroy::operator()(mpv_handle* handle) const {
  mpv_set_wakeup_callback(handle, nullptr, nullptr);
  mpv_terminate_destroy(handle);
}

MpvEngine::MpvEngine() {
  prepare_sound_libraries();
  // The engine cannot be created while the locale writes numbers with a decimal comma.
  std::setlocale(LC_NUMERIC, "C");
  handle_.reset(mpv_create());
}

MpvEngine::~MpvEngine() = default;

std::unique_ptr<MpvEngine> MpvEngine::create(const std::vector<Option>& options,
                                             EventSignal& signal) {
  std::unique_ptr<MpvEngine> engine{new MpvEngine};
  return engine->handle_ && engine->start(options, signal) ? std::move(engine) : nullptr;
}

bool MpvEngine::start(const std::vector<Option>& options, EventSignal& signal) {
  const auto knows = [this](const Option& option) {
    return mpv_set_option_string(handle_.get(), option.name, option.value) >= 0;
  };
  for (const char* script : own_scripts)
    mpv_set_option_string(handle_.get(), script, "no");
  if (!std::ranges::all_of(sound_only, knows) || !std::ranges::all_of(options, knows)) return false;
  mpv_set_wakeup_callback(
      handle_.get(), [](void* raised) { static_cast<EventSignal*>(raised)->raise(); }, &signal);
  return mpv_initialize(handle_.get()) >= 0;
}

std::optional<MpvEngine::Entry> MpvEngine::load(const std::string& path) {
  return add(path, "replace");
}

std::optional<MpvEngine::Entry> MpvEngine::append(const std::string& path) {
  return add(path, "append-play");
}

std::optional<MpvEngine::Entry> MpvEngine::add(const std::string& path, const char* how) {
  const char* command[] = {"loadfile", path.c_str(), how, nullptr};
  mpv_node answer{};
  if (mpv_command_ret(handle_.get(), command, &answer) < 0) return std::nullopt;
  std::optional<Entry> entry;
  for (int i = 0; answer.format == MPV_FORMAT_NODE_MAP && i < answer.u.list->num; ++i) {
    if (std::string_view{answer.u.list->keys[i]} == "playlist_entry_id")
      entry = answer.u.list->values[i].u.int64;
  }
  mpv_free_node_contents(&answer);
  return entry;
}

bool MpvEngine::command(std::initializer_list<const char*> words) {
  std::vector<const char*> command{words};
  command.push_back(nullptr);
  return mpv_command(handle_.get(), command.data()) >= 0;
}

void MpvEngine::set(const char* property, bool value) {
  int flag = value;
  mpv_set_property(handle_.get(), property, MPV_FORMAT_FLAG, &flag);
}

void MpvEngine::set(const char* property, double value) {
  mpv_set_property(handle_.get(), property, MPV_FORMAT_DOUBLE, &value);
}

void MpvEngine::set(const char* property, const char* value) {
  mpv_set_property_string(handle_.get(), property, value);
}

double MpvEngine::number(const char* property) const {
  double value = 0;
  mpv_get_property(handle_.get(), property, MPV_FORMAT_DOUBLE, &value);
  return std::isfinite(value) ? value : 0;
}

bool MpvEngine::flag(const char* property) const {
  int value = 0;
  mpv_get_property(handle_.get(), property, MPV_FORMAT_FLAG, &value);
  return value != 0;
}

std::string MpvEngine::text(const char* property) const {
  char* value = mpv_get_property_string(handle_.get(), property);
  std::string copy = value == nullptr ? std::string{} : std::string{value};
  mpv_free(value);
  return copy;
}

const mpv_event& MpvEngine::next_event(double seconds) {
  return *mpv_wait_event(handle_.get(), seconds);
}

}  // namespace host::media
