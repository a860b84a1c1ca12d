// me_tabs: the left tabs of a bank and the bottom tabs of a key. They stand once, for M/E-1 and Key1; a table of each
// bank and key is made by rule, since a tab names the page that it opens.
#pragma once
#include "a_hf.h"
#include "a_vf.h"
#include "me_list.h"

// --- What there is ---

// A tab whose page does not exist yet is NOWHERE and stays out of every table.
template <typename ROW> struct MeTab {
    ROW row;
    Side where = BOTH;
    bool only_pgm = false;
};
template <typename ROW> constexpr bool IsOn(const MeTab<ROW>& tab, const Bank& bank)
{
    return (tab.where & bank.side) && (bank.is_pgm || !tab.only_pgm);
}

// The groups of a bank below its four keys.
inline constexpr MeTab<VF_TBL> me_groups[] = {
    {{.id = 5, .caption = "Wipe",     .page = 0x11510000}},
    {{.id = 6, .caption = "DME Wipe", .page = 0x11610000}},
    {{.id = 7, .caption = "Misc",     .page = 0x11710000}},
};
constexpr uint32_t FIRST_GROUP = 5; // page digit of the first of them

inline constexpr MeTab<HF_TBL> me_key_tabs[] = {
    {{.id = 1, .caption = "Type",      .page = 0x11110000}},
    {{.id = 2, .caption = "Edge",      .page = 0x11120000,
      .statcmd = {"~2@Edge@Edge#Border", "~2@Edge@Edge#Drop Border", "~2@Edge@Edge#Shadow",
                  "~2@Edge@Edge#Outline", "~2@Edge@Edge#Emboss", "~2@Edge@Edge#Zabton", "~2@Edge@Soft Edge#true",
                  "~2@Edge@Key Drop#true"}}},
    {{.id = 3, .caption = "Main Mask", .page = 0x11130000, .statcmd = {"~2@Main Mask@Main Mask#true"}}},
    {{.id = 4, .caption = "Sub Mask",  .page = 0x11140000, .statcmd = {"~2@Sub Mask@Sub Mask#true"}}},
    {{.id = 5, .caption = "Resizer",   .page = 0x11150000, .statcmd = {"~2@Processed Key@Resizer#true"}}},
    {{.id = 6, .caption = "Processed\nKey", .page = 0x11160000, .statcmd = {"~2@Processed Key@Processed Key#true"}}},
    {{.id = 7, .caption = "Transition/\nVideo\nProcess", .page = 0x11170000, .statcmd = {"~2@Video Process@Video Process#true"}}},
};

// The pages over all keys of a bank.
inline constexpr MeTab<HF_TBL> me_top_tabs[] = {
    {{.id = 1, .caption = "Keys",    .page = 0x11000000}},
    {{.id = 2, .caption = "Signals", .page = 0x11000001}},
    {{.id = 3, .caption = "Process", .page = 0x11000002}},
};

// The sub side has a wipe of one pattern, and none of what the keys of a bank share.
#define ST_MODIFIED(modify) {modify "@Modulation#H", modify "@Modulation#V", modify "@Modulation#H&V", modify "@Speed#true", \
                             modify "@Pairing#true", modify "@Split#true"}
