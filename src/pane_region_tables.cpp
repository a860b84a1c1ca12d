// The 47 groups of regions: the cells of their selectors, the names of the region area, the words
// of file names. What the units of this system change in them is in pane_region.
#include "pane_private.h"
#include <array>
#include <initializer_list>
#include <iterator>

#include "safeguards.h"

// --- Cells of the selectors ---
// A selector is put together from rows of eight cells. A cell without an id is empty.

namespace
{
using Row = std::array<BTNSEL, 8>;

constexpr BTNSEL EMPTY = {};

constexpr Row BANKS = {{{257, "M/E-1", 2},
                        {258, "M/E-2"},
                        {259, "M/E-3"},
                        {264, "M/E-4"},
                        {266, "M/E-5"},
                        {256, "P/P"}}};
constexpr Row BANKS_AND_ROUTER = {{{257, "M/E-1", 2},
                                   {258, "M/E-2"},
                                   {259, "M/E-3"},
                                   {264, "M/E-4"},
                                   {266, "M/E-5"},
                                   {256, "P/P"},
                                   {352, "RTR"}}};
constexpr Row SUBS = {{{261, "M/E-1\nSub"},
                       {262, "M/E-2\nSub"},
                       {263, "M/E-3\nSub"},
                       {265, "M/E-4\nSub"},
                       {267, "M/E-5\nSub"},
                       {260, "P/P\nSub"}}};
constexpr Row USERS = {{{272, "User1"},
                        {273, "User2"},
                        {274, "User3"},
                        {275, "User4"},
                        {276, "User5"},
                        {277, "User6"},
                        {278, "User7"},
                        {279, "User8"}}};
constexpr Row CHANNELS = {{{288, "DME\n1ch"},
                           {289, "DME\n2ch"},
                           {290, "DME\n3ch"},
                           {291, "DME\n4ch"},
                           {292, "DME\n5ch"},
                           {293, "DME\n6ch"},
                           {294, "DME\n7ch"},
                           {295, "DME\n8ch"}}};
// The effects unit with one channel of its own.
constexpr Row CHANNELS_E = {{{288, "DME\n1ch"}, {289, "DME\n2ch"}}};
constexpr Row SUBS_AND_CHANNELS_E = {{{261, "M/E-1\nSub"},
                                      {262, "M/E-2\nSub"},
                                      {263, "M/E-3\nSub"},
                                      {265, "M/E-4\nSub"},
                                      {267, "M/E-5\nSub"},
                                      {260, "P/P\nSub"},
                                      {288, "DME\n1ch"},
                                      {289, "DME\n2ch"}}};
constexpr Row DEVICES = {{{304, "Dev1"},
                          {305, "Dev2"},
                          {306, "Dev3"},
                          {307, "Dev4"},
                          {308, "Dev5"},
                          {309, "Dev6"},
                          {310, "Dev7"},
                          {311, "Dev8"}}};
constexpr Row DEVICES_AND_REST = {{{312, "Dev9"},
                                   {313, "Dev10"},
                                   {314, "Dev11"},
                                   {315, "Dev12"},
                                   {320, "P-Bus"},
                                   {336, "GPI"},
                                   {368, "MACRO"}}};

template <class... Rows> constexpr auto Cells(const Rows&... rows)
{
    std::array<BTNSEL, 8 * sizeof...(rows)> cells;
    size_t n = 0;
    for (const Row* row : {&rows...})
        for (const BTNSEL& cell : *row)
            cells[n++] = cell;
    return cells;
}

constexpr int KEY_ID = 512; // of M/E-1, Key1; eight ids a bank

// Texts of the 48 keys, built from the words of their banks.
struct KeyText {
    char text[12] = "";
};
constexpr auto KeyTexts(std::initializer_list<const char*> banks, const char* key_word)
{
    std::array<KeyText, 48> texts;
    size_t n = 0;
    for (const char* bank : banks) {
        for (char digit = '1'; digit <= '8'; digit++) {
            char* to = texts[n++].text;
            for (const char* from : {bank, key_word})
                while (*from)
                    *to++ = *from++;
            *to = digit;
        }
    }
    return texts;
}
constexpr auto key_captions =
    KeyTexts({"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P"}, "\nKey");
constexpr auto key_words = KeyTexts({"ME1", "ME2", "ME3", "ME4", "ME5", "PP"}, "_");

constexpr auto KeyCells()
{
    std::array<BTNSEL, 48> cells;
    for (int i = 0; i < 48; i++)
        cells[size_t(i)] = {KEY_ID + i, key_captions[size_t(i)].text, i == 0 ? 2 : 0};
    return cells;
}

constexpr int PANEL_ID = 1024;
constexpr int GUI_ID = 1025;
constexpr int TALLY_ID = 1026;
constexpr int ROUTER_ID = 1027;
constexpr int ASSIGNED_ID = 1040;
constexpr int UNIT_SWR_ID = 1280; // of the copy groups
constexpr int UNIT_DME_ID = 1296;
static_assert(UNIT_SWR_ID <= REGION_ID_LAST_SWR_UNIT && UNIT_DME_ID == REGION_ID_LAST_SWR_UNIT + 1);

// Two rows of five for switchers, two for effects units.
using UnitCells = std::array<BTNSEL, 20>;
constexpr UnitCells UNITS = {{{UNIT_SWR_ID + 0, "SWR1"},
                              {UNIT_SWR_ID + 1, "SWR2"},
                              {UNIT_SWR_ID + 2, "SWR3"},
                              {UNIT_SWR_ID + 3, "SWR4"},
                              {UNIT_SWR_ID + 4, "SWR5"},
                              {UNIT_SWR_ID + 5, "SWR6"},
                              {UNIT_SWR_ID + 6, "SWR7"},
                              {UNIT_SWR_ID + 7, "SWR8"},
                              EMPTY,
                              EMPTY,
                              {UNIT_DME_ID + 0, "DME1"},
                              {UNIT_DME_ID + 1, "DME2"},
                              {UNIT_DME_ID + 2, "DME3"},
                              {UNIT_DME_ID + 3, "DME4"},
                              {UNIT_DME_ID + 4, "DME5"},
                              {UNIT_DME_ID + 5, "DME6"},
                              {UNIT_DME_ID + 6, "DME7"},
                              {UNIT_DME_ID + 7, "DME8"}}};

// The cells of units are filled in when a selector opens; until then the first switcher stands.
constinit BTNSEL RegionBtn_SETUP[24] = {
    {REGION_ID_SWR, "SWR1", 2},
    EMPTY,
    EMPTY,
    EMPTY,
    EMPTY,
    EMPTY, // three a switcher
    EMPTY,
    EMPTY,
    EMPTY,
    EMPTY,
    EMPTY,
    EMPTY, // effects units
    EMPTY,
    EMPTY,
    EMPTY,
    EMPTY,
    EMPTY,
    EMPTY,
    {PANEL_ID, "PNL"},
    {GUI_ID, "GUI"},
    {TALLY_ID, "TLY"},
    {ROUTER_ID, "RTR"},
};
constinit BTNSEL RegionBtn_INITSTAT[12] = {
    {REGION_ID_SWR, "SWR1", 2}, EMPTY, {PANEL_ID, "PNL"}, EMPTY,
    // effects units
};
constinit BTNSEL RegionBtn_SWR[2] = {{REGION_ID_SWR, "SWR1", 2}};
constinit BTNSEL RegionBtn_USERSETUP[6] = {{REGION_ID_SWR, "SWR1", 2}};
constinit BTNSEL RegionBtn_EXTHDD[2] = {{REGION_ID_SWR, "SWR1", 2}};
constinit BTNSEL RegionBtn_EXTHDD_DP_DL[2] = {{REGION_ID_SWR, "SWR1", 2}};

constinit auto RegionBtn_EFFECT = Cells(BANKS, USERS, CHANNELS, DEVICES, DEVICES_AND_REST);
constinit auto RegionBtn_EFFECT2 = Cells(BANKS, USERS, CHANNELS, DEVICES, DEVICES_AND_REST);
constinit auto RegionBtn_EFFECT_e =
    Cells(BANKS, USERS, SUBS, CHANNELS_E, DEVICES, DEVICES_AND_REST);
constinit auto RegionBtn_EFFECTF_e = Cells(BANKS, USERS, CHANNELS_E, DEVICES, DEVICES_AND_REST);
constinit auto RegionBtn_EFFECT_MP2 =
    Cells(BANKS, USERS, SUBS, CHANNELS, DEVICES, DEVICES_AND_REST);
constinit auto RegionBtn_EFFECTF_MP2 =
    Cells(BANKS, USERS, SUBS, CHANNELS, DEVICES, DEVICES_AND_REST);
constinit auto RegionBtn_SNAPSHOT = Cells(BANKS, USERS, CHANNELS);
constinit auto RegionBtn_SNAPSHOT2 = Cells(BANKS_AND_ROUTER, USERS, CHANNELS);
constinit auto RegionBtn_SNAPSHOT_e = Cells(BANKS_AND_ROUTER, USERS, SUBS_AND_CHANNELS_E);
constinit auto RegionBtn_SNAPSHOTF_e = Cells(BANKS, USERS, CHANNELS_E);
constinit auto RegionBtn_SNAPSHOT_MP2 = Cells(BANKS_AND_ROUTER, USERS, SUBS, CHANNELS);
constinit auto RegionBtn_SNAPSHOTF_MP2 = Cells(BANKS, USERS, SUBS, CHANNELS);

// The registers beyond 99 of the devices. ALL makes the first device the reference, the third cell.
using DeviceCells = std::array<BTNSEL, 24>;
constexpr DeviceCells DEVICE_REGISTERS = {{{320, "P-Bus", 2},
                                           {336, "GPI"},
                                           {304, "Dev1"},
                                           {305, "Dev2"},
                                           {306, "Dev3"},
                                           {307, "Dev4"},
                                           EMPTY,
                                           EMPTY,
                                           {368, "MACRO"},
                                           EMPTY,
                                           {308, "Dev5"},
                                           {309, "Dev6"},
                                           {310, "Dev7"},
                                           {311, "Dev8"},
                                           EMPTY,
                                           EMPTY,
                                           EMPTY,
                                           EMPTY,
                                           {312, "Dev9"},
                                           {313, "Dev10"},
                                           {314, "Dev11"},
                                           {315, "Dev12"}}};
constinit DeviceCells RegionBtn_EFFECT2_EX = DEVICE_REGISTERS;
constinit DeviceCells RegionBtn_EFFECT2_EXF = DEVICE_REGISTERS;

// The user effects of an effects unit cover all channels that it serves; the id is the first one's.
constinit BTNSEL RegionBtn_DME[2] = {{288, "DME\n1-4ch", 2}, {292, "DME\n5-8ch"}};
constinit BTNSEL RegionBtn_DME_e[2] = {{288, "DME\n1ch", 2}, {289, "DME\n2ch"}};
constinit BTNSEL RegionBtn_DME_DP_DL[4] = {
    {288, "DME\n1-2ch", 2}, {290, "DME\n3-4ch"}, {292, "DME\n5-6ch"}, {294, "DME\n7-8ch"}};
constinit BTNSEL RegionBtn_DME_7K_3G[3] = {
    {288, "DME\n1-4ch", 2}, {292, "DME\n5-6ch"}, {294, "DME\n7-8ch"}};

constinit BTNSEL RegionBtn_ME[6] = {
    {257, "ME1", 2}, {258, "ME2"}, {259, "ME3"}, {264, "ME4"}, {266, "ME5"}, {256, "PP"},
};
constinit BTNSEL RegionBtn_ME_MP2[12] = {
    {257, "ME1", 2},   {258, "ME2"},      {259, "ME3"},      {264, "ME4"},
    {266, "ME5"},      {256, "PP"},       {261, "ME1\nSub"}, {262, "ME2\nSub"},
    {263, "ME3\nSub"}, {265, "ME4\nSub"}, {267, "ME5\nSub"}, {260, "PP\nSub"},
};
constinit auto RegionBtn_KEY = KeyCells();
constinit BTNSEL RegionBtn_PANEL[1] = {{PANEL_ID, "PNL", 2}};
constinit BTNSEL RegionBtn_GUI[1] = {{GUI_ID, "GUI", 2}};
constinit BTNSEL RegionBtn_ASSIGNED[1] = {{ASSIGNED_ID, "Assigned", 2}};
constinit UnitCells RegionBtn_UNITCP = UNITS;
constinit UnitCells RegionBtn_GROUPCP = UNITS;

// --- Rows of the region area ---
// A kind of region is a row with its ids and words; the group adds the place in the area and the
// file extension.

using Words = std::initializer_list<const char*>;

constexpr REGIONGRP Regions(const char* name, int pos, std::initializer_list<int> ids, Words words,
                            const char* ext)
{
    REGIONGRP grp = {.name = name, .pos = pos};
    int n = 0;
    for (const int id : ids)
        grp.id[n++] = id;
    int w = 0;
    for (const char* word : words) {
        grp.fi_region[w] = word;
        grp.fi_ext[w++] = ext;
    }
    return grp;
}

constexpr REGIONGRP Me(int pos, const char* ext)
{
    return Regions("M/E", pos, {257, 258, 259, 264, 266}, {"ME1", "ME2", "ME3", "ME4", "ME5"}, ext);
}
constexpr REGIONGRP MeMp2(int pos, const char* ext)
{
    return Regions(
        "M/E", pos, {257, 258, 259, 264, 266, 261, 262, 263, 265, 267},
        {"ME1", "ME2", "ME3", "ME4", "ME5", "ME1_SUB", "ME2_SUB", "ME3_SUB", "ME4_SUB", "ME5_SUB"},
        ext);
}
constexpr REGIONGRP Pp(int pos, const char* ext)
{
    return Regions("P/P", pos, {256}, {"PP"}, ext);
}
constexpr REGIONGRP PpMp2(int pos, const char* ext)
{
    return Regions("P/P", pos, {256, 260}, {"PP", "PP_SUB"}, ext);
}
constexpr REGIONGRP User(int pos, const char* ext)
{
    return Regions("USR", pos, {272, 273, 274, 275, 276, 277, 278, 279},
                   {"USR1", "USR2", "USR3", "USR4", "USR5", "USR6", "USR7", "USR8"}, ext);
}
// A unit numbers its channels from 1; the second unit serves 5 to 8.
constexpr REGIONGRP Channels(int pos, const char* ext)
{
    return Regions("DME", pos, {288, 289, 290, 291, 292, 293, 294, 295},
                   {"CH1", "CH2", "CH3", "CH4", "CH1", "CH2", "CH3", "CH4"}, ext);
}
constexpr REGIONGRP ChannelsE(int pos, const char* ext)
{
    return Regions("DME", pos, {288, 289}, {"CH1", "CH1"}, ext);
}
constexpr REGIONGRP Devices(int pos)
{
    return Regions("DEV", pos, {304, 305, 306, 307, 308, 309, 310, 311, 312, 313, 314, 315},
                   {"DEV1", "DEV2", "DEV3", "DEV4", "DEV5", "DEV6", "DEV7", "DEV8", "DEV9", "DEV10",
                    "DEV11", "DEV12"},
                   "SKF");
}
constexpr REGIONGRP PBus(int pos)
{
    return Regions("PBus", pos, {320}, {"PBUS"}, "SKF");
}
constexpr REGIONGRP Gpi(int pos)
{
    return Regions("GPI", pos, {336}, {"GPI"}, "SKF");
}
constexpr REGIONGRP Macro(int pos)
{
    return Regions("MCRO", pos, {368}, {"MCRO"}, "SKF");
}
constexpr REGIONGRP Router(int pos)
{
    return Regions("RTR", pos, {352}, {"RTR"}, "SSS");
}
// Units that the system has; the words are those of one unit's entries, which repeat for the next
// one.
constexpr REGIONGRP Switchers(const char* word, const char* ext)
{
    return Regions("SWR", 0, {REGION_ID_SWR}, {word, word}, ext);
}
constexpr REGIONGRP SwitcherEntries(const char* ext1, const char* ext2, const char* ext3)
{
    REGIONGRP grp = {.name = "SWR", .pos = 0, .id = {REGION_ID_SWR}};
    const char* const ext[3] = {ext1, ext2, ext3};
    for (int i = 0; i < 3 * REGION_SWR_MAX; i++) {
        grp.fi_region[i] = "DEV";
        grp.fi_ext[i] = ext[i % 3];
    }
    return grp;
}
constexpr REGIONGRP EffectsUnits(const char* word, const char* ext)
{
    return Regions("DME", 1, {}, {word, word, word, word, word, word, word, word}, ext);
}
constexpr REGIONGRP Keys(const char* name, int bank)
{
    REGIONGRP grp = {.name = name, .pos = bank};
    for (int key = 0; key < 8; key++) {
        grp.id[key] = KEY_ID + 8 * bank + key;
        grp.fi_region[key] = key_words[size_t(8 * bank + key)].text;
        grp.fi_ext[key] = "SKS";
    }
    return grp;
}
constexpr REGIONGRP Panel(int pos, const char* ext)
{
    return Regions("PNL", pos, {PANEL_ID}, {"PNL"}, ext);
}

using Group = REGIONGRP[REGION_GRP_ROWS];

constinit Group RegionGrp_SETUP = {
    SwitcherEntries("SST", "SFS", "SCC"),
    EffectsUnits("DEV", "DST"),
    Regions("PNL", 2, {PANEL_ID, GUI_ID}, {"PNL", "GUI"}, "PST"),
    Regions("SYS", 3, {TALLY_ID, ROUTER_ID}, {"TLY", "RTR"}, "PST"),
};
constinit Group RegionGrp_INITSTAT = {Switchers("DEV", "SIS"), EffectsUnits("CHF", "DIS"),
                                      Panel(2, "PIS")};
constinit Group RegionGrp_KEYMEM = {Switchers("DEV", "SKM")};
constinit Group RegionGrp_VPROCMEM = {Switchers("DEV", "SVM")};
constinit Group RegionGrp_EFFECT = {Me(0, "SKF"), Pp(1, "SKF"), User(2, "SKF"), Channels(3, "DKF"),
                                    Devices(4),   PBus(5),      Gpi(6),         Macro(7)};
constinit Group RegionGrp_EFFECT_e = {
    MeMp2(0, "SKF"), PpMp2(1, "SKF"), User(2, "SKF"), ChannelsE(3, "DKF"),
    Devices(4),      PBus(5),         Gpi(6),         Macro(7)};
constinit Group RegionGrp_EFFECTF_e = {
    Me(0, "SKF"), Pp(1, "SKF"), User(2, "SKF"), ChannelsE(3, "DKF"),
    Devices(4),   PBus(5),      Gpi(6),         Macro(7)};
constinit Group RegionGrp_EFFECT_MP2 = {
    MeMp2(0, "SKF"), PpMp2(1, "SKF"), User(2, "SKF"), Channels(3, "DKF"),
    Devices(4),      PBus(5),         Gpi(6),         Macro(7)};
constinit Group RegionGrp_EFFECT_EX = {Devices(0), PBus(1), Gpi(2), Macro(3)};
constinit Group RegionGrp_DME = {Regions("DME", 0, {288, 292}, {"CHF", "CHF"}, "DKF")};
constinit Group RegionGrp_DME_e = {Regions("DME", 0, {288, 289}, {"CHF", "CHF"}, "DKF")};
constinit Group RegionGrp_DME_DP_DL = {
    Regions("DME", 0, {288, 290, 292, 294}, {"CHF", "CHF", "CHF", "CHF"}, "DKF")};
constinit Group RegionGrp_DME_7K_3G = {
    Regions("DME", 0, {288, 292, 294}, {"CHF", "CHF", "CHF"}, "DKF")};
constinit Group RegionGrp_SNAPSHOT = {Me(0, "SSS"), Pp(1, "SSS"), User(2, "SSS"),
                                      Channels(3, "DSS")};
constinit Group RegionGrp_SNAPSHOT2 = {Me(0, "SSS"), Pp(1, "SSS"), User(2, "SSS"),
                                       Channels(3, "DSS"), Router(4)};
constinit Group RegionGrp_SNAPSHOT_e = {MeMp2(0, "SSS"), PpMp2(1, "SSS"), User(2, "SSS"),
                                        ChannelsE(3, "DSS"), Router(4)};
constinit Group RegionGrp_SNAPSHOTF_e = {Me(0, "SSS"), Pp(1, "SSS"), User(2, "SSS"),
                                         ChannelsE(3, "DSS")};
constinit Group RegionGrp_SNAPSHOT_MP2 = {MeMp2(0, "SSS"), PpMp2(1, "SSS"), User(2, "SSS"),
                                          Channels(3, "DSS"), Router(4)};
constinit Group RegionGrp_SNAPSHOTF_MP2 = {MeMp2(0, "SSS"), PpMp2(1, "SSS"), User(2, "SSS"),
                                           Channels(3, "DSS")};
constinit Group RegionGrp_WSNAP = {Me(0, "SWS"), Pp(1, "SWS")};
constinit Group RegionGrp_DSNAP = {Me(0, "SDS"), Pp(1, "SDS")};
constinit Group RegionGrp_WSNAP_MP2 = {MeMp2(0, "SWS"), PpMp2(1, "SWS")};
constinit Group RegionGrp_DSNAP_MP2 = {MeMp2(0, "SDS"), PpMp2(1, "SDS")};
constinit Group RegionGrp_KSNAP = {Keys("ME1", 0), Keys("ME2", 1), Keys("ME3", 2),
                                   Keys("ME4", 3), Keys("ME5", 4), Keys("P/P", 5)};
constinit Group RegionGrp_SHOTBOX = {Panel(0, "PSB")};
constinit Group RegionGrp_MACRO = {Panel(0, "PMR")};
constinit Group RegionGrp_MACROATC = {Panel(0, "PMA")};
constinit Group RegionGrp_MENUMACRO = {Regions("GUI", 0, {GUI_ID}, {"GUI"}, "MMR")};
constinit Group RegionGrp_FRAMEMEM = {Switchers("FMEM", "SFM")};
constinit Group RegionGrp_FMNAME = {Switchers("DEV", "SFR")};
constinit Group RegionGrp_USERSETUP = {SwitcherEntries("SUS", "SUN", "SUP")};
constinit Group RegionGrp_SOURCENAME = {Switchers("DEV", "SUN")};
// A unit's files are copied as they are: no words of their own.
constinit Group RegionGrp_COPY = {
    Regions("SWR", 0,
            {UNIT_SWR_ID, UNIT_SWR_ID + 1, UNIT_SWR_ID + 2, UNIT_SWR_ID + 3, UNIT_SWR_ID + 4,
             UNIT_SWR_ID + 5, UNIT_SWR_ID + 6, UNIT_SWR_ID + 7},
            {}, ""),
    Regions("DME", 1,
            {UNIT_DME_ID, UNIT_DME_ID + 1, UNIT_DME_ID + 2, UNIT_DME_ID + 3, UNIT_DME_ID + 4,
             UNIT_DME_ID + 5, UNIT_DME_ID + 6, UNIT_DME_ID + 7},
            {}, ""),
};
constinit Group RegionGrp_ASSIGNED = {Regions("ASGN", 0, {ASSIGNED_ID}, {}, "")};

template <class Set> constexpr REGIONBTN Selector(Set& cells, REGIONGRP* rows, REGIONBTN row)
{
    row.btnsel = std::data(cells);
    row.cells = int(std::size(cells));
    row.regiongrp = rows;
    return row;
}
} // namespace

