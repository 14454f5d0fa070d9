#include "host/browser/page/page_files.h"

#include <array>

namespace embedded {

extern const std::string_view index_html;
extern const std::string_view phone_css;
extern const std::string_view phone_js;
extern const std::string_view wire_js;

}  // namespace embedded

namespace host::browser {

std::span<const PageFile> page_files() {
  static const std::array files{
      PageFile{"/", "text/html; charset=utf-8", embedded::index_html},
      PageFile{"/phone.css", "text/css; charset=utf-8", embedded::phone_css},
      PageFile{"/phone.js", "text/javascript; charset=utf-8", embedded::phone_js},
      PageFile{"/wire.js", "text/javascript; charset=utf-8", embedded::wire_js},
  };
  return files;
}

}  // namespace host::browser