inline constexpr MeTab<HF_TBL> me_wipe_tabs[] = {
    {{.id = 1, .caption = "Main\nPattern",    .page = 0x11510000, .statcmd = {"~2@Main Pattern@Position#true", "~2@Main Pattern@Auto Center#true"}}},
    {{.id = 2, .caption = "Sub\nPattern",     .page = 0x11520000, .statcmd = {"~2@Sub Pattern@Position#true", "~2@Sub Pattern@Auto Center#true"}}, MAIN},
    {{.id = 3, .caption = "Pattern\nMix",     .page = 0x11530000,
      .statcmd = {"~2@Pattern Mix@Pattern Mix#Mix", "~2@Pattern Mix@Pattern Mix#Additive Mix", "~2@Pattern Mix@Pattern Mix#NAM",
                  "~2@Pattern Mix@Pattern Mix#Morphing", "~2@Pattern Mix@Pattern Mix#Replicate"}}, MAIN},
    {{.id = 4, .caption = "Edge/\nDirection", .page = 0x11540000,
      .statcmd = {"~2@Edge@Border#true", "~2@Edge@Soft#true", "~2@Direction@Reverse#true", "~2@Direction@Norm/Rev#true",
                  "~2@Direction@Pattern Limit#true"}}},
    {{.id = 5, .caption = "Main\nModify",     .page = 0x11550000, .statcmd = ST_MODIFIED("~2@Main Modify")}},
    {{.id = 6, .caption = "Sub\nModify",      .page = 0x11560000, .statcmd = ST_MODIFIED("~2@Sub Modify")}, MAIN},
    {{.id = 7, .caption = "Wipe\nSnapshot",   .page = 0x11570000}},
};
#undef ST_MODIFIED
inline constexpr MeTab<HF_TBL> me_dmewipe_tabs[] = {
    {{.id = 1, .caption = "Pattern\nSelect",   .page = 0x11610000}},
    {{.id = 2, .caption = "Pattern\nModifier", .page = 0x11630000,
      .statcmd = {"~2@Pattern Modifier@Size#true", "~2@Pattern Modifier@Transparency#true"}}},
    {{.id = 3, .caption = "Edge/\nDirection",  .page = 0x11640000,
      .statcmd = {"~2@Edge@Border#true", "~2@Edge@Soft#true", "~2@Edge/Direction@Shadow#true"}}},
    {{.id = 4, .caption = "Modify",            .page = 0x11650000,
      .statcmd = {"~2@Modify@Position@Position@1#true", "~2@Modify@Size@1#true", "~2@Modify@Crop Mode@Crop@1#true"}}},
    {{.id = 5, .caption = "DME Wipe\nSnapshot", .page = 0x11670000}},
};
inline constexpr MeTab<HF_TBL> me_misc_tabs[] = {
    {{.id = 1, .caption = "Transition",       .page = 0x11710000,
      .statcmd = {"~2@Transition@Transition Mode#Limit", "~2@Transition@Transition Preview#true"}}},
    {{.id = 2, .caption = "Video\nProcess",   .page = 0x11720000, .statcmd = {"~2@Video Process@Video Process#true"}}},
    {{.id = 3, .caption = "Key\nPriority",    .page = 0x11730000, .statcmd = {"~2@Transition@Next Transition@Key Priority#true"}}, MAIN},
    {{.id = 3, .caption = "Key\nPriority",    .page = 0x11730000, .statcmd = {"~2@Key Priority@Enable#true"}}, SUB},
    {{.id = 4, .caption = "Key\nAssign",      .page = 0x11740000}, MAIN},
    {{.id = 5, .caption = "Clip\nTransition", .page = 0x11760000, .statcmd = {"~2@Transition@Clip#true"}}, MAIN},
    {{.id = 6, .caption = "Snapshot",         .page = 0x11770000,
      .statcmd = {"~2@Snapshot@Effect Dissolve#true", "~2@Snapshot@Auto Transition#true", "~2@Snapshot@Key Disable#true"}}, MAIN},
    {{.id = 7, .caption = "Fade to\nBlack",   .page = 0x11710002,
      .statcmd = {"~2@Transition@FTB@FTB#true", "~2@Transition@FTB@Inhibit#true"}}, MAIN, true},
};

// --- The rule ---

// The last row stays as it is made: its id of 0 ends the table.
struct VfTable { VF_TBL row[ME_SIDE_KEYS + std::size(me_groups) + 1]; };
struct HfTable { HF_TBL row[HF_MAX + 1]; };

constexpr VfTable VfOf(const Bank& bank)
{
    VfTable table{};
    size_t n = 0;
    for (const Key& key : me_keys)
        if (key.side == bank.side)
            table.row[n++] = {.id = int(KeyIndex(key)) + 1,
                              .caption = bank.is_pgm ? key.pgm_word : key.word,
                              .page = 0x11110000 + bank.offset + key.offset};
    for (const auto& group : me_groups)
        if (IsOn(group, bank)) {
            table.row[n] = group.row;
            table.row[n++].page += bank.offset;
        }
    return table;
}

