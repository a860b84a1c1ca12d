// What the events of a macro do to the desk, by the roads that panels take.
#include "device_vtr.h"
#include "macro_private.h"
#include "region.h"
#include "router.h"
#include "text.h"
#include "timeline.h"
#include "transition.h"
#include "tree.h"
#include "verbs.h"

static std::string value_of(const MacroLine& line, const char* name)
{
    return MacroEvent_Value(line, name);
}

// The tree of the bank or region that the event names; empty: none.
static std::string tree_of(const MacroLine& line, const char* name)
{
    const int region = Region_ByName(value_of(line, name));
    return region < 0 ? "" : Regions()[size_t(region)].tree;
}

// The keys of both sides of a bank stand below the bank; those of PGM/PST are called DSK.
static std::string key_of(const MacroLine& line, const std::string& word)
{
    std::string bank = tree_of(line, "ME");
    if (const size_t sub = bank.find(" SUB"); sub != bank.npos)
        bank.erase(sub);
    long key = 0;
    const bool is_key = Text_Begins(word, "Key") && Text_ToInt(word.substr(3), &key);
    if (bank.empty() || !is_key || key < 1 || key > 8)
        return "";
    return bank + (bank == "PGM/PST" ? "@DSK" : "@Key") + std::to_string(key);
}

static int frames_of(const MacroLine& line)
{
    return MacroEvent_Number(line, "Time", 0, 999, -1);
}

static void put(const std::string& base, const std::string& tail, const std::string& value)
{
    if (!base.empty())
        Verb_Do(base + tail, value);
}

// What switches have in common: "On" and "ToOn", or else.
static const char* truth(const std::string& word)
{
    return word == "On" || word == "ToOn" ? "true" : "false";
}

// --- Crosspoints ---

static const std::string XPT = "Engineering Setup@Panel@Xpt Assign@";

// The fields behind the index in a row of a list; empty when there is none.
static std::vector<std::string> row_of(const std::string& list, int index)
{
    const Node* const node = Tree_Find(list);
    const std::string head = std::to_string(index) + ",";
    for (const std::string& row : node ? node->rows : std::vector<std::string>())
        if (Text_Begins(row, head))
            return Text_Split(row.substr(head.size()), ',');
    return {};
}

// The source on a crosspoint button, by the panel's table; empty when the button is inhibited.
static std::string source_on(int button, bool is_key = false)
{
    const auto assign = row_of(XPT + "Assign", button), inhibit = row_of(XPT + "Inhibit", button);
    if (!inhibit.empty() && inhibit[0] == "true")
        return "";
    long source = button;
    if (assign.size() == 2)
        (void)Text_ToInt(assign[is_key], &source); // otherwise as it is numbered
    const auto name = row_of(XPT + "Source@List", int(source));
    return name.empty() ? "CAM" + std::to_string(source) : name[0];
}

static void me_xpt(const MacroLine& line)
{
    const std::string bus = value_of(line, "MEBus");
    const int button = MacroEvent_Number(line, "Xpt", 1, 128, 0);
    const bool is_key = value_of(line, "VideoKey") == "Key";
    const std::string source = source_on(button, is_key);
    if (button == 0 || source.empty())
        return;
    if (Text_Begins(bus, "Bkgd"))
        put(tree_of(line, "ME"), "@Status@Xpt Assign@" + bus.substr(4), source);
    else if (Text_Begins(bus, "Utility"))
        put(tree_of(line, "ME"), "@Status@Xpt Assign@UTIL" + bus.substr(7), source);
    else if (is_key)
        put(key_of(line, bus), "@Type@Signal Select@Source", source);
    else
        put(key_of(line, bus), "@Type@Signal Select@Fill", source);
}

static void aux_xpt(const MacroLine& line)
{
    const std::string bus = value_of(line, "AuxBus");
    const int button = MacroEvent_Number(line, "Xpt", 1, 128, 0);
    const std::string source = source_on(button);
    if (!bus.empty() && button > 0 && !source.empty())
        put("Aux@", bus + "@Status@Xpt Assign", source);
}

static void router_xpt(const MacroLine& line)
{
    long level = 0; // "All", or "Level3"
    const std::string word = value_of(line, "Level");
    if (Text_Begins(word, "Level"))
        (void)Text_ToInt(word.substr(5), &level);
    Router_Route(MacroEvent_Number(line, "DestinationButton", 1, 128, 0),
                 MacroEvent_Number(line, "Source", 1, 999, 0), int(level));
}

// --- Transitions ---

static void me_auto(const MacroLine& line)
{
    const std::string bank = tree_of(line, "ME");
    if (bank.empty())
        return;
    if (frames_of(line) >= 0)
        Transition_Start(bank, frames_of(line));
    else
        put(bank, "@Misc@Transition@Auto Trans", "true");
}

