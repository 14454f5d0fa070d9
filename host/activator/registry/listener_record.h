#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/activator/event/mode.h"

namespace host::activator {

/// What is known of a listener without querying it.
struct ListenerRecord {
  std::string name;
  /// Empty when the listener has none: pages then show its name.
  std::string title;
  std::string description;
  std::string group;
  /// A picture file of the device; empty for none.
  std::string icon;
  /// The modes that the listener supports; nothing means every mode.
  std::optional<std::vector<std::string>> modes;

  const std::string& shown_title() const { return title.empty() ? name : title; }
  bool admits(std::string_view mode) const;

  friend bool operator==(const ListenerRecord&, const ListenerRecord&) = default;
};

}  // namespace host::activator
