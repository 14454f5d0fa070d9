#pragma once

#include "bench/screen/screen_server.h"

namespace bench {

/// libvncserver, which encodes in threads of its own. Null when it was not installed when this was
/// built.
std::unique_ptr<ScreenServer> serve_vnc();
/// libvncclient with what noVNC asks for: Tight with JPEG of quality 6 and compression of level 2.
void look_as_vnc(Seen& seen, const Address& server);

}  // namespace bench
