#include "a_ff.h"
#include "a_ba.h"
#include "a_ff_private.h"
#include "bus.h"
#include "global.h"
#include "message.h"
#include "page.h"
#include "pane_search.h"
#include "scrollbar.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

FF_STATE ff;

namespace
{
// Where a page was left.
struct FF_LastInfo {
    uint32_t page = 0;
    char path[ELEMENT_PATH_SIZE] = "";
    char selected_name[ELEMENT_NAME_SIZE] = "";
    int selected_type = ELEMENT_TYPE_NONE;
};
constexpr int PAGES = 16; // that have a file folder
constexpr int PUSHED_MS = 150;
} // namespace

static FF_LastInfo last_info[PAGES][FF_AREAS];
static uint32_t PageOpen = 0; // whose tables the areas have

static FM2_FILE_AREA* area_of(int index)
{
    return index >= 0 && index < FF_AREAS && ff.area[index].parts.enable ? &ff.area[index]
                                                                         : nullptr;
}

// --- The window on the list ---

static int top_max(const FM2_FILE_AREA& a)
{
    return std::max(0, ff_rows(a) - a.parts.v_num);
}

static void show_position(int index)
{
    const FM2_FILE_AREA& a = ff.area[index];
    (void)SB_SetPositionRedraw(index, a.top, a.parts.v_num, std::max(1, ff_rows(a)));
}

static void set_top(int index, int row)
{
    FM2_FILE_AREA& a = ff.area[index];
    const int top = std::clamp(row, 0, top_max(a));
    a.file_list.redrawall |= top != a.top;
    a.top = top;
    show_position(index);
}

static void adjust_file_area_top_line(int index)
{
    FM2_FILE_AREA& a = ff.area[index];
    const int selected = a.file_list.selected_idx;
    int top = a.top;
    if (selected >= 0) {
        const int row = selected / a.parts.h_num;
        top = std::clamp(top, row - a.parts.v_num + 1, row);
    }
    set_top(index, top);
}

static void create_bar(int index)
{
    const Rect g = ff_grid(ff.area[index].parts);
    (void)CreateScrollBar(index, g.x2 + 4, g.y1, g.y2 - g.y1 + 1);
    show_position(index);
}

// --- Selection ---

static void redraw_cell(FM2_FILE_LIST& list, int n)
{
    if (n >= 0 && n < list.rec_num)
        list.cell[n]->redraw = true;
}

static void select_cell(int index, int n)
{
    FM2_FILE_LIST& list = ff.area[index].file_list;
    if (list.selected_idx == n)
        return;
    redraw_cell(list, list.selected_idx);
    redraw_cell(list, n);
    list.selected_idx = n;
    SendMessage(LMSG_FFSELCHANGE, index, 0, 0, 0);
}

static void check_all(int index, bool on)
{
    FM2_FILE_LIST& list = ff.area[index].file_list;
    for (int n = 0; n < list.rec_num; n++)
        list.cell[n]->select = on;
    list.redrawall = true;
    SendMessage(LMSG_FFCHKCHNAGE, index, 0, 0, 0);
}

// The lamp of "ALL" says what the checks are.
static void keep_all_lamp(int index)
{
    FM2_FILE_AREA& a = ff.area[index];
    if (a.select_mode == SELECT_MODE_OFF)
        return;
    const int mode = is_all_element_selected(a.file_list) ? SELECT_MODE_ALL : SELECT_MODE_SELECT;
    a.file_list.redrawall |= mode != a.select_mode;
    a.select_mode = mode;
}

static void toggle_check(int index, int n)
{
    FM2_FILE& cell = *ff.area[index].file_list.cell[n];
    cell.select = !cell.select;
    cell.redraw = true;
    keep_all_lamp(index);
    SendMessage(LMSG_FFCHKCHNAGE, index, 0, 0, 0);
}

// --- Where an area stands ---

