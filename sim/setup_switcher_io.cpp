#include "setup_switcher_io.h"
#include "setup_kind.h"
#include "text.h"
#include "tree.h"
#include <iterator>
#include <vector>

static const std::string SWITCHER = "Engineering Setup@Switcher@";
static const std::string OUTPUT = SWITCHER + "Output@";
static const std::string SOURCES = "Engineering Setup@Panel@Xpt Assign@Source@List";
static const std::string GPI_OUTPUT = SWITCHER + "Device Interface@GPI Output";
static constexpr int OUTPUTS = 48;
static constexpr const char* SOURCES_MAX = "num 1 136 0";

static constexpr const char* ON_OFF = "word On,Off";
static constexpr const char* CONVERT = "word Through,Up,Down,Cross";
static constexpr const char* FC_FORMAT = "word 480i,576i,720p,1080i,1080PsF,1080p,2160p";
static constexpr const char* OUTPUT_OR_NONE = "num 0 48 0";
static constexpr const char* SIDE = "word Input,Output";
static constexpr const char* SIZE_4K = "word 3840x2160,4096x2160";
static constexpr const char* BOARDS = "FC1,FC2,FC3,FC4";
static constexpr const char* PORTS = "Remote1,Remote2,Remote3,Remote4";
static constexpr const char* UNITS = "DME1,DME2,DME3,DME4";
static constexpr const char* QUADS = "1-4,5-8,9-12,13-16,17-20,21-24,25-28,29-32,33-36,37-40,41-44,"
                                     "45-48";
static constexpr const char* PAIRS = "1/2,3/4,5/6,7/8,9/10,11/12,13/14,15/16,17/18,19/20,21/22,"
                                     "23/24";

