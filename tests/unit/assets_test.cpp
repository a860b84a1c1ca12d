#include "../../assets/wipe_numbers.h"
#include "harness.h"
#include "test_dirs.h"
#include <filesystem>

namespace fs = std::filesystem;
using Bytes = std::string;

namespace
{
const std::string RUN_DIR = TEST_RUN_DIR;

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
    p.file = FileText(RUN_DIR + "/graphics/" + name + ".bmp");
    if (p.file.size() > 54) {
        p.width = int(little_endian(p.file, 18));
        p.height = int(little_endian(p.file, 22));
    }
    return p;
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
    ASSERT_EQ(FileText(RUN_DIR + "/font.dat").size(), 120000u);
    const Bytes offsets = FileText(RUN_DIR + "/font_ofs.dat");
    ASSERT_EQ(offsets.size(), 5120u);
    EXPECT_EQ(little_endian(offsets, 9 * 512 + 127 * 4), 113227u); // end of the last glyph of all

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

TEST(Assets, EveryWipeNumberHasAPicture)
{
    size_t files = 0;
    for (const NumberRange& r : WIPE_NUMBERS)
        for (int n = r.first; n <= r.last; n++, files++) {
            const Picture p = read_picture("ptn/" + std::to_string(n));
            ASSERT_EQ(p.width, 60) << n;
            ASSERT_EQ(p.height, 48) << n;
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
