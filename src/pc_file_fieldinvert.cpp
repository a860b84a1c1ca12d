#include "pc_file_fieldinvert.h"
#include "a_bt.h"
#include "a_ls.h"
#include "file.h"
#include "file_dir.h"
#include "file_private.h"
#include "global.h"
#include "message.h"
#include "pane.h"
#include "pc_file.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "safeguards.h"

#define FIELD_INVERT "LOCAL@File@Field Invert@"

namespace
{
constexpr int LIST = 1;
constexpr int ROWS = 5662; // as many as there are registers
constexpr int CAPTION_SIZE = 40;
constexpr char HOST[] = "MYHOST:";
enum : int {
    COL_NO,
    COL_NAME,
    COL_TIME,
    COL_VERSION,
    COL_FORMAT,
    COL_MODE,
    COL_MODIFIED,
    COL_INVERT
};
} // namespace

static FILESIDE DevInvert = {.device = FILE_LOCAL}; // kept when the page is left
static FILEXFERLIST* InvertList = nullptr;          // being put together, or of the job that runs
static FILELIST_FI frames[ROWS];

static struct {
    bool is_open = false;
    int rows = 0;        // of frames
    uint32_t search = 0; // label, 0 none
    int question_pane = 0;
    char device_caption[CAPTION_SIZE]; // the button shows it from here
} fi;                                  // valid from create(1) to create(0)

// --- A row ---

// "NAME.FMEM_012.SFM" in its two parts that are shown. False: a frame is not called so.
static bool read_name(const char* file, FILELIST_FI* row)
{
    const char* const ext = strrchr(file, '.');
    if (!ext || ext == file || strncmp(ext, ".SF", 3) != 0)
        return false;
    const char* number = ext;
    while (number > file && isdigit(uint8_t(number[-1])))
        number--;
    const char* region = number;
    while (region > file && *region != '.')
        region--;
    if (number == ext || ext - number > 4 || region == file)
        return false;
    strncpy_secu(row->number, number, sizeof row->number, size_t(ext - number));
    strncpy_secu(row->cell.name, file, sizeof row->cell.name, size_t(region - file));
    return true;
}

int File_ReadFrameRow(const char* text, const char* dir, FILELIST_FI* row)
{
    constexpr int FIELDS = 7;
    char copy[CMD_SIZE];
    char* field[FIELDS] = {};
    CopyText(copy, text);
    int n = 0;
    for (char* p = copy; p && n < FIELDS; n++) {
        field[n] = p;
        p = strchr(p, ',');
        if (p)
            *p++ = '\0';
        if (n == FIELDS - 1 && p)
            return -1;
    }
    if (n != FIELDS)
        return -1;
    const size_t host = sizeof HOST - 1;
    const char* const path = BeginsWith(field[0], HOST) ? field[0] + host : field[0];
    const char* const place = BeginsWith(dir, HOST) ? dir + host : dir;
    const char* const slash = strrchr(path, '/');
    FILELIST_FI found;
    if (!BeginsWith(path, place) || !slash || strstr(path, "/../") ||
        strlen(path) + host >= PATH_SIZE || !read_name(slash + 1, &found))
        return -1;
    FILECELL_FI& cell = found.cell;
    CopyText(cell.path, path);
    char when[24];
    file_reduce_date(when, field[1]);
    CopyText(cell.time, when);
    CopyText(cell.version, field[2]);
    CopyText(cell.format, field[3]);
    CopyText(cell.mode, field[4]);
    CopyText(cell.modified, field[5]);
    CopyText(cell.invert, field[6]);
    *row = found;
    return 0;
}

// --- The list ---

// The numbers of the converters; another text is shown as it is.
static const char* format_caption(const char* format)
{
    static constexpr const char* names[] = {"480i", "576i", "1080i", "720P", "1080P/25", "1080P"};
    const long n = strtol(format, nullptr, 10);
    return format[0] && !format[1] && n >= 1 && n <= long(std::size(names)) ? names[n - 1] : format;
}

// Nothing for a picture like most; another number is shown as it is.
static const char* mode_caption(const char* mode)
{
    return Same(mode, "1") ? "4K" : Same(mode, "0") ? "" : mode;
}

static const char* mark(const char* flag)
{
    return Same(flag, "1") ? "O" : Same(flag, "0") ? "" : flag;
}

static void enable_key()
{
    BT_SetDisable(BTN_INVERT_EXEC, LS_GetSelected(LIST, 0) < 0 || fi.rows == 0 || InvertList ||
                                       File_DirIsProtected(DevInvert.device, DevInvert.dir));
}

static void fill_row(int n)
{
    const FILECELL_FI& cell = frames[n].cell;
    (void)LS_SetData(LIST, n, COL_NO, frames[n].number);
    (void)LS_SetData(LIST, n, COL_NAME, cell.name);
    (void)LS_SetData(LIST, n, COL_TIME, cell.time);
    (void)LS_SetData(LIST, n, COL_VERSION, cell.version);
    (void)LS_SetData(LIST, n, COL_FORMAT, format_caption(cell.format));
    (void)LS_SetData(LIST, n, COL_MODE, mode_caption(cell.mode));
    (void)LS_SetData(LIST, n, COL_MODIFIED, mark(cell.modified));
    (void)LS_SetData(LIST, n, COL_INVERT, mark(cell.invert));
}

static void show_row(int n)
{
    fill_row(n);
    (void)LS_SetNData(LIST, n + 1);
    (void)LS_RedrawData(LIST);
}

