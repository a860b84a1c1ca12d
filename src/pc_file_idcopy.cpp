#include "pc_file_idcopy.h"
#include "a_bt.h"
#include "a_ls.h"
#include "file.h"
#include "file_dir.h"
#include "file_newest.h"
#include "global.h"
#include "message.h"
#include "pane.h"
#include "tally_value.h"
#include "text.h"
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "safeguards.h"

#define ID_COPY "LOCAL@File@ID Copy@"

// A unit's folder is "SWR001D002": its class, the number of its group (000: any) and its own.
namespace
{
enum : int { UNIT_ID_SIZE = 11, DIGITS = 3 };
enum : int { SIDE_A = 0, SIDE_B = 1, SIDES = 2 };
enum : int { COL_UNIT, COL_CATEGORY, COL_FILES };
constexpr int ROWS = 200;   // sixteen units with a dozen categories each
constexpr int TARGETS = 12; // of one class
constexpr int CAPTION_SIZE = 40;

struct Kind {
    int grp;          // of the selector
    const char* name; // of the page
    int digits;       // where in a unit's folder the number stands
};
constexpr Kind kinds[] = {{24, "Unit ID Copy", 7}, {25, "Group ID Copy", 3}};

// Outlives the page.
struct Visit {
    FILESIDE side[SIDES] = {{.device = FILE_LOCAL}, {.device = FILE_REMOVABLE}};
    int from = 0;                 // region id of the source; 0: the selector's first
    FILEXFERLIST* list = nullptr; // being put together, or of the job that runs
};

// What a directory holds: files of a unit in a category.
struct Row {
    char unit[UNIT_ID_SIZE] = "";
    char category[16] = "";
    int files = 0;
    char count[8] = "";
};

struct Listing {
    uint32_t search = 0; // label, 0 none
    Row row[ROWS];
    int rows = 0;
};
} // namespace

static Visit visits[std::size(kinds)];
static FILENEWEST newest; // of the list that is being put together

static struct {
    const Kind* kind = nullptr; // null: no page of ours is open
    Listing listing[SIDES];
    int from_pane = 0;
    int to_pane = 0;
    int question_pane = 0;
    int busy_pane = 0;                        // from the answer until the copy begins
    uint32_t gathering = 0;                   // label of the search for the source's files
    uint32_t clearing = 0;                    // label of what is done to the target
    char device_caption[SIDES][CAPTION_SIZE]; // the buttons show them from here
    char from_caption[CAPTION_SIZE];
    char to_caption[CAPTION_SIZE];
} ic; // valid from create(1) to create(0)

static Visit& visit()
{
    return visits[ic.kind - kinds];
}

// --- Ids ---
// The selector has a row of numbers a class of unit.

namespace
{
struct Id {
    const char* unit = ""; // "SWR", "DME"
    int number = 0;        // from 1
};
} // namespace

static Id id_of(int region)
{
    int main = 0;
    int sub = 0;
    if (PaneRegion_GetGrpMainSub(ic.kind->grp, region, &main, &sub) != 0)
        return {};
    return {PaneRegion_GetGrpName(ic.kind->grp, main), sub + 1};
}

static Id source()
{
    const int region = visit().from;
    return id_of(region != 0 ? region : PaneRegion_GetGrpID(ic.kind->grp, 0, 0));
}

// The numbers that are selected of the source's class. Returns how many.
static int targets(int (&number)[TARGETS])
{
    int n = 0;
    const Id from = source();
    for (int main = 0; main < PaneRegion_GetMainMax(ic.kind->grp); main++)
        for (int sub = 0, id; (id = PaneRegion_GetGrpID(ic.kind->grp, main, sub)) > 0; sub++)
            if (n < TARGETS && PaneRegion_IsSelected(ic.kind->grp, id) &&
                strcmp(id_of(id).unit, from.unit) == 0)
                number[n++] = sub + 1;
    return n;
}

static bool is_unit_folder(const char* text, size_t length)
{
    if (length != UNIT_ID_SIZE - 1 ||
        (strncmp(text, "SWR", 3) != 0 && strncmp(text, "DME", 3) != 0))
        return false;
    for (size_t i = 3; i < length; i++)
        if (i == 6 ? text[i] != 'D' : !isdigit(uint8_t(text[i])))
            return false;
    return true;
}

static bool is_of_source(const char* folder)
{
    char digits[DIGITS + 1];
    const Id from = source();
    strncpy_secu(digits, folder + ic.kind->digits, sizeof digits, DIGITS);
    return BeginsWith(folder, from.unit) && strtol(digits, nullptr, 10) == from.number;
}

// The place of the unit's folder in a path below a directory, null when no unit has it.
static const char* unit_folder(const char* below)
{
    for (const char* p = below; *p; p += strspn(p, "/")) {
        const size_t length = strcspn(p, "/");
        if (p[length] == '/' && is_unit_folder(p, length))
            return p;
        p += length;
    }
    return nullptr;
}

