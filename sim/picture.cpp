#include "picture.h"
#include <algorithm>
#include <cstring>
#include <png.h>
#include <string_view>

// --- Drawing ---

// Five columns of seven bits for each letter of a register name, the lowest bit on top.
static const struct {
    char letter;
    uint8_t columns[5];
} letters[] = {
    {'0', {62, 81, 73, 69, 62}},  {'1', {0, 66, 127, 64, 0}},   {'2', {66, 97, 81, 73, 70}},
    {'3', {34, 65, 73, 73, 54}},  {'4', {24, 20, 18, 127, 16}}, {'5', {39, 69, 69, 69, 57}},
    {'6', {60, 74, 73, 73, 48}},  {'7', {1, 113, 9, 5, 3}},     {'8', {54, 73, 73, 73, 54}},
    {'9', {6, 73, 73, 41, 30}},   {'A', {126, 9, 9, 9, 126}},   {'B', {127, 73, 73, 73, 54}},
    {'C', {62, 65, 65, 65, 34}},  {'D', {127, 65, 65, 65, 62}}, {'E', {127, 73, 73, 73, 65}},
    {'F', {127, 9, 9, 9, 1}},     {'G', {62, 65, 73, 73, 58}},  {'H', {127, 8, 8, 8, 127}},
    {'I', {0, 65, 127, 65, 0}},   {'J', {32, 64, 65, 63, 1}},   {'K', {127, 8, 20, 34, 65}},
    {'L', {127, 64, 64, 64, 64}}, {'M', {127, 2, 12, 2, 127}},  {'N', {127, 4, 8, 16, 127}},
    {'O', {62, 65, 65, 65, 62}},  {'P', {127, 9, 9, 9, 6}},     {'Q', {62, 65, 81, 33, 94}},
    {'R', {127, 9, 25, 41, 70}},  {'S', {38, 73, 73, 73, 50}},  {'T', {1, 1, 127, 1, 1}},
    {'U', {63, 64, 64, 64, 63}},  {'V', {31, 32, 64, 32, 31}},  {'W', {63, 64, 48, 64, 63}},
    {'X', {99, 20, 8, 20, 99}},   {'Y', {7, 8, 112, 8, 7}},     {'Z', {97, 81, 73, 69, 67}},
    {'-', {8, 8, 8, 8, 8}},       {'_', {64, 64, 64, 64, 64}},
};

static void fill(Picture* p, int x0, int y0, int x1, int y1, uint32_t colour)
{
    for (int y = std::max(y0, 0); y < std::min(y1, p->height); ++y)
        for (int x = std::max(x0, 0); x < std::min(x1, p->width); ++x)
            p->pixels[size_t(y) * size_t(p->width) + size_t(x)] = colour;
}

static void draw_letter(Picture* p, int left, int top, int dot, char letter)
{
    for (const auto& known : letters)
        for (int bit = 0; known.letter == letter && bit < 35; ++bit) {
            const int column = bit / 7, row = bit % 7;
            if (known.columns[column] >> row & 1)
                fill(p, left + column * dot, top + row * dot, left + (column + 1) * dot,
                     top + (row + 1) * dot, 0xFFFFFFFF);
        }
}

static uint32_t hash_of(const std::string& name)
{
    uint32_t hash = 2166136261u;
    for (const char c : name)
        hash = (hash ^ (unsigned char)c) * 16777619u;
    return hash;
}

Picture Picture_Draw(const std::string& name, int width, int height)
{
    static constexpr uint32_t bars[] = {0xFFB4B4B4, 0xFFB4B410, 0xFF10B4B4, 0xFF10B410,
                                        0xFFB410B4, 0xFFB41010, 0xFF1010B4};
    Picture p{width, height, false, std::vector<uint32_t>(size_t(width) * size_t(height))};
    const uint32_t hash = hash_of(name);
    for (int i = 0; i < 7; ++i)
        fill(&p, width * i / 7, 0, width * (i + 1) / 7, height, bars[(uint32_t(i) + hash) % 7]);
    const uint32_t ground = 0xFF000000 | (hash >> 8 & 0x7F7F7F);
    fill(&p, 0, height * 2 / 5, width, height * 4 / 5, ground);
    const int dot = std::max(1, width / (6 * std::max(8, int(name.size()) + 1)));
    int x = (width - int(name.size()) * 6 * dot) / 2;
    for (const char c : name) {
        draw_letter(&p, x, height * 3 / 5 - 7 * dot / 2, dot, char(toupper((unsigned char)c)));
        x += 6 * dot;
    }
    return p;
}

