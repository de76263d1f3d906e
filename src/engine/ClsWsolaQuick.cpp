#include "engine/ClsWsolaQuick.h"

#include "base/Cosine.h"
#include "base/Numbers.h"

#include <algorithm>

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

/// How many hops a buffer slides before its samples are moved.
constexpr std::size_t kHopsBetweenMoves = 6;

} // namespace

ClsWsolaQuick::ClsWsolaQuick(VectorWidth width)
    : kernels_(&EngineKernelsFor(width)), search_(width)
{
}

void ClsWsolaQuick::SetUp(const std::int16_t& N, const std::int16_t& S, const std::int16_t& X)
{
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

    coarse_in_len_ = CInt(Quotient(TargetLen + X + N, S) - 1);
    const std::int16_t coarse_target_len = CInt(Quotient(TargetLen, S) + 1);
    const int coarse_shifts = coarse_in_len_ - coarse_target_len + 1;
    const int fine_shifts = 2 * S + 1;
    const auto most_shifts = static_cast<std::size_t>(std::max({coarse_shifts, fine_shifts, 1}));

    const std::size_t slack = kHopsBetweenMoves * Size(N);
    InBuf.SetUp(Size(InLen), slack, kShiftGroup);
    OutBuf.SetUp(Size(OutLen), slack, 0);
    Target.assign(Size(TargetLen), 0.0);
    CoarseIn.assign(Size(coarse_in_len_) + kShiftGroup, 0.0);
    CoarseTarget.assign(Size(coarse_target_len), 0.0);
    Window = HannWindow(FrameLen);
    search_.SetUp(most_shifts, Size(TargetLen));
}

void ClsWsolaQuick::Destruct()
{
    search_.Release();
    InBuf.Release();
    OutBuf.Release();
    for (std::vector<double>* array : {&Target, &CoarseIn, &CoarseTarget, &Window})
        *array = {};
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
    if (Window.empty() || block.size() != static_cast<std::size_t>(BlockLen))
        Raise(ErrorNumber::Subscript);
    const std::int16_t K = CInt(BlockLen * scale);
    TakeIn(block);
    PrevOutCount = K;
    if (scale <= 1.0)
        Compress(K);
    else
        Expand(K);
    if (K < 1 || K > OutLen) Raise(ErrorNumber::Subscript);
    return {OutBuf.Data(), static_cast<std::size_t>(K)};
}

/// Both buffers slide under their positions; the block comes in at the input's end, zeros at the
/// output's.
void ClsWsolaQuick::TakeIn(std::span<const double> block)
{
    ReadPos = CInt(ReadPos - BlockLen);
    WritePos = CInt(WritePos - PrevOutCount);
    std::copy(block.begin(), block.end(), InBuf.Slide(block.size()).begin());
    if (PrevOutCount < 0 || PrevOutCount > OutLen) Raise(ErrorNumber::Subscript);
    std::ranges::fill(OutBuf.Slide(static_cast<std::size_t>(PrevOutCount)), 0.0);
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
                          InBuf.Data() + Place(ReadPos - BlockLen), Window.data(), Window.size());
}

/// The frame that would come next without a jump. It starts at the centre of the frame last taken.
void ClsWsolaQuick::CaptureTarget()
{
    CheckRange(ReadPos, ReadPos + TargetLen - 1, InLen);
    std::copy_n(InBuf.Data() + Place(ReadPos), TargetLen, Target.begin());
}

/// Plain subsampling, no filter. Places of Dest behind the last one written keep what they held,
/// which is zero: they take part in the search.
void ClsWsolaQuick::Decimate(std::span<const double> Source, std::span<double> Dest,
                             std::int16_t First, std::int16_t Last) const
{
    CheckRange(First, Last, static_cast<int>(Source.size()));
    if (Dest.size() < static_cast<std::size_t>((Last - First) / CoarseStep + 1))
        Raise(ErrorNumber::Subscript);
    std::size_t slot = 0;
    for (int i = First; i <= Last; i += CoarseStep)
        Dest[slot++] = Source[static_cast<std::size_t>(Place(i))];
}

/// Index of the best shift of CoarseTarget within CoarseIn, from 1.
std::int16_t ClsWsolaQuick::CoarseMatch()
{
    const int last_shift = coarse_in_len_ - static_cast<int>(CoarseTarget.size());
    if (last_shift < 0) Raise(ErrorNumber::Subscript);
    const std::size_t shift =
        search_.BestShift(CoarseIn.data(), CoarseTarget.data(), CoarseTarget.size(),
                          static_cast<std::size_t>(last_shift) + 1, EnergyWindow::Exact);
    return CInt(shift + 1);
}

/// Best start of Target in InBuf, S samples around the coarse one; answers the frame's centre.
std::int16_t ClsWsolaQuick::FineMatch(std::int16_t coarse_start)
{
    const std::int16_t lo = CInt(coarse_start - CoarseStep);
    std::int16_t hi = 0;
    MinOf(CInt(coarse_start + CoarseStep), CInt(InLen - TargetLen), hi);
    std::int16_t last = 0;
    MaxOf(lo, hi, last); // Lo itself is always tried
    CheckRange(lo, last + TargetLen - 1, InLen);
    const std::size_t shift =
        search_.BestShift(InBuf.Data() + Place(lo), Target.data(), Target.size(),
                          static_cast<std::size_t>(last - lo) + 1, EnergyWindow::OneAhead);
    return CInt(lo + static_cast<int>(shift) + BlockLen);
}

/// Compression looks in the newest part of the input.
std::int16_t ClsWsolaQuick::MatchForward()
{
    const std::span<const double> input(InBuf.Data(), InBuf.Length());
    Decimate(input, CoarseIn, SearchFloor, CInt(InLen - CoarseStep - 1));
    Decimate(Target, CoarseTarget, 1, TargetLen);
    std::int16_t centre = 0;
    MinOf(FineMatch(CInt(CoarseStep * (CoarseMatch() - 1) + SearchFloor)), CInt(KeepLen - 1),
          centre);
    return centre;
}

/// Expansion looks in the older part. The cap keeps the second frame of the call inside the buffer.
std::int16_t ClsWsolaQuick::MatchBackward()
{
    const std::span<const double> input(InBuf.Data(), InBuf.Length());
    Decimate(input, CoarseIn, CInt(CoarseStep + 1), CInt(KeepLen - CoarseStep - 1));
    Decimate(Target, CoarseTarget, 1, TargetLen);
    std::int16_t centre = 0;
    MinOf(FineMatch(CInt(CoarseStep * (CoarseMatch() - 1) + CoarseStep + 1)),
          CInt(KeepLen - BlockLen), centre);
    return centre;
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
