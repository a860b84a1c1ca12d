#include "a_ff_private.h"
#include "a_fm.h"
#include "fmctrl3.h"
#include "server_page.h"
#include <filesystem>

namespace fs = std::filesystem;
constexpr const char* FM_FOLDER = "/mnt/sys/FM/1/";

struct FolderPictures : ServerPage {
    unsigned seed = 0; // of the next picture

    void SetUp() override
    {
        ServerPage::SetUp();
        DEV_MySwr[0] = &DEV_Swr[0];
        SYS_MySwrMax = 1;
        CopyText(DEV_Swr[0].id, "SWR000D001");
        fs::create_directories(FM_FOLDER);
    }
    void TearDown() override
    {
        ServerPage::TearDown();
        fs::remove_all(FM_FOLDER);
    }
    // A sky that grows lighter towards a ground, in colours of the clip's own: 112 x 63, 24 bit.
    static void Thumbnail(const std::string& file, unsigned seed)
    {
        SDL_Surface* const s =
            SDL_CreateRGBSurface(SDL_SWSURFACE, 112, 63, 24, 0xFF0000, 0xFF00, 0xFF, 0);
        for (int y = 0; y < s->h; y++) {
            SDL_Rect line = {0, Sint16(y), Uint16(s->w), 1};
            const auto shade = Uint8(60 + 2 * y);
            const bool is_ground = y > 40;
            SDL_FillRect(s, &line,
                         SDL_MapRGB(s->format, Uint8(seed * 37), is_ground ? 90 : shade,
                                    is_ground ? 40 : Uint8(255 - seed * 29)));
        }
        SDL_SaveBMP(s, (FM_FOLDER + file).c_str());
        SDL_FreeSurface(s);
    }
    void Clip(const std::string& name, int frames, int exist, int pair = 0)
    {
        Thumbnail("NEWS." + name + ".SFH" + (frames > 1 ? "#000000" : "") + ".THM", seed++ % 8);
        Hub("Insert", "CS1.ClipStoreFile",
            "root/NEWS/" + name + ".SFH:" + std::to_string(frames) + ", " + std::to_string(pair) +
                ", 0, 3, 2026-11-25 09:20:00, " + std::to_string(exist) + ", 1");
    }
};

TEST_F(FolderPictures, Browser)
{
    Hub("Insert", "CS1.ClipStoreFolder", "root/NEWS:1");
    Hub("Insert", "CS1.ClipStoreFolder", "root/NEWS/ARCHIVE:1");
    Hub("Insert", "CS1.ClipStoreFolder", "root/NEWS/WEATHER:1");
    static const std::tuple<const char*, int, int, int> clips[] = {
        {"HEADLINE", 2, 3, 0}, {"LOGO KEY", 1, 3, 1},
        {"OPENING", 3, 1, 0},  {"OTS LEFT", 1, 1, 1},
        {"SKYLINE", 1, 2, 0},  {"SPORT BUMPER", 3, 3, 0},
        {"STING", 2, 1, 1},    {"STUDIO WIDE NIGHT", 1, 1, 0},
        {"TRAFFIC", 2, 3, 0},  {"WEATHER LOOP", 3, 1, 0},
        {"WIPE", 2, 1, 1},     {"ZOOM IN", 1, 1, 0}};
    for (const auto& [name, frames, exist, pair] : clips)
        Clip(name, frames, exist, pair);
    SYS_MemoryFree = 2640;
    SYS_MemoryTotal = 3000;
    (void)Open(0x21120000);
    (void)FF_ChangeDirectory(0, "/NEWS");
    EXPECT_EQ(FF_Find(0, "openi", SEARCH_DIR_NEXT), 0);
    (void)FF_SetSelectMode(0, SELECT_MODE_SELECT);
    const Rect g = ff_grid(ff.area[0].parts);
    for (int n : {2, 7})
        (void)Touch(g.x1 + n % 4 * ff.area[0].parts.h_gap + 50, g.y1 + n / 4 * FF_CELL_H + 40);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_folder"));
    SYS_MemoryFree = SYS_MemoryTotal = 0;
}

TEST_F(FolderPictures, OutputsPlaybackAndTwoFolders)
{
    Hub("Insert", "CS1.ClipStoreFolder", "root/NEWS:1");
    Hub("Insert", "CS1.ClipStoreFolder", "root/SPORT:1");
    Clip("LOGO KEY", 1, 3, 1);
    Clip("OPENING", 100, 1);
    Clip("OTS LEFT", 1, 1);
    (void)Open(0x21110000);
    TellAll(FM_TREE, {"Output Status@FM1#2,/NEWS/OPENING.SFH", "Play@FM1#1,0,0,99",
                      "Output Status@FM2#2,/NEWS/LOGO KEY.SFH", "Play@FM2#0,0,0,0",
                      "Ancillary Enable@FM1#1,1", "Out Pair Select#FM1&2", "Pair@FM1&2#false"});
    (void)FF_ChangeDirectory(0, "/NEWS");
    Paint();
    EXPECT_TRUE(MatchesGolden("fmem_recall"));

    (void)Open(0x21130000);
    TellAll(FM_TREE, {"Play@FM1#1,0,10,80", "Play@FM1#1,42,10,80", "Play@Play Mode@FM1#2",
                      "Play@Variable Speed@FM1#-75"});
    Pass(1000);
    EXPECT_TRUE(MatchesGolden("fmem_play"));

    (void)Open(0x21210000);
    (void)FF_ChangeDirectory(0, "/NEWS");
    const Rect g = ff_grid(ff.area[0].parts);
    (void)Touch(g.x1 + ff.area[0].parts.h_gap + 50, g.y1 + 40);
    Pass(1000);
    EXPECT_TRUE(MatchesGolden("fmem_copymove"));
    TellAll(FM_TREE, {"Output Status@FM1#0,", "Output Status@FM2#0,", "Play@FM1#0,0,0,0",
                      "Ancillary Enable@FM1#0,0", "Play@Play Mode@FM1#0"});
}
