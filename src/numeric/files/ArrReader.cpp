#include "base/ByteStream.h"
#include "base/OrOutOfMemory.h"
#include "numeric/Stores.h"
#include "numeric/clsComplexMatrix.h"
#include "numeric/clsLong.h"
#include "numeric/clsMatrix.h"
#include "numeric/clsString.h"
#include "numeric/files/ArrFile.h"
#include "numeric/files/ArrFormat.h"
#include "numeric/files/Windows1252.h"

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>
#include <utility>

namespace lumora {

namespace {

/// Lines (rows, or columns of a single row) to read, both ends included.
struct LineSpan {
    std::int32_t first = 1;
    std::int32_t last = 0;
    std::int32_t Count() const { return last - first + 1; }
};

/// A matrix file that is open, behind its header.
class ArrReader {
public:
    ArrReader(FileNumber file, const std::string& path) : file_(file), path_(path)
    {
        // A file that ends inside its header has no tag, which is an unknown one.
        if (ReadValues(file_, std::span(&header_, 1)) == 0) header_.tag = 0;
        elements_end_ = FileLength(file_);
        if (header_.tag == kArrPlain) ReadLetter();
    }

    Variant NameOfContents() const
    {
        // clang-format off
        switch (header_.tag) {
        case kArrMatrix:  return std::string("clsMatrix");
        case kArrLong:    return std::string("clsLong");
        case kArrString:  return std::string("clsString");
        case kArrComplex: return std::string("clsComplexMatrix");
        default:          return kind_ ? Variant(std::string(kind_->read)) : Variant();
        }
        // clang-format on
    }

    Variant Contents(std::optional<std::int32_t> first, std::optional<std::int32_t> last)
    {
        // clang-format off
        switch (header_.tag) {
        case kArrMatrix:  return NewMatrix<clsMatrix>(ReadLines<double>(first, last));
        case kArrLong:    return NewMatrix<clsLong>(ReadLines<std::int32_t>(first, last));
        case kArrString:  return NewMatrix<clsString>(ReadAll<std::string>());
        case kArrComplex: return ReadComplex();
        default:          return kind_ ? ReadPlain() : Variant();
        }
        // clang-format on
    }

    /// Of the contents that have been read.
    ArrExtent Extent() const { return extent_; }

private:
    static constexpr std::int64_t kElements = sizeof(ArrHeader) + 1; ///< their file position
    static constexpr std::int64_t kMostMadeUp = std::int64_t{64} << 20;
    static constexpr std::int64_t kTextInMemory = 32; ///< bytes of one without characters

    void ReadLetter()
    {
        SeekTo(file_, elements_end_--);
        char letter = '\0';
        ReadValues(file_, std::span(&letter, 1));
        kind_ = FindArrKind([&](const ArrKind& each) { return letter == each.letter; });
        SeekTo(file_, kElements);
    }

    Sizes Shape() const { return {header_.size1, header_.size2}; }

    std::int64_t BytesOfElements() const { return elements_end_ - kElements + 1; }

    /// How many elements are promised. To be asked before memory is taken for them: each has at
    /// least so many bytes in the file, and takes so many in memory if the file does not hold it.
    std::int64_t Promised(std::int64_t bytes_in_file, std::int64_t bytes_made_up) const
    {
        const Sizes sizes = Shape();
        if (sizes.rows < 1 || sizes.columns < 1) Raise(ErrorNumber::Subscript, path_);
        const std::int64_t count = std::int64_t{sizes.rows} * sizes.columns;
        if (count > BytesOfElements() / bytes_in_file + kMostMadeUp / bytes_made_up)
            Raise(ErrorNumber::PastEndOfFile, path_);
        return count;
    }

    /// The same for numbers, `parts` of them an element.
    template <class T> void CheckNumbers(std::int64_t parts = 1)
    {
        constexpr std::int64_t kBytes = sizeof(T);
        extent_.promised = parts * Promised(parts * kBytes, parts * kBytes);
        extent_.held = std::min(extent_.promised, BytesOfElements() / kBytes);
    }

    /// Fills `numbers` from the current position: those of which the file holds every byte, and
    /// zeros behind them.
    template <class T> void Fill(std::span<T> numbers) const
    {
        const std::int64_t bytes =
            std::max<std::int64_t>(elements_end_ + 1 - FilePosition(file_), 0);
        const std::size_t there =
            std::min(numbers.size(), static_cast<std::size_t>(bytes) / sizeof(T));
        const std::size_t read = ReadValues(file_, numbers.first(there));
        std::fill(numbers.begin() + static_cast<std::ptrdiff_t>(read), numbers.end(), T());
    }

