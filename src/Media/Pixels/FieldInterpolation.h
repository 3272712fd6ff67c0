#pragma once

#include "Media/Pixels/Plane.h"

namespace media::pixels {

/// One plane of three pictures in a row, each woven of two fields taken at different moments.
struct FieldPlanes {
    ConstPlane previous;
    ConstPlane current;
    ConstPlane following;
};

/// Deinterlaces a plane: keeps the lines of the current picture's first field and computes those of
/// the second from the lines around them in space and time. The less moves at a place, the more
/// weight the fields before and after get there.
///
/// The rule is that of the "Bob Weaver" filter (bwdif): a bound by the change over time, as in
/// yadif, around the taps of Weston's three-field interpolation. All planes have one size and
/// depth; `keepsTop` says that the first field is the one of line 0.
void interpolateSecondField(const FieldPlanes& in, int depth, bool keepsTop, Plane out);

} // namespace media::pixels
