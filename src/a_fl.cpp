#include "a_fl.h"
#include "a_fl_private.h"
#include "bus.h"
#include "log.h"
#include "message.h"
#include "text.h"
#include <cstring>

#include "safeguards.h"

FL_STATE fl;

// --- Where a side stands ---

static const char* get_current_path(int id)
{
    return fl.side[id].current_path;
}

static void set_current_path(int id, const char* path)
{
    CopyText(fl.side[id].current_path, path);
}

static void tell_list(int id, int count, int what)
{
    SendMessage(LMSG_FLLISTCHANGE, id, count, what, 0);
}

// Of one of the store's elements. False when there is no room for it.
static bool take_element(int id, const ELEMENT& e)
{
    FL_FILE file;
    file.element = e;
    file.file_type = e.type == ELEMENT_TYPE_FOLDER ? OBJECT_TYPE_FOLDER : OBJECT_TYPE_FILE;
    file.root_flag = e.layer == 0;
    file.dev = FL_DIRDATA_STORAGE_ROOT;
    return fl_list_insert(id, file) != nullptr;
}

// The folder, or the nearest one above it that is still there. The catalogue's "/root/NEWS" is
// "/NEWS" here.
static const ELEMENT_LIST* enter_store(int id)
{
    FL_CURRENT_INFO& side = fl.side[id];
    CURRENT_INFO& reg = side.current_info_reg;
    constexpr size_t ROOT_LENGTH = sizeof ELEMENT_ROOT; // with the "/" before it
    if (reg.path[0] == '\0')
        FMCtrl3_InitCurrentInfo(&reg);
    while (!FMCtrl3_GetCurrent(&reg)) {
        char* const slash = strlen(reg.path) > ROOT_LENGTH ? strrchr(reg.path, '/') : nullptr;
        if (!slash || slash < reg.path + ROOT_LENGTH + 1) {
            FMCtrl3_InitCurrentInfo(&reg);
            break;
        }
        *slash = '\0';
    }
    const ELEMENT_LIST* const folder = FMCtrl3_GetCurrent(&reg);
    set_current_path(id, reg.path + ROOT_LENGTH);
    side.current_layer =
        !folder || strcmp(side.current_path, "/") == 0 ? 0 : folder->element.layer + 1;
    return folder;
}

static void read_store(int id)
{
    auto& now = fl.now[id];
    fl_list_free(id);
    const ELEMENT_LIST* const folder = enter_store(id); // null: no catalogue has begun
    for (const ELEMENT_LIST* e = FMCtrl3_GetChild(folder, nullptr); e;
         e = FMCtrl3_GetChild(folder, e))
        if (!take_element(id, e->element))
            break;
    now.is_gone = false;
    now.is_dirty = true;
    SendMessage(LMSG_FLCURDIRCHANGE, id, 0, 0, 0);
    tell_list(id, now.folders, 1);
    tell_list(id, now.files, 2);
}

static void read_side(int id)
{
    fl_drive_stop(id);
    if (fl_is_drive(fl.side[id].device)) {
        char path[FL_PATH_SIZE];
        CopyText(path, get_current_path(id));
        (void)putCurrentDirectory(id, path); // told as not there when it is none
        return;
    }
    if (fl.side[id].device == FL_DIRDATA_STORAGE_ROOT)
        read_store(id);
    else
        fl_list_free(id);
    fl.now[id].is_dirty = true;
}

static void free_list(int id)
{
    if (fl_is_side(id))
        fl_drive_stop(id);
    fl_list_free(id);
}

void FL_list_free_all()
{
    for (int id = 0; id < FL_LISTS; id++)
        free_list(id);
}

void FL_Init_File()
{
    FL_list_free_all();
    for (FL_CURRENT_INFO& side : fl.side)
        side = {};
}

int FL_list_init(int id, int dev)
{
    if (!fl_is_side(id) || dev < FL_DIRDATA_DEV_NON || dev > FL_DIRDATA_REMOVABLE_DRIVE)
        return -1;
    free_list(id);
    fl.side[id] = {.device = dev};
    tell_list(id, 0, 4);
    read_side(id);
    return 0;
}

void FL_list_all_init()
{
    for (int id = 0; id < FL_SIDES; id++)
        read_side(id);
}

// --- Opening and closing a page ---

// A page that is made for the store shows no drive, and the other way round.
static bool is_of_kind(int device, int other)
{
    return device == other || (fl_is_drive(device) && fl_is_drive(other));
}

int FL_Create(const FL_TBL* table, uint32_t)
{
    FL_list_free_all();
    fl.is_open = table != nullptr;
    for (auto& now : fl.now)
        now = {};
    if (!table)
        return 1;
    for (int id = 0; id < FL_SIDES; id++) {
        const FL_AREA& area = table->area[id];
        if (!is_of_kind(fl.side[id].device, area.device)) {
            fl.side[id] = {.device = area.device};
            set_current_path(id, area.current_path);
        }
        fl.now[id].is_dirty = true;
        read_side(id);
    }
    return 0;
}

