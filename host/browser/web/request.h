#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

struct http_parser;

namespace host::browser {

/// A request's head. The headers' names are in lower case.
struct Request {
  std::string method;
  std::string target;
  std::map<std::string, std::string, std::less<>> headers;

  /// Empty without this header.
  std::string_view header(std::string_view name) const;
  /// True when the page asks for a WebSocket.
  bool wants_socket() const;
};

/// Reads one request from untrusted bytes that arrive in pieces.
class RequestReader {
 public:
  static constexpr std::size_t kLongestHead = 16 * 1024;

  RequestReader();
  ~RequestReader();

  enum class State { kIncomplete, kComplete, kInvalid, kTooLong };
  State append(std::string_view bytes);
  const Request& request() const { return request_; }
  /// The bytes behind the head.
  const std::string& rest() const { return rest_; }

 private:
  struct Callbacks;
  void end_header();

  std::unique_ptr<http_parser> parser_;
  Request request_;
  std::string name_;
  std::string value_;
  bool has_value_ = false;  // which may be empty
  std::string rest_;
  std::size_t size_ = 0;
  bool is_complete_ = false;
};

}  // namespace host::browser
