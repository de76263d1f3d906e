// over_filter_curve IN.wav OUT: runs a mono WAVE file through the over-range filter and writes, for
// each sample of the file, two doubles: the filter's output and the gain that it was divided by.
// Aligned with the file. bench/restoration.py measures with it.
#include "audio/Wavread.h"
#include "overfilter/ClsRemoveOverPolynom.h"
#include "overfilter/OverFilterPlan.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <vector>

int main(int argc, char** argv)
{
    using namespace lumora;
    if (argc != 3) return std::fputs("over_filter_curve IN.wav OUT\n", stderr), EXIT_FAILURE;
    const WavreadResult sound = wavread(argv[1]);
    if (sound.Bits < 0 || sound.Samples->size2 != 1) return EXIT_FAILURE;
    ClsRemoveOverPolynom filter;
    SetUpForRate(filter, sound.Rate);
    const auto delay = static_cast<std::size_t>(filter.BufferLen() - 1);
    std::vector<double> in(sound.Samples->Elements().Span().begin(),
                           sound.Samples->Elements().Span().end());
    in.resize(in.size() + delay);
    std::ofstream out(argv[2], std::ios::binary);
    for (std::size_t k = 0; k < in.size(); ++k) {
        double pair[2] = {};
        filter.RemoveOver_Operation(in[k], pair[0]);
        pair[1] = filter.Gain();
        if (k >= delay) out.write(reinterpret_cast<const char*>(pair), sizeof pair);
    }
    return out.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
