#include "host/launcher/browser_door.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "host/browser/access/access.h"
#include "host/browser/access/loopback.h"

namespace host::launcher {

BrowserDoor BrowserDoor::open(std::string& problem) {
  BrowserDoor door{browser::listen_on_loopback(), browser::Access::make()};
  if (door.listener && door.access) return door;
  problem = "no page can be offered to a browser: " +
            std::error_code(errno, std::generic_category()).message();
  return {};
}

std::string BrowserDoor::link() const {
  const auto known = browser::Access::open(access.get());
  if (!known) return {};
  return browser::link_to(listener.get(), known->token()).value_or(std::string());
}

void say_link(const std::string& link) {
  std::fprintf(stderr, "The phone is at %s\n", link.c_str());
}

}  // namespace host::launcher
