#pragma once

namespace host::social {

/// Makes the classes of the composers; views and text views must have been made. A second call does
/// nothing.
void export_social();

}  // namespace host::social
