// The patterns of the screen saver that are made of texts. Each is a function of the passes since
// the saver started, so a scene has no state but the places that it has to clear again. Nothing
// jumps and nothing flashes: texts come out of the dark at the edges and go back into it.
#include "colours.h"
#include "saver_private.h"
#include "tdl.h"
#include <algorithm>
#include <cstdlib>

#include "safeguards.h"

namespace
{
constexpr int LINES = 14;
constexpr int line_y[LINES] = {40, 80, 120, 160, 200, 240, 278, 322, 360, 400, 440, 480, 520, 560};
constexpr int LINE_FONT = 4;
constexpr int NAME_FONT = 9;
constexpr int NAME_X = 240; // the system name over the moving lines
constexpr int NAME_Y = 300;
constexpr int NAME_PITCH = 40; // from the system name to the names under it
constexpr int EDGE_PX = 128;   // from the edge of the screen to full brightness
constexpr int FULL = 256;      // full brightness
constexpr int TURN = 1024;     // a full turn
constexpr Rect NOTHING = {0, 0, -1, -1};
constexpr Rect LAMPS = {0, 0, 90, 30}; // the corner that the blink patterns leave free

enum class Behind { Nothing, Stroke, Tail };

// Where one line of a scene stands in this pass.
struct Place {
    int x = 0;
    int brightness = FULL; // 0: it is not there
    Behind behind = Behind::Nothing;
};
using PlaceOfLine = Place (*)(int line, int width);

struct Blink {
    int grey = 0;
    int step = 1;
    int x = 0;
    int y = 0;
    bool is_placed = false;
};
} // namespace

static struct {
    uint32_t passes = 0;
    Rect drawn[LINES + 1]; // what the last pass drew: the lines, then the system name
    Blink blink;
} scene; // valid from the start of the saver

void saver_scenes_start()
{
    scene = {};
    std::fill_n(scene.drawn, LINES + 1, NOTHING);
}

// --- Parts ---

// Sine of a whole number of 1/1024 turns, -256 to 256, within 1 of the true one. Bhaskara's
// fraction: it needs no table and no floating point.
static constexpr int Sine(int angle)
{
    constexpr int HALF = TURN / 2;
    const int a = angle & (HALF - 1);
    const int p = a * (HALF - a);
    const int v = 16 * FULL * (p / 16) / ((5 * HALF * HALF - 4 * p) / 16);
    return angle & HALF ? -v : v;
}
static_assert(Sine(0) == 0 && Sine(256) == 256 && Sine(768) == -256 && Sine(85) == 127);

static unsigned Dimmed(unsigned colour, int brightness)
{
    const auto part = [&](int shift) {
        return unsigned(int(colour >> shift & 0xFF) * brightness / FULL) << shift;
    };
    return part(16) | part(8) | part(0);
}

// Of something that reaches from x to x2: dark at the edges of the screen, full in the middle.
static int edge_brightness(int x, int x2)
{
    const int distance = std::min(x, SCREEN_W - 1 - x2);
    return std::clamp(distance, 0, EDGE_PX) * FULL / EDGE_PX;
}

static int text_width(const char* text, int font)
{
    return int(TDL_GetSymbolWidth(text, font));
}

static int text_height(int font)
{
    return int(TDL_GetSymbolSize("", font) >> 16);
}

// Letter by letter, each as bright as its place is. Letters that are not whole on the screen are
// left out: at the edge they are black.
static void draw_fading(int x, int y, const char* text, int font, unsigned colour)
{
    char letter[2] = "";
    for (; *text && x < SCREEN_W; text++) {
        letter[0] = *text;
        const int w = text_width(letter, font);
        const unsigned seen = Dimmed(colour, edge_brightness(x, x + w - 1));
        if (seen)
            TDL_SymbolS(x, y, letter, font, seen);
        x += w;
    }
}

static void erase(Rect& r)
{
    (void)TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, 0); // nothing for an empty one
    r = NOTHING;
}

