#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>

struct sf_private_tag;

namespace lumora {

/// libsndfile cannot read a file; what() is its reason.
class UnreadableSound : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A sound file of any format that libsndfile reads. Everything the programs know of that library
/// is behind this class.
class SoundFile {
public:
    /// UnreadableSound if the file is not there or in no format known.
    explicit SoundFile(const std::string& path);

    std::int32_t RateHz() const { return rate_hz_; }
    std::int32_t Channels() const { return channels_; }
    /// Samples per channel that the file promises; none where only reading it through can tell.
    std::optional<std::int64_t> Samples() const { return samples_; }
    /// Container and coding, in libsndfile's words.
    const std::string& Format() const { return format_; }

    /// Reads the next frames, channels interleaved, full scale being -1 to 1. Answers how many came
    /// whole: fewer than there is room for at the end of the file or where it is damaged.
    std::int64_t Read(std::span<double> samples);

private:
    struct Close {
        void operator()(sf_private_tag* file) const;
    };

    std::unique_ptr<sf_private_tag, Close> file_;
    std::int32_t rate_hz_ = 0;
    std::int32_t channels_ = 0;
    std::optional<std::int64_t> samples_;
    std::string format_;
};

} // namespace lumora
