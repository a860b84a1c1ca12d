// The page Texture Package: the bitmaps of the removable drive, the patterns of the package in
// hand, and how they lie in the effects unit's texture memory.
#include "a_bt.h"
#include "a_ls.h"
#include "a_pc.h"
#include "colours.h"
#include "global.h"
#include "message.h"
#include "page_table/install.h"
#include "pane.h"
#include "process.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "texture_package.h"
#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <sys/stat.h>

#include "safeguards.h"

#define LOCAL_TEXTURE "LOCAL@Texture Package@"

namespace
{
enum : int { LIST_BITMAPS = 1, LIST_PATTERNS = 2 };
enum : int { COLUMN_NAME, COLUMN_SIZE, COLUMN_PLACE };
constexpr int STATUS_NORMAL = 0;
constexpr int STATUS_GREY = 1;
constexpr int BITMAPS_MAX = 256;
constexpr const char* NO_ROOM = "This oparation is cancelled, because capacity is full.\n";

// The picture of the memory: a square of squares.
constexpr int CELL_PX = 26;
constexpr Rect MEMORY = {100, 306, 100 + TEXTURE_EDGE* CELL_PX, 306 + TEXTURE_EDGE* CELL_PX};
constexpr Rect MEMORY_TITLE = {100, 286, MEMORY.x2, 301};
constexpr unsigned PATTERN_GROUND = 0x005A6E; // as the rows of a list
constexpr unsigned PATTERN_SELECTED = 0x00C8F0;
} // namespace

// The texts of the lists; they show them from here.
struct TextureRow {
    char size[16] = "";
    char place[8] = "";
};

static struct {
    TEXTURE bitmap[BITMAPS_MAX]; // of the drive, by name
    int bitmaps = 0;
    TextureRow bitmap_row[BITMAPS_MAX];
    TextureRow pattern_row[TEXTURE_MAX];
    bool is_dirty = false; // the picture
    int question_pane = 0;
    void (*on_yes)() = nullptr; // what the question is about
} tp;                           // valid from create(1) to create(0)

// --- The bitmaps of the drive ---

static int by_name(const void* a, const void* b)
{
    const auto& ta = *static_cast<const TEXTURE*>(a);
    const auto& tb = *static_cast<const TEXTURE*>(b);
    const int name = StrICmp(ta.name, tb.name);
    return name != 0 ? name : strcmp(ta.path, tb.path);
}

static bool is_bitmap(const char* name)
{
    const size_t n = strlen(name);
    return n > 4 && name[0] != '.' && StrICmp(name + n - 4, ".bmp") == 0;
}

// Of a folder and, with depth 1, of those in it.
static void find_bitmaps(const char* folder, int depth)
{
    DIR* const dir = opendir(folder);
    if (!dir)
        return;
    while (const dirent* entry = readdir(dir)) {
        char path[PATH_SIZE];
        struct stat st;
        if (entry->d_name[0] == '.' ||
            PrintText(path, "%s/%s", folder, entry->d_name) >= PATH_SIZE || stat(path, &st) != 0)
            continue;
        if (S_ISDIR(st.st_mode) && depth > 0)
            find_bitmaps(path, depth - 1);
        else if (S_ISREG(st.st_mode) && is_bitmap(entry->d_name) && tp.bitmaps < BITMAPS_MAX &&
                 Texture_ReadBitmap(&tp.bitmap[tp.bitmaps], path) == 0)
            tp.bitmaps++;
    }
    closedir(dir);
}

static void list_drive()
{
    char folder[PATH_SIZE];
    CopyText(folder, GL_ImportDataPath);
    const size_t n = strlen(folder);
    if (n > 1 && folder[n - 1] == '/')
        folder[n - 1] = '\0';
    tp.bitmaps = 0;
    if (folder[0])
        find_bitmaps(folder, 1);
    qsort(tp.bitmap, size_t(tp.bitmaps), sizeof tp.bitmap[0], by_name);
}

// --- The lists ---

static const TEXTURE* chosen_bitmap()
{
    const int row = LS_GetSelected(LIST_BITMAPS, 0);
    return row >= 0 && row < tp.bitmaps ? &tp.bitmap[row] : nullptr;
}

