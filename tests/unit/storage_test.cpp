#include "global.h"
#include "harness.h"
#include "log.h"
#include "storage.h"
#include "text.h"
#include <filesystem>
#include <fstream>
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

TEST_F(Storage, FreeSpaceIsTheSystemsOwnFigureAndOfNoDirectoryAFailureWithOneLine)
{
    struct statvfs fs;
    ASSERT_EQ(statvfs("/mnt/data", &fs), 0);
    std::filesystem::create_directories("/mnt/data/Show (1) R&D \"B\" \xC3\xA4");
    for (const char* path : {"/mnt/data", "/mnt/data/Show (1) R&D \"B\" \xC3\xA4"})
        EXPECT_NEAR(GetDiskFree(path), double(fs.f_bavail) * double(fs.f_frsize) / 1024, 100000)
            << "others write meanwhile, but not that much";
    EXPECT_EQ(GetDiskFree("/mnt/none"), -1);
    EXPECT_THAT(FileText(LOG), HasSubstr("GetDiskSize(/mnt/none) --> ret = -1 [KB]\n"));
    EXPECT_EQ(GetDiskFree(nullptr), -1);
}

TEST_F(Storage, ScanTakesTheFirstStickAndTellsTheServer)
{
    for (const auto& [scans, sticks, path] : {std::tuple{1, Strings{}, ""},
                                              {0, {"usb0"}, ""},
                                              {1, {"usb5", "usb3"}, "/mnt/usb/usb3/"},
                                              {1, {"usb8"}, "/mnt/usb/usb8/"},
                                              {1, {"usb9"}, ""}}) {
        SetUp();
        for (const std::string& stick : sticks)
            std::filesystem::create_directories("/mnt/usb/" + stick);
        GL_USB_AutoScan = scans;
        Usb_Auto_Scan();
        for (int n = 0; n < 200; n++)
            UsbSync();
        EXPECT_STREQ(GL_ImportDataPath, *path ? path : "/mnt/usb/usb1/");
        const std::string put = "put Info@Operation Setup Data@Import Path#";
        EXPECT_EQ(TakeQueuedCommands(), *path ? Strings{put + path} : Strings{});
    }
    EXPECT_FALSE(std::filesystem::exists("/proc/self/fd/200")) << "descriptors are left";
}

TEST_F(Storage, NfsMountLogsItsStepsAndStopsAtTheFirstFailure)
{
    // Nothing here answers: the sandbox has no ping, and if it had, there is no NFS server.
    for (int (*const step)() : {NFS_Mount, NFS_UnMountEx}) {
        GL_NFS_Mounted = 1;
        EXPECT_EQ(step(), -1);
        EXPECT_EQ(GL_NFS_Mounted, 0);
    }
    EXPECT_THAT(FileText(LOG),
                AllOf(HasSubstr("NFS Mount: /bin/mkdir -p /var/nfs\n"),
                      HasSubstr("NFS Mount: --> 0\n"),
                      HasSubstr("NFS Mount: /bin/umount /var/nfs\n"),
                      HasSubstr("NFS Mount: /bin/ping -c 1"), Not(HasSubstr("/bin/mount -t nfs"))));
}

TEST_F(Storage, TheBoardIsKnownByItsKernelOrAsTheEnvironmentSays)
{
    std::ofstream("/var/tmp/cpuinfo") << "processor\t: 0\nHardware\t: MPU-302\nSerial\t: 0\n";
    EXPECT_EQ(Storage_NamesMPU302("/var/tmp/cpuinfo"), 1);
    EXPECT_EQ(IsMPU302(), 0) << "a desk";
    setenv("TM3BOARD", "MPU302", 1);
    EXPECT_EQ(IsMPU302(), 1);
    unsetenv("TM3BOARD");
}

TEST_F(Storage, NfsSettingsThatAreMoreThanAWordAreRefused)
{
    for (const char* server : {"h;touch$IFS/mnt/data/run", "-f", "h -f", "\"h", ""}) {
        CopyText(GL_NFS_Server, server);
        GL_NFS_Mounted = 1;
        remove(LOG);
        EXPECT_EQ(NFS_MountEx("/k"), -1);
        EXPECT_EQ(GL_NFS_Mounted, 0);
        EXPECT_THAT(FileText(LOG), AllOf(HasSubstr("refused"), Not(HasSubstr("/bin/")))) << server;
    }
    CopyText(GL_NFS_Server, "h");
    EXPECT_EQ(NFS_MountEx("/k /root"), -1);
    EXPECT_THAT(FileText(LOG), Not(HasSubstr("/bin/")));
    EXPECT_EQ(NFS_MountEx(nullptr), -1);
}
