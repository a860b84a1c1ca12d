// Who holds which category, and how a job comes to its turn and ends.
#include "file_scp.h"
#include "device.h"
#include "file_scp_private.h"
#include "global.h"
#include "log.h"
#include "memory.h"
#include "menu_macro.h"
#include "netio.h"
#include "tally_value.h"
#include "text.h"
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <new>

#include "safeguards.h"

static constexpr char NOBODY[] = "Non";
static constexpr char FMEM[] = "FRAMEMEM";
static constexpr char TABLE_NAME[] = ".File";

static constexpr const char* shp_target[SCP_TARGETS] = {"SWR1", "SWR2", "CS1",  "CS2",
                                                        "PNL1", "PNL2", "PNL3", "PNL4"};
static constexpr const char* shp_paramname[] = {"USER_ID", "STATUS"};
const char* const shp_status_value[3] = {"Standby", "Get", "Put"};

const TRANS_SCP_CATEGORY Transfer_Scp_Category[SCP_CATEGORIES] = {
    {.name = "SETUP", .pnl = 1, .swr = 1, .cs = 0, .dme = 1},
    {.name = "INITSTAT", .pnl = 0, .swr = 1, .cs = 0, .dme = 0},
    {.name = "KEYMEM", .pnl = 0, .swr = 1, .cs = 0, .dme = 0},
    {.name = "VPROCMEM", .pnl = 0, .swr = 1, .cs = 0, .dme = 0},
    {.name = "EFFECT", .pnl = 1, .swr = 1, .cs = 0, .dme = 1},
    {.name = "SNAPSHOT", .pnl = 1, .swr = 1, .cs = 0, .dme = 1},
    {.name = "WSNAP", .pnl = 0, .swr = 1, .cs = 0, .dme = 0},
    {.name = "DSNAP", .pnl = 0, .swr = 1, .cs = 0, .dme = 0},
    {.name = "KSNAP", .pnl = 0, .swr = 1, .cs = 0, .dme = 0},
    {.name = "SHOTBOX", .pnl = 1, .swr = 0, .cs = 0, .dme = 0},
    {.name = "MACROATC", .pnl = 1, .swr = 0, .cs = 0, .dme = 0},
    {.name = "MACRO", .pnl = 1, .swr = 0, .cs = 0, .dme = 0},
    {.name = FMEM, .pnl = 0, .swr = 0, .cs = 1, .dme = 0},
};

FILETRANS_SCPLIST Scp_TrnasferList[SCP_TARGETS];

// What a job has in each category of each target.
struct FILECOUNT {
    struct Count {
        int items = 0;
        int finished = 0; // 131 too
        int checking = 0;
    } of[SCP_TARGETS][SCP_CATEGORIES];
};

// --- Texts ---

static constexpr const char* File_Scp_MsgTbl[] = {
    // by FILE_SCP_MSG
    "NG([ERROR] Server Not Ready.)",   "NG([ERROR] File Not Exist.)",
    "NG([ERROR] Result File Error.)",  "NG([ERROR] Internal Error.)",
    "NG([ERROR] File Load failed.)",   "NG([ERROR] Make Clip failed.)",
    "NG([ERROR] Make Folder failed.)",
};
static_assert(std::size(File_Scp_MsgTbl) == FILE_SCP_MSG_MAKE_FOLDER_FAILED + 1);

const char* File_ServerNotReady()
{
    return File_Scp_MsgTbl[FILE_SCP_MSG_SERVER_NOT_READY];
}

void file_set_msg(FILEXFERLIST* item, FILE_SCP_MSG id)
{
    file_set_text(item, File_Scp_MsgTbl[id]);
}

const char* file_trans_filetype(int id)
{
    static constexpr const char* names[] = {"SFH", "TIF", "BMP", "TGA", "PNG"};
    return names[id >= 0 && id < int(std::size(names)) ? id : TRANS_FILETYPE_SFH];
}

