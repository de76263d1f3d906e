#include "cli/arr/ArrCells.h"

#include "base/QuietMessages.h"
#include "base/RunTimeError.h"
#include "cli/terminal/Explained.h"
#include "cli/terminal/JobFailure.h"
#include "numeric/ObjectNumbers.h"
#include "numeric/Operands.h"
#include "numeric/files/ArrFile.h"
#include "platform/FileFault.h"

namespace lumora {

namespace {

std::string FaultOf(const RunTimeError& error)
{
    if (error.Number() == ErrorNumber::PastEndOfFile)
        return "ends long before its sizes say; it is damaged or no matrix file";
    if (error.Number() == ErrorNumber::Subscript)
        return "its sizes are not above zero; it is damaged or no matrix file";
    return Explained(error);
}

/// Tells of a file that is cut short how much is there.
std::string NoteOf(const ArrExtent& extent, const std::string& kind)
{
    const bool texts = kind == "clsString" || kind == "string";
    const std::string order = kind == "clsComplexMatrix" ? ", real parts first" : "";
    return "the file is cut short: it holds " + std::to_string(extent.held) + " of " +
           std::to_string(extent.promised) + (texts ? " texts" : " numbers") + order + "; " +
           (texts ? "what is missing is left empty" : "the others are taken as 0");
}

Sizes SizesOfContents(const Variant& value)
{
    if (TagOf(value)) return SizesOfObject(value).value();
    return value.Visit([](const auto& held) {
        if constexpr (requires { held.Dimensions(); })
            return SizesOf(held);
        else
            return Sizes{};
    });
}

} // namespace

ArrContents ReadArrContents(const std::string& path)
{
    FailFor(FileFault(path, "matrix"));
    const QuietMessages unheard;
    try {
        const Variant kind = ReadArrFrom(path, {}, {}, 1.0);
        if (kind.IsEmpty()) throw JobFailure("is no matrix file: its tag or letter is unknown");
        ArrContents contents;
        ArrExtent extent;
        contents.value = ReadArrFrom(path, {}, {}, {}, &extent);
        if (extent.IsShort()) contents.notes.push_back(NoteOf(extent, kind.As<std::string>()));
        contents.kind = (contents.value.IsArray() ? "array of " : "") + kind.As<std::string>();
        const Sizes sizes = SizesOfContents(contents.value);
        contents.rows = sizes.rows;
        contents.columns = sizes.columns;
        return contents;
    } catch (const RunTimeError& error) {
        throw JobFailure(FaultOf(error));
    }
}

} // namespace lumora
