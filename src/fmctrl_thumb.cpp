#include "bus.h"
#include "device.h"
#include "file.h"
#include "fmctrl_private.h"
#include "log.h"
#include "message.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <iterator>
#include <unistd.h>

#include "safeguards.h"

constexpr int FETCHES_MAX = 30; // at once, both stores together: the server's file link is slow
constexpr int TRIES = 6;

enum : int {
    THUMBNAIL_PRIORITY_CLIP_MID_MAIN = 0,
    THUMBNAIL_PRIORITY_STILL_MAIN = 1,
    THUMBNAIL_PRIORITY_CLIP_MID_SUB = 2,
    THUMBNAIL_PRIORITY_STILL_SUB = 3,
    THUMBNAIL_PRIORITY_CLIP_OTHER = 4,
    THUMBNAIL_PRIORITY_MAX = 5,
};

namespace
{
struct Fetch {
    uint32_t label = 0;
    int index = 0;
};
} // namespace

static struct {
    Fetch fetch[FETCHES_MAX]; // in flight; also those that nobody wants any more
    int fetches = 0;
    bool somebody_waits = false;  // a register may have thumbwait set
    int refresh_at = -1;          // all are fetched anew: how far that is; -1 no work
    SDL_Surface* extra = nullptr; // the size that a record does not hold, for one caller
} th;

static int ThumbGetting = 0;  // fetches of the main store
static int ThumbGetting2 = 0; // of the extended store

static int& getting(int index)
{
    return fm_is_extended(index) ? ThumbGetting2 : ThumbGetting;
}

// --- Names of the files ---

static void remote_name(char (&text)[FILE_PATH_SIZE], int index)
{
    const char* store = fm_is_extended(index) ? "FMEX" : "FMEM";
    const int number = fm_number_in_store(index);
    if (SYS_FmemV6 && number > 999)
        PrintText(text, "%s:%s%04d.SFT", DEV_MySwr[0]->id, store, number);
    else
        PrintText(text, "%s:%s_%03d.SFT", DEV_MySwr[0]->id, store, number);
}

static void local_name(char (&text)[PATH_SIZE], int index, const char* extension)
{
    PrintText(text, "/mnt/sys/FrameMemory/%s_%04d.%s", fm_is_extended(index) ? "FX" : "FM",
              fm_number_in_store(index), extension);
}

static void remove_local(int index, const char* extension)
{
    char path[PATH_SIZE];
    local_name(path, index, extension);
    (void)unlink(path); // mostly it is not there
}

// --- Fetches in flight ---

static void fetch_begun(uint32_t label, int index)
{
    th.fetch[th.fetches++] = {label, index};
    Log_Output(LOG_TRACE, MOD_FM, "++ThumbGetting = %d", ++getting(index));
}

// False for one that was forgotten.
static bool fetch_ended(uint32_t label, int index)
{
    Fetch* end = th.fetch + th.fetches;
    Fetch* f = std::find_if(th.fetch, end, [=](const Fetch& x) { return x.label == label; });
    if (f == end)
        return false;
    *f = th.fetch[--th.fetches];
    Log_Output(LOG_TRACE, MOD_FM, "--ThumbGetting (A) = %d", --getting(index));
    return true;
}

static void set_waiting(FMEMREG& r)
{
    r.thumbwait = 1;
    th.somebody_waits = true;
}

void fm_thumbnails_forget_fetches()
{
    for (int i = 0; i < th.fetches; i++) {
        (void)File_ExecUSBReload_cancel(th.fetch[i].label); // else it stays for an answer
        FMEMREG* r = fm_register(th.fetch[i].index);
        if (!r || r->filelabel != th.fetch[i].label)
            continue;
        r->filelabel = 0;
        set_waiting(*r);
    }
    th.fetches = ThumbGetting = ThumbGetting2 = 0;
}

// --- One thumbnail ---

static void thumbnail_getted(uint32_t label, int index, const char* reply);

static bool is_held_back()
{
    return GL_UnnecessaryThumb || GL_FMThumbnailGetAfter == 1 || GL_FMRec || !DEV_MySwr[0];
}