// --- What the directories hold ---

// "MYHOST:<directory>/".
static bool dir_of(int side, char (&path)[PATH_SIZE])
{
    char dir[PATH_SIZE];
    const FILESIDE& s = visit().side[side];
    return File_DirPath(dir, sizeof dir, s.device, s.dir) &&
           PrintText(path, "%s/", dir) < PATH_SIZE;
}

// What of a path that a search of the side told stands behind the directory; null: it lies
// elsewhere.
static const char* below_dir(int side, const char* path)
{
    char dir[PATH_SIZE];
    constexpr char host[] = "MYHOST:";
    if (!dir_of(side, dir))
        return nullptr;
    if (BeginsWith(path, host))
        path += sizeof host - 1;
    const char* const place = dir + (BeginsWith(dir, host) ? sizeof host - 1 : 0);
    return BeginsWith(path, place) && !strstr(path, "/../") ? path + strlen(place) : nullptr;
}

static void count_file(Listing& l, int side, const char* unit, const char* below)
{
    Row row;
    strncpy_secu(row.unit, unit, sizeof row.unit, UNIT_ID_SIZE - 1);
    strncpy_secu(row.category, below, sizeof row.category, strcspn(below, "/"));
    int i = 0;
    while (i < l.rows &&
           (strcmp(l.row[i].unit, row.unit) != 0 || strcmp(l.row[i].category, row.category) != 0))
        i++;
    if (i == ROWS)
        return;
    if (i == l.rows) {
        l.row[l.rows++] = row;
        (void)LS_SetData(side + 1, i, COL_UNIT, l.row[i].unit);
        (void)LS_SetData(side + 1, i, COL_CATEGORY, l.row[i].category);
        (void)LS_SetData(side + 1, i, COL_FILES, l.row[i].count);
        (void)LS_SetNData(side + 1, l.rows);
    }
    PrintText(l.row[i].count, "%d", ++l.row[i].files);
    (void)LS_RedrawData(side + 1);
}

static void listing_tly(uint32_t label, int side, const char* path, const char* const*)
{
    if (!ic.kind || ic.listing[side].search != label)
        return; // the page has gone on
    if (!path) {
        ic.listing[side].search = 0;
        return;
    }
    const char* const below = below_dir(side, path);
    const char* const unit = below ? unit_folder(below) : nullptr;
    if (unit)
        count_file(ic.listing[side], side, unit, below);
}

static void forget_search(uint32_t& label)
{
    if (label != 0)
        (void)File_ExecUSBReload_cancel(label); // -1: it has ended meanwhile
    label = 0;
}

static void list_side(int side)
{
    char path[PATH_SIZE];
    Listing& l = ic.listing[side];
    forget_search(l.search);
    l = {};
    (void)LS_SetNData(side + 1, 0);
    (void)LS_RedrawData(side + 1);
    if (!dir_of(side, path))
        return;
    const int label = File_ExecFind(path, "*.*.*", listing_tly, side);
    if (label > 0)
        l.search = uint32_t(label);
}

// --- What the buttons show ---

static void enable_copy()
{
    int number[TARGETS] = {};
    const FILESIDE& to = visit().side[SIDE_B];
    BT_SetDisable(BTN_IDCOPY_COPY, targets(number) == 0 || File_DirIsProtected(to.device, to.dir));
}

static void show_side(int side)
{
    const FILESIDE& s = visit().side[side];
    CopyText(ic.device_caption[side], File_DriveCaption(s.device));
    (void)BT_SetCaption(side == SIDE_A ? BTN_IDCOPY_DEVICE_A : BTN_IDCOPY_DEVICE_B,
                        ic.device_caption[side]);
    (void)BT_SetCaption(side == SIDE_A ? BTN_IDCOPY_DIR_A : BTN_IDCOPY_DIR_B, s.dir);
}

static void print_id(char (&caption)[CAPTION_SIZE], int number)
{
    const bool is_unit = ic.kind == &kinds[0];
    PrintText(caption, is_unit ? "%s%d" : "%s\nGroup %d", source().unit, number);
}

static void show_ids()
{
    int number[TARGETS] = {};
    const int n = targets(number);
    print_id(ic.from_caption, source().number);
    if (n == 1)
        print_id(ic.to_caption, number[0]);
    else if (n == 0)
        CopyText(ic.to_caption, "Select");
    else
        PrintText(ic.to_caption, ic.kind == &kinds[0] ? "%d Units" : "%d Groups", n);
    (void)BT_SetCaption(BTN_IDCOPY_FROM, ic.from_caption);
    (void)BT_SetCaption(BTN_IDCOPY_TO, ic.to_caption);
    enable_copy();
}

// --- Choosing ---

