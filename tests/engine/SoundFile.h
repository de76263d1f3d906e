#pragma once

#include "engine/PlainPipeline.h"
#include "support/WaveBuilder.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

/// Whole WAVE files to and from samples in memory, apart from the library's own reader and writer.
namespace lumora::test {

/// The data bytes of a sound, channels interleaved; for 8 bits the samples are multiples of 256.
inline std::string DataBytes(const Sound& sound, int bits = 16)
{
    std::string bytes;
    for (std::size_t i = 0; i < sound.at(0).size(); ++i)
        for (const auto& channel : sound)
            bytes += bits == 8 ? LittleEndian(static_cast<std::uint64_t>(channel[i] / 256 + 128), 1)
                               : Le16(channel[i]);
    return bytes;
}

inline std::string FileOf(const Sound& sound, int rate_hz, int bits = 16)
{
    const FormatSpec spec{static_cast<int>(sound.size()), bits, rate_hz};
    return PlainWave(spec, DataBytes(sound, bits));
}

struct SoundFile {
    int channels = 0;
    int rate_hz = 0;
    int bits = 0;
    Sound sound;
};

inline std::uint32_t NumberAt(const std::string& bytes, std::size_t at, std::size_t size)
{
    std::uint32_t number = 0;
    for (std::size_t k = size; k-- > 0;)
        number = number << 8 | static_cast<std::uint8_t>(bytes.at(at + k));
    return number;
}

/// A file of 16 bits, all of whose sizes must be true; throws where one is not.
inline SoundFile ParseSoundFile(const std::string& bytes)
{
    const auto demand = [](bool met, const char* what) {
        if (!met) throw std::runtime_error(what);
    };
    demand(bytes.substr(0, 4) == "RIFF" && bytes.substr(8, 4) == "WAVE", "no WAVE file");
    demand(NumberAt(bytes, 4, 4) + 8 == bytes.size(), "RIFF size");
    SoundFile file;
    std::size_t at = 12;
    while (at < bytes.size()) {
        const std::string id = bytes.substr(at, 4);
        const std::size_t size = NumberAt(bytes, at + 4, 4);
        at += 8;
        if (id == "fmt ") {
            file.channels = static_cast<int>(NumberAt(bytes, at + 2, 2));
            file.rate_hz = static_cast<int>(NumberAt(bytes, at + 4, 4));
            file.bits = static_cast<int>(NumberAt(bytes, at + 14, 2));
        } else if (id == "data") {
            demand(at + size == bytes.size(), "data size");
            demand(file.channels > 0 && file.bits == 16, "format");
            file.sound.resize(static_cast<std::size_t>(file.channels));
            for (std::size_t k = 0; 2 * k < size; ++k)
                file.sound[k % file.sound.size()].push_back(
                    static_cast<std::int16_t>(NumberAt(bytes, at + 2 * k, 2)));
        }
        at += size;
    }
    demand(!file.sound.empty(), "no data");
    return file;
}

} // namespace lumora::test
