#include "bus.h"
#include "fmctrl_private.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "tally_value.h"
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "safeguards.h"

// A name of M or S, a word and four digits is a frame of the clip of that word. Every frame is also
// a still of its own, so that a pair of frames is known as a pair. A register takes its side of the
// still of its name; one of the same name that was there before waits until that place is free
// again. A clip has the frames that hold the place in their still, and it is in the list while one
// of its sides has two frames or more. All this follows from the names alone, in whatever order the
// registers were told.

STILL_LIST StillList;
CLIP_LIST ClipList;

static char clip_text[FMEM_NAME_SIZE]; // what FMCtrl_GetClipName gave last
static CLIP_LIST all_clips; // by name, also those of single frames, which the list does not show
static int still_room = 0;
static int clip_room = 0;
static int all_clips_room = 0;

constexpr int FRAME_DIGITS = 4;

// Room for one more in an array that GDL_Realloc keeps. False, and all as it was, when memory is
// out.
template <typename T> static bool make_room(T*& rec, int used, int& room)
{
    if (used < room)
        return true;
    const int more = room ? room * 2 : 4;
    T* moved = static_cast<T*>(GDL_Realloc(rec, size_t(more) * sizeof(T)));
    if (!moved) {
        printf("alloc error\n");
        return false;
    }
    rec = moved;
    room = more;
    return true;
}

template <typename T> static void insert_at(T* rec, int& used, int at, T value)
{
    memmove(rec + at + 1, rec + at, size_t(used - at) * sizeof(T));
    rec[at] = value;
    used++;
}

template <typename T> static void remove_at(T* rec, int& used, int at)
{
    used--;
    memmove(rec + at, rec + at + 1, size_t(used - at) * sizeof(T));
}

// The place of the first of count entries that is not below; compare(i) is as strcmp's result of
// entry i and what is sought.
template <typename Compare> static int lower_place(int count, Compare compare)
{
    int low = 0;
    while (low < count) {
        const int middle = low + (count - low) / 2;
        if (compare(middle) < 0)
            low = middle + 1;
        else
            count = middle;
    }
    return low;
}

// --- Stills ---

static const char* still_name(const STILL& s)
{
    return fm_bare_name(fm_register(s.main_reg_id >= 0 ? s.main_reg_id : s.sub_reg_id)->name);
}

static int still_place(const char* bare)
{
    return lower_place(StillList.rec_num,
                       [=](int i) { return strcmp(still_name(*StillList.rec[i]), bare); });
}

// The still of that name, or null.
static STILL* still_find(const char* bare, int* at)
{
    *at = still_place(bare);
    if (*at >= StillList.rec_num || !Same(still_name(*StillList.rec[*at]), bare))
        return nullptr;
    return StillList.rec[*at];
}

static int& still_slot(STILL& s, const char* name)
{
    return fm_is_main_name(name) ? s.main_reg_id : s.sub_reg_id;
}

static STILL* still_insert(int at, int folder_id)
{
    if (!make_room(StillList.rec, StillList.rec_num, still_room))
        return nullptr;
    STILL* s = static_cast<STILL*>(GDL_Malloc(sizeof(STILL)));
    if (!s) {
        printf("alloc error\n");
        return nullptr;
    }
    *s = STILL{};
    s->folder_id = folder_id;
    insert_at(StillList.rec, StillList.rec_num, at, s);
    return s;
}

static void still_remove(int at)
{
    GDL_Free(StillList.rec[at]);
    remove_at(StillList.rec, StillList.rec_num, at);
}

// --- Clips ---

namespace
{
// A clip's name inside a register's.
struct ClipName {
    const char* text = "";
    int length = 0;
};

// One side of a clip.
struct Side {
    int*& reg_id;
    int& num;
    int& room;
    int& thumb_id;
};
} // namespace

static bool is_frame(const char* name)
{
    return FMCtrl_DivClipName(name, nullptr, nullptr, 0, 0) == 0;
}

