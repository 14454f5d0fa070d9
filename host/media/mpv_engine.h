#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/basics/event_signal.h"

struct mpv_handle;
struct mpv_event;

namespace host::media {

// libmpv without its configuration, scripts and windows: sound only. It is loaded and started with
// the first file, since it brings a hundred libraries; until then properties have the values that
// they will start with.
class MpvEngine {
 public:
  struct Option {
    const char* name;
    const char* value;
  };
  // The engine's name for a file in its list. It is never given twice.
  using Entry = std::int64_t;

  // `signal` is raised when there are events.
  MpvEngine(const std::vector<Option>& options, EventSignal& signal);
  ~MpvEngine();
  MpvEngine(const MpvEngine&) = delete;
  MpvEngine& operator=(const MpvEngine&) = delete;

  // False when the engine cannot be created or does not know an option.
  bool start();
  bool is_started() const { return handle_ != nullptr; }
  // Replaces the list by this file, which is then opened. Nothing when the engine refuses it.
  std::optional<Entry> load(const std::string& path);
  // Puts the file at the end of the list; an engine that has come to the end continues with it.
  std::optional<Entry> append(const std::string& path);

  bool command(std::initializer_list<const char*> words);
  void set(const char* property, bool value);
  void set(const char* property, double value);
  void set(const char* property, const char* value);
  // 0, false or an empty text when the property has no value now.
  double number(const char* property) const;
  bool flag(const char* property) const;
  std::string text(const char* property) const;

  // The next event; waits for up to `seconds` for it. Valid until the next call.
  const mpv_event& next_event(double seconds);

 private:
  struct Destroy {
    void operator()(mpv_handle* handle) const;
  };

  std::optional<Entry> add(const std::string& path, const char* how);

  EventSignal& signal_;
  std::map<std::string, std::string> first_values_;
  std::unique_ptr<mpv_handle, Destroy> handle_;  // Null until the engine is started.
};

}  // namespace host::media