static void side_chosen(int side)
{
    if (!ic.kind)
        return;
    show_side(side);
    list_side(side);
    enable_copy();
}

static void device_a_sel()
{
    (void)FileSelect_Device(&visit().side[SIDE_A], FILE_DRIVES_DISK, side_chosen, SIDE_A);
}
static void device_b_sel()
{
    (void)FileSelect_Device(&visit().side[SIDE_B], FILE_DRIVES_DISK, side_chosen, SIDE_B);
}
static void dir_a_sel()
{
    (void)FileSelect_Dir(&visit().side[SIDE_A], side_chosen, SIDE_A);
}
static void dir_b_sel()
{
    (void)FileSelect_Dir(&visit().side[SIDE_B], side_chosen, SIDE_B);
}
static void from_sel()
{
    ic.from_pane = PaneRegion_Create(ic.kind->grp, 1);
}
static void to_sel()
{
    ic.to_pane = PaneRegion_Create(ic.kind->grp, 0);
}

// --- Copy ---

static void refuse(const char* text)
{
    (void)PaneMessage_Create(ic.kind->name, PANE_ALERT, text);
}

static void end_busy()
{
    if (ic.busy_pane)
        (void)Pane_Quit(ic.busy_pane);
    ic.busy_pane = 0;
}

static void idcopy_result(uint32_t, int k)
{
    if (ic.kind != &kinds[k])
        return;
    list_side(SIDE_A);
    list_side(SIDE_B);
}

// Nothing is copied: it was cancelled, or it failed.
static void give_up()
{
    end_busy();
    forget_search(ic.gathering);
    ic.clearing = 0; // what the server still does is nobody's any more
    newest = {};
    File_XferList_RemoveAll(&visit().list);
}

// The step of the target that ends; false: it is of a copy that was given up.
static bool take_step(uint32_t label, int k)
{
    if (ic.kind != &kinds[k] || ic.clearing != label)
        return false;
    ic.clearing = 0;
    return true;
}

// The directory has been cleared.
static void cleared(uint32_t label, int k, const char* reply)
{
    if (!take_step(label, k))
        return;
    end_busy();
    newest = {};
    if (reply[0] != 'N' && File_ExecCopyList(&visit().list, idcopy_result, k) > 0)
        return;
    give_up();
    if (reply[0] == 'N')
        refuse(reply);
}

static bool step_of_target(int (*start)(const char* path, FILE_TEXT_FUNC retfunc, int tag),
                           FILE_TEXT_FUNC ended)
{
    char path[PATH_SIZE];
    const FILESIDE& to = visit().side[SIDE_B];
    const int label = File_DirPath(path, sizeof path, to.device, to.dir)
                          ? start(path, ended, int(ic.kind - kinds))
                          : -1;
    if (label < 1)
        return false;
    ic.clearing = uint32_t(label);
    return true;
}

// The directory is there: what it holds goes.
static void target_made(uint32_t label, int k, const char*)
{
    if (take_step(label, k) && !step_of_target(File_ExecRmdir, cleared))
        give_up();
}

static void clear_target()
{
    if (!step_of_target(File_ExecMkdir, target_made))
        give_up();
}

// "NAME.REGION_NUMBER.EXT". Of pictures only those of the older frame memory are known by their
// numbers; in the newer each name is one of its own.
static bool is_of_register(const char* below)
{
    if (BeginsWith(below, "FMEMFOL/") || (SYS_FmemV6 && BeginsWith(below, "FRAMEMEM/")))
        return false;
    const char* const ext = strrchr(below, '.');
    const char* number = ext;
    while (number && number > below && isdigit(uint8_t(number[-1])))
        number--;
    if (!number || number == ext || number == below || number[-1] != '_')
        return false;
    const char* const end = number - 1;
    const char* region = end;
    while (region > below &&
           (isupper(uint8_t(region[-1])) || isdigit(uint8_t(region[-1])) || region[-1] == '_'))
        region--;
    return region < end && region > below && region[-1] == '.';
}

// One item for each target.
static void add_file(const char* below, const char* unit, const char* date)
{
    char from[PATH_SIZE], to[PATH_SIZE], src[PATH_SIZE], dst[PATH_SIZE], digits[DIGITS + 1];
    int number[TARGETS] = {};
    const int n = targets(number);
    if (!dir_of(SIDE_A, from) || !dir_of(SIDE_B, to) ||
        PrintText(src, "%s%s", from, below) >= PATH_SIZE ||
        PrintText(dst, "%s%s", to, below) >= PATH_SIZE)
        return;
    char* const place = dst + strlen(to) + (unit - below) + ic.kind->digits;
    for (int i = 0; i < n; i++) {
        PrintText(digits, "%03d", number[i] % 1000);
        memcpy(place, digits, DIGITS);
        if (is_of_register(below))
            (void)FileNewest_Add(newest, &visit().list, src, dst, date);
        else
            (void)File_XferList_Add(&visit().list, src, dst);
    }
}

