#include "platform/Canvas.h"

#include "platform/FaultText.h"

#include <cairo-svg.h>
#include <cairo.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace lumora {

/// The file, and the first error of writing it.
struct Canvas::Stream {
    std::FILE* file;
    int error = 0;

    static cairo_status_t Write(void* self, const unsigned char* bytes, unsigned count)
    {
        auto& stream = *static_cast<Stream*>(self);
        if (stream.file && std::fwrite(bytes, 1, count, stream.file) == count)
            return CAIRO_STATUS_SUCCESS;
        if (stream.error == 0) stream.error = errno;
        return CAIRO_STATUS_WRITE_ERROR;
    }
};

Canvas::Canvas(const std::string& file, PictureKind kind, int width, int height)
    : kind_(kind), stream_(new Stream{std::fopen(file.c_str(), "wb")})
{
    if (!stream_->file) stream_->error = errno;
    surface_ =
        kind == PictureKind::Png
            ? cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height)
            : cairo_svg_surface_create_for_stream(&Stream::Write, stream_.get(), width, height);
    cairo_ = cairo_create(surface_);
    cairo_select_font_face(cairo_, "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_line_join(cairo_, CAIRO_LINE_JOIN_ROUND);
    Fill({0.0, 0.0, static_cast<double>(width), static_cast<double>(height)}, {1.0, 1.0, 1.0});
}

Canvas::~Canvas()
{
    cairo_destroy(cairo_);
    cairo_surface_destroy(surface_);
    if (stream_->file) std::fclose(stream_->file);
}

void Canvas::Line(std::span<const Point> points, const Pen& pen)
{
    constexpr double kDash = 5.0;
    for (const Point& point : points)
        cairo_line_to(cairo_, point.x, point.y);
    cairo_set_dash(cairo_, &kDash, pen.dashed ? 1 : 0, 0.0);
    cairo_set_line_width(cairo_, pen.width);
    cairo_set_source_rgb(cairo_, pen.colour.red, pen.colour.green, pen.colour.blue);
    cairo_stroke(cairo_);
}

void Canvas::Fill(const Box& box, const Colour& colour)
{
    cairo_rectangle(cairo_, box.left, box.top, box.right - box.left, box.bottom - box.top);
    cairo_set_source_rgb(cairo_, colour.red, colour.green, colour.blue);
    cairo_fill(cairo_);
}

void Canvas::Frame(const Box& box, const Pen& pen)
{
    const std::array<Point, 5> corners = {{{box.left, box.top},
                                           {box.right, box.top},
                                           {box.right, box.bottom},
                                           {box.left, box.bottom},
                                           {box.left, box.top}}};
    Line(corners, pen);
}

void Canvas::Text(Point at, const std::string& text, double size, Align align)
{
    const double width = TextWidth(text, size);
    const double shift = align == Align::Left ? 0.0 : align == Align::Right ? width : width / 2;
    cairo_set_source_rgb(cairo_, 0.0, 0.0, 0.0);
    cairo_move_to(cairo_, at.x - shift, at.y);
    cairo_show_text(cairo_, text.c_str());
    cairo_new_path(cairo_);
}

double Canvas::TextWidth(const std::string& text, double size)
{
    cairo_text_extents_t extents;
    cairo_set_font_size(cairo_, size);
    cairo_text_extents(cairo_, text.c_str(), &extents);
    return extents.x_advance;
}

void Canvas::Clip(const Box& box)
{
    cairo_save(cairo_);
    cairo_rectangle(cairo_, box.left, box.top, box.right - box.left, box.bottom - box.top);
    cairo_clip(cairo_);
}

void Canvas::Unclip()
{
    cairo_restore(cairo_);
}

std::string Canvas::Close()
{
    cairo_status_t status = cairo_status(cairo_);
    if (status == CAIRO_STATUS_SUCCESS && kind_ == PictureKind::Png)
        status = cairo_surface_write_to_png_stream(surface_, &Stream::Write, stream_.get());
    cairo_surface_finish(surface_);
    if (status == CAIRO_STATUS_SUCCESS) status = cairo_surface_status(surface_);
    std::FILE* const file = std::exchange(stream_->file, nullptr);
    if (file && std::fclose(file) != 0 && stream_->error == 0) stream_->error = errno;
    if (status == CAIRO_STATUS_SUCCESS && stream_->error == 0) return {};
    return "the picture cannot be written (" +
           (stream_->error != 0 ? SystemText(stream_->error) : cairo_status_to_string(status)) +
           ")";
}

} // namespace lumora
