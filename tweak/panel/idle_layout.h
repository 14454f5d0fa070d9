#pragma once

namespace sonavue {

/// The layout while a song plays: texts between the artwork and the controls.
void lay_out_full();

/// The layout while nothing plays: no texts, the controls up in their place.
void lay_out_compact();

}  // namespace sonavue
