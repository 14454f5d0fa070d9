#pragma once

#include <string>

#include "host/screen/phone_body.h"

namespace host::browser {

/// The phone's body as an SVG picture, in points.
std::string picture_of(const screen::PhoneBody& body);

}  // namespace host::browser