int file_scp_get_systemformat(const char* host)
{
    enum : int { F23 = 0, F24 = 1, F25 = 2, F29 = 3, F30 = 4, F50 = 5, F59 = 6, F60 = 7 };
    enum : int { I480 = 0, I576 = 1, P720 = 2, L1080 = 3 };
    enum : int { INTERLACED = 0, SEGMENTED = 1, PROGRESSIVE = 2 };
    static constexpr struct {
        int size, freq, scan, format;
    } formats[] = {
        {I480, F59, INTERLACED, 0},    {I576, F50, INTERLACED, 1},    {P720, F59, PROGRESSIVE, 2},
        {L1080, F50, INTERLACED, 3},   {L1080, F59, INTERLACED, 4},   {L1080, F60, INTERLACED, 5},
        {L1080, F23, SEGMENTED, 6},    {L1080, F24, SEGMENTED, 7},    {L1080, F25, SEGMENTED, 8},
        {L1080, F29, SEGMENTED, 9},    {L1080, F30, SEGMENTED, 10},   {P720, F50, PROGRESSIVE, 11},
        {L1080, F50, PROGRESSIVE, 12}, {L1080, F59, PROGRESSIVE, 13},
    };
    // From the plain 1080p to that of one processor with two links, of two, and of one link.
    constexpr int SINGLE_PROCESSOR = 116;
    constexpr int DUAL_PROCESSOR = 118;
    constexpr int THREE_GIGABIT = 120;
    int size = SYS_Format_Size;
    int freq = SYS_Format_Freq;
    int scan = SYS_Format_Scan;
    const size_t length = host ? strcspn(host, ":") : 0;
    for (const DEVICE& dev : DEV_Swr)
        if (length > 0 && strlen(dev.id) == length && strncmp(dev.id, host, length) == 0) {
            size = dev.format_size;
            freq = dev.format_freq;
            scan = dev.format_scan;
        }
    for (const auto& f : formats) {
        if (f.size != size || f.freq != freq || f.scan != scan)
            continue;
        const bool is_1080p = f.format == 12 || f.format == 13;
        if (is_1080p && is1080P_3G())
            return f.format + THREE_GIGABIT;
        if (is_1080p && isDualProc_DualLink())
            return f.format + DUAL_PROCESSOR;
        if (is_1080p && isSingleProc_DualLink())
            return f.format + SINGLE_PROCESSOR;
        return f.format;
    }
    return -1;
}

// --- Questions ---

template <typename Name, size_t N>
static int index_of(const char* text, const Name (&table)[N], const char* (*name)(const Name&))
{
    for (size_t i = 0; i < N; i++)
        if (strcmp(name(table[i]), text) == 0)
            return int(i);
    return -1;
}

static int find_target(const char* text)
{
    return index_of<const char*>(text, shp_target, [](const char* const& t) { return t; });
}

static int find_category(const char* text)
{
    return index_of<TRANS_SCP_CATEGORY>(text, Transfer_Scp_Category,
                                        [](const TRANS_SCP_CATEGORY& c) { return c.name; });
}

bool scp_is_cs(const Scp& s)
{
    return BeginsWith(s.target.target, "CS");
}

bool scp_is_fmem(const Scp& s)
{
    return strcmp(s.cat.name, FMEM) == 0;
}

static int direction_of(const QUEUE* job)
{
    switch (job->worktype) {
    case FILEWORK_RMTACCESS_SCPGETLIST:
    case FILEWORK_RMTACCESS_SCPDIRGETLIST:
    case FILEWORK_RMTACCESS_SCPEXPORTLIST: return FILE_SCP_STATUS_GET;
    case FILEWORK_RMTACCESS_SCPPUTLIST:
    case FILEWORK_RMTACCESS_SCPDIRPUTLIST:
    case FILEWORK_RMTACCESS_SCPIMPORTLIST: return FILE_SCP_STATUS_PUT;
    default: return FILE_SCP_STATUS_NO;
    }
}

bool scp_is_get(const QUEUE* job)
{
    return direction_of(job) == FILE_SCP_STATUS_GET;
}

static bool is_me(const char* userid)
{
    return *userid && strcmp(userid, SYS_SHP_MyUserID) == 0;
}

static bool is_nobody(const char* userid)
{
    return !*userid || strcmp(userid, NOBODY) == 0;
}

bool scp_is_mine(const Scp& s)
{
    return is_me(s.cat.userid);
}

int check_category_target_status(const char* category, const char* target, int status)
{
    if (!category || !target)
        return 0;
    const int t = find_target(target);
    const int c = find_category(category);
    if (t < 0 || c < 0)
        return 0;
    const Scp s = scp_at(t, c);
    return scp_is_mine(s) && s.cat.status == status;
}

static int index_in(const Scp& s)
{
    return int(&s.cat - s.target.category);
}

