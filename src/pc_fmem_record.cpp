// The Record and the Freeze page of the clip store. What is recorded gets a name that is free in
// the folder shown: the last one used, counted up. Each half of the outputs has a processor of its
// own.
#include "a_bt.h"
#include "a_ff.h"
#include "a_fm.h"
#include "a_nb.h"
#include "a_pc.h"
#include "fmctrl3.h"
#include "message.h"
#include "netio.h"
#include "page_table/fmem_clip.h"
#include "pc_fmem.h"
#include "text.h"
#include "timecode.h"
#include "window.h"
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "safeguards.h"

namespace
{
constexpr int NAME_CHARS = ELEMENT_NAME_SIZE - 1;
constexpr int LENGTH_DEFAULT = 300; // frames
constexpr int COUNT_DIGITS = 4;     // that a name without a number gets
enum : int { FREEZE_FRAME = 0, FREEZE_FIELD = 1 };
} // namespace

static char ClipStillRec_DefaultFname[ELEMENT_NAME_SIZE] = "img0000"; // the last name that was used
static struct {
    bool is_freeze = false;
    char name[ELEMENT_NAME_SIZE] = ""; // of the next recording
    int length = LENGTH_DEFAULT;
    int unit = FREEZE_FRAME;
    bool was_recording = false;
    bool redraw = false;
} rec; // valid from create(1) to create(0)

static int proc_of(int output)
{
    return output / (FM_OUTPUTS / FM_PROCESSORS);
}

// --- Names ---

static bool is_taken(const char* name)
{
    FF_OBJECT object;
    return FF_GetFoundObject(0, name, OBJECT_TYPE_FILE, &object) == 0;
}

// The name with its number set, cut in front of it so that all fits.
static void numbered(char (&name)[ELEMENT_NAME_SIZE], const char* head, int digits, long number)
{
    char tail[24];
    PrintText(tail, "%0*ld", digits, number);
    strncpy_secu(name, head, sizeof name, size_t(NAME_CHARS) - strlen(tail));
    AppendText(name, tail);
}

static void clipstill_record_getdefaultfname(char (&name)[ELEMENT_NAME_SIZE])
{
    constexpr int DIGITS_MAX = 9; // a longer number counts in its last ones
    char head[ELEMENT_NAME_SIZE];
    CopyText(head, ClipStillRec_DefaultFname);
    size_t length = strlen(head);
    int digits = 0;
    while (length > 0 && digits < DIGITS_MAX && isdigit((unsigned char)head[length - 1])) {
        length--;
        digits++;
    }
    long number = digits ? strtol(head + length, nullptr, 10) : 0;
    head[length] = '\0';
    if (digits == 0)
        digits = COUNT_DIGITS;
    do
        numbered(name, head, digits, number++);
    while (is_taken(name));
}

static void next_name()
{
    clipstill_record_getdefaultfname(rec.name);
    rec.redraw = true;
}

static int name_entered(const char* text)
{
    char name[ELEMENT_NAME_SIZE];
    CopyText(name, text);
    if (!StrFileName(name))
        return 0;
    CopyText(ClipStillRec_DefaultFname, name);
    if (is_taken(name))
        next_name();
    else
        CopyText(rec.name, name);
    rec.redraw = true;
    return 0;
}

static void ask_name()
{
    (void)CreateWindow(WINDOW_KEYBOARD, rec.is_freeze ? "Freeze Name" : "Rec Name",
                       {.value = rec.name, .input_max = NAME_CHARS, .ok_text = name_entered});
}

// --- Keys and line ---

static const FM_RECORD& record_of_selected()
{
    return *FM_GetRecord(proc_of(FM_GetSelect()));
}

// An output whose name is not told counts as the one that is selected.
static bool is_recorded()
{
    const FM_RECORD& r = record_of_selected();
    return r.is_running && (r.output < 0 || r.output == FM_GetSelect());
}

