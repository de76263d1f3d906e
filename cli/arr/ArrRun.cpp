#include "cli/arr/ArrRun.h"

#include "base/ByteStream.h"
#include "base/OrOutOfMemory.h"
#include "cli/arr/ArrReport.h"
#include "cli/arr/Csv.h"
#include "cli/terminal/Explained.h"
#include "cli/terminal/JobFailure.h"
#include "cli/terminal/JsonValue.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/terminal/UsageError.h"
#include "cli/terminal/WhileUnchanged.h"
#include "cli/terminal/Wording.h"
#include "numeric/files/ArrFile.h"
#include "platform/FileFault.h"
#include "platform/OutputFile.h"
#include "platform/StopSignals.h"
#include "platform/TemporaryName.h"

#include <cstdlib>
#include <filesystem>
#include <functional>

namespace lumora {

namespace {

using Tick = std::function<void()>;

/// A signal has asked the command to end.
struct StopRequest {
    int signal;
};

/// Makes a file that gets its name when it is complete. `write` takes the path to write and a
/// function to call now and then, which ends the work when a signal has come.
void WriteComplete(const ArrRequest& request,
                   const std::function<void(const std::string&, const Tick&)>& write)
{
    const OutputFile output(request.output, request.force ? Existing::Replace : Existing::Keep,
                            Folder::MustExist);
    const std::string fault = output.Fault();
    if (!fault.empty()) throw JobFailure(NameText(output.Name()) + " " + fault);
    const StopSignals signals;
    RemoveAbandoned(output.TargetFolder());
    const Tick tick = [&] {
        if (const int signal = signals.Take()) throw StopRequest{signal};
    };
    FailFor(output.Prepare());
    try {
        write(output.Result(), tick);
        tick();
        FailFor(output.Complete());
        FailFor(output.Commit());
    } catch (...) {
        output.Discard();
        throw;
    }
}

/// All of a file at once: a table is read from end to end anyway.
std::string TextOf(const std::string& path)
{
    FailFor(FileFault(path, "table"));
    return WhileUnchanged(WatchedFile(path), [&] {
        const OpenFile file(OpenForReading(path));
        std::string text(static_cast<std::size_t>(FileLength(file.Number())), '\0');
        text.resize(ReadValues(file.Number(), std::span(text)));
        return text;
    });
}

void RefuseInputAsOutput(const ArrRequest& request)
{
    std::error_code missing;
    if (std::filesystem::equivalent(request.input, request.output, missing))
        throw UsageError(NameText(request.output) +
                         " is the input as well; give the result another name");
}

/// What is in the input, with its notes told.
ArrContents ContentsOf(const ArrRequest& request)
{
    const std::string& path = request.input;
    ArrContents contents = WhileUnchanged(WatchedFile(path), [&] { return ReadArrContents(path); });
    if (!request.json)
        for (const std::string& note : contents.notes)
            PrintError(NameText(path) + ": " + note);
    return contents;
}

JsonValue Summary(const ArrContents& contents)
{
    return {{"notes", contents.notes},
            {"class", contents.kind},
            {"rows", contents.rows},
            {"columns", contents.columns}};
}

/// The closing line of a file that was made.
std::string ClosingLine(const ArrRequest& request, const ArrContents& contents)
{
    return NameText(request.input) + " -> " + NameText(request.output) + ": " + contents.kind +
           ", " + std::to_string(contents.rows) + " by " + std::to_string(contents.columns) + "\n";
}

JsonValue Show(const ArrRequest& request)
{
    const ArrContents contents = ContentsOf(request);
    JsonValue fields = Summary(contents);
    if (request.json)
        fields.Set("elements", ArrElements(contents));
    else
        PrintText(ArrTable(request.input, contents, request.all ? Shown::All : Shown::Ends));
    return fields;
}

JsonValue ToCsv(const ArrRequest& request)
{
    const ArrContents contents = ContentsOf(request);
    if (request.output.empty()) {
        WriteCsv(contents, PrintText);
        return {};
    }
    WriteComplete(request, [&](const std::string& path, const Tick& tick) {
        OpenFile file(fopen(path, "wb"));
        WriteCsv(contents, [&](const std::string& piece) {
            tick();
            WriteValues(file.Number(), std::span<const char>(piece));
        });
        file.Close();
    });
    if (!request.json) PrintText(ClosingLine(request, contents));
    return Summary(contents);
}

JsonValue FromCsv(const ArrRequest& request)
{
    ArrContents contents;
    WriteComplete(request, [&](const std::string& path, const Tick& tick) {
        WriteArrTo(path, ReadCsv(TextOf(request.input), request.as, tick), {});
        contents = ReadArrContents(path);
    });
    if (!request.json) PrintText(ClosingLine(request, contents));
    return Summary(contents);
}

JsonValue Work(const ArrRequest& request)
{
    if (request.action == ArrAction::Show) return Show(request);
    return request.action == ArrAction::ToCsv ? ToCsv(request) : FromCsv(request);
}

void PrintDocument(const ArrRequest& request, const std::string& error, const JsonValue& fields)
{
    JsonValue result = {{"file", request.input}};
    if (!request.output.empty()) result.Set("output", request.output);
    result.Set("notes", JsonValue::List());
    result.Set("ok", error.empty());
    if (!error.empty()) result.Set("error", error);
    result.SetAll(fields);
    JsonValue results = JsonValue::List();
    results.Append(std::move(result));
    PrintResults(std::move(results));
}

} // namespace

int RunArr(const ArrRequest& request)
{
    RefuseInputAsOutput(request);
    std::string error;
    JsonValue fields = JsonValue::Object();
    try {
        fields = OrOutOfMemory([&] { return Work(request); });
    } catch (const JobFailure& failure) {
        error = failure.what();
    } catch (const RunTimeError& failure) {
        error = Explained(failure);
    } catch (const StopRequest& stop) {
        PrintError("stopped; nothing was written");
        return StatusOfSignal(stop.signal);
    }
    if (request.json)
        PrintDocument(request, error, fields);
    else if (!error.empty())
        PrintError(NameText(request.input) + ": " + error);
    return AllWasPrinted() && error.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace lumora
