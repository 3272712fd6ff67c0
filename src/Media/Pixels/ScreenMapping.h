#pragma once

#include "Media/Pixels/PlanarReader.h"
#include "Media/Pixels/Plane.h"
#include "Media/Threading/Helpers.h"

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace media::pixels {

/// The colour description of a picture that a standard screen (BT.709 primaries, standard dynamic
/// range) cannot show unchanged.
struct ScreenColours {
    AVColorSpace matrix = AVCOL_SPC_BT709;
    AVColorTransferCharacteristic transfer = AVCOL_TRC_BT709;
    AVColorPrimaries primaries = AVCOL_PRI_BT709;

    [[nodiscard]] bool isHighDynamicRange() const {
        return transfer == AVCOL_TRC_SMPTE2084 || transfer == AVCOL_TRC_ARIB_STD_B67;
    }

    friend bool operator==(const ScreenColours&, const ScreenColours&) = default;
};

/// The colours of a frame if they have to be mapped: a PQ or HLG transfer, or the primaries of
/// BT.2020 or P3.
std::optional<ScreenColours> coloursToMap(const AVFrame& frame);

/// The picture's peak luminance as a multiple of 100 cd/m²: MaxCLL of the frame's content light
/// level, or else the mastering display's maximum; none if the frame has neither.
std::optional<float> statedPeak(const AVFrame& frame);

/// Maps pictures of one size and format to the screen: to linear light where 1 is 100 cd/m² (for
/// PQ and HLG), to BT.709 primaries, through Hable's filmic curve by the brightest component (PQ
/// and HLG only), to the transfer of BT.709 (or the source's own, of standard range). A large
/// picture is mapped in strips by several threads; it is the same whatever their number. Use from
/// one thread at a time.
class ScreenMapping {
public:
    /// `format` has full chroma (or is RGB). The result is Y′CbCr of 8 bits, full range, BT.709,
    /// with chroma on every 2^chromaShift-th pixel and line, which divides the picture's sides.
    /// `helpers`: who helps with large pictures. Throws Error if zimg cannot do it.
    ScreenMapping(const PlanarFormat& format, const ScreenColours& colours, int chromaShift,
                  std::shared_ptr<Helpers> helpers);
    ScreenMapping(const ScreenMapping&) = delete;
    ScreenMapping& operator=(const ScreenMapping&) = delete;
    ~ScreenMapping();

    /// `peak` as statedPeak() gives it.
    void run(const std::array<ConstPlane, 3>& in, const std::array<Plane, 3>& out, float peak);

private:
    class Strip;

    [[nodiscard]] std::unique_ptr<Strip> makeStrip() const;

    PlanarFormat m_format;
    ScreenColours m_colours;
    int m_chromaShift;
    std::shared_ptr<Helpers> m_helpers;
    int m_stripCount;
    /// What each worker works with, made when it first has a strip to map.
    std::vector<std::unique_ptr<Strip>> m_strips;
};

} // namespace media::pixels
