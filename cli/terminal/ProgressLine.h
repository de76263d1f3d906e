#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lumora {

/// The bar for work on several files: "[########        ]  43 %  0:12 left  2 of 5 files". `width`
/// is that of the terminal; the line never fills it.
std::string ProgressText(double fraction, double elapsed_seconds, std::size_t ended,
                         std::size_t files, int width);

/// One line at the foot of the terminal on standard error that is drawn over and over. Where
/// standard error is no terminal, or a dumb one, nothing is ever drawn.
class ProgressLine {
public:
    /// Files count by their weight, which is about the work in them.
    explicit ProgressLine(std::vector<std::uintmax_t> weights);

    bool IsShown() const { return shown_; }
    /// The part of a file that is done; a file that has ended counts as done.
    void Set(std::size_t file, double fraction) { fractions_[file] = fraction; }
    void End(std::size_t file);
    /// Draws while a file is left to end, but no more than ten times a second.
    void Draw();
    /// Takes the line away, to be called ahead of any other output.
    void Clear();

private:
    using Clock = std::chrono::steady_clock;
    double Fraction() const;

    bool shown_;
    bool drawn_ = false;
    std::size_t ended_ = 0;
    std::vector<std::uintmax_t> weights_;
    std::vector<double> fractions_;
    Clock::time_point start_ = Clock::now();
    Clock::time_point last_;
};

} // namespace lumora
