// The patterns of the screen saver that show the pictures of a folder, SSrc_0.bmp to SSrc_99.bmp in
// the order of their numbers, gaps left out, for ever. The folder is asked again for each picture,
// so pictures may come, go and change while the saver runs; without any, a text fades in its place.
#include "saver_private.h"
#include "tdl.h"
#include "text.h"
#include "types.h"
#include <SDL.h>
#include <algorithm>
#include <bitset>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <iterator>
#include <sys/stat.h>

#include "safeguards.h"

namespace
{
constexpr int PICTURES = 100; // numbers 0 to 99
constexpr int NONE = -1;
constexpr int OPAQUE = 255;
constexpr int BLIND_STEP = -10; // of the fade that a missing picture leaves behind
constexpr char STEM[] = "SSrc_";
constexpr const char* extensions[] = {"bmp", "BMP", "jpg", "JPG"};
constexpr int speeds[SAVER_SPEEDS] = {5, 10, 15, 20, 25, 30, 35, 40, 45, 50}; // alpha a pass

// A fade needs its pictures in every pass, and reading one takes longer than a pass: the last two
// are kept, until their file changes.
struct Kept {
    char path[PATH_SIZE] = "";
    off_t size = 0;
    timespec changed = {};
    SDL_Surface* picture = nullptr;
};
constexpr int KEPT = 2; // what goes and what comes

// A file that turned out to be no picture: it is not read again before it changes.
struct NoPicture {
    bool is_known = false;
    off_t size = 0;
    timespec changed = {};
};
} // namespace

static Kept kept[KEPT]; // the last used first
static NoPicture no_picture[PICTURES]
                           [std::size(extensions)]; // of the folder; while the saver is up

static int SSav_Disp = 0;       // a first picture has been made
static int SSav_Disp_alpha = 0; // 1: fading, 0: holding
static int ssr_no_next = 0;     // the number to try next

static struct {
    int alpha = OPAQUE;
    int step = 0;            // of alpha in a pass
    int hold_ms = 0;         // that the picture still stands
    int shown = NONE;        // number of the picture on the screen, or of the one that goes
    int coming = NONE;       // number of the one that comes
    bool is_missing = false; // the text stands in
} show;                      // valid while the saver is up

void saver_pictures_start()
{
    show = {};
    SSav_Disp = 0;
    SSav_Disp_alpha = 0;
    for (auto& number : no_picture)
        for (NoPicture& file : number)
            file = {};
}

void saver_pictures_end()
{
    for (Kept& k : kept) {
        SDL_FreeSurface(k.picture);
        k = {};
    }
    SSav_Disp = 0;
}

// --- The folder ---

template <class File> static bool is_unchanged(const File& file, const struct stat& st)
{
    return file.size == st.st_size && file.changed.tv_sec == st.st_mtim.tv_sec &&
           file.changed.tv_nsec == st.st_mtim.tv_nsec;
}

static bool is_kept(const Kept& k, const char* path, const struct stat& st)
{
    return k.picture && is_unchanged(k, st) && strcmp(k.path, path) == 0;
}

// Null when the file is none that can be shown.
static SDL_Surface* load_kept(const char* path, NoPicture& no)
{
    struct stat st;
    if (stat(path, &st) != 0 || (no.is_known && is_unchanged(no, st)))
        return nullptr;
    for (int i = 0; i < KEPT; i++) {
        if (!is_kept(kept[i], path, st))
            continue;
        std::rotate(kept, kept + i, kept + i + 1);
        return kept[0].picture;
    }
    SDL_Surface* picture = TDL_ScreenSaverBMP(path);
    no = {!picture, st.st_size, st.st_mtim};
    if (!picture)
        return nullptr;
    Kept& oldest = kept[KEPT - 1];
    SDL_FreeSurface(oldest.picture);
    CopyText(oldest.path, path);
    oldest.size = st.st_size;
    oldest.changed = st.st_mtim;
    oldest.picture = picture;
    std::rotate(kept, kept + KEPT - 1, kept + KEPT);
    return picture;
}

