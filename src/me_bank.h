// me_bank: the mix/effect banks of the switcher. What is asked of a bank anywhere, its names, the
// page ids of its sides, its number with the server, stands here once; a further bank is a row.
// What the banks are set to (multi program, keys, split) belongs to global and me_config.
#pragma once
#include "global.h"
#include <cstring>
#include <iterator>

// The order of the rows is that of the menu keys, P/P last, and the place of a bank in
// SYS_MEOperation, SYS_RefSwrScreenAspect, GL_KeyMax and the regions of the snapshots. The server
// counts with P/P first, as do multiprogram2_me, me_config_type and GL_MEAssign.
struct MeBank {
    const char* caption; // menu key and first word of the pages' paths
    const char* word;    // in the lists of the setup; the same but for P/P
    int place;           // in this table
    int me;              // as the server counts: 0 P/P, 1 to 5 the M/Es
    uint32_t main;       // top byte of the main side's page ids
    int* key_transition; // the bank's flag: keys have a transition for on and another for off
};
inline constexpr MeBank me_bank[] = {
    {"M/E-1", "M/E-1", 0, 1, 0x11, &SYS_KeyTransitionME1},
    {"M/E-2", "M/E-2", 1, 2, 0x12, &SYS_KeyTransitionME2},
    {"M/E-3", "M/E-3", 2, 3, 0x13, &SYS_KeyTransitionME3},
    {"M/E-4", "M/E-4", 3, 4, 0x81, &SYS_KeyTransitionME4},
    {"M/E-5", "M/E-5", 4, 5, 0x82, &SYS_KeyTransitionME5},
    {"PGM/PST", "P/P", 5, 0, 0x14, &SYS_KeyTransitionPP},
};
constexpr bool MeBanksAreSound()
{
    for (int i = 0; i < int(std::size(me_bank)); i++)
        if (me_bank[i].place != i || me_bank[i].me != (i + 1) % ME_COUNT)
            return false;
    return std::size(me_bank) == ME_COUNT;
}
static_assert(MeBanksAreSound());

// Keys 5 to 8, and the other side of a bank in multi program 2, lie this far above the main side.
constexpr uint32_t TO_SUB_BANK = 0x04000000;

// How far the pages of the bank lie from those of M/E-1.
constexpr uint32_t MeBank_Offset(const MeBank& bank)
{
    return (bank.main - me_bank[0].main) << 24;
}
constexpr bool MeBank_IsMain(const MeBank& bank, uint32_t page)
{
    return page >> 24 == bank.main;
}
constexpr bool MeBank_IsSub(const MeBank& bank, uint32_t page)
{
    return page >> 24 == bank.main + (TO_SUB_BANK >> 24);
}

// The operator may not touch the bank: it is disabled or inhibited, or a single simulcast has taken
// it. Neither of its sides has a page then.
inline bool MeBank_IsOff(const MeBank& bank)
{
    constexpr int SIMUL_BANKS = 2; // M/E-1 and M/E-2
    return SYS_MEOperation[bank.place] != 0 || (SYS_Simul != 0 && bank.place < SIMUL_BANKS);
}

// --- Look-ups; null when it is no bank's ---

// The bank whose main or sub side the page belongs to.
constexpr const MeBank* MeBank_OfPage(uint32_t page)
{
    for (const MeBank& bank : me_bank)
        if (MeBank_IsMain(bank, page) || MeBank_IsSub(bank, page))
            return &bank;
    return nullptr;
}
// By the first word of a page's path; null takes a null.
inline const MeBank* MeBank_OfCaption(const char* caption)
{
    for (const MeBank& bank : me_bank)
        if (caption && strcmp(bank.caption, caption) == 0)
            return &bank;
    return nullptr;
}
// By the word of the setup's paths and lists.
inline const MeBank* MeBank_OfWord(const char* word)
{
    for (const MeBank& bank : me_bank)
        if (word && strcmp(bank.word, word) == 0)
            return &bank;
    return nullptr;
}
// By either: some lists and paths carry one, some the other.
inline const MeBank* MeBank_OfName(const char* name)
{
    const MeBank* bank = MeBank_OfWord(name);
    return bank ? bank : MeBank_OfCaption(name);
}