static void show_folder(int index)
{
    FM2_FILE_AREA& a = ff.area[index];
    a.select_mode = SELECT_MODE_OFF;
    ff_list_update(index);
    show_position(index);
    SendMessage(LMSG_FFCRNTCHANGE, index, 0, 0, 0);
}

int FF_ChangeDirectory(int index, const char* directory)
{
    FM2_FILE_AREA* const a = area_of(index);
    if (!a || !directory)
        return -1;
    const CURRENT_INFO before = a->current;
    if (FMCtrl3_ChangeDirectory(&a->current, directory) != 0)
        return -1;
    if (strcmp(before.path, a->current.path) != 0)
        show_folder(index);
    return 0;
}

// The folder button of a depth, 0 the root. The one of the folder itself does nothing.
static void folder_button_sel(int index, int depth)
{
    static constexpr const char* ways[] = {"", "..", "../..", "../../.."};
    const int up = ff_depth(ff.area[index]) - depth;
    if (up <= 0)
        return;
    if (depth == 0 || up >= int(std::size(ways)) || FF_ChangeDirectory(index, ways[up]) != 0)
        (void)FF_ChangeDirectory(index, "/");
}

// Its folder has gone: the nearest one above that is there.
static void leave_lost_folder(int index)
{
    FM2_FILE_AREA& a = ff.area[index];
    while (!FMCtrl3_GetCurrent(&a.current)) {
        char* const slash = strrchr(a.current.path + 1, '/');
        if (!slash || slash[1] == '\0') {
            FMCtrl3_InitCurrentInfo(&a.current);
            break;
        }
        *slash = '\0';
    }
    show_folder(index);
}

// --- The place that a page remembers ---

static FF_LastInfo* last_info_of(uint32_t page)
{
    for (auto& row : last_info)
        if (row[0].page == page)
            return row;
    for (auto& row : last_info)
        if (row[0].page == 0)
            return row;
    return last_info[PAGES - 1];
}

static void Save_FF_LastInfo()
{
    FF_LastInfo* const row = last_info_of(PageOpen);
    for (int i = 0; i < FF_AREAS; i++) {
        const FM2_FILE_AREA& a = ff.area[i];
        row[i] = {.page = PageOpen};
        CopyText(row[i].path, a.current.path);
        if (a.file_list.selected_idx < 0)
            continue;
        const ELEMENT& e = a.file_list.cell[a.file_list.selected_idx]->element;
        CopyText(row[i].selected_name, e.name);
        row[i].selected_type = e.type;
    }
}

static void Load_FF_LastInfo(int index)
{
    const FF_LastInfo& last = last_info_of(PageOpen)[index];
    FM2_FILE_AREA& a = ff.area[index];
    const bool is_known = last.page == PageOpen;
    FMCtrl3_InitCurrentInfo(&a.current);
    if (is_known && last.path[0])
        (void)FMCtrl3_ChangeDirectory(&a.current, last.path);
    ff_list_update(index);
    if (!is_known)
        return;
    ELEMENT e = {.type = last.selected_type};
    CopyText(e.name, last.selected_name);
    if (strcmp(last.path, a.current.path) == 0)
        a.file_list.selected_idx = ff_list_place(a.file_list, e);
}

// --- Opening and closing a page ---

static void free_areas()
{
    for (FM2_FILE_AREA& a : ff.area) {
        ff_list_free_all(a.file_list);
        a = {};
    }
    ff.finding = -1;
}

static void create_area(const PARTS_FILE_AREA& parts, int index)
{
    if (!parts.enable || parts.h_num < 1 || parts.v_num < 1 || parts.h_gap < FF_CELL_MIN)
        return;
    ff.area[index].parts = parts;
    Load_FF_LastInfo(index);
    create_bar(index);
    adjust_file_area_top_line(index);
    ff.area[index].file_list.redrawall = true;
}

