// Names from outside: each line of the input is a path that a search tells, a row of a directory
// list and a row of the frames' headers. What a path is read as makes a path again that is read as
// the same; what a list takes in could be said in a command.
#include "device.h"
#include "file.h"
#include "file_dir.h"
#include "file_name.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "pc_file_fieldinvert.h"
#include "text.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void CheckPath(const char* path, int grp)
{
    constexpr int FRAMES = 23; // what stands in the name of a frame is shown otherwise
    FILEINFO first = {.grp = grp};
    const int result = name2info(path, &first);
    if (result != 0) {
        Check(first.name[0] == '\0' && first.no == 0);
        return;
    }
    Check(strlen(first.name) < FILE_NAME_SIZE && first.no >= 0);
    for (const int drive : {FILE_REGISTER, FILE_LOCAL, FILE_REMOVABLE}) {
        char again[FILE_PATH_SIZE];
        Check(info2name(first, again, drive, "SHOW", sizeof again) == 0);
        Check(!strchr(again, ',') && strlen(again) < sizeof again);
        FILEINFO second = {.grp = grp};
        if (drive == FILE_REGISTER || grp == FRAMES)
            continue; // the remote place has no folder of a unit
        Check(name2info(again, &second) == 0);
        Check(second.main == first.main && second.sub == first.sub && second.no == first.no &&
              second.device == first.device);
        char third[FILE_PATH_SIZE];
        Check(info2name(second, third, drive, "SHOW", sizeof third) == 0);
        Check(strcmp(third, again) == 0);
    }
}

static void CheckFrame(const char* row)
{
    FILELIST_FI frame;
    if (File_ReadFrameRow(row, "MYHOST:/d/", &frame) == 0)
        Check(strncmp(frame.cell.path, "/d/", 3) == 0 && !strstr(frame.cell.path, "/../") &&
              frame.number[0] && frame.cell.name[0]);
}

static void Take(const char* path, const std::string& value)
{
    FileProc(MSG_TALLY, Arg(path), Arg(value.c_str()), 0, 0);
}

static void CheckDirectories()
{
    int count = 0;
    const DIRINFO* const row = File_DirList(FILE_LOCAL, &count);
    Check(count >= 1 && count <= DIRLIST_HDD_MAX);
    for (int i = 0; i < count; i++)
        Check(row[i].name[0] && row[i].name[0] != '.' && strlen(row[i].name) < FILE_DIR_SIZE &&
              !strpbrk(row[i].name, "/,") && !File_DirIsAutoload(FILE_LOCAL, row[i].name));
}

static void Begin()
{
    Device_Init();
    DeviceStructure();
    SYS_FmemV6 = 1;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool is_begun = (Begin(), true);
    (void)is_begun;
    File_Reset();
    File_DirReset();
    Check(File_DirRead(
              FILE_LOCAL, [](int) {}, 0) == 0);
    Take("File@Access@ListDir", "L1,7");
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        const std::string line = text.substr(at, std::min<size_t>(end - at, 1000));
        at = end + 1;
        for (int grp = 0; grp < FILE_GROUPS; grp++)
            CheckPath(line.c_str(), grp);
        CheckFrame(line.c_str());
        Take("File@Access@ListDir@Status", "7," + line + ",Wed Nov 25 10:30:00 2026");
    }
    Take("File@Access@ListDir@Status", "7,OK");
    CheckDirectories();
    File_Reset();
    char sent[CMD_SIZE];
    while (Net_TakeQueued(sent, sizeof sent)) {
    }
    return 0;
}
