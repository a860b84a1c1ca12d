#include "harness.h"
#include "setup_index.h"
#include <cstring>
#include <fstream>
#include <unistd.h>

namespace
{
PAGE Row(uint32_t id, const char* word)
{
    PAGE row;
    row.id = id;
    row.tree[0] = "Engineering Setup";
    row.tree[1] = word;
    return row;
}

// Not in order, so that a group's rows are apart.
const PAGE small_table[] = {
    Row(0x73100000, "the group's own page"),
    Row(0x73160008, "Unit Config"),
    Row(0x73160108, "Unit Config"),
    Row(0x73110000, "Network Config"),
    Row(0x73210012, "Extension Panel"),
    Row(0x73310102, "exists as a variant only"),
    Row(0x73110099, "last sub page number"),
    Row(0x73160308, "Unit Config"),
    Row(0x73710000, "the last group"),
    Row(0x737F0000, "a name of more than forty-seven characters, to be cut"),
    Row(0x73800000, "past the groups"),
    Row(0x74110000, "another menu"),
    PAGE{},
};

struct SetupIndex : testing::Test {
    void SetUp() override
    {
        unlink(SETUP_LOCK_FILE);
        SetupIndex_BuildFrom(small_table);
        SetupIndex_LoadLock();
    }
    void TearDown() override { unlink(SETUP_LOCK_FILE ".new"); }
    static void WriteLockFile(const std::string& bytes)
    {
        std::ofstream(SETUP_LOCK_FILE, std::ios::binary) << bytes;
    }
};

// The file as its format says: the lock is on, page 7311 is locked.
std::string LockFileOfOnePage()
{
    std::string bytes(796, '\0');
    bytes.replace(0, 6, "secret");
    bytes[23] = 1;
    bytes[27] = 1;
    bytes.replace(28, 2, "\x73\x11");
    return bytes;
}
} // namespace

TEST_F(SetupIndex, HasOneRowForAPageInEveryVariantGroupedByTab)
{
    static const std::tuple<uint32_t, std::string, std::string> rows[] = {
        {0x73160008, "7316.8", "Unit Config"},
        {0x73110000, "7311", "Network Config"},
        {0x73110099, "7311.99", "last sub page number"},
        {0x73210012, "7321.12", "Extension Panel"},
        {0x73310002, "7331.2", "exists as a variant only"},
        {0x73710000, "7371", "the last group"},
        {0x737F0000, "737F", "a name of more than forty-seven characters, to "},
    };
    ASSERT_EQ(SetupMenu_Max, int(std::size(rows)));
    for (size_t i = 0; i < std::size(rows); i++)
        EXPECT_EQ(std::tuple(SetupMenu[i].page, SetupMenu[i].menu, SetupMenu[i].name), rows[i]);
    EXPECT_EQ(SetupMenuTbl[6].off, 5);
    EXPECT_EQ(SetupMenuTbl[6].num, 2);
}

TEST_F(SetupIndex, LocksSurviveARestart)
{
    snprintf(SetupLock.password, sizeof SetupLock.password, "secret");
    SetupLock.lock = 1;
    SetupMenu[SetupIndex_Find(0x73160308)].lock = 1; // asked for by a variant's id
    SetupMenu[SetupIndex_Find(0x73710000)].lock = 1;
    ASSERT_EQ(SetupIndex_SaveLock(), 0);

    SetupLock = {};
    SetupIndex_BuildFrom(small_table);
    SetupIndex_LoadLock();
    EXPECT_EQ(SetupLock_New, 0);
    EXPECT_STREQ(SetupLock.password, "secret");
    EXPECT_EQ(SetupMenu[SetupIndex_Find(0x73160008)].lock, 1);
    EXPECT_EQ(SetupMenu[SetupIndex_Find(0x73710000)].lock, 1);
    EXPECT_EQ(SetupMenu[SetupIndex_Find(0x73110000)].lock, 0);
}

TEST_F(SetupIndex, AMissingOrCutLockFileLocksNothingAndOneOfRubbishStaysInBounds)
{
    EXPECT_EQ(SetupLock_New, 1);
    WriteLockFile(LockFileOfOnePage().substr(0, 795));
    SetupIndex_LoadLock();
    EXPECT_EQ(SetupLock_New, 1);
    EXPECT_EQ(SetupLock.lock, 0);
    EXPECT_EQ(SetupMenu[SetupIndex_Find(0x73110000)].lock, 0);
    for (const char byte : {'\x7F', '\xFF'}) { // a count far too high, and a negative one
        WriteLockFile(std::string(796, byte));
        SetupIndex_LoadLock();
        EXPECT_EQ(SetupLock.num, SETUP_LOCK_PAGES);
        EXPECT_EQ(strlen(SetupLock.password), sizeof SetupLock.password - 1);
    }
}

TEST_F(SetupIndex, TheLockFileIsTheSameOnEveryMachineAndStaysOnAFullDisk)
{
    WriteLockFile(LockFileOfOnePage());
    SetupIndex_LoadLock();
    EXPECT_EQ(SetupLock.lock, 1);
    EXPECT_EQ(SetupMenu[SetupIndex_Find(0x73110000)].lock, 1);
    unlink(SETUP_LOCK_FILE);
    ASSERT_EQ(SetupIndex_SaveLock(), 0);
    EXPECT_EQ(FileText(SETUP_LOCK_FILE), LockFileOfOnePage());
    SetupMenu[SetupIndex_Find(0x73710000)].lock = 1;
    ASSERT_EQ(symlink("/dev/full", SETUP_LOCK_FILE ".new"), 0);
    EXPECT_EQ(SetupIndex_SaveLock(), -1);
    EXPECT_EQ(FileText(SETUP_LOCK_FILE), LockFileOfOnePage());
}

TEST(SetupIndexOfTheProgram, HoldsEverySetupPageOnce)
{
    SetupIndex_Build();
    ASSERT_LT(SetupMenu_Max, SETUP_ROWS);
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        if (page->id <= 0x73100000 || page->id > 0x737FFFFF)
            continue;
        int found = 0;
        for (int i = 0; i < SetupMenu_Max; i++)
            found += SetupMenu[i].page == (page->id & 0xFFFF00FF);
        EXPECT_EQ(found, 1) << std::hex << page->id;
    }
}