static void enable_keys()
{
    BT_SetDisable(BTN_FMEM_REC, record_of_selected().is_running && !is_recorded());
    BT_SetDisable(BTN_FMEM_REC_STOP, !is_recorded());
    BT_SetStatus(BTN_FMEM_REC, is_recorded() ? BT_ON : BT_OFF);
    BT_SetDisable(BTN_FMEM_FREEZE, record_of_selected().is_running);
    BT_SetDisable(BTN_FMEM_FREEZE_TIME, record_of_selected().is_running);
    BT_SetStatus(BTN_FMEM_FRAME, rec.unit == FREEZE_FRAME ? BT_ON : BT_OFF);
    BT_SetStatus(BTN_FMEM_FIELD, rec.unit == FREEZE_FIELD ? BT_ON : BT_OFF);
    rec.redraw = true;
}

static void draw_line()
{
    char text[128], length[16];
    CopyText(length, Frame2TC_SWR(rec.length, 3, 0));
    if (!rec.redraw)
        return;
    rec.redraw = false;
    if (is_recorded())
        PrintText(text, "%s    recorded %s", rec.name,
                  Frame2TC_SWR(record_of_selected().frame, 3, 0));
    else if (rec.is_freeze)
        PrintText(text, "%s", rec.name);
    else
        PrintText(text, "%s    length %s", rec.name, length);
    fmem_line(text);
}

// --- Recording ---

static void put_name()
{
    char full[ELEMENT_PATH_SIZE], value[ELEMENT_PATH_SIZE + sizeof FM2_Ext_Str];
    fmem_name_in(full, FF_GetCurrentPath(0), rec.name);
    PrintText(value, "%s%s", fmem_server_path(full), FM2_Ext_Str);
    fmem_put("Record@Freeze/Rec Name", value);
    CopyText(ClipStillRec_DefaultFname, rec.name);
}

static void put_record(int on)
{
    const int output = FM_GetSelect();
    (void)Net_SendCommandFormat("put  %sRecord@%s#%d,%d,%d,%d", FM_TREE, FM_GetFMOutStr(output),
                                proc_of(output) + 1, FM_IsPair(), rec.length, on);
}

static void clipstill_record_start()
{
    if (record_of_selected().is_running)
        return;
    put_name();
    put_record(1);
}

static void record_stop()
{
    put_record(0);
}

static void freeze()
{
    put_name();
    fmem_put_number("Record@Freeze", rec.unit);
}

// A name of its own that says when, in the processor's place.
static void freeze_time_name()
{
    const time_t now = time(nullptr);
    tm t = {};
    if (!localtime_r(&now, &t))
        return;
    (void)Net_SendCommandFormat("put %sRecord@Freeze/Rec Name@PROC1#%d,%04d%02d%02d%02d%02d%02d_%d",
                                FM_TREE, FM_IsPair(), t.tm_year + 1900, t.tm_mon + 1, t.tm_mday,
                                t.tm_hour, t.tm_min, t.tm_sec, FM_GetSelect() + 1);
    (void)Net_SendCommandFormat("put %sRecord@Freeze@PROC1#%d,%d", FM_TREE, FM_IsPair(), rec.unit);
}

static void choose_frame()
{
    rec.unit = FREEZE_FRAME;
    enable_keys();
}

static void choose_field()
{
    rec.unit = FREEZE_FIELD;
    enable_keys();
}

static constexpr FMEM_KEY keys[] = {
    {"LOCAL@Clip/Still@Rec Name", ask_name},
    {"LOCAL@Clip/Still@Record", clipstill_record_start},
    {"LOCAL@Clip/Still@Record Stop", record_stop},
    {"LOCAL@Clip/Still@Freeze", freeze},
    {"LOCAL@Clip/Still@Freeze Time Name", freeze_time_name},
    {"LOCAL@Clip/Still@Through", fmem_through},
    {"LOCAL@Frame Mem@Clip/Still@Record@Freeze@Frame", choose_frame},
    {"LOCAL@Frame Mem@Clip/Still@Record@Freeze@Field", choose_field},
};

static void length_entered(int id, int frames)
{
    if (id != NB_FMEM_LENGTH || rec.is_freeze)
        return;
    rec.length = std::clamp(frames, 1, ELEMENT_FRAMES_MAX);
    rec.redraw = true;
    (void)Net_SendCommandFormat("put  %sRecord@Rec Len@%s#%d,%d", FM_TREE,
                                FM_GetFMOutStr(FM_GetSelect()), FM_IsPair(), rec.length);
}

// --- What the server tells ---

