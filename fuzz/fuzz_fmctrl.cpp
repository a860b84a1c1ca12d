// The frame memory: whatever lines come, stills and clips hold stored registers of their own names
// and nothing else, a name ends inside its field, and all memory comes back. A line "found#PATH" is
// a name from a search: what passes lies in its folder. The input is lines of path, "#" and value.
#include "fmctrl_private.h"
#include "fuzz_lines.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void CheckFound(const std::string& path)
{
    const std::string folder = "/mnt/sys/FMLoad/FM1";
    if (!fm_drop_is_file_of(folder.c_str(), path.c_str()))
        return;
    Check(path.rfind('/') == folder.size() && path.compare(0, folder.size(), folder) == 0);
    const std::string name = path.substr(folder.size() + 1);
    Check(name != "." && name != ".." && !name.empty() && name[0] != '-');
    Check(name.find_first_of(",#;$`'\"\\|&<>\n") == std::string::npos);
}

static void CheckSlot(int index, const char* bare, bool is_main)
{
    if (index < 0)
        return;
    const FMEMREG* r = fm_register(index);
    Check(r && r->store && r->holds_slot && fm_is_main_name(r->name) == is_main);
    Check(strcmp(fm_bare_name(r->name), bare) == 0);
}

static void CheckLists()
{
    for (int i = 0; i < FMCtrl_GetStillNum(); i++) {
        const char* name = FMCtrl_GetStillName(i);
        Check(strlen(name) < FMEM_NAME_SIZE - 2);
        Check(FMCtrl_GetStillRegId(i, 0) >= 0 || FMCtrl_GetStillRegId(i, 1) >= 0);
        CheckSlot(FMCtrl_GetStillRegId(i, 0), name, true);
        CheckSlot(FMCtrl_GetStillRegId(i, 1), name, false);
        Check(i == 0 || strcmp(FMCtrl_GetStillName(i - 1), name) < 0);
    }
    for (int i = 0; i < FMCtrl_GetClipNum2(); i++) {
        Check(std::max(FMCtrl_GetClipFrameNum(i, 0), FMCtrl_GetClipFrameNum(i, 1)) > 1);
        for (int is_sub : {0, 1})
            for (int n = FMCtrl_GetClipFrameNum(i, is_sub), d = 0; d < n; d++)
                Check(FMCtrl_GetClipRegId(i, is_sub, d - n / 2) >= 0);
    }
    for (const FOLDER& folder : FolderList.rec)
        Check(memchr(folder.name, '\0', sizeof folder.name));
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FMCtrl_Quit();
    const int used = UsedMemPtr;
    ForEachTally(data, size, [](const std::string& path, const std::string& value) {
        if (path == "found")
            CheckFound(value.c_str());
        else
            FMCtrlProc(MSG_TALLY, Arg(path.c_str()), Arg(value.c_str()), 0, 0);
        char sent[CMD_SIZE];
        while (Net_TakeQueued(sent, sizeof sent)) {
        }
    });
    CheckLists();
    FMCtrl_Quit();
    Check(UsedMemPtr == used);
    return 0;
}