int FF_Create(const FF_TBL* table, uint32_t)
{
    if (PageOpen)
        Save_FF_LastInfo();
    if (ff.finding >= 0)
        PaneSearch_Close();
    for (int i = 0; i < FF_AREAS; i++)
        if (ff.area[i].parts.enable)
            (void)CloseScrollBar(i);
    free_areas();
    PageOpen = table ? GL_NowPage : 0;
    if (!table)
        return 1;
    for (int i = 0; i < FF_AREAS; i++)
        create_area(table->area[i], i);
    return 0;
}

// --- Changes of the catalogue ---

static void tell_list(int index)
{
    show_position(index);
    keep_all_lamp(index);
    SendMessage(LMSG_FFLISTCHANGE, index, ff.area[index].file_list.rec_num, 0, 0);
}

static void remove_cell(int index, int n)
{
    FM2_FILE_LIST& list = ff.area[index].file_list;
    const bool was_selected = list.selected_idx == n;
    ff_list_remove(list, n);
    set_top(index, ff.area[index].top);
    tell_list(index);
    if (was_selected)
        SendMessage(LMSG_FFSELCHANGE, index, 0, 0, 0);
}

static void element_changed(int index, const ELEMENT& e)
{
    FM2_FILE_AREA& a = ff.area[index];
    const int n = ff_list_place(a.file_list, e);
    if (n >= 0 && !ff_fits(a.parts, e)) {
        remove_cell(index, n);
    } else if (n >= 0) {
        a.file_list.cell[n]->element = e;
        a.file_list.cell[n]->redraw = true;
        if (n == a.file_list.selected_idx)
            SendMessage(LMSG_FFSELCHANGE, index, 0, 0, 0);
    } else if (ff_fits(a.parts, e) && ff_list_insert(a.file_list, e)) {
        tell_list(index);
    }
}

static void thumbnail_changed(int index, const ELEMENT& e, int frame)
{
    FM2_FILE_LIST& list = ff.area[index].file_list;
    const int n = frame == FMCtrl3_MidFrame(e) ? ff_list_place(list, e) : -1;
    if (n < 0)
        return;
    ff_drop_surface(*list.cell[n]);
    list.cell[n]->redraw = true;
}

static void change_in(int index, int kind, const ELEMENT& e, int frame)
{
    FM2_FILE_AREA& a = ff.area[index];
    if (!ff_list_is_current_child(a, e)) {
        if (kind == FMCTRL_MSG_ELEMENT_DELETE && e.type == ELEMENT_TYPE_FOLDER &&
            !FMCtrl3_GetCurrent(&a.current))
            leave_lost_folder(index);
        return;
    }
    switch (kind) {
    case FMCTRL_MSG_ELEMENT_INSERT:
    case FMCTRL_MSG_ELEMENT_NOTIFY: element_changed(index, e); return;
    case FMCTRL_MSG_ELEMENT_DELETE:
        if (const int n = ff_list_place(a.file_list, e); n >= 0)
            remove_cell(index, n);
        return;
    case FMCTRL_MSG_THUMBNAIL_RECV:
    case FMCTRL_MSG_THUMBNAIL_CHANGE: thumbnail_changed(index, e, frame); return;
    default: return;
    }
}

// The place stays: after a loss of the hub its folder comes back.
static void clear_area(int index)
{
    FM2_FILE_AREA& a = ff.area[index];
    ff_list_free_all(a.file_list);
    a.top = 0;
    a.found[0] = '\0';
    ff_list_update(index); // one of the two tables may have stayed
    tell_list(index);
    SendMessage(LMSG_FFSELCHANGE, index, 0, 0, 0);
    SendMessage(LMSG_FFCHKCHNAGE, index, 0, 0, 0);
}

static void fmctrl_change(int kind, const ELEMENT* e, int frame)
{
    for (int i = 0; i < FF_AREAS; i++) {
        if (!area_of(i))
            continue;
        if (kind == FMCTRL_MSG_TALBE_CLEAR)
            clear_area(i);
        else if (e)
            change_in(i, kind, *e, frame);
    }
}

// --- Find ---

