// me_banks: the pages of a mix/effect bank stand once in the source, for M/E-1 and Key1. Here are the banks, the keys,
// and the rule that makes the rows of all of them.
#pragma once
#include "rows.h"
#include <array>

enum Side : int { MAIN = 1, SUB = 2, BOTH = MAIN | SUB };

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

struct MePage {
    PAGE page;
    Side where = BOTH;
};

// What a table object of the template carries as a page id (the parent of a sub page) moves with its page.
constexpr PAGE Shifted(PAGE row, uint32_t offset)
{
    row.id += offset;
    for (auto& object : row.obj)
        if (object.type == OBJ_BA && object.var != 0) object.var += offset;
    return row;
}

constexpr PAGE ForBankAndKey(const PAGE& page, const Bank& bank, const Key& key)
{
    PAGE row = Shifted(page, bank.offset + key.offset);
    row.tree[0] = bank.word;
    row.tree[1] = bank.is_pgm ? key.pgm_word : key.word;
    return row;
}

constexpr PAGE ForBank(const PAGE& page, const Bank& bank)
{
    PAGE row = Shifted(page, bank.offset);
    row.tree[0] = bank.word;
    return row;
}

// The rows of every bank and key, bank by bank.
template <size_t N> constexpr size_t KeyRowCount(const MePage (&pages)[N])
{
    size_t count = 0;
    for (const Bank& bank : me_banks)
        for (const Key& key : me_keys)
            for (const MePage& p : pages)
                if (key.side == bank.side && (p.where & bank.side)) count++;
    return count;
}
template <size_t ROWS, size_t N> constexpr std::array<PAGE, ROWS> KeyRows(const MePage (&pages)[N])
{
    std::array<PAGE, ROWS> rows{};
    size_t n = 0;
    for (const Bank& bank : me_banks)
        for (const Key& key : me_keys)
            for (const MePage& p : pages)
                if (key.side == bank.side && (p.where & bank.side)) rows[n++] = ForBankAndKey(p.page, bank, key);
    return rows;
}

// The rows of every bank.
template <size_t N> constexpr size_t BankRowCount(const MePage (&pages)[N])
{
    size_t count = 0;
    for (const Bank& bank : me_banks)
        for (const MePage& p : pages)
            if (p.where & bank.side) count++;
    return count;
}
template <size_t ROWS, size_t N> constexpr std::array<PAGE, ROWS> BankRows(const MePage (&pages)[N])
{
    std::array<PAGE, ROWS> rows{};
    size_t n = 0;
    for (const Bank& bank : me_banks)
        for (const MePage& p : pages)
            if (p.where & bank.side) rows[n++] = ForBank(p.page, bank);
    return rows;
}
