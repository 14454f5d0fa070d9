#pragma once

namespace sonavue {

/// Makes the class `configurationController`: a page with a link to the style page. Nothing here
/// opens it, but other code may open it by name.
void make_configuration_page();

}  // namespace sonavue
