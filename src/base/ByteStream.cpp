#include "base/ByteStream.h"

#include "base/FileMessages.h"
#include "base/FileTable.h"
#include "base/Messages.h"
#include "base/Paths.h"
#include "base/Text.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace lumora {

using namespace file_messages;

namespace {

bool WriteProtected(int error_code)
{
    return error_code == EACCES || error_code == EROFS || error_code == EPERM ||
           error_code == ETXTBSY;
}

FileNumber OpenExisting(const std::string& name, const char* mode, Access access)
{
    std::FILE* stream = std::fopen(name.c_str(), mode);
    if (!stream && access == Access::ReadWrite && WriteProtected(errno)) {
        access = Access::Read;
        stream = std::fopen(name.c_str(), "rb");
    }
    if (!stream) RaiseFileError(errno, name);
    return EnterFile(stream, name, access);
}

FileNumber OpenOrMake(const std::string& name, Access access)
{
    std::FILE* stream = std::fopen(name.c_str(), FileExists(name) ? "r+b" : "w+b");
    return stream ? EnterFile(stream, name, access) : kNoFile;
}

void DeleteOrdinaryFile(const std::string& name)
{
    std::error_code failure;
    if (!std::filesystem::is_regular_file(name, failure)) return;
    if (!std::filesystem::remove(name, failure) && failure) RaiseFileError(failure.value(), name);
}

enum class OldContents { Delete, Keep };

FileNumber OpenByMode(const std::string& name, std::string_view mode, OldContents old_contents,
                      const std::string& title)
{
    if (mode == "rb" || mode == "wb+") {
        const bool reading = mode == "rb";
        if (FileExists(name))
            return OpenExisting(name, "r+b", reading ? Access::ReadWrite : Access::Write);
        ShowFileError(title, reading ? kNoInputFile : kNoFileToAddTo);
        return kNoFile;
    }
    if (mode == "wb") {
        if (old_contents == OldContents::Delete) DeleteOrdinaryFile(name);
        return OpenOrMake(name, Access::Write);
    }
    if (mode == "wr") return OpenOrMake(name, Access::ReadWrite);
    ShowFileError(title, kBadMode);
    return kNoFile;
}

} // namespace

FileNumber fopen(const std::string& FileName, std::string_view Mode)
{
    return OpenByMode(FileName, Mode, OldContents::Delete, kFopen);
}

FileNumber fopen_Rudo(const std::string& FileName, std::string_view Mode)
{
    return OpenByMode(FileName, Mode, OldContents::Keep, kFopenRudo);
}

FileNumber OpenForReading(const std::string& FileName)
{
    return OpenExisting(FileName, "rb", Access::Read);
}

FseekResult fseek(FileNumber File, std::int64_t Offset, std::string_view Origin)
{
    const std::string origin = Lower(Origin);
    const std::int64_t entry = FilePosition(File);
    std::int64_t base = 0;
    if (origin == "seek_cur") {
        base = entry;
    } else if (origin == "seek_end") {
        base = FileLength(File) + 1;
    } else if (origin != "seek_set") {
        ShowFileError(kFseek, kBadOrigin);
        SeekTo(File, 0);
    }
    std::int64_t position = 0;
    const bool overflow = __builtin_add_overflow(base, Offset, &position);
    if (overflow || position < 1 || position > FileLength(File) + 1) return {-1, entry};
    SeekTo(File, position);
    return {0, position};
}

} // namespace lumora
