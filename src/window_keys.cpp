// The windows of ten keys: the value of a number box, hexadecimal numbers, banks, page numbers.
#include "a_nb.h"
#include "colours.h"
#include "global.h"
#include "page.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include "window_private.h"
#include <SDL.h>
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

constexpr int COLUMNS = 11; // of the entry, right-aligned
constexpr unsigned GROUND = 0x1A1A1A;
constexpr unsigned SHOWN = BOX_VALUE; // the value before the first key
constexpr size_t PAGE_DIGITS = 4;     // on each side of the point
constexpr int DIGIT_DX = 54;
constexpr int DIGIT_DY = 59;

namespace
{
// Where the keys of a window stand: the "0", and how many rows of digits are above it.
struct Pad {
    int x;
    int y;
    int rows;
};
} // namespace
static constexpr Pad plain_pad = {17, 310, 3};
static constexpr Pad hex_pad = {17, 430, 5};
static constexpr Pad jump_pad = {375, 371, 3};
static constexpr Pad get_pad = {267, 371, 3};

static const Pad& pad()
{
    switch (win.Window) {
    case WINDOW_HEX: return hex_pad;
    case WINDOW_PAGE_JUMP: return jump_pad;
    case WINDOW_PAGE_GET: return get_pad;
    default: return plain_pad;
    }
}

// --- Entry ---

static void clear_input()
{
    CopyText(win.Input, win.TimeCode ? "00:00:00:00" : "           ");
    win.Minus = 0;
    win.field_open = 0;
}

static void show_value(const char* value)
{
    PrintText(win.Input, "%*.*s", COLUMNS, COLUMNS, value ? value : "");
    win.Minus = 0;
    win.field_open = 0;
    win.FirstInput = 1;
}

static const char* typed(const WindowState& w)
{
    return w.Input + strspn(w.Input, " ");
}

static bool is_empty(const WindowState& w)
{
    return *typed(w) == '\0';
}

// The colons of a time code stand where they are, the digits go round them.
static bool is_fixed(int column)
{
    return win.TimeCode && column % 3 == 2;
}

static void shift_in(char c)
{
    for (int i = COLUMNS - 1; i >= 0; i--)
        if (!is_fixed(i))
            std::swap(c, win.Input[i]); // each place takes its right neighbour's character
}

static void shift_out()
{
    char c = win.TimeCode ? '0' : ' ';
    for (int i = 0; i < COLUMNS; i++)
        if (!is_fixed(i))
            std::swap(c, win.Input[i]);
    win.field_open = 0;
}

// The last character, or the sign when there is none.
static void take_back()
{
    if (is_empty(win))
        win.Minus = 0;
    else
        shift_out();
}

// A colon ends the field: the next one is empty, and its first two digits fill it.
static void end_field()
{
    shift_in('0');
    shift_in('0');
    win.field_open = 2;
}

static void digit_in(char c)
{
    if (win.field_open == 0) {
        shift_in(c);
        return;
    }
    win.field_open--;
    win.Input[COLUMNS - 2] = win.Input[COLUMNS - 1];
    win.Input[COLUMNS - 1] = c;
}

static void point_in()
{
    if (!win.TimeCode && !strchr(win.Input, '.'))
        shift_in('.');
}

static void entry_text(const WindowState& w, char* text, size_t size)
{
    ktr_strncpy(text, w.Minus ? "-" : "", size);
    ktr_strncat(text, typed(w), size);
}

// Time code goes by the rate that the boxes show it with. NAN for one that does not exist.
static double parse(const char* text, const WindowState& w)
{
    if (w.Window == WINDOW_HEX)
        return double(std::min(strtoull(text, nullptr, 16), 0xFFFFFFFFull));
    if (!w.TimeCode)
        return strtod(text, nullptr);
    const int frames = TC2Frame_SWR(text, 0);
    return frames == TC_BAD ? double(NAN) : frames;
}

