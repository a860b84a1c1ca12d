// Jobs of many items: their start, the steps of a staged item, their end.
#include "file_private.h"
#include "fmctrl.h"
#include "global.h"
#include "log.h"
#include "menu_macro.h"
#include "netio.h"
#include "pane.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <initializer_list>

#include "safeguards.h"

static constexpr int RETRIES = 3;
static constexpr char NOT_CONVERTED[] = "Can't convert file. It is not supported version.";
static constexpr char TRANSFER_RESULT[] = "NG([Error] Transfer Result)";

// --- Steps ---

namespace
{
enum class End { Src, Tmp, Dst, None };

// What follows when the command of a step has ended well.
struct Step {
    int step;
    int next; // step that is then under way
    const char* verb = nullptr;
    End from = End::Tmp;
    End to = End::Dst;
    bool (*compose)(FILEXFERLIST*) = nullptr; // instead of the verb; false: no more, it is finished
};
} // namespace

static bool compose_uncompress(FILEXFERLIST* item)
{
    char plain[FILE_PATH_SIZE];
    CopyText(plain, item->tmp);
    file_set_ext(plain, ".SFM");
    return file_compose_item(item, "put File@Frame Memory@Uncompress#L%d,%s,%s", int(item->label),
                             item->tmp, plain);
}

// The compressed file goes; from here on the plain one is meant.
static bool compose_remove_compressed(FILEXFERLIST* item)
{
    const bool is_composed =
        file_compose_item(item, "put File@Access@Remove#L%d,%s", int(item->label), item->tmp);
    file_set_ext(item->tmp, ".SFM");
    return is_composed;
}

static const char* image_kind(const char* path)
{
    for (const char* kind : {"TIF", "BMP", "PNG"}) {
        const char ext[] = {'.', kind[0], kind[1], kind[2], '\0'};
        if (strstr(path, ext))
            return kind;
    }
    return "TGA";
}

static bool compose_image(FILEXFERLIST* item)
{
    return file_compose_item(item, "put File@Frame Memory@SFM2%s#L%d,%s,%s", image_kind(item->dst),
                             int(item->label), item->tmp, item->dst);
}

static constexpr Step steps[] = {
    {.step = 1, .next = 9, .verb = "Access@Copy"},
    {.step = 2, .next = 9, .verb = "Transfer@Transfer"},
    {.step = 3, .next = 9, .verb = "Frame Memory@PutV3"},
    {.step = 4, .next = 9, .verb = "Frame Memory@Uncompress"},
    {.step = 9, .next = 0, .verb = "Access@Remove", .to = End::None},
    // An import chooses its own next step: either of its two files may be missing.
    {.step = 101, .next = 101, .compose = file_import_step},
    {.step = 102, .next = 102, .compose = file_import_step},
    {.step = 103, .next = 103, .compose = file_import_step},
    {.step = 104, .next = 104, .compose = file_import_step},
    {.step = 111, .next = 112, .compose = compose_uncompress},
    {.step = 112, .next = 113, .compose = compose_remove_compressed},
    {.step = 113, .next = 114, .compose = compose_image},
    {.step = 114, .next = 0, .verb = "Access@Remove", .to = End::None},
    {.step = 201, .next = 9, .verb = "Transfer@Transfer"},
};

static const Step* find_step(int step)
{
    for (const Step& s : steps)
        if (s.step == step)
            return &s;
    return nullptr;
}

static const char* end_of(const FILEXFERLIST* item, End end)
{
    switch (end) {
    case End::Src: return item->src;
    case End::Tmp: return item->tmp;
    default: return item->dst;
    }
}

static bool compose_step(FILEXFERLIST* item, const Step& s)
{
    if (s.compose)
        return s.compose(item);
    if (s.to == End::None)
        return file_compose_item(item, "put File@%s#L%d,%s", s.verb, int(item->label),
                                 end_of(item, s.from));
    return file_compose_item(item, "put File@%s#L%d,%s,%s", s.verb, int(item->label),
                             end_of(item, s.from), end_of(item, s.to));
}

