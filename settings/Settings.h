#pragma once

namespace sonavue {

/// Makes every class of the settings' pages whose base class exists in this process. Runs when the
/// library is loaded.
void make_settings_classes();

}  // namespace sonavue
