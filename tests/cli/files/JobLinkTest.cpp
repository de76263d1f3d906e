#include "cli/files/JobLink.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace lumora {
namespace {

/// What arrives of a summary.
JobSummary Sent(const JobSummary& summary)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    JobLink(ends[1], ProgressWanted::No).Done(summary);
    close(ends[1]);
    JobListener listener(ends[0]);
    while (listener.Read([](double) {})) {
    }
    close(ends[0]);
    return listener.outcome.summary.value();
}

TEST(JobLink, CarriesASummaryAsItIs)
{
    const JobSummary summary = {"+25.00 cents [\"{,\n}\"]", {{"q_p", 0.1}, {"picture", {}}}};
    const JobSummary sent = Sent(summary);
    EXPECT_EQ(sent.line, summary.line);
    EXPECT_EQ(sent.fields.Line(), R"({"q_p":0.1,"picture":null})");
    EXPECT_EQ(Sent({"", JsonValue::Object()}).line, "");
}

TEST(JobLink, CarriesNamesThatAreNoText)
{
    const JobSummary sent = Sent({"\xff.png", {{"picture", "\xff.png"}}});
    EXPECT_EQ(sent.line, "\xff.png");
    EXPECT_EQ(sent.fields.Line(), "{\"picture\":\"\xEF\xBF\xBD.png\"}");
}

} // namespace
} // namespace lumora
