#include "favorites.h"
#include "a_bt.h"
#include "a_pc.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "tally_value.h"
#include "text.h"
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include "safeguards.h"

// A favourite is one page. The server keeps it as "Shortcut Name@n#page,caption"; the title above
// its key is "Group Name@n", its colour "Color Select@n" (1 to 8 a colour, 9 none).
namespace
{
constexpr int FAVORITES = 10;
constexpr int COLORS = 8; // behind the last: no colour

struct Favorite {
    char group[32] = "";
    char caption[32] = "";
    uint32_t page = 0; // 0: the key is free
    int color = COLORS;
};

// What a touch on one of the keys does; the word is the key's below them.
enum FavoriteMode : int { FAV_OPEN, FAV_STORE, FAV_COLOR, FAV_CLEAR };
constexpr struct {
    FavoriteMode mode;
    const char* path;
} modes[] = {{FAV_STORE, "LOCAL@Favorites@Store"},
             {FAV_COLOR, "LOCAL@Favorites@Color"},
             {FAV_CLEAR, "LOCAL@Favorites@Clear"}};
} // namespace

static struct {
    Favorite item[FAVORITES];
    FavoriteMode mode = FAV_OPEN; // of the next touch
} fav;

// The keys stand in two rows of five: ids 1 to 5 and 33 to 37.
static int fav_button(int n)
{
    return n < 5 ? 1 + n : 33 + n - 5;
}

static int fav_index(int button_id)
{
    for (int n = 0; n < FAVORITES; n++)
        if (fav_button(n) == button_id)
            return n;
    return -1;
}

// Only a page that this installation has can be opened; any can be coloured or cleared.
static bool fav_can_be_pressed(const Favorite& f)
{
    switch (fav.mode) {
    case FAV_STORE: return true;
    case FAV_OPEN: return f.page && Page_Exists(f.page);
    default: return f.page != 0;
    }
}

static void fav_show(int n)
{
    const Favorite& f = fav.item[n];
    if (GL_NowPage != 0x00220000)
        return;
    BT_SetCaption(fav_button(n), f.page ? f.caption : "");
    BT_SetGroup(fav_button(n), f.group);
    BT_SetDisable(fav_button(n), !fav_can_be_pressed(f));
}

void shortcut_menu_group_name_tally(int group, const char* value)
{
    if (group < 1 || group > FAVORITES || !value)
        return;
    CopyText(fav.item[group - 1].group, value);
    fav_show(group - 1);
}

void shortcut_menu_data_tally(int shortcut, const char* value)
{
    if (shortcut < 1 || shortcut > FAVORITES || !value)
        return;
    char text[CMD_SIZE];
    CopyText(text, value);
    char* part[2];
    Favorite& f = fav.item[shortcut - 1];
    const int parts = SplitVars(text, part, 2);
    f.page = uint32_t(strtoul(part[0], nullptr, 16));
    CopyText(f.caption, parts == 2 ? part[1] : "");
    for (char* c = f.caption; *c; c++)
        if (*c == '|')
            *c = '\n'; // a line end would end the command
    fav_show(shortcut - 1);
}

int get_now_btn_color(int button_id)
{
    const int n = fav_index(button_id);
    return n < 0 || !fav.item[n].page ? COLORS : fav.item[n].color;
}

static void fav_color_tally(int n, const char* value)
{
    const int color = IndexFrom1(value, COLORS);
    fav.item[n].color = color >= 0 ? color : COLORS;
    if (GL_NowPage == 0x00220000)
        BT_SetStatus(fav_button(n), BT_OFF); // a repaint takes the new colour
}

static void fav_set_mode(FavoriteMode mode)
{
    fav.mode = mode;
    for (const auto& m : modes) {
        char line[CMD_SIZE];
        PrintText(line, "%s#%s", m.path, m.mode == mode ? "true" : "false");
        SendDummyTally(line);
    }
    for (int n = 0; n < FAVORITES; n++)
        fav_show(n);
}

// The page that was on the screen before this one, with the last word of its tree as the key's
// caption.
static void fav_store(int n)
{
    const PAGE* page = SearchPageTable(GL_PrevPage);
    if (!page)
        return;
    const char* word = "";
    for (const char* w : page->tree)
        if (w)
            word = w;
    Net_SendCommandFormat("put Info@Operation Setup Data@Shortcut Name@%d#%08X,%s|%s", n + 1,
                          unsigned(GL_PrevPage), page->tree[0], word);
}

// The colours in turn; behind the last none.
static void fav_next_color(int n)
{
    const int color = (fav.item[n].color + 1) % (COLORS + 1);
    Net_SendCommandFormat("put Info@Operation Setup Data@Color Select@%d#%d", n + 1, color + 1);
}

static void fav_clear(int n)
{
    Net_SendCommandFormat("put Info@Operation Setup Data@Shortcut Name@%d#0,", n + 1);
}

// Colours are tried one after the other: that mode stays until its key is pressed again.
static void fav_press(int n)
{
    switch (fav.mode) {
    case FAV_STORE: fav_store(n); break;
    case FAV_COLOR: return fav_next_color(n);
    case FAV_CLEAR: fav_clear(n); break;
    case FAV_OPEN: GL_CreatePage = fav.item[n].page; return;
    }
    fav_set_mode(FAV_OPEN);
}

static int pc_favorites_create(int on, uint32_t)
{
    fav.mode = FAV_OPEN;
    if (!on)
        return 1;
    // They are followed for the life of the process: a removal would end that.
    for (int n = 1; n <= FAVORITES; n++)
        for (const char* word : {"Group Name", "Shortcut Name", "Color Select"})
            Net_SendCommandFormat("read Info@Operation Setup Data@%s@%d", word, n);
    fav_set_mode(FAV_OPEN);
    return 0;
}

static int fav_button_pressed(const char* path, const char* value)
{
    for (const auto& m : modes)
        if (Same(path, m.path))
            fav_set_mode(fav.mode == m.mode ? FAV_OPEN : m.mode);
    if (Same(path, "LOCAL@Favorites@Open")) {
        const int n = IndexFrom1(value, FAVORITES);
        if (n >= 0)
            fav_press(n);
    }
    return 0;
}

static int fav_tally(const char* path, const char* value)
{
    static constexpr char prefix[] = "Info@Operation Setup Data@Color Select@";
    if (!BeginsWith(path, prefix))
        return 0;
    const int n = IndexFrom1(path + sizeof prefix - 1, FAVORITES);
    if (n >= 0)
        fav_color_tally(n, value);
    return 0;
}

static int pc_favorites_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return fav_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return fav_button_pressed(Text(ax), Text(bx));
    default: return 0;
    }
}

extern const PC_TBL pc_favorites;
const PC_TBL pc_favorites = {.proc_func = pc_favorites_proc, .create_func = pc_favorites_create};
