// What assetgen leaves in the run directory, read as the application reads it.
#include "../../assets/wipe_numbers.h"
#include "types.h"
#include <cstdlib>
#include <cstring>
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
const std::string ASSETGEN = RUN_DIR + "/../bin/assetgen";

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

// Sizes by the beginning of the stem; the longest that fits counts.
const struct SizeRule {
    const char* beginning;
    int width, height;
} SIZES[] = {
    {"TGL", 85, 66},
    {"TGA", 85, 66},
    {"EXE", 85, 66},
    {"JMP", 85, 66},
    {"OKINI", 85, 66},
    {"TAB", 89, 40},
    {"PD_", 101, 46},
    {"PDl_", 101, 46},
    {"PDs", 60, 40},
    {"TRR", 101, 46},
    {"TRL", 101, 46},
    {"UP", 74, 39},
    {"HF_", 84, 66},
    {"HFS", 84, 41},
    {"HFM", 70, 15},
    {"VF_", 91, 63},
    {"VFM", 80, 15},
    {"NB_", 94, 82},
    {"NBS", 94, 52},
    {"NBA", 84, 65},
    {"PG", 86, 58},
    {"TIT_omote", 285, 58},
    {"TIT_ura", 285, 58},
    {"TIT_omote_s", 210, 58},
    {"TIT_ura_s", 210, 58},
    {"TIT_ms", 72, 58},
    {"BACK", 38, 44},
    {"NEXT", 38, 44},
    {"PRV", 81, 50},
    {"KF_", 225, 58},
    {"KF_off2", 287, 58},
    {"KF_on2", 287, 58},
    {"KF_mm", 59, 58},
    {"MMCR", 59, 50},
    {"KEYFRAME", 85, 66},
    {"LST", 62, 40},
    {"SB", 46, 40},
    {"SEL", 62, 40},
    {"BOX", 40, 40},
    {"BOX_key", 94, 40},
    {"BOX_up", 33, 36},
    {"BOX_down", 33, 36},
    {"10K", 50, 55},
    {"KYB", 104, 50},
    {"KYB_key", 50, 50},
    {"KYB_left", 50, 50},
    {"KYB_right", 50, 50},
    {"KYB_space", 266, 50},
    {"PSEL_", 89, 40},
    {"PSELs_", 44, 36},
    {"PSELm", 60, 40},
    {"PSELss", 30, 24},
    {"PATH_", 60, 36},
    {"PATHSEL", 64, 44},
    {"FM_", 74, 39},
    {"FMs", 50, 32},
    {"FMOUT_", 101, 46},
    {"FMOUTSEL", 40, 36},
    {"FMTC", 130, 40},
    {"FMCLIP", 88, 66},
    {"FMSTILL", 88, 66},
    {"FMFOLDER", 88, 66},
    {"FMQUESTION", 88, 66},
    {"Lock", 24, 28},
    {"lock_on", 24, 28},
    {"lock_off", 24, 28},
    {"lock_on_s", 16, 18},
    {"lock_off_s", 16, 18},
    {"icon_rew", 25, 13},
    {"icon_play", 9, 13},
    {"icon_ff", 17, 13},
    {"icon_stop", 15, 12},
    {"icon_record", 15, 13},
    {"icon_folder", 18, 14},
    {"folder", 20, 16},
    {"Edge", 60, 48},
    {"wipe", 60, 48},
    {"Combiner", 40, 24},
    {"Combiner_Base", 200, 120},
    {"FC", 24, 16},
    {"pulldown", 101, 32},
    {"path_", 24, 24},
    {"round", 20, 20},
    {"hidariya", 40, 28},
    {"menu", 160, 80},
    {"swr", 160, 80},
    {"pcx", 160, 80},
    {"fxu", 160, 80},
};

const SizeRule* size_of(const char* stem)
{
    const SizeRule* found = nullptr;
    for (const SizeRule& rule : SIZES)
        if (strncmp(stem, rule.beginning, strlen(rule.beginning)) == 0 &&
            (!found || strlen(rule.beginning) > strlen(found->beginning)))
            found = &rule;
    return found;
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

std::vector<int> small_model_numbers()
{
    std::vector<int> list;
    for (const NumberRange& r : WIPE_NUMBERS_SMALL_MODEL)
        for (int n = r.first; n <= r.last; n++)
            list.push_back(n);
    return list;
}
} // namespace