static int chosen_pattern()
{
    const int row = LS_GetSelected(LIST_PATTERNS, 0);
    return row < TextureMax ? row : -1;
}

static void enable_keys()
{
    const TEXTURE* const t = chosen_bitmap();
    const bool can_add = t && t->sizeX > 0 && TexturePackage_Find(t->name) < 0;
    BT_SetDisable(BTN_TEXTURE_ADD, !can_add);
    BT_SetDisable(BTN_TEXTURE_REMOVE, chosen_pattern() < 0);
    BT_SetDisable(BTN_TEXTURE_SAVE, TextureMax == 0);
}

// One that is no pattern for its size shows the pixels that it has.
static void show_bitmaps()
{
    LS_ClearData(LIST_BITMAPS);
    for (int row = 0; row < tp.bitmaps; row++) {
        const TEXTURE& t = tp.bitmap[row];
        TextureRow& text = tp.bitmap_row[row];
        const bool is_pattern = t.sizeX > 0;
        PrintText(text.size, is_pattern ? "%d x %d" : "%dx%d px", is_pattern ? t.sizeX : t.width_px,
                  is_pattern ? t.sizeY : t.height_px);
        LS_SetData(LIST_BITMAPS, row, COLUMN_NAME, t.name);
        LS_SetData(LIST_BITMAPS, row, COLUMN_SIZE, text.size);
        LS_SetHStatus(LIST_BITMAPS, row, is_pattern ? STATUS_NORMAL : STATUS_GREY);
    }
    LS_SetNData(LIST_BITMAPS, tp.bitmaps);
    LS_RedrawData(LIST_BITMAPS);
}

static void show_patterns(int selected)
{
    LS_ClearData(LIST_PATTERNS);
    for (int row = 0; row < TextureMax; row++) {
        const TEXTURE& t = Texture[row];
        TextureRow& text = tp.pattern_row[row];
        PrintText(text.size, "%d x %d", t.sizeX, t.sizeY);
        PrintText(text.place, "%d,%d", t.x, t.y);
        LS_SetData(LIST_PATTERNS, row, COLUMN_NAME, t.name);
        LS_SetData(LIST_PATTERNS, row, COLUMN_SIZE, text.size);
        LS_SetData(LIST_PATTERNS, row, COLUMN_PLACE, text.place);
    }
    LS_SetNData(LIST_PATTERNS, TextureMax);
    if (selected >= 0 && TextureMax > 0)
        LS_SetNowLine(LIST_PATTERNS, std::min(selected, TextureMax - 1));
    LS_RedrawData(LIST_PATTERNS);
    tp.is_dirty = true;
    enable_keys();
}

// --- The picture ---

static void draw_pattern(const TEXTURE& t, int number, bool is_selected)
{
    const int x1 = MEMORY.x1 + t.x * CELL_PX, x2 = x1 + t.sizeX * CELL_PX;
    const int y1 = MEMORY.y1 + t.y * CELL_PX, y2 = y1 + t.sizeY * CELL_PX;
    TDL_FillRectS(x1 + 1, y1 + 1, x2 - 1, y2 - 1, is_selected ? PATTERN_SELECTED : PATTERN_GROUND);
    TDL_RectS(x1, y1, x2, y2, SEPARATOR);
    TDL_SymbolCS(x1, y1, x2, y2, NumStr(number), 3, is_selected ? BLACK : WHITE);
}

static void draw_memory()
{
    char used[32];
    PrintText(used, "Memory: %d of %d", TexturePackage_Units(), TEXTURE_EDGE * TEXTURE_EDGE);
    TDL_FillRectS(MEMORY_TITLE.x1, MEMORY_TITLE.y1, MEMORY.x2, MEMORY.y2, BLACK);
    TDL_SymbolS(MEMORY_TITLE.x1, MEMORY_TITLE.y1, used, 3, WHITE);
    for (int i = 0; i <= TEXTURE_EDGE; i++) {
        TDL_LineHS(MEMORY.x1, MEMORY.y1 + i * CELL_PX, MEMORY.x2 - MEMORY.x1 + 1, GROUP_FRAME);
        TDL_LineVS(MEMORY.x1 + i * CELL_PX, MEMORY.y1, MEMORY.y2 - MEMORY.y1 + 1, GROUP_FRAME);
    }
    for (int i = 0; i < TextureMax; i++)
        draw_pattern(Texture[i], i + 1, i == chosen_pattern());
    TDL_UpdateRect(MEMORY_TITLE.x1, MEMORY_TITLE.y1, MEMORY.x2, MEMORY.y2);
}

