#include "a_fm.h"
#include "a_ba.h"
#include "a_fm_private.h"
#include "bus.h"
#include "command.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "text.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

FM_MEM fm;

static constexpr int STATUS_VALUES = 2; // of a tally: the state and a path
static constexpr int PUSHED_MS = 150;

// --- Names ---

static const char* name_of(const char* head, int number, int count)
{
    static char text[16];
    text[0] = '\0';
    if (number >= 0 && number < count)
        PrintText(text, "%s%d", head, number + 1);
    return text;
}

const char* FM_GetFMOutStr(int fmout_num)
{
    return name_of("FM", fmout_num, FM_OUTPUTS);
}

const char* FM_GetFMNumberStr(int fmout_num)
{
    return name_of("", fmout_num, FM_OUTPUTS);
}

const char* FM_GetFMProcStr(int proc_num)
{
    return name_of("PROC", proc_num, FM_PROCESSORS);
}

const char* FM_GetFMOutPairStr(int pair_num)
{
    static char text[16];
    text[0] = '\0';
    if (pair_num >= 0 && pair_num < FM_PAIRS)
        PrintText(text, "FM%d&%d", pair_num * 2 + 1, pair_num * 2 + 2);
    return text;
}

// --- Queries ---

int FM_GetPairMode(int pair_num)
{
    return pair_num >= 0 && pair_num < FM_PAIRS ? fm.pair_mode[pair_num] : 0;
}

int FM_IsPair()
{
    return FM_GetPairMode(fm.pair);
}

int FM_GetSelectEven()
{
    return fm.pair * 2;
}

int FM_GetSelect()
{
    return FM_GetSelectEven() + (FM_IsPair() ? 0 : fm.second);
}

const FM_PLAY* FM_GetPlay(int n)
{
    return n >= 0 && n < FM_OUTPUTS ? &fm.play[n] : nullptr;
}

const FM_RECORD* FM_GetRecord(int n)
{
    return n >= 0 && n < FM_PROCESSORS ? &fm.record[n] : nullptr;
}

int fm_status(int n)
{
    for (const FM_RECORD& r : fm.record)
        if (r.is_running && r.output == n)
            return FMOUT_STATUS_REC;
    const int status = fm.output[n].status;
    return status == FMOUT_STATUS_FREEZE_RECALL && fm.play[n].is_running ? FMOUT_STATUS_PLAY
                                                                         : status;
}

int FM_GetRecalledObject(int n, FM_OBJECT* object)
{
    if (n < 0 || n >= FM_OUTPUTS || !object)
        return -1;
    const OutputStatus& o = fm.output[n];
    *object = {.pair = o.is_pair, .frame = o.duration, .format = o.format};
    object->fmout_status = fm_status(n);
    if (o.status != FMOUT_STATUS_FREEZE_RECALL)
        return 0;
    CopyText(object->name, o.path);
    SDL_Surface* const s = fm_surface(n);
    (o.duration > 1 ? object->thumbnail_small : object->thumbnail_full) = s;
    return 0;
}

static bool shows(int n, const char* full_name)
{
    const OutputStatus& o = fm.output[n];
    const size_t length = strlen(full_name);
    return o.status == FMOUT_STATUS_FREEZE_RECALL && strncmp(o.path, full_name, length) == 0 &&
           (o.path[length] == '\0' || o.path[length] == '/');
}

int FM_FindNextUser(const char* full_name, bool busy_only, int after)
{
    for (int n = after + 1; full_name && n < FM_OUTPUTS; n++) {
        const int status = fm_status(n);
        const bool is_busy = status == FMOUT_STATUS_PLAY || status == FMOUT_STATUS_REC;
        if (shows(n, full_name) && (is_busy || !busy_only))
            return n;
    }
    return -1;
}

int FM_FindUser(const char* full_name, bool busy_only)
{
    return FM_FindNextUser(full_name, busy_only, -1);
}

// --- What stands to be painted and told ---

static void repaint(int n)
{
    if (n / 2 == fm.pair)
        fm.redraw[n % 2] = true;
}

static void tell(int msg, int n, int value = 0)
{
    if (n == FM_GetSelect())
        SendMessage(msg, value, 0, 0, 0);
}

static void select_output(int pair, int second)
{
    const int before = FM_GetSelect();
    fm.redraw_all |= pair != fm.pair;
    for (OutputStatus& o : fm.output)
        if (pair != fm.pair)
            fm_drop_surface(o); // what is in view holds a picture, nothing else
    fm.pair = pair;
    fm.second = second;
    fm.redraw[0] = fm.redraw[1] = fm.redraw_keys = true;
    if (before != FM_GetSelect())
        SendMessage(LMSG_FMCLIPCHANGE, 0, 0, 0, 0);
}

