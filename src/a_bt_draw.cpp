// What a button looks like: its face by type and state, its caption, the frames round groups.
#include "a_bt.h"
#include "colours.h"
#include "favorites.h"
#include "global.h"
#include "graphics.h"
#include "indexed.h"
#include "page.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr unsigned UNDECIDED = YELLOW;
constexpr unsigned PLATE = 0x00222B;      // under small text that must read on a light key
constexpr unsigned AS_STATE = 0xFFFFFFFF; // the caption colour follows from the state

enum Look { OFF, ON, THIRD };

// The bitmaps of one kind of button, indexed by Look, and how the caption stands on them.
struct Faces {
    int type;
    SDL_Surface** dis[3];
    SDL_Surface** up[3];
    SDL_Surface** down[3];
    int top;
    int font;
    unsigned col_dis = AS_STATE;
    unsigned col_up = AS_STATE;
    unsigned col_down = AS_STATE; // black where a pushed key is light whatever its state
};

constexpr Faces SameInAllStates(int type, SDL_Surface** dis, SDL_Surface** up, SDL_Surface** down,
                                int top, int font)
{
    return {type, {dis, dis, dis}, {up, up, up}, {down, down, down}, top, font};
}

constexpr Faces jump_faces(int type, SDL_Surface** dis, SDL_Surface** up, SDL_Surface** down)
{
    return SameInAllStates(type, dis, up, down, 12, 3);
}

constexpr Faces toggle_faces(int type)
{
    return {.type = type,
            .dis = {&G_TGL_o0_dis, &G_TGL_o1_dis, &G_TGL_o2_dis},
            .up = {&G_TGL_p0o0, &G_TGL_p0o1, &G_TGL_p0o2},
            .down = {&G_TGL_p1o0, &G_TGL_p1o1, &G_TGL_p1o2},
            .top = 12,
            .font = 3};
}

// From BT_TOGGLE on.
constexpr Faces faces[] = {
    toggle_faces(BT_TOGGLE),
    toggle_faces(BT_RADIO),
    toggle_faces(BT_RADIO_RELEASE),
    {.type = BT_ACTION,
     .dis = {&G_EXE_dis, &G_EXE_dis, &G_EXE_dis},
     .up = {&G_EXE_p0o0, &G_EXE_p0o1, &G_EXE_p0o1},
     .down = {&G_EXE_p1o1, &G_EXE_p1o1, &G_EXE_p1o1},
     .top = 12,
     .font = 3,
     .col_down = BLACK},
    {.type = BT_ACTION_STATE,
     .dis = {&G_EXE_dis, &G_EXE_dis, &G_EXE_dis},
     .up = {&G_EXE_p0o0, &G_EXE_p0o1, &G_EXE_p0o1},
     .down = {&G_EXE_p1o0, &G_EXE_p1o1, &G_EXE_p1o1},
     .top = 12,
     .font = 3},
    jump_faces(BT_JUMP, &G_JMP_dis, &G_JMP_p0, &G_JMP_p1),
    SameInAllStates(BT_KNOB_ONLY, &G_TGA_o0_dis, &G_TGA_p0o0a0, &G_TGA_p1o0a0, 12, 3),
    SameInAllStates(BT_TAB, &G_TAB_dis, &G_TAB_p0, &G_TAB_p1, 10, 4),
    jump_faces(BT_JUMP_10KEY, &G_JMP_10_dis, &G_JMP_10_p0, &G_JMP_10_p1),
    jump_faces(BT_JUMP_KEYBOARD, &G_JMP_Key_dis, &G_JMP_Key_p0, &G_JMP_Key_p1),
    {.type = BT_PULLDOWN,
     .dis = {&G_PD_dis, &G_PD_dis, &G_PD_dis},
     .up = {&G_PD_p0o0, &G_PD_p0o1, &G_PD_p0o1},
     .down = {&G_PD_p1o0, &G_PD_p1o1, &G_PD_p1o1},
     .top = 6,
     .font = 4,
     .col_dis = PULLDOWN_DISABLED},
    {.type = BT_PULLDOWN_LONG,
     .dis = {&G_PD_dis, &G_PD_dis, &G_PD_dis},
     .up = {&G_PDl_p0o0, &G_PDl_p0o1, &G_PDl_p0o1},
     .down = {&G_PDl_p1o0, &G_PDl_p1o1, &G_PDl_p1o1},
     .top = 12,
     .font = 4,
     .col_dis = PULLDOWN_DISABLED},
    {.type = BT_TRANSFER_RIGHT,
     .dis = {&G_TRR_p0o0, &G_TRR_p0o0, &G_TRR_p0o0},
     .up = {&G_TRR_p0o0, &G_TRR_p0o1, &G_TRR_p0o1},
     .down = {&G_TRR_p1o1, &G_TRR_p1o1, &G_TRR_p1o1},
     .top = 30,
     .font = 3,
     .col_down = BLACK},
    {.type = BT_TRANSFER_LEFT,
     .dis = {&G_TRL_p0o0, &G_TRL_p0o0, &G_TRL_p0o0},
     .up = {&G_TRL_p0o0, &G_TRL_p0o1, &G_TRL_p0o1},
     .down = {&G_TRL_p1o1, &G_TRL_p1o1, &G_TRL_p1o1},
     .top = 30,
     .font = 3,
     .col_down = BLACK},
    jump_faces(BT_JUMP_POPUP, &G_JMP_Pop_dis, &G_JMP_Pop_p0, &G_JMP_Pop_p1),
    jump_faces(BT_FIND, &G_JMP_Find_dis, &G_JMP_Find_p0, &G_JMP_Find_p1),
    jump_faces(BT_NEW, &G_JMP_New_dis, &G_JMP_New_p0, &G_JMP_New_p1),
};