// "/root/NEWS/OPENING" to the folder that it lies in.
static bool go_to_parent(int index, const ELEMENT& e)
{
    FM2_FILE_AREA& a = ff.area[index];
    if (ff_list_is_current_child(a, e))
        return true;
    const char* const behind_root = e.full_path + 1 + strlen(ELEMENT_ROOT);
    return FF_ChangeDirectory(index, behind_root[0] ? behind_root : "/") == 0 ||
           FF_ChangeDirectory(index, "/") == 0;
}

static void mark_found(int index, const ELEMENT& e)
{
    FM2_FILE_LIST& list = ff.area[index].file_list;
    redraw_cell(list, list.found_idx);
    list.found_idx = ff_list_place(list, e);
    select_cell(index, list.found_idx);
    redraw_cell(list, list.found_idx);
    adjust_file_area_top_line(index);
}

int FF_Find(int index, const char* text, SEARCH_DIR dir)
{
    FM2_FILE_AREA* const a = area_of(index);
    if (!a || !text || !*text)
        return -1;
    SEARCH_CONFIG config = {.type = ELEMENT_TYPE_ALL,
                            .place = a->parts.exist_place,
                            .is_pair = a->parts.pair_mode != 0};
    CopyText(config.text, text);
    if (a->found[0])
        config.start = FMCtrl3_FindPath(nullptr, a->found_type, a->found);
    const ELEMENT_LIST* const node = FMCtrl3_FindName(dir, &config);
    if (!node || !node->element.full_path[0])
        return -1;
    const ELEMENT e = node->element; // the page may act on the change of folder
    if (!go_to_parent(index, e))
        return -1;
    CopyText(a->found, e.full_name);
    a->found_type = e.type;
    mark_found(index, e);
    return 0;
}

static void find_exec(SEARCH_DIR dir)
{
    const FM2_FILE_AREA* const a = area_of(ff.finding);
    if (a)
        (void)FF_Find(ff.finding, a->find_text, dir);
}

static void find_set()
{
    if (FM2_FILE_AREA* const a = area_of(ff.finding))
        a->found[0] = '\0';
}

static void open_find(int index)
{
    ff.finding = index;
    (void)PaneSearch_Open(
        {.text = &ff.area[index].find_text, .begin = find_set, .step = find_exec});
}

// --- Touch ---

int FF_SetSelectMode(int index, int mode)
{
    FM2_FILE_AREA* const a = area_of(index);
    if (!a || mode < SELECT_MODE_OFF || mode > SELECT_MODE_ALL)
        return -1;
    a->select_mode = mode;
    a->file_list.redrawall = true;
    if (mode != SELECT_MODE_SELECT)
        check_all(index, mode == SELECT_MODE_ALL);
    return 0;
}

static void press_key(int index, int key)
{
    const int mode = ff.area[index].select_mode;
    switch (key) {
    case FF_KEY_FIND:
        ff.area[index].find_pushed = PUSHED_MS;
        ff_redraw(index, 0); // now: the pane keeps repaints from the page
        open_find(index);
        return;
    case FF_KEY_SELECT:
        (void)FF_SetSelectMode(index,
                               mode == SELECT_MODE_OFF ? SELECT_MODE_SELECT : SELECT_MODE_OFF);
        return;
    case FF_KEY_ALL:
        (void)FF_SetSelectMode(index, mode == SELECT_MODE_ALL ? SELECT_MODE_OFF : SELECT_MODE_ALL);
        keep_all_lamp(index); // an empty folder has nothing to check
        return;
    default: return;
    }
}

static void press_cell(int index, int n)
{
    const FM2_FILE_AREA& a = ff.area[index];
    const FM2_FILE& cell = *a.file_list.cell[n];
    if (a.select_mode != SELECT_MODE_OFF)
        toggle_check(index, n);
    else if (n == a.file_list.selected_idx && cell.file_type == OBJECT_TYPE_FOLDER)
        (void)FF_ChangeDirectory(index, cell.element.name);
    else
        select_cell(index, n);
}