// --- Thumbnails ---

int fm_shown_frame(int n)
{
    const OutputStatus& o = fm.output[n];
    return o.duration > 1 ? std::clamp(fm.play[n].frame, 0, o.duration - 1) : 0;
}

void fm_drop_surface(OutputStatus& o)
{
    if (o.surface)
        SDL_FreeSurface(o.surface);
    o.surface = nullptr;
    o.surface_frame = -1;
}

SDL_Surface* fm_surface(int n)
{
    OutputStatus& o = fm.output[n];
    const int frame = fm_shown_frame(n);
    if (!o.is_known || !o.thumbnail || o.surface_frame == frame)
        return o.surface;
    ELEMENT_LIST* const e = FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FILE, o.path);
    SDL_Surface* const next = e ? FMCtrl3_GetThumbnail(&e->element, frame) : nullptr;
    // While a frame is not on the drive yet the last one stands: a hole would flicker.
    if (!next && o.surface && o.duration > 1) {
        o.surface_frame = frame;
        return o.surface;
    }
    fm_drop_surface(o);
    o.surface = next;
    o.surface_frame = frame;
    return next;
}

// --- The catalogue ---

static void forget_element(OutputStatus& o)
{
    fm_drop_surface(o);
    o.is_known = false;
    o.create_time[0] = '\0';
    o.duration = o.thumbnail = o.is_pair = o.format = 0;
}

static void take_element(OutputStatus& o)
{
    forget_element(o);
    const ELEMENT_LIST* const found = FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FILE, o.path);
    if (!found)
        return;
    const ELEMENT& e = found->element;
    o.is_known = true;
    CopyText(o.create_time, e.create_time);
    o.duration = e.duration;
    o.thumbnail = e.thumbnail;
    o.is_pair = e.is_pair;
    o.format = e.format;
}

static bool is_same_element(const OutputStatus& o)
{
    const ELEMENT_LIST* const found = FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FILE, o.path);
    if (!found)
        return !o.is_known;
    const ELEMENT& e = found->element;
    return o.is_known && strcmp(e.create_time, o.create_time) == 0 && e.duration == o.duration &&
           e.thumbnail == o.thumbnail && e.is_pair == o.is_pair && e.format == o.format;
}

static void element_changed(int kind, const ELEMENT* e, int frame)
{
    for (int n = 0; n < FM_OUTPUTS; n++) {
        OutputStatus& o = fm.output[n];
        const bool is_it =
            !e || (e->type == ELEMENT_TYPE_FILE && strcmp(e->full_name, o.path) == 0);
        if (o.status != FMOUT_STATUS_FREEZE_RECALL || !is_it)
            continue;
        if (kind == FMCTRL_MSG_THUMBNAIL_RECV) {
            if (frame != fm_shown_frame(n))
                continue;
            Log_Output(LOG_TRACE, MOD_PAGE,
                       "FM_Proc() FMCTRL_MSG_THUMBNAIL_RECV fmout=%d path=%s duration=%d frame=%d",
                       n, o.path, o.duration, frame);
            o.surface_frame = -1; // the picture stands until the next one is there
        } else if (kind == FMCTRL_MSG_THUMBNAIL_CHANGE || !is_same_element(o)) {
            take_element(o);
            tell(LMSG_FMCLIPCHANGE, n);
        }
        repaint(n);
    }
}

// --- Tallies ---

// "/NEWS/OPENING.SFH" as the catalogue names it.
static void full_name_of(char (&name)[ELEMENT_PATH_SIZE], const char* path)
{
    char clean[ELEMENT_PATH_SIZE];
    FMCtrl3_CopyPath(clean, path, int(sizeof clean));
    const char* p = clean + (clean[0] == '/');
    if (BeginsWith(p, "root/"))
        p += strlen("root/");
    PrintText(name, "/%s/%s", ELEMENT_ROOT, p);
}

// Frames and small numbers; what is beyond them is cut.
static int split_numbers(const char* value, int* number, int most)
{
    int count = 0;
    for (const char* p = value; p && count < most; p = strchr(p, ',')) {
        p += *p == ',';
        number[count++] = int(std::clamp(strtol(p, nullptr, 10), 0L, long(ELEMENT_FRAMES_MAX)));
    }
    return count;
}