static int index_of_target(const Scp& s)
{
    return int(&s.target - Scp_TrnasferList);
}

bool scp_has(const Scp& s, const FILEXFERLIST* item)
{
    return item->scp_target == index_of_target(s) && item->scp_category == index_in(s);
}

FILEXFERLIST* scp_next(const Scp& s, FILEXFERLIST* from, int status)
{
    for (FILEXFERLIST* item = from; item && item->job == s.cat.queue; item = item->next)
        if (item->status == status && scp_has(s, item))
            return item;
    return nullptr;
}

FILEXFERLIST* scp_first(const Scp& s, int status)
{
    return s.cat.queue ? scp_next(s, *s.cat.queue->xferlist, status) : nullptr;
}

// --- Counts ---

static void look_up(FILEXFERLIST* item)
{
    constexpr int8_t UNKNOWN = -2;
    if (item->scp_target != -1)
        return;
    const int t = find_target(item->target);
    const int c = find_category(item->category);
    const bool is_known = t >= 0 && c >= 0;
    item->scp_target = is_known ? int8_t(t) : UNKNOWN;
    item->scp_category = is_known ? int8_t(c) : UNKNOWN;
}

bool file_scp_prepare(QUEUE* job)
{
    if (file_work(job->worktype)->reply != Reply::Scp)
        return true;
    void* place = GDL_Malloc(sizeof(FILECOUNT));
    if (place)
        job->scp = new (place) FILECOUNT;
    return place != nullptr;
}

void file_scp_count(FILEXFERLIST* item, int n)
{
    FILECOUNT* counts = item->job->scp;
    if (!counts)
        return;
    look_up(item);
    if (item->scp_target < 0)
        return;
    FILECOUNT::Count& count = counts->of[item->scp_target][item->scp_category];
    count.items += n;
    count.finished += item->status >= FILESTATUS_OK ? n : 0;
    count.checking += item->status == FILESTATUS_CHKRESULT ? n : 0;
}

static const FILECOUNT::Count& count_of(const Scp& s)
{
    return s.cat.queue->scp->of[index_of_target(s)][index_in(s)];
}

static bool is_all_finished(const QUEUE* job)
{
    return job->finished == job->items && job->checking == 0;
}

// --- The tables ---

static void file_scplist_category_init(FILETRANS_SCPLIST& target, int category)
{
    FILETRANS_SCPCATEGORY& cat = target.category[category];
    cat = {};
    CopyText(cat.name, Transfer_Scp_Category[category].name);
    PrintText(cat.path, "/vorn/tmp/file/%s/%s/", cat.name, target.target);
}

static bool is_idle(const FILETRANS_SCPLIST& target)
{
    for (const FILETRANS_SCPCATEGORY& cat : target.category)
        if (cat.status != FILE_CATEGORY_STATUS_NO)
            return false;
    return true;
}

static bool is_any_active()
{
    for (const FILETRANS_SCPLIST& target : Scp_TrnasferList)
        if (!is_idle(target))
            return true;
    return false;
}

// The category is nobody's business any more; a target at rest has no direction.
static void clear_category(const Scp& s)
{
    char holder[sizeof s.cat.userid];
    CopyText(holder, s.cat.userid);
    file_scplist_category_init(s.target, index_in(s));
    // Somebody else's reservation stays known; the own one is given back.
    if (!is_me(holder))
        CopyText(s.cat.userid, holder);
    if (is_idle(s.target))
        s.target.status = FILE_SCP_STATUS_NO;
}

static void set_host(FILETRANS_SCPLIST& target)
{
    const char* name = shp_target[&target - Scp_TrnasferList]; // its own name may not be set yet
    if (BeginsWith(name, "CS")) {
        PrintText(target.host, "SWR000D%03d:", int(strtol(name + 2, nullptr, 10)) % 1000);
        return;
    }
    const bool is_panel = BeginsWith(name, "PNL");
    const int n = name[3] - '1';
    const DEVICE& dev = is_panel ? DEV_Pnl[n] : DEV_Swr[n];
    if (dev.id[0])
        PrintText(target.host, "%s:", dev.id);
    else
        PrintText(target.host, "%.3s000D%03d:", name, n + 1);
}