static_assert(IndexedBy(faces, &Faces::type, BT_NEW, BT_TOGGLE));

// A type that there isn't looks like a toggle: what can be pressed must be seen.
constexpr const Faces& faces_by_type(int type)
{
    return faces[type >= BT_TOGGLE && type <= BT_NEW ? type - BT_TOGGLE : 0];
}

// Buttons with knobs: without and with the ownership. There is no third bitmap; the third state
// looks on.
constexpr Faces with_knobs[2] = {
    {.type = 0,
     .dis = {&G_TGA_o0_dis, &G_TGA_o1_dis, &G_TGA_o1_dis},
     .up = {&G_TGA_p0o0a0, &G_TGA_p0o1a0, &G_TGA_p0o1a0},
     .down = {&G_TGA_p1o0a0, &G_TGA_p1o1a0, &G_TGA_p1o1a0},
     .top = 12,
     .font = 3},
    {.type = 0,
     .dis = {&G_TGA_o0_dis, &G_TGA_o1_dis, &G_TGA_o1_dis},
     .up = {&G_TGA_p0o0a1, &G_TGA_p0o1a1, &G_TGA_p0o1a1},
     .down = {&G_TGA_p1o0a1, &G_TGA_p1o1a1, &G_TGA_p1o1a1},
     .top = 12,
     .font = 3},
};
// A key that does nothing but take the knobs looks on while it has them.
constexpr Faces knob_only_owner = {
    .type = BT_KNOB_ONLY,
    .dis = {&G_TGA_o0_dis, &G_TGA_o0_dis, &G_TGA_o0_dis},
    .up = {&G_TGA_p0o1a1, &G_TGA_p0o1a1, &G_TGA_p0o1a1},
    .down = {&G_TGA_p1o1a1, &G_TGA_p1o1a1, &G_TGA_p1o1a1},
    .top = 12,
    .font = 3,
    .col_up = BLACK,
    .col_down = BLACK,
};

// A face that was chosen for the state of a button.
struct Chosen {
    SDL_Surface* bitmap = nullptr;
    unsigned col = WHITE;
    int top = 12;
    int font = 3;
};
} // namespace

static int pushed_by(const BT_MEM* b)
{
    return b->pushed != 0;
}

static Look look_of(const BT_MEM* b)
{
    return b->status == BT_ON ? ON : b->status == BT_THIRD ? THIRD : OFF;
}

static const Faces& faces_of(const BT_MEM* b)
{
    const Faces& own = faces_by_type(b->type);
    if (own.type <= BT_RADIO_RELEASE && b->nb)
        return with_knobs[bt_owns_knobs(b)];
    if (own.type == BT_KNOB_ONLY && bt_owns_knobs(b))
        return knob_only_owner;
    return own;
}