static void take_limits(const char* min_text, const char* max_text)
{
    CopyText(win.min_text, min_text ? min_text : "");
    CopyText(win.max_text, max_text ? max_text : "");
    win.MinValue = parse(win.min_text, win);
    win.MaxValue = parse(win.max_text, win);
    const bool exist = std::isfinite(win.MinValue) && std::isfinite(win.MaxValue);
    win.has_limits = exist && (win.min_text[0] || win.max_text[0]);
}

// What was typed, within the limits, whichever way round they are. NAN for no time code.
static double entered_value(const WindowState& w)
{
    char text[INPUT_MAX + 2] = "";
    entry_text(w, text, sizeof text);
    const double v = parse(text, w);
    if (!w.has_limits || !std::isfinite(v))
        return v;
    return std::clamp(v, std::min(w.MinValue, w.MaxValue), std::max(w.MinValue, w.MaxValue));
}

// --- Drawing ---

static Rect well_rect()
{
    const int y = pad().y - DIGIT_DY * pad().rows - 54;
    return {pad().x, y, pad().x + 211, y + 42};
}

static void draw_entry_s()
{
    const Rect well = well_rect();
    window_draw_well(well);
    char text[INPUT_MAX + 2];
    entry_text(win, text, sizeof text);
    const int x2 = win.WinX + well.x2;
    const int y = win.WinY + well.y1 + 11;
    const unsigned col = win.is_refused ? RED : win.FirstInput ? SHOWN : WHITE;
    TDL_SymbolS(x2 - 12 - int(TDL_GetSymbolWidth(text, 8)), y, text, 8, col);
    TDL_FillRectS(x2 - 9, y, x2 - 7, y + 18, CYAN);
}

static void draw_limits_s()
{
    if (!win.has_limits)
        return;
    char limits[sizeof win.min_text + sizeof win.max_text + 8];
    if (win.Window == WINDOW_HEX)
        PrintText(limits, "%X ... %X", unsigned(win.MinValue), unsigned(win.MaxValue));
    else
        PrintText(limits, "%s ... %s", win.min_text, win.max_text);
    TDL_SymbolWS(win.WinX + 30, win.WinY + 55, win.w - 40, limits, 4, WHITE);
}

// Four digits of the menu number and, behind a point, up to four of the page in it.
static uint32_t entered_page(const WindowState& w)
{
    char* end = nullptr;
    const uint32_t high = uint32_t(strtoul(typed(w), &end, 16));
    const uint32_t low = *end == '.' ? uint32_t(strtoul(end + 1, nullptr, 16)) : 0;
    return high << 16 | (low & 0xFFFF);
}

// What the number so far stands for, where the window has room for it.
static void draw_tree()
{
    if (win.Window != WINDOW_PAGE_JUMP && win.Window != WINDOW_PAGE_GET)
        return;
    constexpr int LINE = 16;
    constexpr int LINES = 5;
    const int x = win.WinX + (win.Window == WINDOW_PAGE_GET ? 20 : pad().x + 2);
    const int y = win.WinY + 48;
    TDL_FillRectS(x, y, x + 209, y + LINE * LINES - 1, GROUND);
    const PAGE* page = is_empty(win) ? nullptr : SearchPageTable(entered_page(win));
    for (int i = 0; page && i < LINES && page->tree[i]; i++)
        TDL_SymbolWS(x, y + LINE * i, 209, page->tree[i], 4, i == 0 ? TEAL : ORANGE);
    TDL_UpdateRect(x, y, x + 209, y + LINE * LINES - 1);
}

static void draw_entry()
{
    draw_entry_s();
    window_flush(well_rect());
    draw_tree();
}

static void draw_pad_window()
{
    window_dark_frame(GROUND);
    window_draw_title(20, 15, WHITE);
    draw_limits_s();
    draw_entry_s();
    draw_tree();
}

// --- Keys ---

