// me_list: the mix/effect banks and their keys, and how far their pages lie from those of M/E-1, Key1.
#pragma once
#include "rows.h"
#include <iterator>

enum Side : int { NOWHERE = 0, MAIN = 1, SUB = 2, BOTH = MAIN | SUB };

struct Bank {
    const char* word = nullptr;
    uint32_t offset = 0; // from M/E-1
    Side side = MAIN;
    bool is_pgm = false; // its keys are called DSK
};
inline constexpr Bank me_banks[] = {
    {"M/E-1",   0x00000000, MAIN}, {"M/E-2",   0x01000000, MAIN}, {"M/E-3", 0x02000000, MAIN},
    {"PGM/PST", 0x03000000, MAIN, true},
    {"M/E-1",   0x04000000, SUB},  {"M/E-2",   0x05000000, SUB},  {"M/E-3", 0x06000000, SUB},
    {"PGM/PST", 0x07000000, SUB, true},
    {"M/E-4",   0x70000000, MAIN}, {"M/E-5",   0x71000000, MAIN},
    {"M/E-4",   0x74000000, SUB},  {"M/E-5",   0x75000000, SUB},
};

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
constexpr size_t ME_BANKS = std::size(me_banks);
constexpr size_t ME_SIDE_KEYS = 4; // keys of one bank byte
constexpr uint32_t KEY_OFFSET = 0x100000;
constexpr size_t BankIndex(const Bank& bank) { return size_t(&bank - me_banks); }
constexpr size_t KeyIndex(const Key& key) { return key.offset / KEY_OFFSET; } // 0..3 in its bank
