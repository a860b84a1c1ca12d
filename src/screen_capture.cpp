#include "screen_capture.h"
#include "global.h"
#include "page.h"
#include "process.h"
#include "safe_file.h"
#include "storage.h"
#include "tdl.h"
#include "text.h"
#include <SDL.h>
#include <sys/stat.h>
#include <unistd.h>

#include "safeguards.h"

constexpr int CAPTURE_NAMES = 9;

// A picture that is there is a whole one: the stick may be pulled at any time.
static void save_screen(const char* name)
{
    SafeFile file;
    if (SafeFile_Open(file, name) != 0)
        return;
    SDL_RWops* const to = SDL_RWFromFP(file.fp, 0);
    if (to && SDL_SaveBMP_RW(Screen, to, 1) == 0)
        (void)SafeFile_Commit(file); // logs a failure
    else
        SafeFile_Abandon(file);
}

void Screen_Capture()
{
    Usb_Auto_Scan();
    struct stat st;
    if (stat(GL_ImportDataPath, &st) != 0)
        return;
    for (int n = 1; n <= CAPTURE_NAMES; n++) {
        char name[PATH_SIZE + 32]; // room for any import path
        PrintText(name, "%s/menuss_%04X_%02X_%d.bmp", GL_ImportDataPath, unsigned(GL_NowPage >> 16),
                  unsigned(GL_NowPage & 0xFF), n);
        if (FileExist(name))
            continue;
        save_screen(name);
        sync();
        sync();
        return;
    }
}
