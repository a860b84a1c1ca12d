#include "version.h"
#include "global.h"
#include "i2c.h"
#include "month.h"
#include "process.h"
#include "safe_file.h"
#include "text.h"
#include <cctype>
#include <cstdio>
#include <cstring>

#include "safeguards.h"

char GL_MenuDetailInfoTitle[DETAIL_INFO_ROWS][256];
char GL_MenuDetailInfo[DETAIL_INFO_ROWS][256];
char GL_MenuDetailInfoFull[DETAIL_INFO_ROWS][256];
int GL_DetailInfoMax = 0;
char GL_Version[256] = "--";
char GL_VerTime[256] = "--";
int GL_DetailInfoFull = 0;

namespace
{
enum : int { ROW_APP = 0, ROW_FPGA = 3 };

struct VersionFile {
    const char* title = nullptr;
    const char* path = nullptr;
};
constexpr VersionFile version_files[] = {
    // rows 0 to 2
    {.title = "QRD-X62-MENU-APP", .path = "/root/version_app.dat"},
    {.title = "QRD-X62-MENU-LINUX", .path = "/root/version_linux.dat"},
    {.title = "QRD-X62-MENU-UBOOT", .path = "/root/version_uboot.dat"},
};
static_assert(sizeof version_files / sizeof version_files[0] == ROW_FPGA);

// Registers of the FPGA: major, minor, build, spare; then the date as BCD: year (two bytes), month,
// day.
constexpr int FPGA_DEVICE = 82;
constexpr int FPGA_VERSION = 20;
constexpr int FPGA_DATE = 24;
} // namespace

void Strip_VersionStr(char* dst, const char* src, int size)
{
    if (size < 1)
        return;
    char text[256];
    CopyText(text, src);
    if (char* build = strchr(text, '#')) {
        const char* rest = build + strcspn(build, " \t(");
        memmove(build, rest, strlen(rest) + 1);
    }
    ktr_strncpy(dst, text, size_t(size));
}

// The first line of a version file up to its first control character. False when there is none.
static bool version_read(const char* path, char (&text)[256])
{
    FILE* fp = fopen(path, "r");
    if (!fp)
        return false;
    const bool has_line = fgets(text, sizeof text, fp) != nullptr;
    fclose(fp);
    if (!has_line)
        return false;
    char* end = text;
    while (*end && !iscntrl(uint8_t(*end)))
        end++;
    *end = '\0';
    return true;
}

// "5.10" of "Version 5.10#3 (Mar.01.2013)": the first word that begins with a digit.
static void version_number(const char* text)
{
    for (const char* p = text; *p; p += strcspn(p, " \t")) {
        p += strspn(p, " \t");
        if (!isdigit(uint8_t(*p)))
            continue;
        strncpy_secu(GL_Version, p, sizeof GL_Version, strcspn(p, " #\t("));
        return;
    }
}

static void version_time(const char* text)
{
    const char* from = strchr(text, '(');
    const char* to = from ? strchr(from, ')') : nullptr;
    if (to)
        strncpy_secu(GL_VerTime, from + 1, sizeof GL_VerTime, size_t(to - from - 1));
}

static void version_read_files()
{
    for (int row = 0; row < ROW_FPGA; row++) {
        const VersionFile& file = version_files[row];
        CopyText(GL_MenuDetailInfoTitle[row], file.title);
        char text[256];
        if (!version_read(file.path, text))
            continue;
        CopyText(GL_MenuDetailInfoFull[row], text);
        Strip_VersionStr(GL_MenuDetailInfo[row], text, sizeof GL_MenuDetailInfo[row]);
        if (row != ROW_APP)
            continue;
        version_number(text);
        version_time(text);
    }
}

static const char* version_month(unsigned char bcd)
{
    return Month_Name((bcd >> 4) * 10 + (bcd & 0x0F));
}

// Registers that cannot be read count as 0; without the bus the row stays "--".
static void version_read_fpga()
{
    CopyText(GL_MenuDetailInfoTitle[ROW_FPGA], "QRD-X62-MENU-FPGA");
    GL_DetailInfoMax = ROW_FPGA + 1;
    unsigned char v[4] = {}, d[4] = {};
    i2c_address_set(FPGA_DEVICE);
    if (i2c_open() != 0)
        return;
    (void)i2c_rd(FPGA_VERSION, sizeof v, v);
    (void)i2c_rd(FPGA_DATE, sizeof d, d);
    i2c_close();
    const char* month = version_month(d[2]);
    PrintText(GL_MenuDetailInfoFull[ROW_FPGA], "Version %X.%02X#%X (%s.%02X.%02X%02X)", v[0], v[1],
              v[2], month, d[3], d[0], d[1]);
    PrintText(GL_MenuDetailInfo[ROW_FPGA], "Version %X.%02X (%s.%02X.%02X%02X)", v[0], v[1], month,
              d[3], d[0], d[1]);
}

// The other units collect these files from /var/tmp/version2.
static void version_publish()
{
    ktr_system("/bin/mkdir -p /var/tmp/version2");
    char path[PATH_SIZE];
    PrintText(path, "/var/tmp/version2/GUI%d", SYS_UnitID);
    SafeFile file;
    if (SafeFile_Open(file, path) != 0)
        return;
    fprintf(file.fp, "QRD-X62: %s\n", GL_MenuDetailInfoFull[ROW_APP]);
    for (int row = 0; row < GL_DetailInfoMax; row++)
        fprintf(file.fp, "%s: %s\n", GL_MenuDetailInfoTitle[row], GL_MenuDetailInfoFull[row]);
    // Each start makes it anew. Without it the others miss a version, which the log tells.
    (void)SafeFile_CommitUnsynced(file);
}

void Version_Read()
{
    for (int row = 0; row < DETAIL_INFO_ROWS; row++) {
        CopyText(GL_MenuDetailInfoTitle[row], "--");
        CopyText(GL_MenuDetailInfo[row], "--");
        CopyText(GL_MenuDetailInfoFull[row], "--");
    }
    CopyText(GL_Version, "--");
    CopyText(GL_VerTime, "--");
    GL_DetailInfoMax = ROW_FPGA;
    version_read_files();
    version_read_fpga();
}

void GetMenuDetailInfo()
{
    Version_Read();
    version_publish();
    ktr_system("/bin/mkdir -p /var/run/XPP");
    ktr_system("/bin/touch /var/run/XPP/version_updated");
    ktr_shell("/usr/bin/version-sync &");
}