static ClipName clip_name_in(const char* frame)
{
    return {frame + 1, int(strlen(frame)) - 1 - FRAME_DIGITS};
}

static const char* frame_number(int index)
{
    const char* name = fm_register(index)->name;
    return name + strlen(name) - FRAME_DIGITS;
}

static Side side_of(CLIP& c, bool is_main)
{
    if (is_main)
        return {c.main_reg_id, c.main_num, c.main_room, c.main_thumb_id};
    return {c.sub_reg_id, c.sub_num, c.sub_room, c.sub_thumb_id};
}

static int first_frame(const CLIP& c)
{
    return c.main_num > 0 ? c.main_reg_id[0] : c.sub_reg_id[0];
}

static ClipName clip_name(const CLIP& c)
{
    return clip_name_in(fm_register(first_frame(c))->name);
}

static int compare(const ClipName& a, const ClipName& b)
{
    const int order = memcmp(a.text, b.text, size_t(std::min(a.length, b.length)));
    return order ? order : a.length - b.length;
}

static int clip_place(const CLIP_LIST& list, const ClipName& name)
{
    return lower_place(list.rec_num, [&](int i) { return compare(clip_name(*list.rec[i]), name); });
}

static CLIP* clip_find(const CLIP_LIST& list, const ClipName& name, int* at)
{
    *at = clip_place(list, name);
    if (*at >= list.rec_num || compare(clip_name(*list.rec[*at]), name) != 0)
        return nullptr;
    return list.rec[*at];
}

static void side_middle(const Side& side)
{
    side.thumb_id = side.num / 2;
}

static int side_place(const Side& side, const char* frame)
{
    return lower_place(side.num,
                       [&](int i) { return strcmp(frame_number(side.reg_id[i]), frame); });
}

static bool update_side(const Side& side, int index)
{
    if (!make_room(side.reg_id, side.num, side.room))
        return false;
    insert_at(side.reg_id, side.num, side_place(side, frame_number(index)), index);
    side_middle(side);
    return true;
}

static void clip_free(CLIP* c)
{
    GDL_Free(c->main_reg_id);
    GDL_Free(c->sub_reg_id);
    GDL_Free(c);
}

// Into the list: what the server knows of it is asked for, by the prefix of the register that made
// it a clip.
static void clip_show(CLIP& c, int by_register)
{
    if (!make_room(ClipList.rec, ClipList.rec_num, clip_room))
        return;
    const ClipName name = clip_name(c);
    insert_at(ClipList.rec, ClipList.rec_num, clip_place(ClipList, name), &c);
    c.is_shown = true;
    c.ancillary = ANCILLARY_UNKNOWN;
    c.folder_id = fm_register(first_frame(c))->folder_id;
    if (SYS_FmemV6)
        Net_SendCommandFormat("put Frame Mem@Clip@Ancillary Playback Enable#0,%c%.*s",
                              fm_register(by_register)->name[0], name.length, name.text);
}

static bool is_clip(const CLIP& c)
{
    return c.main_num > 1 || c.sub_num > 1;
}

static CLIP* clip_new(int at)
{
    if (!make_room(all_clips.rec, all_clips.rec_num, all_clips_room))
        return nullptr;
    CLIP* c = static_cast<CLIP*>(GDL_Malloc(sizeof(CLIP)));
    if (!c) {
        printf("alloc error\n");
        return nullptr;
    }
    *c = CLIP{};
    insert_at(all_clips.rec, all_clips.rec_num, at, c);
    return c;
}

