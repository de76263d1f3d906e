#include "cli/CommandRun.h"
#include "cli/Commands.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "cli/Sounds.h"
#include "cli/files/RunLimits.h"

#include <filesystem>
#include <regex>
#include <set>

namespace lumora::test {
namespace {

using Names = std::vector<std::string>;

const std::string kPackaging = LUMORA_SOURCE_DIR "/packaging/";

/// The long options in a text.
std::set<std::string> OptionsIn(const std::string& text)
{
    static const std::regex option("--[a-z][a-z-]*");
    std::set<std::string> options;
    for (std::sregex_iterator found(text.begin(), text.end(), option), end; found != end; ++found)
        options.insert(found->str());
    return options;
}

std::string HelpOf(const Names& words)
{
    const CommandResult help = Lumora(words);
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    return help.out;
}

std::set<std::string> AllOptions()
{
    std::string text = HelpOf({"--help"});
    for (const std::string& command : NamesOf(AllCommands()))
        text += HelpOf({"help", command});
    return OptionsIn(text);
}

/// The man page as plain text on one endless line for each paragraph.
std::string ManPage()
{
    const CommandResult man =
        RunningCommand({"man", "--warnings", "-E", "ascii", "-l", kPackaging + "lumora.1"},
                       {.before = [] { setenv("MANWIDTH", "1000", 1); }})
            .Wait();
    EXPECT_EQ(man.status, 0);
    EXPECT_EQ(man.err, "");
    return man.out;
}

TEST(Help, IsTheSameByEveryRoad)
{
    EXPECT_EQ(HelpOf({"help"}), HelpOf({"--help"}));
    EXPECT_EQ(HelpOf({"help"}), HelpOf({"-h"}));
    EXPECT_EQ(HelpOf({"help", "pitch"}), HelpOf({"pitch", "--help"}));
    EXPECT_EQ(HelpOf({"help", "declip"}), HelpOf({"declip", "--help"}));
    EXPECT_EQ(HelpOf({"help", "info"}), HelpOf({"info", "-h"}));
    EXPECT_EQ(HelpOf({"help", "arr"}), HelpOf({"arr", "--help"}));
    EXPECT_NE(HelpOf({"help", "pitch"}), HelpOf({"help", "info"}));
}

TEST(Help, NamesTheCommandsAndHowToCallThem)
{
    for (const char* command : {"pitch", "declip", "info", "arr", "help"})
        EXPECT_NE(HelpOf({"--help"}).find(std::string("\n  ") + command + " "), std::string::npos);
    for (const std::string command : {"pitch", "declip"})
        EXPECT_NE(HelpOf({"help", command}).find("lumora " + command + " IN... --out-dir DIR"),
                  std::string::npos);
}

TEST(Version, IsANumberOfThreeParts)
{
    EXPECT_TRUE(
        std::regex_match(HelpOf({"--version"}), std::regex("lumora [0-9]+\\.[0-9]+\\.[0-9]+\n")));
}

TEST(ManPage, NamesExactlyTheOptionsOfTheHelp)
{
    std::set<std::string> told = OptionsIn(ManPage());
    told.erase("--ignore-length");
    EXPECT_EQ(told, AllOptions());
}

TEST(ManPage, NamesEveryCommandAndWhatItTakes)
{
    const std::string page = ManPage();
    const auto expect_named = [&](const std::string& words) {
        const std::regex whole("(^|[^-\\w])" + words + "([^-\\w]|$)");
        EXPECT_TRUE(std::regex_search(page, whole)) << words;
    };
    std::size_t options = 0;
    for (const Command& command : AllCommands()) {
        expect_named("lumora " + command.name);
        for (const std::string& word : command.names.first)
            expect_named("lumora " + command.name + " " + word);
        for (const Option& option : command.options) {
            ++options;
            expect_named(option.name);
            if (const auto* text = std::get_if<TextValue>(&option.value))
                for (const std::string& word : text->offers.words)
                    expect_named(word);
        }
    }
    EXPECT_GE(options, 18U);
}

TEST(ManPage, TellsTheRatesThatAreWorkedOn)
{
    const auto told = [](const RunLimits& limits) {
        return "rates of " + std::to_string(limits.lowest_rate_hz) + " to " +
               std::to_string(limits.highest_rate_hz) + " Hz";
    };
    const std::string page = ManPage();
    EXPECT_NE(page.find(told(kPitchLimits)), std::string::npos);
    EXPECT_NE(page.find(told(kDeclipLimits)), std::string::npos);
}

TEST(ManPage, NamesEveryFieldOfTheJson)
{
    const TempFolder folder;
    folder.Write("good.wav", TuneWave(5000));
    folder.Write("list.wav", Wave(Chunk("LIST", "INFO") + FormatChunk() +
                                  Chunk("data", BytesOfSamples(Tune(500)))));
    const Surroundings there = {folder.Path().string()};
    const Names pitch = {"pitch", "good.wav", "x.wav", "--out-dir",
                         "out",   "--tones",  "1",     "--json"};
    const Names declip = {"declip", "good.wav", "mended.wav", "--plot", "x.png", "--json"};
    const Names info = {"info", "good.wav", "list.wav", "x.wav", "--json"};
    folder.Write("z.csv", "1+i,2\n");
    const Names made = {"arr", "from-csv", "z.csv", "z.arr", "--as", "complex", "--json"};
    const Names shown = {"arr", "show", "z.arr", "--json"};
    const std::string page = ManPage();
    std::size_t fields = 0;
    const auto expect_told = [&](const auto& self, const nlohmann::json& json) -> void {
        for (const auto& [name, value] : json.items()) {
            if (json.is_object()) {
                ++fields;
                EXPECT_TRUE(std::regex_search(page, std::regex("\\b" + name + "\\b"))) << name;
            }
            if (value.is_structured()) self(self, value);
        }
    };
    expect_told(expect_told, nlohmann::json::parse(Lumora(pitch, there).out));
    expect_told(expect_told, nlohmann::json::parse(Lumora(declip, there).out));
    expect_told(expect_told, nlohmann::json::parse(Lumora(info, there).out));
    expect_told(expect_told, nlohmann::json::parse(Lumora(made, there).out));
    expect_told(expect_told, nlohmann::json::parse(Lumora(shown, there).out));
    EXPECT_GT(fields, 98U);
}

/// What bash offers for the last of these words.
std::set<std::string> Completions(const Names& words, const std::string& folder = "/")
{
    const std::string programs = std::filesystem::path(LUMORA_COMMAND).parent_path();
    std::string script = "PATH='" + programs + "':$PATH; source '" + kPackaging +
                         "lumora.bash-completion'; compopt() { :; }; "
                         "COMP_WORDS=(";
    for (const std::string& word : words)
        script += "'" + word + "' ";
    script += "); COMP_CWORD=" + std::to_string(words.size() - 1) +
              "; _lumora && printf '%s\\n' \"${COMPREPLY[@]}\"";
    const CommandResult bash = RunningCommand({"bash", "-c", script}, {folder}).Wait();
    EXPECT_EQ(bash.err, "");
    std::set<std::string> offers;
    std::istringstream lines(bash.out);
    for (std::string line; std::getline(lines, line);)
        if (!line.empty()) offers.insert(line);
    return offers;
}

TEST(Completion, OffersCommandsFirst)
{
    EXPECT_EQ(Completions({"lumora", ""}), (std::set<std::string>{"pitch", "declip", "info", "arr",
                                                                  "help", "--help", "--version"}));
    EXPECT_EQ(Completions({"lumora", "p"}), std::set<std::string>{"pitch"});
    EXPECT_EQ(Completions({"lumora", "help", ""}),
              (std::set<std::string>{"pitch", "declip", "info", "arr"}));
}

TEST(Completion, OffersExactlyTheOptionsOfTheHelp)
{
    for (const std::string& command : NamesOf(AllCommands())) {
        const std::string usage = HelpOf({"help", command});
        EXPECT_EQ(Completions({"lumora", command, "--"}), OptionsIn(usage)) << command;
    }
    EXPECT_EQ(Completions({"lumora", "--"}), OptionsIn(HelpOf({"--help"})));
    EXPECT_EQ(Completions({"lumora", "pitch", "--to"}), std::set<std::string>{"--tones"});
}

TEST(Completion, OffersWhatToDoWithMatrixFilesAndWhatToMakeOfATable)
{
    EXPECT_EQ(Completions({"lumora", "arr", ""}),
              (std::set<std::string>{"show", "to-csv", "from-csv"}));
    EXPECT_EQ(Completions({"lumora", "arr", "from-csv", "--as", ""}),
              (std::set<std::string>{"matrix", "long", "string", "complex"}));
    const TempFolder folder;
    folder.Write("keys.arr", "");
    EXPECT_EQ(Completions({"lumora", "arr", "show", ""}, folder.Path().string()),
              std::set<std::string>{"keys.arr"});
}

TEST(Completion, OffersFilesFoldersOrNothingAsTheOptionWants)
{
    const TempFolder folder;
    folder.Write("song.wav", "");
    folder.MakeFolder("results");
    const std::string here = folder.Path().string();
    EXPECT_EQ(Completions({"lumora", "pitch", ""}, here),
              (std::set<std::string>{"results", "song.wav"}));
    EXPECT_EQ(Completions({"lumora", "info", "so"}, here), std::set<std::string>{"song.wav"});
    EXPECT_EQ(Completions({"lumora", "pitch", "--out-dir", ""}, here),
              std::set<std::string>{"results"});
    EXPECT_EQ(Completions({"lumora", "declip", "--plot", "s"}, here),
              std::set<std::string>{"song.wav"});
    EXPECT_EQ(Completions({"lumora", "pitch", "--tones", ""}, here), std::set<std::string>{});
}

} // namespace
} // namespace lumora::test
