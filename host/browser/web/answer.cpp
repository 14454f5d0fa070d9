#include "host/browser/web/answer.h"

#include <fmt/format.h>
#include <glib.h>

#include <algorithm>

namespace host::browser {
namespace {

constexpr int kSwitchingProtocols = 101;
constexpr int kBadRequest = 400;
constexpr int kForbidden = 403;
constexpr int kNotFound = 404;
constexpr int kMethodNotAllowed = 405;
constexpr int kUpgradeRequired = 426;

constexpr std::string_view kSafety =
    "Cache-Control: no-store\r\n"
    "X-Content-Type-Options: nosniff\r\n"
    "X-Frame-Options: DENY\r\n"
    "Referrer-Policy: no-referrer\r\n"
    "Cross-Origin-Opener-Policy: same-origin\r\n"
    "Cross-Origin-Resource-Policy: same-origin\r\n";

std::string_view reason(int status) {
  switch (status) {
    case kBadRequest:
      return "Bad Request";
    case kForbidden:
      return "Forbidden";
    case kNotFound:
      return "Not Found";
    case kMethodNotAllowed:
      return "Method Not Allowed";
    case kUpgradeRequired:
      return "Upgrade Required";
    default:
      return "OK";
  }
}

Answer made(int status, std::string_view type, std::string_view body,
            std::string_view more_headers = {}) {
  return {status,
          fmt::format("HTTP/1.1 {} {}\r\n{}{}Content-Type: {}\r\nContent-Length: {}\r\n"
                      "Connection: close\r\n\r\n{}",
                      status, reason(status), kSafety, more_headers, type, body.size(), body)};
}

Answer refused(int status, std::string_view text, std::string_view more_headers = {}) {
  return made(status, "text/plain; charset=utf-8", fmt::format("{}\n", text), more_headers);
}

bool is_port(std::string_view text) {
  constexpr std::size_t kLongestPort = 5;
  return !text.empty() && text.size() <= kLongestPort &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Any port: one that `ssh -L` forwards may have another number here than there.
bool is_this_machine(std::string_view host) {
  for (const std::string_view name : {"127.0.0.1", "localhost", "[::1]"}) {
    if (!host.starts_with(name)) continue;
    const std::string_view rest = host.substr(name.size());
    return rest.empty() || (rest.front() == ':' && is_port(rest.substr(1)));
  }
  return false;
}

std::string policy(std::string_view host) {
  return fmt::format(
      "Content-Security-Policy: default-src 'none'; script-src 'self'; style-src 'self'; "
      "img-src 'self'; connect-src 'self' ws://{}; base-uri 'none'; form-action 'none'; "
      "frame-ancestors 'none'\r\n",
      host);
}

/// The answer to the key of a handshake (RFC 6455, 4.2.2).
std::string proof(std::string_view key) {
  GChecksum* const sum = g_checksum_new(G_CHECKSUM_SHA1);
  for (const std::string_view part :
       {key, std::string_view("258EAFA5-E914-47DA-95CA-C5AB0DC85B11")})
    g_checksum_update(sum, reinterpret_cast<const guchar*>(part.data()),
                      static_cast<gssize>(part.size()));
  constexpr gsize kDigestLength = 20;
  guint8 digest[kDigestLength];
  gsize length = kDigestLength;
  g_checksum_get_digest(sum, digest, &length);
  g_checksum_free(sum);
  gchar* const text = g_base64_encode(digest, length);
  std::string result = text;
  g_free(text);
  return result;
}

/// 16 bytes in base 64.
bool is_key(std::string_view key) {
  constexpr std::size_t kLength = 24;
  return key.size() == kLength && key.ends_with("==") &&
         std::all_of(key.begin(), key.end() - 2,
                     [](char c) { return g_ascii_isalnum(c) || c == '+' || c == '/'; });
}

}  // namespace

std::optional<Answer> refusal(const Request& request) {
  if (request.method != "GET")
    return refused(kMethodNotAllowed, "Only GET is known here.", "Allow: GET\r\n");
  if (!is_this_machine(request.header("host")))
    return refused(kForbidden, "The phone is only here for pages of this machine.");
  return std::nullopt;
}

Answer answer(const Request& request, std::span<const PageFile> files) {
  const auto found = std::find_if(files.begin(), files.end(), [&request](const PageFile& file) {
    return file.target == request.target;
  });
  if (found == files.end()) return refused(kNotFound, "There is nothing here.");
  return made(200, found->type, found->bytes, policy(request.header("host")));
}

Answer handshake(const Request& request) {
  if (request.header("origin") != fmt::format("http://{}", request.header("host")))
    return refused(kForbidden, "The phone is only here for its own page.");
  if (request.header("sec-websocket-version") != "13")
    return refused(kUpgradeRequired, "Only version 13 of WebSocket is known here.",
                   "Sec-WebSocket-Version: 13\r\n");
  const std::string_view key = request.header("sec-websocket-key");
  if (!is_key(key)) return refused(kBadRequest, "The key of the WebSocket is missing.");
  return {kSwitchingProtocols,
          fmt::format("HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\n"
                      "Connection: Upgrade\r\nSec-WebSocket-Accept: {}\r\n\r\n",
                      proof(key))};
}

}  // namespace host::browser
