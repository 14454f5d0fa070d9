#pragma once

namespace sonavue {

/// The class `configurationController`: a page before the style page, for whoever opens it by name.
void make_configuration_page();

}  // namespace sonavue
