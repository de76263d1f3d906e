#pragma once

#include <cstdint>
#include <vector>

namespace lumora {

/// What a fill bar measures along the way that it fills, in the scale of the control.
struct FillBarMeasure {
    double Full = 0.0;      ///< the control: its width, or its height where it fills upward
    double TickLabel = 0.0; ///< its first tick label
    double Border = 0.0;    ///< its border
};

/// Where the filled part ends, from the bar's start: Value / (Max - Min) of what the style leaves
/// of the full length, to nearest, half to even. Min is not taken off Value. Styles 0 and 1 keep
/// room for a tick label, 2 for the border, others none. Errors 11 (Max = Min) and 6.
std::int32_t FillLength(const FillBarMeasure& measure, std::int32_t BorderStyle, std::int32_t Value,
                        std::int32_t Min, std::int32_t Max);

/// Places of the tick labels from the bar's start, one at the end of each of TickFrequency equal
/// steps over what the style leaves of the full length; as much is left at either end. None where
/// TickFrequency is below 1.
std::vector<double> TickPlaces(const FillBarMeasure& measure, std::int32_t BorderStyle,
                               std::int16_t TickFrequency);

} // namespace lumora
