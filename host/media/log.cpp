#include "host/media/log.h"

#include <spdlog/spdlog.h>

namespace host::media {

void log_note(std::string_view text) {
  spdlog::info("media: {}", text);
}

void log_warning(std::string_view text) {
  spdlog::warn("media: {}", text);
}

}  // namespace host::media