// The last number of "0,300", or "300".
static void rec_len_tly(const char* value)
{
    const char* const comma = strrchr(value, ',');
    const long frames = strtol(comma ? comma + 1 : value, nullptr, 10);
    if (frames < 1 || frames > ELEMENT_FRAMES_MAX)
        return;
    rec.length = int(frames);
    rec.redraw = true;
    (void)NB_SetVar(NB_FMEM_LENGTH, rec.length);
}

// What freeze_time_name makes: nothing that one would count on from.
static bool is_time_name(const char* name)
{
    constexpr size_t TIME_DIGITS = 14;
    return strspn(name, "0123456789") == TIME_DIGITS && name[TIME_DIGITS] == '_';
}

// The name that was used last, on whatever panel: "0,/NEWS/img0003.SFH", or without the flag.
static void rec_name_tly(const char* value)
{
    char path[ELEMENT_PATH_SIZE];
    const char* const comma = strrchr(value, ',');
    FMCtrl3_CopyPath(path, comma ? comma + 1 : value, int(sizeof path));
    const char* const slash = strrchr(path, '/');
    const char* const name = slash ? slash + 1 : path;
    if (!name[0] || strlen(name) >= ELEMENT_NAME_SIZE || is_time_name(name))
        return;
    CopyText(ClipStillRec_DefaultFname, name);
    if (!is_recorded())
        next_name();
}

static void tally(const char* path, const char* value)
{
    static constexpr struct {
        const char* path; // below FM_TREE, of the processor of the selected output
        void (*take)(const char* value);
    } tallies[] = {{"Rec Len", rec_len_tly}, {"Freeze/Rec Name", rec_name_tly}};
    if (!path || !value || !BeginsWith(path, FM_TREE))
        return;
    for (const auto& t : tallies) {
        char own[64];
        PrintText(own, "%sRecord@%s@%s", FM_TREE, t.path, FM_GetFMProcStr(proc_of(FM_GetSelect())));
        if (strcmp(path, own) == 0)
            t.take(value);
    }
}

static void output_changed()
{
    const bool is_now = is_recorded();
    if (rec.was_recording && !is_now)
        next_name();
    rec.was_recording = is_now;
    enable_keys();
}

static void subscribe(const char* verb)
{
    for (int n = 0; n < FM_PROCESSORS; n++)
        for (const char* path : {"Rec Len", "Freeze/Rec Name"})
            (void)Net_SendCommandFormat("%s %sRecord@%s@%s", verb, FM_TREE, path,
                                        FM_GetFMProcStr(n));
}

static int proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    fmem_proc(msg, ax, bx, dx);
    switch (msg) {
    case MSG_REDRAW: draw_line(); return 0;
    case MSG_TALLY: tally(Text(ax), Text(bx)); return 0;
    case LMSG_BTNSEL: fmem_button(keys, Text(ax)); return 0;
    case LMSG_KNOBVAR: length_entered(int(ax), int(bx)); return 0;
    case LMSG_FMCLIPPLAY:
    case LMSG_FMCLIPCHANGE:
    case LMSG_FMPAIRCHANGE: output_changed(); return 0;
    case LMSG_FMFRAMECHANGE: rec.redraw = true; return 0;
    case LMSG_FFCRNTCHANGE:
    case LMSG_FFLISTCHANGE:
        if (!is_recorded())
            next_name();
        return 0;
    default: return 0;
    }
}

static int create(int on, bool is_freeze)
{
    fmem_drop();
    if (on) {
        const int length = rec.length;
        rec = {.is_freeze = is_freeze, .length = length};
        subscribe("add");
        fmem_read_outputs("Output Status");
        for (int n = 0; n < FM_PROCESSORS; n++)
            (void)Net_SendCommandFormat("read %sRecord@%s", FM_TREE, FM_GetFMProcStr(n));
        next_name();
        (void)NB_SetVar(NB_FMEM_LENGTH, rec.length);
        rec.was_recording = is_recorded();
        enable_keys();
    } else {
        subscribe("remove");
    }
    return 0;
}

static int open_record(int on, uint32_t)
{
    return create(on, false);
}

static int open_freeze(int on, uint32_t)
{
    return create(on, true);
}

const PC_TBL pc_fmem_clipstill_record = {.proc_func = proc, .create_func = open_record};
const PC_TBL pc_fmem_clipstill_record_freeze = {.proc_func = proc, .create_func = open_freeze};