TEST(Assets, FontsHaveTheMeasuredWidths)
{
    ASSERT_EQ(read_file(RUN_DIR + "/font.dat").size(), 120000u);
    const Bytes offsets = read_file(RUN_DIR + "/font_ofs.dat");
    ASSERT_EQ(offsets.size(), 5120u);
    EXPECT_EQ(little_endian(offsets, 9 * 512 + 127 * 4), 116281u); // end of the last glyph of all

    static const int heights[] = {12, 13, 15, 14, 14, 15, 13, 21, 21, 25};
    for (int font = 0; font < 10; font++)
        EXPECT_EQ(little_endian(offsets, size_t(font * 512)), uint32_t(heights[font])) << font;

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

TEST(Assets, GlyphsStandOnTheirBaseline)
{
    const Bytes coverage = read_file(RUN_DIR + "/font.dat"),
                offsets = read_file(RUN_DIR + "/font_ofs.dat");
    static const int baselines[] = {9, 10, 12, 11, 11, 12, 10, 16, 16, 19};
    for (int font = 0; font < 10; font++) {
        const int width = text_width(offsets, font, "H");
        const size_t glyph = little_endian(offsets, size_t(font * 512 + 'H' * 4));
        const auto darkest_in_row = [&](int row) {
            uint8_t darkest = 0;
            for (int x = 0; x < width; x++)
                darkest = std::max(darkest, uint8_t(coverage.at(glyph + size_t(row * width + x))));
            return darkest;
        };
        EXPECT_GT(darkest_in_row(baselines[font] - 1), 150) << font;
        EXPECT_EQ(darkest_in_row(baselines[font]), 0) << font;
    }
}

TEST(Assets, EveryBitmapIsThereInItsSize)
{
    for (const char* stem : STEMS) {
        const Picture p = read_picture(stem);
        const SizeRule* rule = size_of(stem);
        ASSERT_TRUE(rule) << stem;
        EXPECT_EQ(p.width, rule->width) << stem;
        EXPECT_EQ(p.height, rule->height) << stem; // positive: bottom row first
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

TEST(Assets, CapsLieOnTheGroundOfTheirPlace)
{
    static const struct {
        const char* stem;
        int x, y;
        uint32_t colour;
    } cases[] = {
        {"TGL_p0o1", 0, 0, 0x000000},
        {"TGL_p0o1", 42, 0, 0x000000}, // gasket all round
        {"PDs_p0o0", 0, 0, 0x2A2F32},
        {"PDs_p0o0", 30, 0, 0x000000},
        {"10K_key_off", 49, 54, 0x1A1A1A},
        {"BOX_key_off", 0, 39, 0xE6E6E6},
        {"BOX_up_off", 0, 0, 0xC3C3C3},
        {"BACK_off", 37, 0, 0x1F1F1F},
        {"HF_off", 0, 0, 0x000000},
        {"HF_off", 0, 65, 0x1F1F1F},  // square above, round below
        {"VF_off", 89, 30, 0x1F1F1F}, // only the open tab touches the page
        {"HF_blank", 40, 30, 0x1F1F1F},
        {"SB_dw_off", 0, 0, 0x000000},
        {"TGL_p0o1", 40, 5, 0x005A60},
        {"TGL_p1o1", 40, 6, 0x005A60}, // marks go down with the face
    };
    for (const auto& c : cases)
        EXPECT_EQ(pixel(read_picture(c.stem), c.x, c.y), c.colour)
            << c.stem << " " << c.x << "," << c.y;
    EXPECT_GT(pixel(read_picture("VF_on"), 88, 10), 0x808080u); // light up to the page's edge
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
    files += small_model_numbers().size();
    const fs::directory_iterator folder(RUN_DIR + "/graphics/ptn");
    EXPECT_EQ(size_t(std::distance(begin(folder), end(folder))), files)
        << "a number without a meaning has a file";
}

TEST(Assets, WipePicturesShowTheMove)
{
    static const struct {
        int number, x, y;
        bool is_incoming;
    } cases[] = {
        {1, 4, 24, true},    {1, 50, 24, false}, // from the left
        {4, 30, 42, true},   {4, 30, 6, false},  // from below
        {65, 30, 24, true},  {65, 4, 6, false},  // circle grows
        {69, 30, 24, false}, {69, 4, 6, true},   // circle shrinks
        {1001, 6, 24, true}, {1003, 54, 24, true}, {1002, 30, 40, false},
    };
    for (const auto& c : cases) {
        const uint32_t green =
            pixel(read_picture("ptn/" + std::to_string(c.number)), c.x, c.y) >> 8 & 0xFF;
        EXPECT_EQ(green > 0x90, c.is_incoming) << c.number << " at " << c.x << "," << c.y;
    }
}

TEST(Assets, SmallModelHasNoChannelSquares)
{
    ASSERT_EQ(small_model_numbers().size(), 29u);
    for (int n : small_model_numbers()) {
        const Picture full = read_picture("ptn/" + std::to_string(n));
        const Picture small = read_picture("ptn/" + std::to_string(n) + "e");
        const Picture one_channel = read_picture("ptn/" + std::to_string(n - 1000));
        EXPECT_EQ(pixel(full, 53, 6), 0x00FFFFu) << n;
        EXPECT_EQ(small.file, one_channel.file) << n;
        ASSERT_NE(small.file, full.file) << n;
    }
}

TEST(Assets, AnotherRunGivesTheSameBytes)
{
    const fs::path dir = fs::temp_directory_path() / "assets_again";
    fs::remove_all(dir);
    ASSERT_EQ(system((ASSETGEN + " " + dir.string()).c_str()), 0);
    size_t compared = 0;
    for (const auto& entry : fs::recursive_directory_iterator(dir)) {
        if (!entry.is_regular_file())
            continue;
        const std::string name = fs::relative(entry.path(), dir).string();
        EXPECT_EQ(read_file(entry.path().string()), read_file(RUN_DIR + "/" + name)) << name;
        compared++;
    }
    EXPECT_GT(compared, std::size(STEMS));
    fs::remove_all(dir);
}

TEST(Assets, AFolderThatCannotBeMadeFailsTheRun)
{
    EXPECT_NE(system((ASSETGEN + " /proc/nowhere 2>/dev/null").c_str()), 0);
    EXPECT_NE(system((ASSETGEN + " 2>/dev/null").c_str()), 0);
}
