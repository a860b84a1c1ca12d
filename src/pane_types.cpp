// The dialogs: how each is laid out, what its buttons do and what its end means.
#include "memory.h"
#include "pane_private.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

constexpr int CENTRE_X = 400;
constexpr int CENTRE_Y = 300;
constexpr Rect WORK_AREA = {97, 73, 702, 526};

static constexpr Rect Box(int x, int y, int w, int h)
{
    return {x, y, x + w - 1, y + h - 1};
}

static constexpr Rect Centred(int w, int h)
{
    return Box(CENTRE_X - w / 2, CENTRE_Y - h / 2, w, h);
}

// --- Messages, questions, progress ---

constexpr Rect MESSAGE_BOX = {200, 140, 599, 439};
constexpr int BTN_OK = 1;
constexpr int YESNO_YES = 1;
constexpr int YESNO_NO = 2;

static constexpr BUTTON Button_Message[] = {
    {.id = BTN_OK, .caption = "OK", .type = LOOK_KEY, .x1 = 153, .y1 = 247},
    {.id = 2, .type = LOOK_UP, .x1 = 337, .y1 = 66},
    {.id = 3, .type = LOOK_DOWN, .x1 = 337, .y1 = 199},
    {.id = BUTTON_END},
};
static constexpr BUTTON Button_YesNo[] = {
    {.id = YESNO_YES, .caption = "Yes", .type = LOOK_KEY, .x1 = 97, .y1 = 247},
    {.id = YESNO_NO, .caption = "No", .type = LOOK_KEY, .x1 = 210, .y1 = 247},
    {.id = 3, .type = LOOK_UP, .x1 = 337, .y1 = 66},
    {.id = 4, .type = LOOK_DOWN, .x1 = 337, .y1 = 199},
    {.id = BUTTON_END},
};
static constexpr BUTTON Button_Progress[] = {
    {.id = BTN_OK, .caption = "Cancel", .type = LOOK_KEY, .x1 = 153, .y1 = 247},
    {.id = 2, .type = LOOK_UP, .x1 = 337, .y1 = 121},
    {.id = 3, .type = LOOK_DOWN, .x1 = 337, .y1 = 199},
    {.id = BUTTON_END},
};
static constexpr BUTTON Button_Progress_NoCancel[] = {
    {.id = 2, .type = LOOK_UP, .x1 = 337, .y1 = 121},
    {.id = 3, .type = LOOK_DOWN, .x1 = 337, .y1 = 199},
    {.id = BUTTON_END},
};
constexpr int MESSAGE_BUTTONS = 4; // at most

SCROLLTEXT* pane_text(PANE* pane)
{
    switch (pane->type) {
    case TYPE_MESSAGE:
    case TYPE_YESNO: return &pane->each.message.text;
    case TYPE_PROGRESS: return &pane->each.progress.text;
    default: return nullptr;
    }
}

// The first line of the last page of a text.
static int last_page(const PANE* pane, const SCROLLTEXT* text)
{
    const int in_view = pane->type == TYPE_PROGRESS ? PROGRESS_LINES : TEXT_LINES;
    return std::max(0, text->line - (in_view + 1));
}

// A text counts as ended by a break, whether it is or not.
static void count_lines(SCROLLTEXT* text)
{
    const size_t length = strlen(text->mes);
    const bool is_ended = length > 0 && text->mes[length - 1] == '\n';
    text->line = TDL_GetSymbolLine(TEXT_WIDTH, text->mes, TEXT_FONT) + !is_ended;
}

static int text_append(SCROLLTEXT* text, const char* more)
{
    const size_t size = (text->mes ? strlen(text->mes) : 0) + strlen(more) + 1;
    auto* mes = static_cast<char*>(GDL_Realloc(text->mes, size));
    if (!mes)
        return -1;
    if (!text->mes)
        mes[0] = '\0';
    ktr_strncat(mes, more, size);
    text->mes = mes;
    count_lines(text);
    return 0;
}

void pane_free_text(PANE* pane)
{
    if (SCROLLTEXT* text = pane_text(pane))
        GDL_Free(text->mes);
    if (pane->type == TYPE_PROGRESS)
        GDL_Free(pane->each.progress.progmes);
}

