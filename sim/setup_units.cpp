#include "setup_units.h"
#include "router.h"
#include "setup_kind.h"
#include "text.h"
#include "tree.h"
#include <iterator>
#include <vector>

static const std::string SETUP = "Engineering Setup@";
static const std::string BUS_NAMES = SETUP + "Panel@Config@External Bus Link@";
static const std::string TALLY_ENABLE = SETUP + "Tally@Tally Enable@";
static const std::string TALLY_COPY = SETUP + "Tally@Tally Copy@";
static constexpr int TALLY_GROUPS = 8;
static constexpr int ROUTER_NAMES = 128;

static constexpr const char* ON_OFF = "bool";
static constexpr const char* SOURCE_OR_NONE = "num 0 136 0";
static constexpr const char* GROUP = "num 1 8 0";
static constexpr const char* BAUD = "word 9600,19200,38400,76800,115200";
static constexpr const char* PARITY = "word None,Even,Odd";
static constexpr const char* SDI = "word Dedicated,SDI";
#define DMES "DME1,DME2,DME3,DME4"
#define MPES "MPE1,MPE2,MPE3,MPE4"
#define CHANNELS "Ch1,Ch2,Ch3,Ch4,Ch5,Ch6,Ch7,Ch8"
#define UNIT_CHANNELS                                                                              \
    "DME1 Ch1,DME1 Ch2,DME1 Ch3,DME1 Ch4,DME2 Ch1,DME2 Ch2,DME2 Ch3,DME2 Ch4,DME3 Ch1,DME3 Ch2,"   \
    "DME4 Ch1,DME4 Ch2"
#define FOUR(unit, word) unit word "1," unit word "2," unit word "3," unit word "4"
#define OF_MPES(word)                                                                              \
    FOUR("MPE1", word) "," FOUR("MPE2", word) "," FOUR("MPE3", word) "," FOUR("MPE4", word)
#define LEVELS "Level 1,Level 2,Level 3,Level 4,Level 5,Level 6,Level 7,Level 8"
#define GROUPS "Group 1,Group 2,Group 3,Group 4,Group 5,Group 6,Group 7,Group 8"
#define DEVICES "Dev1,Dev2,Dev3,Dev4,Dev5,Dev6,Dev7,Dev8,Dev9,Dev10,Dev11,Dev12"
#define SERIAL_KINDS(unit)                                                                         \
    {"DCU@Serial Port@" unit "@Protocol@$", "1..8",                                                \
     "word None,VTR,Extended VTR,Disk Recorder,DDR,P-Bus", "None"},                                \
        {"DCU@Serial Port@" unit "@Device@$", "1..8", "word None," DEVICES, "None"},               \
        {"DCU@Serial Port@" unit "@Baud Rate@$", "1..8", BAUD, "38400"},                           \
    {                                                                                              \
        "DCU@Serial Port@" unit "@Parity@$", "1..8", PARITY, "Odd"                                 \
    }
#define PARALLEL_KINDS(unit)                                                                       \
    {"DCU@Parallel Port@" unit "@Function@$", "1..32", "word None,Tally,Xpt", "None"},             \
        {"DCU@Parallel Port@" unit "@Source@$", "1..32", SOURCE_OR_NONE, "0"},                     \
    {                                                                                              \
        "DCU@Parallel Port@" unit "@Group@$", "1..32", GROUP, "1"                                  \
    }