static void add_digits()
{
    static constexpr const char* captions[] = {"0", "1", "2", "3", "4", "5", "6", "7",
                                               "8", "9", "A", "B", "C", "D", "E", "F"};
    const Pad& p = pad();
    window_add(KEY_DIGIT, captions[0], LOOK_DIGIT, p.x, p.y);
    for (int n = 1; n <= 3 * p.rows; n++)
        window_add(KEY_DIGIT + n, captions[n], LOOK_DIGIT, p.x + DIGIT_DX * ((n - 1) % 3),
                   p.y - DIGIT_DY * ((n + 2) / 3));
}

// Beside the zero: column 1 or 2.
static void add_bottom(int column, int id, const char* caption, int look)
{
    window_add(id, caption, look, pad().x + DIGIT_DX * column, pad().y);
}

// The fourth column; row 0 is that of "0", 3 that of "7".
static void add_function(int row, int id, const char* caption, int look)
{
    window_add(id, caption, look, pad().x + 3 * DIGIT_DX, pad().y - DIGIT_DY * row);
}

static void add_common()
{
    add_digits();
    add_function(3, KEY_CLEAR, "Clear", LOOK_CLEAR);
    add_function(1, KEY_CANCEL, "Cancel", LOOK_CANCEL);
    add_function(0, KEY_ENTER, "Enter", LOOK_ENTER);
}

// The height follows from the pad, the width for most types, too.
static void pad_size(const WindowArgs& args, int x, int y)
{
    window_size(args, pad().x + 229, pad().y + 72, x, y);
}

static int pad_key_id(int sym, int)
{
    switch (sym) {
    case SDLK_RETURN:
    case SDLK_KP_ENTER: return KEY_ENTER;
    case SDLK_ESCAPE: return KEY_CANCEL;
    case SDLK_BACKSPACE: return KEY_BACKSPACE;
    case SDLK_DELETE: return KEY_CLEAR;
    default: break;
    }
    const int c = window_ascii(sym);
    if (c >= '0' && c <= '9')
        return KEY_DIGIT + c - '0';
    switch (c) {
    case '.': return KEY_POINT;
    case '-': return KEY_SIGN;
    case ';':
    case ':': return KEY_COLON;
    default: return 0;
    }
}

// False for a key that only ends the window: those leave the shown value as it is.
static bool begin_input(int id)
{
    if ((id & KEY_KIND) == KEY_CANCEL || (id & KEY_KIND) == KEY_ENTER)
        return false;
    if (win.FirstInput) {
        win.FirstInput = 0;
        clear_input();
    }
    return true;
}

// The keys that all pads share; others do nothing.
static void edit(int id)
{
    if ((id & KEY_KIND) == KEY_DIGIT)
        digit_in("0123456789ABCDEF"[id & 0x0F]);
    else if (id == KEY_CLEAR)
        clear_input();
    else if (id == KEY_BACKSPACE)
        take_back();
}

// --- Knob input ---

// A time code has colons where others have a point.
static void dress_point_key()
{
    WINOBJ* k = window_key(win.TimeCode ? KEY_POINT : KEY_COLON);
    if (!k)
        return;
    k->id = win.TimeCode ? KEY_COLON : KEY_POINT;
    k->caption = win.TimeCode ? ":" : ".";
    k->redraw = 1;
}

// A sum of time codes is no use to anybody.
static void dress_trim_key()
{
    WINOBJ* k = window_key(KEY_TRIM);
    if (!k)
        return;
    k->visible = win.Window == WINDOW_KNOB_TRIM ? 0 : 1;
    k->redraw = 1;
}

static void take_box(const WindowArgs& args)
{
    win.TimeCode = args.is_timecode;
    win.is_refused = false;
    dress_point_key();
    dress_trim_key();
    take_limits(args.min_text, args.max_text);
    win.CurrentValue = args.current;
    show_value(args.value);
}

