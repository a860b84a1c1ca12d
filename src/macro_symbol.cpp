#include "macro_symbol.h"
#include "device.h"
#include "global.h"
#include "snapshot_region.h"
#include "tally_value.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>
#include "safeguards.h"

// --- The words of the parameters ---

namespace
{
template <size_t N> using Words = std::array<ParamValueTBL, N + 1>;

template <typename... Text> constexpr auto List(Text... words)
{
    Words<sizeof...(words)> table{};
    size_t n = 0;
    ((table[n] = {int(n), words, 1}, n++), ...);
    return table;
}

// The words of regions, those of the sub sides only where a table has them.
template <size_t N> constexpr auto ListOf(const RegionWords<N>& words)
{
    Words<N> table{};
    for (size_t i = 0; i < N; i++)
        table[i] = {int(i), words[i], 1};
    return table;
}

// "Aux1" and on. The texts live beside the table.
template <size_t N> struct Numbered {
    char text[N][12] = {};
};
template <size_t N> constexpr Numbered<N> Number(std::string_view head)
{
    Numbered<N> names{};
    for (size_t i = 0; i < N; i++) {
        char* to = std::copy(head.begin(), head.end(), names.text[i]);
        if (i + 1 >= 10)
            *to++ = char('0' + (i + 1) / 10);
        *to = char('0' + (i + 1) % 10);
    }
    return names;
}
template <const auto& names> constexpr auto NumberedWords()
{
    RegionWords<std::size(decltype(names.text){})> words{};
    for (size_t i = 0; i < words.size(); i++)
        words[i] = names.text[i];
    return words;
}

template <size_t N, size_t M> constexpr RegionWords<N> First(const RegionWords<M>& words)
{
    static_assert(N <= M);
    RegionWords<N> first{};
    std::copy(words.begin(), words.begin() + N, first.begin());
    return first;
}

constexpr auto banks = First<6>(region_sides);
constexpr auto aux_names = Number<48>("Aux");
constexpr auto monitor_names = Number<8>("Mon");
constexpr auto frame_output_names = Number<8>("FM");
constexpr auto utility_module_names = Number<8>("Module");
constexpr auto aux_mix_names = Number<8>("AuxMix");
constexpr auto pad_page_names = Number<8>("Page");
constexpr auto bank_names = Number<4>("Bank");
constexpr auto level_names = Number<8>("Level");
constexpr auto key_names = Number<8>("Key");
constexpr auto aux_words = NumberedWords<aux_names>();
constexpr auto monitor_words = NumberedWords<monitor_names>();
constexpr auto frame_outputs = NumberedWords<frame_output_names>();
constexpr auto keys = NumberedWords<key_names>();
constexpr RegionWords<3> control_regions = {"P-Bus", "GPI", "MACRO"};

constexpr auto ME = ListOf(banks);
constexpr auto ME_MP2 = ListOf(region_sides);
constexpr auto& ME_MP2_WipeDME = ME_MP2; // each side has wipes of its own
constexpr auto ME_AUX_BANK = ListOf(JoinWords(banks, RegionWords<1>{"Aux"}));
constexpr auto MEBus =
    ListOf(JoinWords(RegionWords<4>{"BkgdA", "BkgdB", "BkgdC", "BkgdD"}, keys,
                     RegionWords<4>{"Utility1", "Utility2", "DMEUtility1", "DMEUtility2"}));
constexpr auto VideoKey = List("Video", "Key", "VideoKey");
constexpr auto Attribute = List("Normal", "Hold");
constexpr auto XPTPAD_PAGE = ListOf(NumberedWords<pad_page_names>());
constexpr auto Bank = ListOf(NumberedWords<bank_names>());
constexpr auto Key = ListOf(keys);
constexpr auto Direction = List("Normal", "Reverse", "NormalReverse");
constexpr auto Device = ListOf(JoinWords(region_devices, frame_outputs));
constexpr auto DeviceNum = ListOf(region_devices); // what has files or a tape of its own
constexpr auto DeviceFM = ListOf(frame_outputs);
constexpr auto Mode = List("Play", "Variable", "Shuttle", "Jog");
constexpr auto Level = ListOf(JoinWords(RegionWords<1>{"All"}, NumberedWords<level_names>()));
constexpr auto Status = List("ToOn", "ToOff");
constexpr auto OnOff = List("On", "Off");
constexpr auto TransitionType =
    List("Mix", "NAM", "Super Mix", "Preset Color Mix", "Wipe", "DME Wipe", "Stinger");
constexpr auto TransitionType_X =
    List("Mix", "NAM", "Super Mix", "Preset Color Mix", "Wipe", "DME Wipe");
constexpr auto KeyTransitionType = List("Cut", "Mix", "Wipe", "DME Wipe", "Stinger");
constexpr auto& All = OnOff;
constexpr auto& KeyPriority = OnOff;
constexpr auto& BKGD = OnOff;
constexpr auto& Key1 = OnOff; // and to Key8
constexpr auto UtilityModule = ListOf(NumberedWords<utility_module_names>());
constexpr auto UtilityStatus = List("On", "Off", "Toggle");
constexpr auto FMLoopMode = List("On", "Off");
constexpr auto ClipType = List("Still", "Clip");
constexpr auto AuxBus = ListOf(JoinWords(aux_words, monitor_words));
constexpr auto AuxBus_KTR40X = ListOf(First<24>(aux_words));
constexpr auto AuxMixBus = ListOf(NumberedWords<aux_mix_names>());
constexpr auto& AuxMixStatus = OnOff;
constexpr auto snapshot_sides = JoinWords(region_sides, region_users, region_channels);
constexpr auto Region_SS =
    ListOf(JoinWords(banks, region_users, region_channels, RegionWords<1>{"RTR"}));
constexpr auto Region_SS_MP2 = ListOf(JoinWords(snapshot_sides, RegionWords<1>{"RTR"}));
constexpr auto Region =
    ListOf(JoinWords(banks, region_users, region_channels, region_devices, control_regions));
constexpr auto Region_MP2 = ListOf(JoinWords(snapshot_sides, region_devices, control_regions));
constexpr auto& Region_TL_MP2 = Region_MP2; // what runs is what can be recalled

// --- The parameters of the symbols ---

struct SymbolRow {
    const char* symbol = "";
    MACROPARAM slot[MACRO_SLOTS] = {};
};

template <size_t N>
constexpr MACROPARAM Of(const char* button, const char* name, const std::array<ParamValueTBL, N>& t)
{
    return {.buttonname = button, .parametername = name, .paramvaluetbl = t.data()};
}
constexpr MACROPARAM Num(const char* button, const char* name, int min, int max)
{
    return {.buttonname = button,
            .parametername = name,
            .entry = MACROENTRY_NUMBER,
            .min = min,
            .max = max};
}
constexpr MACROPARAM Words16(const char* button, const char* name)
{
    return {
        .buttonname = button, .parametername = name, .entry = MACROENTRY_TEXT, .min = 1, .max = 16};
}
constexpr MACROPARAM TimeCode(const char* button, const char* name)
{
    return {.buttonname = button, .parametername = name, .entry = MACROENTRY_TIMECODE};
}
constexpr MACROPARAM Frames(int min = 0)
{
    return Num("Time", "Time", min, 999);
}
constexpr MACROPARAM Reg(int max)
{
    return Num("Register", "Register", 1, max);
}
constexpr MACROPARAM Bank_ = Of("M/E", "ME", ME);
constexpr MACROPARAM Key_ = Of("Key", "Key", Key);
constexpr MACROPARAM Xpt_ = Num("Xpt", "Xpt", 1, 128);
constexpr MACROPARAM Device_ = Of("Device", "Device", Device);
constexpr MACROPARAM Region_ = Of("Region", "Region", Region);

// In the order of EVNT; a row says what the file says.
// clang-format off
constexpr SymbolRow symbol_rows[MACRO_SYMBOLS] = {
    {"MEXpt",             {Bank_, Of("M/E Bus", "MEBus", MEBus), Xpt_, Of("Video/\nKey", "VideoKey", VideoKey), Of("Attri-\nbute", "Attribute", Attribute)}},
    {"AuxXpt",            {Of("Aux Bus", "AuxBus", AuxBus), Xpt_, Of("Video/\nKey", "VideoKey", VideoKey)}},
    {"MEAutoTransition",  {Bank_, Frames(), Of("Direc-\ntion", "Direction", Direction)}},
    {"MECut",             {Bank_}},
    {"KeyAutoTransition", {Bank_, Key_, Frames(), Of("Direc-\ntion", "Direction", Direction)}},
    {"KeyCut",            {Bank_, Key_, Of("Status", "Status", Status)}},
    {"Play",              {Device_, Of("Mode", "Mode", Mode), Num("Speed", "Speed", -400, 400)}}, // percent
    {"Cue",               {Device_, TimeCode("Time\nCode", "Timecode"), Num("Preroll", "Preroll", 0, 999)}},
    {"Stop",              {Device_}},
    {"DiskFileLoad",      {Of("Device", "Device", DeviceNum), Words16("File\nName", "FileName"), TimeCode("Time\nCode", "Timecode")}},
    {"Snapshot",          {Of("Region", "Region", Region_SS), Reg(99)}},
    {"KeySnapshot",       {Bank_, Key_, Reg(4)}},
    {"WipeSnapshot",      {Bank_, Reg(10)}},
    {"DMEWipeSnapshot",   {Bank_, Reg(10)}},
    {"TimelineRecall",    {Region_, Reg(399)}},
    {"TimelineRun",       {Region_}},
    {"TimelineRewind",    {Region_}},
    {"TimelineFF",        {Region_}},
    {"ShotBox",           {Reg(99)}},
    {"Pause",             {Frames(1)}},
    {"StartTc",           {Device_}},
    {"MasterSnapshot",    {Reg(99)}},
    {"MasterTimelineRecall", {Reg(99)}},
    {"RouterXpt",         {Num("Dest\nButton", "DestinationButton", 1, 128), Num("Source", "Source", 1, 999), Of("Level", "Level", Level)}},
    {"PatternLimit",      {Bank_, Of("Status", "Status", Status), Num("Limit", "Limit", 0, 100)}}, // percent
    {"TransitionType",    {Bank_, Of("Trans\nType", "TransitionType", TransitionType), Frames()}},
    {"KeyTransitionType", {Bank_, Key_, Of("Trans\nType", "KeyTransitionType", KeyTransitionType)}},
    {"NextTransition",    {Bank_, Of("All", "All", All), Of("Key\nPriority", "KeyPriority", KeyPriority), Of("BKGD", "BKGD", BKGD),
                           Of("Key 1/2", "Key1", Key1), Of("Key 1/2", "Key2", Key1), Of("Key 3/4", "Key3", Key1), Of("Key 3/4", "Key4", Key1),
                           Of("Key 5/6", "Key5", Key1), Of("Key 5/6", "Key6", Key1), Of("Key 7/8", "Key7", Key1), Of("Key 7/8", "Key8", Key1)}},
    {"FadeToBlack",       {Frames()}},
    {"TimelineDirectionNormal",  {Region_}},
    {"TimelineDirectionReverse", {Region_}},
    {"TimelineNormalReverseOn",  {Region_}},
    {"TimelineNormalReverseOff", {Region_}},
    {"UtilityButton",     {Of("Module", "UtilityModule", UtilityModule), Num("Button", "Button", 1, 96)}},
    {"Rewind",            {Device_}},
    {"FF",                {Device_}},
    {"FMLoop",            {Device_, Of("Loop\nMode", "FMLoopMode", FMLoopMode)}},
    {"MenuMacroRun",      {Reg(99)}},
    {"KeyBusUtilityButton", {Bank_, Of("Bank", "Bank", Bank), Num("Button", "Button", 1, 32), Of("Status", "UtilityStatus", UtilityStatus)}},
    {"ClipRecall",        {Of("Device", "Device", DeviceFM), Of("Clip\nType", "ClipType", ClipType), Words16("File\nName", "FileName")}},
    {"DeviceRecord",      {Of("Device", "Device", DeviceNum)}},
    {"AuxMix",            {Of("Aux Mix\nBus", "AuxMixBus", AuxMixBus), Of("Status", "AuxMixStatus", AuxMixStatus)}},
    {"XptPadPage",        {Of("M/E Aux\nBank", "MEAuxBank", ME_AUX_BANK), Of("Page", "Page", XPTPAD_PAGE)}},
};
// clang-format on

constexpr auto AllSlots()
{
    std::array<std::array<MACROPARAM, MACRO_SLOTS>, MACRO_SYMBOLS> table{};
    for (int row = 0; row < MACRO_SYMBOLS; row++)
        for (int i = 0; i < MACRO_SLOTS; i++) {
            table[row][i] = symbol_rows[row].slot[i];
            table[row][i].symbol = symbol_rows[row].symbol;
        }
    return table;
}

constexpr bool ButtonsSuffice()
{
    for (const SymbolRow& row : symbol_rows) {
        int buttons = 0;
        std::string_view last;
        for (const MACROPARAM& p : row.slot) {
            buttons += p.buttonname != last;
            last = p.buttonname;
        }
        if (buttons - (last.empty() ? 1 : 0) > MACRO_GROUPS)
            return false;
    }
    return true;
}
static_assert(ButtonsSuffice());

// What a parameter takes in a plain system, and in one that has more (or less).
struct Variant {
    const char* symbol;
    const char* parameter;
    const ParamValueTBL* plain;
    const ParamValueTBL* other;
};
constexpr Variant of_model[] = {
    {"AuxXpt", "AuxBus", AuxBus.data(), AuxBus_KTR40X.data()},
    {"TransitionType", "TransitionType", TransitionType.data(), TransitionType_X.data()},
};
constexpr Variant SidesOf(const char* symbol)
{
    return {symbol, "ME", ME.data(), ME_MP2.data()};
}
constexpr Variant RegionsOf(const char* symbol)
{
    return {symbol, "Region", Region.data(), Region_MP2.data()};
}
constexpr Variant of_multi_program[] = {
    SidesOf("MEXpt"),
    SidesOf("MEAutoTransition"),
    SidesOf("MECut"),
    SidesOf("KeyAutoTransition"),
    SidesOf("KeyCut"),
    SidesOf("TransitionType"),
    SidesOf("KeyTransitionType"),
    SidesOf("NextTransition"),
    {"WipeSnapshot", "ME", ME.data(), ME_MP2_WipeDME.data()},
    {"DMEWipeSnapshot", "ME", ME.data(), ME_MP2_WipeDME.data()},
    {"Snapshot", "Region", Region_SS.data(), Region_SS_MP2.data()},
    {"TimelineRecall", "Region", Region.data(), Region_TL_MP2.data()},
    RegionsOf("TimelineRun"),
    RegionsOf("TimelineRewind"),
    RegionsOf("TimelineFF"),
    RegionsOf("TimelineDirectionNormal"),
    RegionsOf("TimelineDirectionReverse"),
    RegionsOf("TimelineNormalReverseOn"),
    RegionsOf("TimelineNormalReverseOff"),
};

constexpr int PATTERN_LIMIT_STATUS = 1; // slot
struct StatePair {
    const char* stored;
    const char* shown;
};
constexpr StatePair pattern_limit_states[] = {{"On", "ToOff"}, {"Off", "ToOn"}};
} // namespace

