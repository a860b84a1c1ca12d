// A thumbnail's file: whatever stands behind its head, the picture is refused or is of a size that
// the screen has, and no half file is left.
#include "fmctrl_private.h"
#include "tdl.h"
#include <cstdint>
#include <cstdlib>
#include <string>
#include <unistd.h>

static std::string folder;

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void Begin()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    Check(SDL_Init(SDL_INIT_VIDEO) == 0);
    Screen = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, SDL_SWSURFACE);
    char name[] = "/tmp/fuzz_sft.XXXXXX";
    Check(Screen && mkdtemp(name));
    folder = name;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (folder.empty())
        Begin();
    const std::string sft = folder + "/a.SFT", bmp = folder + "/a.BMP";
    FILE* fp = fopen(sft.c_str(), "w");
    Check(fp && fwrite(data, 1, size, fp) == size);
    fclose(fp);
    const bool is_made = fm_sft_to_bmp(sft.c_str(), bmp.c_str()) == 0;
    Check((access(bmp.c_str(), F_OK) == 0) == is_made);
    Check(access((bmp + ".new").c_str(), F_OK) != 0);
    SDL_Surface* picture = fm_load_bmp(bmp.c_str());
    Check(!picture ||
          (picture->w >= 1 && picture->w <= SCREEN_W && picture->h >= 1 && picture->h <= SCREEN_H));
    if (picture) {
        SDL_Surface* small = TDL_CreateSmallSurface(picture);
        if (small)
            SDL_FreeSurface(small);
        SDL_FreeSurface(picture);
    }
    (void)unlink(bmp.c_str()); // it may not have been made
    return 0;
}
