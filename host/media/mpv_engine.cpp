#include "host/media/mpv_engine.h"

#include <fmt/core.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <string_view>

#include "host/media/mpv_library.h"
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
  mpv()->set_wakeup_callback(handle, nullptr, nullptr);
  mpv()->terminate_destroy(handle);
}

MpvEngine::MpvEngine(const std::vector<Option>& options, EventSignal& signal) : signal_(signal) {
  // The engine cannot be created while the locale writes numbers with a decimal comma, and others
  // must not see that change with the first song.
  std::setlocale(LC_NUMERIC, "C");
  for (const Option& option : sound_only)
    first_values_[option.name] = option.value;
  for (const Option& option : options)
    first_values_[option.name] = option.value;
}

MpvEngine::~MpvEngine() = default;

bool MpvEngine::start() {
  if (handle_) return true;
  if (!mpv()) return false;
  prepare_sound_libraries();
  std::unique_ptr<mpv_handle, Destroy> made{mpv()->create()};
  if (!made) return false;
  for (const char* script : own_scripts)
    mpv()->set_option_string(made.get(), script, "no");
  const auto is_known = [&made](const auto& option) {
    return mpv()->set_option_string(made.get(), option.first.c_str(), option.second.c_str()) >= 0;
  };
  if (!std::ranges::all_of(first_values_, is_known)) return false;
  mpv()->set_wakeup_callback(
      made.get(), [](void* raised) { static_cast<EventSignal*>(raised)->raise(); }, &signal_);
  if (mpv()->initialize(made.get()) < 0) return false;
  handle_ = std::move(made);
  return true;
}

std::optional<MpvEngine::Entry> MpvEngine::load(const std::string& path) {
  return add(path, "replace");
}

std::optional<MpvEngine::Entry> MpvEngine::append(const std::string& path) {
  return add(path, "append-play");
}

std::optional<MpvEngine::Entry> MpvEngine::add(const std::string& path, const char* how) {
  if (!start()) return std::nullopt;
  const char* command[] = {"loadfile", path.c_str(), how, nullptr};
  mpv_node answer{};
  if (mpv()->command_ret(handle_.get(), command, &answer) < 0) return std::nullopt;
  std::optional<Entry> entry;
  for (int i = 0; answer.format == MPV_FORMAT_NODE_MAP && i < answer.u.list->num; ++i) {
    if (std::string_view{answer.u.list->keys[i]} == "playlist_entry_id")
      entry = answer.u.list->values[i].u.int64;
  }
  mpv()->free_node_contents(&answer);
  return entry;
}

bool MpvEngine::command(std::initializer_list<const char*> words) {
  if (!handle_) return false;
  std::vector<const char*> command{words};
  command.push_back(nullptr);
  return mpv()->command(handle_.get(), command.data()) >= 0;
}

void MpvEngine::set(const char* property, bool value) {
  set(property, value ? "yes" : "no");
}

void MpvEngine::set(const char* property, double value) {
  set(property, fmt::format("{}", value).c_str());
}

void MpvEngine::set(const char* property, const char* value) {
  if (handle_) {
    mpv()->set_property_string(handle_.get(), property, value);
  } else {
    first_values_[property] = value;
  }
}

double MpvEngine::number(const char* property) const {
  if (!handle_) return std::atof(text(property).c_str());
  double value = 0;
  mpv()->get_property(handle_.get(), property, MPV_FORMAT_DOUBLE, &value);
  return std::isfinite(value) ? value : 0;
}

bool MpvEngine::flag(const char* property) const {
  if (!handle_) return text(property) == "yes";
  int value = 0;
  mpv()->get_property(handle_.get(), property, MPV_FORMAT_FLAG, &value);
  return value != 0;
}

std::string MpvEngine::text(const char* property) const {
  if (!handle_) {
    const auto first = first_values_.find(property);
    return first == first_values_.end() ? std::string{} : first->second;
  }
  char* value = mpv()->get_property_string(handle_.get(), property);
  std::string copy = value == nullptr ? std::string{} : std::string{value};
  mpv()->free(value);
  return copy;
}

const mpv_event& MpvEngine::next_event(double seconds) {
  static constexpr mpv_event none{};
  return handle_ ? *mpv()->wait_event(handle_.get(), seconds) : none;
}

}  // namespace host::media