// --- Changes of the store ---

static bool is_current_child(int id, const ELEMENT& e)
{
    const size_t n = strlen(e.full_path);
    const char* const path = fl.side[id].current_info_reg.path;
    return strncmp(e.full_path, path, n) == 0 &&
           (path[n] == '\0' || strcmp(path + n, "/") == 0); // the root has a "/" behind it
}

static void flctrl_change_insert(int id, const ELEMENT& e)
{
    if (!is_current_child(id, e))
        return;
    if (FL_LIST* const node = fl_list_equal(id, e))
        fl_list_change(id, node, e);
    else if (take_element(id, e))
        tell_list(id, fl.list[id].count, 3);
}

static void flctrl_change_delete(int id, const ELEMENT& e)
{
    if (e.type == ELEMENT_TYPE_FOLDER && !FMCtrl3_GetCurrent(&fl.side[id].current_info_reg)) {
        read_store(id); // what it showed has gone
        return;
    }
    FL_LIST* const node = is_current_child(id, e) ? fl_list_equal(id, e) : nullptr;
    if (!node)
        return;
    fl_list_remove(id, node);
    tell_list(id, fl.list[id].count, 3);
}

static void fmctrl_change(int kind, const ELEMENT* e)
{
    for (int id = 0; id < FL_SIDES; id++) {
        if (!fl.is_open || fl.side[id].device != FL_DIRDATA_STORAGE_ROOT)
            continue;
        switch (kind) {
        case FMCTRL_MSG_TALBE_CLEAR:
            tell_list(id, 0, 4);
            read_store(id);
            break;
        case FMCTRL_MSG_ELEMENT_NOTIFY:
        case FMCTRL_MSG_ELEMENT_INSERT:
            if (e)
                flctrl_change_insert(id, *e);
            break;
        case FMCTRL_MSG_ELEMENT_DELETE:
            if (e)
                flctrl_change_delete(id, *e);
            break;
        default: break;
        }
    }
}

// A fallen link has cut what was being read.
static void fl_tally(const char* path, const char* value)
{
    if (!fl.is_open || strcmp(path, "CONNECT@Status") != 0 || strcmp(value, "OK") != 0)
        return;
    for (int id = 0; id < FL_SIDES; id++)
        if (fl_is_drive(fl.side[id].device))
            read_side(id);
}

int FL_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: fl_redraw(int(ax)); return 0;
    case MSG_TALLY: fl_tally(Text(ax), Text(bx)); return 0;
    case LMSG_FMCTRL3CHANGE: fmctrl_change(int(ax), reinterpret_cast<const ELEMENT*>(bx)); return 0;
    default: return 0;
    }
}

// --- Moving ---

static int go_up(int id)
{
    char path[FL_PATH_SIZE];
    CopyText(path, get_current_path(id));
    char* const slash = strrchr(path, '/');
    if (!slash || strcmp(path, "/") == 0)
        return -1;
    *(slash == path ? slash + 1 : slash) = '\0';
    return putCurrentDirectory(id, path);
}

static int go_down(int id, const char* name)
{
    char full_name[ELEMENT_PATH_SIZE + 1];
    const bool is_top = strcmp(get_current_path(id), "/") == 0;
    PrintText(full_name, "/%s%s/%s", ELEMENT_ROOT, is_top ? "" : get_current_path(id), name);
    if (strlen(name) >= ELEMENT_FOLDER_SIZE || !fl_list_of_name(id, full_name, ELEMENT_TYPE_FOLDER))
        return -1;
    return putCurrentDirectory(id, full_name + 1 + strlen(ELEMENT_ROOT));
}

static int change_in_store(int id, const char* directory)
{
    if (FMCtrl3_ChangeDirectory(&fl.side[id].current_info_reg, directory) != 0)
        return -1;
    read_store(id);
    fl.now[id].selected[0] = '\0';
    fl.now[id].is_entered = true;
    return 0;
}

int FL_ChangeDirectory(int id, const char* directory)
{
    if (!fl_is_side(id) || !directory || !*directory)
        return -1;
    if (fl.side[id].device == FL_DIRDATA_STORAGE_ROOT)
        return change_in_store(id, directory);
    if (!fl_is_drive(fl.side[id].device))
        return -1;
    if (strcmp(directory, "..") == 0)
        return go_up(id);
    return directory[0] == '/' ? putCurrentDirectory(id, directory) : go_down(id, directory);
}

const char* FL_GetCurrentPath(int id)
{
    return fl_is_side(id) ? get_current_path(id) : "";
}

int FL_GetDevice(int id)
{
    return fl_is_side(id) ? fl.side[id].device : FL_DIRDATA_DEV_NON;
}

// --- Search ---

static FL_LIST* step(const FL_CHAIN& list, FL_LIST* node, int dir)
{
    FL_LIST* const next = !node ? nullptr : dir > 0 ? node->next : node->prev;
    return next ? next : dir > 0 ? list.head : list.tail;
}