// Files come by their names; who looks for a frame knows its number.
static void sort_rows()
{
    const auto is_before = [](const FILELIST_FI& a, const FILELIST_FI& b) {
        const int order = Decimal(a.number) - Decimal(b.number);
        return order ? order < 0 : strcmp(a.cell.path, b.cell.path) < 0;
    };
    if (std::is_sorted(frames, frames + fi.rows, is_before))
        return;
    std::sort(frames, frames + fi.rows, is_before);
    LS_SetALL(LIST, 0); // the rows that were chosen meanwhile are others now
    for (int n = 0; n < fi.rows; n++)
        fill_row(n);
    (void)LS_RedrawData(LIST);
}

// Where the frames of the directory are, as the frame memory at hand keeps them.
static bool frames_dir(char (&path)[PATH_SIZE])
{
    const FILESIDE& s = DevInvert;
    return SYS_FmemV6 ? File_FrameFolderPath(path, sizeof path, s.device, s.dir, "")
                      : File_CategoryPath(path, sizeof path, s.device, s.dir, "FRAMEMEM");
}

static void fieldinvert_tly(uint32_t label, int, const char* text)
{
    char dir[PATH_SIZE];
    if (!fi.is_open || label != fi.search)
        return; // the page has gone on
    if (!text) {
        fi.search = 0;
        sort_rows();
        enable_key();
    } else if (fi.rows < ROWS && frames_dir(dir) &&
               File_ReadFrameRow(text, dir, &frames[fi.rows]) == 0) {
        show_row(fi.rows++);
    }
}

static void forget_search()
{
    if (fi.search != 0)
        (void)File_ExecUSBReload_cancel(fi.search); // -1: it has ended meanwhile
    fi.search = 0;
}

static void list_frames()
{
    char dir[PATH_SIZE];
    forget_search();
    fi.rows = 0;
    LS_ClearData(LIST);
    (void)LS_SetNData(LIST, 0);
    (void)LS_RedrawData(LIST);
    enable_key();
    if (!frames_dir(dir))
        return;
    const int label = File_ExecFindSFM(dir, "*.*.*", fieldinvert_tly, 0);
    if (label > 0)
        fi.search = uint32_t(label);
}

// --- Device and directory ---

static void show_side()
{
    CopyText(fi.device_caption, File_DriveCaption(DevInvert.device));
    (void)BT_SetCaption(BTN_INVERT_DEVICE, fi.device_caption);
    (void)BT_SetCaption(BTN_INVERT_DIR, DevInvert.dir);
}

static void side_chosen(int)
{
    if (!fi.is_open)
        return;
    show_side();
    list_frames();
}

static void device_sel()
{
    (void)FileSelect_Device(&DevInvert, FILE_DRIVES_DISK, side_chosen, 0);
}

static void dir_sel()
{
    (void)FileSelect_Dir(&DevInvert, side_chosen, 0);
}

// --- Invert ---

static void fieldinvert_result(uint32_t, int)
{
    if (fi.is_open)
        list_frames();
}

static void fieldinvert_exec()
{
    char path[PATH_SIZE];
    if (InvertList)
        return; // the job of the page is still there
    for (int i = 0, n; (n = LS_GetSelected(LIST, i)) >= 0; i++)
        if (n < fi.rows && PrintText(path, "%s%s", HOST, frames[n].cell.path) < PATH_SIZE)
            (void)File_XferList_Add(&InvertList, path, "");
    if (InvertList && File_ExecFieldInvert(&InvertList, fieldinvert_result, 0) < 0)
        File_XferList_RemoveAll(&InvertList);
    enable_key();
}

static void execute_sel()
{
    if (fi.rows > 0 && LS_GetSelected(LIST, 0) >= 0 && !InvertList)
        fi.question_pane =
            PaneYesNo_Create("Field Invert", PANE_ALERT,
                             "This operation will starts field invert on the files.\n\nContinue?");
}

// --- Messages ---

namespace
{
struct Command {
    const char* path;
    void (*run)();
};
constexpr Command commands[] = {
    {FIELD_INVERT "Device", device_sel},
    {FIELD_INVERT "Dir", dir_sel},
    {FIELD_INVERT "Execute", execute_sel},
};
} // namespace

static int button_pressed(const char* path)
{
    for (const Command& command : commands)
        if (strcmp(path, command.path) == 0)
            command.run();
    return 0;
}

static int pane_closed(int pane, int result)
{
    constexpr int yes = 1;
    if (pane == 0 || pane != fi.question_pane)
        return 0;
    fi.question_pane = 0;
    if (result == yes)
        fieldinvert_exec();
    return 0;
}

static int fieldinvert_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (FileSelect_Proc(msg, ax, bx))
        return 0;
    switch (msg) {
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    case LMSG_FILESTATUS: // the job has gone by now
    case LMSG_LISTSEL:
    case LMSG_LISTFLASH: enable_key(); return 0;
    default: return 0;
    }
}

static int fieldinvert_create(int on, uint32_t)
{
    if (!on) {
        forget_search();
        if (fi.is_open)
            FileSelect_Close();
        fi = {};
        return 1;
    }
    fi = {};
    fi.is_open = true;
    File_ShowFrameTabs();
    show_side();
    list_frames();
    return 0;
}

const PC_TBL pc_file_fieldinvert = {.proc_func = fieldinvert_proc,
                                    .create_func = fieldinvert_create};

void FileFieldInvert_Reset()
{
    File_XferList_RemoveAll(&InvertList);
    DevInvert = {.device = FILE_LOCAL};
    fi = {};
}