    template <class T> Array<T> Filled() const
    {
        Array<T> store = UnwrittenStore<T>(Shape());
        Fill(store.Span());
        return store;
    }

    template <class T> Array<T> ReadAll()
    {
        if constexpr (std::same_as<T, std::string>) {
            return ReadTexts();
        } else {
            CheckNumbers<T>();
            return Filled<T>();
        }
    }

    /// In one transfer, cut apart afterwards. A text that the file cuts has what is there of it,
    /// and those behind it are empty.
    Array<std::string> ReadTexts()
    {
        using Length = std::uint16_t;
        extent_.promised = Promised(sizeof(Length), kTextInMemory);
        std::string bytes(static_cast<std::size_t>(BytesOfElements()), '\0');
        Fill(std::span(bytes));
        std::string_view left = bytes;
        const auto take = [&](std::size_t count) {
            const std::string_view taken = left.substr(0, count);
            left.remove_prefix(taken.size());
            return taken;
        };
        Array<std::string> store = UnwrittenStore<std::string>(Shape());
        for (std::string& text : store.Span()) {
            Length length = 0;
            const std::string_view written = take(sizeof length);
            if (written.size() < sizeof length) break;
            std::memcpy(&length, written.data(), sizeof length);
            if (length <= left.size()) ++extent_.held;
            text = Utf8FromWindows1252(take(length));
        }
        return store;
    }

    Variant ReadComplex()
    {
        CheckNumbers<double>(2);
        Array<double> re = Filled<double>();
        return NewMatrix<clsComplexMatrix>(std::move(re), Filled<double>());
    }

    Variant ReadPlain()
    {
        return WithElementType(*kind_, [this]<class T>() { return Variant(ReadAll<T>()); });
    }

    /// An end of a range that is not there means what it means when it is not given.
    LineSpan LinesToRead(std::optional<std::int32_t> first, std::optional<std::int32_t> last) const
    {
        const std::int32_t all = header_.size1 == 1 ? header_.size2 : header_.size1;
        const auto is_there = [&](std::optional<std::int32_t> line) {
            return line && *line >= 1 && *line <= all;
        };
        const LineSpan lines = {is_there(first) ? *first : 1, is_there(last) ? *last : all};
        if (lines.Count() < 1) Raise(ErrorNumber::Subscript, path_);
        return lines;
    }

    template <class T>
    Array<T> ReadLines(std::optional<std::int32_t> first, std::optional<std::int32_t> last)
    {
        CheckNumbers<T>();
        const LineSpan lines = LinesToRead(first, last);
        const bool one_row = header_.size1 == 1;
        Array<T> store = UnwrittenStore<T>(one_row ? Sizes{1, lines.Count()}
                                                   : Sizes{lines.Count(), header_.size2});
        // Lines that follow each other in the file are one column, whatever they are called.
        const bool whole = lines.Count() == header_.size1;
        const std::size_t columns = one_row || whole ? 1 : static_cast<std::size_t>(header_.size2);
        const std::size_t column = store.Span().size() / columns;
        for (std::size_t j = 0; j < columns; ++j) {
            const std::int64_t element =
                static_cast<std::int64_t>(j) * header_.size1 + lines.first - 1;
            SeekTo(file_, kElements + element * static_cast<std::int64_t>(sizeof(T)));
            Fill(store.Span().subspan(j * column, column));
        }
        return store;
    }

    FileNumber file_;
    const std::string& path_;
    ArrHeader header_;
    std::int64_t elements_end_ = 0; ///< file position of their last byte
    const ArrKind* kind_ = nullptr; ///< of a plain array, null if unknown
    ArrExtent extent_;
};

} // namespace

Variant ReadArrFrom(const std::string& path, std::optional<std::int32_t> First,
                    std::optional<std::int32_t> Last, const Variant& AskType, ArrExtent* extent)
{
    const OpenFile file(fopen_Rudo(path, "rb"));
    if (file.Failed()) Raise(ErrorNumber::BadFileNumber, path);
    ArrReader reader(file.Number(), path);
    if (!AskType.IsEmpty()) return reader.NameOfContents();
    Variant contents = OrOutOfMemory([&] { return reader.Contents(First, Last); });
    if (extent) *extent = reader.Extent();
    return contents;
}

Variant ReadArr(std::string& FileName, std::optional<std::int32_t> First,
                std::optional<std::int32_t> Last, const Variant& AskType)
{
    FileName = FileName.substr(0, FileName.find('.')) + ".arr";
    return ReadArrFrom(FileName, First, Last, AskType);
}

} // namespace lumora
