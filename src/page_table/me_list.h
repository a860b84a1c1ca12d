// me_list: the mix/effect banks and their keys, and how far their pages lie from those of M/E-1, Key1.
#pragma once
#include "me_bank.h"
#include "rows.h"
#include <algorithm>
#include <array>
#include <iterator>

enum Side : int { NOWHERE = 0, MAIN = 1, SUB = 2, BOTH = MAIN | SUB };

// One side of a bank.
struct Bank {
    const char* word = nullptr;
    uint32_t offset = 0; // from the main side of M/E-1
    Side side = MAIN;
    bool is_pgm = false; // its keys are called DSK
};
constexpr size_t ME_BANKS = 2 * std::size(me_bank);

// Both sides of all banks, by their page ids: the rows of PageTable stand in this order.
constexpr std::array<Bank, ME_BANKS> SidesOfBanks()
{
    std::array<Bank, ME_BANKS> sides{};
    size_t n = 0;
    for (const MeBank& bank : me_bank)
        for (const Side side : {MAIN, SUB})
            sides[n++] = {bank.caption, MeBank_Offset(bank) + (side == SUB ? TO_SUB_BANK : 0), side, bank.me == 0};
    std::sort(sides.begin(), sides.end(), [](const Bank& a, const Bank& b) { return a.offset < b.offset; });
    return sides;
}
inline constexpr auto me_banks = SidesOfBanks();

struct Key {
    const char* word = nullptr;
    const char* pgm_word = nullptr;
    uint32_t offset = 0; // from Key1 of the main side, Key5 of the sub side
    Side side = MAIN;    // keys 5 to 8 live in the sub bank
};
inline constexpr Key me_keys[] = {
    {"Key1", "DSK1", 0x000000, MAIN}, {"Key2", "DSK2", 0x100000, MAIN},
    {"Key3", "DSK3", 0x200000, MAIN}, {"Key4", "DSK4", 0x300000, MAIN},
    {"Key5", "DSK5", 0x000000, SUB},  {"Key6", "DSK6", 0x100000, SUB},
    {"Key7", "DSK7", 0x200000, SUB},  {"Key8", "DSK8", 0x300000, SUB},
};
constexpr size_t ME_SIDE_KEYS = 4; // keys of one bank byte
constexpr uint32_t KEY_OFFSET = 0x100000;
constexpr size_t BankIndex(const Bank& bank) { return size_t(&bank - me_banks.data()); }
constexpr size_t KeyIndex(const Key& key) { return key.offset / KEY_OFFSET; } // 0..3 in its bank
