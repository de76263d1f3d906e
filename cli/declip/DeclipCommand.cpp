#include "cli/declip/DeclipCommand.h"

#include "cli/declip/DeclipVerdict.h"
#include "cli/files/FileRun.h"
#include "cli/pictures/RebuiltPicture.h"
#include "cli/terminal/JobFailure.h"

#include <filesystem>

namespace lumora {

namespace {

class DeclipWork {
public:
    DeclipWork(const DeclipRequest& request, const ReadyFile& file)
        : request_(request),
          file_(file),
          length_(request.keep_length ? OverFilterLength::Kept : OverFilterLength::Delayed),
          panels_(file.sound.rate_hz, file.sound.channels)
    {
    }

    JobSummary Run()
    {
        const OverFilterReport report = Filter();
        if (ExchangesChannels(report, file_.sound, length_))
            file_.note("left and right come out exchanged: the filter delays the interleaved "
                       "samples by " +
                       std::to_string(report.BufferLen - 1) +
                       ", an odd number; with --keep-length each stays on its side");
        if (FlattensOneSide(report, file_.sound))
            file_.note(std::to_string(report.figures.single) + " of " +
                       std::to_string(report.figures.rebuilt) +
                       " regions are single samples of one channel: such peaks are flattened at "
                       "0.8 or left, not rebuilt; split the channels into files of their own for "
                       "that");
        JobSummary summary = DeclipVerdict(report, file_.sound, length_);
        if (!file_.picture.empty()) summary.fields["picture"] = DrawPicture(report.figures);
        return summary;
    }

private:
    OverFilterReport Filter()
    {
        ProgressBar bar;
        OverFilterRequest request;
        request.Hooks.Bar = &bar;
        request.Hooks.PumpEvents = [&] {
            file_.progress(bar.Max > 0 ? static_cast<double>(bar.Value) / bar.Max : 0.0);
        };
        if (!file_.picture.empty())
            request.OnRegion = [&](const RebuiltRegion& region) { panels_.Take(region); };
        const OverFilterReport report =
            RemoveOverStream(file_.input, file_.result, length_, request);
        // A singular system shows a message too, but that is one region's and in the figures.
        if (report.end == OverFilterReport::End::Failed)
            throw JobFailure("the run failed: " + file_.messages.First());
        return report;
    }

    /// Its name, or null if there is nothing to be seen.
    nlohmann::ordered_json DrawPicture(const OverFilterFigures& figures) const
    {
        if (panels_.Panels().empty()) {
            std::filesystem::remove(file_.picture);
            file_.note("no region was rebuilt, so there is no picture");
            return nullptr;
        }
        const std::filesystem::path name = request_.files.inputs.front();
        DrawRebuilt(panels_,
                    {name.filename().string(), file_.sound.rate_hz, file_.sound.channels,
                     figures.rebuilt, figures.largest_gain},
                    file_.picture, request_.picture_kind);
        return request_.files.picture;
    }

    const DeclipRequest& request_;
    const ReadyFile& file_;
    OverFilterLength length_;
    RebuiltPanels panels_;
};

} // namespace

int RunDeclipCommand(const DeclipRequest& request)
{
    const auto work = [&](const ReadyFile& file) { return DeclipWork(request, file).Run(); };
    return RunOnFiles(request.files, {{"keep_length", request.keep_length}}, {kDeclipLimits, work});
}

} // namespace lumora
