#pragma once

#include <string>

namespace lumora {

/// How far to move the pitch. Texts come from the command line; UsageError for what is no number,
/// not finite, or beyond an octave either way.
struct PitchSetting {
    double Q_P = 1.0; ///< old pitch over new pitch, 0.5 (an octave up) to 2.0 (an octave down)
    double cents_asked = 0.0;
    std::string asked; ///< the change in the unit it was given in: "+1/8 tone"

    static PitchSetting FromTones(const std::string& text);
    static PitchSetting FromOctaves(const std::string& text);  ///< -1 to 1
    static PitchSetting FromCents(const std::string& text);    ///< -1200 to 1200
    static PitchSetting FromQuotient(const std::string& text); ///< 0.5 to 2.0
};

} // namespace lumora
