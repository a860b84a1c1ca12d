#include "setup_panel_config.h"
#include "setup_kind.h"
#include "setup_list.h"
#include "text.h"
#include "tree.h"
#include <iterator>

static const std::string PANEL = "Engineering Setup@Panel@";

#define BANKS "M/E-1,M/E-2,M/E-3,M/E-4,M/E-5,P/P"
#define BUS_ROWS BANKS ",1st AUX,2nd AUX"
#define ROWS8 "1st Row,2nd Row,3rd Row,4th Row,5th Row,6th Row,7th Row,8th Row"
#define ROWS ROWS8 ",9th Row,10th Row,11th Row,12th Row,13th Row,14th Row"
#define REGIONS                                                                                    \
    BANKS ",User1,User2,User3,User4,User5,User6,User7,User8,DME1,DME2,DME3,DME4,DME5,DME6,DME7,"   \
          "DME8"
#define MODULE "word FP,KT,TR,--"
#define MODULES MODULE ";" MODULE ";" MODULE ";" MODULE
#define KY_UNIT "Config@Compact Key Module Assign@KY Unit Config@$"
#define SIDES "word Main,Sub,Main/Sub"
#define PERCENT "num 0 100 0"
#define LAMPS "word Red,Amber,Yellow,Green,Blue,White"
#define LIGHTS "Xpt Buttons,Other Buttons,Source Names,Indicators,Goose Light"
#define DIALS                                                                                      \
    "Joystick X,Joystick Y,Joystick Z,Trackball X,Trackball Y,Z Ring,Rotary Encoder,Fader,Search " \
    "Dial"
#define UTIL_BUS "word None,Key1,Key2,Key3,Key4,Utility 1,Utility 2,DME Video,DME Ext"
#define CUSTOM                                                                                     \
    "word NO ASSIGN,Next Trans All,Bkgd Only,Trans Preview,Key Preview,Split,Xpt Hold,Clip "       \
    "Trans,Macro Take,Undo,Menu Page Jump,Region Select,Panel Lock"
#define PORTS "Remote1,Remote2,Remote3,Remote4"
#define SIDE "word Input,Output"
#define PAD "Operation@Xpt Module Operation@Flexi Pad Button@"

static constexpr const char* pad_buses[] = {
    "P/P",       "M/E-1",     "M/E-2",     "M/E-3",     "M/E-4",     "M/E-5",   "P/P SUB",
    "M/E-1 SUB", "M/E-2 SUB", "M/E-3 SUB", "M/E-4 SUB", "M/E-5 SUB", "1st AUX", "2nd AUX"};
static constexpr int PAD_PAGES = 4;
static constexpr int PAD_BUTTONS = 8;