static void gather_tly(uint32_t label, int k, const char* path, const char* const* pair)
{
    if (ic.kind != &kinds[k] || ic.gathering != label)
        return;
    if (path) {
        const char* const below = below_dir(SIDE_A, path);
        const char* const unit = below ? unit_folder(below) : nullptr;
        if (unit && is_of_source(unit))
            add_file(below, unit, pair[1]);
        return;
    }
    ic.gathering = 0;
    if (File_FindFailed()) { // nothing is cleared for half of the files
        give_up();
        refuse("The source directory could not be read.");
        return;
    }
    if (visit().list) {
        clear_target();
        return;
    }
    end_busy();
    refuse("The source has no files in this directory.");
}

static void copy_exec()
{
    char path[PATH_SIZE];
    constexpr int cancel = 1; // the link may be down, and nothing has been changed yet
    if (visit().list || !dir_of(SIDE_A, path))
        return;
    ic.busy_pane = PaneProgress_Create(ic.kind->name, "Preparing...", cancel);
    const int label = File_ExecFind(path, "*.*.*", gather_tly, int(ic.kind - kinds));
    if (label > 0)
        ic.gathering = uint32_t(label);
    else
        end_busy();
}

static bool is_same_place()
{
    const FILESIDE& a = visit().side[SIDE_A];
    const FILESIDE& b = visit().side[SIDE_B];
    const bool is_same_name =
        a.device == FILE_REMOVABLE ? StrICmp(a.dir, b.dir) == 0 : strcmp(a.dir, b.dir) == 0;
    return a.device == b.device && is_same_name;
}

static void copy_sel()
{
    if (visit().list)
        return; // the job of the page is still there
    if (is_same_place()) {
        refuse("The Source and the target are the same\ndirectory.\n\n"
               "Please change the source or the target\ndirectory.");
        return;
    }
    ic.question_pane = PaneYesNo_Create(
        ic.kind->name, PANE_ALERT,
        "This operation will cause the contents of \ntarget directory will be cleared before "
        "copying\nfiles.\n\n\nContinue?");
}

// --- Messages ---

namespace
{
struct Command {
    const char* path;
    void (*run)();
};
constexpr Command commands[] = {
    {ID_COPY "Device A", device_a_sel}, {ID_COPY "Dir A", dir_a_sel},
    {ID_COPY "Device B", device_b_sel}, {ID_COPY "Dir B", dir_b_sel},
    {ID_COPY "From", from_sel},         {ID_COPY "To", to_sel},
    {ID_COPY "Copy", copy_sel},
};
} // namespace

static int button_pressed(const char* path)
{
    for (const Command& command : commands)
        if (strcmp(path, command.path) == 0 && ic.busy_pane == 0)
            command.run();
    return 0;
}

static int pane_closed(int pane, int result)
{
    constexpr int yes = 1;
    if (pane == 0)
        return 0;
    if (pane == ic.from_pane) {
        ic.from_pane = 0;
        if (id_of(result).number > 0)
            visit().from = result;
        show_ids();
    } else if (pane == ic.to_pane) {
        ic.to_pane = 0;
        show_ids();
    } else if (pane == ic.busy_pane) {
        ic.busy_pane = 0;
        give_up(); // the copy itself has a pane of its own
    } else if (pane == ic.question_pane) {
        ic.question_pane = 0;
        if (result == yes)
            copy_exec();
    }
    return 0;
}

static int idcopy_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!ic.kind || FileSelect_Proc(msg, ax, bx))
        return 0;
    switch (msg) {
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    default: return 0;
    }
}

// --- Opening and closing ---

static int leave()
{
    if (!ic.kind)
        return 1;
    if (ic.gathering != 0 || ic.clearing != 0)
        give_up();
    for (Listing& l : ic.listing)
        forget_search(l.search);
    FileSelect_Close();
    ic = {};
    return 1;
}

static int open(const Kind& kind)
{
    ic = {};
    ic.kind = &kind;
    for (int side = 0; side < SIDES; side++) {
        show_side(side);
        list_side(side);
    }
    show_ids();
    return 0;
}

static int unitcp_create(int on, uint32_t)
{
    return on ? open(kinds[0]) : leave();
}

static int groupcp_create(int on, uint32_t)
{
    return on ? open(kinds[1]) : leave();
}

const PC_TBL pc_file_unitcp = {.proc_func = idcopy_proc, .create_func = unitcp_create};
const PC_TBL pc_file_groupcp = {.proc_func = idcopy_proc, .create_func = groupcp_create};

void FileIdCopy_Reset()
{
    for (Visit& v : visits) {
        File_XferList_RemoveAll(&v.list);
        v = {};
    }
    ic = {};
}