static bool press_area(int index, int x, int y)
{
    const FM2_FILE_AREA& a = ff.area[index];
    const Rect g = ff_grid(a.parts);
    if (Inside(g, x, y)) {
        const int n = (a.top + (y - g.y1) / FF_CELL_H) * a.parts.h_num + (x - g.x1) / a.parts.h_gap;
        if (n < a.file_list.rec_num)
            press_cell(index, n);
        return true;
    }
    for (int depth = 0; depth <= ff_depth(a); depth++)
        if (Inside(ff_folder_button(a.parts, depth), x, y)) {
            folder_button_sel(index, depth);
            return true;
        }
    Rect r;
    for (int key = 0; key < FF_KEYS; key++)
        if (ff_key_rect(a.parts, key, &r) && Inside(r, x, y)) {
            press_key(index, key);
            return true;
        }
    return false;
}

static void press(int x, int y)
{
    if (BA_IsDefaultButton())
        return;
    for (int i = 0; i < FF_AREAS; i++)
        if (area_of(i) && press_area(i, x, y))
            return;
}

static void scroll(int kind, int bar, int step_or_row)
{
    if (const FM2_FILE_AREA* const a = area_of(bar))
        set_top(bar, kind == SB_THUMB ? step_or_row : a->top + step_or_row);
}

int FF_ConvPosForWheel(int* x, int* y, int button)
{
    for (int i = 0; i < FF_AREAS; i++)
        if (area_of(i) && SB_ConvPosForWheel(i, ff_grid(ff.area[i].parts), x, y, button))
            return 1;
    return 0;
}

int FF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    switch (msg) {
    case MSG_REDRAW:
        for (int i = 0; i < FF_AREAS; i++)
            if (area_of(i))
                ff_redraw(i, int(ax));
        return 0;
    case MSG_PRESS: press(int(ax), int(bx)); return 0;
    case LMSG_SBSEL: scroll(int(ax), int(bx), int(cx)); return 0;
    case LMSG_PANEBTNSEL:
    case LMSG_PANEQUIT:
        if (ff.finding >= 0)
            PaneSearch_Proc(msg, ax);
        return 0;
    case LMSG_FMCTRL3CHANGE:
        fmctrl_change(int(ax), reinterpret_cast<const ELEMENT*>(bx), int(dx));
        return 0;
    default: return 0;
    }
}

// --- Questions ---

const char* FF_GetCurrentPath(int index)
{
    const FM2_FILE_AREA* const a = area_of(index);
    return a ? a->current.path : "";
}

int FF_GetNBMax(int index)
{
    const FM2_FILE_AREA* const a = area_of(index);
    return a ? top_max(*a) : 0;
}

int FF_GetNBVar(int index)
{
    const FM2_FILE_AREA* const a = area_of(index);
    return a ? a->top : 0;
}

int FF_SetScrollBarPosition(int index, int row)
{
    if (!area_of(index))
        return -1;
    set_top(index, row);
    return 0;
}

int FF_MoveFileArea(int index, int x, int y)
{
    FM2_FILE_AREA* const a = area_of(index);
    if (!a)
        return -1;
    a->parts.pos = {x, y};
    a->file_list.redrawall = true;
    (void)CloseScrollBar(index);
    create_bar(index);
    return 0;
}

static void to_object(const ELEMENT& e, FF_OBJECT* object)
{
    *object = {.type = e.type == ELEMENT_TYPE_FOLDER ? OBJECT_TYPE_FOLDER : OBJECT_TYPE_FILE,
               .pair = e.is_pair ? OBJECT_PAIR_PAIR : OBJECT_PAIR_SINGLE,
               .status = e.exist & OBJECT_STATUS_SSDMEMOY,
               .frame = e.duration,
               .format = e.format};
    CopyText(object->create_time, e.create_time);
    CopyText(object->name, e.name);
}

