#pragma once

#include <memory>
#include <span>
#include <string>

struct _cairo;
struct _cairo_surface;

namespace lumora {

enum class PictureKind { Png, Svg };

struct Point {
    double x = 0.0; ///< from the left, in pixels
    double y = 0.0; ///< from the top
};
struct Box {
    double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;
};
/// Parts of full intensity, 0 to 1.
struct Colour {
    double red = 0.0, green = 0.0, blue = 0.0;
};
struct Pen {
    Colour colour;
    double width = 1.0;
    bool dashed = false;
};
enum class Align { Left, Centre, Right };

/// A white picture that is drawn on and goes into a file. Everything the programs know of Cairo is
/// behind this class.
class Canvas {
public:
    /// Replaces what the file holds; Close tells if it could not be opened.
    Canvas(const std::string& file, PictureKind kind, int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void Line(std::span<const Point> points, const Pen& pen);
    void Fill(const Box& box, const Colour& colour);
    void Frame(const Box& box, const Pen& pen);
    /// `at` is on the line that the letters stand on. The text is valid UTF-8.
    void Text(Point at, const std::string& text, double size, Align align = Align::Left);
    double TextWidth(const std::string& text, double size);
    /// Until the next Unclip nothing is drawn outside the box.
    void Clip(const Box& box);
    void Unclip();

    /// Writes what is left. Answers why not all has reached the file, as one line; empty if it has.
    [[nodiscard]] std::string Close();

private:
    struct Stream;

    PictureKind kind_;
    std::unique_ptr<Stream> stream_;
    _cairo_surface* surface_;
    _cairo* cairo_;
};

} // namespace lumora
