// Bitmaps whose pixels are read when they are first shown. Of some three thousand a page shows a
// few dozen: to decode them all at start costs time before the first page and memory for good. The
// size is known from the start, and a file that is missing is missed then.
#include "bmp_check.h"
#include "log.h"
#include "tdl.h"
#include "tdl_private.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include "safeguards.h"

namespace
{
constexpr size_t HEADER = 54;
constexpr int SIDE_MAX = 4096;
constexpr uint16_t PLAIN_BITS = 24;
constexpr size_t BLOCK = 65536; // of a file, read at once
struct Head {
    size_t pixels_at = 0;
    int w = 0;
    int h = 0;
    size_t stride() const { return (size_t(w) * 3 + 3) & ~size_t(3); } // of a row in the file
};
} // namespace

static_assert(BLOCK >= size_t(SIDE_MAX) * 3 + 3, "one row at least");

uint32_t tdl_opened_bitmaps = 0;
static bool (*path_of)(uint32_t key, char* path, size_t size) = nullptr;

void TDL_SetBmpPaths(bool (*paths)(uint32_t key, char* path, size_t size))
{
    path_of = paths;
}

static uint32_t get32(const uint8_t* b)
{
    return uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
}

// True for the plain kind that all bitmaps of the user interface are: 24 bits, not compressed, the
// last row first.
static bool read_head(int fd, Head* head)
{
    uint8_t b[HEADER];
    if (pread(fd, b, sizeof b, 0) != ssize_t(sizeof b) || b[0] != 'B' || b[1] != 'M')
        return false;
    const uint32_t bits = get32(b + 28) & 0xFFFF;
    head->pixels_at = get32(b + 10);
    head->w = int(get32(b + 18));
    head->h = int(get32(b + 22));
    return bits == PLAIN_BITS && get32(b + 30) == 0 && head->pixels_at >= HEADER &&
           head->pixels_at < SIDE_MAX && head->w > 0 && head->w <= SIDE_MAX && head->h > 0 &&
           head->h <= SIDE_MAX;
}

// --- Pixels ---

static void decode_row(uint8_t* to, const uint8_t* from, int w, const SDL_PixelFormat& f)
{
    auto* pixel = reinterpret_cast<uint32_t*>(to);
    for (int x = 0; x < w; x++, from += 3)
        pixel[x] = uint32_t(from[2]) << f.Rshift | uint32_t(from[1]) << f.Gshift |
                   uint32_t(from[0]) << f.Bshift;
}

// Some rows at a time: a call a row costs more than the row. Not mapped: a drive that fails in the
// middle would end the process.
static bool read_rows(SDL_Surface* s, int fd, const Head& head)
{
    static uint8_t block[BLOCK];
    const int rows_a_block = int(BLOCK / head.stride());
    off_t at = off_t(head.pixels_at);
    for (int left = s->h; left > 0;) {
        const int rows = std::min(left, rows_a_block);
        const size_t size = size_t(rows) * head.stride();
        if (pread(fd, block, size, at) != ssize_t(size))
            return false;
        for (int i = 0; i < rows; i++) // the last row is the first of the file
            decode_row(tdl_pixel_at(s, 0, --left), block + size_t(i) * head.stride(), s->w,
                       *s->format);
        at += off_t(size);
    }
    return true;
}

static SDL_Surface* new_bitmap(int w, int h)
{
    const SDL_PixelFormat& f = *Screen->format;
    return SDL_CreateRGBSurface(SDL_SWSURFACE, w, h, 32, f.Rmask, f.Gmask, f.Bmask, 0);
}

static bool read_pixels(SDL_Surface* s, const char* fname)
{
    Head head;
    const int fd = open(fname, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool is_read =
        read_head(fd, &head) && head.w == s->w && head.h == s->h && read_rows(s, fd, head);
    (void)close(fd);
    return is_read;
}

static SDL_Surface* load_plain(int fd)
{
    Head head;
    if (!read_head(fd, &head))
        return nullptr;
    SDL_Surface* made = new_bitmap(head.w, head.h);
    if (made && read_rows(made, fd, head))
        return made;
    SDL_FreeSurface(made);
    return nullptr;
}

// The usual kind on the usual screen is read as it stands; the library, which takes four times as
// long and believes any header, has all others that are sound.
SDL_Surface* TDL_LoadBmp(const char* fname)
{
    const int fd = open(fname, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return nullptr;
    SDL_Surface* made = tdl_blends_bytes() ? load_plain(fd) : nullptr;
    (void)close(fd);
    if (made || !Bmp_IsSound(fname, SIDE_MAX, SIDE_MAX))
        return made;
    SDL_Surface* loaded = SDL_LoadBMP(fname);
    if (!loaded)
        return nullptr;
    made = SDL_DisplayFormat(loaded);
    SDL_FreeSurface(loaded);
    return made;
}

// --- The first use ---

SDL_Surface* TDL_OpenBmp(const char* fname, uint32_t key)
{
    const int fd = open(fname, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return nullptr;
    Head head;
    const bool is_plain = read_head(fd, &head);
    (void)close(fd);
    if (!is_plain || key == 0 || !tdl_blends_bytes())
        return TDL_LoadBmp(fname);
    const SDL_PixelFormat& f = *Screen->format;
    SDL_Surface* made = SDL_CreateRGBSurfaceFrom(nullptr, head.w, head.h, 32, head.w * 4, f.Rmask,
                                                 f.Gmask, f.Bmask, 0);
    if (made)
        made->unused1 = key;
    tdl_opened_bitmaps++;
    return made;
}

// A file that has gone or changed since the start leaves a black bitmap of the size that was there.
void tdl_fetch_pixels(SDL_Surface* s)
{
    SDL_Surface* made = new_bitmap(s->w, s->h);
    if (!made)
        return; // tried again at the next use
    SDL_FillRect(made, nullptr, 0);
    s->pixels = made->pixels;
    s->pitch = made->pitch;
    s->flags &= ~uint32_t(SDL_PREALLOC); // freed with the surface
    made->pixels = nullptr;
    SDL_FreeSurface(made);
    char path[PATH_SIZE];
    if (!path_of || !path_of(s->unused1, path, sizeof path) || !read_pixels(s, path))
        Log_Output(LOG_TRACE, MOD_START, "Can't load graphics file: [%u]", unsigned(s->unused1));
}
