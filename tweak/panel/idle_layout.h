#pragma once

namespace sonavue {

/// The layout while a song plays: texts between the artwork and the controls.
void lay_out_full();

/// The layout while nothing plays: no texts, and the controls moved up.
void lay_out_compact();

}  // namespace sonavue