static void remove_temporary(const FILEXFERLIST* item)
{
    if (file_compose("put File@Access@Remove#Lx,%s", item->tmp))
        Net_SendCommand(FileCmd);
}

void file_drop_staged(const FILEXFERLIST* item)
{
    // Also in the last step: it is the removal itself that is given up.
    if (strchr(item->tmp, ','))
        file_import_drop_temporaries(item);
    else if (item->tmp[0])
        remove_temporary(item);
}

static void step_ok(FILEXFERLIST* item)
{
    const Step* s = find_step(item->usb);
    if (!s) {
        file_set_status(item, FILESTATUS_OK);
        return;
    }
    if (!s->compose || s->compose != file_import_step)
        item->usb = s->next;
    if (compose_step(item, *s))
        file_send_item(item);
}

static void step_not_converted(QUEUE* job, FILEXFERLIST* item)
{
    file_set_text(item, NOT_CONVERTED);
    file_pane_append_line(job, item->mesg);
    item->usb = 0;
    if (file_compose_item(item, "put File@Transfer@Transfer#L%d,%s,%s", int(item->label), item->src,
                          item->dst))
        file_send_item(item);
}

static void step_ng(QUEUE* job, FILEXFERLIST* item, const char* text)
{
    if (item->usb == 201) {
        step_not_converted(job, item);
        return;
    }
    if (strstr(text, ".)") && item->retry < RETRIES) {
        item->retry++;
        Log_Output(LOG_LINK, MOD_FILE, "Retry FileXfer (%d times...)", item->retry);
        file_send_item(item);
        return;
    }
    file_set_status(item, FILESTATUS_NG);
    if (item->usb == 9)
        remove_temporary(item);
    if (item->usb == 102 || item->usb == 103)
        file_import_drop_temporaries(item);
}

static void step_other(FILEXFERLIST* item)
{
    file_set_status(item, FILESTATUS_CANCEL);
    if (item->usb == 9)
        remove_temporary(item);
}

// A menu macro that came from a drive goes into its register, and its temporary goes.
void file_finish_macro(FILEXFERLIST* item)
{
    const bool is_load = strstr(item->dst, ".tmp") != nullptr;
    if (is_load && mm_macro_tmpfile_load(item->src, item->dst) != 0) {
        PrintText(item->mesg, "%.*s:%s", TEXT_AND_NAME - int(strlen(TRANSFER_RESULT)),
                  file_name_of(item->src), TRANSFER_RESULT);
        file_set_status(item, FILESTATUS_NG);
    }
    const char* reg = strstr(is_load ? item->dst : item->src, "mm_reg");
    if (!reg || strlen(reg) < strlen("mm_reg00"))
        return;
    const char* digits = reg + strlen("mm_reg");
    const bool is_number =
        digits[0] >= '0' && digits[0] <= '9' && digits[1] >= '0' && digits[1] <= '9';
    if (is_number)
        mm_macro_tmpfile_del((digits[0] - '0') * 10 + (digits[1] - '0') - 1);
}

static void take_step(QUEUE* job, FILEXFERLIST* item, const char* text)
{
    file_set_text(item, text);
    if (text[0] == 'N')
        step_ng(job, item, text);
    else if (text[0] == 'O')
        step_ok(item);
    else
        step_other(item);
    const bool has_macros =
        job->worktype == FILEWORK_TRANSFERLIST || job->worktype == FILEWORK_ACCESS_COPYLIST;
    if (has_macros && item->status == FILESTATUS_OK && file_is_macro_pair(item))
        file_finish_macro(item);
    // Of an image on its way, the operator sees how far it has come.
    if (job->worktype == FILEWORK_FMEM_IMPORTLIST && item->usb != 0 && !file_is_finished(item))
        PrintText(item->mesg, "%.100s [%d/3]", file_name_of(item->src), item->usb - 101);
}

// --- Progress and end ---

int file_percent(const QUEUE* job)
{
    if (job->items == 0)
        return 100;
    return (job->finished * 2 - job->checking) * 100 / (job->items * 2);
}

static void show_item(QUEUE* job, const FILEXFERLIST* item)
{
    if (item->status == FILESTATUS_NG)
        file_pane_append_line(job, item->mesg);
    file_pane_progress(job, file_percent(job), item->mesg);
}

