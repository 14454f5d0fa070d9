#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Foundation/NSDictionary.h"

namespace host::activator {

/// Which listeners the user has given an event to. Names are kept as they stand, also those of
/// listeners that are not registered just now.
class Assignments {
 public:
  using Listeners = std::vector<std::string>;

  /// In the order of their assignment; empty for what is assigned to nobody.
  const Listeners& listeners(const std::string& event, const std::string& mode) const;
  bool contains(const std::string& event, const std::string& mode,
                const std::string& listener) const;
  /// False when it was so already.
  bool add(const std::string& event, const std::string& mode, const std::string& listener);
  bool remove(const std::string& event, const std::string& mode, const std::string& listener);

  /// A property list of the form {mode: {event: [listener…]}}.
  NSDictionary property_list() const;
  /// Nothing for what has another form.
  static std::optional<Assignments> from(NSDictionary list);

 private:
  std::map<std::string, std::map<std::string, Listeners>> modes_;
};

}  // namespace host::activator
