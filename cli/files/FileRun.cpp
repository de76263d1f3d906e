#include "cli/files/FileRun.h"

#include "cli/files/OutputPlan.h"
#include "cli/files/Workers.h"
#include "cli/terminal/JobFailure.h"
#include "cli/terminal/ProgressLine.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/terminal/Wording.h"
#include "platform/StopSignals.h"
#include "platform/TemporaryName.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <set>

namespace lumora {

namespace {

std::vector<FileJob> PlanJobs(const FilesRequest& request)
{
    const OutputPlan plan = PlanOutputs(request);
    std::vector<FileJob> jobs;
    for (const OutputFile& output : plan.results)
        jobs.push_back({request.inputs[jobs.size()], output});
    jobs.front().picture = plan.picture; // is wanted of one input only
    return jobs;
}

std::vector<std::uintmax_t> SizesOf(const std::vector<FileJob>& jobs)
{
    std::vector<std::uintmax_t> sizes;
    for (const FileJob& job : jobs) {
        std::error_code missing;
        const std::uintmax_t size = std::filesystem::file_size(job.input, missing);
        sizes.push_back(missing ? 0 : size);
    }
    return sizes;
}

class FileRun {
public:
    FileRun(const FilesRequest& request, const JsonValue& asked, const FileWork& work)
        : request_(request),
          asked_(asked),
          work_(work),
          jobs_(PlanJobs(request)),
          outcomes_(jobs_.size()),
          progress_(SizesOf(jobs_))
    {
    }

    int Run()
    {
        const int signal = Work();
        progress_.Clear();
        if (signal != 0) return Stopped(signal);
        if (request_.json) PrintDocument();
        const bool failed = std::any_of(outcomes_.begin(), outcomes_.end(),
                                        [](const auto& each) { return !each->error.empty(); });
        return AllWasPrinted() && !failed ? EXIT_SUCCESS : EXIT_FAILURE;
    }

private:
    int Work()
    {
        const StopSignals signals;
        RemoveWhatKilledRunsLeft();
        Workers workers;
        workers.work = [&](std::size_t k, JobLink& link) { RunFileJob(jobs_[k], work_, link); };
        workers.on_end = [&](std::size_t k, const JobOutcome& outcome) { End(k, outcome); };
        if (progress_.IsShown()) {
            workers.on_progress = [&](std::size_t k, double done) { progress_.Set(k, done); };
            workers.on_tick = [&] { progress_.Draw(); };
            workers.tick = std::chrono::milliseconds(200);
        }
        return workers.Run(jobs_.size(), request_.jobs, signals);
    }

    void RemoveWhatKilledRunsLeft() const
    {
        std::set<std::string> folders;
        for (const FileJob& job : jobs_) {
            folders.insert(job.output.TargetFolder());
            if (job.picture) folders.insert(job.picture->TargetFolder());
        }
        for (const std::string& folder : folders)
            RemoveAbandoned(folder);
    }

    void End(std::size_t k, JobOutcome outcome)
    {
        const FileJob& job = jobs_[k];
        try {
            if (outcome.error.empty()) {
                const std::string note = job.Commit();
                if (!note.empty()) outcome.notes.push_back(note);
            }
        } catch (const JobFailure& failure) {
            outcome = {outcome.notes, {}, failure.what()};
        }
        job.Discard();
        outcomes_[k] = outcome;
        progress_.End(k);
        PrintWhatIsDue();
    }

    /// Results are told in the order of the inputs: each waits for those before it.
    void PrintWhatIsDue()
    {
        if (request_.json) return;
        for (; printed_ < outcomes_.size() && outcomes_[printed_]; ++printed_) {
            progress_.Clear();
            Print(jobs_[printed_], *outcomes_[printed_]);
        }
    }

    static void Print(const FileJob& job, const JobOutcome& outcome)
    {
        const std::string file = NameText(job.input) + ": ";
        for (const std::string& note : outcome.notes)
            PrintError(file + note);
        if (outcome.error.empty())
            PrintText(NameText(job.input) + " -> " + NameText(job.output.Name()) + ": " +
                      outcome.summary->line + "\n");
        else
            PrintError(file + outcome.error);
    }

    void PrintDocument() const
    {
        JsonValue results = JsonValue::List();
        for (std::size_t k = 0; k < jobs_.size(); ++k)
            results.Append(Json(jobs_[k], *outcomes_[k]));
        PrintResults(std::move(results));
    }

    JsonValue Json(const FileJob& job, const JobOutcome& outcome) const
    {
        JsonValue json = {{"file", job.input}, {"output", job.output.Name()}};
        json.SetAll(asked_);
        json.SetAll({{"notes", outcome.notes}, {"ok", outcome.error.empty()}});
        if (!outcome.error.empty()) json.Set("error", outcome.error);
        if (outcome.summary) json.SetAll(outcome.summary->fields);
        return json;
    }

    int Stopped(int signal) const
    {
        for (std::size_t k = 0; k < jobs_.size(); ++k)
            if (!outcomes_[k]) jobs_[k].Discard();
        const auto ended = std::count_if(outcomes_.begin(), outcomes_.end(),
                                         [](const auto& each) { return each.has_value(); });
        PrintError("stopped; " + std::to_string(ended) + " of " + std::to_string(jobs_.size()) +
                   " files had ended");
        return StatusOfSignal(signal);
    }

    const FilesRequest& request_;
    const JsonValue& asked_;
    const FileWork& work_;
    std::vector<FileJob> jobs_;
    std::vector<std::optional<JobOutcome>> outcomes_;
    std::size_t printed_ = 0;
    ProgressLine progress_;
};

} // namespace

int RunOnFiles(const FilesRequest& request, const JsonValue& asked, const FileWork& work)
{
    return FileRun(request, asked, work).Run();
}

} // namespace lumora