static void knobinput_open(const WindowArgs& args)
{
    pad_size(args, 446, 140);
    add_common();
    add_bottom(1, KEY_POINT, ".", LOOK_DIGIT);
    add_bottom(2, KEY_SIGN, "+/-", LOOK_SIGN);
    add_function(2, KEY_TRIM, "Trim", LOOK_CLEAR); // hidden where it has no use
    take_box(args);
}

static void erase_hidden_key(int id)
{
    const WINOBJ* k = window_key(id);
    if (!k || !k->visible)
        return;
    TDL_FillRectS(win.WinX + k->x1, win.WinY + k->y1, win.WinX + k->x2, win.WinY + k->y2, GROUND);
    window_flush({k->x1, k->y1, k->x2, k->y2});
}

void knobinput_change(const WindowArgs& args)
{
    take_box(args);
    erase_hidden_key(KEY_TRIM);
    const int x = win.WinX;
    const int y = win.WinY;
    TDL_FillRectS(x + 3, y + 3, x + 172, y + 70, GROUND);
    TDL_FillRectS(x + 173, y + 3, x + win.w - 4, y + 70, GROUND); // the end of a longer caption
    window_draw_title(20, 15, WHITE);
    draw_limits_s();
    window_flush({3, 3, win.w - 4, 70});
    draw_entry();
}

static void release_box()
{
    NB_SetSelect(0);
    NB_Entry_Mode[0] = '\0';
}

static void knobinput_quit(int v)
{
    const WindowState last = window_end();
    // Refused when there is no number, or when the box has gone.
    if (v == 2)
        (void)NB_SendValue(last.FirstInput ? last.CurrentValue : entered_value(last));
    release_box();
}

// The entry is a difference: the box itself keeps the sum within its limits.
static void knobinput_quit2(int v)
{
    WindowState last = window_end();
    last.has_limits = false;
    if (v == 2)
        (void)NB_SendTrimValue(entered_value(last)); // as above
    release_box();
}

// A time code that does not exist stays in view for the operator to mend.
static bool refuse_entry()
{
    if (win.FirstInput || std::isfinite(entered_value(win)))
        return false;
    win.is_refused = true;
    draw_entry();
    return true;
}

static void knobinput_sel(int id)
{
    win.is_refused = false;
    if (id == KEY_ENTER && refuse_entry())
        return;
    if (!begin_input(id)) {
        knobinput_quit(id == KEY_ENTER ? 2 : 0);
        return;
    }
    switch (id) {
    case KEY_TRIM:
        if (parse(typed(win), win) != 0) {
            knobinput_quit2(2);
            return;
        }
        break; // there is nothing to add yet
    case KEY_POINT: point_in(); break;
    case KEY_COLON:
        if (win.TimeCode)
            end_field();
        break;
    case KEY_SIGN: win.Minus = !win.Minus; break;
    default: edit(id); break;
    }
    draw_entry();
}

const WindowKind knobinput_kind = {
    WINDOW_KNOB, knobinput_open, draw_pad_window, knobinput_sel, knobinput_quit, pad_key_id,
    0,           false};
const WindowKind knobinput_trim_kind = {WINDOW_KNOB_TRIM,
                                        knobinput_open,
                                        draw_pad_window,
                                        knobinput_sel,
                                        knobinput_quit,
                                        pad_key_id,
                                        0,
                                        false};

// --- Hexadecimal numbers and banks ---

static void plain_number_sel(int id)
{
    if (!begin_input(id)) {
        win.kind->quit((id & KEY_KIND) == KEY_ENTER ? 2 : 0);
        return;
    }
    edit(id);
    draw_entry();
}

static void hexkey_open(const WindowArgs& args)
{
    pad_size(args, -1, -1);
    add_common();
    take_limits(args.min_text, args.max_text);
    show_value(args.value);
}

static int hexkey_key_id(int sym, int mod)
{
    const int c = toupper(window_ascii(sym));
    if (c >= 'A' && c <= 'F')
        return KEY_DIGIT + 10 + c - 'A';
    const int id = pad_key_id(sym, mod);
    return id == KEY_POINT ? 0 : id; // its number is that of the digit A
}

