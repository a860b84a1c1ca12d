#include "bmp_check.h"
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "safeguards.h"

namespace
{
// What of the two headers says how far the file must reach. Little-endian, as all of the format.
struct BmpHead {
    uint32_t pixels_at = 0;
    uint32_t info_size = 0;
    uint32_t width = 0;
    uint32_t height = 0; // of either sign: negative when the top row comes first
    uint32_t planes = 0;
    uint32_t bits = 0;
    uint32_t compression = 0;
    uint32_t colours = 0;
};
constexpr size_t FILE_HEAD = 14;
constexpr size_t INFO_HEAD = 40;        // what of it the library looks at
constexpr uint32_t INFO_HEAD_MAX = 124; // later kinds of the format only add to its end
constexpr size_t MASKS = 12;            // of BITFIELDS: behind those 40, be that in the head or not
constexpr uint32_t BITFIELDS = 3;
} // namespace

static uint32_t get16(const uint8_t* p)
{
    return uint32_t(p[0]) | uint32_t(p[1]) << 8;
}

static uint32_t get32(const uint8_t* p)
{
    return get16(p) | get16(p + 2) << 16;
}

static bool bmp_read_head(FILE* fp, BmpHead* head)
{
    uint8_t b[FILE_HEAD + INFO_HEAD];
    if (fread(b, sizeof b, 1, fp) != 1 || b[0] != 'B' || b[1] != 'M')
        return false;
    const uint8_t* info = b + FILE_HEAD;
    head->pixels_at = get32(b + 10);
    head->info_size = get32(info);
    head->width = get32(info + 4);
    head->height = get32(info + 8);
    head->planes = get16(info + 12);
    head->bits = get16(info + 14);
    head->compression = get32(info + 16);
    head->colours = get32(info + 32);
    return true;
}

// Bytes before the first pixel may begin; 0 for a kind that the library does not read. It looks for
// a palette where the short head ends. Without one the number of colours is a hint that it ignores.
static size_t bmp_head_size(const BmpHead& h)
{
    const bool has_palette = h.bits == 1 || h.bits == 4 || h.bits == 8;
    const bool has_words = h.bits == 16 || h.bits == 32;
    if (h.info_size < INFO_HEAD || h.info_size > INFO_HEAD_MAX || h.planes != 1)
        return 0;
    if (h.compression != 0 && !(h.compression == BITFIELDS && has_words))
        return 0;
    if (has_palette) {
        const uint32_t colours_max = 1u << h.bits;
        const bool is_known = h.info_size == INFO_HEAD && h.colours <= colours_max;
        return is_known ? FILE_HEAD + INFO_HEAD + 4 * (h.colours ? h.colours : colours_max) : 0;
    }
    if (!has_words && h.bits != 24)
        return 0;
    const size_t masks_end = FILE_HEAD + INFO_HEAD + MASKS;
    const size_t head = FILE_HEAD + h.info_size;
    return h.compression == BITFIELDS ? std::max(head, masks_end) : head;
}

// The library believes a header: sizes and palette are looked at before it sees them.
static bool bmp_is_sound(const BmpHead& h, long file_size, int max_w, int max_h)
{
    const size_t head = bmp_head_size(h);
    const long long rows = llabs((long long)int32_t(h.height));
    if (head == 0 || h.width < 1 || h.width > uint32_t(max_w) || rows < 1 || rows > max_h)
        return false;
    const size_t row = ((size_t(h.width) * h.bits + 7) / 8 + 3) & ~size_t(3);
    return h.pixels_at >= head && h.pixels_at <= uint32_t(file_size) &&
           size_t(file_size) - h.pixels_at >= row * size_t(rows);
}

bool Bmp_IsSound(const char* path, int max_w, int max_h)
{
    FILE* fp = fopen(path, "re");
    if (!fp)
        return false;
    BmpHead head;
    const bool is_sound = bmp_read_head(fp, &head) && fseek(fp, 0, SEEK_END) == 0 &&
                          bmp_is_sound(head, ftell(fp), max_w, max_h);
    fclose(fp);
    return is_sound;
}
