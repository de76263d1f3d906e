#include "cli/grammar/CommandLine.h"

#include "cli/grammar/Toy.h"
#include "cli/terminal/UsageError.h"

#include <gtest/gtest.h>

namespace lumora::test {
namespace {

using Words = std::vector<std::string>;

/// A program with the two toys and nothing else.
class CommandLine : public testing::Test {
protected:
    Asked Read(const Words& words) { return ReadCommandLine(commands_, words); }

    std::string Refusal(const Words& words)
    {
        try {
            Read(words);
        } catch (const UsageError& error) {
            return error.what();
        }
        return "none";
    }

    Toy sing_;
    OtherToy hum_;
    const std::vector<Command> commands_ = {sing_.Words(), hum_.Words()};
};

TEST_F(CommandLine, HelpListsEveryCommandOfTheTable)
{
    const std::string help = Read({"help"}).text;
    EXPECT_NE(help.find("Usage: lumora sing | hum | help ...\n"), std::string::npos) << help;
    EXPECT_NE(help.find("\n  sing                  Sing to sound files\n"), std::string::npos);
    EXPECT_NE(help.find("\n  hum                   Hum to sound files\n"), std::string::npos);
    EXPECT_EQ(Read({"--help"}).text, help);
    EXPECT_NE(Read({"help", "--help"}).text.find("The command to explain: sing or hum\n"),
              std::string::npos);
}

TEST_F(CommandLine, HelpOfACommandIsMadeOfWhatItSaysOfItself)
{
    EXPECT_EQ(Read({"help", "sing"}).text, R"(Sing to sound files
Usage: lumora sing now SONG [OPTIONS]
       lumora sing later [OPTIONS]

Positionals:
  WHEN ...              now or later, and a song

Options:
  --loud                Sing loudly
  --times N             How often
  --book FILE           A song book
  --box DIR             Its case
  --note NOTE           The first note
  -h,--help             Print this help

Style:
  --tune TUNE           The tune

The toy's own footer.
)");
    EXPECT_EQ(Read({"sing", "-h"}).text, Read({"help", "sing"}).text);
}

TEST_F(CommandLine, WrongUsageNamesTheCommandsOfTheTable)
{
    EXPECT_EQ(Refusal({}), "say what to do: lumora sing, hum or help");
    EXPECT_EQ(Refusal({"pitch"}), "say what to do: lumora sing, hum or help");
    EXPECT_EQ(Refusal({"help", "pitch"}), "there is no command pitch; there are sing and hum");
}

TEST_F(CommandLine, FillsTheFieldsOfTheCommandThatIsMeant)
{
    const Asked asked = Read(
        {"sing", "now", "--times", "3", "--tune", "waltz", "--loud", "--book", "", "--", "--song"});
    EXPECT_EQ(asked.command, &commands_[0]);
    EXPECT_EQ(asked.text, "");
    EXPECT_EQ(sing_.names, (Words{"now", "--song"}));
    EXPECT_TRUE(sing_.loud);
    EXPECT_EQ(sing_.times, 3U);
    EXPECT_EQ(sing_.tune, "waltz");
    EXPECT_EQ(sing_.book, "") << "given, and empty";
    EXPECT_EQ(sing_.box, std::nullopt);
    EXPECT_EQ(hum_.names, Words{});
    EXPECT_EQ(asked.command->run(), 2);
}

TEST_F(CommandLine, LeavesTheFieldsOfOptionsThatAreNotGiven)
{
    EXPECT_EQ(Read({"hum", "a.wav", "b.wav"}).command, &commands_[1]);
    EXPECT_EQ(hum_.names, (Words{"a.wav", "b.wav"}));
    EXPECT_EQ(Read({"sing"}).command, &commands_[0]);
    EXPECT_FALSE(sing_.loud);
    EXPECT_EQ(sing_.times, 1U);
    EXPECT_EQ(sing_.tune, std::nullopt);
    EXPECT_EQ(sing_.names, Words{});
}

TEST_F(CommandLine, RefusesWhatACommandDoesNotTake)
{
    EXPECT_NE(Refusal({"hum", "--loud"}).find("--loud"), std::string::npos);
    EXPECT_NE(Refusal({"sing", "--times", "10"}).find("--times"), std::string::npos);
    EXPECT_NE(Refusal({"sing", "--times", "0"}).find("--times"), std::string::npos);
    EXPECT_NE(Refusal({"sing", "--tune"}).find("--tune"), std::string::npos);
    EXPECT_NE(Refusal({"sing", "--tune", "a", "--tune", "b"}).find("--tune"), std::string::npos);
}

TEST_F(CommandLine, TakesNamesThatTheParserWouldTakeApart)
{
    Read({"hum", "[a,b]", "++", "[c"});
    EXPECT_EQ(hum_.names, (Words{"./[a,b]", "./++", "[c"}));
}

} // namespace
} // namespace lumora::test
