// me_banks: the pages of a mix/effect bank stand once in the source, for M/E-1 and Key1. Here is the rule that makes
// the rows of all banks and keys.
#pragma once
#include "me_tabs.h"
#include <array>

enum BankKind : int { ANY_BANK, ONLY_ME, ONLY_PGM }; // a table that spells out the words of keys serves one kind

struct MePage {
    PAGE page;
    Side where = BOTH;
    BankKind kind = ANY_BANK;
};

constexpr bool IsOn(const MePage& p, const Bank& bank)
{
    return (p.where & bank.side) && (p.kind == ANY_BANK || (p.kind == ONLY_PGM) == bank.is_pgm);
}

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
    PAGE row = WithKeyTabs(Shifted(page, bank.offset + key.offset), bank, key);
    row.tree[0] = bank.word;
    row.tree[1] = bank.is_pgm ? key.pgm_word : key.word;
    return row;
}

constexpr PAGE ForBank(const PAGE& page, const Bank& bank)
{
    PAGE row = WithBankTabs(Shifted(page, bank.offset), bank);
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
                if (key.side == bank.side && IsOn(p, bank)) count++;
    return count;
}
template <size_t ROWS, size_t N> constexpr std::array<PAGE, ROWS> KeyRows(const MePage (&pages)[N])
{
    std::array<PAGE, ROWS> rows{};
    size_t n = 0;
    for (const Bank& bank : me_banks)
        for (const Key& key : me_keys)
            for (const MePage& p : pages)
                if (key.side == bank.side && IsOn(p, bank)) rows[n++] = ForBankAndKey(p.page, bank, key);
    return rows;
}

// The rows of every bank.
template <size_t N> constexpr size_t BankRowCount(const MePage (&pages)[N])
{
    size_t count = 0;
    for (const Bank& bank : me_banks)
        for (const MePage& p : pages)
            if (IsOn(p, bank)) count++;
    return count;
}
template <size_t ROWS, size_t N> constexpr std::array<PAGE, ROWS> BankRows(const MePage (&pages)[N])
{
    std::array<PAGE, ROWS> rows{};
    size_t n = 0;
    for (const Bank& bank : me_banks)
        for (const MePage& p : pages)
            if (IsOn(p, bank)) rows[n++] = ForBank(p.page, bank);
    return rows;
}