void Filescp_trnasferlist_init(const char* target)
{
    const int t = target ? find_target(target) : -1;
    if (t < 0)
        return;
    FILETRANS_SCPLIST& list = Scp_TrnasferList[t];
    // A job that was at it would wait for ever.
    file_shp_disconnect(target);
    list.connect = FILE_DISCONNECT;
    list.status = FILE_SCP_STATUS_NO;
    CopyText(list.target, target);
    set_host(list);
    for (int c = 0; c < SCP_CATEGORIES; c++)
        file_scplist_category_init(list, c);
}

void file_scp_reset()
{
    for (int t = 0; t < SCP_TARGETS; t++) {
        Scp_TrnasferList[t] = {};
        Filescp_trnasferlist_init(shp_target[t]);
    }
}

// --- Requests ---

static void request(const Scp& s, int param, const char* value)
{
    Net_SendSHPCommandFormat("Request#%s.File:%s.%s%s%s", s.target.target, s.cat.name,
                             shp_paramname[param], scp_is_cs(s) ? "::" : ":", value);
}

// The operator sees for whom the job waits.
static void wait_for_holder(const Scp& s)
{
    s.cat.status = FILE_CATEGORY_STATUS_WAIT_NON;
    if (!s.cat.queue || is_nobody(s.cat.userid) || scp_is_mine(s))
        return;
    char text[TEXT_AND_NAME];
    PrintText(text, "%s of %s is used by %s.", s.cat.name, s.target.target, s.cat.userid);
    scp_show_progress(s.cat.queue, text);
}

static void file_send_request_usrid(const Scp& s)
{
    const bool is_free = is_nobody(s.cat.userid) || scp_is_mine(s);
    if (s.target.connect == FILE_DISCONNECT || !is_free) {
        wait_for_holder(s);
        return;
    }
    // What this unit held before counts for nothing: the answer is to be news.
    if (scp_is_mine(s))
        s.cat.userid[0] = '\0';
    s.cat.status = FILE_CATEGORY_STATUS_WAIT_USER;
    request(s, 0, SYS_SHP_MyUserID);
}

void scp_request_status(const Scp& s, int value, const char* rest)
{
    static constexpr int waiting[] = {FILE_CATEGORY_STATUS_WAIT_STANDBY,
                                      FILE_CATEGORY_STATUS_WAIT_GET, FILE_CATEGORY_STATUS_WAIT_PUT};
    s.cat.status = waiting[value];
    char text[CMD_SIZE];
    PrintText(text, "%s%s", shp_status_value[value], rest);
    request(s, 1, text);
}

void scp_release(const Scp& s)
{
    s.cat.resultlabel = s.cat.resultack = 0;
    scp_request_status(s, SHP_STANDBY, "");
    s.cat.status = FILE_CATEGORY_STATUS_FINISH;
}

// --- Items ---

void scp_show_progress(QUEUE* job, const char* text)
{
    file_pane_progress(job, file_percent(job), text);
}

void scp_fail(FILEXFERLIST* item, FILE_SCP_MSG id)
{
    file_set_msg(item, id);
    file_set_status(item, FILESTATUS_NG);
    file_pane_append_line(item->job, item->mesg);
    scp_show_progress(item->job, item->mesg);
}

void scp_send(const Scp& s, FILEXFERLIST* item)
{
    s.cat.scpcount++;
    file_send_item(item);
}

// A job ends when its items are finished and the hub has taken back what it held.
static void check_end(QUEUE* job)
{
    if (!is_all_finished(job))
        return;
    bool is_busy = false;
    for (const FILETRANS_SCPLIST& target : Scp_TrnasferList)
        for (const FILETRANS_SCPCATEGORY& cat : target.category) {
            if (cat.queue != job || cat.status == FILE_CATEGORY_STATUS_NO)
                continue;
            Log_Output(LOG_TRACE, MOD_FILE,
                       cat.status == FILE_CATEGORY_STATUS_WAIT_USER_CANCEL
                           ? "Target(%s), Category(%s) wait user cancel."
                           : "Target(%s), Category(%s) in process.",
                       target.target, cat.name);
            is_busy = true;
        }
    if (!is_busy)
        file_finish(job);
}

static void done(const Scp& s)
{
    QUEUE* job = s.cat.queue;
    clear_category(s);
    if (job)
        check_end(job);
}

static bool is_waiting_or_over(int status)
{
    return status <= FILE_CATEGORY_STATUS_WAIT_STANDBY ||
           status == FILE_CATEGORY_STATUS_WAIT_USER_CANCEL || status == FILE_CATEGORY_STATUS_FINISH;
}

