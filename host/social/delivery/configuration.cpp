#include "host/social/delivery/configuration.h"

#include <cstdlib>
#include <utility>

namespace host::social {
namespace {

Configuration current;

}  // namespace

void configure(Configuration configuration) {
  current = std::move(configuration);
}

const Configuration& configuration() {
  return current;
}

std::filesystem::path default_share_target_file() {
  const char* settings = std::getenv("XDG_CONFIG_HOME");
  const char* home = std::getenv("HOME");
  std::filesystem::path folder;
  if (settings && *settings) {
    folder = settings;
  } else if (home && *home) {
    folder = std::filesystem::path(home) / ".config";
  } else {
    return {};
  }
  return folder / "sonavue" / "share-target";
}

}  // namespace host::social
