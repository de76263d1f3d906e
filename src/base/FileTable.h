#pragma once

#include "base/ByteStream.h"

#include <cstdint>
#include <cstdio>
#include <string>

/// What the routines of the byte layer know of an open file. Private to the layer.
namespace lumora {

enum class Access { Read, Write, ReadWrite };

struct FileSlot {
    std::FILE* stream = nullptr;
    std::string name;
    Access access = Access::Read;
    std::int64_t length = 0;
    std::int64_t position = 1;
    /// Where the stream really stands, from 0; -1 makes the next transfer seek first.
    std::int64_t stream_offset = -1;
};

/// Takes the stream into the table under the first free number. Closes it and raises error 67 if
/// there is none.
FileNumber EnterFile(std::FILE* stream, const std::string& name, Access access);

/// The slot of an open file. Error 52.
FileSlot& SlotOf(FileNumber file);

} // namespace lumora