void scp_go_on(const Scp& s)
{
    QUEUE* job = s.cat.queue;
    if (!job)
        return;
    const FILECOUNT::Count& count = count_of(s);
    if (!is_waiting_or_over(s.cat.status) && count.finished == count.items) {
        if (count.checking == 0) {
            // Of what the hub has taken away meanwhile it would not answer "Standby".
            if (scp_is_mine(s))
                scp_release(s);
            else
                clear_category(s);
        } else if (s.cat.status == FILE_CATEGORY_STATUS_SCPPUT && !scp_is_fmem(s)) {
            s.cat.status = FILE_CATEGORY_STATUS_SCP_FINISH;
            scp_request_status(s, SHP_PUT, "");
        }
    }
    check_end(job);
}

// --- A job comes to its turn ---

// 0, -1 for a bad target, category or work, -2 when the target is not there. The item waits.
static int add_scplist(QUEUE* job, FILEXFERLIST* item)
{
    const int direction = direction_of(job);
    look_up(item);
    if (item->scp_target < 0 || direction == FILE_SCP_STATUS_NO)
        return -1;
    const Scp s = scp_at(item->scp_target, item->scp_category);
    if (s.target.connect == FILE_DISCONNECT)
        return -2;
    file_set_status(item, FILESTATUS_WAIT);
    if (s.target.status == FILE_SCP_STATUS_NO)
        s.target.status = direction;
    if (s.target.status != direction)
        return 0;
    for (const FILETRANS_SCPCATEGORY& cat : s.target.category)
        if (cat.status != FILE_CATEGORY_STATUS_NO && cat.queue != job)
            return 0;
    if (s.cat.status != FILE_CATEGORY_STATUS_NO)
        return 0; // this very job is at it
    s.cat.queue = job;
    s.cat.fm_layercnt = 0;
    file_send_request_usrid(s);
    return 0;
}

static bool compose_remote(QUEUE* job, FILEXFERLIST* item)
{
    const FileWork* work = file_work(job->worktype);
    if (job->worktype != FILEWORK_RMTACCESS_SCPEXPORTLIST || item->scp_target < 0)
        return file_compose_item(item, "put File@%s#L%d,%s,%s,%s", work->verb, int(item->label),
                                 item->src, item->dst, item->category);
    // What the store has turned into the wanted kind stands in its work folder.
    const Scp s = scp_at(item->scp_target, item->scp_category);
    char name[FILE_PATH_SIZE];
    set_host(s.target);
    fmem_relative(name, s, item);
    fmem_cut_ext(name);
    return file_compose_item(item, "put File@%s#L%d,%s%s%s.%s,%s,%s", work->verb, int(item->label),
                             s.target.host, s.cat.path, name[0] == '/' ? name + 1 : name,
                             file_trans_filetype(item->fmext), item->dst, item->category);
}

static void launch_item(QUEUE* job, FILEXFERLIST* item)
{
    if (file_is_macro_pair(item)) {
        mm_macro_tmpfile_prepare(item->src, item->dst);
        if (file_compose_item(item, "put File@Access@Copy#L%d,%s,%s", int(item->label), item->src,
                              item->dst))
            file_send_item(item);
        return;
    }
    if (!compose_remote(job, item))
        return;
    const int result = add_scplist(job, item);
    if (result == 0)
        return;
    file_set_msg(item, result == -2 ? FILE_SCP_MSG_SERVER_NOT_READY : FILE_SCP_MSG_INTERNAL_ERROR);
    file_set_status(item, FILESTATUS_NG);
}

int file_launch_scp(QUEUE* job)
{
    const uint32_t label = job->label;
    while (FILEXFERLIST* item = file_next_new(job)) {
        launch_item(job, item);
        if (item->status == FILESTATUS_NG)
            file_pane_append_line(job, item->mesg);
    }
    if (queue_find(label))
        check_end(job);
    return 0;
}

static void wake_job(QUEUE* job)
{
    for (FILEXFERLIST* item = *job->xferlist; item && item->job == job; item = item->next)
        if (item->status == FILESTATUS_WAIT)
            (void)add_scplist(job, item); // a target that is away is waited for
}