constinit std::array<std::array<MACROPARAM, MACRO_SLOTS>, MACRO_SYMBOLS> SymbolParamTable =
    AllSlots();

// --- The words of the first two columns ---

ParamValueTBL CONT[5] = {{0, "Contents", 1}, {1, "Event", 1}, {2, "Continue", 1}, {3, "#", 1}, {}};

// clang-format off
const char Continue_Gray[CONTINUE_GRAY][30] = {
    "AuxXpt", "MECut", "DiskFileLoad", "KeyCut", "ShotBox", "Pause", "MasterSnapshot",
    "MasterTimelineRecall", "RouterXpt", "FadeToBlack", "UtilityButton", "MenuMacroRun",
    "KeyBusUtilityButton", "ClipRecall", "DeviceRecord", "AuxMix", "XptPadPage",
};
// clang-format on

ParamValueTBL EVNT[MACRO_SYMBOLS + 2];
ParamValueTBL Continue[CONTINUE_ROWS + 1];

static void fill_columns()
{
    int events = 0, continues = 0;
    EVNT[events++] = {0, "Event", 1};
    Continue[continues++] = {0, "Continue", 1};
    for (const SymbolRow& row : symbol_rows) {
        EVNT[events] = {events, row.symbol, 1};
        events++;
        if (!MacroSymbol_IsContinueGray(row.symbol) && continues < CONTINUE_ROWS) {
            Continue[continues] = {continues, row.symbol, 1};
            continues++;
        }
    }
    for (ParamValueTBL& word : CONT)
        word.status = 1;
}

