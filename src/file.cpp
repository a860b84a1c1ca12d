// Single jobs, and where the server's replies go.
#include "file.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "file_private.h"
#include "global.h"
#include "info.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "text.h"
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "safeguards.h"

int GL_FMDataPortStatus[2] = {};

// --- Single jobs ---

// Send what is in FileCmd for the job; without a whole command there is no job.
static int send_single(const QUEUE* job, bool is_composed)
{
    const uint32_t label = job->label;
    if (!is_composed) {
        queue_remove(label);
        return -1;
    }
    Net_SendCommand(FileCmd);
    return int(label);
}

static int start_single(FILEWORKTYPE type, FILERETFUNC retfunc, int tag, const char* rest)
{
    const QUEUE* job = queue_add(type, &NullXfer, retfunc, tag);
    if (!job)
        return -1;
    return send_single(
        job, file_compose("put File@%s#L%d,%s", file_work(type)->verb, int(job->label), rest));
}

// At most three texts with commas between. One of them that is null refuses the whole.
static int start(FILEWORKTYPE type, FILERETFUNC retfunc, int tag, const char* a, const char* b = "",
                 const char* c = "", int texts = 2)
{
    char rest[2 * CMD_SIZE];
    if (!a || !b || !c)
        return -1;
    if (texts == 1)
        PrintText(rest, "%s", a);
    else if (texts == 2)
        PrintText(rest, "%s,%s", a, b);
    else
        PrintText(rest, "%s,%s,%s", a, b, c);
    return start_single(type, retfunc, tag, rest);
}

static int start_paths(FILEWORKTYPE type, FILE_TEXT_FUNC retfunc, int tag, const char* a,
                       const char* b = "")
{
    return start(type, {.text = retfunc}, tag, a, b, "", file_work(type)->paths);
}

int File_ExecTransfer(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_TRANSFER, retfunc, tag, src, dst);
}

int File_ExecFmPut(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_FMEM_PUT, retfunc, tag, src, dst);
}

int File_ExecFmGet(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_FMEM_GET, retfunc, tag, src, dst);
}

int File_ExecFmCtrlGet(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_FMEM_GETCTRL, retfunc, tag, src, dst);
}

int File_ExecFind(const char* path, const char* pattern, FILE_FIND_FUNC retfunc, int tag)
{
    return start(FILEWORK_ACCESS_FIND, {.find = retfunc}, tag, path, pattern);
}

// The second form of the same work: its replies are no different.
int File_ExecFind2(const char* path, int depth, const char* pattern, FILE_FIND_FUNC retfunc,
                   int tag)
{
    if (!path || !pattern)
        return -1;
    const QUEUE* job = queue_add(FILEWORK_ACCESS_FIND, &NullXfer, {.find = retfunc}, tag);
    if (!job)
        return -1;
    return send_single(job, file_compose("put File@Access@Find2#L%d,%s,%d,%s", int(job->label),
                                         path, depth, pattern));
}

int File_ExecListDir(const char* path, FILE_FIND_FUNC retfunc, int tag)
{
    return start(FILEWORK_ACCESS_LISTDIR, {.find = retfunc}, tag, path, "", "", 1);
}

int File_ExecMkdir(const char* path, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_ACCESS_MKDIR, retfunc, tag, path);
}

int File_ExecCopy(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_ACCESS_COPY, retfunc, tag, src, dst);
}

int File_ExecCopydir(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_ACCESS_COPYDIR, retfunc, tag, src, dst);
}

int File_ExecRmdir(const char* path, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_ACCESS_RMDIR, retfunc, tag, path);
}

int File_ExecMove(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_ACCESS_MOVE, retfunc, tag, src, dst);
}

int File_ExecRemove(const char* path, FILE_TEXT_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_ACCESS_REMOVE, retfunc, tag, path);
}

int File_ExecFindSFM(const char* path, const char* pattern, FILE_ROW_FUNC retfunc, int tag)
{
    return start_paths(FILEWORK_ACCESS_FINDSFM, retfunc, tag, path, pattern);
}

int File_ExecUSBReload(FILE_TEXT_FUNC retfunc, int tag)
{
    return start_single(FILEWORK_ACCESS_USB_RELOAD, {.text = retfunc}, tag, "");
}

int File_ExecUSBRefresh(FILE_TEXT_FUNC retfunc, int tag)
{
    return start_single(FILEWORK_ACCESS_USB_REFRESH, {.text = retfunc}, tag, "");
}

