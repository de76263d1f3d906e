#include "cli/CommandRun.h"
#include "cli/Sounds.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace lumora::test {
namespace {

using PageRow = std::vector<std::string>;
const std::string kDocs = LUMORA_SOURCE_DIR "/docs/";

/// The cells of a table's line, blanks and marks taken off.
PageRow Cells(const std::string& line)
{
    PageRow cells;
    std::istringstream rest(line.substr(1));
    for (std::string cell; std::getline(rest, cell, '|');) {
        std::erase_if(cell, [](char c) { return c == ' ' || c == '*' || c == ','; });
        cells.push_back(cell);
    }
    return cells;
}

/// The rows of the page's two tables of settings, each with the table's head in front.
std::vector<std::pair<PageRow, PageRow>> SettingRows()
{
    std::vector<std::pair<PageRow, PageRow>> rows;
    PageRow head;
    std::istringstream page(BytesOf(kDocs + "accuracy.md"));
    for (std::string line; std::getline(page, line);) {
        if (line.rfind("| Tones", 0) == 0) head = Cells(line);
        if (line.rfind("| +", 0) == 0 || line.rfind("| -", 0) == 0)
            rows.emplace_back(head, Cells(line));
    }
    return rows;
}

TEST(AccuracyPage, IsWhatItsScriptPrints)
{
    const CommandResult script = RunningCommand({"python3", kDocs + "make_accuracy.py"}).Wait();
    EXPECT_EQ(script.status, 0) << script.err;
    EXPECT_EQ(script.out, BytesOf(kDocs + "accuracy.md"));
}

TEST(AccuracyPage, TellsOfEveryRateWhatTheCommandReports)
{
    const TempFolder folder;
    const auto rows = SettingRows();
    ASSERT_EQ(rows.size(), 16U);
    const PageRow& head = rows.front().first;
    ASSERT_EQ(head.size(), 12U);
    std::vector<std::string> inputs;
    for (std::size_t k = 2; k < head.size(); ++k)
        inputs.push_back(folder.Write(head[k] + ".wav", TuneWave(2000, 1, std::stoi(head[k]))));
    for (const auto& [unused, row] : rows) {
        std::vector<std::string> words = {"pitch",     "--json",    "--force",     "--tones",
                                          row.front(), "--out-dir", folder / "out"};
        words.insert(words.end(), inputs.begin(), inputs.end());
        const CommandResult run = Lumora(words);
        ASSERT_EQ(run.status, 0) << run.out;
        const auto results = nlohmann::json::parse(run.out).at("results");
        for (std::size_t k = 2; k < row.size(); ++k) {
            const auto& result = results.at(k - 2);
            // The page has two decimals of what it asks.
            EXPECT_NEAR(result.at("effective_cents").get<double>(), std::stod(row[k]), 0.005)
                << row.front() << " at " << head[k];
            EXPECT_EQ(result.at("too_fine").get<bool>(), row[k] == "0.00");
            EXPECT_EQ(result.at("asked_cents").get<double>(), std::stod(row[1]));
        }
    }
}

} // namespace
} // namespace lumora::test