static bool waits_for(QUEUE* job, const Scp& s)
{
    for (FILEXFERLIST* item = *job->xferlist; item && item->job == job; item = item->next)
        if (item->status == FILESTATUS_WAIT && scp_has(s, item))
            return true;
    return false;
}

// Nothing is under way: the first job that waits for this category comes to its turn, then whatever
// else does not stand in its way. All that a job waits for is asked for at once: of what stays free
// the hub would never tell again.
static void wake(const Scp& s)
{
    for (QUEUE* job = QueueRoot; job; job = job->next)
        if (job->scp && waits_for(job, s)) {
            wake_job(job);
            break;
        }
    for (QUEUE* job = QueueRoot; job; job = job->next)
        if (job->scp)
            wake_job(job);
}

// --- Notifications ---

static void hold(const Scp& s)
{
    if (scp_is_fmem(s)) {
        fmem_start(s);
    } else if (scp_is_get(s.cat.queue)) {
        scp_request_status(s, SHP_GET, "");
    } else {
        s.cat.status = FILE_CATEGORY_STATUS_SCPPUT;
        for (FILEXFERLIST* item = scp_first(s, FILESTATUS_WAIT); item;
             item = scp_next(s, item->next, FILESTATUS_WAIT))
            scp_send(s, item);
        scp_go_on(s);
    }
}

static void take_holder(const Scp& s, const char* holder)
{
    const bool is_news = strcmp(s.cat.userid, holder) != 0;
    CopyText(s.cat.userid, holder);
    const bool is_mine = is_me(holder);
    const bool is_over =
        s.cat.status == FILE_CATEGORY_STATUS_FINISH ||
        (s.cat.status == FILE_CATEGORY_STATUS_WAIT_USER_CANCEL && !is_nobody(holder));
    // Gone without an answer to "Standby", or given to another one before we could give up.
    if (!is_mine && is_over)
        done(s);
    if (is_nobody(holder)) {
        if (s.cat.status == FILE_CATEGORY_STATUS_WAIT_NON)
            file_send_request_usrid(s);
        else if (s.target.status == FILE_SCP_STATUS_NO && !is_any_active())
            wake(s);
    }
    if (!is_news)
        return;
    if (s.cat.status == FILE_CATEGORY_STATUS_WAIT_USER && s.cat.queue) {
        if (is_mine)
            hold(s);
        else if (!is_nobody(holder))
            wait_for_holder(s);
    } else if (s.cat.status == FILE_CATEGORY_STATUS_WAIT_USER_CANCEL && is_mine) {
        scp_release(s);
    }
}

// By their names; the hub may leave the extension out.
static bool is_same_file(const char* own, const char* told)
{
    const char* a = file_name_of(own);
    const char* b = file_name_of(told);
    const char* dot = strrchr(a, '.');
    const size_t stem = dot ? size_t(dot - a) : strlen(a);
    return strcmp(a, b) == 0 || (strlen(b) == stem && strncmp(a, b, stem) == 0);
}

// The device has done what was asked; a path says for which file.
static bool is_named(const Scp& s, const char* path)
{
    if (!path || !*path)
        return true;
    if (scp_is_fmem(s))
        return fmem_is_current(s, path);
    const bool is_get = scp_is_get(s.cat.queue);
    for (FILEXFERLIST* item = *s.cat.queue->xferlist; item; item = item->next)
        if (scp_has(s, item) && is_same_file(is_get ? item->src : item->dst, path))
            return true;
    return false;
}

static void take_state(const Scp& s, const char* value)
{
    Parts p;
    SplitValue(p, value, 3);
    const int status = s.cat.status;
    if (!scp_is_mine(s) || !p.v[0])
        return;
    if (strcmp(p.v[0], shp_status_value[SHP_STANDBY]) == 0) {
        if (status == FILE_CATEGORY_STATUS_FINISH)
            done(s);
        return;
    }
    const bool is_get = strcmp(p.v[0], shp_status_value[SHP_GET]) == 0;
    const bool is_put = strcmp(p.v[0], shp_status_value[SHP_PUT]) == 0;
    if (is_get && status == FILE_CATEGORY_STATUS_FINISH)
        scp_release(s);
    if (!s.cat.queue)
        return;
    if (is_get && status == FILE_CATEGORY_STATUS_WAIT_GET && is_named(s, p.v[1]))
        file_send_scpget_resultlist(s, SHP_GET);
    else if (is_put && status == FILE_CATEGORY_STATUS_WAIT_PUT && is_named(s, p.v[1]))
        file_send_scpget_resultlist(s, SHP_PUT);
}

