#include "base/Messages.h"

#include "support/MessageRecorder.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using test::FileError;
using test::MessageRecorder;
using test::Shown;

TEST(ShowPlainMessage, HasOneButtonNoIconAndTheDefaultCaption)
{
    MessageRecorder messages;
    ShowPlainMessage("Divide by zero.");
    EXPECT_EQ(messages.Take(),
              (Shown{{"Divide by zero.", "", MessageButtons::Ok, MessageIcon::None}}));
}

TEST(ShowTitledMessage, JoinsTitleRuleAndBodyAndAsks)
{
    for (MessageAnswer answer : {MessageAnswer::Ok, MessageAnswer::Cancel}) {
        MessageRecorder messages(answer);
        EXPECT_EQ(ShowTitledMessage("Error using Min", "Empty"), answer);
        EXPECT_EQ(messages.Take(),
                  (Shown{{"Error using Min\r\n---------------------------\r\nEmpty", "",
                          MessageButtons::OkCancel, MessageIcon::Exclamation}}));
    }
}

TEST(ShowTitledMessage, HasAShorterRuleForTheSquareRoot)
{
    MessageRecorder messages;
    ShowTitledMessage("T", "B", kShortTitledRule);
    EXPECT_EQ(messages.Take(), (Shown{{"T\r\n----------------------\r\nB", "",
                                       MessageButtons::OkCancel, MessageIcon::Exclamation}}));
}

TEST(ShowFileError, JoinsTitleRuleAndTextUnderOneButton)
{
    MessageRecorder messages;
    ShowFileError("Error using fread", "Empty matrix: out of file size");
    EXPECT_EQ(messages.Take(),
              (Shown{{"Error using fread\r\n------------------------------------\r\n"
                      "Empty matrix: out of file size",
                      "", MessageButtons::Ok, MessageIcon::None}}));
}

TEST(MessageBox, IsTheInnermostPortInScope)
{
    MessageRecorder outer(MessageAnswer::Cancel);
    {
        MessageRecorder inner(MessageAnswer::Yes);
        EXPECT_EQ(MessageBox().Show("in", "c", MessageButtons::YesNo, MessageIcon::Question),
                  MessageAnswer::Yes);
        EXPECT_EQ(inner.Take(), (Shown{{"in", "c", MessageButtons::YesNo, MessageIcon::Question}}));
    }
    EXPECT_TRUE(outer.shown.empty());
    EXPECT_EQ(ShowTitledMessage("T", "B"), MessageAnswer::Cancel);
    EXPECT_EQ(outer.shown.size(), 1U);
}

TEST(MessageBox, KeepsTheOrderOfMessages)
{
    MessageRecorder messages;
    ShowPlainMessage("one");
    ShowFileError("t", "two");
    ShowPlainMessage("three");
    EXPECT_EQ(messages.Take(), (Shown{{"one"}, FileError("t", "two"), {"three"}}));
}

TEST(MessageBox, WritesToStandardErrorAndAnswersOkUntilAPortIsInstalled)
{
    testing::internal::CaptureStderr();
    const MessageAnswer answer = ShowTitledMessage("Error using Cat", "Sizes differ");
    const std::string written = testing::internal::GetCapturedStderr();
    EXPECT_EQ(answer, MessageAnswer::Ok);
    EXPECT_NE(written.find("Error using Cat\r\n---------------------------\r\nSizes differ"),
              std::string::npos)
        << written;
}

} // namespace
} // namespace lumora
