#pragma once

#include "Media/Pixels/Plane.h"

namespace media::pixels {

/// One plane of three pictures in a row, each woven of two fields taken at different moments.
struct FieldPlanes {
    ConstPlane previous;
    ConstPlane current;
    ConstPlane following;
};

/// Makes a plane that shows one moment only, that of the current picture's first field: its lines
/// are kept, those of the second field are computed from the lines around them in place and in
/// time, the more from those of other moments the less moves there.
///
/// The rule is that of the "Bob Weaver" filter (bwdif): a bound by the change over time, as in
/// yadif, around the taps of Weston's three-field interpolation. All planes have one size and
/// depth; `keepsTop` says that the first field is the one of line 0.
void interpolateSecondField(const FieldPlanes& in, int depth, bool keepsTop, Plane out);

} // namespace media::pixels
