#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Foundation/NSDictionary.h"

namespace host::activator {

/// The listeners that the user has assigned to each event. Names are kept unchanged, including
/// those of listeners that are not registered at the moment.
class Assignments {
 public:
  using Listeners = std::vector<std::string>;

  /// In the order of their assignment; empty when nothing is assigned.
  const Listeners& listeners(const std::string& event, const std::string& mode) const;
  bool contains(const std::string& event, const std::string& mode,
                const std::string& listener) const;
  /// Return false when nothing changed.
  bool add(const std::string& event, const std::string& mode, const std::string& listener);
  bool remove(const std::string& event, const std::string& mode, const std::string& listener);

  /// A property list of the form {mode: {event: [listener…]}}.
  NSDictionary property_list() const;
  /// Empty when the list has another form.
  static std::optional<Assignments> from(NSDictionary list);

 private:
  std::map<std::string, std::map<std::string, Listeners>> modes_;
};

}  // namespace host::activator
