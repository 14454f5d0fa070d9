#include "host/browser/web/request.h"

#include <http_parser.h>

namespace host::browser {
namespace {

std::string in_lower_case(std::string_view text) {
  std::string made(text);
  for (char& letter : made) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return made;
}

}  // namespace

std::string_view Request::header(std::string_view name) const {
  const auto found = headers.find(name);
  return found == headers.end() ? std::string_view() : found->second;
}

bool Request::wants_socket() const {
  return in_lower_case(header("upgrade")) == "websocket";
}

struct RequestReader::Callbacks {
  static RequestReader& reader(http_parser* parser) {
    return *static_cast<RequestReader*>(parser->data);
  }
  static int url(http_parser* parser, const char* bytes, std::size_t size) {
    reader(parser).request_.target.append(bytes, size);
    return 0;
  }
  static int name(http_parser* parser, const char* bytes, std::size_t size) {
    RequestReader& self = reader(parser);
    if (self.has_value_) self.end_header();
    self.name_.append(bytes, size);
    return 0;
  }
  static int value(http_parser* parser, const char* bytes, std::size_t size) {
    RequestReader& self = reader(parser);
    self.value_.append(bytes, size);
    self.has_value_ = true;
    return 0;
  }
  // Any result but 0 ends the parsing: a body has no meaning here.
  static int head_is_complete(http_parser* parser) {
    RequestReader& self = reader(parser);
    self.end_header();
    self.request_.method = http_method_str(static_cast<http_method>(parser->method));
    self.is_complete_ = true;
    http_parser_pause(parser, 1);
    return 0;
  }
};

RequestReader::RequestReader() : parser_(std::make_unique<http_parser>()) {
  http_parser_init(parser_.get(), HTTP_REQUEST);
  parser_->data = this;
}

RequestReader::~RequestReader() = default;

void RequestReader::end_header() {
  if (!name_.empty()) {
    // A header that is repeated matches nothing that is expected of it.
    std::string& value = request_.headers[in_lower_case(name_)];
    value += value.empty() ? value_ : ", " + value_;
  }
  name_.clear();
  value_.clear();
  has_value_ = false;
}

RequestReader::State RequestReader::append(std::string_view bytes) {
  static const http_parser_settings settings = [] {
    http_parser_settings made;
    http_parser_settings_init(&made);
    made.on_url = &Callbacks::url;
    made.on_header_field = &Callbacks::name;
    made.on_header_value = &Callbacks::value;
    made.on_headers_complete = &Callbacks::head_is_complete;
    return made;
  }();
  const std::size_t read =
      http_parser_execute(parser_.get(), &settings, bytes.data(), bytes.size());
  size_ += read;
  if (size_ > kLongestHead) return State::kTooLong;
  if (is_complete_) {
    // The parser stops at the head's last byte, which is a line feed.
    const std::string_view unread = bytes.substr(read);
    rest_ = unread.starts_with('\n') ? unread.substr(1) : unread;
    return State::kComplete;
  }
  return HTTP_PARSER_ERRNO(parser_.get()) == HPE_OK ? State::kIncomplete : State::kInvalid;
}

}  // namespace host::browser