static constexpr SetupKind kinds[] = {
    {"Input@Auto Timing@$", "1..136", ON_OFF, "On"},
    {"Input@H Phase@$", "1..136", "num -200 200 0", "0"},
    {"Input@FC Input Select@$", BOARDS, "word 1-4,5-8,9-12,13-16,17-20,21-24,25-28,29-32", "1-4"},
    {"Input@Internal FC@Convert Mode@$", "1..8", CONVERT, "Through"},
    {"Input@Internal FC@Format@$", "1..8", FC_FORMAT, "1080i"},
    {"Input@4K Active Size@$", QUADS, SIZE_4K, "3840x2160"},
    {"Input@Video Process@Video Process@$", "1..136", ON_OFF, "Off"},
    {"Input@Video Process@Video Gain@$", "1..136", "num 0 200 0", "100"},
    {"Input@Video Process@Y Gain@$", "1..136", "num 0 200 0", "100"},
    {"Input@Video Process@C Gain@$", "1..136", "num 0 200 0", "100"},
    {"Input@Video Process@Hue Delay@$", "1..136", "num -180 180 0", "0"},
    {"Input@Video Process@Black Level@$", "1..136", "num -10 110 0", "0"},
    {"Input@CCR@CCR@$", "CCR1,CCR2,CCR3,CCR4", ON_OFF, "Off"},
    {"Input@CCR@Input@$", "CCR1,CCR2,CCR3,CCR4", SOURCES_MAX, "1"},

    {"Output@Crop@Crop@$", "1..48", ON_OFF, "Off"},
    {"Output@Crop@Left@$", "1..48", "num 0 50 0", "0"},
    {"Output@Crop@Right@$", "1..48", "num 0 50 0", "0"},
    {"Output@Crop@Top@$", "1..48", "num 0 50 0", "0"},
    {"Output@Crop@Bottom@$", "1..48", "num 0 50 0", "0"},
    {"Output@V Blank@V Blank@$", "1..48", "word Through,Blank", "Through"},
    {"Output@V Blank@Last Line@$", "1..48", "num 10 22 0", "20"},
    {"Output@Video Clip@Clip@$", "1..48", ON_OFF, "Off"},
    {"Output@Video Clip@White@$", "1..48", "num 90 109 0", "109"},
    {"Output@Video Clip@Dark@$", "1..48", "num -7 10 0", "-7"},
    {"Output@Video Clip@Chroma@$", "1..48", "num 90 112 0", "112"},
    {"Output@Safe Title@Safe Title@$", "1..48", ON_OFF, "Off"},
    {"Output@Safe Title@Area@$", "1..48", "word 16:9,14:9,4:3", "16:9"},
    {"Output@Safe Title@Title@$", "1..48", "num 50 100 0", "80"},
    {"Output@Safe Title@Action@$", "1..48", "num 50 100 0", "90"},
    {"Output@4K Active Size@$", QUADS, SIZE_4K, "3840x2160"},
    {"Output@FC Output Assign@$", "1..8", OUTPUT_OR_NONE, "0"},
    {"Output@FC Output Select@$", BOARDS, SIDE, "Input"},
    {"Output@Internal FC@Output@$", "1..8", OUTPUT_OR_NONE, "0"},
    {"Output@Internal FC@FC Config@Convert Mode@$", "1..8", CONVERT, "Through"},
    {"Output@Internal FC@FC Config@Side@$", "1..8", SIDE, "Output"},
    {"Output@Internal FC@FC Format@$", "1..8", FC_FORMAT, "1080i"},
    {"Output@Multi Viewer@Layout@$", "MV1,MV2", "word 4,9,10,13,16", "4"},
    {"Output@Multi Viewer@Label@$", "MV1,MV2", ON_OFF, "On"},
    {"Output@Multi Viewer@Tally@$", "MV1,MV2", ON_OFF, "On"},
    {"Output@Multi Viewer@Output@$", "MV1,MV2", OUTPUT_OR_NONE, "0"},

    {"Device Interface@Protocol@$", PORTS, "word None,Editor,AUX,Peripheral,Tally", "None"},
    {"Device Interface@Baud Rate@$", PORTS, "word 9600,19200,38400,76800,115200", "38400"},
    {"Device Interface@Parity@$", PORTS, "word None,Even,Odd", "Odd"},
    {"Device Interface@Remote Assign@$", PORTS, "word None,M/E-1,M/E-2,M/E-3,M/E-4,M/E-5,P/P,AUX",
     "None"},
    {"Device Interface@AUX Control@Control@$", "1..48", "word Panel,AUX Panel,Both", "Both"},
    {"Device Interface@AUX Control@AUX Panel@$", "1..48", "num 0 16 0", "0"},
    {"Device Interface@DME Type@$", UNITS, "word None,Single,Dual,Quad", "Quad"},
    {"SDI I/F@$", UNITS, "word Dedicated,SDI", "Dedicated"},
    {"Device Interface@PC Editor I/F@Interface@$", "Editor1,Editor2", "word None,LAN,Serial",
     "None"},
    {"Device Interface@PC Editor I/F@M/E@$", "Editor1,Editor2", "num 0 5 0", "0"},
    {"Device Interface@AUX Mix@Mix@$", PAIRS, ON_OFF, "Off"},
    {"Device Interface@AUX Mix@Rate@$", PAIRS, "num 0 999 0", "30"},

    GPI_INPUT_KINDS("Device Interface@GPI Input", "1..8"),
    {"Device Interface@GPI Input@H/L Set@Function@$", "1..8",
     "word None,FC Input/Output,Aux Bus Tie,Menu Lock", "None"},
    {"Device Interface@GPI Input@H/L Set@High@$", "1..8", ON_OFF, "On"},
    {"Device Interface@GPI Input@H/L Set@Low@$", "1..8", ON_OFF, "Off"},
    {"Device Interface@GPI Input@H/L Set@FC Input/Output@$", "1..8",
     "word None,FC1,FC2,FC3,FC4,FC5,FC6,FC7,FC8;word Input,Output;word Input,Output",
     "None,Input,Output"},
    {"Input@FC Adjust@FC Signal $", "Format", "num 0 4 0;num 0 5 0;num 0 4 0", "3,2,0"},
    {"Input@FC Adjust 3G@FC Signal $", "Format", "num 0 4 0;num 0 5 0;num 0 4 0", "3,2,0"},
    {"Input@4K Adjust@FC Signal $", "Format", "num 0 4 0;num 0 5 0;num 0 4 0", "4,1,0"},
    {"Output@FC Adjust@FC Signal $", "Format", "num 0 4 0;num 0 5 0;num 0 4 0", "3,2,0"},
    GPI_OUTPUT_KINDS("Device Interface@GPI Output", "1..8"),
};
static const SetupKinds all_kinds = {SWITCHER, kinds, std::size(kinds)};

