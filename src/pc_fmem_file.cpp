// The pages of the clip store that work on its files: copy and move between two folders, delete,
// rename and store, and the pairs of video and key.
#include "a_bt.h"
#include "a_ff.h"
#include "a_fm.h"
#include "a_pc.h"
#include "fmctrl3.h"
#include "memory.h"
#include "message.h"
#include "page_table/fmem_clip.h"
#include "pane.h"
#include "pc_fmem.h"
#include "text.h"
#include "window.h"
#include <cstring>

#include "safeguards.h"

namespace
{
enum : int { LEFT = 0, RIGHT = 1 };
enum : int { NAMING_DUPLICATE, NAMING_RENAME, NAMING_FOLDER };
} // namespace

static struct {
    FF_OBJECT object; // whose name is being entered
    char folder[ELEMENT_PATH_SIZE] = "";
    char text[ELEMENT_NAME_SIZE] = ""; // as it was entered
    int naming = NAMING_RENAME;
    int pane_id = 0;        // says why the name is refused; the window comes again
    int delete_pane_id = 0; // asks whether to delete
} fp;                       // valid from create(1) to create(0)

// --- What the keys work on ---

// What is checked, otherwise what is selected; each in its turn.
static int for_each_chosen(int index, void (*each)(const FF_OBJECT& object, const char* name))
{
    FF_OBJECT one;
    const int count = FF_GetCheckedObjectNum(index);
    auto* list =
        count > 0 ? static_cast<FF_OBJECT*>(GDL_Calloc(size_t(count), sizeof(FF_OBJECT))) : nullptr;
    int written = list ? FF_GetCheckedObjectList(index, list, count) : 0;
    if (count == 0 && FF_GetSelectedObject(index, &one) == 0)
        written = 1;
    for (int i = 0; i < written; i++) {
        char name[ELEMENT_PATH_SIZE];
        const FF_OBJECT& object = list ? list[i] : one;
        fmem_name_in(name, FF_GetCurrentPath(index), object.name);
        each(object, name);
    }
    GDL_Free(list);
    return written;
}

static bool one_chosen(int index, FF_OBJECT* object)
{
    const int count = FF_GetCheckedObjectNum(index);
    if (count == 1)
        return FF_GetCheckedObjectList(index, object, 1) == 1;
    return count == 0 && FF_GetSelectedObject(index, object) == 0;
}

static bool something_chosen(int index)
{
    FF_OBJECT object;
    return FF_GetCheckedObjectNum(index) > 0 || FF_GetSelectedObject(index, &object) == 0;
}

static void done()
{
    FF_ClearCheckedObjectList(LEFT);
}

// --- Names ---

static void ask_name();

static bool is_folder_named()
{
    return fp.naming == NAMING_FOLDER || fp.object.type == OBJECT_TYPE_FOLDER;
}

static int refuse_name(const char* title, const char* text)
{
    fp.pane_id = PaneMessage_Create(title, PANE_ALERT, text);
    return 0;
}

static void name_accepted(const char* name)
{
    char from[ELEMENT_PATH_SIZE];
    fmem_name_in(from, fp.folder, fp.object.name);
    if (fp.naming == NAMING_FOLDER)
        fmem_request(PROTOCOL_TYPE_SHP_MAKE_FOLDER, false, name);
    else if (fmfileope_start(fp.naming == NAMING_RENAME ? FMFILEOPE_RENAME : FMFILEOPE_DUPLICATE,
                             fp.object.type, from, name) == 0)
        fmfileope_do(done);
}

static int name_entered(const char* text)
{
    const char* const title = is_folder_named() ? "Invalid Folder" : "Invalid Name";
    char name[ELEMENT_PATH_SIZE];
    CopyText(fp.text, text);
    if (!StrFileName(fp.text))
        return refuse_name(title, "Empty...");
    if (fp.naming == NAMING_RENAME && strcmp(fp.text, fp.object.name) == 0)
        return 0;
    fmem_name_in(name, fp.folder, fp.text);
    if (FMCtrl3_FindPath(nullptr, is_folder_named() ? ELEMENT_TYPE_FOLDER : ELEMENT_TYPE_FILE,
                         name))
        return refuse_name(title, "This name is already existing.\nPlease enter other name.");
    name_accepted(name);
    return 0;
}