static void thumbnail_get(int index)
{
    FMEMREG* r = fm_register(index);
    if (!r)
        return;
    if (th.fetches >= FETCHES_MAX || is_held_back()) {
        set_waiting(*r);
        return;
    }
    char remote[FILE_PATH_SIZE];
    char path[PATH_SIZE];
    char local[FILE_PATH_SIZE];
    remote_name(remote, index);
    local_name(path, index, "SFT");
    PrintText(local, "MYHOST:%s", path);
    const int label = File_ExecFmGet(remote, local, thumbnail_getted, index);
    if (label == -1) {
        set_waiting(*r);
        return;
    }
    r->thumbwait = 0;
    r->filelabel = uint32_t(label);
    fetch_begun(r->filelabel, index);
}

static bool take_picture(FMEMREG& r, const char* bmp)
{
    SDL_Surface* picture = fm_load_bmp(bmp);
    if (picture && SYS_FmemV6) {
        SDL_Surface* small = TDL_CreateSmallSurface(picture);
        SDL_FreeSurface(picture);
        picture = small;
    }
    if (!picture)
        return false;
    SDL_FreeSurface(r.thumb); // takes a null
    r.thumb = picture;
    return true;
}

// An "O..." brings the file as it is stored, a "C..." has left the bitmap itself.
static bool take_file(FMEMREG& r, int index, const char* reply)
{
    char sft[PATH_SIZE];
    char bmp[PATH_SIZE];
    local_name(sft, index, "SFT");
    local_name(bmp, index, "BMP");
    bool taken = false;
    if (reply[0] == 'O')
        taken = fm_sft_to_bmp(sft, bmp) == 0 && take_picture(r, bmp);
    else if (reply[0] == 'C')
        taken = take_picture(r, bmp);
    if (!SYS_FmemV6 || !taken)
        (void)unlink(bmp);
    return taken;
}

static void try_again(FMEMREG& r, int index)
{
    if (++r.retry < TRIES) {
        Log_Output(LOG_ALWAYS, MOD_FM, "retry thumbnail get... (%d times)", r.retry);
        thumbnail_get(index);
    } else {
        Log_Output(LOG_ALWAYS, MOD_FM, "### GIVE UP THUMBNAIL ###");
    }
}

static void thumbnail_checkwait();

static void thumbnail_getted(uint32_t label, int index, const char* reply)
{
    const bool was_counted = fetch_ended(label, index);
    if (was_counted && th.fetches == 0)
        thumbnail_checkwait();
    FMEMREG* r = fm_register(index);
    if (!r || r->filelabel != label) {
        Log_Output(LOG_TRACE, MOD_FM, "...but, not find filelabel... (L%u)", label);
        remove_local(index, "SFT");
        return;
    }
    r->filelabel = 0;
    const bool taken = take_file(*r, index, reply ? reply : "");
    remove_local(index, "SFT");
    if (!taken) {
        try_again(*r, index);
        return;
    }
    r->retry = 0;
    fm_tell(index, 1);
}

void fm_thumbnail_due(int index)
{
    if (th.fetches == 0)
        thumbnail_get(index);
    else
        set_waiting(*fm_register(index));
}

void fm_thumbnail_drop(int index)
{
    FMEMREG* r = fm_register(index);
    if (!r)
        return;
    r->thumbwait = r->retry = 0;
    if (r->filelabel) {
        const uint32_t label = r->filelabel;
        r->filelabel = 0;
        (void)File_CancelTransfer(label); // its last reply comes all the same
    }
    if (!r->thumb)
        return;
    SDL_FreeSurface(r->thumb);
    r->thumb = nullptr;
    if (SYS_FmemV6)
        remove_local(index, "BMP");
}

// --- The priority pass ---

namespace
{
struct ClassList {
    int index[FETCHES_MAX];
    int num = 0;
};
struct StoreLists {
    ClassList list[THUMBNAIL_PRIORITY_MAX];
};
} // namespace

static bool class_add(ClassList& list, int index)
{
    if (list.num >= FETCHES_MAX)
        return false;
    list.index[list.num++] = index;
    return true;
}

// The middle of the clip first, whichever of its frames comes by; the frame itself among the rest.
static void class_of_frame(StoreLists& lists, int index)
{
    FMEMREG& r = *fm_register(index);
    const int middle = FMCtrl_GetClipMidRegId2(index);
    FMEMREG* m = fm_register(middle);
    if (m && fm_is_extended(middle) == fm_is_extended(index) && m->thumbwait && !m->buff_flug) {
        const int priority = fm_is_main_name(r.name) ? THUMBNAIL_PRIORITY_CLIP_MID_MAIN
                                                     : THUMBNAIL_PRIORITY_CLIP_MID_SUB;
        if (class_add(lists.list[priority], middle))
            m->buff_flug = 1;
    }
    if (!r.buff_flug && class_add(lists.list[THUMBNAIL_PRIORITY_CLIP_OTHER], index))
        r.buff_flug = 1;
}

