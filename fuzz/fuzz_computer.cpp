// What this computer says of itself, and the command of automation that has a text: version files,
// the EEPROM, the output of df and of the search for the panel, "nfsmount.cmd", the list of wipe
// pictures, cpuinfo. Whatever stands there, what is shown is printable text that ends, a sum is
// right again after a write, nothing is mounted that is not one word, and a picture is listed only
// under a number that a line of the list is. The first byte chooses which.
#include "drive_check.h"
#include "fmctrl_private.h"
#include "global.h"
#include "graphics.h"
#include "i2c.h"
#include "selfdiag.h"
#include "start.h"
#include "storage.h"
#include "text.h"
#include "touch.h"
#include "version.h"
#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

template <size_t N> static void CheckText(const char (&text)[N])
{
    const size_t length = strnlen(text, N);
    Check(length < N);
    for (size_t i = 0; i < length; i++)
        Check(!iscntrl(uint8_t(text[i])));
}

static void Versions(const char*)
{
    Version_Read();
    CheckText(GL_Version);
    CheckText(GL_VerTime);
    for (int row = 0; row < GL_DetailInfoMax; row++) {
        CheckText(GL_MenuDetailInfo[row]);
        CheckText(GL_MenuDetailInfoFull[row]);
    }
}

// The system's EEPROM: who the unit is and how long it has worked.
static void Eeprom(const char* path)
{
    constexpr int SYS_DEVICE = 0x53;
    constexpr int HOUR_MS = 3600 * 1000;
    unsigned char bytes[256] = {};
    std::ifstream(path, std::ios::binary).read(reinterpret_cast<char*>(bytes), sizeof bytes);
    i2c_address_set(SYS_DEVICE);
    Check(i2c_open() == 0 && i2c_wr(0, sizeof bytes, bytes) == int(sizeof bytes));
    i2c_close();
    Start_Identity();
    CheckText(SYS_StatusHubAddress);
    Check(SYS_StatusHubPort >= 0 && SYS_StatusHubPort <= 65535);
    SelfDiag_Init();
    SelfDiag_I2C_Update(HOUR_MS + 1);
    Check(I2cEepromService_IsCrc32Valid(3) == 1);
}

static void Df(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    std::string first, second;
    const bool has_two = std::getline(file, first) && std::getline(file, second);
    const bool is_cut = first.size() >= PATH_SIZE - 1; // no df has such a head
    Check(DriveCheck_IsMissing(path) || is_cut || (has_two && second[0] == '/'));
}

static void Panel(const char* path)
{
    char name[PATH_SIZE] = "";
    if (Touch_DeviceName(name, sizeof name)) {
        const size_t length = strnlen(name, sizeof name);
        Check(length > 0 && length < sizeof name);
        for (size_t i = 0; i < length; i++)
            Check(uint8_t(name[i]) >= ' ');
    }
    Check(access(path, F_OK) != 0);
}

// Without a server nothing is mounted, whatever is asked for, and it is said once.
static void NfsMount(const char* path)
{
    fm_ftp_pass(1000);
    Check(access(path, F_OK) != 0 && !GL_NFS_Mounted);
    std::ifstream answer("/tmp/FTPIF/Command/nfsmount.res");
    Check(std::string(std::istreambuf_iterator<char>(answer), {}) == "Error\n");
}

// The sizes of a drive, of which the last line tells.
static void Sizes(const char* path)
{
    FILE* const fp = fopen(path, "re");
    Check(fp);
    DfSizes sizes = {.total_mb = -7, .used_mb = -7, .free_mb = -7};
    const bool is_read = Storage_ReadDf(fp, &sizes);
    (void)fclose(fp);
    Check(is_read || (sizes.total_mb == -7 && sizes.used_mb == -7 && sizes.free_mb == -7));
}

static std::string TextOf(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

static void WipePictures(const char* path)
{
    FreeGraphics();
    Check(WipePtn_ReadList(path));
    const std::string text = "\n" + TextOf(path) + "\n";
    for (int n = 0; n < WIPE_PTN_MAX; n++) {
        if (!WipePtn_IsListed(n))
            continue;
        const size_t at = text.find("\n" + std::to_string(n));
        Check(at != std::string::npos);
    }
}

static void Cpu(const char* path)
{
    constexpr size_t LINE = 255;
    const bool is_named = Storage_NamesMPU302(path) != 0;
    std::string text = TextOf(path);
    for (char& c : text)
        c = char(toupper(uint8_t(c)));
    const bool has_name =
        text.find("MPU302") != std::string::npos || text.find("MPU-302") != std::string::npos;
    Check(!is_named || has_name);
    if (text.size() < LINE && text.find('\0') == std::string::npos)
        Check(is_named == has_name);
}

static constexpr struct {
    const char* path;
    void (*read)(const char* path);
} files[] = {
    {"/root/version_app.dat", Versions}, {"/root/version_linux.dat", Versions},
    {"/var/tmp/eeprom", Eeprom},         {"/var/tmp/df", Df},
    {"/var/tmp/tslist", Panel},          {"/tmp/FTPIF/Command/nfsmount.cmd", NfsMount},
    {"/var/tmp/sizes", Sizes},           {"/var/tmp/ptn_list", WipePictures},
    {"/var/tmp/cpuinfo", Cpu},
};

static void Begin()
{
    std::filesystem::create_directories("/tmp/FTPIF/Command");
    CopyText(GL_NFS_Server, ""); // nobody is asked
    while (!fm_drop_is_set_up()) {
        fm_drop_pass(10);
        usleep(1000);
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool is_begun = (Begin(), true);
    if (!is_begun || size < 1)
        return 0;
    const auto& file = files[data[0] % std::size(files)];
    std::ofstream(file.path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data + 1), std::streamsize(size - 1));
    file.read(file.path);
    return 0;
}