static void ask_name()
{
    static constexpr const char* titles[] = {"Duplicate", "Rename", "New Folder"};
    const int chars = is_folder_named() ? ELEMENT_FOLDER_SIZE - 1 : ELEMENT_NAME_SIZE - 1;
    (void)CreateWindow(WINDOW_KEYBOARD, titles[fp.naming],
                       {.value = fp.text, .input_max = chars, .ok_text = name_entered});
}

static void name_chosen(int naming)
{
    if (fmfileope_is_busy() || !one_chosen(LEFT, &fp.object))
        return;
    fp.naming = naming;
    CopyText(fp.folder, FF_GetCurrentPath(LEFT));
    CopyText(fp.text, fp.object.name);
    ask_name();
}

// --- Copy and move ---

static void enable_copymove_keys()
{
    FF_OBJECT object;
    const bool same = strcmp(FF_GetCurrentPath(LEFT), FF_GetCurrentPath(RIGHT)) == 0;
    BT_SetDisable(BTN_FMEM_COPY, same || !something_chosen(LEFT));
    BT_SetDisable(BTN_FMEM_MOVE, same || !something_chosen(LEFT));
    BT_SetDisable(BTN_FMEM_DUPLICATE, !one_chosen(LEFT, &object));
    ELEMENT_LIST* const folder =
        FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FOLDER, FF_GetCurrentPath(RIGHT));
    const bool is_deepest =
        folder && folder->element.full_path[0] && folder->element.layer >= ELEMENT_DEPTH - 1;
    BT_SetDisable(BTN_FMEM_NEW_FOLDER, is_deepest);
}

static void start_to_the_right(int cmd, const FF_OBJECT& object, const char* name)
{
    char to[ELEMENT_PATH_SIZE];
    fmem_name_in(to, FF_GetCurrentPath(RIGHT), object.name);
    (void)fmfileope_start(cmd, object.type, name, to);
}

static void copy_one(const FF_OBJECT& object, const char* name)
{
    start_to_the_right(FMFILEOPE_COPY, object, name);
}

static void move_one(const FF_OBJECT& object, const char* name)
{
    start_to_the_right(FMFILEOPE_MOVE, object, name);
}

static void copy_all()
{
    if (!fmfileope_is_busy() && for_each_chosen(LEFT, copy_one) > 0)
        fmfileope_do(done);
}

static void move_all()
{
    if (!fmfileope_is_busy() && for_each_chosen(LEFT, move_one) > 0)
        fmfileope_do(done);
}

static void duplicate()
{
    name_chosen(NAMING_DUPLICATE);
}

static void new_folder()
{
    fp.naming = NAMING_FOLDER;
    fp.text[0] = '\0';
    CopyText(fp.folder, FF_GetCurrentPath(RIGHT));
    ask_name();
}

// --- Delete, rename, store ---

static void enable_deleterename_keys()
{
    FF_OBJECT object;
    BT_SetDisable(BTN_FMEM_DELETE, !something_chosen(LEFT));
    BT_SetDisable(BTN_FMEM_STORE, !something_chosen(LEFT));
    BT_SetDisable(BTN_FMEM_RENAME, !one_chosen(LEFT, &object));
}

static void delete_one(const FF_OBJECT& object, const char* name)
{
    (void)fmfileope_start(FMFILEOPE_DELETE, object.type, name, nullptr);
}

static void store_one(const FF_OBJECT& object, const char* name)
{
    (void)fmfileope_start(FMFILEOPE_STORE, object.type, name, nullptr);
}

static void ask_delete()
{
    if (!fmfileope_is_busy() && something_chosen(LEFT))
        fp.delete_pane_id =
            PaneYesNo_Create(fmfileope_title(FMFILEOPE_DELETE), PANE_ALERT,
                             "This operation will cause the data to be\ndeleted.\n\nContinue?");
}

static void delete_all()
{
    if (for_each_chosen(LEFT, delete_one) > 0)
        fmfileope_do(done);
}

static void store_all()
{
    if (!fmfileope_is_busy() && for_each_chosen(LEFT, store_one) > 0)
        fmfileope_do(done);
}

static void file_deleterename_rename()
{
    name_chosen(NAMING_RENAME);
}

// --- Pairs ---

static bool selected_clip(int index, FF_OBJECT* object)
{
    return FF_GetSelectedObject(index, object) == 0 && object->type == OBJECT_TYPE_FILE;
}