// Index of the target that a table belongs to, -1 for another table.
static int target_of_table(const char* table)
{
    char name[32];
    const size_t length = table ? strlen(table) : 0;
    const size_t ending = strlen(TABLE_NAME);
    if (length <= ending || length >= sizeof name ||
        strcmp(table + length - ending, TABLE_NAME) != 0)
        return -1;
    strncpy_secu(name, table, sizeof name, length - ending);
    return find_target(name);
}

void file_shp_notify(const char* table, const char* param)
{
    const int t = target_of_table(table);
    if (t < 0 || !param)
        return;
    char text[CMD_SIZE];
    CopyText(text, param);
    char* dot = strchr(text, '.');
    char* colon = dot ? strchr(dot, ':') : nullptr;
    if (!colon)
        return;
    *dot = *colon = '\0';
    const int c = find_category(text);
    if (c < 0)
        return;
    const char* value = colon[1] == ':' ? colon + 2 : colon + 1;
    const Scp s = scp_at(t, c);
    if (strcmp(dot + 1, shp_paramname[0]) == 0)
        take_holder(s, value);
    else if (strcmp(dot + 1, shp_paramname[1]) == 0)
        take_state(s, value);
}

// --- The hub or the device goes and comes ---

static void give_up_items(QUEUE* job, int target)
{
    for (FILEXFERLIST* item = *job->xferlist; item && item->job == job; item = item->next) {
        if (item->scp_target != target || file_is_finished(item))
            continue;
        if (item->status == FILESTATUS_EXEC)
            Net_SendCommandFormat("put File@Remote Access@Cancel#Lx,%d", int(item->ack));
        file_set_text(item, "Canceled");
        file_set_status(item, FILESTATUS_CANCEL);
    }
}

// What the job has to do elsewhere goes on; without such it ends here.
void file_shp_disconnect(const char* table)
{
    char name[32];
    CopyText(name, table ? table : "");
    name[strcspn(name, ".")] = '\0';
    const int t = find_target(name);
    if (t < 0)
        return;
    FILETRANS_SCPLIST& target = Scp_TrnasferList[t];
    QUEUE* job = nullptr;
    for (int c = 0; c < SCP_CATEGORIES; c++) {
        if (target.category[c].queue)
            job = target.category[c].queue;
        file_scplist_category_init(target, c);
    }
    target.connect = FILE_DISCONNECT;
    target.status = FILE_SCP_STATUS_NO;
    if (!job)
        return;
    give_up_items(job, t);
    file_sync_release(file_sync_start());
    scp_show_progress(job, "Canceled");
    check_end(job);
}

static void connected(int t)
{
    FILETRANS_SCPLIST& target = Scp_TrnasferList[t];
    if (!target.target[0])
        Filescp_trnasferlist_init(shp_target[t]);
    target.connect = FILE_CONNECT;
    for (FILETRANS_SCPCATEGORY& cat : target.category) {
        const Scp s = {target, cat};
        if (cat.status == FILE_CATEGORY_STATUS_NO)
            continue;
        const bool is_ending = cat.status == FILE_CATEGORY_STATUS_FINISH ||
                               cat.status == FILE_CATEGORY_STATUS_WAIT_USER_CANCEL;
        file_send_request_usrid(s);
        if (!is_ending)
            continue;
        if (cat.status == FILE_CATEGORY_STATUS_WAIT_USER)
            cat.status = FILE_CATEGORY_STATUS_WAIT_USER_CANCEL;
        else
            done(s); // it is somebody else's by now
    }
    if (!is_any_active())
        wake(scp_at(t, 0));
}

void file_shp_tally(const char* verb, const char* table, const char* param)
{
    const int t = target_of_table(table);
    if (t < 0)
        return;
    if (strcmp(verb, "Notify") == 0)
        file_shp_notify(table, param);
    else if (strcmp(verb, "Disconnect") == 0)
        file_shp_disconnect(table);
    else if (strcmp(verb, "Ready") == 0)
        connected(t);
}

void File_HubLost()
{
    for (const char* target : shp_target)
        file_shp_disconnect(target);
}