static void end_list(QUEUE* job)
{
    if (job->sync_pid != 0)
        return;
    const int pid = file_sync_start();
    job->sync_pid = std::max(pid, 0);
    if (pid <= 0 && file_sync_is_done(pid))
        file_finish(job);
}

void file_list_tick()
{
    file_sync_tick();
    for (QUEUE* job = QueueRoot; job; job = job->next) {
        if (job->sync_pid == 0 || !file_sync_is_done(job->sync_pid))
            continue;
        job->sync_pid = 0;
        if (job->finished < job->items)
            continue; // more items have joined meanwhile
        file_finish(job);
        return; // the queue may be another one now; the next pass goes on
    }
}

void file_wake_thumbnails(FILEWORKTYPE type)
{
    if (!file_work(type)->wakes_thumbnails || GL_FMThumbnailGetAfter != 1)
        return;
    GL_FMThumbnailGetAfter = 0;
    FMCtrl_GetWaitThumbnailAll();
}

static void end_by_kind(QUEUE* job)
{
    switch (file_work(job->worktype)->reply) {
    case Reply::ListDir: {
        const uint32_t label = job->label;
        if (job->paneid != 0)
            (void)Pane_Quit(job->paneid);
        queue_remove(label);
        break;
    }
    case Reply::Background: file_finish(job); break;
    default: end_list(job); break;
    }
}

// Start what may start; end the job when nothing is left to wait for.
static void go_on(QUEUE* job, bool may_launch)
{
    const FileWork* work = file_work(job->worktype);
    const uint32_t label = job->label;
    if (may_launch && job->finished < job->items)
        (void)work->launch(job);
    job = queue_find(label); // a remote copy that could not even begin is gone
    if (job && job->finished == job->items && work->reply != Reply::Scp)
        end_by_kind(job);
}

static bool is_import(const QUEUE* job)
{
    return job->worktype == FILEWORK_FMEM_IMPORTLIST ||
           job->worktype == FILEWORK_FMEM_IMPORTLIST_AUTOLOAD;
}

static int status_of(const char* text)
{
    return text[0] == 'N' ? FILESTATUS_NG : text[0] == 'O' ? FILESTATUS_OK : FILESTATUS_CANCEL;
}

static void take_simple(FILEXFERLIST* item, const char* text)
{
    file_set_text(item, text);
    file_set_status(item, status_of(text));
}

// A row keeps its item open. A directory may be named as a reply begins: rows are asked for first.
static bool take_dir_row(const QUEUE* job, FILEXFERLIST* item, const char* text)
{
    char row[CMD_SIZE];
    char* name = nullptr;
    char* date = nullptr;
    CopyText(row, text);
    if (!file_cut_row(row, &name, &date))
        return false;
    file_set_status(item, FILESTATUS_REQ);
    if (!name)
        return true;
    char when[24];
    file_reduce_date(when, date);
    file_tell(job, name, when);
    return true;
}

void file_list_status(QUEUE* job, FILEXFERLIST* item, const char* text)
{
    const Reply reply = file_work(job->worktype)->reply;
    if (reply == Reply::ListDir && take_dir_row(job, item, text))
        return;
    if (reply == Reply::List)
        take_step(job, item, text);
    else
        take_simple(item, text);
    if (reply != Reply::Background)
        show_item(job, item);
    const bool is_room = is_import(job) && item->status == FILESTATUS_OK;
    go_on(job, job->in_flight == 0 || is_room);
}

// --- Start ---

FILEXFERLIST* file_next_new(QUEUE* job)
{
    for (;;) {
        FILEXFERLIST* item = job->started ? job->started->next : *job->xferlist;
        if (!item || item->job != job)
            return nullptr;
        if (item->status == FILESTATUS_NON)
            return item;
        job->started = item;
    }
}

