// What of the screen surface reaches the display, and when. The display shows what was flushed
// last; a copy of that is kept, and a flush hands over only the runs of pixels that differ from it.
// While the flushes are held the rectangles are gathered: what is painted twice between hold and
// release, or erased and painted as it was, is seen once or not at all.
#include "tdl.h"
#include "tdl_private.h"
#include <algorithm>
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr int GATHERED = 64; // rectangles; more become their common frame
constexpr int RUNS = 256;    // handed over at once
constexpr int BLOCK = 4;     // pixels of a row that are compared in one go
} // namespace

static struct {
    int depth = 0; // holds that are open
    Rect gathered[GATHERED];
    int count = 0;
    SDL_Surface* shown = nullptr; // what the display shows, in the screen's format; null: unknown
    SDL_Surface* shown_of = nullptr;
    SDL_Rect run[RUNS];
    int runs = 0;
    bool has_flushed = false; // since somebody asked
    void (*watch)(int x, int y, int w, int h) = nullptr;
} flush;

void tdl_flush_init()
{
    flush.depth = flush.count = flush.runs = 0;
    flush.shown_of = nullptr;
}

void tdl_flush_quit()
{
    SDL_FreeSurface(flush.shown);
    flush.shown = flush.shown_of = nullptr;
    flush.depth = flush.count = 0;
}

void TDL_WatchFlush(void (*watch)(int x, int y, int w, int h))
{
    flush.watch = watch;
}

bool TDL_HasFlushed()
{
    const bool has_flushed = flush.has_flushed;
    flush.has_flushed = false;
    return has_flushed;
}

// --- Handing over ---

static void hand_over()
{
    if (flush.watch)
        for (int i = 0; i < flush.runs; i++)
            flush.watch(flush.run[i].x, flush.run[i].y, flush.run[i].w, flush.run[i].h);
    if (flush.runs > 0) {
        flush.has_flushed = true;
        SDL_UpdateRects(Screen, flush.runs, flush.run);
    }
    flush.runs = 0;
}

static void add_run(int x, int y, int w)
{
    // The row below an equal run makes it higher.
    for (int i = flush.runs - 1; i >= 0 && i >= flush.runs - 4; i--) {
        SDL_Rect& above = flush.run[i];
        if (above.x == x && above.w == w && above.y + above.h == y) {
            above.h++;
            return;
        }
    }
    if (flush.runs == RUNS)
        hand_over();
    flush.run[flush.runs++] = {Sint16(x), Sint16(y), Uint16(w), 1};
}

// The first display of a surface: nothing is known of what was there.
static bool begin_display()
{
    if (flush.shown_of == Screen)
        return false;
    SDL_FreeSurface(flush.shown);
    flush.shown = SDL_ConvertSurface(Screen, Screen->format, SDL_SWSURFACE);
    flush.shown_of = flush.shown ? Screen : nullptr;
    if (flush.watch)
        flush.watch(0, 0, ScreenX, ScreenY);
    flush.has_flushed = true;
    SDL_UpdateRect(Screen, 0, 0, 0, 0);
    return true;
}

// A rectangle goes out as it is.
static void remember(const Rect& r)
{
    if (flush.shown_of != Screen)
        return; // the first release takes the whole
    const size_t bytes = size_t(r.x2 + 1 - r.x1) * Screen->format->BytesPerPixel;
    for (int y = r.y1; y <= r.y2; y++)
        memcpy(tdl_pixel_at(flush.shown, r.x1, y), tdl_pixel_at(Screen, r.x1, y), bytes);
}

template <typename PIXEL> static bool same_block(const PIXEL* a, const PIXEL* b)
{
    return memcmp(a, b, BLOCK * sizeof(PIXEL)) == 0; // the compiler makes words of it
}

template <typename PIXEL>
static void take_run(const PIXEL* now, PIXEL* shown, int y, int begin, int end)
{
    add_run(begin, y, end - begin);
    memcpy(shown + begin, now + begin, size_t(end - begin) * sizeof(PIXEL));
}

