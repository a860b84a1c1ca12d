#include "graphics.h"
#include "log.h"
#include "process.h"
#include "tdl.h"
#include "text.h"
#include "types.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <unistd.h>

#include "safeguards.h"

#define BITMAP(name, file) SDL_Surface* G_##name = nullptr;
#include "graphics_list.h"
#undef BITMAP

SDL_Surface* G_WipePtn[WIPE_PTN_MAX];
static bool is_listed[WIPE_PTN_MAX]; // has a file, which nobody has asked for yet

// Patterns that the smaller model shows by other pictures, named with an "e" behind the number: the
// flat moves over two channels, which it makes with one.
static constexpr int DmeWipePtn_KTR20[] = {
    2001, 2002, 2003, 2004, 2005, 2006, 2007, 2008, // slide
    2011, 2012, 2013, 2014, 2015, 2016, 2017, 2018, // push
    2021, 2022, 2023, 2024,                         // split
    2201, 2202, 2203, 2204, 2205, 2206, 2207, 2208, // squeeze
    2251,                                           // zoom
};
static_assert(sizeof DmeWipePtn_KTR20 / sizeof DmeWipePtn_KTR20[0] == 29);

// --- Loading ---

// What a bitmap is known by until its pixels are read: its place in the list, or its number and
// which of the two pictures of it.
enum : uint32_t {
    KEY_LISTED = 1,
    KEY_PATTERN = 0x10000,
    KEY_SMALL_MODEL = 0x20000,
    KEY_NUMBER = 0xFFFF
};
static constexpr const char* listed_files[] = {
#define BITMAP(name, file) file,
#include "graphics_list.h"
#undef BITMAP
};

static void graphics_path(char* path, size_t size, const char* name)
{
    snprintf(path, size, "graphics/%s.bmp", name);
}

static void pattern_name(char (&name)[16], uint32_t key)
{
    PrintText(name, "ptn/%u%s", unsigned(key & KEY_NUMBER), key & KEY_SMALL_MODEL ? "e" : "");
}

static bool path_of_key(uint32_t key, char* path, size_t size)
{
    char pattern[16];
    if (key & (KEY_PATTERN | KEY_SMALL_MODEL)) {
        pattern_name(pattern, key);
        graphics_path(path, size, pattern);
        return true;
    }
    if (key < KEY_LISTED || key > sizeof listed_files / sizeof *listed_files)
        return false;
    graphics_path(path, size, listed_files[key - KEY_LISTED]);
    return true;
}

// A key of 0: the pixels are read at once.
static SDL_Surface* load_gfile(const char* name, uint32_t key = 0)
{
    char path[PATH_SIZE];
    graphics_path(path, sizeof path, name);
    SDL_Surface* loaded = key ? TDL_OpenBmp(path, key) : TDL_LoadBmp(path);
    if (!loaded)
        Log_Output(LOG_TRACE, MOD_START, "Can't load graphics file: [%s]", path);
    return loaded;
}

static void free_surface(SDL_Surface** surface)
{
    SDL_FreeSurface(*surface);
    *surface = nullptr;
}

// From its own file, or that of the smaller model, at once.
static void load_wipe_ptn(uint32_t key)
{
    char name[16];
    const uint32_t n = key & KEY_NUMBER;
    pattern_name(name, key);
    free_surface(&G_WipePtn[n]);
    G_WipePtn[n] = load_gfile(name, key);
    is_listed[n] = false;
}

// A name of the list: what it stands for is opened when it is asked for. One with leading noughts
// would not be found again by its number.
static void list_wipe_ptn(int n, const char* name)
{
    char usual[16];
    PrintText(usual, "%d", n);
    free_surface(&G_WipePtn[n]);
    is_listed[n] = strcmp(name, usual) == 0;
    if (is_listed[n])
        return;
    char file[80];
    PrintText(file, "ptn/%s", name);
    G_WipePtn[n] = load_gfile(file);
}

// --- The list of wipe patterns ---

// The pattern number of a file name that has been cut at its dot; -1 when it is none.
static int ptn_number(const char* name)
{
    if (!*name)
        return -1;
    int n = 0;
    for (; *name; name++) {
        if (*name < '0' || *name > '9')
            return -1;
        n = 10 * n + (*name - '0');
        if (n >= WIPE_PTN_MAX)
            return -1;
    }
    return n;
}

// One line of the list, cut at its first dot or control character; what does not fit in name is
// dropped. False at the end of the file.
static bool read_name(FILE* fp, char* name, size_t size)
{
    size_t len = 0;
    bool cut = false;
    int c = fgetc(fp);
    if (c == EOF)
        return false;
    for (; c != EOF && c != '\n'; c = fgetc(fp)) {
        if (c == '.' || c < ' ')
            cut = true;
        if (!cut && len + 1 < size)
            name[len++] = char(c);
    }
    name[len] = '\0';
    return true;
}

bool WipePtn_ReadList(const char* list)
{
    FILE* fp = fopen(list, "r");
    if (!fp)
        return false;
    char name[64];
    while (read_name(fp, name, sizeof name)) {
        const int n = ptn_number(name);
        if (n >= 0)
            list_wipe_ptn(n, name);
    }
    fclose(fp);
    return true;
}

// List the folder first: thousands of opens that fail take seconds on a slow disc.
static bool list_and_load_ptns()
{
    char list[] = "/tmp/ptn_list.XXXXXX";
    const int fd = mkstemp(list);
    if (fd < 0)
        return false;
    close(fd);
    char cmd[CMD_SIZE];
    PrintText(cmd, "/usr/bin/find graphics/ptn/ -fprintf %s \"%%P\\n\"", list);
    const bool listed = ktr_system(cmd) == 0 && WipePtn_ReadList(list);
    unlink(list);
    return listed;
}

static void load_all_ptns()
{
    for (uint32_t n = 0; n < WIPE_PTN_MAX; n++)
        load_wipe_ptn(n | KEY_PATTERN);
}

// --- Public ---

void LoadGraphics()
{
    TDL_SetBmpPaths(path_of_key);
    uint32_t key = KEY_LISTED;
#define BITMAP(name, file) G_##name = load_gfile(file, key++);
#include "graphics_list.h"
#undef BITMAP
    if (!list_and_load_ptns())
        load_all_ptns();
}

SDL_Surface* WipePtn(int number)
{
    if (number < 0 || number >= WIPE_PTN_MAX)
        return nullptr;
    if (is_listed[number])
        load_wipe_ptn(uint32_t(number) | KEY_PATTERN);
    return G_WipePtn[number];
}

bool WipePtn_IsListed(int number)
{
    return is_listed[number] || G_WipePtn[number];
}

void FreeGraphics()
{
#define BITMAP(name, file) free_surface(&G_##name);
#include "graphics_list.h"
#undef BITMAP
    for (SDL_Surface*& picture : G_WipePtn)
        free_surface(&picture);
    std::fill(std::begin(is_listed), std::end(is_listed), false);
}

static void load_dme_wipe_ptns(uint32_t model)
{
    for (const int n : DmeWipePtn_KTR20)
        load_wipe_ptn(uint32_t(n) | model);
}

void LoadDmeWipePtn_KTR20()
{
    load_dme_wipe_ptns(KEY_SMALL_MODEL);
}

void LoadDmeWipePtn_Standard()
{
    load_dme_wipe_ptns(KEY_PATTERN);
}

SDL_Surface* LoadGFile(const char* name)
{
    return load_gfile(name);
}