static constexpr SetupKind kinds[] = {
    {"DME@Model@$", DMES, "num 1 8 0", "3"},
    {"DME@Config@Processing@$", DMES, "word Field,Frame", "Field"},
    {"DME@Config@Filter@$", DMES, "word Normal,Fine", "Normal"},
    {"DME@Config@Channel Config@Use@$", UNIT_CHANNELS, ON_OFF, "true"},
    {"DME@Config@Channel Config@Assign@$", UNIT_CHANNELS,
     "word Common,M/E-1,M/E-2,M/E-3,M/E-4,M/E-5,P/P", "Common"},
    {"DME@Config@Channel Config@Memory@$", UNIT_CHANNELS, "word None,Trail,Shadow", "None"},
    {"DME@Config@Freeze@Freeze@$", CHANNELS, "word Field,Frame", "Frame"},
    {"DME@Config@Freeze@Signal Loss@$", CHANNELS, "word Freeze,Black,Through", "Through"},
    {"DME@Config@Freeze@Delay@$", CHANNELS, "num 0 60 0", "0"},
    {"DME@Input@Key Input@$", CHANNELS, ON_OFF, "true"},
    {"DME@Input@Key Invert@$", CHANNELS, ON_OFF, "false"},
    {"DME@Input@Key H Pos@$", CHANNELS, "num -16 16 0", "0"},
    {"DME@Input@Key V Pos@$", CHANNELS, "num -8 8 0", "0"},
    {"DME@Input@Key Level@Process@$", CHANNELS, ON_OFF, "false"},
    {"DME@Input@Key Level@Key Clip@$", CHANNELS, "num -100 100 0", "0"},
    {"DME@Input@Key Level@Key Gain@$", CHANNELS, "num 0 200 0", "100"},
    {"DME@Output@Signal@$", "Out1,Out2,Out3,Out4,Out5,Out6,Out7,Out8",
     "word None," CHANNELS ",Combine 1-4,Combine 5-8,Monitor", "None"},
    {"DME@Output@Content@$", "Out1,Out2,Out3,Out4,Out5,Out6,Out7,Out8", "word Video,Key", "Video"},
    {"DME@Output@Clip@$", "Out1,Out2,Out3,Out4,Out5,Out6,Out7,Out8", ON_OFF, "false"},
    {"DME@Video Interface@Timing@$", DMES, "word Auto,Manual", "Auto"},
    {"DME@Video Interface@H Phase@$", DMES, "num -1100 1100 0", "0"},
    {"DME@Video Interface@V Phase@$", DMES, "num -512 512 0", "0"},
    {"DME@Video Interface@3G Level@$", DMES, "word A,B", "A"},
    {"DME@Video Interface@TBC@TBC@$", DMES, ON_OFF, "true"},
    {"DME@Video Interface@TBC@Window@$", DMES, "word 1/2 Line,1 Line,8 Lines,1 Frame", "1 Line"},
    {"DME@Video Interface@TBC@Center@$", DMES, "num -100 100 0", "0"},
    {"DME@Video Interface@TBC@Fine@$", DMES, "num -32 31 0", "0"},
    {"DME@Device Interface@SDI I/F@Input@$", UNIT_CHANNELS, SDI, "Dedicated"},
    {"DME@Device Interface@SDI I/F@Output@$", UNIT_CHANNELS, SDI, "Dedicated"},
    {"DME@Device Interface@$ GPI Input@GPI Enable", DMES, ON_OFF, "true"},
    {"DME@Device Interface@$ GPI Output@GPI Enable", DMES, ON_OFF, "true"},
    GPI_INPUT_KINDS("DME@Device Interface@DME1 GPI Input", "1..8"),
    GPI_INPUT_KINDS("DME@Device Interface@DME2 GPI Input", "1..8"),
    GPI_INPUT_KINDS("DME@Device Interface@DME3 GPI Input", "1..8"),
    GPI_INPUT_KINDS("DME@Device Interface@DME4 GPI Input", "1..8"),
    GPI_OUTPUT_KINDS("DME@Device Interface@DME1 GPI Output", "1..8"),
    GPI_OUTPUT_KINDS("DME@Device Interface@DME2 GPI Output", "1..8"),
    GPI_OUTPUT_KINDS("DME@Device Interface@DME3 GPI Output", "1..8"),
    GPI_OUTPUT_KINDS("DME@Device Interface@DME4 GPI Output", "1..8"),

    GPI_INPUT_KINDS("DCU@GPI Input@DCU1", "1..32"),
    GPI_INPUT_KINDS("DCU@GPI Input@DCU2", "1..32"),
    GPI_OUTPUT_KINDS("DCU@GPI Output@DCU1", "1..32"),
    GPI_OUTPUT_KINDS("DCU@GPI Output@DCU2", "1..32"),
    SERIAL_KINDS("DCU1"),
    SERIAL_KINDS("DCU2"),
    {"DCU@Serial Port@VTR@Time Code@$", DEVICES, "word LTC,VITC,Auto", "Auto"},
    {"DCU@Serial Port@VTR@Stop@$", DEVICES, "word Still,E-E", "Still"},
    {"DCU@Serial Port@VTR@Preroll@$", DEVICES, "num 0 30 0", "5"},
    {"DCU@Serial Port@VTR@Edit Delay@$", DEVICES, "num 0 30 0", "7"},
    {"DCU@Serial Port@Extended VTR@Var Speed@$", DEVICES, ON_OFF, "true"},
    {"DCU@Serial Port@Extended VTR@Cue Up@$", DEVICES, "word Auto,Manual", "Auto"},
    {"DCU@Serial Port@Extended VTR@Lead Time@$", DEVICES, "num 0 255 0", "0"},
    {"DCU@Serial Port@Disk Recorder@File List@$", DEVICES, ON_OFF, "true"},
    {"DCU@Serial Port@Disk Recorder@Loop@$", DEVICES, ON_OFF, "false"},
    {"DCU@Serial Port@Disk Recorder@Port@$", DEVICES, "num 1 127 0", "1"},
    {"DCU@Serial Port@Disk Recorder@Lead Time@$", DEVICES, "num 0 255 0", "0"},
    {"DCU@Serial Port@DDR@Loop@$", DEVICES, ON_OFF, "false"},
    {"DCU@Serial Port@DDR@Channel@$", DEVICES, "num 1 8 0", "1"},
    {"DCU@Serial Port@DDR@Preroll@$", DEVICES, "num 0 30 0", "0"},
    {"DCU@Serial Port@P-Bus@Trigger@$", "1..24", "word Pulse,Latch", "Pulse"},
    {"DCU@Serial Port@P-Bus@Store Recall@$", "1..24", ON_OFF, "true"},
    {"DCU@Serial Port@P-Bus@Address@$", "1..24", "num 0 255 0", "0"},
    PARALLEL_KINDS("DCU1"),
    PARALLEL_KINDS("DCU2"),

    {"Router@Config@Level Name@$", LEVELS, "any", ""},
    {"Router@Config@Area@$", LEVELS, GROUP, "1"},
    {"Router@Config@Sources@$", LEVELS, "num 0 128 0", "128"},
    {"Router@Config@Destinations@$", LEVELS, "num 0 128 0", "128"},
    {"Router@Area@Use@$", "1..8", ON_OFF, "true"},
    {"Router@Area@First Source@$", "1..8", "num 1 128 0", "1"},
    {"Router@Area@Last Source@$", "1..8", "num 1 128 0", "128"},
    {"Router@Area@First Destination@$", "1..8", "num 1 128 0", "1"},
    {"Router@Area@Last Destination@$", "1..8", "num 1 128 0", "128"},
    {"Router@Source Table@Level@$", "1..128", "word All," LEVELS, "All"},
    {"Router@Destination Table@Level@$", "1..128", "word All," LEVELS, "All"},
    {"Router@Inhibit@$", "1..128", ON_OFF, "false"},
    {"Router@External Box Assign@Type@$", "1..16", "word None,Aux Panel,Router Panel,Tally Box",
     "None"},
    {"Router@External Box Assign@Level@$", "1..16", "word All," LEVELS, "All"},
    {"Router@External Box Assign@Address@$", "1..16", "num 0 127 0", "0"},
    {"Tally@Tally Group@Color@$", GROUPS, "word Red,Green,Yellow,Blue,White", "Red"},
    {"Tally@Tally Group@Mode@$", GROUPS, "word On Air,Preview,Record,Iso", "On Air"},
    {"Tally@Tally Enable@$", "M/E-1,M/E-2,M/E-3,M/E-4,M/E-5,P/P",
     "bool;bool;bool;bool;bool;bool;bool;bool", "true,false,false,false,false,false,false,false"},
    {"Tally@Tally Enable@Aux$", "1..48", "bool;bool;bool;bool;bool;bool;bool;bool",
     "false,false,false,false,false,false,false,false"},
    {"Tally@Tally Copy@$", GROUPS, "word None," GROUPS, "None"},
    {"Tally@Wiring@Level@$", "1..136", "word " LEVELS, "Level 1"},
    {"Tally@Wiring@Destination@$", "1..136", "num 0 128 0", "0"},
    {"Tally@Serial Tally@Protocol@$", "Port1,Port2,Port3,Port4", "word None,Tally,Name,Tally+Name",
     "None"},
    {"Tally@Serial Tally@Unit@$", "Port1,Port2,Port3,Port4", "word DCU1,DCU2", "DCU1"},
    {"Tally@Serial Tally@Baud Rate@$", "Port1,Port2,Port3,Port4", BAUD, "38400"},
    {"Tally@Serial Tally@Parity@$", "Port1,Port2,Port3,Port4", PARITY, "Even"},
    {"Tally@Serial Tally@Source Assign@Group@$", "1..128", GROUP, "1"},
    {"Tally@Serial Tally@Source Assign@Source@$", "1..128", SOURCE_OR_NONE, "0"},
    {"Tally@Serial Tally@Source Assign@Port@$", "1..128", "num 1 4 0", "1"},
    {"Tally@Parallel Tally@Group@$", "1..64", GROUP, "1"},
    {"Tally@Parallel Tally@Contact@$", "1..64", "word Make,Break", "Make"},
    {"Tally@Parallel Tally@Source@$", "1..64", SOURCE_OR_NONE, "0"},

    {"MPE@Config@SCU Select@$", MPES, "num 1 2 0", "1"},
    {"MPE@Config@SWR Select@$", MPES, "num 1 2 0", "1"},
    {"MPE@Input@Auto Timing@$", OF_MPES(" In"), ON_OFF, "true"},
    {"MPE@Input@Source@$", OF_MPES(" In"), SOURCE_OR_NONE, "0"},
    {"MPE@Output@Signal@$", OF_MPES(" Out"), "word Video,Key,Monitor", "Video"},
    {"MPE@Output@H Phase@$", OF_MPES(" Out"), "num -1100 1100 0", "0"},
    {"MPE@Boards@Use@$", OF_MPES(" Slot"), ON_OFF, "true"},
};
static const SetupKinds all_kinds = {SETUP, kinds, std::size(kinds)};