static void add_clip(int index)
{
    FMEMREG& r = *fm_register(index);
    if (!is_frame(r.name))
        return;
    int at = 0;
    CLIP* c = clip_find(all_clips, clip_name_in(r.name), &at);
    const bool is_new = !c;
    if (is_new)
        c = clip_new(at);
    if (!c)
        return;
    if (!update_side(side_of(*c, fm_is_main_name(r.name)), index)) {
        if (is_new) {
            clip_free(c);
            remove_at(all_clips.rec, all_clips.rec_num, at);
        }
        return;
    }
    r.clip = c;
    if (is_clip(*c) && !c->is_shown)
        clip_show(*c, index);
}

static void remove_clip(int index)
{
    FMEMREG& r = *fm_register(index);
    CLIP* c = r.clip;
    if (!c)
        return;
    // Found by its name, which it has from its frames: first found, then emptied.
    const ClipName name = clip_name_in(r.name);
    const int in_all = clip_place(all_clips, name);
    const int in_list = c->is_shown ? clip_place(ClipList, name) : -1;
    const Side side = side_of(*c, fm_is_main_name(r.name));
    remove_at(side.reg_id, side.num, side_place(side, frame_number(index)));
    side_middle(side);
    r.clip = nullptr;
    if (c->is_shown && !is_clip(*c)) {
        remove_at(ClipList.rec, ClipList.rec_num, in_list);
        c->is_shown = false;
    }
    if (c->main_num + c->sub_num == 0) {
        clip_free(c);
        remove_at(all_clips.rec, all_clips.rec_num, in_all);
    }
}

// A namesake takes the place of a frame: the clip stays what it is.
static void exchange_frame(int from, int to)
{
    FMEMREG& r = *fm_register(from);
    CLIP* c = r.clip;
    if (!c || !is_frame(fm_register(to)->name)) {
        remove_clip(from);
        add_clip(to);
        return;
    }
    const Side side = side_of(*c, fm_is_main_name(r.name));
    side.reg_id[side_place(side, frame_number(from))] = to;
    r.clip = nullptr;
    fm_register(to)->clip = c;
}

// --- A register comes and goes ---

void fm_list_add(int index)
{
    FMEMREG& r = *fm_register(index);
    int at = 0;
    STILL* s = still_find(fm_bare_name(r.name), &at);
    if (!s)
        s = still_insert(at, r.folder_id);
    if (!s)
        return;
    int& slot = still_slot(*s, r.name);
    const int before = slot;
    slot = index;
    r.holds_slot = true;
    if (before >= 0) {
        fm_register(before)->holds_slot = false;
        exchange_frame(before, index);
    } else {
        add_clip(index);
    }
}

void fm_list_remove(int index)
{
    FMEMREG& r = *fm_register(index);
    if (!r.holds_slot)
        return;
    r.holds_slot = false;
    int at = 0;
    STILL* s = still_find(fm_bare_name(r.name), &at);
    if (!s)
        return;
    const int heir = fm_namesake(index);
    if (heir >= 0) {
        still_slot(*s, r.name) = heir;
        fm_register(heir)->holds_slot = true;
        exchange_frame(index, heir);
        return;
    }
    remove_clip(index);
    still_slot(*s, r.name) = -1;
    if (s->main_reg_id < 0 && s->sub_reg_id < 0)
        still_remove(at);
}

void fm_lists_free()
{
    for (int i = 0; i < StillList.rec_num; i++)
        GDL_Free(StillList.rec[i]);
    GDL_Free(StillList.rec);
    for (int i = 0; i < all_clips.rec_num; i++)
        clip_free(all_clips.rec[i]);
    GDL_Free(all_clips.rec);
    GDL_Free(ClipList.rec);
    StillList = {};
    ClipList = all_clips = {};
    still_room = clip_room = all_clips_room = 0;
}

void fm_list_set_folder(int index)
{
    const FMEMREG& r = *fm_register(index);
    if (!r.holds_slot)
        return;
    int at = 0;
    if (STILL* s = still_find(fm_bare_name(r.name), &at))
        s->folder_id = r.folder_id;
    if (r.clip)
        r.clip->folder_id = r.folder_id;
}