// Converters: inputs from 0, each with these words.
static constexpr struct {
    const char* page;
    int inputs;
} converters[] = {
    {"Input@FC Adjust@", 16},
    {"Input@FC Adjust 3G@", 8},
    {"Input@4K Adjust@", 8},
    {"Output@FC Adjust@", 16},
};
static constexpr struct {
    const char* word;
    const char* type;
    const char* start;
} converter_words[] = {
    {"Convert Mode", "num 0 3 0", "0"},
    {"Motion Sel", "num 1 5 0", "3"},
    {"Aspect", "num 0 1 0", "0"},
    {"Aspect Type", "word Edge Crop,Letter Box,Squeeze", "Edge Crop"},
    {"EC Pos", "num -100 100 0", "0"},
    {"EC Pos Mode", "num 0 1 0", "0"},
    {"LB Pos", "num -100 100 0", "0"},
    {"LB Pos Mode", "num 0 1 0", "0"},
    {"Enhancer Mode", "num 0 1 0", "0"},
    {"Detail Gain", "num 0 100 0", "50"},
    {"Crisp", "num 0 100 0", "0"},
    {"Level", "num 0 100 0", "0"},
    {"Limiter", "num 0 100 0", "100"},
    {"Freq", "num 0 100 0", "50"},
    {"H/V", "num 0 100 0", "50"},
    {"EC Pos Center", "bool", "true"},
    {"LB Pos Center", "bool", "true"},
    {"Division", "num 0 1 0", "0"},
    {"IP", "num 0 1 0", "0"},
};

static void install_converters()
{
    for (const auto& converter : converters)
        for (const auto& word : converter_words)
            for (int n = 0; n < converter.inputs; ++n) {
                const std::string path =
                    SWITCHER + converter.page + word.word + "@" + std::to_string(n);
                if (Node* const node = Tree_Get(path))
                    node->type = SetupKind_Type(word.type);
                Tree_Preset(path, word.start);
            }
}

