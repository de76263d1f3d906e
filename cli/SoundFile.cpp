#include "cli/SoundFile.h"

#include "base/Text.h"

#include <sndfile.h>

namespace lumora {

namespace {

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
    const auto room = static_cast<std::int64_t>(samples.size()) / channels_;
    return sf_readf_double(file_.get(), samples.data(), room);
}

void SoundFile::Close::operator()(sf_private_tag* file) const
{
    sf_close(file);
}

} // namespace lumora
