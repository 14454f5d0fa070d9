#include "host/browser/page/page_files.h"

#include <array>

namespace embedded {

extern const std::string_view index_html;
extern const std::string_view phone_css;
extern const std::string_view phone_js;
extern const std::string_view views_css;
extern const std::string_view views_details_js;
extern const std::string_view views_js;
extern const std::string_view views_outline_js;
extern const std::string_view views_tree_js;
extern const std::string_view views_words_js;
extern const std::string_view wire_js;

}  // namespace embedded

namespace host::browser {

std::span<const PageFile> page_files() {
  static const std::array files{
      PageFile{"/", "text/html; charset=utf-8", embedded::index_html},
      PageFile{"/phone.css", "text/css; charset=utf-8", embedded::phone_css},
      PageFile{"/phone.js", "text/javascript; charset=utf-8", embedded::phone_js},
      PageFile{"/views.css", "text/css; charset=utf-8", embedded::views_css},
      PageFile{"/views.js", "text/javascript; charset=utf-8", embedded::views_js},
      PageFile{"/views_details.js", "text/javascript; charset=utf-8", embedded::views_details_js},
      PageFile{"/views_outline.js", "text/javascript; charset=utf-8", embedded::views_outline_js},
      PageFile{"/views_tree.js", "text/javascript; charset=utf-8", embedded::views_tree_js},
      PageFile{"/views_words.js", "text/javascript; charset=utf-8", embedded::views_words_js},
      PageFile{"/wire.js", "text/javascript; charset=utf-8", embedded::wire_js},
  };
  return files;
}

}  // namespace host::browser