int File_StatusFMDataPort(const char* device)
{
    if (!device || !*device)
        return -1;
    const int label = int(file_next_label());
    if (!file_compose("put File@Status@FM Data Port Status@%s#L%d", device, label))
        return -1;
    Net_SendCommand(FileCmd);
    (void)Net_SendCommandQueue(); // a link that is down keeps the command
    return label;
}

void File_AskDataPorts()
{
    char device[16];
    for (size_t i = 0; i < std::size(GL_FMDataPortDisable); i++) {
        if ((GL_FMDataPortDisable[i] & FILE_DATA_PORT_BITS) == 0)
            continue;
        PrintText(device, "SWR%d", int(i) + 1);
        (void)File_StatusFMDataPort(device);
    }
}

int File_ExecSCPGet(const char* src, const char* dst, const char* category, FILE_TEXT_FUNC retfunc,
                    int tag)
{
    return start(FILEWORK_RMTACCESS_SCPGET, {.text = retfunc}, tag, src, dst, category, 3);
}

int File_ExecSCPPut(const char* src, const char* dst, const char* category, FILE_TEXT_FUNC retfunc,
                    int tag)
{
    return start(FILEWORK_RMTACCESS_SCPPUT, {.text = retfunc}, tag, src, dst, category, 3);
}

int File_ExecSCPdirGet(const char* src, const char* dst, const char* category,
                       FILE_TEXT_FUNC retfunc, int tag)
{
    return start(FILEWORK_RMTACCESS_SCPDIRGET, {.text = retfunc}, tag, src, dst,
                 category ? category : "", 3);
}

int File_ExecSCPdirPut(const char* src, const char* dst, const char* category,
                       FILE_TEXT_FUNC retfunc, int tag)
{
    return start(FILEWORK_RMTACCESS_SCPDIRPUT, {.text = retfunc}, tag, src, dst, category, 3);
}

int File_ThumbnailGet(const char* src, const char* dst, FILE_TEXT_FUNC retfunc, int tag)
{
    constexpr size_t UNIT = 6; // "SWR000" of an id, behind which stands its tail
    const DEVICE* swr = DEV_MySwr[0];
    if (!src || !dst || !swr || strlen(swr->id) < UNIT)
        return -1;
    char from[CMD_SIZE];
    char to[CMD_SIZE];
    const int unit = Device_UnitNumber(*swr);
    PrintText(from, "SWR000%s:/vorn/FM/%d/%s", swr->id + UNIT, unit, src);
    PrintText(to, "MYHOST:/mnt/sys/FM/%d/%s", unit, dst);
    return File_ExecSCPdirGet(from, to, nullptr, retfunc, tag);
}

int File_CancelTransfer(uint32_t label)
{
    Log_Output(LOG_LINK, MOD_FILE, "File_CancelTransfer(%d) called.", int(label));
    const QUEUE* job = queue_find(label);
    if (!job)
        return -1;
    if (job->ack != 0)
        Net_SendCommandFormat("put File@Transfer@Cancel#Lx,%d", int(job->ack));
    return 0;
}

int File_ExecUSBReload_cancel(uint32_t label)
{
    const QUEUE* job = queue_find(label);
    if (!job)
        return -1;
    const FILEWORKTYPE type = job->worktype;
    queue_remove(label);
    file_wake_thumbnails(type);
    return 0;
}

// --- Replies to single jobs ---

static void call_text(const QUEUE* job, const char* text)
{
    if (job->retfunc.text)
        job->retfunc.text(job->label, job->tag, text);
}

// Tell a text that is not the job's last. The job may be gone afterwards.
static void tell_row(const QUEUE* job, const char* text)
{
    const QUEUE copy = *job;
    call_text(&copy, text);
    file_tell(&copy, text, nullptr);
}

// The callback may start other work with this very job gone from its books: it is removed last.
static void reply_single(QUEUE* job, const char* text)
{
    const uint32_t label = job->label;
    tell_row(job, text);
    queue_remove(label);
}

static int count_commas(const char* text)
{
    int n = 0;
    for (; *text; text++)
        n += *text == ',';
    return n;
}

static void reply_usb(QUEUE* job, const char* text)
{
    constexpr int USB_COMMAS = 5;
    if (count_commas(text) == USB_COMMAS)
        tell_row(job, text);
    else
        reply_single(job, text);
}

static void reply_rows(QUEUE* job, const char* text)
{
    constexpr int ROW_COMMAS = 6;
    if (count_commas(text) == ROW_COMMAS) {
        tell_row(job, text);
        return;
    }
    const QUEUE copy = *job;
    call_text(&copy, nullptr);
    file_tell(&copy, text, nullptr);
    queue_remove(copy.label);
}

