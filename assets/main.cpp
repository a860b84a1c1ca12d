// assetgen RUN_DIR: make the fonts, bitmaps and pattern pictures that the application loads at
// start-up.
//   RUN_DIR/font.dat, font_ofs.dat, graphics/STEM.bmp, graphics/ptn/NUMBER.bmp
// Everything is drawn anew on each run, and comes out the same on each.
#include "canvas.h"
#include "family.h"
#include "font.h"
#include "wipe_numbers.h"
#include "wipes.h"
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

static int write_picture(const std::string& path, int width, int height,
                         const std::vector<uint8_t>& pixels)
{
    if (CV_WriteBmp(path, width, height, pixels) == 0)
        return 0;
    fprintf(stderr, "assetgen: cannot write %s: %s\n", path.c_str(), strerror(errno));
    return -1;
}

static int write_family(const std::string& dir, const Family& family)
{
    for (const State& st : family.states) {
        Canvas cv = CV_New(family.width, family.height, family.ground);
        family.draw(cv, st, family.variant);
        const int failed = write_picture(dir + "/" + family.stem + st.suffix + ".bmp", cv.width,
                                         cv.height, CV_Pixels(cv));
        CV_Free(cv);
        if (failed)
            return -1;
    }
    return 0;
}

static int write_bitmaps(const std::string& dir)
{
    const std::span<const Family> catalogue[] = {
        KEYS_Families(),  TABS_Families(),   BASE_Families(),  PANES_Families(), PANEL_Families(),
        PATHS_Families(), MEMORY_Families(), ICONS_Families(), EDGES_Families(), DEVICE_Families()};
    for (const auto& families : catalogue)
        for (const Family& family : families)
            if (write_family(dir, family) != 0)
                return -1;
    return 0;
}

static int write_range(const std::string& dir, const NumberRange& range, bool with_channels)
{
    for (int n = range.first; n <= range.last; n++) {
        const std::string path = dir + "/" + std::to_string(n) + (with_channels ? ".bmp" : "e.bmp");
        if (write_picture(path, WIPE_WIDTH, WIPE_HEIGHT, WIPE_Picture(n, with_channels)) != 0)
            return -1;
    }
    return 0;
}

static int write_wipes(const std::string& dir)
{
    for (const NumberRange& range : WIPE_NUMBERS)
        if (write_range(dir, range, true) != 0)
            return -1;
    for (const NumberRange& range : WIPE_NUMBERS_SMALL_MODEL)
        if (write_range(dir, range, false) != 0)
            return -1;
    return 0;
}

int main(int argc, char** argv)
{
    if (argc != 2) {
        fprintf(stderr, "usage: assetgen RUN_DIR\n");
        return 2;
    }
    const std::string run_dir = argv[1], graphics = run_dir + "/graphics";
    std::error_code error;
    std::filesystem::create_directories(graphics + "/ptn", error);
    if (error) {
        fprintf(stderr, "assetgen: cannot make %s/ptn: %s\n", graphics.c_str(),
                error.message().c_str());
        return 1;
    }
    const bool is_done = FONT_Write(run_dir) == 0 && write_bitmaps(graphics) == 0 &&
                         write_wipes(graphics + "/ptn") == 0;
    return is_done ? 0 : 1;
}
