#include "bmp_check.h"
#include "fmctrl_private.h"
#include "tdl.h"
#include "text.h"
#include <cstdio>
#include <cstring>
#include <unistd.h>

#include "safeguards.h"

constexpr long SFT_HEAD = 64; // not read
constexpr size_t BLOCK = 256;

static bool copy_rest(FILE* from, FILE* to)
{
    char block[BLOCK];
    size_t n = 0;
    while ((n = fread(block, 1, sizeof block, from)) > 0)
        if (fwrite(block, 1, n, to) != n)
            return false;
    return !ferror(from) && fflush(to) == 0;
}

// Written beside and renamed, so that a picture that is shown is never half a new one. It is not
// forced to the disk: after a power failure all thumbnails are fetched anew.
int fm_sft_to_bmp(const char* sft, const char* bmp)
{
    char beside[PATH_SIZE];
    PrintText(beside, "%s.new", bmp);
    FILE* from = fopen(sft, "re");
    if (!from)
        return -1;
    FILE* to = fseek(from, SFT_HEAD, SEEK_SET) == 0 ? fopen(beside, "we") : nullptr;
    bool is_whole = to && copy_rest(from, to);
    fclose(from);
    if (to)
        is_whole = fclose(to) == 0 && is_whole;
    if (is_whole && rename(beside, bmp) == 0)
        return 0;
    (void)unlink(beside);
    (void)unlink(bmp);
    return -1;
}

SDL_Surface* fm_load_bmp(const char* path)
{
    return Bmp_IsSound(path, SCREEN_W, SCREEN_H) ? TDL_LoadBmp(path) : nullptr;
}
