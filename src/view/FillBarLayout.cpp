#include "view/FillBarLayout.h"

#include "base/Numbers.h"

namespace lumora {

namespace {

/// A label, or the border, and a little air.
constexpr double kRoomPart = 1.1;
constexpr double kBorderPartOfTicks = 0.3;

double FillRoom(const FillBarMeasure& measure, std::int32_t BorderStyle)
{
    switch (BorderStyle) {
    case 0:
    case 1:
        return measure.TickLabel;
    case 2:
        return measure.Border;
    default:
        return 0.0;
    }
}

/// What ticks leave free of the full length, both ends together.
double TickRoom(const FillBarMeasure& measure, std::int32_t BorderStyle)
{
    switch (BorderStyle) {
    case 0:
    case 1:
    case 3:
        return 2.0 * measure.TickLabel;
    case 2:
        return kBorderPartOfTicks * measure.Border;
    default:
        return 0.0;
    }
}

} // namespace

std::int32_t FillLength(const FillBarMeasure& measure, std::int32_t BorderStyle, std::int32_t Value,
                        std::int32_t Min, std::int32_t Max)
{
    const double usable = measure.Full - kRoomPart * FillRoom(measure, BorderStyle);
    return CLng(Divide(usable * Value, CLng(std::int64_t{Max} - Min)));
}

std::vector<double> TickPlaces(const FillBarMeasure& measure, std::int32_t BorderStyle,
                               std::int16_t TickFrequency)
{
    const double room = TickRoom(measure, BorderStyle);
    const double spread = measure.Full - room;
    std::vector<double> places;
    for (std::int32_t step = 1; step <= TickFrequency; ++step)
        places.push_back(room / 2.0 + spread * step / TickFrequency);
    return places;
}

} // namespace lumora