void fm_take_ancillary(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 3) < 3 || !p.v[1][0])
        return;
    const char* name = fm_bare_name(p.v[1]);
    int at = 0;
    CLIP* c = clip_find(ClipList, {name, int(strlen(name))}, &at);
    if (!c)
        return;
    c->ancillary = SwitchOrNumber(p.v[2]);
    SendMessage(LMSG_FMCTRLCHANGE, at, 2, 0, 0);
}

// --- Questions about stills ---

static STILL* still_at(int idx)
{
    return idx >= 0 && idx < StillList.rec_num ? StillList.rec[idx] : nullptr;
}

int FMCtrl_GetStillNum()
{
    return StillList.rec_num;
}

const char* FMCtrl_GetStillName(int idx)
{
    const STILL* s = still_at(idx);
    return s ? still_name(*s) : "";
}

int FMCtrl_IsStillPair(int idx)
{
    return FMCtrl_IsStillMain(idx) && FMCtrl_IsStillSub(idx);
}

int FMCtrl_IsStillMain(int idx)
{
    return FMCtrl_GetStillRegId(idx, 0) >= 0;
}

int FMCtrl_IsStillSub(int idx)
{
    return FMCtrl_GetStillRegId(idx, 1) >= 0;
}

int FMCtrl_GetStillRegId(int idx, int is_sub)
{
    const STILL* s = still_at(idx);
    return !s ? -1 : is_sub ? s->sub_reg_id : s->main_reg_id;
}

int FMCtrl_GetStillIdx(const char* reg_name)
{
    if (!reg_name || !*reg_name)
        return -1;
    int at = 0;
    STILL* s = still_find(fm_bare_name(reg_name), &at);
    return s && still_slot(*s, reg_name) >= 0 ? at : -1;
}

int FMCtrl_IsStillExtended(int idx)
{
    const STILL* s = still_at(idx);
    return s && (fm_is_extended(s->main_reg_id) || fm_is_extended(s->sub_reg_id));
}

// The clip in the list that a still is a frame of, by its main side first; null.
static const CLIP* still_clip(int idx)
{
    for (int is_sub : {0, 1}) {
        const FMEMREG* r = fm_register(FMCtrl_GetStillRegId(idx, is_sub));
        if (r && r->clip && r->clip->is_shown)
            return r->clip;
    }
    return nullptr;
}

int FMCtrl_IsStillFrame(int idx)
{
    return still_clip(idx) != nullptr;
}

int FMCtrl_GetStillAncillary(int idx)
{
    const CLIP* c = still_clip(idx);
    return c ? c->ancillary : 0;
}

const char* FMCtrl_GetStillFolderName(int idx)
{
    const STILL* s = still_at(idx);
    const FOLDER* folder = s ? FMCtrl_GetFolder(FMCtrl_GetIsFolderIdx(s->folder_id)) : nullptr;
    return folder ? folder->name : "";
}

// --- Questions about clips ---

static CLIP* clip_at(int idx)
{
    return idx >= 0 && idx < ClipList.rec_num ? ClipList.rec[idx] : nullptr;
}

int FMCtrl_GetClipNum2()
{
    return ClipList.rec_num;
}

const char* FMCtrl_GetClipName(int idx)
{
    const CLIP* c = clip_at(idx);
    if (!c)
        return "";
    const ClipName name = clip_name(*c);
    PrintText(clip_text, "%.*s", name.length, name.text);
    return clip_text;
}

int FMCtrl_GetClipFrameNum(int idx, int is_sub)
{
    CLIP* c = clip_at(idx);
    return c ? side_of(*c, !is_sub).num : 0;
}

int FMCtrl_IsClipMain(int idx)
{
    return FMCtrl_GetClipFrameNum(idx, 0) > 0;
}

int FMCtrl_IsClipSub(int idx)
{
    return FMCtrl_GetClipFrameNum(idx, 1) > 0;
}

