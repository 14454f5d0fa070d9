#include "host/activator/assignment/assignments.h"

#include <algorithm>

#include "host/activator/event/strings.h"

namespace host::activator {
namespace {

template <objc::Handle T>
T kind_or_nil(objc::Object object) {
  const T typed = objc::cast<T>(object);
  return typed.isKindOfClass(T::cls()) ? typed : T();
}

std::optional<Assignments::Listeners> read_listeners(objc::Object object) {
  const auto list = kind_or_nil<NSArray>(object);
  if (!list) return std::nullopt;
  Assignments::Listeners listeners;
  for (const objc::Object entry : list.of()) {
    std::string name = to_string(entry);
    if (name.empty()) return std::nullopt;
    listeners.push_back(std::move(name));
  }
  return listeners;
}

}  // namespace

const Assignments::Listeners& Assignments::listeners(const std::string& event,
                                                     const std::string& mode) const {
  static const Listeners none;
  const auto events = modes_.find(mode);
  if (events == modes_.end()) return none;
  const auto found = events->second.find(event);
  return found == events->second.end() ? none : found->second;
}

bool Assignments::contains(const std::string& event, const std::string& mode,
                           const std::string& listener) const {
  const Listeners& all = listeners(event, mode);
  return std::find(all.begin(), all.end(), listener) != all.end();
}

bool Assignments::add(const std::string& event, const std::string& mode,
                      const std::string& listener) {
  if (contains(event, mode, listener)) return false;
  modes_[mode][event].push_back(listener);
  return true;
}

bool Assignments::remove(const std::string& event, const std::string& mode,
                         const std::string& listener) {
  if (!contains(event, mode, listener)) return false;
  auto& events = modes_[mode];
  std::erase(events[event], listener);
  if (events[event].empty()) events.erase(event);
  return true;
}

NSDictionary Assignments::property_list() const {
  const auto list = NSMutableDictionary::dictionary();
  for (const auto& [mode, events] : modes_) {
    const auto of_mode = NSMutableDictionary::dictionary();
    for (const auto& [event, listeners] : events) {
      const auto names = NSMutableArray::array();
      for (const std::string& listener : listeners)
        names.addObject(to_ns(listener));
      of_mode.setObject(names, to_ns(event));
    }
    list.setObject(of_mode, to_ns(mode));
  }
  return list;
}

std::optional<Assignments> Assignments::from(NSDictionary list) {
  if (!kind_or_nil<NSDictionary>(list)) return std::nullopt;
  Assignments read;
  for (const objc::Object mode : list.allKeys().of()) {
    const auto events = kind_or_nil<NSDictionary>(list.objectForKey(mode));
    if (!events) return std::nullopt;
    for (const objc::Object event : events.allKeys().of()) {
      auto listeners = read_listeners(events.objectForKey(event));
      if (!listeners) return std::nullopt;
      read.modes_[to_string(mode)][to_string(event)] = std::move(*listeners);
    }
  }
  return read;
}

}  // namespace host::activator