Picture Picture_Scale(const Picture& from, int width, int height)
{
    Picture p{width, height, from.has_alpha, {}};
    p.pixels.reserve(size_t(width) * size_t(height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int64_t sx = int64_t(x) * from.width / width;
            const int64_t sy = int64_t(y) * from.height / height;
            p.pixels.push_back(from.pixels[size_t(sy * from.width + sx)]);
        }
    return p;
}

Picture Picture_Key(const Picture& picture)
{
    Picture key = picture;
    key.has_alpha = false;
    for (uint32_t& pixel : key.pixels)
        pixel = 0xFF000000 | (pixel >> 24) * 0x010101;
    return key;
}

void Picture_SwapFields(Picture* p)
{
    const auto row = [&](int y) { return p->pixels.begin() + long(y) * p->width; };
    for (int y = 0; y + 1 < p->height; y += 2)
        std::swap_ranges(row(y), row(y + 1), row(y + 1));
}

// --- Bytes: what isn't there reads as 0 and is noted ---

namespace
{
struct Bytes {
    std::string_view text;
    bool is_big_endian = false;
    bool is_short = false;
};
} // namespace

static uint32_t number_at(Bytes& b, size_t at, size_t count)
{
    if (at > b.text.size() || count > b.text.size() - at) {
        b.is_short = true;
        return 0;
    }
    uint32_t number = 0;
    for (size_t i = 0; i < count; ++i)
        number |= uint32_t((unsigned char)b.text[at + i])
                  << 8 * (b.is_big_endian ? count - 1 - i : i);
    return number;
}

static void append_number(std::string* bytes, uint32_t number, int count)
{
    for (int i = 0; i < count; ++i)
        *bytes += char(number >> 8 * i);
}

static bool begin(Picture* p, int64_t width, int64_t height, bool has_alpha)
{
    if (width < 1 || height < 1 || width > PICTURE_SIDE || height > PICTURE_SIDE)
        return false;
    *p = {int(width), int(height), has_alpha, {}};
    return true;
}

// Rows of three or four bytes a pixel. A text that is too short for them makes no picture, and no
// memory either.
static bool read_rows(Bytes& b, size_t at, size_t stride, int depth, bool is_bottom_first,
                      bool is_red_first, Picture* p)
{
    const size_t row_bytes = size_t(p->width) * size_t(depth);
    const size_t needed = stride * size_t(p->height - 1) + row_bytes;
    if (at > b.text.size() || needed > b.text.size() - at)
        return false;
    p->pixels.resize(size_t(p->width) * size_t(p->height));
    for (int y = 0; y < p->height; ++y) {
        const size_t row = size_t(is_bottom_first ? p->height - 1 - y : y) * stride + at;
        for (int x = 0; x < p->width; ++x) {
            const auto* c = (const unsigned char*)b.text.data() + row + size_t(x) * size_t(depth);
            const uint32_t alpha = depth == 4 ? c[3] : 255;
            const uint32_t red = is_red_first ? c[0] : c[2], blue = is_red_first ? c[2] : c[0];
            p->pixels[size_t(y) * size_t(p->width) + size_t(x)] =
                alpha << 24 | red << 16 | uint32_t(c[1]) << 8 | blue;
        }
    }
    return true;
}

// --- Formats ---

static bool read_bmp(const std::string& bytes, Picture* p)
{
    Bytes b{bytes};
    const int64_t width = int32_t(number_at(b, 18, 4)), height = int32_t(number_at(b, 22, 4));
    const uint32_t depth = number_at(b, 28, 2) / 8, packing = number_at(b, 30, 4);
    const bool is_known = bytes.substr(0, 2) == "BM" && (depth == 3 || depth == 4) &&
                          (packing == 0 || (packing == 3 && depth == 4));
    if (!is_known || !begin(p, width, height < 0 ? -height : height, depth == 4))
        return false;
    const size_t stride = (size_t(width) * depth + 3) / 4 * 4;
    return read_rows(b, number_at(b, 10, 4), stride, int(depth), height > 0, false, p) &&
           !b.is_short;
}

static bool read_tga(const std::string& bytes, Picture* p)
{
    Bytes b{bytes};
    const uint32_t depth = number_at(b, 16, 1) / 8;
    const bool is_known =
        number_at(b, 1, 1) == 0 && number_at(b, 2, 1) == 2 && (depth == 3 || depth == 4);
    if (!is_known || !begin(p, number_at(b, 12, 2), number_at(b, 14, 2), depth == 4))
        return false;
    const bool is_top_first = number_at(b, 17, 1) & 0x20;
    return read_rows(b, 18 + number_at(b, 0, 1), size_t(p->width) * depth, int(depth),
                     !is_top_first, false, p);
}

// Plain strips of eight-bit colours that follow each other; the tags that matter of the first
// image.
static bool read_tif(const std::string& bytes, Picture* p)
{
    Bytes b{bytes, bytes.substr(0, 2) == "MM"};
    if (!(b.is_big_endian || bytes.substr(0, 2) == "II") || number_at(b, 2, 2) != 42)
        return false;
    const size_t table = number_at(b, 4, 4);
    uint32_t width = 0, height = 0, packing = 1, colours = 0, samples = 0, start = 0;
    for (size_t i = 0; i < number_at(b, table, 2) && !b.is_short; ++i) {
        const size_t at = table + 2 + 12 * i;
        const uint32_t type = number_at(b, at + 2, 2), count = number_at(b, at + 4, 4);
        const size_t bytes_each = type == 3 ? 2 : 4;
        const size_t place = count * bytes_each > 4 ? number_at(b, at + 8, 4) : at + 8;
        const uint32_t value = number_at(b, place, bytes_each);
        switch (number_at(b, at, 2)) {
        case 256: width = value; break;
        case 257: height = value; break;
        case 259: packing = value; break;
        case 262: colours = value; break;
        case 273: start = value; break;
        case 277: samples = value; break;
        default: break;
        }
    }
    const bool is_known = packing == 1 && colours == 2 && (samples == 3 || samples == 4);
    return is_known && !b.is_short && begin(p, width, height, samples == 4) &&
           read_rows(b, start, size_t(width) * samples, int(samples), false, true, p);
}

static bool read_png(const std::string& bytes, Picture* p)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()))
        return false;
    const bool has_alpha = image.format & PNG_FORMAT_FLAG_ALPHA;
    std::string rows;
    bool is_read = begin(p, image.width, image.height, has_alpha);
    if (is_read) {
        image.format = PNG_FORMAT_RGBA;
        rows.resize(PNG_IMAGE_SIZE(image));
        is_read = png_image_finish_read(&image, nullptr, rows.data(), 0, nullptr);
    }
    png_image_free(&image);
    Bytes b{rows};
    return is_read && read_rows(b, 0, size_t(p->width) * 4, 4, false, true, p);
}