// The runs of a row that differ, from x1 to x2 inclusive, in a format of whole pixels. A run ends
// at a block that is the same; it begins and ends with a pixel that differs.
template <typename PIXEL> static void show_row(int y, int x1, int x2)
{
    const auto* now = reinterpret_cast<const PIXEL*>(tdl_pixel_at(Screen, 0, y));
    auto* shown = reinterpret_cast<PIXEL*>(tdl_pixel_at(flush.shown, 0, y));
    if (memcmp(now + x1, shown + x1, size_t(x2 + 1 - x1) * sizeof(PIXEL)) == 0)
        return; // most rows
    const int blocks_end = x2 + 1 - (x2 + 1 - x1) % BLOCK;
    for (int x = x1; x < blocks_end; x += BLOCK) {
        if (same_block(now + x, shown + x))
            continue;
        int begin = x;
        while (now[begin] == shown[begin])
            begin++;
        do
            x += BLOCK;
        while (x < blocks_end && !same_block(now + x, shown + x));
        int end = x;
        while (now[end - 1] == shown[end - 1])
            end--;
        take_run(now, shown, y, begin, end);
    }
    for (int x = blocks_end; x <= x2; x++)
        if (now[x] != shown[x])
            take_run(now, shown, y, x, x + 1);
}

static void show_part(const Rect& r)
{
    for (int y = r.y1; y <= r.y2; y++) {
        switch (Screen->format->BytesPerPixel) {
        case 4: show_row<uint32_t>(y, r.x1, r.x2); break;
        case 2: show_row<uint16_t>(y, r.x1, r.x2); break;
        default: add_run(r.x1, y, r.x2 - r.x1 + 1);
        }
    }
}

static void show(const Rect& r)
{
    if (!begin_display())
        tdl_each_unshown(r, show_part);
}

// --- Gathering ---

static bool contains(const Rect& a, const Rect& b)
{
    return a.x1 <= b.x1 && a.y1 <= b.y1 && a.x2 >= b.x2 && a.y2 >= b.y2;
}

static Rect frame_of(const Rect& a, const Rect& b)
{
    return {std::min(a.x1, b.x1), std::min(a.y1, b.y1), std::max(a.x2, b.x2), std::max(a.y2, b.y2)};
}

static void gather(const Rect& r)
{
    int kept = 0;
    for (int i = 0; i < flush.count; i++) {
        if (contains(flush.gathered[i], r))
            return;
        if (!contains(r, flush.gathered[i]))
            flush.gathered[kept++] = flush.gathered[i];
    }
    flush.count = kept;
    if (flush.count < GATHERED) {
        flush.gathered[flush.count++] = r;
        return;
    }
    for (int i = 1; i < flush.count; i++)
        flush.gathered[0] = frame_of(flush.gathered[0], flush.gathered[i]);
    flush.gathered[0] = frame_of(flush.gathered[0], r);
    flush.count = 1;
}

static Rect clipped(const Rect& r)
{
    return {std::max(r.x1, 0), std::max(r.y1, 0), std::min(r.x2, ScreenX - 1),
            std::min(r.y2, ScreenY - 1)};
}

void tdl_flush(const Rect& r)
{
    const Rect part = clipped(r);
    if (tdl_is_empty(part))
        return;
    if (flush.depth > 0) {
        gather(part);
        return;
    }
    remember(part);
    if (flush.watch)
        flush.watch(part.x1, part.y1, part.x2 - part.x1 + 1, part.y2 - part.y1 + 1);
    flush.has_flushed = true;
    SDL_UpdateRect(Screen, part.x1, part.y1, uint32_t(part.x2 - part.x1 + 1),
                   uint32_t(part.y2 - part.y1 + 1));
}

void TDL_Hold()
{
    flush.depth++;
}

void TDL_Release()
{
    if (flush.depth > 0 && --flush.depth == 0)
        TDL_Show();
}

bool tdl_is_held()
{
    return flush.depth > 0;
}

void TDL_Show()
{
    tdl_paint_listed();
    for (int i = 0; i < flush.count; i++)
        show(flush.gathered[i]);
    flush.count = 0;
    hand_over();
}

int TDL_UpdateRect(int x1, int y1, int x2, int y2)
{
    tdl_flush({x1, y1, x2, y2});
    return 0;
}

int TDL_UpdateScreen()
{
    tdl_flush({0, 0, ScreenX - 1, ScreenY - 1});
    return 0;
}
