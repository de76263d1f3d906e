// Any bytes as a table of comma-separated cells: an object of the class wanted or a fault that is
// told; and what was read, written and read again is the same.
//
// Input: one byte for the class, then the table.

#include "cli/arr/Csv.h"
#include "cli/terminal/JobFailure.h"
#include "numeric/ObjectNumbers.h"
#include "numeric/Operands.h"
#include "support/FuzzInput.h"

#include <array>
#include <optional>

namespace {

using namespace lumora;

constexpr std::array kClasses = {ArrClass::Matrix, ArrClass::Long, ArrClass::String,
                                 ArrClass::Complex};

std::optional<Variant> Read(std::string_view text, ArrClass as)
{
    try {
        return ReadCsv(text, as, [] {});
    } catch (const JobFailure&) {
        return {};
    }
}

std::string Written(const Variant& value)
{
    const Sizes sizes = SizesOfObject(value).value();
    std::string text;
    WriteCsv({*TagOf(value), sizes.rows, sizes.columns, value},
             [&](const std::string& piece) { text += piece; });
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    const ArrClass as = kClasses[data[0] % kClasses.size()];
    const std::string text(data + 1, data + size);
    const std::optional<Variant> value = Read(text, as);
    if (!value) return 0;
    const std::string written = Written(*value);
    const std::optional<Variant> again = Read(written, as);
    fuzz::Demand(again.has_value());
    fuzz::Demand(Written(*again) == written);
    return 0;
}