// --- Names ---

struct Names {
    const char* path; // a number follows
    const char* list; // of the names that all panels show; "" none
    const char* word; // a name before it is given one
    int count;
    size_t letters;
    bool is_source = false; // of the router
};
static constexpr Names names[] = {
    {"Router@Source Table@Name@", "S-BUS Src Name List", "SRC", ROUTER_NAMES, 16, true},
    {"Router@Destination Table@Name@", "S-BUS Dst Name List", "DST", ROUTER_NAMES, 16},
    {"Router@Config@Level Name@Level ", "", "LEVEL", 8, 8},
    {"Tally@Tally Group@Name@Group ", "", "TALLY", TALLY_GROUPS, 8},
};
static constexpr const char* router_numbers[] = {"Router@Source Table@Input@",
                                                 "Router@Destination Table@Output@"};

void SetupUnits_Install()
{
    SetupKind_Install(all_kinds);
    for (const Names& of : names)
        for (int n = 1; n <= of.count; ++n) {
            const std::string name = of.word + std::to_string(n);
            Tree_Preset(SETUP + of.path + std::to_string(n), name);
        }
    for (const char* path : router_numbers)
        for (int n = 1; n <= ROUTER_NAMES; ++n) {
            if (Node* const node = Tree_Get(SETUP + path + std::to_string(n)))
                node->type = SetupKind_Type("num 1 128 0");
            Tree_Preset(SETUP + path + std::to_string(n), std::to_string(n));
        }
    for (int n = 1; n <= TALLY_GROUPS; ++n)
        Tree_Preset(SETUP + Text_Format("Tally@Tally Group@Priority@Group %d", n),
                    std::to_string(n));
    for (const std::string& unit : Text_Split(MPES, ',')) {
        const std::string at = SETUP + "MPE@Boards@Board@" + unit;
        Tree_Preset(at + " Slot1", "PROC-1");
        Tree_Preset(at + " Slot2", "PROC-2");
        Tree_Preset(at + " Slot3", "I/O");
        Tree_Preset(at + " Slot4", "---");
    }
}

