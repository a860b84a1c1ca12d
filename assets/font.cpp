#include "font.h"
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace
{
constexpr size_t FONT_DATA_SIZE = 120000;
constexpr int SLOTS = 10;
constexpr int ENTRIES = 128; // an offset table: entry 0 the height, then one a character code
constexpr int FIRST_CODE = 32, LAST_CODE = 126;
constexpr const char* OUTLINES = "/usr/share/fonts/truetype/roboto/unhinted/RobotoCondensed-%s.ttf";
constexpr const char* OUTLINES_PACKAGE = "fonts-roboto-unhinted";
// An overhang of one column stays cut while it is fainter than this.
constexpr uint8_t FAINT = 90;

struct SlotFace {
    const char* face;
    int size;     // pixels an em
    int height;   // rows of every glyph, and the line spacing
    int baseline; // row
    bool is_hinted = true;
    int digit_width = 0; // 0: as the outlines say
};

constexpr SlotFace SLOT_FACES[SLOTS] = {
    {"Regular", 11, 12, 9},        {"Medium", 12, 13, 10},
    {"Regular", 14, 15, 12},       {"Medium", 15, 14, 11, true, 7},
    {"Medium", 14, 14, 11, false}, {"Bold", 14, 15, 12},
    {"Regular", 9, 10, 8},         {"Medium", 20, 21, 16},
    {"Bold", 20, 21, 16},          {"Bold", 22, 25, 19},
};

struct Sheet { // the two files in the making
    std::vector<uint8_t> coverage;
    uint32_t offsets[SLOTS][ENTRIES] = {};
};

uint8_t darkest_in_last_column(const FT_Bitmap& bitmap)
{
    uint8_t darkest = 0;
    for (unsigned row = 0; row < bitmap.rows; row++)
        darkest = std::max(darkest, bitmap.buffer[int(row) * bitmap.pitch + int(bitmap.width) - 1]);
    return darkest;
}

// A glyph leans left before its cell grows; what still sticks out is cut only when it is hardly
// visible.
int cell_width(const FT_GlyphSlot glyph, const SlotFace& slot_face, int code)
{
    const int ink = int(glyph->bitmap.width);
    int width = std::max(1, int(std::lround(double(glyph->linearHoriAdvance) / 65536)));
    if (slot_face.digit_width && code >= '0' && code <= '9')
        width = slot_face.digit_width;
    if (ink - 1 > width || (ink > width && darkest_in_last_column(glyph->bitmap) > FAINT))
        width = ink;
    return width;
}

void append_glyph(Sheet& sheet, const FT_GlyphSlot glyph, const SlotFace& slot_face, int width)
{
    const FT_Bitmap& bitmap = glyph->bitmap;
    const int ink = int(bitmap.width);
    const int left = std::min(std::max(0, glyph->bitmap_left), std::max(0, width - ink));
    const int top = slot_face.baseline - glyph->bitmap_top;
    const size_t start = sheet.coverage.size();
    sheet.coverage.resize(start + size_t(width * slot_face.height), 0);
    for (int row = 0; row < int(bitmap.rows); row++) {
        const int y = top + row;
        if (y >= 0 && y < slot_face.height)
            std::copy_n(bitmap.buffer + row * bitmap.pitch, std::min(ink, width - left),
                        sheet.coverage.begin() + long(start) + y * width + left);
    }
}

int render_slot(Sheet& sheet, FT_Library library, int slot)
{
    const SlotFace& slot_face = SLOT_FACES[slot];
    char path[128];
    snprintf(path, sizeof path, OUTLINES, slot_face.face);
    FT_Face face;
    if (FT_New_Face(library, path, 0, &face) != 0) {
        fprintf(stderr, "assetgen: cannot read the font %s (Debian package %s)\n", path,
                OUTLINES_PACKAGE);
        return -1;
    }
    FT_Set_Pixel_Sizes(face, 0, FT_UInt(slot_face.size));
    uint32_t* offsets = sheet.offsets[slot];
    offsets[0] = uint32_t(slot_face.height);
    std::fill(offsets + 1, offsets + FIRST_CODE, uint32_t(sheet.coverage.size())); // no width
    const FT_Int32 hinting = slot_face.is_hinted ? FT_LOAD_TARGET_LIGHT : FT_LOAD_NO_HINTING;
    int failed = 0;
    for (int code = FIRST_CODE; code <= LAST_CODE && !failed; code++) {
        offsets[code] = uint32_t(sheet.coverage.size());
        failed = FT_Load_Char(face, FT_ULong(code), FT_LOAD_RENDER | hinting);
        if (!failed)
            append_glyph(sheet, face->glyph, slot_face, cell_width(face->glyph, slot_face, code));
    }
    offsets[LAST_CODE + 1] = uint32_t(sheet.coverage.size());
    FT_Done_Face(face);
    if (failed)
        fprintf(stderr, "assetgen: the font %s lacks a character\n", path);
    return failed ? -1 : 0;
}

int write_file(const std::string& path, const std::vector<uint8_t>& bytes)
{
    FILE* file = fopen(path.c_str(), "wb");
    const bool is_written = file && fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if ((file && fclose(file) != 0) || !is_written) {
        fprintf(stderr, "assetgen: cannot write %s: %s\n", path.c_str(), strerror(errno));
        return -1;
    }
    return 0;
}

std::vector<uint8_t> offset_bytes(const Sheet& sheet)
{
    std::vector<uint8_t> out;
    for (const auto& table : sheet.offsets)
        for (uint32_t entry : table)
            for (int i = 0; i < 4; i++) // low byte first
                out.push_back(uint8_t(entry >> (8 * i)));
    return out;
}
} // namespace

int FONT_Write(const std::string& dir)
{
    Sheet sheet;
    FT_Library library;
    if (FT_Init_FreeType(&library) != 0) {
        fprintf(stderr, "assetgen: FreeType does not start\n");
        return -1;
    }
    int failed = 0;
    for (int slot = 0; slot < SLOTS && !failed; slot++)
        failed = render_slot(sheet, library, slot);
    FT_Done_FreeType(library);
    if (failed)
        return -1;
    if (sheet.coverage.size() > FONT_DATA_SIZE) {
        fprintf(stderr, "assetgen: the fonts take %zu bytes, there is room for %zu\n",
                sheet.coverage.size(), FONT_DATA_SIZE);
        return -1;
    }
    sheet.coverage.resize(FONT_DATA_SIZE, 0);
    if (write_file(dir + "/font.dat", sheet.coverage) != 0)
        return -1;
    return write_file(dir + "/font_ofs.dat", offset_bytes(sheet));
}
