// copy_samples IN OUT copies a 16-bit WAVE file with a 44-byte header by way of doubles: the least
// that any program does which computes on samples. peers.sh times it as the floor.
#include "audio/SampleConversion.h"

#include <array>
#include <cstdio>
#include <exception>
#include <memory>
#include <vector>

namespace {

constexpr std::size_t kHeaderBytes = 44;
constexpr std::size_t kChunk = 65536; ///< values at a time

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

bool Copy(std::FILE* in, std::FILE* out)
{
    std::array<char, kHeaderBytes> header{};
    if (std::fread(header.data(), 1, header.size(), in) != header.size()) return false;
    if (std::fwrite(header.data(), 1, header.size(), out) != header.size()) return false;
    std::vector<std::int16_t> shorts(kChunk);
    std::vector<double> samples(kChunk);
    while (const std::size_t count = std::fread(shorts.data(), 2, kChunk, in)) {
        shorts.resize(count);
        samples.resize(count);
        lumora::SamplesFromShorts(shorts, samples);
        lumora::ShortsFromSamples(samples, shorts);
        if (std::fwrite(shorts.data(), 2, count, out) != count) return false;
        shorts.resize(kChunk);
    }
    return std::ferror(in) == 0 && std::fflush(out) == 0;
}

int Run(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: copy_samples IN OUT\n", stderr);
        return 2;
    }
    const File in(std::fopen(argv[1], "rb"), &std::fclose);
    const File out(in ? std::fopen(argv[2], "wb") : nullptr, &std::fclose);
    if (in && out && Copy(in.get(), out.get())) return 0;
    std::perror("copy_samples");
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "copy_samples: %s\n", error.what());
        return 1;
    }
}