static void class_of_register(StoreLists& lists, int index)
{
    const FMEMREG& r = *fm_register(index);
    if (!r.thumbwait)
        return;
    if (r.clip && FMCtrl_GetClipMidRegId2(index) >= 0)
        class_of_frame(lists, index);
    else
        (void)class_add(lists.list[fm_is_main_name(r.name) ? THUMBNAIL_PRIORITY_STILL_MAIN
                                                           : THUMBNAIL_PRIORITY_STILL_SUB],
                        index); // a full list: next time
}

static void sort_into_classes(StoreLists& lists, int first)
{
    for (int n = 0; n < SYS_FmemRegMax; n++)
        fm_register(first + n)->buff_flug = 0;
    for (int n = 0; n < SYS_FmemRegMax; n++)
        class_of_register(lists, first + n);
}

static void fetch_class(const ClassList& list)
{
    for (int i = 0; i < list.num && th.fetches < FETCHES_MAX; i++) {
        fm_register(list.index[i])->thumbwait = 0;
        thumbnail_get(list.index[i]);
    }
}

static void thumbnail_checkwait()
{
    if (!th.somebody_waits || is_held_back())
        return;
    StoreLists first, second;
    sort_into_classes(first, 0);
    sort_into_classes(second, FMEM_EXTENDED);
    for (int priority = 0; priority < THUMBNAIL_PRIORITY_MAX; priority++) {
        if (first.list[priority].num + second.list[priority].num == 0)
            continue;
        fetch_class(first.list[priority]);
        fetch_class(second.list[priority]);
        return;
    }
    th.somebody_waits = false;
}

void FMCtrl_GetWaitThumbnailAll()
{
    thumbnail_checkwait();
}

// --- All anew ---

void FMCtrl_RefreshThumbnailAll()
{
    th.refresh_at = 0;
}

// Each costs a file and a message: 11,324 of them would hold the screen.
static void refresh_pass()
{
    constexpr int SLICE = 128;
    for (int i = 0; i < SLICE && th.refresh_at >= 0; i++) {
        if (th.refresh_at >= 2 * SYS_FmemRegMax) {
            th.refresh_at = -1;
            return;
        }
        const int n = th.refresh_at++;
        const int index = n < SYS_FmemRegMax ? n : FMEM_EXTENDED + n - SYS_FmemRegMax;
        fm_thumbnail_drop(index);
        fm_tell(index, 0);
        if (FMCtrl2_IsRegStoreMulti(index)) // who was told may have changed it
            thumbnail_get(index);
    }
}

// What held the thumbnails back may end with nobody to tell it: a recording, a setting.
void fm_thumbnails_pass()
{
    refresh_pass();
    if (th.fetches == 0)
        thumbnail_checkwait();
}

// --- Asked by others ---

static SDL_Surface* thumbnail(int index, int size)
{
    const FMEMREG* r = fm_register(index);
    if (!r || !r->thumb)
        return nullptr;
    const int held = SYS_FmemV6 ? THUMBSIZE_SMALL : THUMBSIZE_FULL;
    if (size == held)
        return r->thumb;
    SDL_FreeSurface(th.extra); // takes a null
    if (size == THUMBSIZE_SMALL) {
        th.extra = TDL_CreateSmallSurface(r->thumb);
    } else {
        char path[PATH_SIZE];
        local_name(path, index, "BMP");
        th.extra = fm_load_bmp(path);
    }
    return th.extra;
}

SDL_Surface* FMCtrl_GetThumbnail(int n, int size)
{
    return thumbnail(n, size);
}

SDL_Surface* FMCtrl2_GetThumbnail(int n, int size)
{
    return thumbnail(fm_extended_index(n), size);
}

SDL_Surface* FMCtrl2_GetThumbnailMulti(int index, int size)
{
    return thumbnail(index, size);
}

void FMCtrl_DeleteThumbnail(int n)
{
    fm_thumbnail_drop(n);
}

void FMCtrl2_DeleteThumbnail(int n)
{
    fm_thumbnail_drop(fm_extended_index(n));
}

void fm_thumbnails_quit()
{
    SDL_FreeSurface(th.extra); // takes a null
    th = {};
}
