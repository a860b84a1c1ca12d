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
};

// The groups of a bank below its four keys.
inline constexpr MeTab<VF_TBL> me_groups[] = {
    {{.id = 5, .caption = "Wipe",     .page = 0x11510000}, NOWHERE},
    {{.id = 6, .caption = "DME Wipe", .page = 0x11610000}, NOWHERE},
    {{.id = 7, .caption = "Misc",     .page = 0x11710000}, NOWHERE},
};

inline constexpr MeTab<HF_TBL> me_key_tabs[] = {
    {{.id = 1, .caption = "Type",      .page = 0x11110000}},
    {{.id = 2, .caption = "Edge",      .page = 0x11120000,
      .statcmd = {"~2@Edge@Edge Type#Border", "~2@Edge@Edge Type#Drop Border", "~2@Edge@Edge Type#Shadow",
                  "~2@Edge@Edge Type#Outline", "~2@Edge@Edge Type#Emboss", "~2@Edge@Soft Edge#true",
                  "~2@Edge@Key Drop#true"}}},
    {{.id = 3, .caption = "Main Mask", .page = 0x11130000, .statcmd = {"~2@Main Mask@Main Mask#true"}}},
    {{.id = 4, .caption = "Sub Mask",  .page = 0x11140000, .statcmd = {"~2@Sub Mask@Sub Mask#true"}}},
    {{.id = 5, .caption = "Resizer",   .page = 0x11150000}},
    {{.id = 6, .caption = "Processed\nKey", .page = 0x11160000}},
    {{.id = 7, .caption = "Transition/\nVideo\nProcess", .page = 0x11170000}},
};

// --- The rule ---

// The last row stays as it is made: its id of 0 ends the table.
struct VfTable { VF_TBL row[ME_SIDE_KEYS + std::size(me_groups) + 1]; };
struct HfTable { HF_TBL row[std::size(me_key_tabs) + 1]; };

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
        if (group.where & bank.side) {
            table.row[n] = group.row;
            table.row[n++].page += bank.offset;
        }
    return table;
}

constexpr HfTable HfOf(const Bank& bank, uint32_t key_offset)
{
    HfTable table{};
    size_t n = 0;
    for (const auto& tab : me_key_tabs)
        if (tab.where & bank.side) {
            table.row[n] = tab.row;
            table.row[n++].page += bank.offset + key_offset;
        }
    return table;
}

struct MeTabTables {
    VfTable vf[ME_BANKS];
    HfTable hf_key[ME_BANKS][ME_SIDE_KEYS];
};
constexpr MeTabTables MakeMeTabs()
{
    MeTabTables all{};
    for (size_t b = 0; b < ME_BANKS; b++) {
        all.vf[b] = VfOf(me_banks[b]);
        for (size_t k = 0; k < ME_SIDE_KEYS; k++) all.hf_key[b][k] = HfOf(me_banks[b], uint32_t(k) * KEY_OFFSET);
    }
    return all;
}
inline constexpr MeTabTables me_tabs = MakeMeTabs();

// What the pages of the template name.
inline constexpr const VF_TBL* vf_me1 = me_tabs.vf[0].row;
inline constexpr const HF_TBL* hf_me_key = me_tabs.hf_key[0][0].row;

// The left tabs of the template become those of the page's own bank,
constexpr PAGE WithBankTabs(PAGE page, const Bank& bank)
{
    for (auto& object : page.obj)
        if (object.type == OBJ_VF) object.addr = me_tabs.vf[BankIndex(bank)].row;
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