static unsigned state_colour(const BT_MEM* b)
{
    if (b->status == BT_ON || b->status == BT_THIRD)
        return BLACK;
    return bt_is_enabled(b) ? WHITE : GREY;
}

static Chosen choose(const BT_MEM* b, const Faces& of)
{
    const Look look = look_of(b);
    Chosen c{.top = of.top, .font = of.font};
    unsigned col;
    if (!bt_is_enabled(b)) {
        c.bitmap = *of.dis[look];
        col = of.col_dis;
    } else if (b->pushed) {
        c.bitmap = *of.down[look];
        col = of.col_down;
    } else {
        c.bitmap = *of.up[look];
        col = of.col_up;
    }
    c.col = col == AS_STATE ? state_colour(b) : col;
    if (of.type == BT_PULLDOWN && bt_is_enabled(b) && b->caption &&
        strcmp(b->caption, "Register") == 0)
        c.col = ORANGE;
    return c;
}

// An icon of its own bitmap; there is no grey form of it for a disabled key.
static void put_icon(const BT_MEM* b, int x, int y, SDL_Surface* icon)
{
    constexpr unsigned char DIM = 70; // of 255
    if (bt_is_enabled(b))
        TDL_PutS(b->x1 + x, b->y1 + y, icon);
    else
        TDL_PutAS(b->x1 + x, b->y1 + y, icon, DIM);
}

// --- Captions ---

static void edge_rising(int x, int y, unsigned col)
{
    TDL_LineHS(x + 30, y + 15, 25, col);
    TDL_LineVS(x + 30, y + 15, 21, col);
    TDL_LineVS(x + 55, y + 15, 21, col);
    TDL_LineHS(x + 20, y + 35, 10, col);
    TDL_LineHS(x + 55, y + 35, 10, col);
}

static void edge_falling(int x, int y, unsigned col)
{
    TDL_LineHS(x + 30, y + 35, 25, col);
    TDL_LineVS(x + 30, y + 15, 21, col);
    TDL_LineVS(x + 55, y + 15, 21, col);
    TDL_LineHS(x + 20, y + 15, 10, col);
    TDL_LineHS(x + 55, y + 15, 10, col);
}

static void edge_level(int x, int y, unsigned col)
{
    TDL_LineVS(x + 42, y + 15, 21, col);
    TDL_LineHS(x + 20, y + 35, 22, col);
    TDL_LineHS(x + 42, y + 15, 23, col);
}

static void edge_any(int x, int y, unsigned col)
{
    for (int foot : {22, 52}) {
        TDL_LineHS(x + foot, y + 15, 10, col);
        TDL_LineHS(x + foot, y + 35, 10, col);
    }
    for (int i = 0; i < 20; i++) {
        TDL_LineHS(x + 32 + i, y + 15 + i, 1, col);
        TDL_LineHS(x + 32 + i, y + 35 - i, 1, col);
    }
}

// Captions that are drawn and not written: how a trigger input is read.
static const struct {
    const char* caption;
    void (*draw)(int x, int y, unsigned col);
} edge_pictures[] = {
    {"_RISING", edge_rising},
    {"_FALLING", edge_falling},
    {"_ANY", edge_any},
    {"_LEVEL", edge_level},
};

static bool draw_edge_picture(const BT_MEM* b, unsigned col)
{
    if (b->caption[0] != '_')
        return false;
    for (const auto& e : edge_pictures) {
        if (strcmp(b->caption, e.caption) != 0)
            continue;
        e.draw(b->x1 + pushed_by(b), b->y1 + pushed_by(b), col);
        return true;
    }
    return false;
}

constexpr int PULLDOWN_GROOVE = 78; // left of the arrow

