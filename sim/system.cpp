#include "system.h"
#include "attach.h"
#include "clip_output.h"
#include "copy_swap.h"
#include "device_bus.h"
#include "device_vtr.h"
#include "diag.h"
#include "dissolve.h"
#include "dme_channels.h"
#include "file_job.h"
#include "frame_memory.h"
#include "hub.h"
#include "link.h"
#include "log.h"
#include "macro.h"
#include "region.h"
#include "router.h"
#include "rules.h"
#include "setup.h"
#include "setup_panel.h"
#include "setup_panel_config.h"
#include "setup_switcher_io.h"
#include "setup_units.h"
#include "sp.h"
#include "store.h"
#include "stream.h"
#include "text.h"
#include "timeline.h"
#include "transition.h"
#include "tree.h"
#include "verbs.h"
#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace
{
// One value for several paths: PATH, PATH@A and PATH@B for "A,B", PATH@1 to PATH@9 for "1..9".
struct Preset {
    const char* path = "";
    const char* each = "";
    const char* value = "";
};

// A path that answers with several lines.
struct Rows {
    const char* path = "";
    bool kill_first = false;
    std::vector<std::string> rows;
    int key_fields = 1;
};

struct Step {
    int unit = 0; // 0 the whole server; 1, 2 switchers; 3 to 6 effects units
    const char* word = "";
    int after_ms = 0; // since the step before
};

struct Announcement {
    int client = 0;
    size_t step = 0; // next in steps
    int64_t due_ms = 0;
};
} // namespace

static struct {
    std::vector<Announcement> announcements; // under way
    std::vector<int> asked;                  // clients that want them
    int lost = 0; // of those that went without a word: the next to connect is one of them
} sy;

static constexpr const char* FORMAT_SWR1 = "Engineering Setup@System@Format@Video Format@SWR1";
static constexpr const char* BANKS = "M/E-1,M/E-2,M/E-3,M/E-4,M/E-5,P/P";
static constexpr const char* PNLS = "PNL1,PNL2";
static constexpr const char* SWRS = "SWR1,SWR2";
static constexpr const char* DMES = "DME1,DME2,DME3,DME4";
static constexpr const char* ALL_UNITS = "PNL1,PNL2,SWR1,SWR2,DME1,DME2,DME3,DME4,MPE1";