static PANE* message_create(TYPE type, const char* caption, const char* mes, const BUTTON* buttons)
{
    PANE* pane = pane_create(type, caption, MESSAGE_BOX, MESSAGE_BUTTONS);
    if (!pane)
        return nullptr;
    for (const BUTTON* b = buttons; b->id != BUTTON_END; b++)
        (void)pane_add(pane, *b);                       // there is room
    (void)text_append(pane_text(pane), mes ? mes : ""); // without memory the box is empty
    return pane;
}

int PaneMessage_Create(const char* caption, int icon, const char* mes)
{
    PANE* pane = message_create(TYPE_MESSAGE, caption, mes, Button_Message);
    if (!pane)
        return 0;
    pane->each.message.icon = icon;
    return pane->id;
}

int PaneYesNo_Create(const char* caption, int icon, const char* mes)
{
    PANE* pane = message_create(TYPE_YESNO, caption, mes, Button_YesNo);
    if (!pane)
        return 0;
    pane->each.message.icon = icon;
    return pane->id;
}

int PaneProgress_Create(const char* caption, const char* mes, int cancel)
{
    const PANE* pane = message_create(TYPE_PROGRESS, caption, mes,
                                      cancel ? Button_Progress : Button_Progress_NoCancel);
    return pane ? pane->id : 0;
}

int Pane_AppendMessage(int id, const char* text)
{
    PANE* pane = pane_find(id);
    if (!pane)
        return -1;
    SCROLLTEXT* scroll = pane_text(pane);
    if (!scroll)
        return -2;
    if (!text || !*text)
        return 0;
    if (text_append(scroll, text) != 0)
        return 0; // out of memory: the line is lost, the pane goes on
    scroll->topline = last_page(pane, scroll);
    pane->text_redraw = 1;
    return 0;
}

// 0 with the pane, or what a call for the wrong one answers.
static int find_progress(int id, PANE** pane)
{
    *pane = pane_find(id);
    if (!*pane)
        return -1;
    return (*pane)->type == TYPE_PROGRESS ? 0 : -2;
}

// Whether the text is another one now.
static bool set_progmes(PANE* pane, const char* text)
{
    char*& progmes = pane->each.progress.progmes;
    if (!text || strcmp(progmes ? progmes : "", text) == 0)
        return false;
    GDL_Free(progmes);
    progmes = GDL_StrDup(text);
    return true;
}

int PaneProgress_SetProg(int id, int percent, const char* text)
{
    PANE* pane;
    if (const int error = find_progress(id, &pane))
        return error;
    auto& progress = pane->each.progress;
    percent = std::clamp(percent, 0, 100);
    const bool has_text = set_progmes(pane, text);
    if (percent == progress.prog && !has_text)
        return 0;
    progress.prog = percent;
    progress.prog_redraw = 1;
    return 0;
}

int PaneProgress_SetRouteLamp(int id, int on)
{
    PANE* pane;
    if (const int error = find_progress(id, &pane))
        return error;
    auto& progress = pane->each.progress;
    if (progress.lamp == on)
        return 0;
    progress.lamp = on;
    progress.prog_redraw = 1;
    return 0;
}

static void scroll(PANE* pane, int step)
{
    SCROLLTEXT* text = pane_text(pane);
    const int topline = std::clamp(text->topline + step, 0, last_page(pane, text));
    if (topline == text->topline)
        return;
    text->topline = topline;
    pane->text_redraw = 1;
}

// Answers come before the arrows, in all three sets.
static void message_select(PANE* pane, int id)
{
    for (const BUTTON* b = pane->button; b->id != BUTTON_END; b++) {
        if (b->id != id)
            continue;
        if (b->type == LOOK_KEY)
            pane->quitmem = id;
        else
            scroll(pane, b->type == LOOK_UP ? -1 : 1);
    }
}

// --- Grids ---

void pane_add_grid(PANE* pane, const PaneGrid& grid, const BTNSEL* cells, int count)
{
    for (int i = 0; i < count; i++) {
        const bool is_empty = cells[i].id <= 0;
        if (is_empty && !grid.keep_empty)
            continue;
        const char* caption = cells[i].caption ? cells[i].caption : "";
        const int place = i % (grid.columns * grid.rows);
        (void)pane_add(pane, {.id = std::max(0, cells[i].id),
                              .caption = caption,
                              .type = grid.look,
                              .x1 = grid.x + place % grid.columns * grid.dx,
                              .y1 = grid.y + place / grid.columns * grid.dy,
                              .onoff = is_empty ? 0 : cells[i].select,
                              .disable = is_empty,
                              .hidden = is_empty && !*caption});
    }
}

