#pragma once

#include "support/LittleEndian.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// WAVE files put together chunk by chunk in memory. Nothing is checked and every size can lie:
/// that is what they are for.
namespace lumora::test {

struct FormatSpec {
    int channels = 1;
    int bits = 16;
    std::int32_t rate_hz = 22050;
    int tag = 1;
    std::size_t size = 16; ///< bytes of the body: cut off or filled up with 0xEE to this
    int extra = 0;         ///< the word behind the bits
};

inline std::string FormatBody(const FormatSpec& spec)
{
    const int frame = spec.channels * spec.bits / 8;
    std::string body = Le16(spec.tag) + Le16(spec.channels) + Le32(spec.rate_hz) +
                       Le32(std::int64_t{spec.rate_hz} * frame) + Le16(frame) + Le16(spec.bits) +
                       Le16(spec.extra);
    body.resize(spec.size, '\xEE');
    return body;
}

/// A chunk of `body` that states its true size, or the one told.
inline std::string Chunk(const std::string& id, const std::string& body,
                         std::optional<std::int64_t> stated = {})
{
    return id + Le32(stated.value_or(static_cast<std::int64_t>(body.size()))) + body;
}

inline std::string FormatChunk(const FormatSpec& spec = {}, std::optional<std::int64_t> stated = {})
{
    return Chunk("fmt ", FormatBody(spec), stated);
}

/// The chunks under a RIFF head.
inline std::string Wave(const std::string& chunks, std::optional<std::int64_t> stated = {})
{
    return Chunk("RIFF", "WAVE" + chunks, stated);
}

/// A plain file of these data bytes behind a 44-byte head.
inline std::string PlainWave(const FormatSpec& spec, const std::string& data,
                             std::optional<std::int64_t> stated = {})
{
    return Wave(FormatChunk(spec) + Chunk("data", data, stated));
}

} // namespace lumora::test