int FL_Find(int id, const char* text, int dir)
{
    if (!fl_is_side(id) || !text || !*text)
        return -1;
    FL_LIST* node = fl.now[id].found;
    for (int i = 0; i < fl.list[id].count; i++) { // the last look is at the one it began from
        node = step(fl.list[id], node, dir);
        if (!StrIStr(node->file.element.name, text))
            continue;
        fl.now[id].found = node;
        fl_list_free(FL_L_FIND_LIST + id);
        (void)fl_list_insert(FL_L_FIND_LIST + id, node->file);
        const int place = fl_list_place(id, node);
        if (fl.is_open)
            fl_show_selected(id, place);
        return place;
    }
    return -1;
}

// "/NEWS/OPENING": as full_name without the root.
static FL_LIST* node_of_path(int index, const char* path, int type)
{
    char full_name[ELEMENT_PATH_SIZE];
    if (PrintText(full_name, "/%s%s", ELEMENT_ROOT, path) >= int(sizeof full_name))
        return nullptr;
    for (int element_type = ELEMENT_TYPE_FOLDER; element_type <= ELEMENT_TYPE_FILE;
         element_type++) {
        const bool is_folder = element_type == ELEMENT_TYPE_FOLDER;
        if (type != OBJECT_TYPE_ALL && (type == OBJECT_TYPE_FOLDER) != is_folder)
            continue;
        if (FL_LIST* const node = fl_list_of_name(index, full_name, element_type))
            return node;
    }
    return nullptr;
}

int FL_GetFoundObject(int index, const char* path, int type, FF_OBJECT* object)
{
    if (index < 0 || index >= FL_LISTS || !path || !object)
        return -1;
    const FL_LIST* const node = node_of_path(index, path, type);
    if (!node)
        return -1;
    const ELEMENT& e = node->file.element;
    *object = {.type = node->file.file_type,
               .pair = e.is_pair ? OBJECT_PAIR_PAIR : OBJECT_PAIR_SINGLE,
               .status = e.exist ? OBJECT_STATUS_SSD : OBJECT_STATUS_NONE,
               .frame = e.duration,
               .format = e.format};
    CopyText(object->create_time, e.create_time);
    CopyText(object->name, e.name);
    return 0;
}

// --- Questions ---

// -1, with a log line, when that folder is not the one that the side shows.
static int side_of(const FM_FILEPATH* where, int index)
{
    if (!where || where->dirPath[0] == '\0') {
        if (where && where->devType == FL_DIRDATA_STORAGE_ROOT)
            Log_Output(LOG_DETAIL, MOD_PAGE,
                       "getDirectoryName : Non Path Error [%s] dev(DEVICE_REGISTER) index(%d)",
                       where->dirPath, index);
        else
            Log_Output(LOG_DETAIL, MOD_PAGE, "FL_GetDirectoryName Path[NULL]");
        return -1;
    }
    if (!fl_is_side(where->storage) || where->devType != fl.side[where->storage].device ||
        strcmp(where->dirPath, get_current_path(where->storage)) != 0) {
        Log_Output(LOG_DETAIL, MOD_PAGE, "FL_GetDirectoryName param error");
        return -1;
    }
    return where->storage;
}

int FL_GetDirectoryName(const FM_FILEPATH* where, int index, FL_DIRFILE_NAMES* names)
{
    const int id = side_of(where, index);
    if (id < 0)
        return -1;
    const FL_LIST* const node = fl_list_at(id, index);
    if (!names || !node) {
        Log_Output(LOG_DETAIL, MOD_PAGE, "FL_GetDirectoryName param error");
        return -1;
    }
    const ELEMENT& e = node->file.element;
    *names = {
        .type = node->file.file_type, .index = index, .pair = e.is_pair, .duration = e.duration};
    if (e.type == ELEMENT_TYPE_FOLDER)
        CopyText(names->DirName, e.name);
    else
        CopyText(names->FileName, e.name);
    return 0;
}

int FL_GetDirectoryAndFileCount(const FM_FILEPATH* where, int* folders, int* files)
{
    const int id = side_of(where, 0);
    if (id < 0 || !folders || !files)
        return -1;
    *folders = fl.now[id].folders;
    *files = fl.now[id].files;
    return 0;
}

int FL_GutClipFrameCount(int activeStorage, int device, const char* path)
{
    if (!fl_is_side(activeStorage) || !path || fl.side[activeStorage].device != device)
        return -1;
    const FL_LIST* const node = node_of_path(activeStorage, path, OBJECT_TYPE_FILE);
    return node ? node->file.element.duration : -1;
}

int FL_IsClipFolder(int id, const char* path)
{
    const FL_LIST* const node =
        fl_is_side(id) && path ? node_of_path(id, path, OBJECT_TYPE_FILE) : nullptr;
    return node && node->file.clip_stil;
}
