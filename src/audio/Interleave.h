#pragma once

#include <cstddef>

/// Between the order of a file, frame by frame, and that of a matrix, channel by channel.
namespace lumora {

/// out[k] = frames[k * channels]: one channel of `count` frames, from its first sample on.
template <class T>
void TakeChannel(const T* frames, std::size_t count, std::size_t channels, T* out)
{
    if (channels == 2) { // a step that the compiler knows makes vectors of the loop
        for (std::size_t k = 0; k < count; ++k)
            out[k] = frames[2 * k];
        return;
    }
    for (std::size_t k = 0; k < count; ++k)
        out[k] = frames[k * channels];
}

/// The way back: frames[k * channels] = in[k].
template <class T> void PutChannel(const T* in, std::size_t count, std::size_t channels, T* frames)
{
    for (std::size_t k = 0; k < count; ++k)
        frames[k * channels] = in[k];
}

} // namespace lumora
