// server_page: pages that work with files, in front of a server that lists, makes and copies them.
#pragma once
#include "err.h"
#include "file.h"
#include "file_dir.h"
#include "file_scp.h"
#include "pane.h"
#include "pane_private.h"
#include "table_page.h"
#include "text.h"

// The list of the first job of that kind.
inline FILEXFERLIST* ListOf(int worktype)
{
    for (const QUEUE* job = QueueRoot; job; job = job->next)
        if (job->worktype == worktype)
            return *job->xferlist;
    return nullptr;
}

// Its items as "target source > destination", and of a frame its number and how many there are; of
// one that a companion travels with, "sub". Roots by a short name.
inline Strings Items(int worktype)
{
    static const std::pair<std::string, const char*> roots[] = {
        {"SWR000D001:/vorn/tmp/file/FRAMEMEM/CS1/", "store:"},
        {"SWR001D001:/vorn/tmp/file/", "unit:"},
        {"MYHOST:/mnt/data/user/root/SYSTEM/", "local:"},
        {"MYHOST:/mnt/usb/usb1/", "stick:"}};
    Strings items;
    for (const FILEXFERLIST* i = ListOf(worktype); i; i = i->next) {
        std::string item = std::string(i->target) + " " + i->src + " > " + i->dst;
        if (i->import_no[1])
            item += " " + std::to_string(i->import_no[0]) + "/" + std::to_string(i->import_no[1]);
        item += i->info ? " sub" : "";
        for (const auto& [root, name] : roots)
            for (size_t at; (at = item.find(root)) != item.npos;)
                item.replace(at, root.size(), name);
        items.push_back(item);
    }
    return items;
}

inline Strings Below(const std::string& folder, Strings files)
{
    for (std::string& file : files)
        file.insert(0, folder);
    return files;
}

struct ServerPage : TablePage {
    static inline int ack = 900;

    void TearDown() override
    {
        CopyText(GL_ImportDataPath, "");
        std::fill_n(GL_FileLock, FILE_LOCKS, 0);
        TablePage::TearDown();
        Err_Clear();
    }
    // A line of that kind ("Access@Find") is taken, and its rows and its end are said; a row
    // without a comma gets a date. Whether it was one.
    static bool Serve(const std::string& line, const std::string& kind, const Lines& rows,
                      const std::string& end = "OK")
    {
        const std::string path = "File@" + kind, number = std::to_string(++ack);
        if (!line.starts_with("put " + path + "#L"))
            return false;
        const size_t label = line.find("#L");
        SendDummyTally((path + line.substr(label, line.find(',') - label) + "," + number).c_str());
        for (const std::string& row : rows)
            SendDummyTally((path + "@Status#" + number + "," + row +
                            (row.find(',') == row.npos ? ",Wed Nov 25 10:30:00 2026" : ""))
                               .c_str());
        SendDummyTally((path + "@Status#" + number + "," + end).c_str());
        return true;
    }
    // The same for those of that kind among these lines, and what the page sends meanwhile.
    static Lines Reply(const Lines& sent, const std::string& kind, const Lines& rows,
                       const std::string& end = "OK")
    {
        (void)TakeQueuedCommands();
        int served = 0;
        for (const std::string& line : sent)
            served += Serve(line, kind, rows, end);
        EXPECT_GT(served, 0) << "no " << kind << " in " << testing::PrintToString(sent);
        return TakeQueuedCommands();
    }
    // The pane on top goes with this result, and the key that led to it is up again.
    static Lines Answer(int result)
    {
        (void)TakeQueuedCommands();
        const int pane = Pane_GetActiveID();
        EXPECT_NE(pane, 0);
        Pane_Quit(pane);
        SendMessage(LMSG_PANEQUIT, pane, result, 0, 0);
        Pass(1000);
        return TakeQueuedCommands();
    }
    static std::string Message() // of the pane on top
    {
        PANE* const pane = pane_top();
        return pane ? pane_text_in_view(pane) : "no pane";
    }
    static void Hub(const char* verb, const std::string& table, const std::string& row = "")
    {
        SendMessage(MSG_SHPTALLY, Arg(verb), Arg(table.c_str()), 0, Arg(row.c_str()));
    }
    // Two units that files go to and come from.
    static void HubIsThere()
    {
        for (const char* target : {"SWR1", "PNL1"}) {
            Filescp_trnasferlist_init(target);
            Hub("Ready", std::string(target) + ".File");
        }
        (void)TakeQueuedHubLines();
    }
};
