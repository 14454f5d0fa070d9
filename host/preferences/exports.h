#pragma once

namespace host::preferences {

/// Registers settings pages and their parts. Requires navigation controllers.
void export_preferences();

}  // namespace host::preferences
