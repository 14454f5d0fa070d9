#pragma once

#include "host/activator/event/mode.h"

namespace host::launcher {

/// Tells the gesture service what this phone is showing.
class PhoneMode final : public activator::ModeProvider {
 public:
  activator::Mode present_mode() const override;
};

}  // namespace host::launcher