void bt_caption(const BT_MEM* b, const SDL_Surface* face, int top, int font, unsigned col)
{
    if (!b->caption || draw_edge_picture(b, col))
        return;
    const int w = face ? face->w : b->x2 - b->x1 + 1;
    const int h = face ? face->h : b->y2 - b->y1 + 1;
    const int p = pushed_by(b);
    switch (b->type) {
    case BT_TRANSFER_RIGHT:
    case BT_TRANSFER_LEFT:
        TDL_SymbolCS(b->x1 + 10 + p, b->y1 + top + p, b->x1 + w - 11 + p, b->y1 + h - 1 + p,
                     b->caption, font, col);
        break;
    case BT_NEW:
        put_icon(b, 8, 10, G_icon_folder);
        TDL_SymbolS(b->x1 + 30, b->y1 + 10, b->caption, font, col);
        break;
    case BT_PULLDOWN:
    case BT_PULLDOWN_LONG: // a name from outside takes a second line before it reaches the arrow
        TDL_SymbolBS(b->x1 + 10 + p, b->y1 + top + p, PULLDOWN_GROOVE - 10, h - top - p, b->caption,
                     font, col, 0);
        break;
    default:
        TDL_SymbolBS(b->x1 + 10 + p, b->y1 + top + p, w - 10 - p, h - top - p, b->caption, font,
                     col, 0);
        break;
    }
}

// --- One button ---

static bool is_empty_pull_down(const BT_MEM* b)
{
    return (b->type == BT_PULLDOWN || b->type == BT_PULLDOWN_LONG) && b->visible == BT_DISABLED &&
           (!b->caption || !*b->caption);
}

// There is nothing to choose: dark and flat as other dead keys. The bitmap is as light as a dark
// caption needs it; here it gives the shape.
static void draw_empty_pull_down(const BT_MEM* b, SDL_Surface* shape)
{
    constexpr unsigned char OUTLINE = 126; // of 255: 0x34393C on black
    constexpr unsigned DEAD_PLATE = 0x1A1D1F;
    TDL_FillRectS(b->x1, b->y1, b->x2, b->y2, BLACK);
    TDL_PutAS(b->x1, b->y1, shape, OUTLINE);
    for (int in = 2; in <= 4; in++) // its corners are round
        TDL_FillRectS(b->x1 + in, b->y1 + 6 - in, b->x2 - in, b->y2 - 6 + in, DEAD_PLATE);
}

static void draw_face(const BT_MEM* b, const Chosen& c)
{
    if (is_empty_pull_down(b)) {
        draw_empty_pull_down(b, c.bitmap);
        return;
    }
    TDL_PutS(b->x1, b->y1, c.bitmap);
    bt_caption(b, c.bitmap, c.top, c.font, c.col);
}

static void draw_undecided(const BT_MEM* b)
{
    if (!b->undecided || !bt_is_enabled(b))
        return;
    const int x = b->x1 + pushed_by(b);
    const int y = b->y1 + pushed_by(b);
    TDL_FillRectS(x + 11, y + 50, x + 68, y + 62, PLATE);
    TDL_SymbolS(x + 15, y + 50, "Undecided", 1, UNDECIDED);
}

static bool expects_tally(int type)
{
    switch (type) {
    case BT_ACTION:
    case BT_JUMP:
    case BT_KNOB_ONLY:
    case BT_JUMP_10KEY:
    case BT_JUMP_KEYBOARD:
    case BT_PULLDOWN:
    case BT_PULLDOWN_LONG:
    case BT_JUMP_POPUP:
    case BT_NEW: return false;
    default: return true;
    }
}

// A developer's mark: this button's path has never been answered.
static void draw_no_tally_mark(const BT_MEM* b)
{
    if (GL_DebugMode && b->status == BT_NO_TALLY && expects_tally(b->type))
        TDL_SymbolS(b->x1 + 70, b->y1 + 35, "?", 1, NO_TALLY_MARK);
}

static int finish(BT_MEM* b)
{
    TDL_UpdateRect(b->x1, b->y1, b->x2, b->y2);
    b->redraw = 0;
    return 0;
}

// A button that is cut off leaves black ground. True when it was.
static bool erased(BT_MEM* b)
{
    if (b->visible != BT_CUTOFF)
        return false;
    TDL_FillRect(b->x1, b->y1, b->x2, b->y2, BLACK);
    b->redraw = 0;
    return true;
}

int bt_drw_normal(BT_MEM* b)
{
    if (erased(b))
        return 0;
    draw_face(b, choose(b, faces_of(b)));
    draw_no_tally_mark(b);
    draw_undecided(b);
    return finish(b);
}

int bt_drw_normal_nextver(BT_MEM* b)
{
    if (GL_NextVersion < 2 && b->visible != BT_CUTOFF)
        b->visible = BT_DISABLED;
    return bt_drw_normal(b);
}