// --- Asking ---

const MACROPARAM* MacroSymbol_Find(const char* symbol)
{
    for (const auto& row : SymbolParamTable)
        if (Same(row[0].symbol, symbol))
            return row.data();
    return nullptr;
}

int get_param_count(const char* symbol)
{
    const MACROPARAM* const slots = MacroSymbol_Find(symbol);
    if (!slots)
        return -1;
    int n = 0;
    while (n < MACRO_SLOTS && *slots[n].parametername)
        n++;
    return n;
}

bool is_symbol_support(const char* symbol)
{
    const MACROPARAM* const slots = MacroSymbol_Find(symbol);
    return slots && slots[0].status != 0;
}

bool MacroSymbol_IsContinueGray(const char* symbol)
{
    return std::any_of(std::begin(Continue_Gray), std::end(Continue_Gray),
                       [symbol](const char* gray) { return Same(gray, symbol); });
}

int MacroValue_Find(const ParamValueTBL* table, const char* word)
{
    for (; table && table->index >= 0; table++)
        if (Same(table->paramvalue, word))
            return table->index;
    return -1;
}

static bool is_number(const char* text, int min, int max)
{
    char* end = nullptr;
    const long value = strtol(text, &end, 10);
    return end != text && *end == '\0' && *text != ' ' && value >= min && value <= max;
}

