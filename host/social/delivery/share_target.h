#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "host/social/delivery/hand_over.h"

namespace host::social {

/// The address that a text is shared at, with `{text}` where the text goes. By default that is a
/// new letter of the user's mail program. Who wants another service writes one line with its
/// address into `$XDG_CONFIG_HOME/sonavue/share-target`, such as
/// `https://example.org/share?text={text}`.
class ShareTarget {
 public:
  static constexpr std::string_view kDefault = "mailto:?subject=Now%20playing&body={text}";

  ShareTarget() = default;
  /// What the file says. A file that is missing, or whose first line is no such address, means the
  /// default; the latter is logged.
  static ShareTarget read(const std::filesystem::path& file);

  /// The text is percent-encoded, so that no sign of it is taken for one of the address.
  std::string address_for(std::string_view text) const;

 private:
  std::string address_{kDefault};
};

/// Gives a text away: to the share target where there is a desktop, otherwise, or when the desktop
/// does not take it, to the device's outbox. When nobody takes it the reason is in the log.
HandedTo hand_over_share(std::string_view text);

}  // namespace host::social
