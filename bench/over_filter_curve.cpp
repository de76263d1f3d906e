// over_filter_curve IN.wav OUT: runs a WAVE file through the over-range filter, stereo interleaved
// as it lies in the file, and writes for each sample two doubles: the filter's output and the gain
// that it was divided by. Aligned with the file. bench/restoration.py measures with it.
#include "audio/Wavread.h"
#include "overfilter/ClsRemoveOverPolynom.h"
#include "overfilter/OverFilterPlan.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

int main(int argc, char** argv)
{
    using namespace lumora;
    if (argc != 3) return std::fputs("over_filter_curve IN.wav OUT\n", stderr), EXIT_FAILURE;
    const WavreadResult sound = wavread(argv[1]);
    if (sound.Bits < 0) return EXIT_FAILURE;
    ClsRemoveOverPolynom filter;
    SetUpForRate(filter, sound.Rate);
    std::ofstream out(argv[2], std::ios::binary);
    int ahead = filter.BufferLen() - 1; // samples that come out before the first of the file
    const auto feed = [&](double x) {
        double pair[2] = {};
        filter.RemoveOver_Operation(x, pair[0]);
        pair[1] = filter.Gain();
        if (ahead-- <= 0) out.write(reinterpret_cast<const char*>(pair), sizeof pair);
    };
    for (std::int32_t frame = 1; frame <= sound.Samples->size1; ++frame)
        for (std::int32_t channel = 1; channel <= sound.Samples->size2; ++channel)
            feed(sound.Samples->Real(frame, channel));
    for (int k = 1; k < filter.BufferLen(); ++k)
        feed(0.0);
    return out.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
