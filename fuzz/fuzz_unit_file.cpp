// The files that a unit keeps for itself, as a damaged drive may give them back: whatever stands in
// them, what is taken over is within its limits. The first byte chooses the file.
#include "err.h"
#include "saver.h"
#include "setup_index.h"
#include "window_private.h"
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

template <size_t N> static bool IsEnded(const char (&text)[N])
{
    return memchr(text, '\0', N) != nullptr;
}

static void LoadLock()
{
    SetupIndex_LoadLock();
    Check(IsEnded(SetupLock.password) && SetupLock.num >= 0 && SetupLock.num <= SETUP_LOCK_PAGES);
    for (int i = 0; i < SetupMenu_Max; i++)
        Check(!SetupIndex_IsLocked(PAGE_SETUP_LOCK));
    Check(SetupIndex_SaveLock() == 0);
    const SETUPLOCK saved = SetupLock;
    SetupIndex_LoadLock();
    Check(SetupLock.num == saved.num && SetupLock.lock == saved.lock);
}

static void LoadSaver()
{
    Saver_LoadSettings();
    Check(IsEnded(GL_Scr_disp_ImagePath) && GL_ScreenSaverPTN_Mode >= 0 &&
          GL_ScreenSaverVariable_speed >= 0 && GL_ScreenSaverVariable_speed < SAVER_SPEEDS);
    for (const auto& name : GL_Scr_disp_name)
        Check(IsEnded(name));
    EndScreenSaver();
}

static constexpr struct {
    const char* path;
    void (*load)();
} files[] = {
    {SETUP_LOCK_FILE, LoadLock},
    {"/mnt/data/.screensaver", LoadSaver},
    {"/mnt/data/TopMenu/user_date1.usr", favorites_open},
};

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool is_begun =
        (SetupIndex_Build(), (void)mkdir("/mnt/data/TopMenu", 0755), true); // it may be there
    if (!is_begun || size < 1)
        return 0;
    const auto& file = files[data[0] % std::size(files)];
    FILE* fp = fopen(file.path, "w");
    Check(fp && fwrite(data + 1, 1, size - 1, fp) == size - 1);
    fclose(fp);
    file.load();
    return 0;
}