static void add_bottom_key(PANE* pane, int id, const char* caption, int look, int x)
{
    (void)pane_add(pane, {.id = id, .caption = caption, .type = look, .x1 = x, .y1 = pane->h - 50});
}

// A centred pane of cells with "Cancel" below them: margins of 15 and 11, and 50 for the key.
static int grid_create(TYPE type, const char* caption, const PaneGrid& grid, const BTNSEL* cells)
{
    if (grid.columns < 1 || grid.rows < 1 || !cells)
        return 0;
    const int w = grid.dx * grid.columns + 26;
    const int h = grid.dy * grid.rows + 76;
    const int count = grid.columns * grid.rows;
    PANE* pane = pane_create(type, caption, Centred(w, h), count + 1);
    if (!pane)
        return 0;
    pane_add_grid(pane, grid, cells, count);
    add_bottom_key(pane, BTN_CANCEL, "Cancel", LOOK_ENTER, w / 2 - 30);
    return pane->id;
}

int PaneSelect_Create(int hn, int vn, const BTNSEL* btnsel)
{
    return grid_create(TYPE_SELECT, "Select", {hn, vn, 15, 15, 64, 44, LOOK_CELL}, btnsel);
}

int PaneSelect_Color_Button_Create(int hn, int vn, const BTNSEL* btnsel)
{
    return grid_create(TYPE_COLOR, "Select", {hn, vn, 15, 15, 89, 70, LOOK_COLOUR}, btnsel);
}

int PanePopup_Create(int vn, int hn, const BTNSEL* btnsel)
{
    return grid_create(TYPE_POPUP, "Popup", {hn, vn, 15, 15, 78, 43, LOOK_POPUP}, btnsel);
}

int FMOutPopup_Create(int vn, int hn, const BTNSEL* btnsel)
{
    return grid_create(TYPE_FMOUT, "Popup", {hn, vn, 15, 15, 105, 50, LOOK_FMOUT}, btnsel);
}

static void choice_select(PANE* pane, int id)
{
    pane->quitmem = id == BTN_CANCEL ? int(QUIT_SILENT) : id;
}

static BUTTON* popup_button(int id, PANE** owner)
{
    PANE* popup = pane_find_type(TYPE_POPUP);
    PANE* fmout = pane_find_type(TYPE_FMOUT);
    PANE* pane = popup ? popup : fmout;
    *owner = pane;
    for (BUTTON* b = pane ? pane->button : nullptr; b && b->id != BUTTON_END; b++)
        if (b->id == id)
            return b;
    return nullptr;
}

int PanePopup_BtnDisable(int id, int on)
{
    PANE* pane;
    BUTTON* b = popup_button(id, &pane);
    if (!b)
        return -1;
    b->disable = on != 0;
    b->redraw = 1;
    return 0;
}

int PanePopup_BtnCutOff(int id, int on)
{
    PANE* pane;
    BUTTON* b = popup_button(id, &pane);
    if (!b)
        return -1;
    b->hidden = on != 0;
    pane->inside_redraw = 1; // the ground shows where it was
    return 0;
}

// --- Pull-down ---

int PanePullDown_Create(int, int y, int n, const BTNSEL* items)
{
    constexpr int RIGHT = 691;
    constexpr int DX = 103;
    constexpr int DY = 48;
    constexpr int ROWS_MAX = 9; // as the work area has
    if (n < 1 || !items)
        return 0;
    const int rows = std::min(n, ROWS_MAX);
    const int columns = (n + rows - 1) / rows;
    const int w = columns * DX + 18;
    const int h = rows * DY + 18;
    y = std::clamp(y, WORK_AREA.y1, WORK_AREA.y2 + 1 - h);
    PANE* pane = pane_create(TYPE_PULLDOWN, "PullDown", Box(RIGHT - w + 1, y, w, h), n);
    if (!pane)
        return 0;
    const int look = columns > 1 ? LOOK_LONG_ITEM : LOOK_ITEM;
    pane_add_grid(pane, {columns, rows, 10, 10, DX, DY, look}, items, n);
    return pane->id;
}

// --- Router level ---

constexpr int ROUTER_LEVELS = 8;
static BTNSEL RTRLVLBtn_RTRLEVEL[ROUTER_LEVELS] = {
    {1, "Level 1", 0}, {2, "Level 2", 0}, {3, "Level 3", 0}, {4, "Level 4", 0},
    {5, "Level 5", 0}, {6, "Level 6", 0}, {7, "Level 7", 0}, {8, "Level 8", 0},
};