static void erase_all()
{
    for (Rect& r : scene.drawn)
        erase(r);
}

// The texts take turns: the system name, then the names that are not empty.
static const char* line_text(int line)
{
    const char* texts[1 + SAVER_NAMES] = {S_SYS_Name};
    int n = 1;
    for (const char* name : GL_Scr_disp_name)
        if (*name)
            texts[n++] = name;
    return texts[line % n];
}

static void SScr_sysname_disp()
{
    TDL_SymbolS(NAME_X, NAME_Y, S_SYS_Name, NAME_FONT, saver_colour());
    scene.drawn[LINES] = {NAME_X, NAME_Y, NAME_X + text_width(S_SYS_Name, NAME_FONT) - 1,
                          NAME_Y + text_height(NAME_FONT) - 1};
}

// On a plate between two rules: the lines pass behind it.
static void SScr_sysname_disp_2()
{
    constexpr int MARGIN = 16;
    const int w = text_width(S_SYS_Name, NAME_FONT);
    const int h = text_height(NAME_FONT);
    Rect& plate = scene.drawn[LINES];
    plate = {NAME_X - MARGIN, NAME_Y - 6, NAME_X + w - 1 + MARGIN, NAME_Y + h + 5};
    TDL_FillRectS(plate.x1, plate.y1, plate.x2, plate.y2, 0);
    const int rule_px = plate.x2 - plate.x1 + 1;
    TDL_LineHS(plate.x1, plate.y1, rule_px, Dimmed(saver_colour(), FULL / 3));
    TDL_LineHS(plate.x1, plate.y2, rule_px, Dimmed(saver_colour(), FULL / 3));
    TDL_SymbolS(NAME_X, NAME_Y, S_SYS_Name, NAME_FONT, saver_colour());
}

// A short stroke that ends the text. Returns its last pixel column.
static int draw_stroke(int x, int y)
{
    constexpr int GAP_PX = 2;
    constexpr int LENGTH_PX = 10;
    const int at = x + GAP_PX - 1;
    const int brightness = edge_brightness(at, at);
    (void)TDL_LineVS(at, y + 1, LENGTH_PX, Dimmed(saver_colour(), brightness));
    return at;
}

// A tail of light, in steps that darken towards its end.
static int draw_tail(int x, int y)
{
    constexpr int GAP_PX = 8;
    constexpr int STEPS = 10;
    constexpr int STEP_PX = 16;
    for (int i = 0; i < STEPS; i++) {
        const int from = x + GAP_PX + i * STEP_PX;
        const int brightness =
            edge_brightness(from, from + STEP_PX - 1) * (STEPS - i) / (STEPS * 2);
        (void)TDL_LineHS(from, y + text_height(LINE_FONT) / 2, STEP_PX,
                         Dimmed(saver_colour(), brightness));
    }
    return x + GAP_PX + STEPS * STEP_PX - 1;
}
constexpr int BEHIND_MAX_PX = 168; // what either of them takes at most

static void draw_line(int line, const char* text, const Place& at)
{
    const int y = line_y[line];
    const int end = at.x + text_width(text, LINE_FONT);
    draw_fading(at.x, y, text, LINE_FONT, Dimmed(saver_colour(), at.brightness));
    int last = end - 1;
    if (at.behind == Behind::Stroke)
        last = draw_stroke(end, y);
    else if (at.behind == Behind::Tail)
        last = draw_tail(end, y);
    scene.drawn[line] = {at.x, y, last, y + text_height(LINE_FONT) - 1};
}

// One pass of a scene of lines: every step-th line is used.
static void draw_lines(PlaceOfLine place, void (*name)(), int step = 1)
{
    erase_all();
    for (int line = 0; line < LINES; line += step) {
        const char* text = line_text(line / step);
        const Place at = place(line, text_width(text, LINE_FONT));
        if (at.brightness > 0)
            draw_line(line, text, at);
    }
    name();
    scene.passes++;
}

// --- Paths: where a line of that width is after so many passes ---

