// Frame memory under the hub's reservation: the device makes or takes one picture at a time, and a
// put makes the folders of the clip store first.
#include "file_scp_private.h"
#include "global.h"
#include "log.h"
#include "netio.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

// --- Paths ---

void fmem_relative(char (&dst)[FILE_PATH_SIZE], const Scp& s, const FILEXFERLIST* item)
{
    // By the item's own job: the category may be another one's still.
    const char* end = scp_is_get(item->job) ? item->src : item->dst;
    const char* colon = strchr(end, ':');
    const char* path = colon ? colon + 1 : end;
    if (s.cat.path[0] && BeginsWith(path, s.cat.path))
        path += strlen(s.cat.path);
    const bool wants_slash = scp_is_cs(s) && path[0] != '/';
    PrintText(dst, "%s%.*s", wants_slash ? "/" : "", FILE_PATH_SIZE - 2, path);
}

void fmem_cut_ext(char* path)
{
    char* name = path + (file_name_of(path) - path);
    if (char* dot = strrchr(name, '.'))
        *dot = '\0';
}

FILEXFERLIST* fmem_current(const Scp& s)
{
    FILEXFERLIST* item = queue_item_by_label(s.cat.current);
    return item && item->job == s.cat.queue ? item : nullptr;
}

static const char* without_slash(const char* path)
{
    return path[0] == '/' ? path + 1 : path;
}

bool fmem_is_current(const Scp& s, const char* path)
{
    const FILEXFERLIST* item = fmem_current(s);
    if (!item)
        return false;
    char own[FILE_PATH_SIZE];
    char named[FILE_PATH_SIZE];
    fmem_relative(own, s, item);
    fmem_cut_ext(own);
    CopyText(named, BeginsWith(path, s.cat.path) ? path + strlen(s.cat.path) : path);
    // A name may hold a dot of its own: what comes without an extension is compared as it is first.
    if (strcmp(without_slash(own), without_slash(named)) == 0)
        return true;
    fmem_cut_ext(named);
    return strcmp(without_slash(own), without_slash(named)) == 0;
}

// --- What the hub is told: paths without their extensions ---

static void request_get(const Scp& s, FILEXFERLIST* item)
{
    char path[FILE_PATH_SIZE];
    char rest[FILE_PATH_SIZE + 16];
    fmem_relative(path, s, item);
    fmem_cut_ext(path);
    if (scp_is_cs(s) && item->fmext != TRANS_FILETYPE_SFH)
        PrintText(rest, ",%s,%s", path, file_trans_filetype(item->fmext));
    else
        PrintText(rest, ",%s", path);
    file_set_status(item, FILESTATUS_GET_START);
    scp_request_status(s, SHP_GET, rest);
}

// False: the format is none that the store knows.
static bool request_put(const Scp& s, const FILEXFERLIST* item)
{
    char path[FILE_PATH_SIZE];
    char rest[FILE_PATH_SIZE + 32];
    const int format = file_scp_get_systemformat(s.target.host);
    if (format < 0)
        return false;
    fmem_relative(path, s, item);
    fmem_cut_ext(path);
    if (scp_is_cs(s))
        PrintText(rest, ",%s,%d,%d", path, format, std::max(1, item->import_no[1]));
    else
        PrintText(rest, ",%s,%d", path, format);
    s.cat.status = FILE_CATEGORY_STATUS_SCP_FINISH;
    scp_request_status(s, SHP_PUT, rest);
    return true;
}

// --- Folders ---

namespace
{
struct Layers {
    int count = 0;
    char name[SCP_LAYERS][17] = {};
};
} // namespace

// The folders of an item from the root down to its frame header.
static void folder_layers(Layers& layers, const Scp& s, const FILEXFERLIST* item)
{
    char path[FILE_PATH_SIZE];
    fmem_relative(path, s, item);
    CopyText(layers.name[layers.count++], "root");
    char* part = path;
    while (*part && layers.count < SCP_LAYERS) {
        char* slash = strchr(part, '/');
        if (!slash)
            return; // what is left is the file
        *slash = '\0';
        if (strstr(part, ".SFH"))
            return;
        if (*part)
            CopyText(layers.name[layers.count++], part);
        part = slash + 1;
    }
}

static bool scplist_category_check_fmlayer(const Scp& s, const FILEXFERLIST* item)
{
    Layers layers;
    folder_layers(layers, s, item);
    if (s.cat.fm_layercnt < layers.count)
        return true;
    for (int i = 0; i < layers.count; i++)
        if (strcmp(s.cat.fm_layer[i], layers.name[i]) != 0)
            return true;
    return false;
}

static bool is_clip(const FILEXFERLIST* item)
{
    return item->clip[0] != '\0' && item->import_no[1] > 1;
}

static bool needs_folder(const Scp& s, const FILEXFERLIST* item)
{
    if (is_clip(item))
        return item->import_no[0] == 0;
    return scplist_category_check_fmlayer(s, item);
}

// False: the command does not fit.
static bool File_ExecSshMakeDir(const Scp& s, FILEXFERLIST* item)
{
    char folder[FILE_PATH_SIZE];
    CopyText(folder, item->dst);
    folder[file_name_of(folder) - folder] = '\0';
    const size_t length = strlen(folder);
    const bool is_root = length < 2 || folder[length - 2] == ':';
    if (length > 0 && folder[length - 1] == '/' && !is_root)
        folder[length - 1] = '\0';
    s.cat.resultlabel = file_next_label();
    s.cat.resultack = 0;
    if (!file_compose("put File@Remote Access@Make Dir#L%d,%s,%s", int(s.cat.resultlabel), folder,
                      s.cat.name))
        return false;
    s.cat.status = FILE_CATEGORY_STATUS_SSH_MKDIR;
    file_set_status(item, FILESTATUS_WAIT_REQ);
    Net_SendCommand(FileCmd);
    return true;
}