static void output_status_tly(int n, const char* value)
{
    const char* const comma = strchr(value, ',');
    char* end = nullptr;
    const long state = strtol(value, &end, 10);
    if (!comma || end != comma || strchr(comma + 1, ',') || state < 0 || state > STATUS_VALUES)
        return;
    OutputStatus& o = fm.output[n];
    if (state < STATUS_VALUES) {
        const int status = state == 0 ? FMOUT_STATUS_BLACK : FMOUT_STATUS_THROUGH;
        if (o.status == status)
            return;
        o.status = status;
        o.path[0] = '\0';
        forget_element(o);
    } else {
        if (comma[1] == '\0')
            return;
        char path[ELEMENT_PATH_SIZE];
        full_name_of(path, comma + 1);
        if (o.status == FMOUT_STATUS_FREEZE_RECALL && strcmp(o.path, path) == 0 &&
            is_same_element(o))
            return;
        o.status = FMOUT_STATUS_FREEZE_RECALL;
        CopyText(o.path, path);
        take_element(o);
    }
    Log_Output(10, MOD_PAGE, "output_status_tly() OutputStatus[%d].status=%d", n, o.status);
    repaint(n);
    tell(LMSG_FMCLIPCHANGE, n);
}

static void play_tly(int n, const char* value)
{
    int v[4] = {};
    (void)split_numbers(value, v, 4);
    FM_PLAY& p = fm.play[n];
    const FM_PLAY before = p;
    p = {v[0], v[1], v[2], v[3]};
    if (before.is_running != p.is_running || before.frame != p.frame)
        repaint(n);
    if (before.is_running != p.is_running)
        tell(LMSG_FMCLIPPLAY, n);
    if (before.frame != p.frame)
        tell(LMSG_FMFRAMECHANGE, n, p.frame);
}

static void record_tly(int proc, const char* value)
{
    int v[4] = {};
    const int count = split_numbers(value, v, 4);
    FM_RECORD& r = fm.record[proc];
    const FM_RECORD before = r;
    const bool has_output = count > 3 && v[3] >= 1 && v[3] <= FM_OUTPUTS;
    r = {v[0], v[1], v[2], has_output ? v[3] - 1 : -1};
    for (const int n : {before.output, r.output})
        if (n >= 0)
            repaint(n);
    if (before.is_running != r.is_running || before.output != r.output)
        SendMessage(LMSG_FMCLIPPLAY, 0, 0, 0, 0);
    else if (before.frame != r.frame)
        SendMessage(LMSG_FMFRAMECHANGE, r.frame, 0, 0, 0);
}

static void ancillary_tly(int n, const char* value)
{
    int v[2] = {};
    (void)split_numbers(value, v, 2);
    for (int i = 0; i < 2; i++)
        fm.output[n].ancillary[i] = v[i] != 0;
    fm.redraw_keys |= n == FM_GetSelect();
}

static void pair_tly(int n, const char* value)
{
    const int mode = StrICmp(value, "true") == 0;
    const int pair = n / 2;
    if (fm.pair_mode[pair] == mode)
        return;
    const int before = FM_GetSelect();
    fm.pair_mode[pair] = mode;
    fm.redraw_keys = fm.redraw[0] = fm.redraw[1] = true;
    SendMessage(LMSG_FMPAIRCHANGE, 0, 0, 0, 0);
    if (before != FM_GetSelect())
        SendMessage(LMSG_FMCLIPCHANGE, 0, 0, 0, 0);
}

static void out_pair_select_tly(int n, const char*)
{
    if (n / 2 != fm.pair)
        select_output(n / 2, 0);
}

namespace
{
struct FM_TALLY {
    const char* prefix; // below FM_TREE
    int count;          // numbers that may stand behind it
    void (*take)(int n, const char* value);
};
} // namespace

static constexpr FM_TALLY tallies[] = {
    {"Output Status@FM", FM_OUTPUTS, output_status_tly}, {"Pair@FM", FM_OUTPUTS, pair_tly},
    {"Ancillary Enable@FM", FM_OUTPUTS, ancillary_tly},  {"Play@FM", FM_OUTPUTS, play_tly},
    {"Record@PROC", FM_PROCESSORS, record_tly},
};
static constexpr char OUT_PAIR_SELECT[] = "Out Pair Select";

// The number behind a prefix, from 0; -1 when it is out of range. "1&2" counts as its first one.
static int number_behind(const char* text, int count)
{
    const long n = strtol(text, nullptr, 10);
    return n >= 1 && n <= count ? int(n) - 1 : -1;
}

static void tally(const char* path, const char* value)
{
    if (!path || !value || !BeginsWith(path, FM_TREE))
        return;
    path += strlen(FM_TREE);
    if (strcmp(path, OUT_PAIR_SELECT) == 0) {
        const int n = BeginsWith(value, "FM") ? number_behind(value + 2, FM_OUTPUTS) : -1;
        if (n >= 0)
            out_pair_select_tly(n, value);
        return;
    }
    for (const FM_TALLY& t : tallies) {
        if (!BeginsWith(path, t.prefix))
            continue;
        const int n = number_behind(path + strlen(t.prefix), t.count);
        if (n >= 0)
            t.take(n, value);
        return;
    }
}