static bool is_of_type(const ELEMENT& e, int type)
{
    return type == OBJECT_TYPE_ALL ||
           (type == OBJECT_TYPE_FOLDER) == (e.type == ELEMENT_TYPE_FOLDER);
}

// Write and count; list may be null.
static int children(const ELEMENT_LIST* folder, const PARTS_FILE_AREA& filter, int type,
                    bool recursive, FF_OBJECT* list, int max)
{
    int count = 0;
    for (const ELEMENT_LIST* e = FMCtrl3_GetChild(folder, nullptr); e;
         e = FMCtrl3_GetChild(folder, e)) {
        if (is_of_type(e->element, type) && ff_fits(filter, e->element)) {
            if (list && count >= max)
                return count;
            if (list)
                to_object(e->element, &list[count]);
            count++;
        }
        if (recursive && e->element.type == ELEMENT_TYPE_FOLDER)
            count += children(e, filter, type, true, list ? list + count : nullptr, max - count);
    }
    return count;
}

int FF_GetChildObjectNum(const char* path, int type, int place, int pair, bool recursive)
{
    const ELEMENT_LIST* const folder =
        path ? FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FOLDER, path) : nullptr;
    const PARTS_FILE_AREA filter = {.exist_place = place, .pair_mode = pair};
    return folder ? children(folder, filter, type, recursive, nullptr, 0) : -1;
}

int FF_GetChildObjectList(const char* path, int type, int place, int pair, bool recursive,
                          FF_OBJECT* list, int max)
{
    const ELEMENT_LIST* const folder =
        path ? FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FOLDER, path) : nullptr;
    const PARTS_FILE_AREA filter = {.exist_place = place, .pair_mode = pair};
    return folder && list ? children(folder, filter, type, recursive, list, max) : 0;
}

int FF_GetCheckedObjectNum(int index)
{
    const FM2_FILE_AREA* const a = area_of(index);
    int count = 0;
    for (int n = 0; a && n < a->file_list.rec_num; n++)
        count += a->file_list.cell[n]->select;
    return count;
}

int FF_GetCheckedClipNum(int index)
{
    const FM2_FILE_AREA* const a = area_of(index);
    int count = 0;
    for (int n = 0; a && n < a->file_list.rec_num; n++)
        count +=
            a->file_list.cell[n]->select && a->file_list.cell[n]->file_type == OBJECT_TYPE_FILE;
    return count;
}

int FF_GetCheckedObjectList(int index, FF_OBJECT* list, int max)
{
    const FM2_FILE_AREA* const a = area_of(index);
    int count = 0;
    for (int n = 0; a && list && n < a->file_list.rec_num && count < max; n++)
        if (a->file_list.cell[n]->select)
            to_object(a->file_list.cell[n]->element, &list[count++]);
    return count;
}

int FF_GetSelectedObject(int index, FF_OBJECT* object)
{
    const FM2_FILE_AREA* const a = area_of(index);
    if (!a || !object || a->file_list.selected_idx < 0)
        return -1;
    to_object(a->file_list.cell[a->file_list.selected_idx]->element, object);
    return 0;
}

int FF_GetFoundObject(int index, const char* path, int type, FF_OBJECT* object)
{
    static constexpr int element_types[] = {ELEMENT_TYPE_FOLDER, ELEMENT_TYPE_FILE,
                                            ELEMENT_TYPE_ALL}; // by OBJECT_TYPE_
    const FM2_FILE_AREA* const a = area_of(index);
    if (!a || !path || !object || type < OBJECT_TYPE_FOLDER || type > OBJECT_TYPE_ALL)
        return -1;
    const ELEMENT_LIST* const e = FMCtrl3_FindPath(&a->current, element_types[type], path);
    if (!e)
        return -1;
    to_object(e->element, object);
    return 0;
}

void FF_ClearCheckedObjectList(int index)
{
    if (area_of(index))
        (void)FF_SetSelectMode(index, SELECT_MODE_OFF);
}
