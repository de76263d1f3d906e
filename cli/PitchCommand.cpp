#include "cli/PitchCommand.h"

#include "cli/JobFailure.h"
#include "cli/OutputPlan.h"
#include "cli/PitchJob.h"
#include "cli/PitchReport.h"
#include "cli/ProgressLine.h"
#include "cli/StandardOutput.h"
#include "cli/StopSignals.h"
#include "cli/Wording.h"
#include "cli/Workers.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>

namespace lumora {

namespace {

std::vector<PitchJob> PlanJobs(const PitchRequest& request)
{
    std::vector<PitchJob> jobs;
    for (OutputFile& output : PlanOutputs(request)) {
        const std::string& input = request.inputs[jobs.size()];
        jobs.push_back({input, std::move(output), request.setting.Q_P});
    }
    return jobs;
}

std::vector<std::uintmax_t> SizesOf(const std::vector<PitchJob>& jobs)
{
    std::vector<std::uintmax_t> sizes;
    for (const PitchJob& job : jobs) {
        std::error_code missing;
        const std::uintmax_t size = std::filesystem::file_size(job.input, missing);
        sizes.push_back(missing ? 0 : size);
    }
    return sizes;
}

class PitchCommand {
public:
    explicit PitchCommand(const PitchRequest& request)
        : request_(request),
          jobs_(PlanJobs(request)),
          reports_(jobs_.size()),
          progress_(SizesOf(jobs_))
    {
    }

    int Run()
    {
        const int signal = Work();
        progress_.Clear();
        if (signal != 0) return Stopped(signal);
        if (request_.json) PrintDocument();
        const bool failed = std::any_of(reports_.begin(), reports_.end(), [](const auto& report) {
            return !report->outcome.error.empty();
        });
        return AllWasPrinted() && !failed ? EXIT_SUCCESS : EXIT_FAILURE;
    }

private:
    int Work()
    {
        const StopSignals signals;
        Workers workers;
        workers.work = [&](std::size_t k, JobLink& link) { RunPitchJob(jobs_[k], link); };
        workers.on_end = [&](std::size_t k, const JobOutcome& outcome) { End(k, outcome); };
        if (progress_.IsShown()) {
            workers.on_progress = [&](std::size_t k, double done) { progress_.Set(k, done); };
            workers.on_tick = [&] { progress_.Draw(); };
            workers.tick = std::chrono::milliseconds(200);
        }
        return workers.Run(jobs_.size(), request_.jobs, signals);
    }

    void End(std::size_t k, JobOutcome outcome)
    {
        const PitchJob& job = jobs_[k];
        try {
            if (outcome.error.empty()) job.output.Commit();
        } catch (const JobFailure& failure) {
            outcome = {outcome.notes, {}, failure.what()};
        }
        job.output.Discard();
        reports_[k] = PitchReport{job.input, job.output.Name(), request_.setting, outcome};
        progress_.End(k);
        PrintWhatIsDue();
    }

    /// Results are told in the order of the inputs: each waits for those before it.
    void PrintWhatIsDue()
    {
        if (request_.json) return;
        for (; printed_ < reports_.size() && reports_[printed_]; ++printed_) {
            progress_.Clear();
            Print(*reports_[printed_]);
        }
    }

    static void Print(const PitchReport& report)
    {
        const std::string file = NameText(report.file) + ": ";
        for (const std::string& note : report.outcome.notes)
            PrintError(file + note);
        if (report.outcome.error.empty())
            PrintText(report.Line() + "\n");
        else
            PrintError(file + report.outcome.error);
    }

    void PrintDocument() const
    {
        nlohmann::ordered_json results = nlohmann::ordered_json::array();
        for (const auto& report : reports_)
            results.push_back(report->Json());
        PrintJson({{"results", std::move(results)}});
    }

    int Stopped(int signal) const
    {
        constexpr int kStatusOfSignals = 128; // as a shell counts them
        for (std::size_t k = 0; k < jobs_.size(); ++k)
            if (!reports_[k]) jobs_[k].output.Discard();
        const auto ended = std::count_if(reports_.begin(), reports_.end(),
                                         [](const auto& report) { return report.has_value(); });
        PrintError("stopped; " + std::to_string(ended) + " of " + std::to_string(jobs_.size()) +
                   " files had ended");
        return kStatusOfSignals + signal;
    }

    const PitchRequest& request_;
    std::vector<PitchJob> jobs_;
    std::vector<std::optional<PitchReport>> reports_;
    std::size_t printed_ = 0;
    ProgressLine progress_;
};

} // namespace

int RunPitchCommand(const PitchRequest& request)
{
    return PitchCommand(request).Run();
}

} // namespace lumora
