#pragma once

#include <systemd/sd-bus.h>

namespace host::desktop {

/// The methods and properties of `PlayersInterface`, as the bus's library dispatches them.
struct PlayerTables {
  static const sd_bus_vtable root[];
  static const sd_bus_vtable player[];

 private:
  struct Handlers;
};

}  // namespace host::desktop
