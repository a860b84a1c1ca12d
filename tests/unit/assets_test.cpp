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

Bytes bitmap(const std::string& name)
{
    return FileText(RUN_DIR + "/graphics/" + name + ".bmp");
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
            const Bytes picture = bitmap("ptn/" + std::to_string(n));
            ASSERT_EQ(little_endian(picture, 18), 60u) << n;
            ASSERT_EQ(little_endian(picture, 22), 48u) << n;
        }
    for (const NumberRange& r : WIPE_NUMBERS_SMALL_MODEL)
        for (int n = r.first; n <= r.last; n++, files++) {
            const Bytes small = bitmap("ptn/" + std::to_string(n) + "e");
            EXPECT_NE(small, bitmap("ptn/" + std::to_string(n))) << n;
            EXPECT_EQ(small, bitmap("ptn/" + std::to_string(n - 1000))) << n;
        }
    const fs::directory_iterator folder(RUN_DIR + "/graphics/ptn");
    EXPECT_EQ(size_t(std::distance(begin(folder), end(folder))), files)
        << "a number without a meaning has a file";
}
