#pragma once

#include "Media/Composition.h"
#include "Media/Process/Server/ServedObject.h"

namespace media::process {

/// Exports into a descriptor. Opens the source itself, from a descriptor too. Reports the fraction
/// done while it works; answers with 0, or with the errno that writing failed with.
class ExportService final : public Service {
public:
    void perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                 const Report& report, const std::stop_token& stop) override;
};

/// Forecasts an export.
class ForecastService final : public Service {
public:
    void perform(std::int32_t operation, MessageReader& arguments, MessageWriter& answer,
                 const Report& report, const std::stop_token& stop) override;
};

} // namespace media::process