int PaneRTRLvl_Create(int single)
{
    constexpr int W = 538;
    const Rect place = single ? Box(131, 390, W, 70) : Box(131, 335, W, 120);
    PANE* pane = pane_create(TYPE_RTRLVL, "Router Level", place, ROUTER_LEVELS + 1);
    if (!pane)
        return 0;
    pane->each.choice.single = single != 0;
    pane_add_grid(pane, {ROUTER_LEVELS, 1, 15, 15, 64, 44, LOOK_CELL}, RTRLVLBtn_RTRLEVEL,
                  ROUTER_LEVELS);
    if (!single)
        add_bottom_key(pane, BTN_ENTER, "Enter", LOOK_ENTER, W / 2 - 30);
    return pane->id;
}

void PaneRTRLvl_SetSelect(int bits)
{
    for (int level = 0; level < ROUTER_LEVELS; level++)
        RTRLVLBtn_RTRLEVEL[level].select = bits >> level & 1;
}

void PaneRTRLvl_LvlSetSelect(int level, int on)
{
    if (level >= 0 && level < ROUTER_LEVELS)
        RTRLVLBtn_RTRLEVEL[level].select = on != 0;
}

int PaneRTRLvl_IsSelected(int level)
{
    return level >= 0 && level < ROUTER_LEVELS ? RTRLVLBtn_RTRLEVEL[level].select : 0;
}

int PaneRTRLvl_Selected()
{
    int bits = 0;
    for (int level = 0; level < ROUTER_LEVELS; level++)
        bits |= RTRLVLBtn_RTRLEVEL[level].select << level;
    return bits;
}

static void level_select(PANE* pane, int id)
{
    if (id == BTN_ENTER) {
        for (int level = 0; level < ROUTER_LEVELS; level++)
            RTRLVLBtn_RTRLEVEL[level].select = pane->button[level].onoff;
        pane->quitmem = 1;
        return;
    }
    if (id < 1 || id > ROUTER_LEVELS)
        return;
    if (pane->each.choice.single) {
        pane->quitmem = id;
        return;
    }
    BUTTON* b = &pane->button[id - 1];
    b->onoff = !b->onoff;
    b->redraw = 1;
}

static void level_press_beside(PANE* pane)
{
    if (pane->each.choice.single)
        pane->quitmem = QUIT_SILENT;
}

// --- Find ---

static constexpr BUTTON Button_Find[] = {
    {.id = PANEFIND_TEXT, .caption = "Text", .type = LOOK_TEXT, .x1 = 12, .y1 = 36},
    {.id = PANEFIND_PREV, .type = LOOK_UP, .x1 = 124, .y1 = 33},
    {.id = PANEFIND_NEXT, .type = LOOK_DOWN, .x1 = 124, .y1 = 70},
    {.id = PANEFIND_CLOSE, .caption = "Close", .type = LOOK_ENTER, .x1 = 110, .y1 = 107},
    {.id = BUTTON_END},
};

int PaneFind_Create(int x, int y, int indicator)
{
    PANE* pane = pane_create(TYPE_FIND, "Find", Box(x, y, 175, 150), 4);
    if (!pane)
        return 0;
    for (const BUTTON* b = Button_Find; b->id != BUTTON_END; b++)
        (void)pane_add(pane, *b); // there is room
    pane->each.find.indicator = indicator != 0;
    return pane->id;
}

int PaneFind_Indicator(int on)
{
    PANE* pane = pane_find_type(TYPE_FIND);
    if (!pane)
        return -1;
    pane->each.find.indicator = on != 0;
    if (pane->redraw == 0 && pane == pane_top())
        pane_draw_indicator(pane); // a search holds the loop up: it must be seen now
    else
        pane->redraw = 1;
    return 0;
}

static void find_select(PANE* pane, int id)
{
    if (id == PANEFIND_CLOSE)
        pane->quitmem = QUIT_SILENT;
}

// --- Directories ---

int pane_page_size(const PANE* pane)
{
    switch (pane->type) {
    case TYPE_DIRECTORY: return DIRECTORY_PAGE;
    case TYPE_FMFOLDER: return FOLDER_PAGE;
    default: return 0;
    }
}

static void mark_ends(PANE* pane)
{
    const auto& directory = pane->each.directory;
    for (BUTTON* b = pane->button; b->id != BUTTON_END; b++) {
        if (b->id == BTN_PREV_PAGE)
            b->disable = directory.now_page == 0;
        if (b->id == BTN_NEXT_PAGE)
            b->disable = directory.now_page >= directory.all_page - 1;
    }
}