// A row ends in a date. A name that holds a comma makes more fields than two: no command could say
// it back to the server, so that row is passed over and the search goes on.
bool file_cut_row(char* text, char** name, char** date)
{
    char* comma = strrchr(text, ',');
    if (!comma)
        return false;
    *date = comma[1] == ' ' ? comma + 2 : comma + 1;
    const bool has_date = file_is_ctime(*date);
    const bool is_pair = strchr(text, ',') == comma;
    // A last word with one comma in it is no row.
    const bool is_end = BeginsWith(text, "OK") || BeginsWith(text, "NG");
    if (!has_date && (!is_pair || is_end))
        return false;
    *comma = '\0';
    *name = is_pair ? text : nullptr;
    return true;
}

static bool is_find_failed = false; // of the search that ends now

static void end_search(const QUEUE* job, bool is_failed)
{
    is_find_failed = is_failed;
    if (job->retfunc.find)
        job->retfunc.find(job->label, job->tag, nullptr, nullptr);
    is_find_failed = false;
}

int File_FindFailed()
{
    return is_find_failed;
}

static void reply_find(QUEUE* job, const char* text)
{
    char row[CMD_SIZE];
    char* name = nullptr;
    char* date = nullptr;
    CopyText(row, text);
    const QUEUE copy = *job;
    if (file_cut_row(row, &name, &date)) {
        if (!name) {
            Log_Output(LOG_LINK, MOD_FILE, "name with a comma: %s", row);
            return;
        }
        char when[24];
        file_reduce_date(when, date);
        const char* const pair[] = {name, when};
        if (copy.retfunc.find)
            copy.retfunc.find(copy.label, copy.tag, name, pair);
        file_tell(&copy, name, when);
        return;
    }
    end_search(&copy, !BeginsWith(text, "OK"));
    SendMessage(LMSG_FINDSTATUS, copy.worktype, int(copy.label), 0, 0);
    queue_remove(copy.label);
}

// --- The link falls ---

static constexpr char NO_SERVER[] = "NG([ERROR] Server Not Ready.)";

static void give_up_search(QUEUE* job)
{
    const QUEUE copy = *job;
    if (file_work(copy.worktype)->reply == Reply::Rows)
        call_text(&copy, nullptr);
    else
        end_search(&copy, true);
    queue_remove(copy.label);
}

static void give_up_list(QUEUE* job)
{
    for (FILEXFERLIST* item = *job->xferlist; item && item->job == job; item = item->next) {
        if (file_is_finished(item) && item->status != FILESTATUS_CHKRESULT)
            continue;
        file_set_text(item, NO_SERVER);
        file_set_status(item, FILESTATUS_NG);
    }
    if (job->paneid != 0)
        (void)Pane_Quit(job->paneid);
    job->paneid = 0;
    if (!file_scp_cancel(job)) // the hub's answers end it
        file_finish(job);
}

static void give_up(QUEUE* job)
{
    switch (file_work(job->worktype)->reply) {
    case Reply::Single:
    case Reply::Usb: reply_single(job, NO_SERVER); break;
    case Reply::Find:
    case Reply::Rows: give_up_search(job); break;
    default: give_up_list(job); break;
    }
}

// Jobs stand by label. What a callback starts now waits for the link and is not meant.
static QUEUE* job_between(uint32_t after, uint32_t end)
{
    for (QUEUE* job = QueueRoot; job; job = job->next)
        if (job->label - after - 1 < end - after - 1)
            return job;
    return nullptr;
}

void File_LinkLost()
{
    const uint32_t end = LabelID;
    bool is_seen = false; // the operator waits for one; of others their owners tell
    uint32_t last = QueueRoot ? QueueRoot->label - 1 : 0;
    while (QUEUE* job = job_between(last, end)) {
        last = job->label;
        if (job->sync_pid != 0)
            continue; // all is done: only the drives are being written
        is_seen |= file_pane_is_in_view(job);
        Log_Output(LOG_LINK, MOD_FILE, "The link has fallen. (L%d)", int(last));
        give_up(job);
    }
    if (is_seen)
        (void)PaneMessage_Create("File", PANE_ALERT,
                                 "The connection to the server is lost.\n"
                                 "The file operation has been aborted.");
}

// --- Lines of the server ---

