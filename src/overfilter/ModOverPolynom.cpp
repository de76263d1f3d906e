#include "overfilter/ModOverPolynom.h"

#include "audio/WaveChunks.h"
#include "audio/Wavwrite.h"
#include "base/Paths.h"
#include "overfilter/OverFilterRun.h"
#include "overfilter/RemoveUnlessKept.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace lumora {

namespace {

std::string TemporaryPath(const std::string& source)
{
    constexpr std::size_t kEnding = 4;                // ".wav"
    const std::size_t folder = source.rfind('/') + 1; // 0 without a folder
    if (source.size() - folder < kEnding) Raise(ErrorNumber::InvalidCall, source);
    return source.substr(0, source.size() - kEnding) + "tmp.wav";
}

/// Is `source` a symbolic link that ends at `result`? To delete that would delete the recording.
bool LinksTo(const std::string& source, const std::string& result)
{
    namespace fs = std::filesystem;
    std::error_code missing;
    const fs::path end = fs::canonical(WaveFileName(source), missing);
    if (missing) return false;
    const fs::path name = result;
    return end == fs::canonical(name.parent_path() / ".", missing) / name.filename();
}

void DeleteFile(const std::string& name)
{
    std::error_code failure;
    if (FileExists(name) && !std::filesystem::remove(name, failure) && failure)
        RaiseFileError(failure.value(), name);
}

/// A row for each channel and a column for each frame, so that memory has the order of the file.
Array<double> OutputStore(const OverFilterRun& run)
{
    Array<double> store;
    if (run.Channels() == 1)
        store.ReDimForOverwrite({1, run.Info().TotalSamples});
    else
        store.ReDimForOverwrite({1, run.Channels()}, {1, run.Info().TotalSamples});
    return store;
}

} // namespace

std::string RemoveOverFile(const std::string& SourcePath, std::int16_t& QualityFlag,
                           ProgressBar* Progress)
{
    return RemoveOverFile(SourcePath, QualityFlag, OverFilterRequest{{Progress}});
}

std::string RemoveOverFile(const std::string& SourcePath, std::int16_t& QualityFlag,
                           const OverFilterRequest& Request)
{
    std::string result = TemporaryPath(SourcePath);
    if (LinksTo(SourcePath, result)) Raise(ErrorNumber::PathFileAccess, result);
    DeleteFile(result);
    OverFilterRun run(SourcePath, Request);
    if (!run.HasSource()) return {};
    Array<double> store = OutputStore(run);
    double* next = store.Span().data();
    const auto keep = [&next](std::span<const double> samples) {
        next = std::copy(samples.begin(), samples.end(), next);
    };
    if (!run.Run(keep, QualityFlag)) return {};
    RemoveUnlessKept half_written(result);
    // As an array: one dimension is one channel however few its samples, unlike a matrix of one
    // row.
    if (!wavwrite(std::move(store), run.Info().nSamplesPerSec, run.Info().nBitsPerSample, result,
                  0.0))
        return {};
    half_written.Keep();
    run.Finish();
    return result;
}

} // namespace lumora
