#include "cli/grammar/Completion.h"

#include "cli/grammar/Toy.h"

#include <gtest/gtest.h>

namespace lumora::test {
namespace {

/// What a shell is told of a program with the two toys and nothing else.
std::string Told(const std::vector<std::string>& words)
{
    Toy sing;
    OtherToy hum;
    return OffersText(OffersFor({sing.Words(), hum.Words()}, words));
}

TEST(CompletionOfATable, OffersItsCommands)
{
    EXPECT_EQ(Told({""}), "words\nsing\nhum\nhelp\n--help\n--version\n");
    EXPECT_EQ(Told({"s"}), "words\nsing\nhum\nhelp\n--help\n--version\n");
    EXPECT_EQ(Told({"help", ""}), "words\nsing\nhum\n");
    EXPECT_EQ(Told({}), "nothing\n");
}

TEST(CompletionOfATable, OffersTheOptionsOfTheCommandThatWasNamed)
{
    EXPECT_EQ(Told({"sing", "now", "--"}),
              "words\n--loud\n--times\n--tune\n--book\n--box\n--note\n--help\n");
    EXPECT_EQ(Told({"hum", "-"}), "words\n--help\n");
}

TEST(CompletionOfATable, OffersForAValueWhatItsOptionSays)
{
    EXPECT_EQ(Told({"sing", "--tune", ""}), "words\nmarch\nwaltz\n");
    EXPECT_EQ(Told({"sing", "--book", ""}), "files\n");
    EXPECT_EQ(Told({"sing", "--box", "-"}), "folders\n");
    EXPECT_EQ(Told({"sing", "--note", ""}), "nothing\n");
    EXPECT_EQ(Told({"sing", "--times", ""}), "nothing\n");
    EXPECT_EQ(Told({"sing", "--loud", ""}), "files\n") << "a flag has no value";
}

TEST(CompletionOfATable, OffersTheFirstWordsAndThenFiles)
{
    EXPECT_EQ(Told({"sing", ""}), "words\nnow\nlater\n");
    EXPECT_EQ(Told({"sing", "now", ""}), "files\n");
    EXPECT_EQ(Told({"hum", ""}), "files\n");
    EXPECT_EQ(Told({"--loud", "hum", ""}), "files\n");
}

} // namespace
} // namespace lumora::test
