#include "cli/declip/DeclipCommand.h"

#include "cli/declip/DeclipVerdict.h"
#include "cli/files/FileRun.h"
#include "cli/files/FilesOptions.h"
#include "cli/pictures/RebuiltPicture.h"
#include "cli/terminal/JobFailure.h"
#include "cli/terminal/UsageError.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <memory>

namespace lumora {

namespace {

constexpr char kDeclipFooter[] = R"(
IN is any sound file with one or two channels; what is not a plain 8- or 16-bit
WAVE file is converted first. OUT is a WAVE file of as many bits. Stretches over
0.8 of full scale are rebuilt from the sound around them.

  lumora declip hot.wav mended.wav --keep-length --plot mended.png
  lumora declip *.flac --out-dir mended --jobs 4)";

/// `lumora declip`, as it was given.
struct DeclipRequest {
    FilesRequest files;
    bool keep_length = false;
    std::optional<std::string> plot; ///< the picture's name as it stands in the line
    PictureKind picture_kind = PictureKind::Png;
};

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
        if (!file_.picture.empty()) summary.fields.Set("picture", DrawPicture(report.figures));
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
    JsonValue DrawPicture(const OverFilterFigures& figures) const
    {
        if (panels_.Panels().empty()) {
            std::filesystem::remove(file_.picture);
            file_.note("no region was rebuilt, so there is no picture");
            return {};
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

PictureKind KindOfPicture(const std::string& name)
{
    std::string ending = std::filesystem::path(name).extension();
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (ending == ".png") return PictureKind::Png;
    if (ending == ".svg") return PictureKind::Svg;
    throw UsageError("--plot " + name + ": the name must end in .png or .svg");
}

void TakePicture(const std::string& name, DeclipRequest& request)
{
    request.picture_kind = KindOfPicture(name);
    request.files.picture = name;
    if (request.files.inputs.size() > 1)
        throw UsageError("--plot draws one input; leave it out or name one input");
}

int RunDeclip(const DeclipRequest& request)
{
    const auto work = [&](const ReadyFile& file) { return DeclipWork(request, file).Run(); };
    return RunOnFiles(request.files, {{"keep_length", request.keep_length}}, {kDeclipLimits, work});
}

} // namespace

Command DeclipCommand()
{
    const auto request = std::make_shared<DeclipRequest>();
    Command command = {
        .name = "declip",
        .text = "Rebuild over-driven stretches of sound files",
        .usage = {"IN OUT [OPTIONS]", "IN... --out-dir DIR [OPTIONS]"},
        .options = {{"--keep-length", "Put back the filter's delay: OUT as long as IN",
                     FlagValue{&request->keep_length}},
                    {"--plot", "Draw the first rebuilt stretches of one IN: .png or .svg",
                     TextValue{&request->plot, "FILE", {Offers::Kind::Files}}}},
        .footer = kDeclipFooter,
        .run =
            [request] {
                TakeNames(request->files);
                if (request->plot) TakePicture(*request->plot, *request);
                return RunDeclip(*request);
            },
    };
    AddFilesOptions(command, request->files);
    return command;
}

} // namespace lumora