// Models are numbered from 1 in the order of their class.
static const Preset presets[] = {
    {"CONNECT@Status", "", "OK"},
    {"TopMenu", "", ""}, // an event, a hardware key: never a state to come back to
    {"Info@IP Address@Menu CPU", "", "192.168.10.1"}, // the last digit is the number of the panel
    {"Info@Processor Status", "1..6", "OK"},

    {"Engineering Setup@System@System Config@System Operation Mode", PNLS, "Single Proc"},
    {"Engineering Setup@System@System Config@Setup Target", "", "0"}, // the first switcher
    {"Engineering Setup@System@System Config@S-Bus Remote", "", "false"},
    {"Engineering Setup@System@Format@Video Format", ALL_UNITS, "29.97/59.94,1080i"},
    {"Engineering Setup@System@Format@Video Format2", SWRS, "3,6,0"}, // size, frequency, scan
    {"Engineering Setup@System@Format@Reference", "SWR1,SWR2,DME1,DME2,DME3,DME4,PNL1,PNL2", "BB"},
    {"Engineering Setup@System@Format@3D Mode", "SWR1,SWR2,DME1,DME2,DME3,DME4", "Off"},
    {"Engineering Setup@System@Format@4K Mode", "", "Off"},
    {"Info@Board Config@Unit Model", PNLS, "8"}, // the large panel: the small one lacks functions
    {"Info@Board Config@Unit Model", SWRS, "10"},
    // An entry for each place; 0 is an empty one.
    {"Info@Board Config@Board Exist Set",
     "SWR1@EEPROM,SWR1@Auto Scan,SWR2@EEPROM,SWR2@Auto Scan,DME1,DME2,DME3,DME4",
     "1,1,1,1,1,1,1,1"},
    {"Info@Board Config@Board Exist Set", PNLS, "1"}, // the option word: fitted with the option
    {"Engineering Setup@MPE@Model", "MPE1", "1"},
    {"Info@Self Diagnosis Notice@MPE Status", "MPE1", "0,0"}, // the state of its two references
    {"MPE@Fx@Channel@Selected", "", "F"},                     // masks of channels, hexadecimal
    {"MPE@Fx@Channel@Reference", "", "00000001"},             // binary, channel 1 last
    {"16@Engineering Setup@System@Install@Unit Config@CCR Config", "", "4"},
    {"32@Engineering Setup@System@Install@Unit Config@CCR Config", "", "4"},
    {"Engineering Setup@System@Install@Unit Config@M/E Split", "", "1,1,1,1,1"}, // a number a board

    {"Engineering Setup@Panel@Config@M/E Operation", BANKS, "Enable"},
    {"Engineering Setup@Panel@Config@M/E Assign", "1st Row", "M/E-1"},
    {"Engineering Setup@Panel@Config@M/E Assign", "2nd Row", "M/E-2"},
    {"Engineering Setup@Panel@Config@M/E Assign", "3rd Row", "M/E-3"},
    {"Engineering Setup@Panel@Config@M/E Assign", "4th Row", "P/P"},
    {"Engineering Setup@Panel@Config@M/E Assign", "5th Row", "M/E-4"},
    {"Engineering Setup@Panel@Config@M/E Assign", "6th Row", "M/E-5"},
    {"Engineering Setup@Panel@Config@M/E Assign", "7th Row", "1st AUX"},
    {"Engineering Setup@Panel@Config@M/E Assign", "8th Row", "2nd AUX"},
    {"Engineering Setup@Panel@Config@M/E Assign",
     "9th Row,10th Row,11th Row,12th Row,13th Row,14th Row", "None"},
    {"Engineering Setup@Panel@Config@MP2 Main/Sub Assign@Main/Sub Assign",
     "1st Row,2nd Row,3rd Row,4th Row,5th Row,6th Row,7th Row,8th Row,9th Row,10th Row,11th Row,"
     "12th Row,13th Row,14th Row",
     "Main"},
    {"Engineering Setup@Switcher@Config@M/E Config", BANKS, "Standard"},
    {"Engineering Setup@Switcher@Config@User1-8 Config", "User1", "Aux1,Aux2,FM1,FM2,FM3,FM4"},
    {"Engineering Setup@Switcher@Config@User1-8 Config", "User2", "Aux3,Aux4,FM5,FM6,FM7,FM8"},
    {"Engineering Setup@Switcher@Key/Wipe@FM Auto Store", "", "false"},
    {"Engineering Setup@Switcher@SDI I/F", DMES, "Dedicated"},
    {"Engineering Setup@Switcher@Config@DME Wipe Sub Enable", "", "false"},
    {"Engineering Setup@Switcher@Config@MP2 Re-Entry", "", "false"},
    {"Engineering Setup@Switcher@Key/Wipe/FM/CCR@CCR Intrnl Signl Enbl", "", "false"},

    {"Key Frame@DME User PGM@Transition Mode", "101..199", "0"}, // single
    {"Key Frame@DME User PGM@Transition Mode", "201..299", "1"}, // dual
    {"Info@DME@RefCH", "", "1"},
    {"Info@DME@SelCH", "", "1"},
    {"Info@Xpt Button Count", "", "32"},
    {"Info@Operation Setup Data@Screen Saver", "", "0"},
    {"Info@Operation Setup Data@Touch Buzz", "", "1"},
    {"Info@Operation Setup Data@Import Path", "", "/mnt/usb/usb1/"},
    {"Info@Operation Setup Data@Timeline Display Priority", "", "0"},
    {"Info@Operation Setup Data@Error Status", "", "1"},
    {"Info@Operation Setup Data@Initial Menu Set", "", "00110000"},
    {"Info@Operation Setup Data@SRAM Map KeyCode", "", "true"},
    {"Info@Operation Setup Data@Usb Auto Scan", "", "true"},
    {"Info@Operation Setup Data@Color Select", "1..12", "0"},
    {"Info@Operation Setup Data@Mouse Wheel Direction", "", "Scrl Up Clockwise"},
    {"Info@Operation Setup Data@Mouse Slider Control", "", "Right Button"},
    {"Info@System Setup Data@File Auto Convert", "", "false"},
    {"Info@System Setup Data@NFS Enable", "", "false"},
    {"Info@System Setup Data@NFS Server", "", "192.168.10.100"},
    {"Info@System Setup Data@NFS Mount Point", "", "/ktrfiles"},
    {"Info@System Setup Data@NFS Mount Option", "", "retrans=5,soft,nolock"},
    {"Info@System Setup Data@File Load Lock", "", "00000000"},
    {"Info@System Setup Data@Panel Operation Log", "", "2"},
    {"Info@System Setup Data@FM Data Port Disable", SWRS, "0,0"},

    {"16@Frame Mem@External HDD@Busy", "", "false"},
    {"32@Frame Mem@External HDD@Busy", "", "false"},
};

