#include "cli/files/JobLink.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace lumora {

namespace {

// A message is its kind, the length of what follows, and that many bytes.
enum Kind : char { kProgress = 'p', kNote = 'n', kDone = 'd', kFailed = 'f' };
using Length = std::uint32_t;
constexpr std::size_t kHead = 1 + sizeof(Length);

template <class T> std::string_view AsBytes(const T& value)
{
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

template <class T> T FromBytes(std::string_view bytes)
{
    T value{};
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

/// A summary is the length of its line, the line, and its fields.
std::string SummaryBytes(const JobSummary& summary)
{
    return std::string(AsBytes(static_cast<Length>(summary.line.size()))) + summary.line +
           summary.fields.Line();
}

JobSummary SummaryFrom(std::string_view bytes)
{
    const auto length = FromBytes<Length>(bytes);
    bytes.remove_prefix(sizeof length);
    return {std::string(bytes.substr(0, length)), JsonValue::FromLine(bytes.substr(length))};
}

} // namespace

void JobLink::Progress(double fraction)
{
    constexpr double kSmallestStep = 0.002;
    if (progress_ == ProgressWanted::No || fraction - last_progress_ < kSmallestStep) return;
    last_progress_ = fraction;
    Send(kProgress, AsBytes(fraction));
}

void JobLink::Note(std::string_view text)
{
    Send(kNote, text);
}

void JobLink::Done(const JobSummary& summary)
{
    Send(kDone, SummaryBytes(summary));
}

void JobLink::Failed(std::string_view error)
{
    Send(kFailed, error);
}

void JobLink::Send(char kind, std::string_view bytes)
{
    std::string message(1, kind);
    message += AsBytes(static_cast<Length>(bytes.size()));
    message += bytes;
    for (std::string_view rest = message; !rest.empty();) {
        const ssize_t sent = write(pipe_, rest.data(), rest.size());
        if (sent < 0 && errno == EINTR) continue;
        if (sent < 0) return; // nobody listens any more: the work has no purpose and is ended
        rest.remove_prefix(static_cast<std::size_t>(sent));
    }
}

bool JobListener::Read(const std::function<void(double)>& on_progress)
{
    char bytes[4096];
    const ssize_t read_now = read(pipe_, bytes, sizeof bytes);
    if (read_now < 0 && errno == EINTR) return true;
    if (read_now <= 0) return false;
    pending_.append(bytes, static_cast<std::size_t>(read_now));
    std::string_view rest = pending_;
    while (rest.size() >= kHead) {
        const auto length = FromBytes<Length>(rest.substr(1));
        if (rest.size() - kHead < length) break;
        Take(rest.front(), rest.substr(kHead, length), on_progress);
        rest.remove_prefix(kHead + length);
    }
    pending_.erase(0, pending_.size() - rest.size());
    return true;
}

void JobListener::Take(char kind, std::string_view bytes,
                       const std::function<void(double)>& on_progress)
{
    if (kind == kProgress)
        on_progress(FromBytes<double>(bytes));
    else if (kind == kNote)
        outcome.notes.emplace_back(bytes);
    else if (kind == kDone)
        outcome.summary = SummaryFrom(bytes);
    else
        outcome.error = bytes;
}

} // namespace lumora
