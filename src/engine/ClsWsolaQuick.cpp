#include "engine/ClsWsolaQuick.h"

#include "audio/SampleConversion.h"
#include "base/Cosine.h"
#include "base/Numbers.h"

#include <algorithm>
#include <limits>

namespace lumora {

namespace {

/// One turn to fifteen digits. The literal is the engine's: full precision would move the last bit
/// of some window values.
constexpr double kTurn = 6.28318530717959;

std::size_t Size(std::int16_t length)
{
    if (length < 1) Raise(ErrorNumber::Subscript);
    return static_cast<std::size_t>(length);
}

/// Place of index i (from 1) in a store from 0.
std::ptrdiff_t Place(int i)
{
    return i - 1;
}

/// All of first..last must lie in 1..length.
void CheckRange(int first, int last, int length)
{
    if (first < 1 || last > length) Raise(ErrorNumber::Subscript);
}

std::vector<double> HannWindow(std::int16_t length)
{
    std::vector<double> window(Size(length));
    const double step = kTurn / (length - 1);
    for (std::size_t i = 0; i < window.size(); ++i)
        window[i] = (1.0 - Cosine(static_cast<double>(i) * step)) / 2.0;
    return window;
}

std::int16_t Quotient(int dividend, std::int16_t divisor)
{
    return CInt(Int(Divide(dividend, divisor)));
}

/// What the kernels of the search may read behind a signal.
constexpr std::size_t kReadAhead = kShiftGroup + ShortKernels::kGroup;

/// How many hops a buffer slides before its samples are moved.
constexpr std::size_t kHopsBetweenMoves = 6;

} // namespace

ClsWsolaQuick::ClsWsolaQuick(VectorWidth width) : kernels_(&EngineKernelsFor(width)), search_(width)
{
}

void ClsWsolaQuick::SetUp(const std::int16_t& N, const std::int16_t& S, const std::int16_t& X)
{
    Destruct(); // so that sizes that are refused below leave nothing to run on
    BlockLen = N;
    CoarseStep = S;
    ExtraLen = X;
    TwoBlocks = CInt(2 * N);
    ThreeBlocks = CInt(3 * N);
    FrameLen = CInt(2 * N + 1);
    TargetLen = FrameLen;
    OutLen = CInt(4 * N);
    InLen = CInt(4 * N + X);
    KeepLen = CInt(InLen - N);
    SearchFloor = CInt(N + S + 1);
    ReadPos = KeepLen;
    WritePos = CInt(N + 1);
    PrevOutCount = N;
    if (KeepLen < 0) Raise(ErrorNumber::Subscript); // a block is longer than the buffer

    coarse_in_len_ = CInt(Quotient(TargetLen + X + N, S) - 1);
    coarse_target_len_ = CInt(Quotient(TargetLen, S) + 1);
    const int coarse_shifts = coarse_in_len_ - coarse_target_len_ + 1;
    const int fine_shifts = 2 * S + 1;
    const auto most_shifts = static_cast<std::size_t>(std::max({coarse_shifts, fine_shifts, 1}));

    SetUp(samples_);
    SetUp(shorts_);
    short_samples_ = InLen;
    target_is_in_shorts_ = true;
    OutBuf.SetUp(Size(OutLen), kHopsBetweenMoves * Size(N), 0);
    search_.SetUp(most_shifts);
    Window = HannWindow(FrameLen);
}

template <class T> void ClsWsolaQuick::SetUp(Searched<T>& searched) const
{
    searched.InBuf.SetUp(Size(InLen), kHopsBetweenMoves * Size(BlockLen), kReadAhead);
    searched.Target.assign(Size(TargetLen) + kReadAhead, T{});
    searched.CoarseIn.assign(Size(coarse_in_len_) + kReadAhead, T{});
    searched.CoarseTarget.assign(Size(coarse_target_len_) + kReadAhead, T{});
}

void ClsWsolaQuick::Destruct()
{
    search_.Release();
    samples_ = {};
    shorts_ = {};
    OutBuf.Release();
    Window = {};
}

Array<double> ClsWsolaQuick::Wsola_Operation(const Array<double>& Block, const double& Scale)
{
    if (Block.LBound() != 1 || Block.Dimensions() != 1) Raise(ErrorNumber::Subscript);
    const std::span<const double> stretched = Stretch(Block.Span(), Scale);
    Array<double> result(static_cast<std::int64_t>(stretched.size()));
    std::copy(stretched.begin(), stretched.end(), result.Span().begin());
    return result;
}

std::span<const double> ClsWsolaQuick::Stretch(std::span<const double> block, double scale)
{
    return StretchBlock(block, scale);
}

std::span<const double> ClsWsolaQuick::Stretch(std::span<const std::int16_t> block, double scale)
{
    return StretchBlock(block, scale);
}

template <class T>
std::span<const double> ClsWsolaQuick::StretchBlock(std::span<const T> block, double scale)
{
    const std::int16_t K = Begin(block.size(), scale);
    TakeIn(block);
    return Finish(K, scale);
}

/// Both buffers are about to slide under their positions; the output slides here, and zeros come in
/// at its end. Answers how many samples this call hands out.
std::int16_t ClsWsolaQuick::Begin(std::size_t block_length, double scale)
{
    if (Window.empty() || block_length != static_cast<std::size_t>(BlockLen))
        Raise(ErrorNumber::Subscript);
    const std::int16_t K = CInt(BlockLen * scale);
    ReadPos = CInt(ReadPos - BlockLen);
    WritePos = CInt(WritePos - PrevOutCount);
    if (PrevOutCount < 0 || PrevOutCount > OutLen) Raise(ErrorNumber::Subscript);
    std::ranges::fill(OutBuf.Slide(static_cast<std::size_t>(PrevOutCount)), 0.0);
    PrevOutCount = K;
    return K;
}

std::span<const double> ClsWsolaQuick::Finish(std::int16_t K, double scale)
{
    if (scale <= 1.0)
        Compress(K);
    else
        Expand(K);
    if (K < 1 || K > OutLen) Raise(ErrorNumber::Subscript);
    return {OutBuf.Data(), static_cast<std::size_t>(K)};
}

void ClsWsolaQuick::TakeIn(std::span<const double> block)
{
    std::copy(block.begin(), block.end(), samples_.InBuf.Slide(block.size()).begin());
    short_samples_ = 0;
}

void ClsWsolaQuick::TakeIn(std::span<const std::int16_t> block)
{
    SamplesFromShorts(block, samples_.InBuf.Slide(block.size()));
    if (!search_.TakesShorts()) return;
    std::copy(block.begin(), block.end(), shorts_.InBuf.Slide(block.size()).begin());
    short_samples_ = std::min(short_samples_ + BlockLen, int{InLen});
}

void ClsWsolaQuick::Compress(std::int16_t K)
{
    if (WritePos > K) { // the output already holds what this call hands out
        if (ReadPos <= TwoBlocks) CaptureTarget();
    } else if (ReadPos > BlockLen) {
        AddNaturalSuccessor();
    } else { // the natural successor would run off the low end
        MoveTo(MatchForward());
        OverlapAdd();
    }
}

void ClsWsolaQuick::Expand(std::int16_t K)
{
    if (WritePos + BlockLen > K) {
        AddNaturalSuccessor();
        return;
    }
    if (ReadPos < InLen - ThreeBlocks) {
        AddNaturalSuccessor();
    } else {
        CaptureTarget();
        MoveTo(MatchBackward());
        OverlapAdd();
    }
    AddNaturalSuccessor();
}

void ClsWsolaQuick::AddNaturalSuccessor()
{
    MoveTo(CInt(ReadPos + BlockLen));
    OverlapAdd();
}

/// The positions of the next frame.
void ClsWsolaQuick::MoveTo(std::int16_t read_pos)
{
    ReadPos = read_pos;
    WritePos = CInt(WritePos + BlockLen);
}

void ClsWsolaQuick::OverlapAdd()
{
    CheckRange(WritePos - BlockLen, WritePos + BlockLen, OutLen);
    CheckRange(ReadPos - BlockLen, ReadPos + BlockLen, InLen);
    kernels_->overlap_add(OutBuf.Data() + Place(WritePos - BlockLen),
                          samples_.InBuf.Data() + Place(ReadPos - BlockLen), Window.data(),
                          Window.size());
}

/// The frame that would come next without a jump. It starts at the centre of the frame last taken.
void ClsWsolaQuick::CaptureTarget()
{
    CheckRange(ReadPos, ReadPos + TargetLen - 1, InLen);
    CaptureTarget(samples_);
    target_is_in_shorts_ = short_samples_ > InLen - ReadPos;
    if (target_is_in_shorts_) CaptureTarget(shorts_);
}

template <class T> void ClsWsolaQuick::CaptureTarget(Searched<T>& searched) const
{
    std::copy_n(searched.InBuf.Data() + Place(ReadPos), TargetLen, searched.Target.begin());
}

/// Integers serve when all that a search looks at came as such, and no product overflows them.
bool ClsWsolaQuick::SearchesShorts() const
{
    return search_.TakesShorts() && target_is_in_shorts_ && short_samples_ == InLen &&
           *std::ranges::min_element(shorts_.Target) > std::numeric_limits<std::int16_t>::min();
}

/// Plain subsampling, no filter. Places of Dest behind the last one written keep what they held,
/// which is zero: they take part in the search.
template <class T>
void ClsWsolaQuick::Decimate(std::span<const T> Source, std::span<T> Dest, std::int16_t First,
                             std::int16_t Last) const
{
    CheckRange(First, Last, static_cast<int>(Source.size()));
    const int count = (Last - First) / CoarseStep + 1;
    if (Dest.size() < static_cast<std::size_t>(count)) Raise(ErrorNumber::Subscript);
    std::size_t slot = 0;
    for (int i = First; i <= Last; i += CoarseStep)
        Dest[slot++] = Source[static_cast<std::size_t>(Place(i))];
}

/// Index of the best shift of CoarseTarget within CoarseIn, from 1.
template <class T> std::int16_t ClsWsolaQuick::CoarseMatch(const Searched<T>& searched)
{
    const int last_shift = coarse_in_len_ - coarse_target_len_;
    if (last_shift < 0) Raise(ErrorNumber::Subscript);
    const std::size_t shifts = static_cast<std::size_t>(last_shift) + 1;
    return CInt(1 + search_.BestShift(searched.CoarseIn.data(), searched.CoarseTarget.data(),
                                      Size(coarse_target_len_), shifts, EnergyWindow::Exact));
}

/// Best start of Target in InBuf, S samples around the coarse one.
template <class T>
std::int16_t ClsWsolaQuick::FineMatch(const Searched<T>& searched, std::int16_t coarse_start)
{
    const std::int16_t lo = CInt(coarse_start - CoarseStep);
    std::int16_t hi = 0;
    MinOf(CInt(coarse_start + CoarseStep), CInt(InLen - TargetLen), hi);
    std::int16_t last = 0;
    MaxOf(lo, hi, last); // Lo itself is always tried
    CheckRange(lo, last + TargetLen - 1, InLen);
    const std::size_t shifts = static_cast<std::size_t>(last - lo) + 1;
    return CInt(lo + static_cast<int>(search_.BestShift(searched.InBuf.Data() + Place(lo),
                                                        searched.Target.data(), Size(TargetLen),
                                                        shifts, EnergyWindow::OneAhead)));
}

/// The frame centre, at most `most`, whose frame best continues the target; the coarse search sees
/// the input from `first` to `last`.
std::int16_t ClsWsolaQuick::Match(std::int16_t first, std::int16_t last, std::int16_t most)
{
    const std::int16_t start =
        SearchesShorts() ? MatchIn(shorts_, first, last) : MatchIn(samples_, first, last);
    std::int16_t centre = 0;
    MinOf(CInt(start + BlockLen), most, centre);
    return centre;
}

/// Where the frame starts.
template <class T>
std::int16_t ClsWsolaQuick::MatchIn(Searched<T>& searched, std::int16_t first, std::int16_t last)
{
    Decimate<T>(searched.InBuf.All(), searched.CoarseIn, first, last);
    Decimate<T>(searched.Target, searched.CoarseTarget, 1, TargetLen);
    const std::int16_t coarse_start = CInt(CoarseStep * (CoarseMatch(searched) - 1) + first);
    return FineMatch(searched, coarse_start);
}

/// Compression looks in the newest part of the input.
std::int16_t ClsWsolaQuick::MatchForward()
{
    return Match(SearchFloor, CInt(InLen - CoarseStep - 1), CInt(KeepLen - 1));
}

/// Expansion looks in the older part. The cap keeps the second frame of the call inside the buffer.
std::int16_t ClsWsolaQuick::MatchBackward()
{
    return Match(CInt(CoarseStep + 1), CInt(KeepLen - CoarseStep - 1), CInt(KeepLen - BlockLen));
}

void ClsWsolaQuick::MinOf(const std::int16_t& A, const std::int16_t& B, std::int16_t& Result)
{
    Result = std::min(A, B);
}

void ClsWsolaQuick::MaxOf(const std::int16_t& A, const std::int16_t& B, std::int16_t& Result)
{
    Result = std::max(A, B);
}

} // namespace lumora