void File_SHP_All_Clear()
{
    char table[32];
    for (int i = 0; i < DEVICE_MAX && DEV_MySwr[i]; i++) {
        PrintText(table, "CS%d.File", Device_UnitNumber(*DEV_MySwr[i]));
        file_shp_disconnect(table);
        PrintText(table, "SWR%d.File", Device_UnitNumber(*DEV_MySwr[i]));
        file_shp_disconnect(table);
    }
    for (int i = 0; i < DEVICE_MAX && DEV_MyPnl[i]; i++) {
        PrintText(table, "PNL%d.File", Device_UnitNumber(*DEV_MyPnl[i]));
        file_shp_disconnect(table);
    }
}

// --- Replies to copies ---

void file_scp_status(QUEUE* job, FILEXFERLIST* item, const char* text)
{
    const bool is_macro = file_is_macro_pair(item);
    const bool is_known = item->scp_target >= 0 && !is_macro;
    if (is_known && scp_at(item->scp_target, item->scp_category).cat.queue == job) {
        const Scp s = scp_at(item->scp_target, item->scp_category);
        if (s.cat.scpcount > 0)
            s.cat.scpcount--;
        if (scp_is_fmem(s)) {
            fmem_reply(s, item, text);
            return;
        }
    }
    file_set_text(item, text);
    if (text[0] == 'N')
        file_set_status(item, FILESTATUS_NG);
    else if (text[0] == 'O')
        file_set_status(item, scp_is_get(job) || is_macro ? FILESTATUS_OK : FILESTATUS_CHKRESULT);
    else
        file_set_status(item, FILESTATUS_CANCEL);
    if (is_macro && item->status == FILESTATUS_OK)
        file_finish_macro(item);
    if (item->status == FILESTATUS_NG)
        file_pane_append_line(job, item->mesg);
    scp_show_progress(job, item->mesg);
    const bool is_held = is_known && scp_at(item->scp_target, item->scp_category).cat.queue == job;
    if (is_held)
        scp_go_on(scp_at(item->scp_target, item->scp_category));
    else
        check_end(job);
}

// --- Ends from elsewhere ---

bool file_scp_cancel(QUEUE* job)
{
    bool is_pending = false;
    for (FILETRANS_SCPLIST& target : Scp_TrnasferList)
        for (FILETRANS_SCPCATEGORY& cat : target.category) {
            const Scp s = {target, cat};
            if (cat.queue != job || cat.status == FILE_CATEGORY_STATUS_NO)
                continue;
            if (cat.status == FILE_CATEGORY_STATUS_WAIT_USER)
                cat.status = FILE_CATEGORY_STATUS_WAIT_USER_CANCEL;
            else if (scp_is_mine(s) && !is_waiting_or_over(cat.status))
                scp_release(s);
            else if (cat.status != FILE_CATEGORY_STATUS_FINISH &&
                     cat.status != FILE_CATEGORY_STATUS_WAIT_USER_CANCEL) {
                clear_category(s);
                continue;
            }
            is_pending = true;
        }
    return is_pending;
}

// The hub still owes an answer for what the job held or asked for.
void file_scp_forget(QUEUE* job)
{
    if (!job->scp)
        return;
    (void)file_scp_cancel(job);
    for (FILETRANS_SCPLIST& target : Scp_TrnasferList)
        for (FILETRANS_SCPCATEGORY& cat : target.category)
            if (cat.queue == job)
                cat.queue = nullptr;
}

// --- The entries ---

int File_TransSCPGetList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_RMTACCESS_SCPGETLIST, list, retfunc, tag);
}

int File_TransSCPPutList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_RMTACCESS_SCPPUTLIST, list, retfunc, tag);
}

int File_TransSCPdirGetList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_RMTACCESS_SCPDIRGETLIST, list, retfunc, tag);
}

int File_TransSCPdirGetList_FM(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_RMTACCESS_SCPDIRGETLIST, list, retfunc, tag);
}

int File_TransSCPdirPutList(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_RMTACCESS_SCPDIRPUTLIST, list, retfunc, tag);
}

int File_TransSCPdirPutList_FM(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_RMTACCESS_SCPDIRPUTLIST, list, retfunc, tag);
}

int File_ExecFmImportList2(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_RMTACCESS_SCPIMPORTLIST, list, retfunc, tag);
}

int File_ExecFmExportList2(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag)
{
    return file_run(FILEWORK_RMTACCESS_SCPEXPORTLIST, list, retfunc, tag);
}