static void me_cut(const MacroLine& line)
{
    put(tree_of(line, "ME"), "@Misc@Transition@Cut", "true");
}

static void key_auto(const MacroLine& line)
{
    const std::string key = key_of(line, value_of(line, "Key"));
    if (frames_of(line) >= 0)
        for (const char* way : {"ON", "OFF"})
            put(key, std::string("@Transition@") + way + " Transition Rate",
                std::to_string(frames_of(line)));
    put(key, "@Transition@Auto Trans", "true");
}

static void key_cut(const MacroLine& line)
{
    put(key_of(line, value_of(line, "Key")), "@Status@Key ON", truth(value_of(line, "Status")));
}

static void transition_type(const MacroLine& line)
{
    const std::string type = value_of(line, "TransitionType"), bank = tree_of(line, "ME");
    put(bank, "@Misc@Transition@" + (type == "Stinger" ? "Clip" : type), "true");
    if (frames_of(line) >= 0)
        put(bank, "@Misc@Transition@Transition Rate", std::to_string(frames_of(line)));
}

static void key_transition_type(const MacroLine& line)
{
    put(key_of(line, value_of(line, "Key")), "@Transition@ON Transition Type",
        value_of(line, "KeyTransitionType"));
}

static void next_transition(const MacroLine& line)
{
    const std::string bank = tree_of(line, "ME"), head = "@Misc@Transition@Next Transition@";
    const bool is_all = value_of(line, "All") == "On";
    for (const auto& [name, value] : line.values) {
        const bool is_part = name == "BKGD" || Text_Begins(name, "Key");
        const std::string word = name == "BKGD"          ? "Bkgd"
                                 : name == "KeyPriority" ? "Key Priority"
                                                         : name;
        if (is_part)
            put(bank, head + word, is_all ? "true" : truth(value));
    }
}

static void fade_to_black(const MacroLine& line)
{
    const std::string ftb = "PGM/PST@Misc@Transition@FTB@";
    const Node* const state = Tree_Get(ftb + "FTB");
    const bool on = !state || state->value != "true";
    if (frames_of(line) >= 0)
        put(ftb, on ? "ON Rate" : "OFF Rate", std::to_string(frames_of(line)));
    put(ftb, "FTB", on ? "true" : "false");
}

// The event says in which state it finds the limit.
static void pattern_limit(const MacroLine& line)
{
    const std::string bank = tree_of(line, "ME"), limit = "@Wipe@Direction@Pattern Limit";
    const int percent = MacroEvent_Number(line, "Limit", 0, 100, -1);
    if (percent >= 0)
        put(bank, limit + "@Limit", std::to_string(percent));
    put(bank, limit, value_of(line, "Status") == "Off" ? "true" : "false");
}

// --- Registers and timelines ---

static void recall(StoreKind of, const std::string& row_name, const MacroLine& line)
{
    const Kind& kind = Store_Kind(of);
    const int row = Store_RowOfName(kind, row_name);
    const int number = MacroEvent_Number(line, "Register", 1, 999, 0);
    if (row >= 0 && Store_IsNumber(kind, row, number))
        Store_Recall(kind, row, number);
}

template <StoreKind kind, const char* const& place> static void recall_of(const MacroLine& line)
{
    recall(kind, *place ? value_of(line, place) : "", line);
}
static constexpr const char* REGION = "Region";
static constexpr const char* BANK = "ME";
static constexpr const char* NOWHERE = "";

static void recall_key(const MacroLine& line)
{
    recall(STORE_KEY, value_of(line, "ME") + "@" + value_of(line, "Key"), line);
}

template <void (*act)(const std::vector<int>&)> static void timeline(const MacroLine& line)
{
    if (const int region = Region_ByName(value_of(line, "Region")); region >= 0)
        act({region});
}
template <void (*set)(const std::vector<int>&, bool), bool on>
static void turn(const std::vector<int>& regions)
{
    set(regions, on);
}

// --- The machines and keys that the simulator has no more of than what they were told last ---

static void tell_device(const MacroLine& line)
{
    put("Device@", value_of(line, "Device") + "@Command", line.symbol);
}

// A recorder or player moves, too; the frame memory's outputs bear the symbol alone.
template <const char* const& word> static void move_device(const MacroLine& line)
{
    const std::string mode = value_of(line, "Mode");
    tell_device(line);
    (void)DeviceVtr_Do(value_of(line, "Device"), mode.empty() ? word : mode);
}

static void cue_device(const MacroLine& line)
{
    tell_device(line);
    DeviceVtr_CueTo(value_of(line, "Device"), value_of(line, "Timecode"));
}

static void load_device(const MacroLine& line)
{
    tell_device(line);
    DeviceVtr_Load(value_of(line, "Device"), value_of(line, "FileName"));
}

