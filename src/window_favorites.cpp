// The operator's own keys beside the page jump: five sets of 29, each in a file of its own.
#include "colours.h"
#include "global.h"
#include "hsl.h"
#include "log.h"
#include "page.h"
#include "safe_file.h"
#include "tdl.h"
#include "text.h"
#include "window_private.h"
#include <SDL.h>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <sys/stat.h>
#include "safeguards.h"

constexpr int SETS = 5;
constexpr int KEYS = 29;
constexpr char DIRECTORY[] = "/mnt/data/TopMenu";
constexpr int KEY_W = 82;
constexpr int KEY_H = 39;

namespace
{
// In the file: 24 bytes a record, page_id with its highest byte first.
struct USER_SEL_DATA {
    uint32_t page_id = 0; // 0: a free key
    unsigned char color_dt_boad = 0;
    unsigned char color_dt_moji = 0;
    char button_name[18] = "";
};
constexpr int RECORD = 4 + 1 + 1 + int(sizeof USER_SEL_DATA::button_name);
static_assert(RECORD == 24);

// A colour as the mixers count them: percent, percent, degrees.
struct _color_data {
    double set_lum;
    double set_sat;
    double set_hue;
};
// Grounds and letters by their number in the record. Grounds that are light take black letters.
struct KeyColor {
    _color_data color;
    unsigned char moji; // index of the letters that go with it
};
constexpr KeyColor colors[] = {
    {{26, 8, 205}, 1}, // graphite, also of a free key
    {{100, 0, 0}, 2},  // white
    {{0, 0, 0}, 1},    // black
    {{40, 40, 0}, 1},   {{36, 60, 33}, 1},  {{31, 48, 57}, 1},  {{36, 35, 123}, 1},
    {{30, 59, 179}, 1}, {{40, 47, 211}, 1}, {{45, 38, 263}, 1}, {{40, 36, 311}, 1},
};
constexpr int COLORS = int(std::size(colors));
constexpr unsigned char LETTERS = 1;
} // namespace

static USER_SEL_DATA key_set_data[SETS][KEYS]; // as the files say, read each time the window opens
static struct {
    int set = 0; // in view; the next window opens with it
    bool storing = false;
    bool coloring = false;
} fav;

// --- Files ---

static void file_name(char (&path)[PATH_SIZE], int set)
{
    PrintText(path, "%s/user_date%d.usr", DIRECTORY, set + 1);
}

static USER_SEL_DATA record_of(const unsigned char* raw)
{
    USER_SEL_DATA d;
    d.page_id = uint32_t(raw[0]) << 24 | uint32_t(raw[1]) << 16 | uint32_t(raw[2]) << 8 | raw[3];
    d.color_dt_boad = raw[4] < COLORS ? raw[4] : 0;
    d.color_dt_moji = raw[5] < COLORS ? raw[5] : LETTERS;
    memcpy(d.button_name, raw + 6, sizeof d.button_name);
    d.button_name[sizeof d.button_name - 1] = '\0';
    return d;
}

// Without a whole file the set is empty.
static void read_set(int set)
{
    for (USER_SEL_DATA& d : key_set_data[set])
        d = {};
    char path[PATH_SIZE];
    file_name(path, set);
    FILE* fp = fopen(path, "rb");
    if (!fp)
        return;
    unsigned char raw[KEYS * RECORD];
    const bool is_whole = fread(raw, sizeof raw, 1, fp) == 1;
    fclose(fp);
    if (!is_whole) {
        Log_Output(LOG_LIFE, MOD_PAGE, "Favourites file is too short: %s", path);
        return;
    }
    for (int n = 0; n < KEYS; n++)
        key_set_data[set][n] = record_of(raw + n * RECORD);
}

static int write_set(int set)
{
    unsigned char raw[KEYS * RECORD];
    for (int n = 0; n < KEYS; n++) {
        const USER_SEL_DATA& d = key_set_data[set][n];
        unsigned char* r = raw + n * RECORD;
        for (int i = 0; i < 4; i++)
            r[i] = (unsigned char)(d.page_id >> (24 - 8 * i));
        r[4] = d.color_dt_boad;
        r[5] = d.color_dt_moji;
        memcpy(r + 6, d.button_name, sizeof d.button_name);
    }
    (void)mkdir(DIRECTORY, 0755); // mostly it is there; otherwise the file cannot be opened
    char path[PATH_SIZE];
    file_name(path, set);
    return SafeFile_Write(path, raw, sizeof raw);
}

// --- Drawing ---

static unsigned rgb(const _color_data& c)
{
    return RgbOfHsl(c.set_hue, c.set_sat, c.set_lum);
}

