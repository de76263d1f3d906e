#include "cli/terminal/Wording.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>

namespace lumora {

namespace {

[[gnu::format(printf, 1, 2)]] std::string Formatted(const char* format, ...)
{
    char text[100];
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    return text;
}

} // namespace

std::string LengthText(std::int64_t samples, std::int32_t rate_hz)
{
    const std::int64_t all = samples / rate_hz * 1000 + samples % rate_hz * 1000 / rate_hz;
    const auto ms = static_cast<int>(all % 1000);
    const auto s = static_cast<int>(all / 1000 % 60);
    const auto min = static_cast<int>(all / 60000 % 60);
    const auto h = static_cast<long>(all / 3600000);
    if (h > 0) return Formatted("%ld:%02d:%02d.%03d", h, min, s, ms);
    if (min > 0) return Formatted("%d:%02d.%03d", min, s, ms);
    return Formatted("%d.%03d s", s, ms);
}

std::string SamplesText(std::int64_t samples, std::int32_t rate_hz)
{
    const double ms = 1000.0 * static_cast<double>(samples) / rate_hz;
    return Formatted("%lld %s (%.2f ms)", static_cast<long long>(samples),
                     samples == 1 ? "sample" : "samples", ms);
}

std::string CentsText(double cents)
{
    const std::string text = Formatted("%+.2f", cents);
    return text == "+0.00" || text == "-0.00" ? "0.00" : text;
}

double GainDb(double divisor)
{
    return 20.0 * std::log10(1.0 / divisor);
}

std::string GainText(double divisor)
{
    return Formatted("divided by up to %.3f (%.2f dB)", divisor, GainDb(divisor));
}

std::string Listed(const std::vector<std::string>& words, const std::string& last)
{
    std::string text;
    for (std::size_t k = 0; k < words.size(); ++k) {
        if (k > 0) text += k + 1 < words.size() ? ", " : " " + last + " ";
        text += words[k];
    }
    return text;
}

} // namespace lumora
