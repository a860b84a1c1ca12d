#include "a_fl.h"
#include "fmctrl.h"
#include "fmctrl3.h"
#include "page_table/fmem_store.h"
#include "server_page.h"
#include <filesystem>

namespace fs = std::filesystem;
constexpr const char* LOCAL = "/mnt/sys/FrameMemory/";

struct StorePictures : ServerPage {
    void SetUp() override
    {
        ServerPage::SetUp();
        FMCtrl_InitClipStillList();
        Fmem1_Reset();
        fs::create_directories(LOCAL);
    }
    void TearDown() override
    {
        (void)Leave();
        fs::remove_all(LOCAL);
        ServerPage::TearDown();
    }
    // A sun over a ground, further on with each frame.
    static void Picture(int number, int frame)
    {
        SDL_Surface* const s =
            SDL_CreateRGBSurface(SDL_SWSURFACE, 160, 90, 24, 0xFF0000, 0xFF00, 0xFF, 0);
        SDL_Rect sun = {Sint16(20 + 15 * frame), 14, 24, 24}, ground = {0, 60, 160, 30};
        SDL_FillRect(s, nullptr, SDL_MapRGB(s->format, 40, 90, 180));
        SDL_FillRect(s, &sun, SDL_MapRGB(s->format, 250, 220, 60));
        SDL_FillRect(s, &ground, SDL_MapRGB(s->format, 30, 110, 50));
        char name[32];
        PrintText(name, "FM_%04d.BMP", number);
        SDL_SaveBMP(s, (std::string(LOCAL) + name).c_str());
        FmemReg[number - 1].thumb = s; // small or not: the page asks for the file's
    }
};

TEST_F(StorePictures, AClipAndItsFrame)
{
    Tell("16@Frame Mem@Status@Max Register#300");
    int number = 0;
    for (const std::string clip : {"cut", "goal", "run", "wave"})
        for (int frame = 1; frame <= 6; frame++)
            for (const char* side : {"M", "S"}) {
                if (*side == 'S' && clip != "goal")
                    continue;
                Tell("16@Frame Mem@Status@File Name Sense#" + std::to_string(++number) + ",81," +
                     side + clip + "000" + std::to_string(frame));
                if (*side == 'M' && clip == "goal")
                    Picture(number, frame);
            }
    Tell("Frame Mem@Clip@Ancillary Playback Enable#0,Mgoal,1");
    Pass(10);
    (void)Open(0x25210000);
    (void)Touch(170, 124 + 22 * 2 + 10);
    TellAll("Frame Mem@Recall@Recall Thumbnail@",
            {"Select#FM3&4", "FM3#Mgoal0002", "FM8#Mbackdrop"});
    Pass(200);
    EXPECT_TRUE(MatchesGolden("frame_store_clip"));
}

TEST_F(StorePictures, ClipsOfAFolderForExport)
{
    for (const char* folder : {"NEWS", "NEWS/MORNING", "NEWS/SPORT"})
        Hub("Insert", "CS1.ClipStoreFolder", std::string("root/") + folder + ":1");
    Hub("Insert", "CS1.ClipStoreFile", "root/NEWS/OPENING.SFH:100,1,0,3,2026-01-31 23:59:00,1,0");
    Hub("Insert", "CS1.ClipStoreFile", "root/NEWS/STATION.SFH:1,0,0,3,2026-01-31 23:59:00,1,0");
    (void)Open(0x71620000);
    (void)FL_ChangeDirectory(FL_L_LIST, "/NEWS");
    Pass(200);
    (void)Touch(170, 124 + 22 * 3 + 10);
    Pass(200);
    EXPECT_TRUE(MatchesGolden("file_xport_clips"));
}