// The picture with a number, null when there is none. It stays with the saver, and lives until two
// others have been asked for.
static SDL_Surface* Select_fileLoad(int n)
{
    for (size_t i = 0; i < std::size(extensions); i++) {
        char path[PATH_SIZE];
        PrintText(path, "%s/%s%d.%s", GL_Scr_disp_ImagePath, STEM, n, extensions[i]);
        if (SDL_Surface* picture = load_kept(path, no_picture[n][i]))
            return picture;
    }
    return nullptr;
}

// The numbers that have a file: one look at the folder in place of 400 tries.
static std::bitset<PICTURES> numbers_in_folder()
{
    std::bitset<PICTURES> found;
    DIR* dir = opendir(GL_Scr_disp_ImagePath);
    if (!dir)
        return found;
    while (const dirent* entry = readdir(dir)) {
        if (!BeginsWith(entry->d_name, STEM))
            continue;
        const long n = strtol(entry->d_name + sizeof STEM - 1, nullptr, 10);
        if (n >= 0 && n < PICTURES)
            found.set(size_t(n));
    }
    closedir(dir);
    return found;
}

// The next picture from number *n on, round the end to the numbers before; *n becomes the number
// after it. Null, and *n as it was, when there is none.
static SDL_Surface* Select_file_access(int* n)
{
    const std::bitset<PICTURES> exists = numbers_in_folder();
    const int first = *n;
    for (int i = 0; i < PICTURES; i++) {
        const int number = (first + i) % PICTURES;
        if (!exists[size_t(number)])
            continue;
        if (SDL_Surface* picture = Select_fileLoad(number)) {
            *n = number + 1;
            return picture;
        }
    }
    return nullptr;
}

// The picture that was shown last, or the next one when its file is gone.
static SDL_Surface* picture_again(int* number)
{
    if (*number != NONE)
        if (SDL_Surface* picture = Select_fileLoad(*number))
            return picture;
    SDL_Surface* picture = Select_file_access(&ssr_no_next);
    *number = picture ? ssr_no_next - 1 : NONE;
    return picture;
}

// --- On the screen ---

static void clear_screen()
{
    TDL_FillRectS(0, 0, SCREEN_W - 1, SCREEN_H - 1, 0);
}

static int fade_step()
{
    return speeds[std::clamp(GL_ScreenSaverVariable_speed, 0, SAVER_SPEEDS - 1)];
}

// No picture at all: the text fades in its place.
static void show_missing(int elapsed_ms)
{
    if (!show.is_missing) {
        clear_screen();
        saver_scenes_start();
    }
    show.is_missing = true;
    SScr_ptn_blink(elapsed_ms);
}

static void show_missing_fade(int elapsed_ms)
{
    show.step = BLIND_STEP;
    show_missing(elapsed_ms);
}

// Pictures may be smaller than the one before.
static void put_alone(SDL_Surface* picture, int alpha)
{
    show.is_missing = false;
    clear_screen();
    if (alpha >= OPAQUE)
        TDL_PutS(0, 0, picture);
    else
        TDL_PutAS(0, 0, picture, uint8_t(alpha));
}

static void hold()
{
    show.hold_ms = GL_ScreenSaverPath_Time * 1000;
    SSav_Disp_alpha = 0;
}

// True while the picture still stands.
static bool is_holding(int elapsed_ms)
{
    if (SSav_Disp_alpha)
        return false;
    show.hold_ms -= elapsed_ms;
    if (show.hold_ms > 0)
        return true;
    SSav_Disp_alpha = 1;
    return true; // the fade begins with the next pass
}

