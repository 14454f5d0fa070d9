#pragma once

#include <span>

#include "host/browser/web/answer.h"

namespace host::browser {

/// The files of the phone's page.
std::span<const PageFile> page_files();

}  // namespace host::browser
