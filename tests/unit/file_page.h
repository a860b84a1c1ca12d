// file_page: the server and the hub for tests of file work. What goes out is taken off the queues,
// what comes in is delivered as lines.
#pragma once
#include "bus_probe.h"
#include "file.h"
#include "file_scp.h"
#include "memory.h"
#include "text.h"
#include <fstream>
#include <sys/stat.h>

struct FileTest : BusTest {
    static inline Strings told; // what callbacks got

    void SetUp() override
    {
        BusTest::SetUp();
        Device_Init();
        DeviceStructure();
        CopyText(SYS_SHP_MyUserID, "MENU1");
        told.clear();
    }
    void TearDown() override
    {
        BusTest::TearDown();
        GL_FMThumbnailGetAfter = GL_DataGokan = GL_IsRamDisk = 0;
        std::fill_n(GL_FMDataPortDisable, 2, 0);
    }

    static void Text(uint32_t label, int tag, const char* reply)
    {
        told.push_back(std::to_string(label) + " " + std::to_string(tag) + " " +
                       (reply ? reply : "(null)"));
    }
    static void List(uint32_t label, int tag)
    {
        told.push_back(std::to_string(label) + " " + std::to_string(tag));
    }
    static void Found(uint32_t, int, const char* name, const char* const* pair)
    {
        told.push_back(name                ? std::string(name) + "|" + pair[0] + "|" + pair[1]
                       : File_FindFailed() ? "failed"
                                           : "end");
    }

    static Strings Sent() { return TakeQueuedCommands(); }
    // One command that went out, without "put File@"; a test that expects one fails on more.
    static std::string SentOne()
    {
        const Strings sent = Sent();
        EXPECT_EQ(sent.size(), 1u) << testing::PrintToString(sent);
        const std::string head = "put File@";
        return sent.empty() ? "" : sent[0].substr(sent[0].find(head) == 0 ? head.size() : 0);
    }
    static Strings HubSent() { return TakeQueuedHubLines(); }
    static void Ack(uint32_t label, uint32_t ack, const char* path = "File@Access@Copy")
    {
        Deliver(path, "L" + std::to_string(label) + "," + std::to_string(ack));
    }
    static void Status(uint32_t ack, const std::string& text,
                       const char* path = "File@Access@Copy@Status")
    {
        Deliver(path, std::to_string(ack) + "," + text);
    }
    // Acknowledge a label under a fresh number and answer it.
    static void Answer(uint32_t label, const std::string& text)
    {
        static uint32_t number = 1000;
        Ack(label, ++number);
        Status(number, text);
    }
    static void Hub(const std::string& verb, const std::string& table, const std::string& row = "")
    {
        SendMessage(MSG_SHPTALLY, Arg(verb.c_str()), Arg(table.c_str()), 0, Arg(row.c_str()));
    }
    static void Cancel() { SendMessage(LMSG_PANEQUIT, QueueRoot->paneid, 1, 0, 0); }
    static void Notify(const std::string& row, const std::string& table = "SWR1.File")
    {
        Hub("Notify", table, row);
    }
    static void WriteFile(const std::string& path, const std::string& text)
    {
        const size_t end = path.rfind('/');
        ::system(("mkdir -p '" + path.substr(0, end) + "'").c_str());
        std::ofstream(path, std::ios::binary) << text;
    }
};

struct FileListTest : FileTest {
    FILEXFERLIST* list = nullptr;
    std::string ended; // "status message;" of each item, as the page is told at the end
    int blocks = 0;    // of memory, before the test
    void SetUp() override
    {
        FileTest::SetUp();
        blocks = UsedMemPtr;
        ended.clear();
        probe::answer = [this](const probe::Seen& s) {
            if (s.msg == LMSG_FILESTATUS && s.cx == Arg(&list))
                for (const FILEXFERLIST* i = list; i; i = i->next)
                    ended += std::to_string(i->status) + " " + i->mesg + ";";
            return 0;
        };
    }
    void TearDown() override
    {
        File_XferList_RemoveAll(&list);
        FileTest::TearDown();
        EXPECT_EQ(UsedMemPtr, blocks);
    }
    FILEXFERLIST* At(int n)
    {
        FILEXFERLIST* item = list;
        while (n-- > 0)
            item = item->next;
        return item;
    }
};
