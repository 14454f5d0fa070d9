#pragma once

namespace sonavue {

/// Makes every class of the settings' pages whose base is there. The load of the library does it.
void make_settings_classes();

}  // namespace sonavue
