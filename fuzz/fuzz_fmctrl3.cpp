// The clip store: whatever rows the hub sends, the list is in order both ways and every element is
// found by its path, as a child of its folder or without one, and all memory comes back; of the
// files on the drive those of an element are known as its own, and none else is. The input is lines
// of verb and table, "#" and row: "Insert CS1.ClipStoreFile#root/a.SFH:1,0,0,3,,1,1", and of
// "Drive#" and the name of a file.
#include "bus.h"
#include "device.h"
#include "fmctrl3_private.h"
#include "fuzz_lines.h"
#include "global.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "text.h"
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

static bool HasElement()
{
    for (const ELEMENT_LIST* e = ElementListTop.next; e; e = e->next)
        if (e->element.type == ELEMENT_TYPE_FILE)
            return true;
    return false;
}

static void TakeFileOnDrive(const std::string& name)
{
    const auto ends = [&](const std::string& end) {
        return name.size() > end.size() &&
               name.compare(name.size() - end.size(), end.size(), end) == 0;
    };
    if (name.find('\0') == std::string::npos && clip_thumbnail_is_known(name.c_str()))
        Check(HasElement() && (ends(".THM") || ends(".THM.of")) &&
              name.find(".SFH") != std::string::npos);
}

static bool IsBelowRoot(const ELEMENT_LIST* e)
{
    while (e && e != ElementListTop.next)
        e = FMCtrl3_GetParent(e);
    return e != nullptr;
}

static void CheckFilesOf(const ELEMENT& e)
{
    std::string name = std::string(e.full_name).substr(strlen("/root/")) + ".SFH";
    std::replace(name.begin(), name.end(), '/', '.');
    if (e.duration == 1)
        Check(clip_thumbnail_is_known((name + ".THM").c_str()));
    for (const int frame : {0, e.duration / 2, e.duration - 1}) {
        char number[16];
        PrintText(number, "#%06d.THM", frame);
        if (e.duration > 1)
            Check(clip_thumbnail_is_known((name + number).c_str()));
    }
    Check(clip_thumbnail_is_known((name + ".THM.of").c_str()));
}

static void TakeLine(const std::string& head, const std::string& row)
{
    if (head == "Drive")
        TakeFileOnDrive(row);
    const size_t blank = head.find(' ');
    if (blank == std::string::npos)
        return;
    const std::string verb = head.substr(0, blank);
    const std::string table = head.substr(blank + 1);
    const MsgArg words[] = {Arg(verb.c_str()), Arg(table.c_str()), Arg(row.c_str())};
    (void)FMCtrl3_Proc(MSG_SHPTALLY, words[0], words[1], 0, words[2]);
    clipstore_proc(MSG_SHPTALLY, words[0], words[1], 0, words[2]);
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
        else if (IsBelowRoot(e))
            CheckFilesOf(e->element);
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
