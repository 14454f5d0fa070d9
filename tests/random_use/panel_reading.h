#pragma once

#include <optional>
#include <string>

#include "tests/launcher_e2e/running_phone.h"

namespace random_use {

/// What the console says of the panel at one moment.
struct PanelReading {
  bool is_show = false;
  bool is_banner = false;
  bool showed = false;
  bool twin_hidden = false;
  bool takes_touches = false;
  double cover_alpha = 0;
  double container_alpha = 0;
  double top = 0;  // of the panel's window
  double height = 0;
};

/// Nothing when the phone did not answer as it should.
std::optional<PanelReading> read_panel(launcher_e2e::RunningPhone& phone);

/// Where the panel rests, as far as its flags tell.
enum class Rest {
  kClosed,
  kHalfOut,  // an icon drag that the system took away from the finger
  kOpen,
  kHalfBack,  // the same of a drag back
  kHanging,
  kBannerOpen,
  kMixed,  // a banner called while the icon's panel was on its way
};

Rest rest_of(const PanelReading& reading);
const char* name_of(Rest rest);

/// What contradicts the place where the panel says it rests; empty when nothing does.
std::string contradiction(const PanelReading& reading);

}  // namespace random_use
