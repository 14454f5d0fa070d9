#pragma once

#include "bench/screen/screen_server.h"

namespace bench {

/// The phone's page for browsers.
std::unique_ptr<ScreenServer> serve_page(host::screen::Input& input);
/// Does what the page's script does with what it is sent.
void look_as_page(Seen& seen, const Address& server);

}  // namespace bench