// Units: id, name, control, data and peripheral address. Switchers of a panel, effects units of a
// switcher: 0 none.
static const Rows lists[] = {
    {"Engineering Setup@System@Network Config@List",
     true,
     {
         "PNL001D001,PNL1,192.168.10.1,192.168.20.1,192.168.30.1",
         "PNL002D002,PNL2,192.168.10.2,192.168.20.2,192.168.30.2",
         "SWR001D001,SWR1,192.168.10.11,192.168.20.11,192.168.30.11",
         "SWR002D002,SWR2,192.168.10.12,192.168.20.12,192.168.30.12",
         "DME001D001,DME1,192.168.10.21,192.168.20.21,192.168.30.21",
         "DME002D002,DME2,192.168.10.22,192.168.20.22,192.168.30.22",
         "DME003D003,DME3,192.168.10.23,192.168.20.23,192.168.30.23",
         "DME004D004,DME4,192.168.10.24,192.168.20.24,192.168.30.24",
         "MPE001D001,MPE1,192.168.10.31,192.168.20.31,192.168.30.31",
     }},
    {"Engineering Setup@System@System Config@Panel Assign", true, {"1,1,0,0,0,0", "2,2,0,0,0,0"}},
    {"Engineering Setup@System@System Config@Switcher Assign", true, {"1,1,2,0,0", "2,3,4,0,0"}},
    {"Engineering Setup@System@Format@Switcher Aspect",
     false,
     {"SWR1,16:9,16:9,16:9,16:9,16:9,16:9,16:9", "SWR2,16:9,16:9,16:9,16:9,16:9,16:9,16:9"}},
    {"Engineering Setup@System@Format@DME Aspect",
     false,
     {"DME1,16:9,16:9,16:9,16:9", "DME2,16:9,16:9,16:9,16:9", "DME3,16:9,16:9,16:9,16:9",
      "DME4,16:9,16:9,16:9,16:9"}},
    {"Info@Operation Setup Data@Timeline Region Display", false, {}},
    {"Info@Operation Setup Data@Timeline Region Priority", false, {}},
    {"Engineering Setup@System@Format@FC Format", false, {}},
    {"Engineering Setup@Switcher@Config@M/E Output Assign@List", true, {}, 2},
    {"Engineering Setup@Switcher@Config@PGM Config@List", true, {}, 2},
    {"Engineering Setup@Panel@Xpt Assign@Button No", false, {}},
};