static constexpr SetupKind settings[] = {
    {"Config@External Bus Link@Link Matrix Adjust@Name@$", "1..8", "any", "Matrix $"},
    {"Config@External Bus Link@Link Matrix Adjust@Level@$", "1..8", "word 1,2,3,4,5,6,7,8,All",
     "All"},
    {"Config@External Bus Link@Link Matrix Adjust@Offset@$", "1..8", "num 0 1023 0", "0"},
    {"Config@MP2 Main/Sub Assign@Main/Sub Assign@$", ROWS, SIDES, "Main"},
    {"Config@DSK Fader Assign@Bank@$", "1..4", "word " BANKS ",None", "P/P"},
    {"Config@DSK Fader Assign@Key@$", "1..4", "word Key1,Key2,Key3,Key4,Key5,Key6,Key7,Key8",
     "Key$"},
    {"Config@DSK Fader Assign@Mode@$", "1..4", "word Key,Key Pri,FTB", "Key"},
    {"Config@DSK Fader Assign@Fader Assign@Fader@$", ROWS, "word Transition,Key Trans,Effect,None",
     "Transition"},
    {"Config@DSK Fader Assign@Fader Assign@Side@$", ROWS, SIDES, "Main"},
    {KY_UNIT, "0..5", MODULES ";" MODULES, "FP,KT,TR,--,--,--,--,--"},
    {KY_UNIT, "6..13", MODULES ";" MODULES, "--,--,--,--,--,--,--,--"},
    {"Config@Compact Key Module Assign@Extension Port@Module@$", "1..8",
     "word None,Flexi Pad,Key Trans,Transition,Xpt,Joystick,Device Ctrl", "None"},
    {"Config@Compact Key Module Assign@Extension Port@Panel Row@$", "1..8", "num 1 14 0", "1"},
    {"Config@Reference Module@Reference@$",
     "Transition,Key Trans,Flexi Pad,Xpt,Device Control,Joystick,Shotbox,Multi Module",
     "word " ROWS8, "1st Row"},
    {"Config@Reference Module@Follow@$",
     "Transition,Key Trans,Flexi Pad,Xpt,Device Control,Joystick,Shotbox,Multi Module", "bool",
     "true"},
    {"Config@M/E Operation@$", BANKS, "word Enable,Disable,Inhibit", "Enable"},
    {"Config@Operation Inhibit@Joystick/Trackball@$",
     "Joystick X,Joystick Y,Joystick Z,Trackball X,Trackball Y,Z Ring", "bool", "true"},

    {"Device Interface@Protocol@$", PORTS, "word None,Editor,AUX,Peripheral,Tally", "None"},
    {"Device Interface@Baud Rate@$", PORTS, "word 9600,19200,38400,76800,115200", "38400"},
    {"Device Interface@Parity@$", PORTS, "word None,Even,Odd", "Odd"},
    GPI_INPUT_KINDS("Device Interface@GPI Input", "1..8"),
    {"Device Interface@GPI Input@H/L Set@Function@$", "1..8",
     "word None,FC Input/Output,Aux Bus Tie,Menu Lock", "None"},
    {"Device Interface@GPI Input@H/L Set@High@$", "1..8", "word On,Off", "On"},
    {"Device Interface@GPI Input@H/L Set@Low@$", "1..8", "word On,Off", "Off"},
    {"Device Interface@GPI Input@H/L Set@FC Input/Output@$", "1..8",
     "word None,FC1,FC2,FC3,FC4,FC5,FC6,FC7,FC8;" SIDE ";" SIDE, "None,Input,Output"},
    GPI_OUTPUT_KINDS("Device Interface@GPI Output", "1..8"),
    {"Device Interface@DCU Serial Port Assign@Device@Dev$", "1..12",
     "word None,VTR,Disk Recorder,Extended VTR,Still Store,Audio Mixer", "None"},
    {"Device Interface@DCU Serial Port Assign@DCU@Dev$", "1..12", "num 1 2 0", "1"},
    {"Device Interface@DCU Serial Port Assign@Port@Dev$", "1..12", "num 1 18 0", "$"},

    {"Operation@$", "Menu Follow,Xpt Hold Follow,Next Trans Reset,Double Press", "bool", "false"},
    {"Operation@Effect Mode@Recall@$", REGIONS, "word Stop,Auto Run", "Stop"},
    {"Operation@Effect Mode@At End@$", REGIONS, "word Stay,Rewind", "Stay"},
    {"Operation@Effect Mode@Loop@$", REGIONS, "bool", "false"},
    {"Operation@Flexi Pad Mode@Mode@$", ROWS8, "word Standard,Snapshot,Effect,Wipe,Macro,Shotbox",
     "Standard"},
    {"Operation@Flexi Pad Mode@Recall@$", ROWS8, "word Direct,2 Digits", "Direct"},
    {"Operation@Flexi Pad Mode@Bank@$", ROWS8, "word Common,Each", "Common"},
    {"Operation@Macro@$",
     "Auto Insert,Event Merge,Attach Enable,Take by Pause,Recall Confirm,Menu Macro Link", "bool",
     "false"},
    {"Operation@Sensitivity@Sensitivity@$", DIALS, "num 1 100 0", "50"},
    {"Operation@Sensitivity@Direction@$", DIALS, "word Normal,Reverse", "Normal"},
    {"Operation@Sensitivity@Search Dial@Sensitivity@$", "Jog,Shuttle,Variable", "num 1 100 0",
     "50"},
    {"Operation@Sensitivity@Search Dial@Max Speed@$", "Jog,Shuttle,Variable", "num 1 60 0", "10"},
    {"Operation@Custom Button@Function@$", "1..16", CUSTOM, "NO ASSIGN"},
    {"Operation@Custom Button@Mode@$", "1..16", "word Hold,Latch", "Latch"},
    {"Operation@Custom Button@Next Trans All@Bkgd@$", BANKS, "bool", "true"},
    {"Operation@Button Tally@On@$",
     "Xpt On Air,Xpt Preset,Key On,Next Trans,Delegation,Aux,Register,Macro,Utility", LAMPS, "Red"},
    {"Operation@Button Tally@Off@$",
     "Xpt On Air,Xpt Preset,Key On,Next Trans,Delegation,Aux,Register,Macro,Utility", LAMPS,
     "Amber"},
    {"Operation@Button Tally@Dim@$",
     "Xpt On Air,Xpt Preset,Key On,Next Trans,Delegation,Aux,Register,Macro,Utility", PERCENT,
     "30"},
    {"Operation@Key Row Operation@Key Row@$", ROWS8, "word Key Bus,Aux Bus,Utility Bus,Macro",
     "Key Bus"},
    {"Operation@Key Row Operation@Follow@$", ROWS8, "bool", "true"},
    {"Operation@Key Row Operation@Key Deleg Aux Assign@Aux Assign@Key$", "1..8", "bool", "false"},
    {"Operation@Key Row Operation@Key Deleg Aux Assign@Aux Bus@Key$", "1..8", "num 1 48 0", "$"},
    {"Operation@Xpt Module Operation@Util Button Bus Assign@Util 1@$", BUS_ROWS, UTIL_BUS,
     "Utility 1"},
    {"Operation@Xpt Module Operation@Util Button Bus Assign@Util 2@$", BUS_ROWS, UTIL_BUS,
     "Utility 2"},
    {"Operation@Display Mode@Display@$", BUS_ROWS, "word Source Name,Button No,Name/No,Off",
     "Source Name"},
    {"Operation@Display Mode@Color@$", BUS_ROWS, "bool", "true"},
    {"Operation@Display Mode@Bright@$", BUS_ROWS, PERCENT, "70"},

    {"Maintenance@Brightness@$", LIGHTS, PERCENT, "70"},
    {"Maintenance@$", "Lamp Test", "bool", "false"},
};