void SetupSwitcherIo_Install()
{
    install_converters();
    SetupKind_Install(all_kinds);
    for (int n = 1; n <= 4; ++n)
        Tree_Preset(SWITCHER + Text_Format("Input@FC Input Select@FC%d", n),
                    Text_Format("%d-%d", 4 * n - 3, 4 * n));
    for (int n = 1; n <= 136; ++n)
        Tree_Preset(SWITCHER + Text_Format("Input@Source Name@%d", n),
                    n <= 40 ? Text_Format("CAM%d", n) : "");
    int number = 100;
    for (const char* bank : {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P"})
        for (int out = 1; out <= 6; ++out, ++number)
            Tree_Preset(OUTPUT + Text_Format("Re-Entry Assign@%s Out%d", bank, out),
                        Text_Format("%d,%s-%d", number, bank, out));
    for (int n = 1; n <= 32; ++n)
        Tree_Preset(OUTPUT + Text_Format("Multi Viewer@Output Assign@MV%d-%d", (n - 1) / 16 + 1,
                                         (n - 1) % 16 + 1),
                    Text_Format("%d,OUT%d", n, n));
    std::vector<std::string> inhibits;
    for (int n = 1; n <= OUTPUTS; ++n)
        inhibits.push_back(Text_Format("%d,false", n));
    Tree_SetList(OUTPUT + "Inhibit", inhibits, 1);
}

// --- Changes ---

static std::string row_of(const std::string& list, const std::string& key)
{
    if (const Node* const node = Tree_Find(list))
        for (const std::string& row : node->rows)
            if (Text_Begins(row, key + ","))
                return row.substr(key.size() + 1);
    return "";
}

// What carries a signal goes by its name: the buses of the keys, the outputs.
static void rename_signal(const std::string& from, const std::string& to)
{
    static constexpr const char* named[] = {"**@Signal Select@*", "**@Status@Source Name"};
    // Also those that nobody has asked for yet: they have the signal that they begin with.
    for (const char* bank : {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P"})
        for (int key = 1; key <= 8; ++key)
            for (const char* tail :
                 {"Type@Signal Select@Fill", "Type@Signal Select@Source", "Status@Source Name"})
                (void)Tree_Get(Text_Format("%s@Key%d@%s", bank, key, tail));
    std::vector<std::string> paths;
    for (const auto& [path, node] : Tree_All())
        for (const char* pattern : named)
            if (node.value == from && Text_MatchesPath(path, pattern))
                paths.push_back(path);
    for (const std::string& path : paths)
        Tree_Show(path, to);
    for (int n = 1; n <= OUTPUTS; ++n)
        if (row_of(OUTPUT + "Source", std::to_string(n)) == from)
            Tree_ShowRow(OUTPUT + "Source", Text_Format("%d,%s", n, to.c_str()));
}

// A row "number,name" of a source: all panels show the name from now on.
static bool put_source(const std::string& path, const std::string& value, const std::string& number,
                       const std::string& name)
{
    long n = 0;
    if (!Text_ToInt(number, &n) || n < 1 || n > 136 || name.size() > 16)
        return SetupKind_Refuse(path, value);
    Tree_Show(path, value);
    const std::string before = row_of(SOURCES, number);
    Tree_ShowRow(SOURCES, number + "," + name);
    if (!before.empty() && before != name)
        rename_signal(before, name);
    return true;
}

// An output that is inhibited keeps its bus. The signal follows the bus.
static bool put_assign(const std::string& path, const std::string& value)
{
    const auto part = Text_Split(value, ',');
    long output = 0, flag = 0;
    if (part.size() != 3 || !Text_ToInt(part[0], &output) || output < 1 || output > OUTPUTS ||
        part[1].empty() || !Text_ToInt(part[2], &flag) || flag < 0 || flag > 8)
        return SetupKind_Refuse(path, value);
    if (row_of(OUTPUT + "Inhibit", part[0]) == "true")
        return SetupKind_Refuse(path, value + " (inhibited)");
    long aux = 0;
    const bool is_aux =
        Text_Begins(part[1], "AUX") && Text_ToInt(part[1].substr(3), &aux) && aux >= 1;
    Tree_ShowRow(path, value);
    Tree_ShowRow(OUTPUT + "Source",
                 part[0] + "," + (is_aux ? Text_Format("CAM%d", int(aux - 1) % 40 + 1) : part[1]));
    return true;
}

static bool put_inhibit(const std::string& path, const std::string& value)
{
    const auto part = Text_Split(value, ',');
    long output = 0;
    if (part.size() != 2 || !Text_ToInt(part[0], &output) || output < 1 || output > OUTPUTS ||
        (part[1] != "true" && part[1] != "false"))
        return SetupKind_Refuse(path, value);
    Tree_ShowRow(path, value);
    return true;
}

// A converter feeds one output at most, and the assignment says so.
static void show_converter(const std::string& path, const std::string& value)
{
    const std::string fc = path.substr(path.rfind('@') + 1);
    const std::string list = OUTPUT + "Assign";
    for (const std::string& before : std::vector<std::string>(Tree_Get(list)->rows)) {
        const auto part = Text_Split(before, ',');
        if (part.size() != 3)
            continue;
        if (part[0] == value)
            Tree_ShowRow(list, part[0] + "," + part[1] + "," + fc);
        else if (part[2] == fc)
            Tree_ShowRow(list, part[0] + "," + part[1] + ",0");
    }
}

// An input of a converter as it came; false when it is none.
static bool reset_input(const std::string& path, const std::string& input)
{
    for (const auto& converter : converters) {
        if (path != SWITCHER + converter.page + "Default")
            continue;
        for (const auto& word : converter_words) {
            const std::string of = SWITCHER + converter.page + word.word + "@" + input;
            if (Tree_Find(of))
                Tree_Show(of, word.start);
        }
        return true;
    }
    return false;
}

// A position that is turned says whether it is the middle.
void SetupSwitcherIo_Follow(const std::string& path, const std::string& value)
{
    for (const char* word : {"EC Pos@", "LB Pos@"}) {
        const size_t at = path.find(word);
        double position = 0;
        if (at == std::string::npos || !Text_ToNumber(value, &position))
            continue;
        const std::string middle =
            path.substr(0, at + 6) + " Center" + path.substr(at + 6); // behind "EC Pos"
        if (Tree_Find(middle))
            Tree_Show(middle, position == 0 ? "true" : "false");
    }
}

bool SetupSwitcherIo_Put(const std::string& path, const std::string& value)
{
    const std::string tail = path.substr(path.rfind('@') + 1);
    if (SetupKind_Fire("", GPI_OUTPUT, path))
        return true;
    if (reset_input(path, value))
        return true;
    if (Text_MatchesPath(path, OUTPUT + "FC Output Assign@?"))
        show_converter(path, value);
    if (path == OUTPUT + "Assign")
        return put_assign(path, value);
    if (path == OUTPUT + "Inhibit")
        return put_inhibit(path, value);
    if (Text_MatchesPath(path, SWITCHER + "Input@Source Name@*"))
        return put_source(path, value, tail, value);
    if (Text_MatchesPath(path, OUTPUT + "Re-Entry Assign@*")) {
        const auto part = Text_Split(value, ',');
        return part.size() == 2 ? put_source(path, value, part[0], part[1])
                                : SetupKind_Refuse(path, value);
    }
    return SetupKind_Put(all_kinds, path, value);
}