// All panels call a source or destination of the router by its name.
static bool put_name(const Names& of, const std::string& path, const std::string& value)
{
    long n = 0;
    if (!Text_ToInt(path.substr(SETUP.size() + std::string(of.path).size()), &n) || n < 1 ||
        n > of.count || value.size() > of.letters)
        return SetupKind_Refuse(path, value);
    const std::string before = Tree_Get(path)->value;
    Tree_Show(path, value);
    if (*of.list)
        Tree_ShowRow(BUS_NAMES + of.list, std::to_string(n) + "," + value);
    if (of.is_source && !before.empty() && !value.empty())
        Router_Rename(before, value);
    return true;
}

// --- Changes ---

// The buses of one group become those of another; the wish itself is over then.
static bool copy_group(const std::string& path, const std::string& value)
{
    long to = 0, from = 0;
    if (!Text_ToInt(path.substr(path.rfind(' ') + 1), &to) || !Text_Begins(value, "Group ") ||
        !Text_ToInt(value.substr(6), &from) || to < 1 || to > TALLY_GROUPS || from < 1 ||
        from > TALLY_GROUPS)
        return SetupKind_Refuse(path, value);
    for (const Node* const node : Tree_Under(SETUP + "Tally@Tally Enable")) {
        auto part = Text_Split(node->value, ',');
        if (part.size() != TALLY_GROUPS)
            continue;
        part[size_t(to) - 1] = part[size_t(from) - 1];
        std::string line;
        for (const std::string& text : part)
            line += (line.empty() ? "" : ",") + text;
        Tree_Show(node->path, line);
    }
    return true;
}