static constexpr const char* MOVE_PLAY = "Play";
static constexpr const char* MOVE_STOP = "Stop";
static constexpr const char* MOVE_REWIND = "Rewind";
static constexpr const char* MOVE_FORWARD = "F Fwd";
static constexpr const char* MOVE_RECORD = "Record";

// The menu of each panel runs it; the same again is told, too.
static void menu_macro(const MacroLine& line)
{
    Node* const node = Tree_Get("Info@Menu Macro@Run");
    if (!node)
        return;
    node->value = value_of(line, "Register");
    Tree_Tell(*node, node->value, 0);
}

static void aux_mix(const MacroLine& line)
{
    put("Aux@", value_of(line, "AuxMixBus") + "@Mix", truth(value_of(line, "AuxMixStatus")));
}

static void utility_button(const MacroLine& line)
{
    const int button = MacroEvent_Number(line, "Button", 1, 96, 0);
    if (button > 0)
        put("Panel@Utility Module@", value_of(line, "UtilityModule") + "@Pressed",
            std::to_string(button));
}

// A toggle goes by what was told last.
static void key_bus_utility_button(const MacroLine& line)
{
    const int button = MacroEvent_Number(line, "Button", 1, 32, 0);
    const std::string status = value_of(line, "UtilityStatus"), bank = tree_of(line, "ME");
    const std::string path = Text_Format("%s@Key Bus Utility@%s@%d", bank.c_str(),
                                         value_of(line, "Bank").c_str(), button);
    if (bank.empty() || button == 0)
        return;
    const Node* const is_on = status == "Toggle" ? Tree_Get(path) : nullptr;
    put(path, "", is_on ? (is_on->value == "true" ? "false" : "true") : truth(status));
}

static void pad_page(const MacroLine& line)
{
    put("Panel@Xpt Pad@", value_of(line, "MEAuxBank") + "@Page", value_of(line, "Page"));
}

// --- The table ---

static constexpr struct {
    const char* symbol;
    void (*perform)(const MacroLine& line);
} performers[] = {
    {"MEXpt", me_xpt},
    {"AuxXpt", aux_xpt},
    {"MEAutoTransition", me_auto},
    {"MECut", me_cut},
    {"KeyAutoTransition", key_auto},
    {"KeyCut", key_cut},
    {"Snapshot", recall_of<STORE_SNAPSHOT, REGION>},
    {"KeySnapshot", recall_key},
    {"WipeSnapshot", recall_of<STORE_WIPE, BANK>},
    {"DMEWipeSnapshot", recall_of<STORE_DME, BANK>},
    {"TimelineRecall", recall_of<STORE_EFFECT, REGION>},
    {"TimelineRun", timeline<Timeline_RunAsSet>},
    {"TimelineRewind", timeline<Timeline_Rewind>},
    {"TimelineFF", timeline<Timeline_FastForward>},
    {"TimelineDirectionNormal", timeline<turn<Timeline_SetReversed, false>>},
    {"TimelineDirectionReverse", timeline<turn<Timeline_SetReversed, true>>},
    {"TimelineNormalReverseOn", timeline<turn<Timeline_SetNormalReverse, true>>},
    {"TimelineNormalReverseOff", timeline<turn<Timeline_SetNormalReverse, false>>},
    {"ShotBox", recall_of<STORE_SHOTBOX, NOWHERE>},
    {"MasterSnapshot", recall_of<STORE_MASTER_SNAPSHOT, NOWHERE>},
    {"MasterTimelineRecall", recall_of<STORE_MASTER_EFFECT, NOWHERE>},
    {"RouterXpt", router_xpt},
    {"PatternLimit", pattern_limit},
    {"TransitionType", transition_type},
    {"KeyTransitionType", key_transition_type},
    {"NextTransition", next_transition},
    {"FadeToBlack", fade_to_black},
    {"MenuMacroRun", menu_macro},
    {"AuxMix", aux_mix},
    {"UtilityButton", utility_button},
    {"KeyBusUtilityButton", key_bus_utility_button},
    {"XptPadPage", pad_page},
    {"Play", move_device<MOVE_PLAY>},
    {"Cue", cue_device},
    {"Stop", move_device<MOVE_STOP>},
    {"StartTc", tell_device},
    {"Rewind", move_device<MOVE_REWIND>},
    {"FF", move_device<MOVE_FORWARD>},
    {"FMLoop", tell_device},
    {"DiskFileLoad", load_device},
    {"ClipRecall", tell_device},
    {"DeviceRecord", move_device<MOVE_RECORD>},
};

void Macro_Perform(const MacroLine& line)
{
    for (const auto& p : performers)
        if (line.symbol == p.symbol)
            return p.perform(line);
}
