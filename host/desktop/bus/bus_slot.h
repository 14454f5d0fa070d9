#pragma once

#include <systemd/sd-bus.h>

#include <memory>

namespace host::desktop {

struct ReleaseBusThing {
  void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
  void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
  void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};

using BusRef = std::unique_ptr<sd_bus, ReleaseBusThing>;
using MessageRef = std::unique_ptr<sd_bus_message, ReleaseBusThing>;
/// Something that a client has on a connection: an object, a signal that it listens to, or a call
/// that is not answered yet. Ends when it is released.
using SlotRef = std::unique_ptr<sd_bus_slot, ReleaseBusThing>;

}  // namespace host::desktop
