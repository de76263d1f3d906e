#pragma once

#include "base/Array.h"
#include "engine/EngineKernels.h"
#include "engine/SimilaritySearch.h"
#include "engine/SlidingBuffer.h"

#include <cstdint>
#include <span>
#include <vector>

namespace lumora {

/// Streaming time-scale stage for one channel: waveform-similarity overlap-add (WSOLA; Verhelst and
/// Roelands, ICASSP 1993) with a two-stage correlation search.
///
/// In:    exactly N samples a call, about -1..1.
/// Out:   K = Round(N x Scale) samples of the same sound at the same pitch, half to even.
/// Scale: above 0 to 2.0; 1.0 is a pure delay of N + 1 samples. It may change between calls.
/// Keeps: two sliding buffers, two positions in them, the search target. No flush: what the buffers
///        hold when the caller stops is lost.
/// Cost:  a search only when the read position has to jump.
/// Order: SetUp, any number of Wsola_Operation or Stretch, Destruct.
///
/// Frames of 2N + 1 samples under a Hann window are added to the output at hop N, so that frames in
/// natural succession give the input back. When the read position would leave the input buffer, it
/// jumps to where the waveform best continues what was last written.
///
/// Positions and lengths are 16 bits wide: N up to 8186. Errors: 9 for a scale above 2.0 (from the
/// second call), one so small that a call would return nothing or the target leaves the buffer, a
/// block of another length, or a call before SetUp; 6 for positions beyond 16 bits. After an error
/// the instance is as it was at that moment: SetUp makes it usable again.
class ClsWsolaQuick {
public:
    /// `width` says which copy of the kernels to use; all give the same bits.
    explicit ClsWsolaQuick(VectorWidth width = WidestVectors());

    /// N samples a block, S the decimation of the coarse search, X the samples by which the input
    /// buffer exceeds 4N. Drops all earlier contents. Errors 6, 9 (sizes that make no buffer),
    /// 11 (S is 0).
    void SetUp(const std::int16_t& N, const std::int16_t& S, const std::int16_t& X);

    /// Takes samples 1..N of Block, gives a new array 1..K.
    Array<double> Wsola_Operation(const Array<double>& Block, const double& Scale);

    /// The same without a new array: the result is a view of the output buffer, good until the next
    /// call on this object.
    std::span<const double> Stretch(std::span<const double> block, double scale);

    /// The same for samples times 32768, as 16-bit files have them. It gives the bits of the form
    /// above, in less time: sums of their products are exact, so the search may use integers.
    std::span<const double> Stretch(std::span<const std::int16_t> block, double scale);

    /// Releases all arrays.
    void Destruct();

private:
    /// What a search looks at, in one type of sample: double, or 16 bits for samples times 32768.
    /// Every array has room behind it for what the kernels read ahead.
    template <class T> struct Searched {
        SlidingBuffer<T> InBuf;
        std::vector<T> Target;       ///< the natural continuation last captured
        std::vector<T> CoarseIn;     ///< every S-th sample of the part of InBuf under search
        std::vector<T> CoarseTarget; ///< every S-th sample of Target
    };
    template <class T> void SetUp(Searched<T>& searched) const;
    template <class T> void CaptureTarget(Searched<T>& searched) const;

    template <class T> std::span<const double> StretchBlock(std::span<const T> block, double scale);
    std::int16_t Begin(std::size_t block_length, double scale);
    std::span<const double> Finish(std::int16_t K, double scale);
    void TakeIn(std::span<const double> block);
    void TakeIn(std::span<const std::int16_t> block);
    void Compress(std::int16_t K);
    void Expand(std::int16_t K);
    void AddNaturalSuccessor();

    bool SearchesShorts() const;
    std::int16_t Match(std::int16_t first, std::int16_t last, std::int16_t most);
    template <class T>
    std::int16_t MatchIn(Searched<T>& searched, std::int16_t first, std::int16_t last);
    template <class T> std::int16_t CoarseMatch(const Searched<T>& searched);
    template <class T>
    std::int16_t FineMatch(const Searched<T>& searched, std::int16_t coarse_start);
    std::int16_t MatchForward();
    std::int16_t MatchBackward();
    static void MinOf(const std::int16_t& A, const std::int16_t& B, std::int16_t& Result);
    static void MaxOf(const std::int16_t& A, const std::int16_t& B, std::int16_t& Result);
    template <class T>
    void Decimate(std::span<const T> Source, std::span<T> Dest, std::int16_t First,
                  std::int16_t Last) const;
    void OverlapAdd();
    void CaptureTarget();
    void MoveTo(std::int16_t read_pos);

    const EngineKernels* kernels_;
    SimilaritySearch search_;

    std::int16_t BlockLen = 0;    ///< N: samples in, hop of the frames, half a frame
    std::int16_t CoarseStep = 0;  ///< S
    std::int16_t ExtraLen = 0;    ///< X
    std::int16_t TwoBlocks = 0;   ///< low-water mark of the read position in compression
    std::int16_t ThreeBlocks = 0; ///< distance from the input's end that starts a backward search
    std::int16_t FrameLen = 0;    ///< 2N + 1
    std::int16_t TargetLen = 0;   ///< 2N + 1
    std::int16_t OutLen = 0;      ///< 4N
    std::int16_t InLen = 0;       ///< 4N + X
    std::int16_t KeepLen = 0;     ///< 3N + X: what stays of the input when a block arrives
    std::int16_t SearchFloor = 0; ///< N + S + 1: first input index that a forward search sees

    std::int16_t ReadPos = 0;      ///< centre, in InBuf, of the frame last taken; from 1
    std::int16_t WritePos = 0;     ///< centre, in OutBuf, of the frame last added; from 1
    std::int16_t PrevOutCount = 0; ///< samples handed out by the call before

    Searched<double> samples_;
    SlidingBuffer<double> OutBuf;
    std::vector<double> Window;          ///< Hann
    std::int16_t coarse_in_len_ = 0;     ///< CoarseIn without the room behind it
    std::int16_t coarse_target_len_ = 0; ///< CoarseTarget without it

    // The same samples times 32768, as far as blocks came that way.
    Searched<std::int16_t> shorts_;
    int short_samples_ = 0; ///< how many at the end of the input are there as shorts
    bool target_is_in_shorts_ = false;
};

} // namespace lumora