int file_launch_plain(QUEUE* job)
{
    const FileWork* work = file_work(job->worktype);
    while (FILEXFERLIST* item = file_next_new(job)) {
        if (work->wakes_thumbnails) {
            file_hold_thumbnails(item->src);
            file_hold_thumbnails(item->dst);
        }
        const bool is_composed = work->paths == 1
                                     ? file_compose_item(item, "put File@%s#L%d,%s", work->verb,
                                                         int(item->label), item->src)
                                     : file_compose_item(item, "put File@%s#L%d,%s,%s", work->verb,
                                                         int(item->label), item->src, item->dst);
        if (is_composed)
            file_send_item(item);
    }
    return 0;
}

// The lamp of the way that the first file will take, until the server tells better.
static void open_pane(QUEUE* job, const char* title)
{
    const FileWork* work = file_work(job->worktype);
    if (job->paneid != 0 || !work->pane)
        return;
    file_pane_open(job, title ? title : work->pane, work->reply != Reply::ListDir);
    if (work->is_routed && job->paneid != 0) {
        const FILEXFERLIST* item = *job->xferlist;
        File_SetDefaultRouteLamp(file_is_local(item->src) ? item->dst : item->src, job->paneid);
    }
}

int file_run(FILEWORKTYPE type, FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag,
             const char* title)
{
    if (!list || !*list)
        return -1;
    QUEUE* job = queue_add(type, list, {.list = retfunc}, tag);
    if (!job)
        return -1;
    const int label = int(job->label);
    if (file_work(type)->wakes_thumbnails)
        File_AskDataPorts();
    open_pane(job, title);
    go_on(job, true);
    return label;
}

// --- The entries ---

int File_ExecListDirList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_ACCESS_LISTDIRLIST, list, retfunc, tag);
}

int File_ExecTransferList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_TRANSFERLIST, list, retfunc, tag);
}

int File_ExecTransferList_AutoLoad(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_TRANSFERLIST_AUTOLOAD, list, retfunc, tag);
}

int File_ExecTransferList_BG(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_TRANSFERLIST_BG, list, retfunc, tag);
}

int File_ExecFmGetList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_GETLIST, list, retfunc, tag);
}

int File_ExecFmGetList_BG(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_GETLIST_BG, list, retfunc, tag);
}

int File_ExecFmPutList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_PUTLIST, list, retfunc, tag);
}

int File_ExecFmMkThumbList_BG(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_MKTHUMBLIST_BG, list, retfunc, tag);
}

int File_ExecFmSFM2TIFList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_SFM2TIFLIST, list, retfunc, tag);
}

int File_ExecFmTIF2SFMList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_TIF2SFMLIST, list, retfunc, tag);
}

int File_ExecFmSFM2BMPList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_SFM2BMPLIST, list, retfunc, tag);
}

int File_ExecFmBMP2SFMList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_BMP2SFMLIST, list, retfunc, tag);
}

int File_ExecFmSFM2TGAList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_SFM2TGALIST, list, retfunc, tag);
}

int File_ExecFmTGA2SFMList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_TGA2SFMLIST, list, retfunc, tag);
}

int File_ExecFieldInvert(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_FIELDINVERT, list, retfunc, tag);
}

int File_ExecFmImportList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_IMPORTLIST, list, retfunc, tag);
}

int File_ExecFmImportList_AutoLoad(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_IMPORTLIST_AUTOLOAD, list, retfunc, tag);
}

int File_ExecFmExportList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_FMEM_EXPORTLIST, list, retfunc, tag);
}

int File_ExecCopyList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_ACCESS_COPYLIST, list, retfunc, tag);
}

int MM_File_ExecCopyList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag, int mode)
{
    for (const FILEXFERLIST* item = *list; item; item = item->next)
        if (file_is_macro_pair(item))
            mm_macro_tmpfile_prepare(item->src, item->dst);
    return file_run(FILEWORK_ACCESS_COPYLIST, list, retfunc, tag, mode ? "Transfer" : nullptr);
}

int File_ExecMoveList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_ACCESS_MOVELIST, list, retfunc, tag);
}

int File_ExecRemoveList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_ACCESS_REMOVELIST, list, retfunc, tag);
}

int File_ExecCopydirList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_ACCESS_COPYDIRLIST, list, retfunc, tag);
}

int File_ExecMakeVector(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_ACCESS_MAKEVECTOR, list, retfunc, tag);
}
