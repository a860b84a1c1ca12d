// The keyboard: a name or another text, edited in place.
#include "colours.h"
#include "tdl.h"
#include "text.h"
#include "window_private.h"
#include <SDL.h>
#include <algorithm>
#include <cctype>
#include <cstring>
#include "safeguards.h"

constexpr int PITCH = 54;
constexpr int LEFT = 12;
constexpr int TOP = 91;
constexpr Rect WELL = {12, 44, 709, 81};

namespace
{
struct CharacterKey {
    char plain;
    char shifted;
    const char* caption; // two lines; null: a letter
};
constexpr CharacterKey Letter(char c)
{
    return {c, char(c - 'a' + 'A'), nullptr};
}

// A row of characters; what stands before and behind them is added by hand.
struct Row {
    int first; // columns left free
    const CharacterKey* keys;
    int count;
};
constexpr CharacterKey digits[] = {
    {'`', '~', "~\n`"}, {'1', '!', "!\n1"}, {'2', '@', "@\n2"}, {'3', '#', "#\n3"},
    {'4', '$', "$\n4"}, {'5', '%', "%\n5"}, {'6', '^', "^\n6"}, {'7', '&', "&\n7"},
    {'8', '*', "*\n8"}, {'9', '(', "(\n9"}, {'0', ')', ")\n0"}, {'-', '_', "_\n-"},
    {'=', '+', "+\n="},
};
constexpr CharacterKey upper[] = {
    Letter('q'),        Letter('w'),        Letter('e'),          Letter('r'), Letter('t'),
    Letter('y'),        Letter('u'),        Letter('i'),          Letter('o'), Letter('p'),
    {'[', '{', "{\n["}, {']', '}', "}\n]"}, {'\\', '|', "|\n\\"},
};
constexpr CharacterKey middle[] = {
    Letter('a'), Letter('s'), Letter('d'), Letter('f'),        Letter('g'),          Letter('h'),
    Letter('j'), Letter('k'), Letter('l'), {';', ':', ":\n;"}, {'\'', '"', "\"\n'"},
};
constexpr CharacterKey lower[] = {
    Letter('z'), Letter('x'), Letter('c'),        Letter('v'),        Letter('b'),
    Letter('n'), Letter('m'), {',', '<', "<\n,"}, {'.', '>', ">\n."}, {'/', '?', "?\n/"},
};
constexpr Row rows[] = {{0, digits, 13}, {0, upper, 13}, {0, middle, 11}, {2, lower, 10}};
constexpr CharacterKey space = {' ', ' ', nullptr};
} // namespace

static const CharacterKey* key_of(int id)
{
    if (id == (KEY_CHARACTER | ' '))
        return &space;
    for (const Row& row : rows)
        for (int i = 0; i < row.count; i++)
            if (id == (KEY_CHARACTER | row.keys[i].plain))
                return &row.keys[i];
    return nullptr;
}

// --- Entry ---

static bool is_upper()
{
    return win.CapsLock || win.Shift;
}

static char character_of(const CharacterKey& key)
{
    const bool is_letter = isalpha(key.plain) != 0;
    return (is_letter ? is_upper() : win.Shift != 0) ? key.shifted : key.plain;
}

static void insert(char c)
{
    const int length = int(strlen(win.Input));
    if (length >= win.InputMax)
        return;
    memmove(win.Input + win.InputPos + 1, win.Input + win.InputPos,
            size_t(length - win.InputPos) + 1);
    win.Input[win.InputPos++] = c;
}

static void remove_at(int pos)
{
    const int length = int(strlen(win.Input));
    if (pos < 0 || pos >= length)
        return;
    memmove(win.Input + pos, win.Input + pos + 1, size_t(length - pos));
    win.InputPos = pos;
}

static void move_to(int pos)
{
    win.InputPos = std::clamp(pos, 0, int(strlen(win.Input)));
}

static void set_modes(int caps, int shift)
{
    if (caps == win.CapsLock && shift == win.Shift)
        return;
    win.CapsLock = caps;
    win.Shift = shift;
    window_light(KEY_CAPS, caps != 0);
    window_light(KEY_SHIFT, shift != 0);
    window_redraw_look(LOOK_LETTER); // they show what they write
}

// --- Drawing ---

const char* kyb_caption(const WINOBJ& key, char (&letter)[2])
{
    letter[0] = char(is_upper() ? toupper(key.id & 0x7F) : key.id & 0x7F);
    letter[1] = '\0';
    return letter;
}

constexpr int FONT = 8;

// From the cursor back to a place in the text, in pixels.
static int width_before_cursor(int from)
{
    char before[INPUT_MAX + 1];
    CopyText(before, win.Input + from);
    before[win.InputPos - from] = '\0';
    return *before ? int(TDL_GetSymbolWidth(before, FONT)) : 0;
}