template <size_t N> constexpr HfTable HfOf(const MeTab<HF_TBL> (&tabs)[N], const Bank& bank, uint32_t key_offset = 0)
{
    HfTable table{};
    size_t n = 0;
    for (const auto& tab : tabs)
        if (IsOn(tab, bank)) {
            table.row[n] = tab.row;
            table.row[n++].page += bank.offset + key_offset;
        }
    return table;
}

struct MeTabTables {
    VfTable vf[ME_BANKS];
    HfTable hf_key[ME_BANKS][ME_SIDE_KEYS];
    HfTable hf_group[ME_BANKS][std::size(me_groups)];
    HfTable hf_top[ME_BANKS];
};
constexpr MeTabTables MakeMeTabs()
{
    MeTabTables all{};
    for (size_t b = 0; b < ME_BANKS; b++) {
        all.vf[b] = VfOf(me_banks[b]);
        for (size_t k = 0; k < ME_SIDE_KEYS; k++) all.hf_key[b][k] = HfOf(me_key_tabs, me_banks[b], uint32_t(k) * KEY_OFFSET);
        all.hf_group[b][0] = HfOf(me_wipe_tabs, me_banks[b]);
        all.hf_group[b][1] = HfOf(me_dmewipe_tabs, me_banks[b]);
        all.hf_group[b][2] = HfOf(me_misc_tabs, me_banks[b]);
        all.hf_top[b] = HfOf(me_top_tabs, me_banks[b]);
    }
    return all;
}
inline constexpr MeTabTables me_tabs = MakeMeTabs();
constexpr bool TabsFit()
{
    for (const auto& bank : me_tabs.hf_group)
        for (const HfTable& table : bank)
            if (table.row[HF_MAX].id != 0) return false;
    return std::size(me_key_tabs) <= HF_MAX;
}
static_assert(TabsFit());

// What the pages of the template name.
inline constexpr const VF_TBL* vf_me1 = me_tabs.vf[0].row;
inline constexpr const HF_TBL* hf_me_key = me_tabs.hf_key[0][0].row;
inline constexpr const HF_TBL* hf_me_wipe = me_tabs.hf_group[0][0].row;
inline constexpr const HF_TBL* hf_me_dmewipe = me_tabs.hf_group[0][1].row;
inline constexpr const HF_TBL* hf_me_misc = me_tabs.hf_group[0][2].row;
inline constexpr const HF_TBL* hf_me_top = me_tabs.hf_top[0].row;

// The tabs of the template become those of the page's own bank,
constexpr PAGE WithBankTabs(PAGE page, const Bank& bank)
{
    const uint32_t group = page.id >> 20 & 0xF;
    for (auto& object : page.obj) {
        if (object.type == OBJ_VF) object.addr = me_tabs.vf[BankIndex(bank)].row;
        if (object.type == OBJ_HF && group >= FIRST_GROUP)
            object.addr = me_tabs.hf_group[BankIndex(bank)][group - FIRST_GROUP].row;
        if (object.type == OBJ_HF && group == 0) object.addr = me_tabs.hf_top[BankIndex(bank)].row;
    }
    return page;
}
// and on the pages of a key its own tab is the chosen one and the bottom tabs are its own.
constexpr PAGE WithKeyTabs(const PAGE& page, const Bank& bank, const Key& key)
{
    PAGE row = WithBankTabs(page, bank);
    for (auto& object : row.obj) {
        if (object.type == OBJ_VF) object.var = uint32_t(KeyIndex(key)) + 1;
        if (object.type == OBJ_HF) object.addr = me_tabs.hf_key[BankIndex(bank)][KeyIndex(key)].row;
    }
    return row;
}
static_assert(me_tabs.vf[1].row[1].page == 0x12210000 && me_tabs.hf_key[10][3].row[1].page == 0x85420000);
