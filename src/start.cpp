// start: see start.h.
#include "start.h"
#include "a_fl.h"
#include "a_kf.h"
#include "bus.h"
#include "config.h"
#include "device.h"
#include "display.h"
#include "fmctrl.h"
#include "fmctrl3.h"
#include "global.h"
#include "graphics.h"
#include "i2c.h"
#include "log.h"
#include "process.h"
#include "ready.h"
#include "register.h"
#include "saver.h"
#include "selfdiag.h"
#include "setup_index.h"
#include "tdl.h"
#include "text.h"
#include "touch.h"
#include "xsyslog.h"
#include <SDL.h>
#include <cstdio>
#include <cstdlib>
#include "safeguards.h"

static void start_quit()
{
    Global_FreeBusNames();
    Register_Free();
    FMCtrl_Quit();
    FMCtrl3_Finalize();
    FreeGraphics();
}

static bool start_has_data_disk()
{
    if (GL_DebugMode)
        return true;
    return !FileExist("/var/log/.tmpdiskerror") && !FileExist("/var/log/.datadiskerror") &&
           FileExist("/mnt/data/.HARDDISK_IS_AVAILABLE_1.0.0") &&
           ktr_system("/sbin/sfdisk -l /dev/sda") == 0;
}

static void start_video(int depth)
{
    Display_Prepare();
    if (SDL_Init(SDL_INIT_TIMER | SDL_INIT_VIDEO) < 0) {
        printf("Couldn't initialize SDL: %s\n", SDL_GetError());
        exit(1);
    }
    atexit(SDL_Quit);
    // The clock has begun; the library's timer thread would only wake a thousand times a second for
    // timers that nobody sets. One thread is all there is.
    SDL_QuitSubSystem(SDL_INIT_TIMER);
    SDL_Surface* surface = SDL_SetVideoMode(SCREEN_W, SCREEN_H, depth, 0);
    if (!surface) {
        printf("Couldn't set video mode: %s\n", SDL_GetError());
        exit(1);
    }
    Ready_Watch(READY_DISPLAY, Display_Descriptor());
    SDL_WM_SetCaption("Vorn KTR-40 GUI", "GUI");
    SDL_EnableKeyRepeat(500, 30);
    if (TDL_Init(surface) != 0) {
        printf("Couldn't initialize TDL.\n");
        exit(1);
    }
    atexit(TDL_Quit);
}

void Start_Identity()
{
    unsigned char e[4];
    if (I2cEepromService_ReadElem(EEPROM_IP_ADDR_ETH0, 4, e) == 4) {
        SYS_GroupID = e[1] - 128;
        SYS_UnitID = e[3];
    }
    if (I2cEepromService_ReadElem(EEPROM_SHP_ADDR, 4, e) == 4)
        PrintText(SYS_StatusHubAddress, "%d.%d.%d.%d", e[0], e[1], e[2], e[3]);
    else if (GL_ClipStoreDebugMode && *GL_ClipStoreDebugAddress)
        CopyText(SYS_StatusHubAddress, GL_ClipStoreDebugAddress);
    else
        CopyText(SYS_StatusHubAddress, "192.168.111.1");
    SYS_StatusHubPort = 9500;
    if (I2cEepromService_ReadElem(EEPROM_SHP_PORT, 2, e) == 2)
        SYS_StatusHubPort = e[0] << 8 | e[1];
    PrintText(SYS_SHP_MyUserID, "MENU%d", SYS_UnitID);
}

void Start_Init(int depth)
{
    if (LoadIniFile() != 0) {
        printf("Fatal Error: Couldn't load tm3.ini.\n");
        exit(1);
    }
    Log_Init(GL_LogFileName, LOG_FILE_SIZE);
    xsys_openlog("menu", 1, 8);
    GL_IsRamDisk = start_has_data_disk() ? 0 : 1;
    start_video(depth);
    Start_Identity();
    Device_Init();
    Global_InitBusNames();
    SetupIndex_Build();
    SetupIndex_LoadLock();
    SetTouchBeep();
    Saver_LoadSettings();
    EndScreenSaver();
    KF_Init();
    FMCtrl_InitClipStillList();
    FMCtrl3_Init();
    FL_Init_File();
    SelfDiag_Init();
    atexit(start_quit);
}
