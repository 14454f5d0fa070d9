#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "host/social/delivery/hand_over.h"

namespace host::social {

/// The address for sharing a text, with `{text}` as the placeholder. The default is a new letter in
/// the user's mail program. To use another service, users write one line with its address into
/// `$XDG_CONFIG_HOME/sonavue/share-target`, such as `https://example.org/share?text={text}`.
class ShareTarget {
 public:
  static constexpr std::string_view kDefault = "mailto:?subject=Now%20playing&body={text}";

  ShareTarget() = default;
  /// Reads the file's address. If the file is missing, or its first line is not such an address,
  /// returns the default; the latter case is logged.
  static ShareTarget read(const std::filesystem::path& file);

  /// Inserts the text, percent-encoded.
  std::string address_for(std::string_view text) const;

 private:
  std::string address_{kDefault};
};

/// Delivers a text: to the share target if there is a desktop, otherwise, or when the desktop does
/// not accept it, to the device's outbox. If both fail, the log gives the reason.
HandedTo hand_over_share(std::string_view text);

}  // namespace host::social
