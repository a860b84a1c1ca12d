#include "canvas.h"
#include <cstdio>

namespace
{
constexpr int BMP_HEADER_SIZE = 54; // file header 14, info header 40

double channel(Colour colour, int shift)
{
    return double((colour >> shift) & 0xFF) / 255;
}

void set_colour(const Canvas& cv, Colour colour, double alpha)
{
    cairo_set_source_rgba(cv.cr, channel(colour, 16), channel(colour, 8), channel(colour, 0),
                          alpha);
}

void trace(const Canvas& cv, std::initializer_list<Point> points)
{
    cairo_new_path(cv.cr);
    for (const Point& p : points)
        cairo_line_to(cv.cr, p.x, p.y);
}

void put_little_endian(std::vector<uint8_t>& out, uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; i++)
        out.push_back(uint8_t(value >> (8 * i)));
}

std::vector<uint8_t> bmp_header(int width, int height, int image_size)
{
    std::vector<uint8_t> out = {'B', 'M'};
    put_little_endian(out, uint32_t(BMP_HEADER_SIZE + image_size), 4);
    put_little_endian(out, 0, 4);
    put_little_endian(out, BMP_HEADER_SIZE, 4);
    put_little_endian(out, 40, 4);
    put_little_endian(out, uint32_t(width), 4);
    put_little_endian(out, uint32_t(height), 4); // positive: bottom row first
    put_little_endian(out, 1, 2);                // planes
    put_little_endian(out, 24, 2);               // bits a pixel
    put_little_endian(out, 0, 4);                // not compressed
    put_little_endian(out, uint32_t(image_size), 4);
    put_little_endian(out, 2835, 4); // 72 dots an inch, as pixels a metre
    put_little_endian(out, 2835, 4);
    put_little_endian(out, 0, 4); // no palette
    put_little_endian(out, 0, 4);
    return out;
}
} // namespace

Canvas CV_New(int width, int height, Colour ground)
{
    Canvas cv = {.width = width, .height = height};
    cv.surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height);
    cv.cr = cairo_create(cv.surface);
    CV_Fill(cv, 0, 0, width, height, ground);
    return cv;
}

void CV_Free(Canvas& cv)
{
    cairo_destroy(cv.cr);
    cairo_surface_destroy(cv.surface);
    cv = {};
}

void CV_RoundRect(const Canvas& cv, double x, double y, double w, double h, double radius,
                  int corners)
{
    const double tl = corners & TOP_LEFT ? radius : 0, tr = corners & TOP_RIGHT ? radius : 0;
    const double br = corners & BOTTOM_RIGHT ? radius : 0, bl = corners & BOTTOM_LEFT ? radius : 0;
    cairo_new_path(cv.cr);
    cairo_move_to(cv.cr, x + tl, y);
    cairo_line_to(cv.cr, x + w - tr, y);
    if (tr > 0)
        cairo_arc(cv.cr, x + w - tr, y + tr, tr, -PI / 2, 0);
    cairo_line_to(cv.cr, x + w, y + h - br);
    if (br > 0)
        cairo_arc(cv.cr, x + w - br, y + h - br, br, 0, PI / 2);
    cairo_line_to(cv.cr, x + bl, y + h);
    if (bl > 0)
        cairo_arc(cv.cr, x + bl, y + h - bl, bl, PI / 2, PI);
    cairo_line_to(cv.cr, x, y + tl);
    if (tl > 0)
        cairo_arc(cv.cr, x + tl, y + tl, tl, PI, 1.5 * PI);
    cairo_close_path(cv.cr);
}

void CV_Lines(const Canvas& cv, std::initializer_list<Point> points)
{
    trace(cv, points);
}

void CV_Polygon(const Canvas& cv, std::initializer_list<Point> points)
{
    trace(cv, points);
    cairo_close_path(cv.cr);
}

void CV_Circle(const Canvas& cv, double x, double y, double radius)
{
    CV_Arc(cv, x, y, radius, 0, 2 * PI);
    cairo_close_path(cv.cr);
}

void CV_Arc(const Canvas& cv, double x, double y, double radius, double from, double to)
{
    cairo_new_path(cv.cr);
    cairo_arc(cv.cr, x, y, radius, from, to);
}

