#include "global.h"
#include "harness.h"
#include "log.h"
#include "storage.h"
#include "text.h"
#include <filesystem>
#include <sys/statvfs.h>

constexpr char LOG[] = "/var/log2/storage.log";

struct Storage : testing::Test {
    void SetUp() override
    {
        Harness_Reset();
        std::filesystem::remove_all("/mnt/usb");
        std::filesystem::create_directories("/mnt/usb");
        CopyText(GL_TempFile, "/var/tmp/__tm3__.tmp");
        CopyText(GL_ImportDataPath, "/mnt/usb/usb1/");
        CopyText(GL_NFS_Server, "127.0.0.1");
        CopyText(GL_NFS_MountPoint, "/ktrfiles");
        CopyText(GL_NFS_MountOption, "retrans=5,soft,nolock");
        remove(LOG);
        Log_Init(LOG, LOG_FILE_SIZE);
        Log_SetLevel(0);
    }
    void TearDown() override { Log_Init(nullptr, LOG_FILE_SIZE); }
};

TEST_F(Storage, FreeSpaceIsTheSystemsOwnFigure)
{
    struct statvfs fs;
    ASSERT_EQ(statvfs("/mnt/data", &fs), 0);
    const double expected = double(fs.f_bavail) * double(fs.f_frsize) / 1024;
    std::filesystem::create_directories("/mnt/data/my show");
    EXPECT_NEAR(GetDiskFree("/mnt/data"), expected, 100000); // others write meanwhile
    std::filesystem::create_directories("/mnt/data/Show (1) R&D \"B\" \xC3\xA4");
    EXPECT_NEAR(GetDiskFree("/mnt/data/Show (1) R&D \"B\" \xC3\xA4"), expected, 100000);
}

TEST_F(Storage, FreeSpaceOfNoDirectoryIsAFailureWithOneLine)
{
    EXPECT_EQ(GetDiskFree("/mnt/none"), -1);
    EXPECT_THAT(FileText(LOG), HasSubstr("GetDiskSize(/mnt/none) --> ret = -1 [KB]\n"));
    EXPECT_EQ(GetDiskFree(nullptr), -1);
}

TEST_F(Storage, ScanTakesTheFirstStickAndTellsTheServer)
{
    std::filesystem::create_directories("/mnt/usb/usb3");
    std::filesystem::create_directories("/mnt/usb/usb5");
    GL_USB_AutoScan = 1;
    Usb_Auto_Scan();
    EXPECT_STREQ(GL_ImportDataPath, "/mnt/usb/usb3/");
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("put Info@Operation Setup Data@Import Path#/mnt/usb/usb3/"));
}

TEST_F(Storage, ScanChangesNothingWithoutAStickOrWhenOff)
{
    GL_USB_AutoScan = 1;
    Usb_Auto_Scan();
    EXPECT_STREQ(GL_ImportDataPath, "/mnt/usb/usb1/");
    std::filesystem::create_directories("/mnt/usb/usb0");
    GL_USB_AutoScan = 0;
    Usb_Auto_Scan();
    EXPECT_STREQ(GL_ImportDataPath, "/mnt/usb/usb1/");
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
}

TEST_F(Storage, NfsMountLogsItsStepsAndStopsAtTheFirstFailure)
{
    // Nothing here answers: the sandbox has no ping, and if it had, there is no NFS server.
    GL_NFS_Mounted = 1;
    EXPECT_EQ(NFS_Mount(), -1);
    EXPECT_EQ(GL_NFS_Mounted, 0);
    const std::string log = FileText(LOG);
    EXPECT_THAT(log, HasSubstr("NFS Mount: /bin/mkdir -p /var/nfs\n"));
    EXPECT_THAT(log, HasSubstr("NFS Mount: --> 0\n"));
    EXPECT_THAT(log, HasSubstr("NFS Mount: /bin/umount /var/nfs\n"));
    EXPECT_THAT(log, HasSubstr("NFS Mount: /bin/ping -c 1"));
    EXPECT_THAT(log, Not(HasSubstr("/bin/mount -t nfs")));
}

TEST_F(Storage, NfsSettingsThatAreMoreThanAWordAreRefused)
{
    for (const char* server : {"h;touch$IFS/mnt/data/run", "-f", "h -f", "\"h"}) {
        CopyText(GL_NFS_Server, server);
        GL_NFS_Mounted = 1;
        remove(LOG);
        EXPECT_EQ(NFS_MountEx("/k"), -1);
        EXPECT_EQ(GL_NFS_Mounted, 0);
        EXPECT_THAT(FileText(LOG), HasSubstr("refused")) << server;
        EXPECT_THAT(FileText(LOG), Not(HasSubstr("/bin/"))) << "nothing was run";
    }
    CopyText(GL_NFS_Server, "h");
    EXPECT_EQ(NFS_MountEx("/k /root"), -1);
    EXPECT_THAT(FileText(LOG), Not(HasSubstr("/bin/")));
    EXPECT_EQ(NFS_MountEx(nullptr), -1);
}