// --- Opening and closing a page ---

static void subscribe(const char* verb)
{
    for (int pair = 0; pair < FM_PAIRS; pair++)
        (void)Net_SendCommandFormat("%s %sPair@%s", verb, FM_TREE, FM_GetFMOutPairStr(pair));
    (void)Net_SendCommandFormat("%s %s%s", verb, FM_TREE, OUT_PAIR_SELECT);
    for (const char* path : {"Ancillary Enable", "Output Status", "Play"})
        for (int n = 0; n < FM_OUTPUTS; n++)
            (void)Net_SendCommandFormat("%s %s%s@FM%d", verb, FM_TREE, path, n + 1);
    for (int n = 0; n < FM_PROCESSORS; n++)
        (void)Net_SendCommandFormat("%s %sRecord@PROC%d", verb, FM_TREE, n + 1);
}

int FM_Create(const FM_TBL* table, uint32_t)
{
    if (fm.tbl.enable)
        subscribe("remove");
    for (OutputStatus& o : fm.output)
        fm_drop_surface(o);
    if (fm.popup)
        (void)Pane_Quit(fm.popup);
    fm.popup = 0;
    fm.tbl = table ? *table : FM_TBL{};
    fm.redraw_all = fm.tbl.enable;
    std::fill_n(fm.pushed, FM_KEYS, 0);
    if (!fm.tbl.enable)
        return 1;
    // The catalogue may have changed while no page looked.
    for (OutputStatus& o : fm.output)
        if (o.status == FMOUT_STATUS_FREEZE_RECALL)
            take_element(o);
    subscribe("add");
    return 0;
}

// --- Touch ---

static void outselect_button_sel()
{
    static constexpr int COLUMNS = 2;
    static char names[FM_PAIRS][16];
    BTNSEL cells[FM_PAIRS];
    for (int i = 0; i < FM_PAIRS; i++) {
        CopyText(names[i], FM_GetFMOutPairStr(i));
        cells[i] = {.id = i + 1, .caption = names[i], .select = i == fm.pair};
    }
    fm.popup = FMOutPopup_Create(FM_PAIRS / COLUMNS, COLUMNS, cells);
}

static void outselect_chosen(int id)
{
    fm.popup = 0;
    if (id >= 1 && id <= FM_PAIRS && id - 1 != fm.pair)
        (void)Net_SendCommandFormat("put %s%s#%s", FM_TREE, OUT_PAIR_SELECT,
                                    FM_GetFMOutPairStr(id - 1));
}

static void pair_button_sel()
{
    if (!fm.tbl.pair_button.disable)
        (void)Net_SendCommandFormat("put %sPair@%s#%s", FM_TREE, FM_GetFMOutPairStr(fm.pair),
                                    FM_IsPair() ? "false" : "true");
}

// One key for both kinds of ancillary data: on unless both are.
static void ancillary_button_sel()
{
    const int n = FM_GetSelect();
    const int* const flags = fm.output[n].ancillary;
    const int on = !(flags[0] && flags[1]);
    for (int i = n; i <= n + FM_IsPair(); i++)
        (void)Net_SendCommandFormat("put %sAncillary Enable@FM%d#%d,%d", FM_TREE, i + 1, on, on);
}

static int press(int x, int y)
{
    static void (*const press_key[FM_KEYS])() = {outselect_button_sel, pair_button_sel,
                                                 ancillary_button_sel};
    if (BA_IsDefaultButton())
        return 0;
    for (int second = 0; second < 2; second++)
        if (fm.tbl.fmout_button.enable && Inside(fm_box(second), x, y)) {
            select_output(fm.pair, second);
            return 1;
        }
    Rect r;
    for (int key = 0; key < FM_KEYS; key++)
        if (fm_key_rect(key, &r) && Inside(r, x, y)) {
            fm.pushed[key] = PUSHED_MS;
            fm.redraw_keys = true;
            fm_redraw(0); // now: what it opens would keep repaints from the page
            press_key[key]();
            return 1;
        }
    return 0;
}

int FM_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    if (!fm.tbl.enable)
        return 0;
    switch (msg) {
    case MSG_TALLY: tally(Text(ax), Text(bx)); return 0;
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_REDRAW: fm_redraw(int(ax)); return 0;
    case LMSG_FMCTRL3CHANGE:
        element_changed(int(ax), reinterpret_cast<const ELEMENT*>(bx), int(dx));
        return 0;
    case LMSG_PANEQUIT:
        if (fm.popup && int(ax) == fm.popup)
            outselect_chosen(int(bx));
        return 0;
    default: return 0;
    }
}