void CV_Paint(const Canvas& cv, Colour colour, double alpha)
{
    set_colour(cv, colour, alpha);
    cairo_fill(cv.cr);
}

void CV_PaintGradient(const Canvas& cv, double y0, double y1, std::initializer_list<Stop> stops)
{
    cairo_pattern_t* gradient = cairo_pattern_create_linear(0, y0, 0, y1);
    for (const Stop& s : stops)
        cairo_pattern_add_color_stop_rgb(gradient, s.at, channel(s.colour, 16),
                                         channel(s.colour, 8), channel(s.colour, 0));
    cairo_set_source(cv.cr, gradient);
    cairo_fill(cv.cr);
    cairo_pattern_destroy(gradient);
}

void CV_Stroke(const Canvas& cv, double line_width, Colour colour, double alpha,
               cairo_line_cap_t cap)
{
    set_colour(cv, colour, alpha);
    cairo_set_line_width(cv.cr, line_width);
    cairo_set_line_cap(cv.cr, cap);
    cairo_set_line_join(cv.cr, CAIRO_LINE_JOIN_ROUND);
    cairo_stroke(cv.cr);
}

void CV_Clip(const Canvas& cv)
{
    cairo_save(cv.cr); // the path is no part of what is saved
    cairo_clip(cv.cr);
}

void CV_EndClip(const Canvas& cv)
{
    cairo_restore(cv.cr);
}

void CV_Fill(const Canvas& cv, double x, double y, double w, double h, Colour colour, double alpha)
{
    cairo_new_path(cv.cr);
    cairo_rectangle(cv.cr, x, y, w, h);
    CV_Paint(cv, colour, alpha);
}

void CV_Arrow(const Canvas& cv, double x, double y, double dx, double dy, double half_width,
              Colour colour)
{
    const double s = half_width, back = 0.7 * half_width;
    CV_Polygon(cv, {{x + dx * s, y + dy * s},
                    {x - dx * back - dy * s, y - dy * back + dx * s},
                    {x - dx * back + dy * s, y - dy * back - dx * s}});
    CV_Paint(cv, colour);
}

void CV_ChevronDown(const Canvas& cv, double x, double y, double half_width, Colour colour,
                    double line_width)
{
    const double s = half_width;
    CV_Lines(cv, {{x - s, y - s * 0.5}, {x, y + s * 0.5}, {x + s, y - s * 0.5}});
    CV_Stroke(cv, line_width, colour);
}

std::vector<uint8_t> CV_Pixels(const Canvas& cv)
{
    cairo_surface_flush(cv.surface);
    const uint8_t* data = cairo_image_surface_get_data(cv.surface);
    const int stride = cairo_image_surface_get_stride(cv.surface);
    std::vector<uint8_t> out;
    out.reserve(size_t(cv.width) * size_t(cv.height) * 3);
    for (int y = 0; y < cv.height; y++) {
        for (int x = 0; x < cv.width; x++) {
            const uint32_t pixel =
                *(const uint32_t*)(data + y * stride + x * 4); // cairo: native words
            out.push_back(uint8_t(pixel >> 16));
            out.push_back(uint8_t(pixel >> 8));
            out.push_back(uint8_t(pixel));
        }
    }
    return out;
}

int CV_WriteBmp(const std::string& path, int width, int height, const std::vector<uint8_t>& pixels)
{
    const int row_size = (width * 3 + 3) & ~3; // rows of a BMP start on 4 bytes
    std::vector<uint8_t> out = bmp_header(width, height, row_size * height);
    for (int y = height - 1; y >= 0; y--) {
        for (int x = 0; x < width; x++) {
            const uint8_t* rgb = &pixels[size_t(y * width + x) * 3];
            out.insert(out.end(), {rgb[2], rgb[1], rgb[0]});
        }
        out.insert(out.end(), size_t(row_size - width * 3), 0);
    }
    FILE* file = fopen(path.c_str(), "wb");
    if (!file)
        return -1;
    const bool is_written = fwrite(out.data(), 1, out.size(), file) == out.size();
    return fclose(file) == 0 && is_written ? 0 : -1;
}
