#pragma once

namespace sonavue {

/// The class `SonavueSettingsController`: the first page.
void make_root_page();

}  // namespace sonavue