static void append_rows(const Picture& p, bool is_bottom_first, bool is_red_first, size_t pad,
                        std::string* bytes)
{
    for (int y = 0; y < p.height; ++y) {
        const int row = is_bottom_first ? p.height - 1 - y : y;
        for (int x = 0; x < p.width; ++x) {
            const uint32_t c = p.pixels[size_t(row) * size_t(p.width) + size_t(x)];
            *bytes += char(is_red_first ? c >> 16 : c);
            *bytes += char(c >> 8);
            *bytes += char(is_red_first ? c : c >> 16);
            if (p.has_alpha)
                *bytes += char(c >> 24);
        }
        bytes->append(pad, '\0');
    }
}

static std::string write_bmp(const Picture& p)
{
    constexpr uint32_t HEAD = 54;
    const uint32_t depth = p.has_alpha ? 4 : 3;
    const size_t pad = (4 - size_t(p.width) * depth % 4) % 4;
    const uint32_t size = uint32_t((size_t(p.width) * depth + pad) * size_t(p.height));
    std::string bytes = "BM";
    for (const uint32_t number :
         {HEAD + size, 0u, HEAD, 40u, uint32_t(p.width), uint32_t(p.height)})
        append_number(&bytes, number, 4);
    append_number(&bytes, 1, 2);
    append_number(&bytes, depth * 8, 2);
    for (const uint32_t number : {0u, size, 2835u, 2835u, 0u, 0u})
        append_number(&bytes, number, 4);
    append_rows(p, true, false, pad, &bytes);
    return bytes;
}