// A number of the peer's: digits, with a sign where it printed a large one so. Null without one.
static const char* read_number(const char* text, uint32_t* number)
{
    const bool is_negative = *text == '-';
    const char* p = text + is_negative;
    uint64_t n = 0;
    const char* first = p;
    for (; *p >= '0' && *p <= '9'; p++) {
        n = n * 10 + uint64_t(*p - '0');
        if (n > UINT32_MAX)
            return nullptr;
    }
    if (p == first)
        return nullptr;
    *number = uint32_t(is_negative ? 0 - n : n);
    return p;
}

static void take_ack(const char* value)
{
    uint32_t label = 0;
    uint32_t ack = 0;
    const char* p = *value == 'L' ? read_number(value + 1, &label) : nullptr;
    if (!p || *p != ',' || !read_number(p + 1, &ack) || label == 0 || ack == 0)
        return;
    if (FILEXFERLIST* item = queue_item_by_label(label)) {
        // What was cancelled meanwhile does not come back.
        if (item->status == FILESTATUS_REQ || item->status == FILESTATUS_EXEC) {
            queue_ack(item, ack);
            file_set_status(item, FILESTATUS_EXEC);
        }
    } else if (QUEUE* job = queue_find(label)) {
        job->ack = ack;
    }
    file_scp_ack(label, ack);
}

static void reply_to(QUEUE* job, FILEXFERLIST* item, const char* text)
{
    const FileWork* work = file_work(job->worktype);
    if (!item) {
        switch (work->reply) {
        case Reply::Single: reply_single(job, text); break;
        case Reply::Find: reply_find(job, text); break;
        case Reply::Rows: reply_rows(job, text); break;
        case Reply::Usb: reply_usb(job, text); break;
        default: break; // a list whose item is finished
        }
        return;
    }
    if (work->reply == Reply::Scp)
        file_scp_status(job, item, text);
    else
        file_list_status(job, item, text);
}

static void take_status(const char* value)
{
    uint32_t ack = 0;
    const char* p = read_number(value, &ack);
    if (!p || *p != ',' || ack == 0)
        return;
    const char* text = p[1] == ' ' ? p + 2 : p + 1;
    FILEXFERLIST* item = queue_item_by_ack(ack);
    if (QUEUE* job = item ? item->job : queue_by_ack(ack))
        reply_to(job, item, text);
    else
        scplist_category_resultlist(ack, text);
}

static void take_route(const char* value)
{
    uint32_t ack = 0;
    const char* p = read_number(value, &ack);
    const char* last = strrchr(value, ',');
    if (!p || *p != ',' || last == p || ack == 0)
        return;
    const int route = last[1] == ' ' ? last[2] - '0' : last[1] - '0';
    if (route != 0 && route != 1)
        return;
    const FILEXFERLIST* item = queue_item_by_ack(ack);
    QUEUE* job = item ? item->job : queue_by_ack(ack);
    if (job && file_work(job->worktype)->is_routed)
        file_pane_lamp(job, route + 2);
}

static void take_tally(const char* path, const char* value)
{
    static constexpr const char* families[] = {"Transfer@", "Access@", "Frame Memory@",
                                               "Remote Access@"};
    if (strcmp(path, "FILEXFER@Transfer Route") == 0) {
        take_route(value);
        return;
    }
    if (!BeginsWith(path, "File@"))
        return;
    for (const char* family : families) {
        if (!BeginsWith(path + strlen("File@"), family))
            continue;
        if (strstr(path, "@Status"))
            take_status(value);
        else
            take_ack(value);
        return;
    }
}

int FileProc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg dx)
{
    switch (msg) {
    case MSG_TALLY:
        if (ax && bx)
            take_tally(Text(ax), Text(bx));
        break;
    case MSG_SHPTALLY:
        if (ax && bx)
            file_shp_tally(Text(ax), Text(bx), Text(dx));
        break;
    case LMSG_PANEQUIT: file_pane_cancelled(int(ax)); break;
    case MSG_REDRAW:
        file_pane_tick();
        file_list_tick();
        break;
    default: break;
    }
    return 0;
}

void File_Reset()
{
    while (QueueRoot)
        queue_remove(QueueRoot->label);
    LabelID = 1;
    GL_FMDataPortStatus[0] = GL_FMDataPortStatus[1] = 0;
    file_import_reset();
    file_pane_reset();
    file_scp_reset();
}

void fileprocessprogress_update()
{
    GL_FileProcessing = std::ranges::any_of(FileProc_Prog, [](int prog) { return prog > 0; });
}