// The ten-key buttons 1 to 23 and the region on each.
static const char* const tenkey_regions[] = {
    "M/E-1", "M/E-2", "M/E-3", "P/P",   "User1", "User2", "User3", "User4",
    "User5", "User6", "User7", "User8", "DME1",  "DME2",  "DME3",  "DME4",
    "DME5",  "DME6",  "DME7",  "DME8",  "P-Bus", "GPI",   "MACRO",
};

// The whole server begins first and ends last: its end is the panels' sign to ask for everything.
static constexpr Step steps[] = {
    {0, "start", 20}, {1, "start", 20}, {2, "start", 20}, {3, "start", 20}, {4, "start", 20},
    {5, "start", 20}, {6, "start", 20}, {1, "end", 100},  {2, "end", 40},   {3, "end", 40},
    {4, "end", 40},   {5, "end", 40},   {6, "end", 40},   {0, "end", 100},
};

// --- The installation ---

static void sys_preset(const Preset& preset)
{
    const std::string path = preset.path;
    const std::string each = preset.each;
    const size_t dots = each.find("..");
    if (each.empty()) {
        Tree_Preset(path, preset.value);
    } else if (dots != std::string::npos) {
        const int last = atoi(each.c_str() + dots + 2);
        for (int n = atoi(each.c_str()); n <= last; ++n)
            Tree_Preset(path + "@" + std::to_string(n), preset.value);
    } else {
        for (const std::string& word : Text_Split(each, ','))
            Tree_Preset(path + "@" + word, preset.value);
    }
}

static void sys_list(const std::string& path, const std::vector<std::string>& rows, bool kill_first,
                     int key_fields = 1)
{
    Tree_SetList(path, rows, key_fields);
    if (Node* node = Tree_Get(path))
        node->kill_first = kill_first;
}

static std::vector<std::string> sys_numbered(const char* word, int first, int last)
{
    std::vector<std::string> rows;
    for (int n = first; n <= last; ++n)
        rows.push_back(Text_Format("%d,%s%d", n, word, n));
    return rows;
}

// Sources, buses and which source lies on which crosspoint button (video, key).
static void sys_crosspoints()
{
    sys_list("Engineering Setup@Panel@Xpt Assign@Source@List", sys_numbered("CAM", 1, 40), false);
    std::vector<std::string> buttons;
    for (int n = 1; n <= 32; ++n)
        buttons.push_back(Text_Format("%d,%d,%d", n, n, n));
    for (int n = 1; n <= 32; ++n) // of the sub side, counted on
        buttons.push_back(Text_Format("%d,%d,%d", 128 + n, n, n));
    sys_list("Engineering Setup@Panel@Xpt Assign@Assign", buttons, false);
    const std::string ext = "Engineering Setup@Panel@Config@External Bus Link@";
    sys_list(ext + "Master Bus List", sys_numbered("BUS", 1, 16), false);
    sys_list(ext + "S-BUS Src Name List", sys_numbered("SRC", 1, 64), false);
    sys_list(ext + "S-BUS Dst Name List", sys_numbered("DST", 1, 64), false);
}

static void sys_tenkeys()
{
    int n = 0;
    for (const char* region : tenkey_regions) {
        ++n;
        Tree_Preset("Engineering Setup@Panel@Config@10 Key Region Assign@Common@Region@Common@" +
                        std::to_string(n),
                    Text_Format("%d,0,%s,,,", n, region));
    }
}

void System_Install()
{
    for (const Preset& preset : presets)
        sys_preset(preset);
    for (const Rows& list : lists)
        sys_list(list.path, list.rows, list.kill_first, list.key_fields);
    sys_crosspoints();
    sys_tenkeys();
    Timeline_Install();
    Store_Install();
    Attach_Install();
    Macro_Install();
    ClipOutput_Install();
    FrameMemory_Install();
    Transition_Install();
    CopySwap_Install();
    Dissolve_Install();
    Dme_Install();
    Rules_Install();
    Router_Install();
    DeviceVtr_Install();
    DeviceBus_Install();
    Sp_Install();
    Setup_Install();
    SetupPanel_Install();
    SetupPanelConfig_Install();
    SetupSwitcherIo_Install();
    SetupUnits_Install();
    Diag_Install();
}

