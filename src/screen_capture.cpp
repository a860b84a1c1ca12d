#include "screen_capture.h"
#include "global.h"
#include "page.h"
#include "process.h"
#include "storage.h"
#include "tdl.h"
#include "text.h"
#include <SDL.h>
#include <sys/stat.h>
#include <unistd.h>

#include "safeguards.h"

constexpr int CAPTURE_NAMES = 9;

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
        SDL_SaveBMP_RW(Screen, SDL_RWFromFile(name, "wb"), 1);
        sync();
        sync();
        return;
    }
}