constexpr REGIONBTN RegionBtn[REGION_GROUPS] = {
    Selector(RegionBtn_SETUP, RegionGrp_SETUP,
             {.no = 0, .category = "SETUP", .hn = 6, .vn = 4, .units = UNITS_SETUP}),
    Selector(RegionBtn_INITSTAT, RegionGrp_INITSTAT,
             {.no = 1, .category = "INITSTAT", .hn = 4, .vn = 3, .units = UNITS_INITSTAT}),
    Selector(RegionBtn_SWR, RegionGrp_KEYMEM,
             {.no = 2, .category = "KEYMEM", .hn = 2, .vn = 1, .units = UNITS_SWR}),
    Selector(RegionBtn_SWR, RegionGrp_VPROCMEM,
             {.no = 3, .category = "VPROCMEM", .hn = 2, .vn = 1, .units = UNITS_SWR}),
    Selector(RegionBtn_EFFECT, RegionGrp_EFFECT,
             {.no = 4, .category = "EFFECT", .hn = 8, .vn = 5, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_EFFECT2, RegionGrp_EFFECT,
             {.no = 5, .category = "EFFECT", .hn = 8, .vn = 5, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_EFFECT_e, RegionGrp_EFFECT_e,
             {.no = 6, .category = "EFFECT", .hn = 8, .vn = 6, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_EFFECTF_e, RegionGrp_EFFECTF_e,
             {.no = 7, .category = "EFFECT", .hn = 8, .vn = 5, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_DME, RegionGrp_DME, {.no = 8, .category = "EFFECT", .hn = 2, .vn = 1}),
    Selector(RegionBtn_DME_e, RegionGrp_DME_e, {.no = 9, .category = "EFFECT", .hn = 2, .vn = 1}),
    Selector(RegionBtn_DME, RegionGrp_DME, {.no = 10, .category = "EFFECT", .hn = 2, .vn = 1}),
    Selector(RegionBtn_DME_e, RegionGrp_DME_e, {.no = 11, .category = "EFFECT", .hn = 2, .vn = 1}),
    Selector(RegionBtn_DME, RegionGrp_DME, {.no = 12, .category = "EFFECT", .hn = 2, .vn = 1}),
    Selector(RegionBtn_SNAPSHOT, RegionGrp_SNAPSHOT,
             {.no = 13, .category = "SNAPSHOT", .hn = 8, .vn = 3, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_SNAPSHOT2, RegionGrp_SNAPSHOT2,
             {.no = 14, .category = "SNAPSHOT", .hn = 8, .vn = 3, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_SNAPSHOT_e, RegionGrp_SNAPSHOT_e,
             {.no = 15, .category = "SNAPSHOT", .hn = 8, .vn = 3, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_SNAPSHOTF_e, RegionGrp_SNAPSHOTF_e,
             {.no = 16, .category = "SNAPSHOT", .hn = 8, .vn = 3, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_ME, RegionGrp_WSNAP, {.no = 17, .category = "WSNAP", .hn = 6, .vn = 1}),
    Selector(RegionBtn_ME, RegionGrp_DSNAP, {.no = 18, .category = "DSNAP", .hn = 6, .vn = 1}),
    Selector(RegionBtn_KEY, RegionGrp_KSNAP, {.no = 19, .category = "KSNAP", .hn = 8, .vn = 6}),
    Selector(RegionBtn_PANEL, RegionGrp_SHOTBOX,
             {.no = 20, .category = "SHOTBOX", .hn = 1, .vn = 1}),
    Selector(RegionBtn_PANEL, RegionGrp_MACRO, {.no = 21, .category = "MACRO", .hn = 1, .vn = 1}),
    Selector(RegionBtn_PANEL, RegionGrp_MACROATC,
             {.no = 22, .category = "MACROATC", .hn = 1, .vn = 1}),
    Selector(RegionBtn_SWR, RegionGrp_FRAMEMEM,
             {.no = 23, .category = "FRAMEMEM", .hn = 2, .vn = 1, .units = UNITS_SWR}),
    Selector(RegionBtn_UNITCP, RegionGrp_COPY,
             {.no = 24, .category = "UNITIDCP", .hn = 5, .vn = 4, .kind = REGION_UNIT_COPY}),
    Selector(RegionBtn_GROUPCP, RegionGrp_COPY,
             {.no = 25, .category = "GROUPIDCP", .hn = 5, .vn = 4, .kind = REGION_UNIT_COPY}),
    Selector(RegionBtn_EFFECT_MP2, RegionGrp_EFFECT_MP2,
             {.no = 26, .category = "EFFECT", .hn = 8, .vn = 6, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_SNAPSHOT_MP2, RegionGrp_SNAPSHOT_MP2,
             {.no = 27, .category = "SNAPSHOT", .hn = 8, .vn = 4, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_EFFECTF_MP2, RegionGrp_EFFECT_MP2,
             {.no = 28, .category = "EFFECT", .hn = 8, .vn = 6, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_SNAPSHOTF_MP2, RegionGrp_SNAPSHOTF_MP2,
             {.no = 29, .category = "SNAPSHOT", .hn = 8, .vn = 4, .kind = REGION_SWR_ALL}),
    Selector(RegionBtn_ME_MP2, RegionGrp_WSNAP_MP2,
             {.no = 30, .category = "WSNAP", .hn = 6, .vn = 2}),
    Selector(RegionBtn_ME_MP2, RegionGrp_DSNAP_MP2,
             {.no = 31, .category = "DSNAP", .hn = 6, .vn = 2}),
    Selector(RegionBtn_EXTHDD, RegionGrp_FRAMEMEM,
             {.no = 32,
              .category = "FRAMEMEM",
              .hn = 2,
              .vn = 1,
              .units = UNITS_SWR,
              .kind = REGION_ONE}),
    Selector(RegionBtn_GUI, RegionGrp_MENUMACRO,
             {.no = 33, .category = "MENUMACRO", .hn = 1, .vn = 1}),
    Selector(RegionBtn_EFFECT2_EX, RegionGrp_EFFECT_EX,
             {.no = 34, .category = "EFFECT", .hn = 8, .vn = 3, .all_ref = 2}),
    Selector(RegionBtn_EFFECT2_EXF, RegionGrp_EFFECT_EX,
             {.no = 35, .category = "EFFECT", .hn = 8, .vn = 3, .all_ref = 2}),
    Selector(RegionBtn_DME_DP_DL, RegionGrp_DME_DP_DL,
             {.no = 36, .category = "EFFECT", .hn = 4, .vn = 1}),
    Selector(RegionBtn_DME_DP_DL, RegionGrp_DME_DP_DL,
             {.no = 37, .category = "EFFECT", .hn = 4, .vn = 1}),
    Selector(RegionBtn_DME_DP_DL, RegionGrp_DME_DP_DL,
             {.no = 38, .category = "EFFECT", .hn = 4, .vn = 1}),
    Selector(RegionBtn_EXTHDD_DP_DL, RegionGrp_FRAMEMEM,
             {.no = 39,
              .category = "FRAMEMEM",
              .hn = 2,
              .vn = 1,
              .units = UNITS_SWR,
              .kind = REGION_KEEP_REF}),
    Selector(RegionBtn_SWR, RegionGrp_FMNAME,
             {.no = 40, .category = "FMNAME", .hn = 2, .vn = 1, .units = UNITS_SWR}),
    Selector(RegionBtn_USERSETUP, RegionGrp_USERSETUP,
             {.no = 41, .category = "USRSETUP", .hn = 3, .vn = 2, .units = UNITS_USRSETUP}),
    Selector(RegionBtn_SWR, RegionGrp_SOURCENAME,
             {.no = 42, .category = "USRSETUP", .hn = 2, .vn = 1, .units = UNITS_SWR}),
    Selector(RegionBtn_DME_7K_3G, RegionGrp_DME_7K_3G,
             {.no = 43, .category = "EFFECT", .hn = 3, .vn = 1}),
    Selector(RegionBtn_DME_7K_3G, RegionGrp_DME_7K_3G,
             {.no = 44, .category = "EFFECT", .hn = 3, .vn = 1}),
    Selector(RegionBtn_DME_7K_3G, RegionGrp_DME_7K_3G,
             {.no = 45, .category = "EFFECT", .hn = 3, .vn = 1}),
    Selector(RegionBtn_ASSIGNED, RegionGrp_ASSIGNED,
             {.no = 46, .category = "ASSIGNED", .hn = 1, .vn = 1}),
};

static constexpr bool GroupsAreSound()
{
    for (int no = 0; no < REGION_GROUPS; no++)
        if (RegionBtn[no].no != no || RegionBtn[no].cells != RegionBtn[no].hn * RegionBtn[no].vn)
            return false;
    return true;
}
static_assert(GroupsAreSound());
