#include "cli/declip/DeclipVerdict.h"

#include "cli/terminal/Wording.h"
#include "overfilter/OverFilterPlan.h"

namespace lumora {

namespace {

/// Samples of the interleaved stream, with the time that they take.
std::string StreamText(std::int64_t samples, const SoundShape& sound)
{
    return SamplesText(samples, sound.rate_hz * sound.channels);
}

std::string RegionsText(std::int64_t count)
{
    return std::to_string(count) + (count == 1 ? " region" : " regions");
}

/// What was left as it was, and why; empty if nothing was.
std::string LeftText(const OverFilterFigures& figures, const SoundShape& sound)
{
    std::string why;
    if (figures.left_too_long > 0)
        why = std::to_string(figures.left_too_long) + " too long: at this rate a region may last " +
              StreamText(OverFilterPlan::ForRate(sound.rate_hz).GuardLen, sound);
    if (figures.left_unpredicted > 0)
        why += (why.empty() ? "" : "; ") + std::to_string(figures.left_unpredicted) +
               " without usable coefficients: the sound around could not be predicted";
    if (why.empty()) return {};
    const std::int64_t left = figures.left_too_long + figures.left_unpredicted;
    return ", " + std::to_string(left) + " left as " + (left == 1 ? "it was" : "they were") + " (" +
           why + ")";
}

/// What went into the end of the source that stays in the filter; empty if nothing did.
std::string BehindText(const OverFilterReport& report, const SoundShape& sound)
{
    if (report.regions_behind == 0) return {};
    return "; " + RegionsText(report.regions_behind) + " more in the last " +
           StreamText(report.BufferLen - 1, sound) + ", which come out only with --keep-length";
}

std::string LineOfWhatComesOut(const OverFilterReport& report, const SoundShape& sound)
{
    const OverFilterFigures& figures = report.figures;
    if (figures.Regions() == 0)
        return report.regions_behind == 0 ? "good quality: nothing lies beyond 0.8 of full scale, "
                                            "so there was nothing to rebuild"
                                          : "good quality: 0 regions rebuilt";
    std::string line = report.QualityGood != 0 ? "good quality: " : "low quality: ";
    line += RegionsText(figures.rebuilt) + " rebuilt" + LeftText(figures, sound);
    if (figures.crowded > 0)
        line += ", " + RegionsText(figures.crowded) +
                " in places where more than 15 % of the samples are over-driven";
    line += ", the longest of " + StreamText(figures.longest_region, sound) + ", ";
    return line + (figures.largest_gain > 1.0 ? "level " + GainText(figures.largest_gain)
                                              : "level unchanged");
}

JsonValue DelayFrames(const OverFilterReport& report, const SoundShape& sound,
                      OverFilterLength length)
{
    if (length == OverFilterLength::Kept) return 0;
    const std::int64_t delay = report.BufferLen - 1;
    if (delay % sound.channels == 0) return delay / sound.channels;
    return static_cast<double>(delay) / sound.channels;
}

} // namespace

bool ExchangesChannels(const OverFilterReport& report, const SoundShape& sound,
                       OverFilterLength length)
{
    return length == OverFilterLength::Delayed && (report.BufferLen - 1) % sound.channels != 0;
}

bool FlattensOneSide(const OverFilterReport& report, const SoundShape& sound)
{
    return sound.channels == 2 && 2 * report.figures.single > report.figures.rebuilt;
}

JobSummary DeclipVerdict(const OverFilterReport& report, const SoundShape& sound,
                         OverFilterLength length)
{
    const OverFilterFigures& figures = report.figures;
    return {LineOfWhatComesOut(report, sound) + BehindText(report, sound),
            {{"quality", report.QualityGood != 0 ? "good" : "low"},
             {"regions_rebuilt", figures.rebuilt},
             {"regions_of_one_sample", figures.single},
             {"regions_left_too_long", figures.left_too_long},
             {"regions_left_unpredicted", figures.left_unpredicted},
             {"regions_behind", report.regions_behind},
             {"crowded", figures.crowded},
             {"longest_region_samples", figures.longest_region},
             {"most_region_samples", OverFilterPlan::ForRate(sound.rate_hz).GuardLen},
             {"largest_gain", figures.largest_gain},
             {"gain_db", GainDb(figures.largest_gain)},
             {"delay_samples", DelayFrames(report, sound, length)},
             {"channels_exchanged", ExchangesChannels(report, sound, length)}}};
}

} // namespace lumora