// From the right edge to beyond the left one and again, so many passes for each pixel.
static int leftwards(uint32_t passes, int width, int passes_a_pixel)
{
    return SCREEN_W - int(passes / uint32_t(passes_a_pixel) % uint32_t(SCREEN_W + width));
}

static int rightwards(uint32_t passes, int width, int passes_a_pixel)
{
    return SCREEN_W - width - leftwards(passes, width, passes_a_pixel);
}

// A start that differs from line to line without a pattern that the eye finds.
static uint32_t scattered(int line)
{
    return uint32_t(line) * 5 % LINES * 131;
}

// --- Modes 1 to 7: names on the lines ---

// Ten lines, each with a stroke behind its text, one after the other.
void SScr_ptn_left(int)
{
    draw_lines(
        [](int line, int width) -> Place {
            constexpr int TEN = 10;
            constexpr uint32_t DELAY = 90; // passes from one start to the next
            const int i = line - (LINES - TEN) / 2;
            const uint32_t start = uint32_t(i) * 7 % TEN * DELAY;
            if (i < 0 || i >= TEN || scene.passes < start)
                return {.brightness = 0};
            return {.x = leftwards(scene.passes - start, width + 2, 1), .behind = Behind::Stroke};
        },
        SScr_sysname_disp);
}

void SScr_ptn_right(int)
{
    draw_lines(
        [](int line, int width) -> Place {
            return {.x = rightwards(scene.passes + scattered(line), width, 2)};
        },
        SScr_sysname_disp_2);
}

// Every second line against the others.
void SScr_ptn_against(int)
{
    draw_lines(
        [](int line, int width) -> Place {
            const uint32_t passes = scene.passes + scattered(line);
            return {.x = line % 2 ? rightwards(passes, width, 2) : leftwards(passes, width, 2)};
        },
        SScr_sysname_disp);
}

// Three depths: what is farther away is darker and slower.
void SScr_ptn_layers(int)
{
    draw_lines(
        [](int line, int width) -> Place {
            const int depth = line * 5 % 3; // 0 is the nearest
            return {.x = leftwards(scene.passes + scattered(line) * 3, width, depth + 1),
                    .brightness = FULL / (depth + 1)};
        },
        SScr_sysname_disp_2);
}

// The lines sway, each a little behind the one above: a slow wave runs down the screen.
void SScr_ptn_wave(int)
{
    draw_lines(
        [](int line, int width) -> Place {
            constexpr int SWING_PX = 230;
            constexpr int LATER = 60; // of a turn
            const int angle = int(scene.passes % TURN) - line * LATER;
            return {.x = (SCREEN_W - width) / 2 + SWING_PX * Sine(angle) / FULL};
        },
        SScr_sysname_disp);
}

// Stairs of names that light up and darken in turn, while all drift to the right.
void SScr_ptn_breath(int)
{
    draw_lines(
        [](int line, int width) -> Place {
            constexpr int LATER = 146;        // of a turn: seven lines from one light to the next
            constexpr uint32_t STAIR_PX = 65; // from line to line
            constexpr int PASSES_A_PIXEL = 4;
            const uint32_t passes = scene.passes + uint32_t(line) * STAIR_PX * PASSES_A_PIXEL;
            const int angle = int(scene.passes % TURN) - line * LATER;
            return {.x = rightwards(passes, width, PASSES_A_PIXEL),
                    .brightness = (Sine(angle) + FULL) / 2};
        },
        SScr_sysname_disp_2);
}

// Half the lines, at two speeds, each with a tail of light.
void SScr_ptn_comets(int)
{
    draw_lines(
        [](int line, int width) -> Place {
            const int passes_a_pixel = 1 + line / 2 % 2;
            return {.x = leftwards(scene.passes + scattered(line), width + BEHIND_MAX_PX,
                                   passes_a_pixel),
                    .behind = Behind::Tail};
        },
        SScr_sysname_disp, 2);
}

// --- Modes 8 and 9: the names as one block from side to side ---

