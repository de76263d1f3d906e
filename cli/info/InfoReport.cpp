#include "cli/info/InfoReport.h"

#include "audio/FrameRule.h"
#include "cli/terminal/Wording.h"

#include <variant>
#include <vector>

namespace lumora {

namespace {

const char* RoadName(Road road)
{
    if (road == Road::Direct) return "direct";
    return road == Road::Converted ? "converted" : "refused";
}

struct HeaderField {
    const char* name;
    std::variant<std::int64_t, std::string> value;
};

std::vector<HeaderField> HeaderFields(const WaveInfo& header)
{
    return {{"RiffID", header.RiffID},
            {"RiffSize", header.RiffSize},
            {"WaveID", header.WaveID},
            {"FmtID", header.FmtID},
            {"FmtSize", header.FmtSize},
            {"wFormatTag", header.wFormatTag},
            {"nChannels", header.nChannels},
            {"nSamplesPerSec", header.nSamplesPerSec},
            {"nAvgBytesPerSec", header.nAvgBytesPerSec},
            {"nBlockAlign", header.nBlockAlign},
            {"nBitsPerSample", header.nBitsPerSample},
            {"cbExtra", header.cbExtra},
            {"FactID", header.FactID},
            {"FactSize", header.FactSize},
            {"TotalSamples", header.TotalSamples},
            {"DataID", header.DataID},
            {"DataSize", header.DataSize},
            {"DataStart", header.DataStart},
            {"DataEnd", header.DataEnd},
            {"Message", header.Message}};
}

JsonValue HeaderJson(const WaveInfo& header)
{
    JsonValue object = JsonValue::Object();
    for (const HeaderField& field : HeaderFields(header))
        std::visit([&](const auto& value) { object.Set(field.name, value); }, field.value);
    return object;
}

JsonValue ChunksJson(const std::vector<WaveChunk>& chunks)
{
    JsonValue list = JsonValue::List();
    for (const WaveChunk& chunk : chunks)
        list.Append({{"id", chunk.id}, {"bytes", chunk.bytes}, {"start", chunk.start}});
    return list;
}

std::string TextLine(const std::string& label, const std::string& text)
{
    constexpr std::size_t kLabelWidth = 18;
    return "  " + label + std::string(kLabelWidth - label.size(), ' ') + NameText(text) + "\n";
}

std::string RoadText(const InputCheck& check)
{
    if (check.road == Road::Direct) return "would read it as it is";
    if (check.road == Road::Converted)
        return "would convert it to 16-bit PCM first: " + check.reason;
    return "cannot work on it: " + check.reason;
}

std::string SoundText(const SoundShape& sound)
{
    return LengthText(sound.samples, sound.rate_hz) + ", " + std::to_string(sound.samples) +
           " samples, " + std::to_string(sound.rate_hz) + " Hz, " + std::to_string(sound.channels) +
           (sound.channels == 1 ? " channel" : " channels");
}

} // namespace

std::string InfoReport::Text() const
{
    std::string text = NameText(file) + "\n";
    if (check.read && check.sound.rate_hz > 0) text += TextLine("sound", SoundText(check.sound));
    if (!check.format.empty()) text += TextLine("format", check.format);
    text += TextLine("lumora pitch", RoadText(check));
    if (check.road != Road::Refused) {
        const std::int64_t block_len = FrameLength(check.sound.rate_hz);
        text += TextLine("blocks", std::to_string(check.sound.samples / block_len) + " of " +
                                       std::to_string(block_len) + " samples");
    }
    if (!check.outline.IsWave()) return text;
    const std::int64_t missing =
        check.outline.Data() ? check.outline.Data()->bytes - check.outline.DataBytesThere() : 0;
    if (missing > 0) text += TextLine("missing", std::to_string(missing) + " bytes of the data");
    for (const WaveChunk& chunk : check.outline.chunks)
        text += TextLine("chunk " + ChunkName(chunk.id), std::to_string(chunk.bytes) +
                                                             " bytes at position " +
                                                             std::to_string(chunk.start));
    for (const auto& [name, value] : HeaderFields(check.outline.header)) {
        const auto* number = std::get_if<std::int64_t>(&value);
        text += TextLine(name, number ? std::to_string(*number) : std::get<std::string>(value));
    }
    return text;
}

JsonValue InfoReport::Json() const
{
    JsonValue json = {{"file", file}, {"ok", check.read}};
    if (!check.read) json.Set("error", check.reason);
    json.Set("pitch", RoadName(check.road));
    if (check.road != Road::Direct) json.Set("reason", check.reason);
    if (!check.format.empty()) json.Set("format", check.format);
    if (check.read) {
        json.Set("rate_hz", check.sound.rate_hz);
        json.Set("channels", check.sound.channels);
        json.Set("samples", check.sound.samples);
        if (check.sound.rate_hz > 0)
            json.Set("seconds", static_cast<double>(check.sound.samples) / check.sound.rate_hz);
    }
    if (check.road != Road::Refused) json.Set("block_samples", FrameLength(check.sound.rate_hz));
    if (check.outline.IsWave()) {
        json.Set("header", HeaderJson(check.outline.header));
        json.Set("chunks", ChunksJson(check.outline.chunks));
        json.Set("data_bytes_there", check.outline.DataBytesThere());
    }
    return json;
}

} // namespace lumora
