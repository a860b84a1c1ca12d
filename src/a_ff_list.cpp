// The cells of the file folder: the elements of one folder in the order of the catalogue.
#include "a_ff_private.h"
#include "memory.h"
#include "text.h"
#include <cstring>
#include <initializer_list>
#include <new>

#include "safeguards.h"

bool ff_fits(const PARTS_FILE_AREA& parts, const ELEMENT& e)
{
    if (e.type == ELEMENT_TYPE_FOLDER)
        return true;
    const bool is_there = parts.exist_place == ELEMENT_PLACE_NONE || (e.exist & parts.exist_place);
    return is_there && (!parts.pair_mode || e.is_pair);
}

bool ff_list_is_current_child(const FM2_FILE_AREA& a, const ELEMENT& e)
{
    const size_t n = strlen(e.full_path);
    const char* const rest = a.current.path + n; // the root has a "/" behind it
    return strncmp(e.full_path, a.current.path, n) == 0 && (!rest[0] || strcmp(rest, "/") == 0);
}

// Below 0: a stands before b.
static int compare(const ELEMENT& a, const ELEMENT& b)
{
    if (a.type != b.type)
        return a.type == ELEMENT_TYPE_FOLDER ? -1 : 1;
    return strcmp(a.name, b.name);
}

int ff_list_find_joint_point(const FM2_FILE_LIST& list, const ELEMENT& e)
{
    int from = 0;
    int to = list.rec_num;
    while (from < to) {
        const int mid = from + (to - from) / 2;
        if (compare(list.cell[mid]->element, e) < 0)
            from = mid + 1;
        else
            to = mid;
    }
    return from;
}

int ff_list_place(const FM2_FILE_LIST& list, const ELEMENT& e)
{
    const int n = ff_list_find_joint_point(list, e);
    return n < list.rec_num && compare(list.cell[n]->element, e) == 0 ? n : -1;
}

static bool make_room(FM2_FILE_LIST& list)
{
    if (list.rec_num < list.room)
        return true;
    const int room = list.room ? list.room * 2 : 64;
    void* const cell = GDL_Realloc(list.cell, sizeof(FM2_FILE*) * size_t(room));
    if (!cell)
        return false;
    list.cell = static_cast<FM2_FILE**>(cell);
    list.room = room;
    return true;
}

bool ff_list_insert(FM2_FILE_LIST& list, const ELEMENT& e)
{
    void* const memory = make_room(list) ? GDL_Malloc(sizeof(FM2_FILE)) : nullptr;
    if (!memory)
        return false;
    auto* const cell = new (memory) FM2_FILE;
    cell->element = e;
    cell->file_type = e.type == ELEMENT_TYPE_FOLDER ? OBJECT_TYPE_FOLDER : OBJECT_TYPE_FILE;
    const int n = ff_list_find_joint_point(list, e);
    memmove(list.cell + n + 1, list.cell + n, sizeof(FM2_FILE*) * size_t(list.rec_num - n));
    list.cell[n] = cell;
    list.rec_num++;
    list.selected_idx += list.selected_idx >= n;
    list.found_idx += list.found_idx >= n;
    list.redrawall = true;
    return true;
}

void ff_drop_surface(FM2_FILE& cell)
{
    SDL_FreeSurface(cell.surface);
    cell.surface = nullptr;
    cell.is_looked_for = false;
}

static void free_cell(FM2_FILE* cell)
{
    ff_drop_surface(*cell);
    GDL_Free(cell);
}

void ff_list_remove(FM2_FILE_LIST& list, int n)
{
    free_cell(list.cell[n]);
    list.rec_num--;
    memmove(list.cell + n, list.cell + n + 1, sizeof(FM2_FILE*) * size_t(list.rec_num - n));
    for (int* const mark : {&list.selected_idx, &list.found_idx})
        *mark = *mark == n ? -1 : *mark - (*mark > n);
    list.redrawall = true;
}

void ff_list_free_all(FM2_FILE_LIST& list)
{
    for (int n = 0; n < list.rec_num; n++)
        free_cell(list.cell[n]);
    GDL_Free(list.cell);
    list = {};
    list.redrawall = true;
}

void ff_list_update(int index)
{
    FM2_FILE_AREA& a = ff.area[index];
    ff_list_free_all(a.file_list);
    a.top = 0;
    const ELEMENT_LIST* const folder = FMCtrl3_GetCurrent(&a.current);
    if (!folder)
        return;
    for (const ELEMENT_LIST* e = FMCtrl3_GetChild(folder, nullptr); e;
         e = FMCtrl3_GetChild(folder, e))
        if (ff_fits(a.parts, e->element) && !ff_list_insert(a.file_list, e->element))
            return;
}

bool is_all_element_selected(const FM2_FILE_LIST& list)
{
    for (int n = 0; n < list.rec_num; n++)
        if (!list.cell[n]->select)
            return false;
    return list.rec_num > 0;
}