// A device hangs on one port.
static void take_device(const std::string& path, const std::string& device)
{
    for (const char* unit : {"DCU1", "DCU2"})
        for (int n = 1; n <= 8; ++n) {
            const std::string of = SETUP + Text_Format("DCU@Serial Port@%s@Device@%d", unit, n);
            const Node* const node = Tree_Find(of);
            if (node && of != path && node->value == device && device != "None")
                Tree_Show(of, "None");
        }
}

static bool fire(const std::string& path)
{
    for (const char* unit : {"DME1", "DME2", "DME3", "DME4"})
        if (SetupKind_Fire(std::string(unit) + " ",
                           SETUP + "DME@Device Interface@" + unit + " GPI Output", path))
            return true;
    for (const char* unit : {"DCU1", "DCU2"})
        if (SetupKind_Fire(std::string(unit) + " ", SETUP + "DCU@GPI Output@" + unit, path))
            return true;
    return false;
}

bool SetupUnits_Put(const std::string& path, const std::string& value)
{
    if (fire(path))
        return true;
    if (Text_Begins(path, TALLY_COPY))
        return copy_group(path, value);
    for (const Names& of : names)
        if (Text_Begins(path, SETUP + of.path))
            return put_name(of, path, value);
    if (Text_MatchesPath(path, SETUP + "DCU@Serial Port@*@Device@*"))
        take_device(path, value);
    return SetupKind_Put(all_kinds, path, value);
}