// --- One after the other ---

static void put_item(const Scp& s, FILEXFERLIST* item)
{
    if (item->info && file_compose("put File@Remote Access@SCP Dir Put#L%d,%s.SUB,%s.SUB,%s",
                                   int(item->label), item->src, item->dst, item->category)) {
        s.cat.status = FILE_CATEGORY_STATUS_SCPPUT_SUB;
        s.cat.scpcount++;
        queue_ack(item, 0);
        file_set_status(item, FILESTATUS_REQ);
        Net_SendCommand(FileCmd);
        return;
    }
    s.cat.status = FILE_CATEGORY_STATUS_SCPPUT;
    scp_send(s, item);
}

// The next item that waits, in request order; the one in turn is finished.
static FILEXFERLIST* next_waiting(const Scp& s)
{
    const FILEXFERLIST* current = fmem_current(s);
    FILEXFERLIST* item = current ? scp_next(s, current->next, FILESTATUS_WAIT) : nullptr;
    return item ? item : scp_first(s, FILESTATUS_WAIT);
}

static bool put_next(const Scp& s, FILEXFERLIST* item)
{
    s.cat.status = FILE_CATEGORY_STATUS_SCPPUT;
    if (!needs_folder(s, item)) {
        put_item(s, item);
        return true;
    }
    return File_ExecSshMakeDir(s, item);
}

void fmem_next(const Scp& s)
{
    while (FILEXFERLIST* item = next_waiting(s)) {
        s.cat.current = item->label;
        if (scp_is_get(s.cat.queue)) {
            request_get(s, item);
            return;
        }
        if (put_next(s, item))
            return;
        scp_fail(item, FILE_SCP_MSG_INTERNAL_ERROR);
    }
    scp_go_on(s);
}

static void ask_put(const Scp& s, FILEXFERLIST* item)
{
    if (request_put(s, item))
        return;
    scp_fail(item, FILE_SCP_MSG_INTERNAL_ERROR);
    fmem_next(s);
}

// Held, perhaps for the second time: the item in turn goes on where it was.
void fmem_start(const Scp& s)
{
    FILEXFERLIST* item = fmem_current(s);
    switch (item ? item->status : FILESTATUS_NON) {
    case FILESTATUS_GET_START: request_get(s, item); break;
    case FILESTATUS_CHKRESULT: ask_put(s, item); break;
    case FILESTATUS_REQ:
    case FILESTATUS_EXEC:
        s.cat.status =
            scp_is_get(s.cat.queue) ? FILE_CATEGORY_STATUS_SCPGET : FILE_CATEGORY_STATUS_SCPPUT;
        break;
    case FILESTATUS_WAIT_REQ:
        file_set_status(item, FILESTATUS_WAIT);
        s.cat.current = 0;
        fmem_next(s);
        break;
    default:
        s.cat.status =
            scp_is_get(s.cat.queue) ? FILE_CATEGORY_STATUS_SCPGET : FILE_CATEGORY_STATUS_SCPPUT;
        fmem_next(s);
        break;
    }
}

void fmem_folder_made(const Scp& s, const char* reply)
{
    FILEXFERLIST* item = fmem_current(s);
    if (!item || item->status != FILESTATUS_WAIT_REQ)
        return;
    if (reply[0] != 'O') {
        scp_fail(item,
                 is_clip(item) ? FILE_SCP_MSG_MAKE_CLIP_FAILED : FILE_SCP_MSG_MAKE_FOLDER_FAILED);
        s.cat.status = FILE_CATEGORY_STATUS_SCPPUT;
        fmem_next(s);
        return;
    }
    Layers layers;
    folder_layers(layers, s, item);
    s.cat.fm_layercnt = layers.count;
    memcpy(s.cat.fm_layer, layers.name, sizeof s.cat.fm_layer);
    put_item(s, item);
}

// The companion is a courtesy: the picture goes whether it came over or not.
static bool is_companion_reply(const Scp& s, const char* text)
{
    return s.cat.status == FILE_CATEGORY_STATUS_SCPPUT_SUB && (text[0] == 'N' || text[0] == 'O');
}

void fmem_reply(const Scp& s, FILEXFERLIST* item, const char* text)
{
    QUEUE* job = s.cat.queue;
    if (is_companion_reply(s, text)) {
        s.cat.status = FILE_CATEGORY_STATUS_SCPPUT;
        scp_send(s, item);
        return;
    }
    const bool is_get = scp_is_get(job);
    file_set_text(item, text);
    if (text[0] == 'O')
        file_set_status(item, is_get ? FILESTATUS_OK : FILESTATUS_CHKRESULT);
    else
        file_set_status(item, text[0] == 'N' ? FILESTATUS_NG : FILESTATUS_CANCEL);
    if (item->status == FILESTATUS_NG)
        file_pane_append_line(job, item->mesg);
    scp_show_progress(job, item->mesg);
    // Asked for anew after the hub came back: what follows waits until it is held.
    const int status = s.cat.status;
    if (status != FILE_CATEGORY_STATUS_SCPGET && status != FILE_CATEGORY_STATUS_SCPPUT &&
        status != FILE_CATEGORY_STATUS_SCPPUT_SUB)
        return;
    if (item->status == FILESTATUS_CHKRESULT)
        ask_put(s, item);
    else
        fmem_next(s);
}
