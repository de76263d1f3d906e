#include "cli/pictures/RebuiltPicture.h"

#include "cli/terminal/JobFailure.h"
#include "cli/terminal/JsonValue.h"
#include "cli/terminal/Wording.h"
#include "overfilter/OverFilterPlan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace lumora {

namespace {

constexpr double kWidth = 1200.0;
constexpr double kHeader = 104.0;
constexpr double kCellHeight = 330.0;
constexpr double kMargin = 20.0;
constexpr double kSmall = 13.0;

// Of the channels, blue and orange; pale and wide before, dark and narrow after. So they are told
// apart by lightness too, and where curves are alike the one below shows beside the one above.
constexpr std::array<Pen, 2> kBefore = {{{{0.60, 0.80, 0.96}, 6.5}, {{0.99, 0.76, 0.55}, 4.2}}};
constexpr std::array<Pen, 2> kAfter = {{{{0.0, 0.36, 0.64}, 2.4}, {{0.78, 0.29, 0.0}, 1.1}}};
constexpr Colour kBand = {0.94, 0.94, 0.90};
constexpr Pen kLimitPen = {{0.35, 0.35, 0.35}, 1.0, true};
constexpr Pen kFullPen = {{0.35, 0.35, 0.35}, 1.0, false};
constexpr Pen kZeroPen = {{0.85, 0.85, 0.85}, 1.0, false};
constexpr Pen kFramePen = {{0.2, 0.2, 0.2}, 1.0, false};

/// The smallest of 1, 2, 5, 10, 20, ... tenths that cuts a range into no more than `most` steps.
double NiceStep(double range, int most)
{
    double step = 0.1;
    for (int k = 0; range / step > most; ++k)
        step *= k % 3 == 1 ? 2.5 : 2.0;
    return step;
}

std::string Number(double value)
{
    char text[30];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

/// One panel in its place: where a time and a level lie.
class PanelView {
public:
    PanelView(const RebuiltPanel& panel, const RebuiltCaption& caption, const Box& cell)
        : panel_(panel),
          caption_(caption),
          plot_{cell.left + 54.0, cell.top + 30.0, cell.right - 8.0, cell.bottom - 46.0}
    {
        double largest = 0.0;
        for (const auto* samples : {&panel.before, &panel.after})
            for (const double sample : *samples)
                largest = std::max(largest, std::abs(sample));
        top_level_ = std::max(1.1, 1.06 * largest);
        const auto found = std::find(panel.is_rebuilt.begin(), panel.is_rebuilt.end(), true);
        first_rebuilt_ = FrameOf(static_cast<std::size_t>(found - panel.is_rebuilt.begin()));
        first_ms_ = Ms(FrameOf(0));
        last_ms_ = std::max(Ms(FrameOf(panel.before.size() - 1)), first_ms_ + 1e-6);
    }

    void Draw(Canvas& canvas) const
    {
        DrawBands(canvas);
        DrawLevels(canvas);
        DrawTimes(canvas);
        canvas.Clip(plot_);
        const auto channels = static_cast<std::size_t>(caption_.channels);
        for (std::size_t c = 0; c < channels; ++c)
            DrawCurve(canvas, panel_.before, c, kBefore[c]);
        for (std::size_t c = 0; c < channels; ++c)
            DrawCurve(canvas, panel_.after, c, kAfter[c]);
        canvas.Unclip();
        canvas.Frame(plot_, kFramePen);
    }

private:
    /// The frame, from 0, of the panel's k-th sample.
    std::int64_t FrameOf(std::size_t k) const
    {
        return (panel_.first - 1 + static_cast<std::int64_t>(k)) / caption_.channels;
    }
    double Ms(std::int64_t frame) const
    {
        return 1000.0 * static_cast<double>(frame - first_rebuilt_) / caption_.rate_hz;
    }
    double X(double ms) const
    {
        return plot_.left + (ms - first_ms_) / (last_ms_ - first_ms_) * (plot_.right - plot_.left);
    }
    double Y(double level) const
    {
        return plot_.top + (1.0 - level / top_level_) / 2.0 * (plot_.bottom - plot_.top);
    }

    void DrawBands(Canvas& canvas) const
    {
        const double half_frame = 500.0 / caption_.rate_hz;
        canvas.Clip(plot_);
        const std::vector<bool>& marks = panel_.is_rebuilt;
        for (auto here = marks.begin(); here != marks.end();) {
            const auto from = std::find(here, marks.end(), true);
            here = std::find(from, marks.end(), false);
            if (from == here) break;
            const double left = Ms(FrameOf(static_cast<std::size_t>(from - marks.begin())));
            const double right = Ms(FrameOf(static_cast<std::size_t>(here - marks.begin() - 1)));
            canvas.Fill({X(left - half_frame), plot_.top, X(right + half_frame), plot_.bottom},
                        kBand);
        }
        canvas.Unclip();
    }

    void DrawLevel(Canvas& canvas, double level, const Pen& pen) const
    {
        const std::array<Point, 2> ends = {{{plot_.left, Y(level)}, {plot_.right, Y(level)}}};
        canvas.Line(ends, pen);
    }

    void Label(Canvas& canvas, double level) const
    {
        canvas.Text({plot_.left - 6.0, Y(level) + 4.5}, Number(level), kSmall, Align::Right);
    }

    void DrawLevels(Canvas& canvas) const
    {
        DrawLevel(canvas, 0.0, kZeroPen);
        Label(canvas, 0.0);
        const bool has_room = Y(kOverLimit) - Y(1.0) > kSmall;
        for (const double sign : {1.0, -1.0}) {
            DrawLevel(canvas, sign * kOverLimit, kLimitPen);
            DrawLevel(canvas, sign, kFullPen);
            if (has_room) Label(canvas, sign * kOverLimit);
            Label(canvas, sign);
            const double step = std::max(0.5, NiceStep(top_level_ - 1.0, 4));
            for (int k = 1; 1.0 + k * step < top_level_; ++k)
                Label(canvas, sign * (1.0 + k * step));
        }
        canvas.Text({plot_.left - 6.0, plot_.top - 10.0}, "level", kSmall, Align::Right);
    }

    void DrawTimes(Canvas& canvas) const
    {
        char heading[60];
        std::snprintf(heading, sizeof heading, "at %.4f s",
                      static_cast<double>(first_rebuilt_) / caption_.rate_hz);
        canvas.Text({(plot_.left + plot_.right) / 2, plot_.top - 10.0}, heading, kSmall,
                    Align::Centre);
        const double step = NiceStep(last_ms_ - first_ms_, 8);
        const auto last = static_cast<int>(std::floor(last_ms_ / step));
        for (auto k = static_cast<int>(std::ceil(first_ms_ / step)); k <= last; ++k) {
            const double x = X(k * step);
            const std::array<Point, 2> tick = {{{x, plot_.bottom}, {x, plot_.bottom + 5.0}}};
            canvas.Line(tick, kFramePen);
            canvas.Text({x, plot_.bottom + 18.0}, Number(k * step), kSmall, Align::Centre);
        }
        canvas.Text({(plot_.left + plot_.right) / 2, plot_.bottom + 36.0},
                    "time in ms from the first rebuilt sample", kSmall, Align::Centre);
    }

    void DrawCurve(Canvas& canvas, const std::vector<double>& samples, std::size_t channel,
                   const Pen& pen) const
    {
        const auto channels = static_cast<std::size_t>(caption_.channels);
        std::vector<Point> points;
        for (std::size_t k = 0; k < samples.size(); ++k)
            if ((static_cast<std::size_t>(panel_.first - 1) + k) % channels == channel)
                points.push_back({X(Ms(FrameOf(k))), Y(samples[k])});
        canvas.Line(points, pen);
    }

    const RebuiltPanel& panel_;
    const RebuiltCaption& caption_;
    Box plot_;
    double top_level_ = 1.0; ///< at the upper edge, its negative at the lower one
    std::int64_t first_rebuilt_ = 0;
    double first_ms_ = 0.0, last_ms_ = 0.0;
};

/// A sample of a line and what it stands for; answers where the next one begins.
double DrawKey(Canvas& canvas, double x, double y, const Pen& pen, const std::string& text)
{
    constexpr double kLength = 30.0;
    const std::array<Point, 2> ends = {{{x, y - 4.5}, {x + kLength, y - 4.5}}};
    canvas.Line(ends, pen);
    canvas.Text({x + kLength + 6.0, y}, text, kSmall);
    return x + kLength + 6.0 + canvas.TextWidth(text, kSmall) + 24.0;
}

void DrawLegend(Canvas& canvas, std::int32_t channels, double y)
{
    const std::array<std::string, 2> sides = {channels == 1 ? "" : ", left", ", right"};
    double x = kMargin;
    for (std::size_t c = 0; c < static_cast<std::size_t>(channels); ++c) {
        x = DrawKey(canvas, x, y, kBefore[c], "before" + sides[c]);
        x = DrawKey(canvas, x, y, kAfter[c], "after" + sides[c]);
    }
    x = DrawKey(canvas, x, y, {kBand, kSmall}, "rebuilt");
    x = DrawKey(canvas, x, y, kLimitPen, "limits of the filter, ±0.8");
    DrawKey(canvas, x, y, kFullPen, "full scale, ±1");
}

std::string Explanation(const RebuiltCaption& caption, std::int64_t shown)
{
    const std::string all = std::to_string(caption.rebuilt);
    std::string text = shown == caption.rebuilt ? "all rebuilt regions (" + all + ")"
                                                : "the first " + std::to_string(shown) + " of " +
                                                      all + " rebuilt regions";
    if (caption.largest_gain > 1.0)
        text += "; levels ahead of the gain: the result is " + GainText(caption.largest_gain);
    return text;
}

} // namespace

void DrawRebuilt(const RebuiltPanels& rebuilt, const RebuiltCaption& caption,
                 const std::string& file, PictureKind kind)
{
    const std::vector<RebuiltPanel>& panels = rebuilt.Panels();
    const std::size_t columns = panels.size() == 1 ? 1 : panels.size() <= 4 ? 2 : 3;
    const std::size_t rows = (panels.size() + columns - 1) / columns;
    const double height = kHeader + static_cast<double>(rows) * kCellHeight;
    Canvas canvas(file, kind, static_cast<int>(kWidth), static_cast<int>(height));

    constexpr double kTitle = 20.0;
    const std::string title = Utf8Text(NameText(caption.name));
    const double room = kWidth - 2 * kMargin;
    const double fit = std::min(1.0, room / canvas.TextWidth(title, kTitle));
    canvas.Text({kMargin, 32.0}, title, kTitle * fit);
    canvas.Text({kMargin, 56.0}, Explanation(caption, rebuilt.Regions()), kSmall);
    DrawLegend(canvas, caption.channels, 84.0);

    const double cell_width = room / static_cast<double>(columns);
    for (std::size_t k = 0; k < panels.size(); ++k) {
        const std::size_t row = k / columns;
        const double left = kMargin + static_cast<double>(k - row * columns) * cell_width;
        const double top = kHeader + static_cast<double>(row) * kCellHeight;
        const Box cell = {left, top, left + cell_width, top + kCellHeight};
        PanelView(panels[k], caption, cell).Draw(canvas);
    }
    FailFor(canvas.Close());
}

} // namespace lumora