int bt_drw_tab(BT_MEM* b)
{
    if (erased(b))
        return 0;
    TDL_PutS(b->x1, b->y1, choose(b, faces_by_type(BT_TAB)).bitmap);
    const int p = pushed_by(b);
    TDL_SymbolWS(b->x1 + 10 + p, b->y1 + 10 + p, 83, b->caption, 4, WHITE);
    return finish(b);
}

int bt_drw_sbus_remote(BT_MEM* b)
{
    if (erased(b))
        return 0;
    draw_face(b, choose(b, faces_by_type(BT_TOGGLE)));
    draw_undecided(b);
    return finish(b);
}

int bt_drw_keypriority(BT_MEM* b)
{
    if (erased(b))
        return 0;
    const Chosen c = choose(b, faces_by_type(BT_TOGGLE));
    char caption[64];
    CopyText(caption, b->caption);
    const bool keys_of_program =
        GL_NowTree && GL_NowTree[0] && strcmp(GL_NowTree[0], "PGM/PST") == 0;
    if (keys_of_program && strlen(caption) >= 3)
        memcpy(caption, "DSK", 3);
    const int p = pushed_by(b);
    TDL_PutS(b->x1, b->y1, c.bitmap);
    TDL_SymbolBS(b->x1 + 10 + p, b->y1 + 12 + p, b->x2 - b->x1 - 9 - p, b->y2 - b->y1 - 11 - p,
                 caption, c.font, c.col, 0);
    return finish(b);
}

// --- Lights of the effects unit ---

// The smallest unit has no lighting. Channels 1 to 4 live in the first unit, 5 to 8 in the second.
constexpr int DME_MODEL_WITHOUT_LIGHT = 5;
static bool reference_has_lights()
{
    if (SYS_DMEReference == 0)
        return false;
    const int unit = (SYS_DMEReference & 0x0F) ? 0 : 1;
    return GL_DmeModel[unit] != DME_MODEL_WITHOUT_LIGHT;
}

static bool light_is_active(const BT_MEM* b)
{
    constexpr const char* captions[] = {"Light 1", "Light 2", "Light 3"};
    static_assert(std::size(captions) == std::size(GL_LightActive));
    if (!b->caption || !reference_has_lights())
        return false;
    for (size_t i = 0; i < std::size(captions); i++)
        if (strcmp(b->caption, captions[i]) == 0)
            return GL_LightActive[i] != 0;
    return false;
}

int bt_drw_normal_light(BT_MEM* b)
{
    if (erased(b))
        return 0;
    draw_face(b, choose(b, faces_by_type(BT_JUMP)));
    if (light_is_active(b)) {
        TDL_LineHS(b->x1 + 5, b->y1 + 54, 75, ORANGE);
        TDL_LineHS(b->x1 + 5, b->y1 + 55, 75, ORANGE_DARK);
        TDL_LineHS(b->x1 + 5, b->y1 + 56, 75, ORANGE);
    }
    return finish(b);
}

// --- The operator's own buttons ---

constexpr int COLOR_NONE = 8;
static SDL_Surface** const color_faces[COLOR_NONE][2] = {
    {&G_OKINI_1_p0, &G_OKINI_1_p1}, {&G_OKINI_2_p0, &G_OKINI_2_p1}, {&G_OKINI_3_p0, &G_OKINI_3_p1},
    {&G_OKINI_4_p0, &G_OKINI_4_p1}, {&G_OKINI_5_p0, &G_OKINI_5_p1}, {&G_OKINI_6_p0, &G_OKINI_6_p1},
    {&G_OKINI_7_p0, &G_OKINI_7_p1}, {&G_OKINI_8_p0, &G_OKINI_8_p1},
};

int bt_drw_color_select(BT_MEM* b)
{
    if (erased(b))
        return 0;
    const int color = get_now_btn_color(b->id);
    const bool none = color < 0 || color >= COLOR_NONE;
    Chosen c = choose(b, faces_by_type(none ? BT_ACTION : BT_JUMP));
    if (!none && bt_is_enabled(b))
        c.bitmap = *color_faces[color][pushed_by(b)];
    draw_face(b, c);
    return finish(b);
}

// --- Transport keys ---

