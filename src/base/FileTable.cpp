#include "base/FileTable.h"

#include <array>
#include <cerrno>
#include <utility>

namespace lumora {

namespace {

constexpr FileNumber kLastFileNumber = 511;

std::array<FileSlot, kLastFileNumber>& Slots()
{
    static std::array<FileSlot, kLastFileNumber> slots;
    return slots;
}

std::int64_t LengthOf(std::FILE* stream)
{
    if (std::fseek(stream, 0, SEEK_END) != 0) return 0; // a device or a pipe
    return std::max<std::int64_t>(std::ftell(stream), 0);
}

/// Brings the stream to where the slot says. A change between reading and writing needs a seek
/// even in place, so both forget the offset when they hand over.
void Align(FileSlot& slot)
{
    if (slot.stream_offset == slot.position - 1) return;
    std::fseek(slot.stream, static_cast<long>(slot.position - 1), SEEK_SET);
    slot.stream_offset = slot.position - 1;
}

} // namespace

FileNumber EnterFile(std::FILE* stream, const std::string& name, Access access)
{
    // Unbuffered where we write: what a call wrote is in the file when it returns.
    if (access != Access::Read) std::setvbuf(stream, nullptr, _IONBF, 0);
    for (FileNumber number = 1; number <= kLastFileNumber; ++number) {
        FileSlot& slot = Slots()[static_cast<std::size_t>(number - 1)];
        if (slot.stream) continue;
        slot = {stream, name, access, LengthOf(stream), 1, -1};
        return number;
    }
    std::fclose(stream);
    Raise(ErrorNumber::TooManyFiles, name);
}

FileSlot& SlotOf(FileNumber file)
{
    if (file < 1 || file > kLastFileNumber || !Slots()[static_cast<std::size_t>(file - 1)].stream)
        Raise(ErrorNumber::BadFileNumber);
    return Slots()[static_cast<std::size_t>(file - 1)];
}

void fclose(FileNumber File)
{
    FileSlot slot = std::exchange(SlotOf(File), FileSlot{});
    if (std::fclose(slot.stream) != 0) RaiseFileError(errno, slot.name);
}

std::int64_t FileLength(FileNumber File)
{
    return SlotOf(File).length;
}

std::int64_t FileLengthNow(FileNumber File)
{
    FileSlot& slot = SlotOf(File);
    slot.stream_offset = -1; // the question moves the stream
    return LengthOf(slot.stream);
}

std::int64_t FilePosition(FileNumber File)
{
    return SlotOf(File).position;
}

void SeekTo(FileNumber File, std::int64_t Position)
{
    FileSlot& slot = SlotOf(File);
    if (Position < 1) Raise(ErrorNumber::BadRecordNumber, slot.name);
    slot.position = Position;
}

std::size_t ReadBytes(FileNumber File, std::span<std::byte> bytes)
{
    FileSlot& slot = SlotOf(File);
    if (slot.access == Access::Write) Raise(ErrorNumber::PathFileAccess, slot.name);
    Align(slot);
    const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), slot.stream);
    if (count < bytes.size() && std::ferror(slot.stream)) RaiseFileError(errno, slot.name);
    slot.position += static_cast<std::int64_t>(count);
    // At its end a stream must seek before it reads again; a stream for both, before it writes.
    const bool go_on = slot.access == Access::Read && count == bytes.size();
    slot.stream_offset = go_on ? slot.position - 1 : -1;
    return count;
}

void WriteBytes(FileNumber File, std::span<const std::byte> bytes)
{
    FileSlot& slot = SlotOf(File);
    if (slot.access == Access::Read) Raise(ErrorNumber::PathFileAccess, slot.name);
    Align(slot);
    const std::size_t count = std::fwrite(bytes.data(), 1, bytes.size(), slot.stream);
    slot.position += static_cast<std::int64_t>(count);
    slot.length = std::max(slot.length, slot.position - 1);
    slot.stream_offset = slot.access == Access::Write ? slot.position - 1 : -1;
    if (count < bytes.size()) {
        slot.stream_offset = -1;
        RaiseFileError(errno, slot.name);
    }
}

OpenFile::~OpenFile()
{
    if (Failed()) return;
    try {
        fclose(file_);
    } catch (const RunTimeError&) {
        // Another failure is on its way already; Close is the form that reports.
    }
}

void OpenFile::Close()
{
    if (!Failed()) fclose(std::exchange(file_, kNoFile));
}

} // namespace lumora