bool System_PutMpe(const std::string& path, const std::string& digits)
{
    const bool is_mask = digits.size() == 8 && digits.find_first_not_of("01") == std::string::npos;
    if (is_mask)
        Tree_Show(path, digits);
    return true; // anything else is answered with the old one
}

// Put as a decimal number, told in hexadecimal.
bool System_PutDmeChannels(const std::string& path, const std::string& number)
{
    const long mask = strtol(number.c_str(), nullptr, 10);
    char text[16];
    snprintf(text, sizeof text, "%lX", mask);
    if (mask > 0 && mask <= 0xFF)
        Tree_Show(path, text);
    return true; // anything else is answered with the old one
}

// The processors are numbered from the panel's own on: 1 panel, 2 switcher, 3 to 6 effects units.
// What runs on a unit stops with it.
void System_SetDme(int unit, bool is_up)
{
    Tree_Show("Info@Processor Status@" + std::to_string(unit + 2), is_up ? "OK" : "NG");
    std::vector<int> gone;
    for (int i = 0; i < REGION_COUNT; ++i)
        if (Regions()[size_t(i)].unit == unit)
            gone.push_back(i);
    Timeline_Rewind(gone);
}

int System_FrameRate()
{
    static const struct {
        const char* frequency;
        int frames;
    } rates[] = {
        {"30/60,", 30}, {"29.97/59.94,", 30}, {"25/50,", 25}, {"24,", 24}, {"23.976,", 24}};
    const Node* node = Tree_Find(FORMAT_SWR1);
    for (const auto& rate : rates)
        if (node && Text_Begins(node->value, rate.frequency))
            return rate.frames;
    return 60;
}

// --- The announcement ---

static void sys_announce(int client)
{
    std::erase_if(sy.announcements, [client](const auto& a) { return a.client == client; });
    Link_SendLine(client, "CONNECT@Status#OK");
    sy.announcements.push_back({client, 0, Now_Ms() + steps[0].after_ms});
}

// True when the client had asked.
static bool sys_forget(int client)
{
    std::erase_if(sy.announcements, [client](const auto& a) { return a.client == client; });
    return std::erase(sy.asked, client) > 0;
}

void System_Announce(int client, bool on)
{
    (void)sys_forget(client); // asking twice is asking once
    if (!on)
        return;
    sy.asked.push_back(client);
    sys_announce(client);
}

void System_Connected(int client)
{
    if (sy.lost == 0)
        return;
    --sy.lost;
    System_Announce(client, true);
}

void System_Lost(int client)
{
    if (sys_forget(client))
        ++sy.lost;
}

void System_Restart()
{
    Log_Note("restart");
    sy.announcements.clear();
    Verb_Forget();
    Stream_Forget();
    FileJob_Forget();
    Hub_Restart();
    Tree_Clear();
    System_Install();
    for (const int client : Link_Clients(LINK_TEXT)) {
        Link_SendLine(client, "CONNECT@Status#NG");
        sys_announce(client);
    }
}

int64_t System_Tick(int64_t now)
{
    int64_t next = INT64_MAX;
    for (Announcement& a : sy.announcements) {
        while (a.step < std::size(steps) && a.due_ms <= now) {
            const Step& step = steps[a.step++];
            Link_SendLine(a.client,
                          Text_Format("Info@Initial Read Status#%d,%s", step.unit, step.word));
            if (a.step < std::size(steps))
                a.due_ms += steps[a.step].after_ms;
        }
        if (a.step < std::size(steps))
            next = std::min(next, a.due_ms);
    }
    std::erase_if(sy.announcements, [](const auto& a) { return a.step == std::size(steps); });
    return next;
}
