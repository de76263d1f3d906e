#include "cli/PitchReport.h"

#include "cli/Wording.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdio>

namespace lumora {

namespace {

/// How many times faster than listening to it.
double TimesRealTime(const PitchFigures& figures)
{
    constexpr double kShortest = 1e-6; // the clock's own step
    const double seconds = static_cast<double>(figures.samples) / figures.rate_hz;
    return seconds / std::max(figures.elapsed_seconds, kShortest);
}

/// A change was asked for that is smaller than the engine's step at this rate.
bool IsTooFine(const PitchSetting& setting, double made)
{
    return setting.Q_P != 1.0 && made == 0.0;
}

} // namespace

std::string PitchReport::Line() const
{
    const PitchFigures& figures = outcome.figures.value();
    const double made = setting.CentsMade(figures.rate_hz);
    std::string line = NameText(file) + " -> " + NameText(output) + ": " +
                       LengthText(figures.samples, figures.rate_hz) + ", " + setting.asked + " = " +
                       CentsText(setting.cents_asked) + " cents, ";
    if (IsTooFine(setting, made))
        line += "too fine for this sample rate: the pitch stays as it is";
    else
        line += "the engine gives " + CentsText(made) + " cents";
    char speed[40];
    std::snprintf(speed, sizeof speed, ", %.0f times real time", TimesRealTime(figures));
    return line + speed;
}

nlohmann::ordered_json PitchReport::Json() const
{
    nlohmann::ordered_json json = {{"file", file},
                                   {"output", output},
                                   {"change", setting.asked},
                                   {"q_p", setting.Q_P},
                                   {"asked_cents", setting.cents_asked},
                                   {"notes", outcome.notes},
                                   {"ok", outcome.error.empty()}};
    if (!outcome.error.empty()) json["error"] = outcome.error;
    if (!outcome.figures) return json;
    const PitchFigures& figures = *outcome.figures;
    const double made = setting.CentsMade(figures.rate_hz);
    json.update({{"rate_hz", figures.rate_hz},
                 {"channels", figures.channels},
                 {"samples", figures.samples},
                 {"seconds", static_cast<double>(figures.samples) / figures.rate_hz},
                 {"output_samples", figures.output_samples},
                 {"block_samples", figures.block_samples},
                 {"effective_cents", made},
                 {"too_fine", IsTooFine(setting, made)},
                 {"elapsed_seconds", figures.elapsed_seconds},
                 {"times_real_time", TimesRealTime(figures)}});
    return json;
}

} // namespace lumora