void pane_turn_page(PANE* pane, int step)
{
    auto& directory = pane->each.directory;
    const int page = std::clamp(directory.now_page + step, 0, directory.all_page - 1);
    if (page == directory.now_page)
        return;
    directory.now_page = page;
    mark_ends(pane);
    pane->inside_redraw = 1;
}

// All entries have their button, those of one page lie over those of another. Empty rows keep
// theirs, so that a button's index tells its page.
static int directory_create(TYPE type, PaneGrid grid, int n, const BTNSEL* entries)
{
    if (n < 0 || (n > 0 && !entries))
        return 0;
    grid.keep_empty = true;
    const int w = grid.dx * grid.columns + 26;
    const int h = grid.dy * grid.rows + 76;
    PANE* pane = pane_create(type, "Directory", Centred(w, h), n + 3);
    if (!pane)
        return 0;
    pane->each.directory.all_page =
        std::max(1, (n + pane_page_size(pane) - 1) / pane_page_size(pane));
    pane_add_grid(pane, grid, entries, n);
    add_bottom_key(pane, BTN_CANCEL, "Cancel", LOOK_ENTER, w / 2 - 30);
    if (pane->each.directory.all_page > 1) {
        add_bottom_key(pane, BTN_PREV_PAGE, "", LOOK_PREV_PAGE, w - 101);
        add_bottom_key(pane, BTN_NEXT_PAGE, "", LOOK_NEXT_PAGE, w - 53);
        mark_ends(pane);
    }
    return pane->id;
}

int PaneDirectory_Create(int n, const BTNSEL* entries)
{
    constexpr PaneGrid grid = {5, 8, 15, 15, 103, 46, LOOK_DIRECTORY};
    static_assert(grid.columns * grid.rows == DIRECTORY_PAGE);
    return directory_create(TYPE_DIRECTORY, grid, n, entries);
}

int PaneDirectory_Create_FolderPopup(int n, const BTNSEL* entries)
{
    constexpr PaneGrid grid = {5, 6, 15, 15, 105, 50, LOOK_FOLDER};
    static_assert(grid.columns * grid.rows == FOLDER_PAGE);
    return directory_create(TYPE_FMFOLDER, grid, n, entries);
}

// --- What all have ---

static void press_beside_nothing(PANE*) {}

static void press_beside_closes(PANE* pane)
{
    pane->quitmem = QUIT_SILENT;
}

namespace
{
constexpr struct {
    TYPE type;
    void (*select)(PANE*, int id);
    void (*press_beside)(PANE*);
} kinds[] = {
    {TYPE_MESSAGE, message_select, press_beside_nothing},
    {TYPE_YESNO, message_select, press_beside_nothing},
    {TYPE_PROGRESS, message_select, press_beside_nothing},
    {TYPE_PULLDOWN, choice_select, press_beside_closes},
    {TYPE_SELECT, choice_select, press_beside_nothing},
    {TYPE_REGION, region_select, region_press_beside},
    {TYPE_RTRLVL, level_select, level_press_beside},
    {TYPE_POPUP, choice_select, press_beside_nothing},
    {TYPE_FIND, find_select, press_beside_nothing},
    {TYPE_COLOR, choice_select, press_beside_nothing},
    {TYPE_FRAME, frame_select, press_beside_nothing},
    {TYPE_DIRECTORY, choice_select, press_beside_nothing},
    {TYPE_FMOUT, choice_select, press_beside_nothing},
    {TYPE_FMFOLDER, choice_select, press_beside_nothing},
};

constexpr bool IndexedByType()
{
    for (int i = 0; i < TYPE_COUNT; i++)
        if (kinds[i].type != i)
            return false;
    return sizeof kinds / sizeof *kinds == TYPE_COUNT;
}
static_assert(IndexedByType());
} // namespace

void pane_select(PANE* pane, int id)
{
    kinds[pane->type].select(pane, id);
}

void pane_press_beside(PANE* pane)
{
    kinds[pane->type].press_beside(pane);
}

int pane_result(const PANE* pane)
{
    if (pane->type == TYPE_MESSAGE)
        return pane->quitmem == QUIT_SILENT ? -1 : pane->quitmem - 1;
    return pane->quitmem == QUIT_SILENT ? 0 : pane->quitmem;
}
