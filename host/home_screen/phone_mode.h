#pragma once

#include "host/activator/event/mode.h"

namespace host::launcher {

/// What this phone shows, for the gesture service.
class PhoneMode final : public activator::ModeProvider {
 public:
  activator::Mode present_mode() const override;
};

}  // namespace host::launcher
