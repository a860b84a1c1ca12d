// The elements of the file list in their order, and what the page's lists show of them.
#include "a_fl_private.h"
#include "a_ls.h"
#include "global.h"
#include "memory.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <new>

#include "safeguards.h"

enum : int { COLUMN_ICON, COLUMN_NAME, COLUMN_FRAMES, COLUMN_PAIR, COLUMN_TIME };
constexpr int CLASS_USUAL = 0;
constexpr int CLASS_EMPTY = 1;

// --- The page's list ---

static int page_list(int id)
{
    return id + 1;
}

// By name, and with "Plural" each element: the rows may stand elsewhere afterwards.
static void remember_selected(int id)
{
    const int list = page_list(id);
    const int selected = LS_GetSelected(list, 0);
    const char* const name = selected >= 0 ? LS_GetData(list, selected, COLUMN_NAME) : nullptr;
    CopyText(fl.now[id].selected, name ? name : "");
    for (FL_LIST* node = fl.list[id].head; node; node = node->next)
        node->is_selected = node->row >= 0 && LS_IsSelected(list, node->row, 0) == 1;
}

static void mark_dirty(int id)
{
    if (fl_is_side(id))
        fl.now[id].is_dirty = true;
}

// Before an element goes: the page's list holds pointers to its texts.
static void hide_rows(int id)
{
    if (!fl.is_open || !fl_is_side(id) || fl.now[id].is_hidden)
        return;
    remember_selected(id);
    (void)LS_SetNData(page_list(id), 0); // a page need not have the list
    for (FL_LIST* node = fl.list[id].head; node; node = node->next)
        node->row = -1;
    fl.now[id].is_hidden = fl.now[id].is_dirty = true;
}

// --- Order ---

// Below 0: a stands before b.
static int compare(const ELEMENT& a, const ELEMENT& b)
{
    if (a.type != b.type)
        return a.type == ELEMENT_TYPE_FOLDER ? -1 : 1;
    return strcmp(a.full_name, b.full_name);
}

// How many stand at or before the place of e.
static int elements_up_to(const FL_CHAIN& list, const ELEMENT& e)
{
    int from = 0;
    int to = list.count;
    while (from < to) {
        const int mid = from + (to - from) / 2;
        if (compare(list.at[mid]->file.element, e) <= 0)
            from = mid + 1;
        else
            to = mid;
    }
    return from;
}

FL_LIST* fl_list_find_joint_point(const FL_CHAIN& list, const ELEMENT& e)
{
    const int n = elements_up_to(list, e);
    return n > 0 ? list.at[n - 1] : nullptr;
}

static bool make_room(FL_CHAIN& list)
{
    if (list.count < list.room)
        return true;
    const int room = list.room ? list.room * 2 : 64;
    void* const at = GDL_Realloc(list.at, sizeof(FL_LIST*) * size_t(room));
    if (!at)
        return false;
    list.at = static_cast<FL_LIST**>(at);
    list.room = room;
    return true;
}

static void link_in(FL_CHAIN& list, FL_LIST* node)
{
    const int n = elements_up_to(list, node->file.element);
    FL_LIST* const before = n > 0 ? list.at[n - 1] : nullptr;
    memmove(list.at + n + 1, list.at + n, sizeof(FL_LIST*) * size_t(list.count - n));
    list.at[n] = node;
    node->prev = before;
    node->next = before ? before->next : list.head;
    (node->next ? node->next->prev : list.tail) = node;
    (before ? before->next : list.head) = node;
    list.count++;
}

static void count_element(int id, const FL_LIST* node, int n)
{
    if (fl_is_side(id))
        (node->file.file_type == OBJECT_TYPE_FOLDER ? fl.now[id].folders : fl.now[id].files) += n;
}

FL_LIST* fl_list_insert(int id, const FL_FILE& file)
{
    FL_CHAIN& list = fl.list[id];
    if (list.count >= FL_ROWS || !make_room(list))
        return nullptr;
    void* const room = GDL_Malloc(sizeof(FL_LIST));
    if (!room)
        return nullptr;
    auto* const node = new (room) FL_LIST;
    mark_dirty(id);
    node->file = file;
    link_in(list, node);
    count_element(id, node, 1);
    PrintText(node->frames, "%d", file.element.duration);
    return node;
}

void fl_list_change(int id, FL_LIST* node, const ELEMENT& e)
{
    mark_dirty(id);
    node->file.element = e;
    PrintText(node->frames, "%d", e.duration);
}

void fl_frame_added(int id, FL_LIST* clip)
{
    mark_dirty(id);
    clip->file.element.duration++;
    PrintText(clip->frames, "%d", clip->file.element.duration);
}

// --- Lookup ---

FL_LIST* fl_list_equal(int id, const ELEMENT& e)
{
    FL_LIST* const node = fl_list_find_joint_point(fl.list[id], e);
    return node && compare(node->file.element, e) == 0 ? node : nullptr;
}

FL_LIST* fl_list_of_name(int id, const char* full_name, int type)
{
    for (FL_LIST* node = fl.list[id].head; node; node = node->next)
        if (node->file.element.type == type && strcmp(node->file.element.full_name, full_name) == 0)
            return node;
    return nullptr;
}

FL_LIST* fl_list_at(int id, int index)
{
    return index >= 0 && index < fl.list[id].count ? fl.list[id].at[index] : nullptr;
}

int fl_list_place(int id, const FL_LIST* node)
{
    const FL_CHAIN& list = fl.list[id];
    int n = elements_up_to(list, node->file.element) - 1;
    while (n >= 0 && list.at[n] != node)
        n--; // another one with that name
    return n;
}

// --- Removal ---

