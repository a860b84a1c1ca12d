// picture: see picture.h.
#include "picture.h"
#include "tdl.h"
#include "types.h"
#include <SDL.h>
#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <png.h>

static constexpr int NAME_H = 20; // of the line below a picture
static constexpr int GAP = 6;     // between neighbours
static constexpr int NAME_FONT = 2;

Picture Picture_Blank(int width, int height)
{
    return {width, height, std::vector<uint8_t>(size_t(width) * size_t(height) * 3)};
}

static uint8_t* picture_row(SDL_Surface* surface, int y)
{
    return static_cast<uint8_t*>(surface->pixels) + y * surface->pitch;
}

// The upper left part of the screen.
static Picture picture_of_part(int width, int height)
{
    Picture p = Picture_Blank(width, height);
    uint8_t* to = p.rgb.data();
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++, to += 3) {
            uint32_t pixel;
            memcpy(&pixel, picture_row(Screen, y) + x * 4, 4);
            SDL_GetRGB(pixel, Screen->format, to, to + 1, to + 2);
        }
    return p;
}

Picture Picture_OfScreen()
{
    return picture_of_part(Screen->w, Screen->h);
}

Picture Picture_Smaller(const Picture& picture, int n)
{
    Picture small = Picture_Blank(picture.width / n, picture.height / n);
    uint8_t* to = small.rgb.data();
    for (int y = 0; y < small.height; y++)
        for (int x = 0; x < small.width; x++)
            for (int c = 0; c < 3; c++) {
                int sum = 0;
                for (int dy = 0; dy < n; dy++)
                    for (int dx = 0; dx < n; dx++)
                        sum +=
                            picture
                                .rgb[size_t(((y * n + dy) * picture.width + x * n + dx) * 3 + c)];
                *to++ = uint8_t(sum / (n * n));
            }
    return small;
}

Picture Picture_OfText(const char* text, int width)
{
    width = std::min(width, Screen->w);
    std::vector<uint8_t> under;
    for (int y = 0; y < NAME_H; y++)
        under.insert(under.end(), picture_row(Screen, y), picture_row(Screen, y) + Screen->w * 4);
    (void)TDL_FillRectS(0, 0, Screen->w - 1, NAME_H - 1, 0);
    (void)TDL_SymbolWS(2, 3, width - 4, text, NAME_FONT, 0xFFFFFF);
    Picture p = picture_of_part(width, NAME_H);
    for (int y = 0; y < NAME_H; y++)
        memcpy(picture_row(Screen, y), under.data() + size_t(y) * size_t(Screen->w) * 4,
               size_t(Screen->w) * 4);
    return p;
}

void Picture_Paste(Picture* onto, const Picture& what, int x, int y)
{
    const int width = std::min(what.width, onto->width - x);
    const int height = std::min(what.height, onto->height - y);
    for (int row = 0; row < height; row++)
        std::copy_n(what.rgb.begin() + row * what.width * 3, width * 3,
                    onto->rgb.begin() + ((y + row) * onto->width + x) * 3);
}

// By the plain calls of the library: its simple ones know one way to pack only, a slow one.
bool Picture_Write(const Picture& picture, const char* path)
{
    FILE* fp = fopen(path, "wb");
    if (!fp)
        return false;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    if (setjmp(png_jmpbuf(png)) != 0) { // its way to say that a write failed
        png_destroy_write_struct(&png, &info);
        fclose(fp);
        return false;
    }
    png_init_io(png, fp);
    png_set_compression_level(png, 2);
    png_set_filter(png, 0, PNG_FILTER_SUB);
    png_set_IHDR(png, info, png_uint_32(picture.width), png_uint_32(picture.height), 8,
                 PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    for (int y = 0; y < picture.height; y++)
        png_write_row(png, picture.rgb.data() + size_t(y) * size_t(picture.width) * 3);
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return fclose(fp) == 0;
}

Picture Picture_Sheet(const std::vector<NamedPicture>& pictures, int columns)
{
    if (pictures.empty())
        return {};
    const int width = pictures[0].picture.width + GAP;
    const int height = pictures[0].picture.height + NAME_H + GAP;
    const int count = int(pictures.size());
    Picture sheet =
        Picture_Blank(width * std::min(columns, count), height * ((count + columns - 1) / columns));
    for (int i = 0; i < count; i++) {
        const NamedPicture& p = pictures[size_t(i)];
        const int x = i % columns * width, y = i / columns * height;
        Picture_Paste(&sheet, p.picture, x, y);
        Picture_Paste(&sheet, Picture_OfText(p.name.c_str(), p.picture.width), x,
                      y + p.picture.height);
    }
    return sheet;
}
