#pragma once

namespace host::process {

/// Makes every class of the platform that the home screen's process offers, base first.
void export_platform_classes();

}  // namespace host::process