static bool is_time_code(const char* text)
{
    constexpr char form[] = "00:00:00:00";
    constexpr char limit[] = "23:59:59:59"; // frames by the standard: the device refuses those
    if (strlen(text) != sizeof form - 1)
        return false;
    for (int i = 0; form[i]; i++)
        if (form[i] == ':' ? text[i] != ':' : text[i] < '0' || text[i] > '9')
            return false;
    for (size_t i = 0; i < sizeof limit; i += 3)
        if (strncmp(text + i, limit + i, 2) > 0)
            return false;
    return true;
}

bool MacroValue_IsLegal(const MACROPARAM& parameter, const char* text)
{
    if (!*text || Same(text, MACRO_NO_VALUE))
        return false;
    switch (parameter.entry) {
    case MACROENTRY_LIST: return MacroValue_Find(parameter.paramvaluetbl, text) >= 0;
    case MACROENTRY_NUMBER: return is_number(text, parameter.min, parameter.max);
    case MACROENTRY_TEXT: return !strchr(text, ',') && int(strlen(text)) <= parameter.max;
    case MACROENTRY_TIMECODE: return is_time_code(text);
    }
    return false;
}

static bool has_state(const char* symbol, int slot)
{
    return slot == PATTERN_LIMIT_STATUS && Same(symbol, "PatternLimit");
}

