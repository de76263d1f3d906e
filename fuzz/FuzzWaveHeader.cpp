// Any bytes as a WAVE file: ReadWaveInfo ends in a record that agrees with itself and with the
// file, in a message that stands in the record, or in a run-time error.

#include "audio/WaveStream.h"
#include "support/FuzzInput.h"

#include <cmath>

namespace lumora {
namespace {

using fuzz::Demand;

void CheckSizes(const WaveInfo& info, std::size_t file_size)
{
    Demand(!info.RiffID.empty() && !info.WaveID.empty());
    Demand(info.FmtID == "fmt" && info.DataID == "data");
    Demand(info.DataStart >= 9 && static_cast<std::size_t>(info.DataStart) <= file_size + 1);
    Demand(std::int64_t{info.DataEnd} == std::int64_t{info.DataStart} + info.DataSize - 1);
    const int bits = info.nBitsPerSample == 0 ? 16 : info.nBitsPerSample;
    const double frame_bits = 1.0 * bits * info.nChannels;
    Demand(info.TotalSamples == std::floor(info.DataSize * 8.0 / frame_bits));
}

} // namespace
} // namespace lumora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lumora;
    const fuzz::MemoryFile file({data, size});
    const fuzz::CountedMessages messages;
    WaveInfo info;
    if (fuzz::ComesBack([&] { info = ReadWaveInfo(file.Name()); })) {
        fuzz::Demand(info.Message.empty() == (messages.count == 0));
        if (info.Message.empty()) CheckSizes(info, size);
    }
    // Whatever the end was, the file is closed: the next one gets the first number.
    fuzz::Demand(OpenFile(fopen(file.Name(), "rb")).Number() == 1);
    return 0;
}