// The first picture of a fading pattern. True once it stood before this pass.
static bool begin(int elapsed_ms)
{
    if (SSav_Disp)
        return true;
    SDL_Surface* picture = picture_again(&show.shown);
    if (!picture) {
        show_missing_fade(elapsed_ms);
        return false;
    }
    show.alpha = OPAQUE;
    show.step = -fade_step();
    hold();
    put_alone(picture, show.alpha);
    SSav_Disp = 1;
    return false;
}

// --- The patterns ---

// Mode 12: one picture after the other.
void SScr_ptn_slide(int elapsed_ms)
{
    if (show.hold_ms > 0)
        show.hold_ms -= elapsed_ms;
    if (show.hold_ms > 0)
        return;
    SDL_Surface* picture = Select_file_access(&ssr_no_next);
    if (!picture) {
        show_missing(elapsed_ms);
        return;
    }
    put_alone(picture, OPAQUE);
    hold();
    SSav_Disp = 1;
}

// What the brightness does in one pass of a fade: down to black, up again, then it holds.
enum class Turn { None, Black, Full };
static Turn fade()
{
    show.alpha += show.step;
    if (show.alpha >= OPAQUE) {
        show.alpha = OPAQUE;
        show.step = -fade_step();
        return Turn::Full;
    }
    if (show.alpha < 1) {
        show.alpha = 0;
        show.step = fade_step();
        return Turn::Black;
    }
    return Turn::None;
}

// Mode 13: a picture fades out, the next one fades in. The number only moves on in the dark.
void SScr_ptn_alpha(int elapsed_ms)
{
    if (!begin(elapsed_ms) || is_holding(elapsed_ms))
        return;
    SDL_Surface* picture = picture_again(&show.shown);
    if (!picture) {
        show_missing_fade(elapsed_ms);
        return;
    }
    const Turn turn = fade();
    put_alone(picture, show.alpha);
    if (turn == Turn::Full)
        hold();
    else if (turn == Turn::Black)
        show.shown = NONE;
}

// Mode 14: the pictures run through while the brightness falls and rises.
void SScr_ptn_change(int elapsed_ms)
{
    if (!begin(elapsed_ms) || is_holding(elapsed_ms))
        return;
    SDL_Surface* picture = Select_file_access(&ssr_no_next);
    if (!picture) {
        show_missing_fade(elapsed_ms);
        return;
    }
    if (fade() == Turn::Full)
        hold();
    put_alone(picture, show.alpha);
}

// One picture becomes the next: how is what the two modes differ in.
static void cross_fade(int elapsed_ms, void (*put)(SDL_Surface* going, SDL_Surface* coming))
{
    if (!begin(elapsed_ms) || is_holding(elapsed_ms))
        return;
    SDL_Surface* coming = picture_again(&show.coming);
    SDL_Surface* going = show.shown == NONE ? nullptr : Select_fileLoad(show.shown);
    if (!coming) {
        show_missing_fade(elapsed_ms);
        return;
    }
    show.alpha = std::max(0, show.alpha + std::min(show.step, -1));
    show.is_missing = false;
    clear_screen();
    put(going, coming);
    if (show.alpha > 0)
        return;
    show.alpha = OPAQUE;
    show.step = -fade_step();
    show.shown = show.coming;
    show.coming = NONE;
    hold();
}

// Mode 15: both are translucent. What has gone, null, is not put.
void SScr_ptn_multi(int elapsed_ms)
{
    cross_fade(elapsed_ms, [](SDL_Surface* going, SDL_Surface* coming) {
        TDL_PutAS(0, 0, going, uint8_t(show.alpha));
        TDL_PutAS(0, 0, coming, uint8_t(OPAQUE - show.alpha));
    });
}

// Mode 16: what goes becomes translucent over what comes.
void SScr_ptn_multi_2(int elapsed_ms)
{
    cross_fade(elapsed_ms, [](SDL_Surface* going, SDL_Surface* coming) {
        TDL_PutS(0, 0, coming);
        TDL_PutAS(0, 0, going, uint8_t(show.alpha));
    });
}