static std::string write_tga(const Picture& p)
{
    std::string bytes(12, '\0');
    bytes[2] = 2;
    append_number(&bytes, uint32_t(p.width), 2);
    append_number(&bytes, uint32_t(p.height), 2);
    bytes += char(p.has_alpha ? 32 : 24);
    bytes += char(p.has_alpha ? 0x28 : 0x20);
    append_rows(p, false, false, 0, &bytes);
    return bytes;
}

static std::string write_tif(const Picture& p)
{
    const uint32_t samples = p.has_alpha ? 4 : 3;
    const struct {
        uint16_t tag, type;
        uint32_t count, value;
    } tags[] = {
        {256, 4, 1, uint32_t(p.width)},
        {257, 4, 1, uint32_t(p.height)},
        {258, 3, samples, 8}, // the place of the depths, set below
        {259, 3, 1, 1},
        {262, 3, 1, 2},
        {273, 4, 1, 0}, // where the rows begin, set below
        {277, 3, 1, samples},
        {278, 4, 1, uint32_t(p.height)},
        {279, 4, 1, uint32_t(size_t(p.width) * size_t(p.height) * samples)},
    };
    const uint32_t depths = 8 + 2 + uint32_t(std::size(tags)) * 12 + 4;
    std::string bytes = "II";
    append_number(&bytes, 42, 2);
    append_number(&bytes, 8, 4);
    append_number(&bytes, uint32_t(std::size(tags)), 2);
    for (const auto& tag : tags) {
        append_number(&bytes, tag.tag, 2);
        append_number(&bytes, tag.type, 2);
        append_number(&bytes, tag.count, 4);
        append_number(&bytes, tag.tag == 258 ? depths : tag.tag == 273 ? depths + 8 : tag.value, 4);
    }
    append_number(&bytes, 0, 4);
    for (int i = 0; i < 4; ++i)
        append_number(&bytes, 8, 2);
    append_rows(p, false, true, 0, &bytes);
    return bytes;
}

static bool write_png(const Picture& p, std::string* bytes)
{
    std::string rows;
    append_rows(p, false, true, 0, &rows);
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(p.width);
    image.height = png_uint_32(p.height);
    image.format = p.has_alpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    png_alloc_size_t size = 0;
    if (!png_image_write_to_memory(&image, nullptr, &size, 0, rows.data(), 0, nullptr))
        return false;
    bytes->resize(size);
    return png_image_write_to_memory(&image, bytes->data(), &size, 0, rows.data(), 0, nullptr);
}

bool Picture_Read(const std::string& kind, const std::string& bytes, Picture* picture)
{
    if (kind == "BMP")
        return read_bmp(bytes, picture);
    if (kind == "TGA")
        return read_tga(bytes, picture);
    if (kind == "TIF")
        return read_tif(bytes, picture);
    return kind == "PNG" && read_png(bytes, picture);
}

bool Picture_Write(const std::string& kind, const Picture& picture, std::string* bytes)
{
    if (kind == "PNG")
        return write_png(picture, bytes);
    if (kind == "BMP")
        *bytes = write_bmp(picture);
    else if (kind == "TGA")
        *bytes = write_tga(picture);
    else if (kind == "TIF")
        *bytes = write_tif(picture);
    else
        return false;
    return true;
}
