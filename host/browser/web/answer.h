#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/browser/web/request.h"

namespace host::browser {

/// A file that pages are made of.
struct PageFile {
  std::string_view target;  ///< `/phone.js`, for instance.
  std::string_view type;    ///< With its character set, if it is text.
  std::string_view bytes;
};

/// What is answered to a request that does not become a WebSocket.
struct Answer {
  int status = 200;
  std::string bytes;  ///< The whole answer, head and body.
};

/// Refuses what no page of ours asks: other methods, and names of this machine that a page from
/// elsewhere could have been given by its name server. Nothing when there is no reason to refuse.
std::optional<Answer> refusal(const Request& request);

/// The file, with a policy that lets the page load nothing from elsewhere, or "not found".
Answer answer(const Request& request, std::span<const PageFile> files);

/// Accepts a WebSocket, or refuses a page from elsewhere and an invalid handshake.
Answer handshake(const Request& request);

}  // namespace host::browser