static int frame_at(const Side& side, long long at)
{
    return at >= 0 && at < side.num ? side.reg_id[at] : -1;
}

int FMCtrl_GetClipRegId(int idx, int is_sub, int d)
{
    CLIP* c = clip_at(idx);
    if (!c)
        return -1;
    const Side side = side_of(*c, !is_sub);
    return frame_at(side, 1ll * side.thumb_id + d);
}

int FMCtrl_MoveClipFrame(int idx, int is_sub, int d)
{
    CLIP* c = clip_at(idx);
    if (!c)
        return -1;
    const Side side = side_of(*c, !is_sub);
    const long long last = std::max(side.num - 1, 0);
    side.thumb_id = int(std::clamp(1ll * side.thumb_id + d, 0ll, last));
    return 0;
}

int FMCtrl_GetClipFrameIdx(int idx, int is_sub)
{
    CLIP* c = clip_at(idx);
    return c ? side_of(*c, !is_sub).thumb_id : -1;
}

int FMCtrl_GetClipMidRegId(int idx, int is_sub)
{
    CLIP* c = clip_at(idx);
    if (!c)
        return -1;
    const Side side = side_of(*c, !is_sub);
    return frame_at(side, side.num / 2);
}

int FMCtrl_GetClipMidRegId2(int index)
{
    const FMEMREG* r = fm_register(index);
    if (!r || !r->clip || !r->clip->is_shown)
        return -1;
    const Side side = side_of(*r->clip, fm_is_main_name(r->name));
    return frame_at(side, side.num / 2);
}

int FMCtrl_GetClipFirstRegId(int idx, int is_sub)
{
    CLIP* c = clip_at(idx);
    return c ? frame_at(side_of(*c, !is_sub), 0) : -1;
}

int FMCtrl_IsExistClip(const char* name)
{
    int at = 0;
    return name && clip_find(ClipList, {name, int(strlen(name))}, &at) != nullptr;
}

int FMCtrl_GetClipIdx(const char* reg_name)
{
    int at = 0;
    if (!reg_name || !is_frame(reg_name) || !clip_find(ClipList, clip_name_in(reg_name), &at))
        return -1;
    return at;
}

int FMCtrl_IsClipExtended(int idx)
{
    const CLIP* c = clip_at(idx);
    return c && (std::any_of(c->main_reg_id, c->main_reg_id + c->main_num, fm_is_extended) ||
                 std::any_of(c->sub_reg_id, c->sub_reg_id + c->sub_num, fm_is_extended));
}

int FMCtrl_GetClipAncillary(int idx)
{
    const CLIP* c = clip_at(idx);
    return c ? c->ancillary : 0;
}

int FMCtrl_GetClipFolderId(int idx)
{
    const CLIP* c = clip_at(idx);
    return c ? c->folder_id : -1;
}

// --- Questions about what a folder holds ---

int FMCtrl_GetFolderAllStillNum(int folder_id)
{
    int n = 0;
    for (int i = 0; i < StillList.rec_num; i++)
        n += StillList.rec[i]->folder_id == folder_id;
    return n;
}

int FMCtrl_GetFolderStillNum(int folder_id)
{
    int n = 0;
    for (int i = 0; i < StillList.rec_num; i++)
        n += StillList.rec[i]->folder_id == folder_id && !FMCtrl_IsStillFrame(i);
    return n;
}

int FMCtrl_GetFolderClipNum(int folder_id)
{
    int n = 0;
    for (int i = 0; i < ClipList.rec_num; i++)
        n += ClipList.rec[i]->folder_id == folder_id;
    return n;
}

int FMCtrl_GetFolderExtClipNum(int folder_id)
{
    int n = 0;
    for (int i = 0; i < ClipList.rec_num; i++)
        n += ClipList.rec[i]->folder_id == folder_id && FMCtrl_IsClipExtended(i);
    return n;
}
