#include "host/social/delivery/hand_over.h"

#include "host/foundation/device_paths.h"
#include "host/runtime/log.h"
#include "host/social/delivery/configuration.h"
#include "host/social/delivery/outbox.h"

namespace host::social {

HandedTo put_into_outbox(std::string_view kind, std::string_view text) {
  const Outbox outbox(foundation::path_on_this_machine(configuration().outbox));
  const Outbox::Result result = outbox.put(kind, text);
  if (!result) return HandedTo::Failed;
  spdlog::info("a text of kind {} is in the outbox: {}", kind, result.file.string());
  return HandedTo::Outbox;
}

HandedTo hand_over(std::string_view kind, const std::string& address, std::string_view text) {
  if (configuration().desktop == Desktop::Absent) return put_into_outbox(kind, text);
  const auto problem = open_on_desktop(
      address,
      [kind = std::string(kind), text = std::string(text)] { put_into_outbox(kind, text); });
  if (!problem) return HandedTo::Desktop;
  spdlog::warn("the desktop does not accept a text of kind {}: {}", kind, *problem);
  return put_into_outbox(kind, text);
}

}  // namespace host::social
