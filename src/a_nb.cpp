#include "a_nb.h"
#include "a_ba.h"
#include "a_nb_private.h"
#include "command.h"
#include "message.h"
#include "page.h"
#include "setup_index.h"
#include "text.h"
#include "timecode.h"
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

const NB_TBL NB_Non[] = {NB_END};
char NB_Entry_Mode[32] = "";
char GL_KnobSetVar[64] = "";
NumberBoxes nb;

// --- Questions about a box ---

constexpr char LOCAL_PREFIX[] = "LOCAL@";
constexpr int LOCAL_LEN = sizeof LOCAL_PREFIX - 1;

NbPath nb_path(const NB_MEM& b)
{
    if (!b.cmd[0])
        return NbPath::None;
    if (BeginsWith(b.cmd, LOCAL_PREFIX) && BeginsWith(b.cmd + LOCAL_LEN, NB_KNOB_PATH))
        return NbPath::Diff;
    if (IsLocal(b.cmd))
        return NbPath::Local;
    return BeginsWith(b.cmd, NB_KNOB_PATH) ? NbPath::Knob : NbPath::Server;
}

const char* nb_wire_path(const NB_MEM& b)
{
    switch (nb_path(b)) {
    case NbPath::Knob:
    case NbPath::Server: return b.cmd;
    case NbPath::Diff: return b.cmd + LOCAL_LEN;
    default: return nullptr;
    }
}

NB_MEM* nb_find(int id)
{
    for (NB_MEM& b : nb_boxes())
        if (b.id == id)
            return &b;
    return nullptr;
}

NB_MEM* nb_box_in(int slot)
{
    return nb_find(nb.Layer << 4 | slot);
}

void nb_mark(int id)
{
    if (NB_MEM* b = nb_find(id))
        b->redraw = 1;
}

bool nb_refuses()
{
    if (!SetupIndex_IsLocked(GL_NowPage))
        return false;
    BA_FlashSetupLock();
    return true;
}

int nb_round(double v)
{
    return int(std::clamp(std::round(v), double(INT_MIN), double(INT_MAX)));
}

static const char* timecode_text(int frames)
{
    constexpr int FIELDS = 3;
    const int hour = 3600 * GetFrameNum_SWR(0);
    const bool has_hours = frames >= hour || frames <= -hour;
    return Frame2TC_SWR(frames, has_hours ? FIELDS + 1 : FIELDS, 0);
}

double nb_value_of_text(const NB_MEM& b, const char* text)
{
    return b.type == NB_TC ? TC2Frame_SWR(text, 0) : strtod(text, nullptr);
}

void NB_Text(const NB_MEM& box, double var, char* text, int size)
{
    switch (box.type) {
    case NB_1: snprintf(text, size_t(size), "%.1f", var); break;
    case NB_2: snprintf(text, size_t(size), "%.2f", var); break;
    case NB_4: snprintf(text, size_t(size), "%.4f", var); break;
    case NB_INT: snprintf(text, size_t(size), "%d", nb_round(var)); break;
    case NB_TC: snprintf(text, size_t(size), "%s", timecode_text(nb_round(var))); break;
    default: snprintf(text, size_t(size), "%s", ""); break;
    }
}

// --- Messages ---

int NB_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    switch (msg) {
    case MSG_REDRAW: return nb_redraw(int(ax));
    case MSG_PRESS: return nb_press(int(ax), int(bx), int(cx));
    case MSG_RELEASE: return nb_release();
    case MSG_TALLY: return nb_tally(Text(ax), Text(bx), uint32_t(cx));
    case MSG_DRAG: return nb_drag(int(ax), cx != 0, dx != 0);
    case MSG_WHEELUP: return nb_wheel_up(int(ax), int(bx));
    case MSG_WHEELDOWN: return nb_wheel_down(int(ax), int(bx));
    default: return 0;
    }
}

int NB_Follows(const char* path)
{
    const uint32_t hash = Hash(path);
    for (const NB_MEM& b : nb_boxes())
        if (b.added && b.cmd_hash == hash && strcmp(nb_wire_path(b), path) == 0)
            return 1;
    return 0;
}

// --- For page code ---

int NB_SetVar(int id, double var)
{
    NB_MEM* b = nb_find(id);
    if (!b || !std::isfinite(var))
        return -1;
    b->var = b->dispvar = var;
    b->var_valid = 1;
    b->redraw = 1;
    return 0;
}

int NB_SetDispVar(int id, double var)
{
    NB_MEM* b = nb_find(id);
    if (!b || !std::isfinite(var))
        return -1;
    if (!b->dispvar_enable)
        b->var = var;
    b->dispvar = var;
    b->dispvar_enable = 1;
    b->dispvar_time = NB_FRESH_MS;
    b->var_valid = 1;
    b->redraw = 1;
    return 0;
}

int NB_SetStrVar(int id, const char* text)
{
    NB_MEM* b = nb_find(id);
    if (!b)
        return -1;
    b->str_val = text;
    b->redraw = 1;
    return 0;
}

int NB_InvalidVar(int id)
{
    NB_MEM* b = nb_find(id);
    if (!b)
        return -1;
    b->var = 0;
    b->var_valid = 0;
    b->dispvar_enable = 0; // or its end would bring a value back
    b->redraw = 1;
    return 0;
}

int NB_SetMinMax(int id, double min, double max)
{
    NB_MEM* b = nb_find(id);
    if (!b || !std::isfinite(min) || !std::isfinite(max))
        return -1;
    b->min = min;
    b->max = max;
    return 0;
}

int NB_AddMinMax(int id, double min, double max)
{
    if (NB_SetMinMax(id, min, max) != 0)
        return -1;
    nb_mark(id);
    return 0;
}

int NB_SetCaption(int id, const char* caption)
{
    NB_MEM* b = nb_find(id);
    if (!b)
        return -1;
    b->caption = caption ? caption : "";
    b->redraw = 1;
    return 0;
}

int NB_SetCommand(int id, const char* cmd)
{
    NB_MEM* b = nb_find(id);
    if (!b)
        return -1;
    nb_retarget(*b, cmd, true);
    return 0;
}

int NB_SetCommand_NoAdd(int id, const char* cmd)
{
    NB_MEM* b = nb_find(id);
    if (!b)
        return -1;
    nb_retarget(*b, cmd, false);
    return 0;
}

int NB_SetTitle(const char* tit)
{
    CopyText(nb.Title, tit ? tit : "");
    nb.Title_redraw = 1;
    return 0;
}

const char* NB_GetTitle()
{
    return nb.Title;
}

int NB_GetLayer()
{
    return nb.Layer;
}

int NB_SetSelect(int id)
{
    if (id != 0 && !nb_find(id))
        return -1;
    nb_mark(nb.Select);
    nb_mark(id);
    nb.Select = id;
    GL_KnobSetVar[0] = '\0';
    return 0;
}

int NB_GetKnob_info(const char* knob_key, char* msg, double* var, int msg_size)
{
    if (!knob_key)
        return -1;
    for (const NB_MEM& b : nb_boxes()) {
        if (strcmp(b.caption, knob_key) != 0)
            continue;
        ktr_strncpy(msg, b.cmd, size_t(msg_size));
        *var = nb_shown_var(b);
        return b.id;
    }
    return -1;
}
