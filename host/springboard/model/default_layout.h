#pragma once

#include <vector>

#include "host/springboard/model/application_catalog.h"
#include "host/springboard/model/home_layout.h"

namespace host::springboard {

/// Returns the arrangement of a new phone. Applications that are not installed leave no gap;
/// unknown ones come last.
HomeLayout default_layout(HomeLayout::Capacity capacity,
                          const std::vector<InstalledApplication>& installed);

/// Makes an arrangement hold exactly the installed applications: removes those that are gone,
/// appends new ones after the last icon, and keeps only the first place of a duplicate.
HomeLayout fit_to_installed(const HomeLayout& saved,
                            const std::vector<InstalledApplication>& installed);

/// The identifiers that have a place in the default arrangement.
std::vector<std::string> default_applications();

}  // namespace host::springboard
