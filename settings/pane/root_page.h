#pragma once

namespace sonavue {

/// Makes the class `SonavueSettingsController`: the first page.
void make_root_page();

}  // namespace sonavue
