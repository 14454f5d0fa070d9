#pragma once

#include <vector>

#include "host/springboard/model/application_catalog.h"
#include "host/springboard/model/home_layout.h"

namespace host::springboard {

/// Where the icons of a phone that nobody has arranged yet stand. Applications that are not
/// installed leave no gap, and ones that it does not know come last.
HomeLayout default_layout(HomeLayout::Capacity capacity,
                          const std::vector<InstalledApplication>& installed);

/// Makes an arrangement hold exactly what is installed: what is gone is taken out, what is new
/// comes behind the last icon, what stands twice keeps its first place.
HomeLayout fit_to_installed(const HomeLayout& saved,
                            const std::vector<InstalledApplication>& installed);

/// The identifiers that the default arrangement knows.
std::vector<std::string> default_applications();

}  // namespace host::springboard
