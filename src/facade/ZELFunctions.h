#pragma once

#include "base/Progress.h"

#include <cstdint>
#include <functional>
#include <string>

namespace lumora {

/// The one object through which a program reaches the sound engine: set the properties, call an
/// operation. All fields start at zero or empty.
///
/// Ends with a clean-up: every "*.wav" in the folders PsolaTrans, LPCTrans, On_Note and Synthsize
/// under ProgramFolder() is deleted; whatever fails at it is ignored. Nothing is deleted where the
/// program has not set its folder.
class ZELFunctions {
public:
    ZELFunctions() = default;
    ~ZELFunctions();
    ZELFunctions(const ZELFunctions&) = delete;
    ZELFunctions& operator=(const ZELFunctions&) = delete;

    double TargetVT = 0.0;
    double TargetDP = 0.0;
    double TargetDPNew = 0.0;
    std::int32_t TargetGender = 0;
    double TargetSourceType = 0.0;
    double SoundVT = 0.0;
    double SoundDP = 0.0;
    std::int32_t SoundGender = 0;
    std::int16_t SourceType = 0;
    std::int32_t SourceSmooth = 0;
    /// Old pitch over new pitch: 0.5 is an octave up, 2.0 an octave down. 0 runs as 1.0. The engine
    /// runs at the scale 1 / Q_P, which may not exceed 2.0.
    double Q_P = 0.0;
    double Q_VT = 0.0;
    double Nasality = 0.0;
    double Hoarse = 0.0;
    std::string InFileName;  ///< WAVE file to read, full path
    std::string OutFileName; ///< WAVE file to write, full path
    std::string TargetFileName;
    std::int16_t AnalPersent = 0;
    std::int16_t ImitatePersent() const { return imitate_persent_; }
    std::int16_t NotePersent = 0; ///< 0 from the start of a run
    std::int16_t TransformPersent = 0;
    std::int16_t StopProcess = 0; ///< stored only: a run does not look at it

    // What a run calls on its way, as RunBlockPipeline tells; the bar comes with each call.
    std::function<void()> PumpEvents;
    std::function<void(std::int16_t)> PublishPercent;

    /// Changes the pitch of InFileName into OutFileName: mono and stereo by the header's channels
    /// (any count but 2 takes the mono path). 0 when the run took place; -1 when InFileName is
    /// empty or not there, with the critical message "For Analysing need Filename or Sound as
    /// clsmatrix" under the caption "Analysing". Errors as RunBlockPipeline.
    std::int16_t On_Note(ProgressBar& Bar);

    /// The run itself for one channel or two. Silent and without effect when there is no input
    /// file. Errors as RunBlockPipeline.
    void WsolaClsTest(ProgressBar& Bar);
    void WsolaClsTest_Stereo(ProgressBar& Bar);

    /// Did the input lose bytes while the last run read it? The end of the result is no sound then.
    bool InputHasShrunk() const { return input_has_shrunk_; }

    /// Every numeric field to zero, every file name empty. What a run calls stays.
    void RefreshObj();

private:
    void Run(ProgressBar& bar, int channels);

    bool input_has_shrunk_ = false;
    std::int16_t imitate_persent_ = 0;
};

} // namespace lumora
