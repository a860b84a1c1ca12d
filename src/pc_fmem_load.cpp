// The Load page of the clip store: checked clips are taken into the memory of the frame memory, or
// out of it. A request goes to the hub for each; its results move one progress for all of them.
#include "a_bt.h"
#include "a_ff.h"
#include "a_pc.h"
#include "colours.h"
#include "global.h"
#include "memory.h"
#include "message.h"
#include "page_table/fmem_clip.h"
#include "pc_fmem.h"
#include "tdl.h"
#include "text.h"
#include <cstring>

#include "safeguards.h"

static bool is_room_dirty = false; // what the hub tells of the memory's room is not shown yet

// --- Keys ---

static void enable_keys()
{
    const bool nothing = FF_GetCheckedClipNum(0) == 0; // a folder cannot be loaded
    BT_SetDisable(BTN_FMEM_LOAD, nothing);
    BT_SetDisable(BTN_FMEM_UNLOAD, nothing);
}

static void done()
{
    FF_ClearCheckedObjectList(0);
}

static void clipstill_register(int command)
{
    const int count = FF_GetCheckedObjectNum(0);
    auto* const list = count > 0 && !fmem_progress_is_busy()
                           ? static_cast<FF_OBJECT*>(GDL_Calloc(size_t(count), sizeof(FF_OBJECT)))
                           : nullptr;
    if (!list || !fmem_progress_begin(command, done)) {
        GDL_Free(list);
        return;
    }
    const int written = FF_GetCheckedObjectList(0, list, count);
    for (int i = 0; i < written; i++) {
        char name[ELEMENT_PATH_SIZE];
        fmem_name_in(name, FF_GetCurrentPath(0), list[i].name);
        if (list[i].type == OBJECT_TYPE_FILE)
            fmem_progress_file(name);
    }
    GDL_Free(list);
    fmem_progress_show();
}

// --- The room in memory ---

static void draw_room()
{
    constexpr int FONT = 3;
    constexpr Rect ROOM = {332, FMEM_KEYS_Y + 14, 434, FMEM_KEYS_Y + 52};
    constexpr int LINE_PX = 19;
    char text[32] = "";
    if (SYS_MemoryTotal > 0)
        PrintText(text, "%d / %d", SYS_MemoryFree, SYS_MemoryTotal);
    TDL_FillRectS(ROOM.x1, ROOM.y1, ROOM.x2, ROOM.y2, BLACK);
    TDL_SymbolWS(ROOM.x1, ROOM.y1, ROOM.x2 - ROOM.x1, "Free Memory", FONT, LABEL);
    TDL_SymbolWS(ROOM.x1, ROOM.y1 + LINE_PX, ROOM.x2 - ROOM.x1, text, FONT, WHITE);
    TDL_UpdateRect(ROOM.x1, ROOM.y1, ROOM.x2, ROOM.y2);
}

// --- The page ---

static void button(const char* path)
{
    if (strcmp(path, "LOCAL@LoadToMemory") == 0)
        clipstill_register(PROTOCOL_TYPE_SHP_REGISTER);
    else if (strcmp(path, "LOCAL@Unload") == 0)
        clipstill_register(PROTOCOL_TYPE_SHP_UNREGISTER);
}

static int proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    fmem_proc(msg, ax, bx, dx);
    switch (msg) {
    case MSG_REDRAW:
        if (is_room_dirty)
            draw_room();
        is_room_dirty = false;
        return 0;
    case LMSG_FMLOAD: is_room_dirty = true; return 0;
    case LMSG_BTNSEL: button(Text(ax)); return 0;
    case LMSG_FFCRNTCHANGE:
    case LMSG_FFLISTCHANGE:
    case LMSG_FFCHKCHNAGE: enable_keys(); return 0;
    default: return 0;
    }
}

static int open_or_leave(int on, uint32_t)
{
    fmem_drop();
    is_room_dirty = on != 0;
    if (on)
        enable_keys();
    return 0;
}

const PC_TBL pc_fmem_clipstill_load = {.proc_func = proc, .create_func = open_or_leave};
