#include "audio/WaveChunks.h"

#include "support/MessageRecorder.h"
#include "support/TempFolder.h"
#include "support/WaveBuilder.h"

#include <gtest/gtest.h>
#include <limits>

namespace lumora {
namespace {

using namespace test;

/// What read_factck makes of a body that states a size, and where the file stands then.
struct FactRead {
    FactFields fields;
    std::int64_t position = 0;
    Shown shown;
};
FactRead ReadFact(const std::string& body, std::int32_t stated)
{
    const TempFolder folder;
    MessageRecorder messages;
    const OpenFile file(fopen(folder.Write("f", body), "rb"));
    ChunkHeader chunk;
    chunk.File = file.Number();
    chunk.ID = "fact";
    chunk.Size = stated;
    FactRead read;
    read_factck(file.Number(), chunk, read.fields);
    read.position = FilePosition(file.Number());
    read.shown = messages.Take();
    return read;
}

TEST(ReadFactck, ReadsOneNumberAndSkipsTheRest)
{
    for (std::int32_t size : {4, 5, 12}) {
        const FactRead read = ReadFact(Le32(1234) + std::string(20, 'x'), size);
        EXPECT_EQ(read.fields.Samples, 1234);
        EXPECT_EQ(read.fields.Message, "");
        EXPECT_EQ(read.position, size + 1);
        EXPECT_TRUE(read.shown.empty());
    }
    EXPECT_EQ(ReadFact(Le32(-7), 4).fields.Samples, -7);
}

TEST(ReadFactck, ShowsAShortChunk)
{
    const std::string text = "Error reading <fact-ck> chunc.";
    const struct {
        std::size_t held;
        std::int32_t stated;
    } table[] = {{3, 4},
                 {0, 4},
                 {3, 100},
                 {10, 3},
                 {10, 0},
                 {10, -1},
                 {10, std::numeric_limits<std::int32_t>::min()}};
    for (const auto& row : table) {
        const FactRead read = ReadFact(std::string(row.held, 'x'), row.stated);
        EXPECT_EQ(read.fields.Message, text) << row.held << '/' << row.stated;
        EXPECT_EQ(read.shown, (Shown{FileError("Error using read_factck", text)}))
            << row.held << '/' << row.stated;
    }
}

TEST(ReadFactck, ShowsAnEndBeyondTheFile)
{
    const std::string text = "Error reading <fact-ck> chunk";
    for (std::int32_t size : {11, 12, std::numeric_limits<std::int32_t>::max()}) {
        const FactRead read = ReadFact(std::string(10, 'x'), size);
        EXPECT_EQ(read.fields.Message, text) << size;
        EXPECT_EQ(read.shown, (Shown{FileError("Error using read_factck", text)})) << size;
    }
    EXPECT_EQ(ReadFact(std::string(10, 'x'), 10).fields.Message, "");
}

} // namespace
} // namespace lumora
