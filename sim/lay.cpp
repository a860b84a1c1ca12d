#include "lay.h"
#include "clip_store.h"
#include "drive.h"
#include "log.h"
#include "package.h"
#include "picture.h"
#include "unit_file.h"
#include <set>

static constexpr const char* folders[] = {
    "/mnt/data/user/root/SYSTEM",
    "/var/nfs/user/root/SYSTEM",
    "/var/tmp/FMXfer",
    "/var/tmp/XPORT",
    "/var/tmp/FILE",
};

// A picture with a key in it takes two registers.
static constexpr struct {
    const char* file;
    const char* kind;
    bool has_key;
} pictures[] = {
    {"beach.BMP", "BMP", false},
    {"lower3rd.TGA", "TGA", true},
    {"skyline.TIF", "TIF", false},
    {"bug.PNG", "PNG", true},
};

static Picture lay_picture(const std::string& name, bool has_key)
{
    Picture picture = Picture_Draw(name, 320, 180);
    picture.has_alpha = has_key;
    for (size_t i = 0; has_key && i < picture.pixels.size(); ++i) {
        const bool is_seen = int(i) / picture.width > picture.height / 2;
        picture.pixels[i] = (is_seen ? 0xFF000000 : 0) | (picture.pixels[i] & 0xFFFFFF);
    }
    return picture;
}

static void lay_pictures()
{
    for (const auto& picture : pictures) {
        Place place;
        std::string bytes;
        const std::string name = picture.file;
        if (!Drive_Place("MYHOST:/mnt/usb/usb1/IMPORT/" + name, &place) ||
            Drive_IsFile(place.local))
            continue;
        const Picture drawn = lay_picture(name.substr(0, name.find('.')), picture.has_key);
        if (Picture_Write(picture.kind, drawn, &bytes) && !Drive_Write(place.local, bytes).empty())
            Log_Note("no picture %s", picture.file);
    }
}

// Menu macros of the panel itself, as it keeps them: a show opens and closes.
static constexpr const char* MENU_MACROS = "MYHOST:/mnt/data/Menu_Macro_tmp";
static constexpr struct {
    const char* file;
    const char* text;
} menu_macros[] = {
    {"mm_reg01.tmp", "Header:OPENING,0,4\nInterval:500\n"
                     "DME CH:00000000,00000000\nEvent:put M/E-1@Key1@Type@Key Type#Luminance\n"
                     "DME CH:00000000,00000000\nEvent:put M/E-1@Key1@Edge@Edge#Border\n"
                     "DME CH:00000000,00000000\nPause:2.0\n"
                     "DME CH:00000000,00000000\nEvent:put M/E-1@Misc@Transition@Transition "
                     "Rate#50\n"},
    {"mm_reg02.tmp", "Header:CLOSING,1,2\nInterval:200\n"
                     "DME CH:00000000,00000000\nEvent:put M/E-1@Key1@Edge@Edge#Normal\n"
                     "DME CH:00000000,00000000\nEvent:put M/E-1@Misc@Transition@Transition "
                     "Rate#30\n"},
};

// An operator's own, and that he has none, stay.
static void lay_menu_macros()
{
    Place folder;
    if (!Drive_Place(MENU_MACROS, &folder) || Drive_IsFolder(folder.local))
        return;
    (void)Drive_MakeFolder(folder.local); // the writing tells
    for (const auto& macro : menu_macros)
        if (!Drive_Write(folder.local + "/" + macro.file, macro.text).empty())
            Log_Note("no menu macro %s", macro.file);
}

static constexpr const char* LOCAL_SHOW = "MYHOST:/mnt/data/user/root/SYSTEM/";
static constexpr const char* STICK_SHOW = "MYHOST:/mnt/usb/usb1/SYSTEM/"; // from another truck
static constexpr struct {
    const char* show;
    const char* category;
    const char* file;
} setups[] = {
    {LOCAL_SHOW, "USRSETUP", "MATCH.DEV_0000.SUS"}, {LOCAL_SHOW, "USRSETUP", "MATCH.DEV_0000.SUN"},
    {LOCAL_SHOW, "USRSETUP", "MATCH.DEV_0000.SUP"}, {LOCAL_SHOW, "FMNAME", "MATCH.DEV_0000.SFR"},
    {LOCAL_SHOW, "FMNAME", "NEWS.DEV_0001.SFR"},    {STICK_SHOW, "USRSETUP", "TRUCK2.DEV_0000.SUN"},
};

static void lay_setup(const std::string& folder, const std::string& name)
{
    UnitFile file;
    std::string bytes;
    if (!UnitFile_Parse(name, &file) || !UnitFile_Make(HOST_SWR, 1, file, &bytes) ||
        !Drive_Write(folder + "/" + name, bytes).empty())
        Log_Note("no setup %s", name.c_str());
}

// A category that an operator has saved or cleared stays.
void Lay_Setups()
{
    Place category;
    std::set<std::string> made;
    for (const auto& setup : setups) {
        if (!Drive_Place(std::string(setup.show) + setup.category, &category) ||
            (!made.count(category.local) && Drive_IsFolder(category.local)))
            continue;
        const std::string folder = category.local + "/SWR000D001";
        made.insert(category.local);
        (void)Drive_MakeFolder(folder); // the writing tells
        lay_setup(folder, setup.file);
    }
}

void Lay_Desk()
{
    for (const char* folder : folders) {
        Place place;
        if (!Drive_Place(std::string("MYHOST:") + folder, &place) ||
            !Drive_MakeFolder(place.local).empty())
            Log_Note("no folder %s", folder);
    }
    if (Drive_PutStick(true))
        lay_pictures();
    lay_menu_macros();
    (void)Package_PutVersions(); // the log tells
    ClipStore_Lay();
}