void fl_list_remove(int id, FL_LIST* node)
{
    FL_CHAIN& list = fl.list[id];
    const int n = fl_list_place(id, node);
    hide_rows(id);
    memmove(list.at + n, list.at + n + 1, sizeof(FL_LIST*) * size_t(list.count - n - 1));
    if (fl_is_side(id)) {
        auto& now = fl.now[id];
        if (now.clip == node)
            now.clip = nullptr;
        if (now.found == node)
            now.found = nullptr;
    }
    count_element(id, node, -1);
    (node->prev ? node->prev->next : list.head) = node->next;
    (node->next ? node->next->prev : list.tail) = node->prev;
    list.count--;
    GDL_Free(node);
}

void fl_list_free(int id)
{
    FL_CHAIN& list = fl.list[id];
    hide_rows(id);
    for (FL_LIST* node = list.head; node;) {
        FL_LIST* const next = node->next;
        GDL_Free(node);
        node = next;
    }
    GDL_Free(list.at);
    list = {};
    if (!fl_is_side(id))
        return;
    auto& now = fl.now[id];
    now.clip = now.found = nullptr;
    now.folders = now.files = 0;
}

// --- Show ---

// In place of rows: why there is none.
static const char* notice(int id)
{
    const auto& now = fl.now[id];
    switch (fl.side[id].device) {
    case FL_DIRDATA_DEV_NON: return "";
    case FL_DIRDATA_STORAGE_ROOT: return GL_ClipStoreSupportMode ? "No clips" : "No clip store";
    default: break;
    }
    if (now.is_gone)
        return "Folder not found";
    return now.dir_label || now.file_label ? "Reading..." : "No clips";
}

static void show_notice(int list, const char* text)
{
    for (int col = 0; col <= COLUMN_TIME; col++)
        (void)LS_SetData(list, 0, col, col == COLUMN_NAME ? text : "");
    (void)LS_SetHStatus(list, 0, CLASS_EMPTY);
    (void)LS_SetNData(list, *text ? 1 : 0);
}

static void show_row(int list, int row, const FL_LIST* node)
{
    const ELEMENT& e = node->file.element;
    const bool is_folder = e.type == ELEMENT_TYPE_FOLDER;
    (void)LS_SetData(list, row, COLUMN_ICON, is_folder ? "_Folder" : "");
    (void)LS_SetData(list, row, COLUMN_NAME, e.name);
    (void)LS_SetData(list, row, COLUMN_FRAMES, is_folder ? "" : node->frames);
    (void)LS_SetData(list, row, COLUMN_PAIR, !is_folder && e.is_pair ? "P" : "");
    (void)LS_SetData(list, row, COLUMN_TIME, e.create_time);
    (void)LS_SetHStatus(list, row, CLASS_USUAL);
}

// Device and path; of a long one the end, which tells more.
static const char* head_of(int id)
{
    static constexpr const char* devices[] = {"", "Clip Store", "Local Drive", "Removable Drive"};
    constexpr size_t SHOWN = 18;
    auto& head = fl.now[id].head;
    const char* const path = fl.side[id].current_path;
    PrintText(head, "%s%s", devices[fl.side[id].device], strcmp(path, "/") == 0 ? "" : path);
    const size_t length = strlen(head);
    return length > SHOWN ? head + length - SHOWN : head;
}

// A window that need not move stays: somebody may be scrolling.
static void select_again(int id)
{
    const int list = page_list(id);
    const char* const name = fl.now[id].selected;
    int row = 0;
    if (LS_GetMS(list) == 1) {
        const int top = LS_GetTopLine(list);
        for (const FL_LIST* node = fl.list[id].head; node; node = node->next)
            (void)LS_SetSelected(list, row++, 0, node->is_selected); // 1: it is so already
        (void)LS_SetTopLine(list, top);
        return;
    }
    row = LS_GetSelected(list, 0);
    if (name[0] == '\0' || (row >= 0 && strcmp(LS_GetData(list, row, COLUMN_NAME), name) == 0))
        return;
    (void)LS_ChangeSelByStr(list, COLUMN_NAME, name); // it may be gone
}

static void show(int id)
{
    auto& now = fl.now[id];
    const int list = page_list(id);
    if (!now.is_hidden)
        remember_selected(id);
    now.is_dirty = now.is_hidden = false;
    if (fl.side[id].device == FL_DIRDATA_DEV_NON || // the page has something else there
        LS_SetHeadStr(list, COLUMN_NAME, head_of(id)) != 0)
        return; // ... or no such list
    if (now.is_entered)
        (void)LS_ClearData(list); // no row is selected: a touch of any tells the page
    if (fl.list[id].count == 0) {
        show_notice(list, notice(id));
        now.is_entered = true; // its row may be selected, those that come are not
        return;
    }
    now.is_entered = false;
    int row = 0;
    for (FL_LIST* node = fl.list[id].head; node; node = node->next) {
        node->row = row++;
        show_row(list, node->row, node);
    }
    (void)LS_SetNData(list, row);
    (void)LS_RedrawData(list);
    select_again(id);
}

// A long list takes some milliseconds, and the hub tells a hundred elements a pass: it is not shown
// in every one, unless its rows are hidden.
void fl_redraw(int elapsed_ms)
{
    constexpr int LONG = 500;
    constexpr int PAUSE_MS = 100;
    for (int id = 0; id < FL_SIDES; id++) {
        auto& now = fl.now[id];
        now.pause_ms = std::max(0, now.pause_ms - elapsed_ms);
        if (!fl.is_open || !now.is_dirty || (now.pause_ms > 0 && !now.is_hidden))
            continue;
        show(id);
        now.pause_ms = fl.list[id].count > LONG ? PAUSE_MS : 0;
    }
}

void fl_show_selected(int id, int row)
{
    show(id); // the row must be there
    (void)LS_SetNowLine(page_list(id), row);
}
