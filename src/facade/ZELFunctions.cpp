#include "facade/ZELFunctions.h"

#include "audio/WaveStream.h"
#include "base/Messages.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "engine/BlockPipeline.h"
#include "engine/BlockResampler.h"
#include "facade/FacadeMessages.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace lumora {

namespace fs = std::filesystem;

namespace {

/// Deletes every "*.wav" of a folder; what cannot be read or deleted stays.
void DeleteWaves(const fs::path& folder)
{
    std::error_code failure;
    std::vector<fs::path> waves;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const bool wave = EqualIgnoringCase(entry->path().extension().string(), ".wav");
        if (wave && FileExists(entry->path().string())) waves.push_back(entry->path());
    }
    for (const fs::path& wave : waves)
        fs::remove(wave, failure);
}

} // namespace

ZELFunctions::~ZELFunctions()
{
    try {
        for (const char* name : {"PsolaTrans", "LPCTrans", "On_Note", "Synthsize"})
            if (const auto folder = FindIgnoringCase(ProgramFolder(), name)) DeleteWaves(*folder);
    } catch (...) {
        // The clean-up is a courtesy: whatever fails at it is ignored.
    }
}

std::int16_t ZELFunctions::On_Note(ProgressBar& Bar)
{
    if (InFileName.empty() || !FileExists(InFileName)) {
        MessageBox().Show(facade_messages::kNeedsFile, facade_messages::kAnalysing,
                          MessageButtons::Ok, MessageIcon::Critical);
        return -1;
    }
    const WaveInfo info = ReadWaveInfo(InFileName);
    if (info.nChannels == 2)
        WsolaClsTest_Stereo(Bar);
    else
        WsolaClsTest(Bar);
    if (PublishPercent) PublishPercent(100);
    return 0;
}

void ZELFunctions::WsolaClsTest(ProgressBar& Bar)
{
    Run(Bar, 1);
}

void ZELFunctions::WsolaClsTest_Stereo(ProgressBar& Bar)
{
    Run(Bar, 2);
}

void ZELFunctions::Run(ProgressBar& bar, int channels)
{
    if (InFileName.empty() || !FileExists(InFileName)) return;
    if (Q_P == 0.0) Q_P = 1.0;
    NotePersent = 0;
    input_has_shrunk_ = false;
    const RunHooks hooks{&bar, PumpEvents, PublishPercent};
    const PitchRun run{InFileName, OutFileName, Q_P, channels};
    input_has_shrunk_ = RunBlockPipeline(run, ProcessResampler(), hooks).source_has_shrunk;
}

void ZELFunctions::RefreshObj()
{
    for (double* field : {&TargetVT, &TargetDP, &TargetDPNew, &TargetSourceType, &SoundVT, &SoundDP,
                          &Q_P, &Q_VT, &Nasality, &Hoarse})
        *field = 0.0;
    for (std::int32_t* field : {&TargetGender, &SoundGender, &SourceSmooth})
        *field = 0;
    for (std::int16_t* field : {&SourceType, &AnalPersent, &imitate_persent_, &NotePersent,
                                &TransformPersent, &StopProcess})
        *field = 0;
    for (std::string* name : {&InFileName, &OutFileName, &TargetFileName})
        name->clear();
    input_has_shrunk_ = false;
}

} // namespace lumora
