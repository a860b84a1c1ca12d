// The clip store: whatever rows the hub sends, the list is in order both ways and every element is
// found by its path, as a child of its folder or without one, and all memory comes back. The input
// is lines of verb and table, "#" and row: "Insert CS1.ClipStoreFile#root/a.SFH:1,0,0,3,,1,1".
#include "bus.h"
#include "device.h"
#include "fmctrl3.h"
#include "fuzz_lines.h"
#include "global.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "text.h"
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void TakeLine(const std::string& head, const std::string& row)
{
    const size_t blank = head.find(' ');
    if (blank == std::string::npos)
        return;
    const std::string verb = head.substr(0, blank);
    const std::string table = head.substr(blank + 1);
    for (const auto take : {FMCtrl3_Proc, clipstore_proc})
        (void)take(MSG_SHPTALLY, Arg(verb.c_str()), Arg(table.c_str()), 0, Arg(row.c_str()));
    char sent[CMD_SIZE];
    while (Net_TakeQueued(sent, sizeof sent) || Net_TakeQueuedSHP(sent, sizeof sent)) {
    }
}

static int ChildrenOf(const ELEMENT_LIST* folder)
{
    int count = 0;
    for (const ELEMENT_LIST* e = nullptr; (e = FMCtrl3_GetChild(folder, e)); count++)
        Check(FMCtrl3_GetParent(e) == folder);
    return count;
}

static void CheckTree()
{
    const ELEMENT_LIST* const root = ElementListTop.next;
    int with_parent = 0;
    int children = 0;
    for (const ELEMENT_LIST* e = root; e; e = e->next) {
        Check(e->next ? e->next->prev == e : ElementListBottom == e);
        Check(memchr(e->element.name, '\0', sizeof e->element.name));
        Check(e->element.duration >= 0 && e->element.duration <= ELEMENT_FRAMES_MAX);
        Check(e == root || FMCtrl3_FindPath(nullptr, e->element.type, e->element.full_name) == e);
        with_parent += FMCtrl3_GetParent(e) != nullptr;
        if (e->element.type == ELEMENT_TYPE_FOLDER)
            children += ChildrenOf(e);
    }
    Check(children == with_parent);
    SEARCH_CONFIG config;
    int found = 0;
    while ((config.start = FMCtrl3_FindName(SEARCH_DIR_NEXT, &config)) && found <= with_parent) {
        CURRENT_INFO info;
        FMCtrl3_InitCurrentInfo(&info);
        (void)FMCtrl3_ChangeDirectory(&info, config.start->element.name);
        (void)FMCtrl3_ChangeDirectory(&info, config.start->element.full_path);
        Check(FMCtrl3_GetCurrent(&info) != nullptr);
        found++;
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FMCtrl3_Init();
    SYS_MySwrMax = 1;
    DEV_MySwr[0] = &DEV_Swr[0];
    CopyText(DEV_Swr[0].id, "SWR000D001");
    const int used = UsedMemPtr;
    ForEachTally(data, size, TakeLine);
    CheckTree();
    FMCtrl3_Finalize();
    char sent[CMD_SIZE];
    while (Net_TakeQueued(sent, sizeof sent)) {
    }
    Check(UsedMemPtr == used);
    return 0;
}