// A text that is longer than the well is shown from where the cursor still has its place.
static void draw_text_s()
{
    constexpr int MARGIN = 12;
    constexpr int CURSOR_W = 3;
    constexpr int ROOM = WELL.x2 - WELL.x1 - 2 * MARGIN;
    window_draw_well(WELL);
    int from = 0;
    while (width_before_cursor(from) > ROOM - CURSOR_W)
        from++;
    const int x = win.WinX + WELL.x1 + MARGIN;
    const int y = win.WinY + WELL.y1 + 9;
    TDL_SymbolWS(x, y, ROOM, win.Input + from, FONT, WHITE);
    const int cursor_x = x + width_before_cursor(from);
    TDL_FillRectS(cursor_x, y, cursor_x + CURSOR_W - 1, y + 18, CYAN);
}

static void kyb_draw()
{
    window_dark_frame(0x1A1A1A);
    window_draw_title(20, 15, WHITE);
    draw_text_s();
}

// --- Keys ---

static void add(int column, int row, int id, const char* caption, int look)
{
    window_add(id, caption, look, LEFT + PITCH * column, TOP + PITCH * row);
}

static void kyb_open(const WindowArgs& args)
{
    window_size(args, LEFT + PITCH * 13 + 8, TOP + PITCH * 5 + 8);
    for (int r = 0; r < 4; r++)
        for (int i = 0; i < rows[r].count; i++) {
            const CharacterKey& key = rows[r].keys[i];
            add(rows[r].first + i, r, KEY_CHARACTER | key.plain, key.caption,
                key.caption ? LOOK_TWO_LINES : LOOK_LETTER);
        }
    add(11, 2, KEY_ENTER, "Enter", LOOK_KYB_ENTER);
    add(0, 3, KEY_SHIFT, "Shift", LOOK_SHIFT);
    add(12, 3, KEY_DELETE, "Del", LOOK_WORD);
    add(0, 4, KEY_CAPS, "Caps Lock", LOOK_CAPS);
    add(2, 4, KEY_CHARACTER | ' ', "", LOOK_SPACE);
    add(7, 4, KEY_LEFT, "", LOOK_LEFT);
    add(8, 4, KEY_RIGHT, "", LOOK_RIGHT);
    add(9, 4, KEY_BACKSPACE, "Back Space", LOOK_BACKSPACE);
    add(11, 4, KEY_CANCEL, "Cancel", LOOK_KYB_CANCEL);
    win.InputMax = std::clamp(args.input_max, 0, INPUT_MAX);
    ktr_strncpy(win.Input, args.value ? args.value : "", size_t(win.InputMax) + 1);
    win.InputPos = int(strlen(win.Input));
}

static void kyb_quit(int v)
{
    const WindowState last = window_end();
    if (v == 0 && last.OKText)
        last.OKText(last.Input);
}

static void type_character(int id)
{
    const CharacterKey* key = key_of(id);
    if (!key)
        return;
    insert(character_of(*key));
    set_modes(win.CapsLock, 0);
}

static void kyb_sel(int id)
{
    switch (id) {
    case KEY_ENTER: kyb_quit(0); return;
    case KEY_CANCEL: kyb_quit(1); return;
    case KEY_BACKSPACE: remove_at(win.InputPos - 1); break;
    case KEY_DELETE: remove_at(win.InputPos); break;
    case KEY_LEFT: move_to(win.InputPos - 1); break;
    case KEY_RIGHT: move_to(win.InputPos + 1); break;
    case KEY_HOME: move_to(0); break;
    case KEY_END: move_to(INPUT_MAX); break;
    case KEY_CAPS: set_modes(!win.CapsLock, win.Shift); break;
    case KEY_SHIFT: set_modes(win.CapsLock, !win.Shift); break;
    default: type_character(id); break;
    }
    draw_text_s();
    window_flush(WELL);
}

// A physical keyboard has its own shift, and reports either character of a key.
static int character_id(int sym, int mod)
{
    const char c = char(window_ascii(sym));
    if (!c)
        return 0;
    const char plain = char(tolower(c));
    for (const Row& row : rows)
        for (int i = 0; i < row.count; i++) {
            const CharacterKey& key = row.keys[i];
            if (plain != key.plain && c != key.shifted)
                continue;
            const bool caps = (mod & KMOD_CAPS) != 0 && !key.caption;
            if (plain != key.plain || caps || (mod & KMOD_SHIFT) != 0)
                win.Shift = 1; // for this key
            return KEY_CHARACTER | key.plain;
        }
    return c == ' ' ? KEY_CHARACTER | ' ' : 0;
}

static int kyb_key_id(int sym, int mod)
{
    switch (sym) {
    case SDLK_RETURN:
    case SDLK_KP_ENTER: return KEY_ENTER;
    case SDLK_ESCAPE: return KEY_CANCEL;
    case SDLK_BACKSPACE: return KEY_BACKSPACE;
    case SDLK_DELETE: return KEY_DELETE;
    case SDLK_LEFT: return KEY_LEFT;
    case SDLK_RIGHT: return KEY_RIGHT;
    case SDLK_HOME: return KEY_HOME;
    case SDLK_END: return KEY_END;
    case SDLK_CAPSLOCK: return 0; // its state comes with each character
    default: return character_id(sym, mod);
    }
}

const WindowKind kyb_kind = {WINDOW_KEYBOARD, kyb_open,   kyb_draw, kyb_sel,
                             kyb_quit,        kyb_key_id, 1,        false};