const char* MacroValue_Shown(const char* symbol, int slot, const char* stored)
{
    for (const StatePair& pair : pattern_limit_states)
        if (has_state(symbol, slot) && Same(stored, pair.stored))
            return pair.shown;
    return stored;
}

const char* MacroValue_Stored(const char* symbol, int slot, const char* shown)
{
    for (const StatePair& pair : pattern_limit_states)
        if (has_state(symbol, slot) && Same(shown, pair.shown))
            return pair.stored;
    return shown;
}

// --- Choosing variants ---

int set_symbolparamtbl_tbl(const char* symbol, const char* parameter, const ParamValueTBL* table)
{
    for (auto& row : SymbolParamTable)
        for (MACROPARAM& slot : row)
            if (Same(slot.symbol, symbol) && *slot.parametername &&
                Same(slot.parametername, parameter)) {
                slot.paramvaluetbl = table;
                return 0;
            }
    return -1;
}

template <size_t N> static void choose(const Variant (&variants)[N], bool is_other)
{
    for (const Variant& v : variants)
        (void)set_symbolparamtbl_tbl(v.symbol, v.parameter, // the rows are ours
                                     is_other ? v.other : v.plain);
}

void MacroSymbols_ForSystem()
{
    fill_columns();
    for (auto& row : SymbolParamTable)
        for (MACROPARAM& slot : row)
            slot.status = 1;
    choose(of_model, SYS_RefPnlType == DEVTYPE_QRD11B || SYS_RefSwrType == DEVTYPE_NTR40);
    choose(of_multi_program, std::any_of(std::begin(multiprogram2_me), std::end(multiprogram2_me),
                                         [](int on) { return on != 0; }));
}
