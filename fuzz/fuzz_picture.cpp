// Bitmaps and fonts as a damaged drive may give them: each is refused or drawn, and a bitmap that
// is fetched at its first use has the size that was told before. The first byte chooses how it is
// read.
#include "tdl.h"
#include "types.h"
#include <SDL.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

static std::string path;

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static bool PathOf(uint32_t, char* to, size_t size)
{
    return snprintf(to, size, "%s", path.c_str()) < int(size);
}

static void Begin()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    char name[] = "/tmp/fuzz_picture.XXXXXX";
    Check(SDL_Init(SDL_INIT_VIDEO) == 0 && mkdtemp(name) && chdir(name) == 0);
    path = std::string(name) + "/a.bmp";
    SDL_Surface* screen = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, SDL_SWSURFACE);
    Check(screen);
    (void)TDL_Init(screen); // there are no fonts yet
}

static void Lay(const std::string& name, const uint8_t* data, size_t size)
{
    FILE* fp = fopen(name.c_str(), "w");
    Check(fp && fwrite(data, 1, size, fp) == size);
    fclose(fp);
}

static void ShowLater(const uint8_t* data, size_t size)
{
    Lay(path, data, size);
    TDL_SetBmpPaths(PathOf);
    SDL_Surface* picture = TDL_OpenBmp(path.c_str(), 1);
    if (!picture)
        return;
    const int w = picture->w, h = picture->h;
    (void)unlink(path.c_str());
    Lay(path, data, size / 2 + size % 7); // it is not what it was
    TDL_Put(0, 0, picture);
    Check(picture->w == w && picture->h == h);
    SDL_FreeSurface(picture);
}

static void ShowSaver(const uint8_t* data, size_t size)
{
    Lay(path, data, size);
    SDL_Surface* picture = TDL_ScreenSaverBMP(path.c_str());
    if (!picture)
        return;
    TDL_Put(0, 0, picture);
    SDL_FreeSurface(picture);
}

static void Write(const uint8_t* data, size_t size)
{
    const size_t offsets = size < 5120 ? size : 5120;
    Lay("font_ofs.dat", data, offsets);
    Lay("font.dat", data + offsets, size - offsets);
    TDL_Quit();
    (void)TDL_Init(Screen); // too short is allowed
    for (int font = 0; font < 10; font++)
        TDL_SymbolS(10, 10, "Whatever\n~ it says", font, 0xFFFFFF);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (path.empty())
        Begin();
    if (size < 1)
        return 0;
    switch (data[0] % 3) {
    case 0: ShowLater(data + 1, size - 1); break;
    case 1: ShowSaver(data + 1, size - 1); break;
    default: Write(data + 1, size - 1); break;
    }
    return 0;
}
