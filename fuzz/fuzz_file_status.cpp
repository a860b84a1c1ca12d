// File work under any peer. The input is lines: "path#value" is one of the server's,
// "Verb#TABLE:ROW" one of the hub's, "=text" goes into the lists of results that the jobs read, "!"
// presses "Cancel". Whatever comes, the jobs' own counts stay right, and what they hold is given
// back at the end.
#include "device.h"
#include "file.h"
#include "file_scp.h"
#include "global.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "text.h"
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/stat.h>

static FILEXFERLIST* lists[4];

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void Take(int msg, const std::string& a, const std::string& b, const char* row)
{
    FileProc(msg, Arg(a.c_str()), Arg(b.c_str()), 0, Arg(row));
}

// As the bus cuts it: the row behind the first ":".
static void TakeHubLine(const std::string& verb, const std::string& rest)
{
    const size_t colon = std::min(rest.find(':'), rest.size());
    const std::string table = rest.substr(0, colon);
    const std::string row = colon < rest.size() ? rest.substr(colon + 1) : "";
    Take(MSG_SHPTALLY, verb, table, verb == "Ready" ? nullptr : row.c_str());
}

static void WriteResults(const std::string& text)
{
    mkdir("/var/tmp", 0777);
    mkdir("/var/tmp/FILE", 0777);
    for (const char* way : {"SETUP.SWR1.Get", "SETUP.PNL1.Put", "FRAMEMEM.CS1.Put"}) {
        const std::string path = std::string("/var/tmp/FILE/") + way + ".result.lst";
        if (FILE* fp = fopen(path.c_str(), "ab")) {
            fwrite(text.data(), 1, text.size(), fp);
            fclose(fp);
        }
    }
}

static void DropResults()
{
    for (const char* way : {"SETUP.SWR1.Get", "SETUP.PNL1.Put", "FRAMEMEM.CS1.Put"})
        (void)remove((std::string("/var/tmp/FILE/") + way + ".result.lst").c_str());
}

// One job of each temper; labels begin at 1.
static void BeginJobs()
{
    for (const char* target : {"SWR1", "PNL1", "CS1"}) {
        Filescp_trnasferlist_init(target);
        Take(MSG_SHPTALLY, "Ready", std::string(target) + ".File", nullptr);
    }
    File_ExecFind(
        "MYHOST:/d", "*", [](uint32_t, int, const char*, const char* const*) {}, 0);
    File_ExecUSBReload(nullptr, 0);
    File_ExecFindSFM("MYHOST:/d", "*", nullptr, 0);
    for (const char* name : {"a.SST", "b.SST"}) {
        const std::string there = std::string("SWR000D001:/vorn/tmp/file/SETUP/SWR1/") + name;
        const std::string here = std::string("MYHOST:/mnt/usb/usb1/") + name;
        File_XferList_Add(&lists[0], there.c_str(), here.c_str());
        File_XferList_SCPAdd(&lists[1], there.c_str(), here.c_str(), "SETUP", "SWR1");
        File_XferList_SCPAdd(&lists[2], here.c_str(), there.c_str(), "SETUP", "PNL1");
        File_XferList_ImportAdd2(&lists[3], here.c_str(),
                                 (std::string("SWR000D001:/A/") + name + ".SFH").c_str(), 0, "c",
                                 name[0] - 'a', 2, 1, "FRAMEMEM", "CS1");
    }
    File_ExecTransferList(&lists[0], nullptr, 0);
    File_TransSCPdirGetList(&lists[1], nullptr, 0);
    File_TransSCPdirPutList(&lists[2], nullptr, 0);
    File_ExecFmImportList2(&lists[3], nullptr, 0);
}

static void CheckJobs()
{
    for (const QUEUE* job = QueueRoot; job; job = job->next) {
        int items = 0, finished = 0, checking = 0, in_flight = 0;
        for (const FILEXFERLIST* item = *job->xferlist; item; item = item->next) {
            Check(item->job == job);
            Check(strnlen(item->mesg, sizeof item->mesg) < sizeof item->mesg);
            items++;
            finished += item->status >= FILESTATUS_OK;
            checking += item->status == FILESTATUS_CHKRESULT;
            in_flight += item->status == FILESTATUS_REQ || item->status == FILESTATUS_EXEC;
        }
        Check(items == job->items && finished == job->finished && checking == job->checking &&
              in_flight == job->in_flight);
    }
    for (const FILETRANS_SCPLIST& target : Scp_TrnasferList)
        for (const FILETRANS_SCPCATEGORY& cat : target.category) {
            const QUEUE* job = QueueRoot;
            while (job && job != cat.queue)
                job = job->next;
            Check(cat.queue == job);
        }
}

static void DropQueues()
{
    char text[CMD_SIZE];
    while (Net_TakeQueued(text, sizeof text)) {
    }
    while (Net_TakeQueuedSHP(text, sizeof text)) {
    }
}

static void TakeLine(const std::string& line)
{
    if (line[0] == '=') {
        WriteResults(line.substr(1) + "\n");
        return;
    }
    if (line[0] == '!') {
        if (QueueRoot && QueueRoot->paneid)
            FileProc(LMSG_PANEQUIT, QueueRoot->paneid, 1, 0, 0);
        return;
    }
    const size_t mark = line.find('#');
    if (mark == std::string::npos)
        return;
    const std::string head = line.substr(0, mark);
    const std::string rest = line.substr(mark + 1);
    if (head.find('@') != std::string::npos)
        Take(MSG_TALLY, head, rest, nullptr);
    else
        TakeHubLine(head, rest);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    File_Reset();
    File_ReplaceSync([] { return 0; });
    DropResults();
    CopyText(SYS_SHP_MyUserID, "MENU1");
    DropQueues();
    const int used = UsedMemPtr;
    BeginJobs();
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        if (end > at)
            TakeLine(text.substr(at, end - at));
        at = end + 1;
        CheckJobs();
    }
    File_Reset();
    while (Pane_GetActiveID())
        (void)Pane_Quit(Pane_GetActiveID());
    for (FILEXFERLIST* list : lists)
        Check(!list);
    DropQueues();
    Check(UsedMemPtr == used);
    return 0;
}
