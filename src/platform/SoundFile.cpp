#include "platform/SoundFile.h"

#include "base/Text.h"

#include <fcntl.h>
#include <sndfile.h>
#include <unistd.h>

namespace lumora {

namespace {

/// Some decoders behind libsndfile write their own remarks to standard error; while this lives
/// nobody sees them. What matters of them comes back as fewer frames or as a reason.
class DecodersMuted {
public:
    DecodersMuted() : before_(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3))
    {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (before_ >= 0 && nowhere >= 0) dup2(nowhere, STDERR_FILENO);
        if (nowhere >= 0) close(nowhere);
    }
    ~DecodersMuted()
    {
        if (before_ < 0) return;
        dup2(before_, STDERR_FILENO);
        close(before_);
    }
    DecodersMuted(const DecodersMuted&) = delete;
    DecodersMuted& operator=(const DecodersMuted&) = delete;

private:
    int before_;
};

std::string FormatName(int format)
{
    SF_FORMAT_INFO info = {};
    info.format = format;
    const int failed = sf_command(nullptr, SFC_GET_FORMAT_INFO, &info, sizeof info);
    return failed == 0 && info.name ? info.name : "format " + std::to_string(format);
}

} // namespace

SoundFile::SoundFile(const std::string& path)
{
    const DecodersMuted muted;
    SF_INFO info = {};
    file_.reset(sf_open(path.c_str(), SFM_READ, &info));
    if (!file_) throw UnreadableSound(std::string(TrimBlanks(sf_strerror(nullptr))));
    rate_hz_ = info.samplerate;
    channels_ = info.channels;
    if (info.frames >= 0 && info.frames < SF_COUNT_MAX) samples_ = info.frames;
    format_ = FormatName(info.format & SF_FORMAT_TYPEMASK) + ", " +
              FormatName(info.format & SF_FORMAT_SUBMASK);
}

std::int64_t SoundFile::Read(std::span<double> samples)
{
    const DecodersMuted muted;
    const auto room = static_cast<std::int64_t>(samples.size()) / channels_;
    return sf_readf_double(file_.get(), samples.data(), room);
}

void SoundFile::Close::operator()(sf_private_tag* file) const
{
    sf_close(file);
}

} // namespace lumora