static constexpr SetupList lists[] = {
    {"Config@Key Trans Link", "1..24", "key|key|bool", "None,None,false"},
    {"Config@External Bus Link@Link", "1..32", "any|any|num 1 8 0|bool", "None,None,1,false"},
    {"Config@External Bus Link@Table", "1..64",
     "num 1 1024 0|num 1 1024 0|num 1 1024 0|num 1 1024 0|num 1 1024 0|num 1 1024 0|num 1 1024 0|"
     "num 1 1024 0",
     "$,$,$,$,$,$,$,$"},
};

static const SetupKinds kinds = {PANEL, settings, std::size(settings)};

// --- Start ---

static void install_next_keys()
{
    for (const std::string& bank : SetupKind_Rows(BANKS))
        for (int key = 1; key <= 8; ++key) {
            const std::string path =
                PANEL +
                Text_Format("Operation@Custom Button@Next Trans All@Key%d@%s", key, bank.c_str());
            if (Node* const node = Tree_Get(path))
                node->type.kind = KIND_BOOL;
            Tree_Preset(path, "true");
        }
}

static void install_priority()
{
    int place = 0;
    for (const std::string& region : SetupKind_Rows(REGIONS)) {
        const std::string path = PANEL + "Operation@Region Priority@" + std::to_string(++place);
        if (Node* const node = Tree_Get(path))
            node->type = SetupKind_Type("word " REGIONS);
        Tree_Preset(path, region);
    }
}

static void install_pads()
{
    static constexpr const char* functions[PAD_BUTTONS] = {
        "Key", "Wipe", "DME Wipe", "Snapshot", "Master Effect", "Shotbox", "Macro", "NO ASSIGN"};
    for (const char* bus : pad_buses)
        for (int page = 1; page <= PAD_PAGES; ++page) {
            const std::string place = Text_Format("%s@%d", bus, page);
            for (int button = 1; button <= PAD_BUTTONS; ++button)
                Tree_Preset(PANEL + PAD "Assign@" + place + "@" + std::to_string(button),
                            functions[button - 1]);
            Tree_Preset(PANEL + PAD "Page Name@" + place, Text_Format("Page %d", page));
            const std::string jump = PANEL + PAD "Page Jump@" + place;
            if (Node* const node = Tree_Get(jump))
                node->type = SetupKind_Type("word None,Page 1,Page 2,Page 3,Page 4");
            Tree_Preset(jump, "None");
        }
}

void SetupPanelConfig_Install()
{
    SetupKind_Install(kinds);
    SetupList_Install(PANEL, lists);
    for (const std::string& row : SetupKind_Rows(ROWS))
        if (Node* const node = Tree_Get(PANEL + "Config@M/E Assign@" + row))
            node->type = SetupKind_Type("word " BUS_ROWS ",None");
    install_next_keys();
    install_priority();
    install_pads();
}

// --- Changes ---

// "...@Assign@BUS@Default@1#true": all pages of the bus.
static bool put_pad_default(const std::string& path, const std::string& value)
{
    const std::string bus = path.substr(0, path.rfind("@Default@"));
    for (const Node* node : Tree_Under(bus))
        if (value == "true")
            Tree_Show(node->path, node->initial);
    return true;
}

static bool put_pad(const std::string& path, const std::string& value)
{
    constexpr size_t name_max = 16;
    if (!Tree_Find(path) || value.empty() || value.size() > name_max)
        return SetupKind_Refuse(path, value);
    Tree_Show(path, value);
    return true;
}

bool SetupPanelConfig_Put(const std::string& path, const std::string& value)
{
    if (SetupKind_Fire("panel ", PANEL + "Device Interface@GPI Output", path))
        return true;
    if (Text_MatchesPath(path, PANEL + PAD "Assign@*@Default@1"))
        return put_pad_default(path, value);
    if (Text_MatchesPath(path, PANEL + PAD "Assign@*@*@*"))
        return put_pad(path, value);
    return SetupKind_Put(kinds, path, value) || SetupList_Refuse(PANEL, lists, path, value);
}
