// Any bytes as a matrix file: a value of the kind that it says, nothing, or a run-time error; never
// more memory than a small multiple of the file and, where it is cut short, 64 MiB; and what was
// read, written and read again is the same.
//
// Input: First and Last (32 bits each), then the file.

#include "base/ByteStream.h"
#include "numeric/Sheets.h"
#include "numeric/files/ArrFile.h"
#include "support/FuzzInput.h"

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <new>

namespace {

std::size_t taken = 0; // bytes of all allocations, given back or not

void* Taken(std::size_t size)
{
    taken += size;
    return std::malloc(size);
}

void* TakenOrThrown(std::size_t size)
{
    if (void* place = Taken(size)) return place;
    throw std::bad_alloc();
}

} // namespace

// All of them, so that a sanitizer's own never meet ours.
// clang-format off
void* operator new  (std::size_t size)                                 { return TakenOrThrown(size); }
void* operator new[](std::size_t size)                                 { return TakenOrThrown(size); }
void* operator new  (std::size_t size, const std::nothrow_t&) noexcept { return Taken(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Taken(size); }
void operator delete  (void* place) noexcept              { std::free(place); }
void operator delete[](void* place) noexcept              { std::free(place); }
void operator delete  (void* place, std::size_t) noexcept { std::free(place); }
void operator delete[](void* place, std::size_t) noexcept { std::free(place); }
// clang-format on

namespace lumora {
namespace {

using fuzz::Demand;

// A text of two bytes in the file is 32 in memory and may be copied on its way.
constexpr std::size_t kMostPerByte = 64;
constexpr std::size_t kMostBeside = std::size_t{16} * 1024;
constexpr std::size_t kMostMadeUp = std::size_t{64} << 20;

/// A shape that fits its elements, and the kind that the file was asked for.
void CheckValue(const Variant& value, const std::string& kind)
{
    value.Visit([&](const auto& held) {
        if constexpr (requires { SheetOf(*held); })
            Demand(SheetOf(*held).Size() > 0 && kind.starts_with("cls"));
        else if constexpr (requires { held.Span(); })
            Demand(!held.Span().empty() && !kind.starts_with("cls"));
        else
            Demand(false);
    });
}

/// The bytes that a value is written as.
std::string Written(const Variant& value, std::string kind)
{
    static const std::string name =
        std::filesystem::temp_directory_path() / ("lumora-fuzz-" + std::to_string(getpid()));
    if (kind == "date") kind = "data"; // the writer's word
    const std::int32_t count = WriteArrTo(name, value, kind);
    const OpenFile written(OpenForReading(name));
    std::filesystem::remove(name);
    std::string bytes(static_cast<std::size_t>(FileLength(written.Number())), '\0');
    Demand(bytes.size() == static_cast<std::size_t>(count));
    Demand(ReadValues(written.Number(), std::span(bytes)) == bytes.size());
    return bytes;
}

void Check(const std::string& name, std::size_t size, std::int32_t first, std::int32_t last)
{
    const Variant kind = ReadArrFrom(name, {}, {}, 1.0);
    Variant value;
    taken = 0;
    ArrExtent extent;
    const bool came_back =
        fuzz::ComesBack([&] { value = ReadArrFrom(name, first, last, {}, &extent); });
    const std::size_t most = size * kMostPerByte + kMostBeside;
    Demand(taken <= most + (extent.IsShort() ? kMostMadeUp : 0));
    Demand(!came_back || value.IsEmpty() == kind.IsEmpty());
    if (value.IsEmpty()) return;
    const std::string& word = kind.As<std::string>();
    CheckValue(value, word);
    if (taken > most) return; // megabytes of zeros take long and show nothing new
    const std::string bytes = Written(value, word);
    const fuzz::MemoryFile again(
        {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
    Demand(Written(ReadArrFrom(again.Name()), word) == bytes);
}

} // namespace
} // namespace lumora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lumora;
    std::int32_t range[2] = {};
    if (size < sizeof range) return 0;
    std::memcpy(range, data, sizeof range);
    const fuzz::MemoryFile file({data + sizeof range, size - sizeof range});
    const fuzz::CountedMessages messages;
    Check(file.Name(), size - sizeof range, range[0], range[1]);
    fuzz::Demand(messages.count == 0);
    fuzz::Demand(OpenFile(fopen(file.Name(), "rb")).Number() == 1); // all is closed
    return 0;
}