// --- Keys ---

static void refuse(const char* text)
{
    (void)PaneMessage_Create("Texture Package", PANE_ALERT, text);
}

static void ask(const char* text, void (*on_yes)())
{
    tp.on_yes = on_yes;
    tp.question_pane = PaneYesNo_Create("Texture Package", PANE_ALERT, text);
}

static void add_chosen()
{
    const TEXTURE* const t = chosen_bitmap();
    if (!t || t->sizeX == 0 || TexturePackage_Find(t->name) >= 0)
        return;
    if (TexturePackage_Add(*t) != 0)
        refuse(NO_ROOM);
    else
        show_patterns(TextureMax - 1);
}

static void remove_chosen()
{
    const int index = chosen_pattern();
    if (index < 0)
        return;
    if (TexturePackage_Remove(index) != 0)
        refuse(NO_ROOM);
    else
        show_patterns(index);
}

static void refresh()
{
    list_drive();
    show_bitmaps();
    enable_keys();
}

static void load_package()
{
    if (TexturePackage_Read(GL_ImportDataPath) != 0)
        refuse("The package does not exist on the\nremovable drive, or is damaged.");
    else
        show_patterns(0);
}

static void load_sel()
{
    if (TextureMax == 0)
        load_package();
    else
        ask("The patterns in the list will be replaced by\nthose of the removable "
            "drive.\n\nContinue?",
            load_package);
}

static void save_package()
{
    if (TexturePackage_Write(GL_ImportDataPath) != 0)
        refuse("The package has not been stored.\nMake sure of the removable drive.");
    else
        (void)PaneMessage_Create("Texture Package", PANE_INFO,
                                 "The package has been stored in\n" TEXTURE_FOLDER
                                 ".\n\nNew Install sends it to the DME.");
}

static void save_sel()
{
    char path[PATH_SIZE];
    PrintText(path, "%s" TEXTURE_FOLDER "/" TEXTURE_FILE, GL_ImportDataPath);
    if (FileExist(path))
        ask("The package on the removable drive will be\nreplaced.\n\nContinue?", save_package);
    else
        save_package();
}

// --- Messages ---

namespace
{
struct Command {
    const char* path;
    void (*run)();
};
constexpr Command commands[] = {
    {LOCAL_TEXTURE "Add", add_chosen},  {LOCAL_TEXTURE "Remove", remove_chosen},
    {LOCAL_TEXTURE "Refresh", refresh}, {LOCAL_TEXTURE "Load", load_sel},
    {LOCAL_TEXTURE "Save", save_sel},
};
} // namespace

static int texture_button(const char* path)
{
    for (const Command& command : commands)
        if (Same(path, command.path))
            command.run();
    return 0;
}

static int texture_pane_closed(int pane, int result)
{
    constexpr int YES = 1;
    if (pane == 0 || pane != tp.question_pane)
        return 0;
    tp.question_pane = 0;
    if (result == YES && tp.on_yes)
        tp.on_yes();
    return 0;
}

static int texture_list_touched(int list)
{
    tp.is_dirty |= list == LIST_PATTERNS;
    enable_keys();
    return 0;
}

static int texture_redraw()
{
    if (tp.is_dirty)
        draw_memory();
    tp.is_dirty = false;
    return 0;
}

static int pc_texture_package_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return texture_redraw();
    case LMSG_BTNSEL: return texture_button(Text(ax));
    case LMSG_PANEQUIT: return texture_pane_closed(int(ax), int(bx));
    case LMSG_LISTSEL: return texture_list_touched(int(ax));
    default: return 0;
    }
}

static int pc_texture_package_create(int on, uint32_t)
{
    tp.bitmaps = 0;
    tp.question_pane = 0;
    tp.on_yes = nullptr;
    tp.is_dirty = false;
    if (!on)
        return 1;
    refresh();
    show_patterns(-1);
    return 0;
}

const PC_TBL pc_texture_package = {.proc_func = pc_texture_package_proc,
                                   .create_func = pc_texture_package_create};