static const char* block_text(int row)
{
    return row == 0 ? S_SYS_Name : GL_Scr_disp_name[row - 1];
}

constexpr int BLOCK_ROWS = 3; // the system name and the first two names

// Centred on x, as far as the screen is wide enough.
static void draw_block(int middle_x, int y, unsigned colour)
{
    for (int row = 0; row < BLOCK_ROWS; row++) {
        const char* text = block_text(row);
        const int w = std::min(text_width(text, NAME_FONT), SCREEN_W);
        const int x = std::clamp(middle_x - w / 2, 0, SCREEN_W - w);
        const int row_y = y + row * NAME_PITCH;
        TDL_SymbolS(x, row_y, text, NAME_FONT, colour);
        scene.drawn[row] = {x, row_y, x + w - 1, row_y + text_height(NAME_FONT) - 1};
    }
}

static int block_width()
{
    int widest = 0;
    for (int row = 0; row < BLOCK_ROWS; row++)
        widest = std::max(widest, text_width(block_text(row), NAME_FONT));
    return std::min(widest, SCREEN_W);
}

// From side to side at half height; it slows down before it turns.
void SScr_ptn_side2side_6(int)
{
    constexpr int Y = 250;
    constexpr int PASSES_A_STEP = 3;
    erase_all();
    const int swing = (SCREEN_W - block_width()) / 2;
    const int angle = int(scene.passes / PASSES_A_STEP % TURN);
    draw_block(SCREEN_W / 2 + swing * Sine(angle) / FULL, Y, saver_colour());
    scene.passes++;
}

// The same, while it rises and sinks in a rhythm of its own: it comes everywhere.
void SScr_ptn_side2side_7(int)
{
    constexpr int TOP = 40; // below the lamps
    constexpr int BOTTOM = 590 - (BLOCK_ROWS - 1) * NAME_PITCH;
    constexpr int PASSES_A_STEP_X = 3;
    constexpr int PASSES_A_STEP_Y = 5;
    erase_all();
    const int swing_x = (SCREEN_W - block_width()) / 2;
    const int swing_y = (BOTTOM - text_height(NAME_FONT) - TOP) / 2;
    const int x = swing_x * Sine(int(scene.passes / PASSES_A_STEP_X % TURN)) / FULL;
    const int y = swing_y * Sine(int(scene.passes / PASSES_A_STEP_Y % TURN)) / FULL;
    draw_block(SCREEN_W / 2 + x, TOP + swing_y + y, saver_colour());
    scene.passes++;
}

// --- Modes 10, 11 and 17: a text that fades, each time at another place ---

// A multiple of ten from which size pixels end below the limit.
static int random_place(int size, int limit)
{
    int at;
    do {
        at = rand() % 100 * 10;
    } while (at + size > limit);
    return at;
}

static void place_blink(Blink& b)
{
    constexpr int Y_LIMIT = 520; // leaves room for the names under it
    b.x = random_place(std::min(text_width(S_SYS_Name, NAME_FONT), SCREEN_W), SCREEN_W);
    b.y = random_place(text_height(NAME_FONT), Y_LIMIT);
    if (b.x <= LAMPS.x2 && b.y <= LAMPS.y2)
        b.y = LAMPS.y2;
    b.is_placed = true;
}

static void blink(unsigned colour)
{
    Blink& b = scene.blink;
    if (!b.is_placed)
        place_blink(b);
    erase_all();
    draw_block(b.x + text_width(S_SYS_Name, NAME_FONT) / 2, b.y, Dimmed(colour, b.grey + 1));
    b.grey += b.step;
    if (b.grey >= 255) {
        b.step = -1;
    } else if (b.grey <= 0) {
        b.step = 1;
        b.is_placed = false;
    }
}

void SScr_ptn_blink(int)
{
    blink(WHITE);
}

void SScr_ptn_blink_2(int)
{
    blink(saver_colour());
}

void SScr_ptn_blink_6000(int)
{
    blink(WHITE);
}