// A video and a key of the same length, neither of them a pair yet.
static bool can_couple(const FF_OBJECT& video, const FF_OBJECT& key)
{
    return video.pair == OBJECT_PAIR_SINGLE && key.pair == OBJECT_PAIR_SINGLE &&
           video.frame == key.frame &&
           (strcmp(video.name, key.name) != 0 ||
            strcmp(FF_GetCurrentPath(LEFT), FF_GetCurrentPath(RIGHT)) != 0);
}

static void enable_pair_keys()
{
    FF_OBJECT video, key;
    const bool has_video = selected_clip(LEFT, &video);
    BT_SetDisable(BTN_FMEM_COUPLE,
                  !(has_video && selected_clip(RIGHT, &key) && can_couple(video, key)));
    BT_SetDisable(BTN_FMEM_SEPARATE, !(has_video && video.pair == OBJECT_PAIR_PAIR));
}

static void couple()
{
    FF_OBJECT video, key;
    char name[ELEMENT_PATH_SIZE], name2[ELEMENT_PATH_SIZE];
    if (!selected_clip(LEFT, &video) || !selected_clip(RIGHT, &key) || !can_couple(video, key) ||
        !fmem_progress_begin(PROTOCOL_TYPE_SHP_COUPLE, nullptr))
        return;
    fmem_name_in(name, FF_GetCurrentPath(LEFT), video.name);
    fmem_name_in(name2, FF_GetCurrentPath(RIGHT), key.name);
    fmem_progress_file(name, name2);
    fmem_progress_show();
}

static void separate()
{
    FF_OBJECT video;
    char name[ELEMENT_PATH_SIZE];
    if (!selected_clip(LEFT, &video) || !fmem_progress_begin(PROTOCOL_TYPE_SHP_SEPARATE, nullptr))
        return;
    fmem_name_in(name, FF_GetCurrentPath(LEFT), video.name);
    fmem_progress_file(name);
    fmem_progress_show();
}

// --- The pages ---

static void pane_closed(int id, int answer)
{
    if (fp.pane_id && id == fp.pane_id) {
        fp.pane_id = 0;
        ask_name();
    } else if (fp.delete_pane_id && id == fp.delete_pane_id) {
        fp.delete_pane_id = 0;
        if (answer == 1)
            delete_all();
    }
}

static int proc(int msg, MsgArg ax, MsgArg bx, MsgArg dx, void (*enable_keys)())
{
    fmem_proc(msg, ax, bx, dx);
    switch (msg) {
    case LMSG_PANEQUIT: pane_closed(int(ax), int(bx)); return 0;
    case LMSG_FFCRNTCHANGE:
    case LMSG_FFLISTCHANGE:
    case LMSG_FFSELCHANGE:
    case LMSG_FFCHKCHNAGE: enable_keys(); return 0;
    default: return 0;
    }
}

static int create(int on, void (*enable_keys)())
{
    fmem_drop();
    fp = {};
    if (on)
        enable_keys();
    return 0;
}

static constexpr FMEM_KEY copymove_keys[] = {
    {"LOCAL@Clip/Still@Copy", copy_all},
    {"LOCAL@Clip/Still@Move", move_all},
    {"LOCAL@Clip/Still@Duplicate", duplicate},
    {"LOCAL@Clip/Still@New Folder", new_folder},
};
static constexpr FMEM_KEY deleterename_keys[] = {
    {"LOCAL@Clip/Still@Delete", ask_delete},
    {"LOCAL@Clip/Still@Rename", file_deleterename_rename},
    {"LOCAL@Clip/Still@Store", store_all},
};
static constexpr FMEM_KEY pair_keys[] = {
    {"LOCAL@Clip/Still@Couple", couple},
    {"LOCAL@Clip/Still@Separate", separate},
};

// One body for the pages: their keys and what enables them.
template <const auto& keys, void (*enable_keys)()>
static int page_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    if (msg == LMSG_BTNSEL)
        fmem_button(keys, Text(ax));
    return proc(msg, ax, bx, dx, enable_keys);
}
template <void (*enable_keys)()> static int page_create(int on, uint32_t)
{
    return create(on, enable_keys);
}
template <const auto& keys, void (*enable_keys)()> static constexpr PC_TBL PageCode()
{
    return {.proc_func = page_proc<keys, enable_keys>, .create_func = page_create<enable_keys>};
}

const PC_TBL pc_fmem_file_copymove = PageCode<copymove_keys, enable_copymove_keys>();
const PC_TBL pc_fmem_file_deleterename = PageCode<deleterename_keys, enable_deleterename_keys>();
const PC_TBL pc_fmem_file_pairreecombination = PageCode<pair_keys, enable_pair_keys>();