static void draw_veil(int x, int y)
{
    TDL_FillRectAS(x + 1, y + 1, x + KEY_W - 2, y + KEY_H - 2, 0x1A1A1A, 160);
}

void pagejump_draw_user_key(const WINOBJ& key)
{
    const USER_SEL_DATA& d = key_set_data[fav.set][key.id - KEY_FAVORITE];
    const int x = win.WinX + key.x1;
    const int y = win.WinY + key.y1;
    const int p = key.pushed > 0 ? 1 : 0;
    TDL_FillRectS(x, y, x + KEY_W - 1, y + KEY_H - 1, BLACK);
    TDL_FillRectS(x + 1 + p, y + 1 + p, x + KEY_W - 2, y + KEY_H - 2,
                  rgb(colors[d.color_dt_boad].color));
    if (!d.page_id)
        draw_veil(x, y);
    if (!p)
        TDL_FillRectAS(x + 1, y + KEY_H - 3, x + KEY_W - 2, y + KEY_H - 2, BLACK, 110);
    TDL_SymbolBS(x + 6 + p, y + 4 + p, KEY_W - 8, KEY_H - 5, d.button_name, 4,
                 rgb(colors[d.color_dt_moji].color), 0);
    if (Page_IsMissing(d.page_id))
        draw_veil(x, y); // also over the name
}

void pagejump_draw_user()
{
    window_redraw_look(LOOK_FAVORITE);
}

// --- Keys ---

static const char* set_caption()
{
    static constexpr const char* captions[SETS] = {"1/5", "2/5", "3/5", "4/5", "5/5"};
    return captions[fav.set];
}

static void add_favorite(int n)
{
    WINOBJ* k =
        window_add(KEY_FAVORITE + n, "", LOOK_FAVORITE, 17 + 86 * (n % 4), 55 + 43 * (n / 4));
    if (!k)
        return;
    k->x2 = k->x1 + KEY_W - 1;
    k->y2 = k->y1 + KEY_H - 1;
}

void favorites_open()
{
    fav.storing = false;
    fav.coloring = false;
    for (int set = 0; set < SETS; set++)
        read_set(set);
    for (int n = 0; n < KEYS; n++)
        add_favorite(n);
    const int y = 55 + 43 * 7;
    window_add(KEY_SET, set_caption(), LOOK_CELL, 17 + 86, y);
    window_add(KEY_STORE, "Store", LOOK_CELL, 17 + 86 * 2, y);
    window_add(KEY_COLOR, "Color", LOOK_CELL, 17 + 86 * 3, y);
}

static void arm(bool storing, bool coloring)
{
    fav.storing = storing;
    fav.coloring = coloring;
    window_light(KEY_STORE, storing);
    window_light(KEY_COLOR, coloring);
}

static void next_set()
{
    fav.set = (fav.set + 1) % SETS;
    window_key(KEY_SET)->caption = set_caption();
    pagejump_draw_user();
}

// The page under the window, named by the last word of its tree.
static void take_page(USER_SEL_DATA& d)
{
    const char* word = "";
    for (int i = 0; Page && i < PAGE_DEPTH && Page->tree[i]; i++)
        word = Page->tree[i];
    char name[64];
    PrintText(name, "%X\n%s", unsigned(GL_NowPage >> 16), word);
    d.page_id = GL_NowPage;
    if (!d.color_dt_moji)
        d.color_dt_moji = LETTERS;
    CopyText(d.button_name, name);
}

static void next_color(USER_SEL_DATA& d)
{
    d.color_dt_boad = (unsigned char)((d.color_dt_boad + 1) % COLORS);
    d.color_dt_moji = colors[d.color_dt_boad].moji;
}

// The change stands when it is in the file.
static void change(int n, void (*edit)(USER_SEL_DATA&))
{
    USER_SEL_DATA& d = key_set_data[fav.set][n];
    const USER_SEL_DATA before = d;
    edit(d);
    if (write_set(fav.set) < 0)
        d = before;
}

uint32_t favorites_select(int id)
{
    switch (id) {
    case KEY_SET: next_set(); return 0;
    case KEY_STORE: arm(!fav.storing, false); return 0;
    case KEY_COLOR: arm(false, !fav.coloring); return 0;
    default: break;
    }
    const int n = id - KEY_FAVORITE;
    if (n < 0 || n >= KEYS)
        return 0;
    if (fav.storing) {
        change(n, take_page);
        arm(false, false);
    } else if (fav.coloring) {
        change(n, next_color); // and again until it is the right one
    } else {
        const uint32_t page = key_set_data[fav.set][n].page_id;
        return Page_IsMissing(page) ? 0 : page;
    }
    return 0;
}
