// The Recall page of the clip store: what is selected in the folder goes to the selected output.
#include "a_bt.h"
#include "a_ff.h"
#include "a_fm.h"
#include "a_pc.h"
#include "message.h"
#include "netio.h"
#include "page_table/fmem_clip.h"
#include "pc_fmem.h"
#include "text.h"
#include <cstring>

#include "safeguards.h"

static bool selected_clip(FF_OBJECT* object)
{
    return FF_GetSelectedObject(0, object) == 0 && object->type == OBJECT_TYPE_FILE;
}

static void enable_keys()
{
    FF_OBJECT object;
    BT_SetDisable(BTN_FMEM_RECALL, !selected_clip(&object));
}

// A clip that is recalled again to its output stays at its frame.
static int frame_of(int output, const char* name)
{
    FM_OBJECT now;
    const bool is_there = FM_GetRecalledObject(output, &now) == 0 && strcmp(now.name, name) == 0;
    return is_there ? FM_GetPlay(output)->frame : 0;
}

static void recall_exec()
{
    enum : int { STILL = 0, CLIP = 1 };
    FF_OBJECT object;
    char name[ELEMENT_PATH_SIZE];
    if (!selected_clip(&object))
        return;
    fmem_name_in(name, FF_GetCurrentPath(0), object.name);
    const int output = FM_GetSelect();
    const char* const path = fmem_server_path(name);
    (void)Net_SendCommandFormat("put %sRecall@%s#%d,%d,%d,%d,%s%s", FM_TREE, FM_GetFMOutStr(output),
                                FM_IsPair(), object.mode, object.frame > 1 ? CLIP : STILL,
                                frame_of(output, name), path, FM2_Ext_Str);
    (void)Net_SendCommandFormat("put Macro@Clip Recall@%s#%d,%s%s", FM_GetFMOutStr(output),
                                FM_IsPair(), path, FM2_Ext_Str);
}

static constexpr FMEM_KEY keys[] = {
    {"LOCAL@Clip/Still@Recall", recall_exec},
    {"LOCAL@Clip/Still@Through", fmem_through},
    {"LOCAL@Clip/Still@Black", fmem_black},
};

static int proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    fmem_proc(msg, ax, bx, dx);
    switch (msg) {
    case LMSG_BTNSEL: fmem_button(keys, Text(ax)); return 0;
    case LMSG_FFSELCHANGE:
    case LMSG_FFCRNTCHANGE: enable_keys(); return 0;
    default: return 0;
    }
}

static int open_or_leave(int on, uint32_t)
{
    fmem_drop();
    if (on)
        enable_keys();
    return 0;
}

const PC_TBL pc_fmem_clipstill_recall = {.proc_func = proc, .create_func = open_or_leave};
