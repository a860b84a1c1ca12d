#include "harness.h"
#include "safe_file.h"
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

static Strings Synced; // paths

extern "C" int fsync(int fd)
{
    Synced.push_back(std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(fd)));
    return int(syscall(SYS_fsync, fd));
}

constexpr char FILE_NAME[] = "/var/tmp/safe_file";
constexpr char BESIDE[] = "/var/tmp/safe_file.new";

struct SafeFiles : testing::Test {
    void SetUp() override
    {
        unlink(BESIDE);
        ASSERT_EQ(SafeFile_Write(FILE_NAME, "the old one", 11), 0);
    }
    void TearDown() override
    {
        unlink(BESIDE);
        rmdir(BESIDE);
        unlink(FILE_NAME);
    }
};

TEST_F(SafeFiles, TheOldFileStandsUntilTheNewOneIsWhole)
{
    SafeFile file;
    ASSERT_EQ(SafeFile_Open(file, FILE_NAME), 0);
    fprintf(file.fp, "half");
    fflush(file.fp);
    EXPECT_EQ(FileText(FILE_NAME), "the old one");
    fprintf(file.fp, " and half");
    ASSERT_EQ(SafeFile_Commit(file), 0);
    EXPECT_EQ(FileText(FILE_NAME), "half and half");
    EXPECT_NE(access(BESIDE, F_OK), 0);
    EXPECT_EQ(SafeFile_Commit(file), -1) << "a second time";

    ASSERT_EQ(SafeFile_Open(file, FILE_NAME), 0);
    fprintf(file.fp, "thought better of it");
    const int descriptor = fileno(file.fp);
    SafeFile_Abandon(file);
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1) << "it stays open";
    EXPECT_EQ(SafeFile_Commit(file), -1) << "it is given up";
    EXPECT_EQ(SafeFile_Write("/var/tmp/one_byte", "1", 1), 0);
    EXPECT_EQ(FileText("/var/tmp/one_byte"), "1");
    EXPECT_EQ(FileText(FILE_NAME), "half and half");
    EXPECT_NE(access(BESIDE, F_OK), 0);
}

TEST_F(SafeFiles, OnlyACommitWaitsForTheDisk)
{
    for (const auto& [commit, syncs] : {std::pair{&SafeFile_Commit, Strings{BESIDE, "/var/tmp"}},
                                        {&SafeFile_CommitUnsynced, {}}}) {
        SafeFile file;
        ASSERT_EQ(SafeFile_Open(file, FILE_NAME), 0);
        fprintf(file.fp, "the new one");
        Synced.clear();
        EXPECT_EQ(commit(file), 0);
        EXPECT_EQ(Synced, syncs);
        EXPECT_EQ(FileText(FILE_NAME), "the new one");
    }
}

TEST_F(SafeFiles, WhatCannotBeWrittenLeavesTheOldFile)
{
    // A full disk shows itself only when the bytes go out.
    ASSERT_EQ(symlink("/dev/full", BESIDE), 0);
    EXPECT_EQ(SafeFile_Write(FILE_NAME, "the new one", 11), -1);
    EXPECT_EQ(FileText(FILE_NAME), "the old one");
    EXPECT_NE(access(BESIDE, F_OK), 0);

    ASSERT_EQ(mkdir(BESIDE, 0755), 0);
    EXPECT_EQ(SafeFile_Write(FILE_NAME, "the new one", 11), -1);
    EXPECT_EQ(FileText(FILE_NAME), "the old one");

    std::string too_long = "/var/tmp/"; // with what stands behind the name beside it
    while (too_long.size() < PATH_SIZE - 5)
        too_long += "./";
    too_long += "x";
    EXPECT_EQ(SafeFile_Write(too_long.c_str(), "x", 1), -1);
}