static void hexkey_quit(int v)
{
    const WindowState last = window_end();
    const double value = entered_value(last);
    if (v == 2 && last.OKFunc)
        last.OKFunc(int(uint32_t(value)));
    else if (v == 2)
        (void)NB_SendValue(value); // the box may have gone
    if (!last.OKFunc)
        release_box();
}

const WindowKind hexkey_kind = {
    WINDOW_HEX, hexkey_open, draw_pad_window, plain_number_sel, hexkey_quit, hexkey_key_id,
    0,          false};

static void banksel_open(const WindowArgs& args)
{
    pad_size(args, -1, -1);
    add_common();
    show_value(args.value);
}

static int banksel_key_id(int sym, int mod)
{
    const int id = pad_key_id(sym, mod);
    return id == KEY_POINT ? 0 : id;
}

static void banksel_quit(int v)
{
    const WindowState last = window_end();
    if (v == 2 && last.OKFunc)
        last.OKFunc(int(std::clamp(strtoll(last.Input, nullptr, 10), 0LL, 0x7FFFFFFFLL)));
}

const WindowKind banksel_kind = {
    WINDOW_BANK, banksel_open, draw_pad_window, plain_number_sel, banksel_quit, banksel_key_id,
    0,           false};

// --- Pages ---

static void page_open(const WindowArgs& args)
{
    pad_size(args, -1, -1);
    add_common();
    add_bottom(1, KEY_POINT, ".", LOOK_DIGIT);
    add_bottom(2, KEY_BACKSPACE, "BS", LOOK_CLEAR);
    show_value(args.value);
}

static void pagejump_open(const WindowArgs& args)
{
    page_open(args);
    favorites_open();
}

// A fifth digit would push the first one out, and the number would stand for another page.
static bool takes_digit()
{
    const char* point = strchr(typed(win), '.');
    return strlen(point ? point + 1 : typed(win)) < PAGE_DIGITS;
}

// Sends the key's work on, or ends the window.
static void page_get_sel(int id)
{
    if (!begin_input(id)) {
        win.kind->quit((id & KEY_KIND) == KEY_ENTER ? 2 : 0);
        return;
    }
    if (id == KEY_POINT)
        point_in();
    else if ((id & KEY_KIND) != KEY_DIGIT || takes_digit())
        edit(id);
    draw_entry();
}

static void pagejump_sel(int id)
{
    if (id < KEY_FAVORITE) {
        page_get_sel(id);
        return;
    }
    const uint32_t page = favorites_select(id);
    if (!page)
        return;
    (void)CloseWindow(); // it is open
    GL_CreatePage = page;
}

// 0 when the window was left without a number.
static uint32_t end_of_page_window(int v, WindowState& last)
{
    last = window_end();
    return v == 2 && !is_empty(last) ? entered_page(last) : 0;
}

static void pagejump_quit(int v)
{
    WindowState last;
    if (const uint32_t page = end_of_page_window(v, last))
        GL_CreatePage = page;
}

static void page_get_quit(int v)
{
    WindowState last;
    const uint32_t page = end_of_page_window(v, last);
    if (page && last.OKFunc)
        last.OKFunc(int(page));
}

const WindowKind pagejump_kind = {WINDOW_PAGE_JUMP,
                                  pagejump_open,
                                  draw_pad_window,
                                  pagejump_sel,
                                  pagejump_quit,
                                  pad_key_id,
                                  0,
                                  false};
const WindowKind page_get_kind = {
    WINDOW_PAGE_GET, page_open, draw_pad_window, page_get_sel, page_get_quit, pad_key_id, 0, false};
const WindowKind pageini_kind = {WINDOW_PAGE_INITIAL,
                                 page_open,
                                 draw_pad_window,
                                 page_get_sel,
                                 page_get_quit,
                                 pad_key_id,
                                 0,
                                 false};