namespace
{
struct TransportIcon {
    int id;
    SDL_Surface** icon;
    int x; // from the key's corner, below a caption of two lines
    int y;
    SDL_Surface** icon_dis = nullptr; // the grey form, where there is one
};
} // namespace

static const TransportIcon clip_playrec_icons[] = {
    {34, &G_icon_rew, 30, 48},
    {35, &G_icon_play, 38, 48},
    {36, &G_icon_ff, 34, 48},
    {37, &G_icon_stop, 35, 49},
};
static const TransportIcon clip_record_icons[] = {
    {38, &G_icon_record, 35, 48, &G_icon_record2},
    {54, &G_icon_stop, 35, 49},
};
static const TransportIcon menu_macro_icons[] = {
    {49, &G_icon_rew, 30, 48},
    {50, &G_icon_play, 38, 48},
    {51, &G_icon_stop, 35, 49},
};

template <size_t N> static int draw_transport(BT_MEM* b, const TransportIcon (&icons)[N])
{
    if (erased(b))
        return 0;
    draw_face(b, choose(b, faces_by_type(b->type == BT_ACTION ? BT_ACTION : BT_ACTION_STATE)));
    const int p = pushed_by(b);
    for (const TransportIcon& t : icons) {
        if (t.id != b->id)
            continue;
        if (t.icon_dis && !bt_is_enabled(b))
            TDL_PutS(b->x1 + t.x, b->y1 + t.y, *t.icon_dis);
        else
            put_icon(b, t.x + p, t.y + p, *t.icon);
    }
    return finish(b);
}

int bt_drw_clip_playrec(BT_MEM* b)
{
    return draw_transport(b, clip_playrec_icons);
}

int bt_drw_clip_record(BT_MEM* b)
{
    return draw_transport(b, clip_record_icons);
}

int bt_drw_menu_macro_playrec(BT_MEM* b)
{
    return draw_transport(b, menu_macro_icons);
}

// --- Group frames ---

namespace
{
constexpr int GROUP_MAX = 12;
constexpr size_t GROUP_TITLE = 64; // with its terminator

struct Group {
    const char* title;
    Rect box;
};
} // namespace

static int collect_groups(Group (&groups)[GROUP_MAX])
{
    int count = 0;
    for (const BT_MEM* b = bt_first(); b->id >= 1; b++) {
        if (b->visible == BT_CUTOFF || !b->group || !b->group[0])
            continue;
        int i = 0;
        while (i < count && strncmp(groups[i].title, b->group, GROUP_TITLE - 1) != 0)
            i++;
        if (i == GROUP_MAX)
            continue;
        if (i == count)
            groups[count++] = {b->group, {b->x1, b->y1, b->x2, b->y2}};
        Rect& box = groups[i].box;
        box = {std::min(box.x1, b->x1), std::min(box.y1, b->y1), std::max(box.x2, b->x2),
               std::max(box.y2, b->y2)};
    }
    return count;
}

static void draw_group(const Group& g)
{
    const auto [x, y, X, Y] = g.box;
    for (int line : {y - 8, y - 7, Y + 2, Y + 3})
        TDL_LineHS(x - 5, line, X + 11 - x, GROUP_FRAME);
    for (int line : {x - 5, x - 4, X + 4, X + 5})
        TDL_LineVS(line, y - 6, Y + 9 - y, GROUP_FRAME);

    // A leading mark keeps two frames with the same visible title apart.
    char title[GROUP_TITLE];
    CopyText(title, strchr("@#$%&", g.title[0]) ? g.title + 1 : g.title);
    const int w = int(TDL_GetSymbolWidth(title, 3));
    TDL_FillRectS(x + 8, y - 16, x + 11 + w, y - 4, BLACK);
    TDL_SymbolS(x + 10, y - 15, title, 3, WHITE);
}

void bt_drw_groups(const Rect& area, bool erase)
{
    const Rect a = {area.x1 - 5, area.y1 - 17, area.x2 + 5, area.y2 + 3};
    if (erase)
        TDL_FillRectS(a.x1, a.y1, a.x2, a.y2, BLACK);
    Group groups[GROUP_MAX];
    const int count = collect_groups(groups);
    for (int i = 0; i < count; i++)
        draw_group(groups[i]);
    if (erase)
        TDL_UpdateRect(a.x1, a.y1, a.x2, a.y2);
}
