// What assetgen leaves in the run directory, read as the application reads it.
#include "../../assets/wipe_numbers.h"
#include "types.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using Bytes = std::string;

namespace
{
const std::string RUN_DIR = TEST_RUN_DIR;

const char* const STEMS[] = {
#define BITMAP(name, file) file,
#include "graphics_list.h"
#undef BITMAP
};

Bytes read_file(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), {});
}

uint32_t little_endian(const Bytes& bytes, size_t at, int count = 4)
{
    uint32_t value = 0;
    for (int i = count - 1; i >= 0; i--)
        value = value << 8 | uint8_t(bytes.at(at + size_t(i)));
    return value;
}

struct Picture {
    int width = 0, height = 0;
    Bytes file;
};

Picture read_picture(const std::string& name)
{
    Picture p;
    p.file = read_file(RUN_DIR + "/graphics/" + name + ".bmp");
    if (p.file.size() > 54) {
        p.width = int(little_endian(p.file, 18));
        p.height = int(little_endian(p.file, 22));
    }
    return p;
}

uint32_t pixel(const Picture& p, int x, int y) // 0x00RRGGBB
{
    const int row_size = (p.width * 3 + 3) / 4 * 4;
    return little_endian(p.file, size_t(54 + (p.height - 1 - y) * row_size + x * 3), 3);
}

int text_width(const Bytes& offsets, int font, const char* text)
{
    const auto entry = [&](int code) {
        return int(little_endian(offsets, size_t(font * 512 + code * 4)));
    };
    int width = 0;
    for (const char* c = text; *c; c++)
        width += (entry(*c + 1) - entry(*c)) / entry(0);
    return width;
}

} // namespace

TEST(Assets, FontsHaveTheMeasuredWidths)
{
    ASSERT_EQ(read_file(RUN_DIR + "/font.dat").size(), 120000u);
    const Bytes offsets = read_file(RUN_DIR + "/font_ofs.dat");
    ASSERT_EQ(offsets.size(), 5120u);
    EXPECT_EQ(little_endian(offsets, 9 * 512 + 127 * 4), 116281u); // end of the last glyph of all

    static const struct {
        const char* text;
        int font, width;
    } cases[] = {
        {"01:00:10:00", 3, 68}, {"-200.00", 7, 62},    {"00:59:59", 7, 70},    {"00:10:00", 1, 42},
        {"1111", 9, 44},        {"0123456789", 3, 70}, {"0123456789", 8, 100}, {"\x01\x1F", 5, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(text_width(offsets, c.font, c.text), c.width) << c.text << " in font " << c.font;
}

TEST(Assets, EveryBitmapIsThereInItsForm)
{
    for (const char* stem : STEMS) {
        const Picture p = read_picture(stem);
        EXPECT_GT(p.width, 0) << stem;
        EXPECT_GT(p.height, 0) << stem; // positive: bottom row first
        ASSERT_GT(p.file.size(), 54u) << stem;
        EXPECT_EQ(little_endian(p.file, 28, 2), 24u) << stem;
        EXPECT_EQ(p.file.size(), size_t(54 + (p.width * 3 + 3) / 4 * 4 * p.height)) << stem;
    }
}

TEST(Assets, StatesOfABitmapLookDifferent)
{
    std::map<std::string, std::map<Bytes, std::string>> families; // picture to the stem that has it
    for (const char* stem : STEMS) {
        const std::string name = stem, family = name.substr(0, name.rfind('_'));
        const auto [other, is_new] = families[family].emplace(read_picture(name).file, name);
        EXPECT_TRUE(is_new) << name << " looks like " << other->second;
    }
}

TEST(Assets, EveryWipeNumberHasAPicture)
{
    size_t files = 0;
    for (const NumberRange& r : WIPE_NUMBERS)
        for (int n = r.first; n <= r.last; n++, files++) {
            const Picture p = read_picture("ptn/" + std::to_string(n));
            ASSERT_EQ(p.width, 60) << n;
            ASSERT_EQ(p.height, 48) << n;
            EXPECT_EQ(pixel(p, 1, 24), 0u) << n; // outside the screen
        }
    for (const NumberRange& r : WIPE_NUMBERS_SMALL_MODEL)
        for (int n = r.first; n <= r.last; n++, files++) {
            const Bytes small = read_picture("ptn/" + std::to_string(n) + "e").file;
            EXPECT_NE(small, read_picture("ptn/" + std::to_string(n)).file) << n;
            EXPECT_EQ(small, read_picture("ptn/" + std::to_string(n - 1000)).file) << n;
        }
    const fs::directory_iterator folder(RUN_DIR + "/graphics/ptn");
    EXPECT_EQ(size_t(std::distance(begin(folder), end(folder))), files)
        << "a number without a meaning has a file";
}
