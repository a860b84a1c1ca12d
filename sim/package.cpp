#include "package.h"
#include "drive.h"
#include "log.h"

namespace
{
struct File {
    const char* path = "";
    const char* text = "";
};
struct Bitmap {
    const char* path = "";
    int width = 0; // pixels
    int height = 0;
    uint32_t colour = 0;
};
} // namespace

static const std::string STICK = "/mnt/usb/usb1/";
static const std::string DEVICE = "/var/tmp/device/";

static constexpr File packages[] = {
    {"KTR40X_UP/install.cfg",
     "TITLE\tKTR40X Upgrade\r\nVERSION 6.00 (Nov.02.2026)\r\nTARGET SWR\r\n"
     "SPUT swr.bin /tmp/\r\nEXECS swr_update %UID time\r\nEXECS_BG swr_update %UID -b\r\n"
     "EXECS_BG ktrPwsUpdate %UID\r\nREBOOT\r\n"},
    {"KTR40X_UP/swr.bin", "software of a switcher"},
    {"KTR40G_UP/install.cfg",
     "TITLE KTR40G Upgrade\nVERSION 5.10\nTARGET SWR\nSPUT swr.bin /tmp/\nEXECS swr_update %UID\n"},
    {"KTR40G_UP/swr.bin", "software of another switcher"},
    {"MENU/install.cfg",
     "TITLE Menu Full\nVERSION 5.11\nTARGET MENU\nINSTALL menu.bin APP 5.11\n"
     "INSTALL linux.bin LINUX 2.11\nFPGA fpga.bin 3\nEXEC date >/var/tmp/installed\n"},
    {"MENU/menu.bin", "the menu"},
    {"MENU/linux.bin", "its system"},
    {"MENU/fpga.bin", "its gates"},
    {"PANEL/install.cfg",
     "TITLE Panel Upgrade\nVERSION 2.02\nTARGET PNL\nPUT panel.bin\nEXECS panel_update %UID\n"},
    {"PANEL/panel.bin", "software of a panel"},
    {"BROKEN/install.cfg",
     "TITLE SCS Upgrade\nVERSION 3.00\nTARGET SCS\nCOLOR red\nEXECS scs_update\nPUT missing.bin\n"},
};

static constexpr Bitmap bitmaps[] = {
    {"Texture/BRICK.bmp", 256, 256, 0x8E3B3B},   {"Texture/CANVAS.bmp", 256, 128, 0xB6A878},
    {"Texture/GOLD.bmp", 64, 64, 0xC8A020},      {"Texture/MARBLE.bmp", 512, 64, 0xC0C0C8},
    {"Texture/WATER.bmp", 512, 512, 0x33609C},   {"Texture/WOOD.bmp", 128, 256, 0x7E5A22},
    {"Texture/HOLIDAY.bmp", 720, 486, 0x3B7A3F},
};

static constexpr File versions[] = {
    {"SCS1", "SCS: Version 2.40#1 (Mar.01.2026)\n"},
    {"PNC010100", "PNL: Version 2.00#4 (Feb.11.2026)\n"},
    {"SWR010100", "SWR: Version 5.09#3 (Mar.01.2026)\n"},
    {"DME010100", "DME: Version 4.31#2 (Jan.20.2026)\n"},
    {"SIU010100", "DCU: Version 1.12#1 (Jan.08.2026)\n"},
};

static bool put(const std::string& path, const std::string& bytes)
{
    Place place;
    if (!Drive_Place("MYHOST:" + path, &place))
        return false;
    std::string trouble = Drive_MakeParents(place.local);
    if (trouble.empty())
        trouble = Drive_Write(place.local, bytes);
    if (!trouble.empty())
        Log_Note("package: %s: %s", path.c_str(), trouble.c_str());
    return trouble.empty();
}

// 24 bits, its lines from below, with a frame a little darker.
static std::string bitmap_bytes(const Bitmap& b)
{
    const int line = (b.width * 3 + 3) / 4 * 4;
    std::string bytes(54 + size_t(line) * size_t(b.height), '\0');
    const auto word = [&](size_t at, uint32_t value) {
        for (size_t i = 0; i < 4; ++i)
            bytes[at + i] = char(value >> 8 * i);
    };
    bytes[0] = 'B';
    bytes[1] = 'M';
    word(2, uint32_t(bytes.size()));
    word(10, 54);
    word(14, 40);
    word(18, uint32_t(b.width));
    word(22, uint32_t(b.height));
    word(26, 1 | 24 << 16);
    for (int y = 0; y < b.height; ++y)
        for (int x = 0; x < b.width; ++x) {
            const bool is_frame = x < 4 || y < 4 || x >= b.width - 4 || y >= b.height - 4;
            const uint32_t colour = is_frame ? b.colour >> 1 & 0x7F7F7F : b.colour;
            for (int i = 0; i < 3; ++i)
                bytes[54 + size_t(y * line + x * 3 + i)] = char(colour >> 8 * i);
        }
    return bytes;
}

bool Package_Put()
{
    bool is_good = Drive_HasStick();
    for (const File& file : packages)
        is_good = is_good && put(STICK + file.path, file.text);
    for (const Bitmap& b : bitmaps)
        is_good = is_good && put(STICK + b.path, bitmap_bytes(b));
    return Package_PutVersions() && is_good;
}

bool Package_PutVersions()
{
    bool is_good = true;
    for (const File& file : versions)
        is_good = is_good && put(std::string("/var/tmp/version1/") + file.path, file.text);
    return is_good;
}

bool Package_Fail(const std::string& script, int status, int calls)
{
    std::string lines;
    for (int i = 0; i < calls; ++i)
        lines += std::to_string(status) + "\n";
    return put(DEVICE + script, lines);
}
