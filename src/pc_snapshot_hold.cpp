#include "pc_snapshot_hold.h"
#include "device.h"
#include "global.h"
#include "me_config.h"
#include "snapshot_region.h"
#include "text.h"
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
enum class Sort { Bank, Sub, User, Channel, Router, None };
constexpr char CHANNEL_HELD[] = "FvFkBvBk";
constexpr int WORD_BITS = 32;
constexpr int WORD_DIGITS = 8;

// In the order of the marks.
constexpr struct {
    const char* text;  // as it travels
    const char* shown; // in a list
} me_marks[HOLD_ME_MARKS] = {
    {"A", " A"},   {"B", " B"},   {"1", " 1"},   {"2", " 2"},   {"3", " 3"},
    {"4", " 4"},   {"5", " 5"},   {"6", " 6"},   {"7", " 7"},   {"8", " 8"},
    {"U1", " U1"}, {"U2", " U2"}, {"U3", " U3"}, {"D2", " D2"},
};
} // namespace

static Sort sort_of(int region)
{
    if (region < SS_REGION_ME1 || region > SS_REGION_RTR)
        return Sort::None;
    return region <= SS_REGION_PP       ? Sort::Bank
           : region <= SS_REGION_PP_SUB ? Sort::Sub
           : region <= SS_REGION_USER8  ? Sort::User
           : region <= SS_REGION_DME8   ? Sort::Channel
                                        : Sort::Router;
}

static int bank_of(int region)
{
    return region <= SS_REGION_PP ? region : region - SS_REGION_ME1_SUB;
}

static int count(const char* flags, int marks)
{
    return int(std::count(flags, flags + marks, char(1)));
}

// --- Text to marks ---

static int marks_of_bank(const char* text, char* flags, int first)
{
    constexpr size_t READ = 24;
    char marks[READ + 1];
    ktr_strncpy(marks, text, sizeof marks);
    std::fill_n(flags, int(HOLD_ME_MARKS), char(0));
    for (int m = HOLD_U1; m < HOLD_ME_MARKS; m++) // first: their digits are no keys
        if (char* const at = strstr(marks, me_marks[m].text)) {
            flags[m] = 1;
            at[0] = at[1] = '_';
        }
    for (int m = first; m < HOLD_U1; m++)
        flags[m] = strchr(marks, me_marks[m].text[0]) != nullptr;
    return count(flags, HOLD_ME_MARKS);
}

int snapshot_xpthold_me(const char* text, char* flags)
{
    return marks_of_bank(text, flags, HOLD_A);
}

int snapshot_xpthold_me_mp2(const char* text, char* flags)
{
    return marks_of_bank(text, flags, HOLD_KEY1);
}

static unsigned hex_digit(char c)
{
    return c >= '0' && c <= '9'   ? unsigned(c - '0')
           : c >= 'A' && c <= 'F' ? unsigned(c - 'A' + 10)
           : c >= 'a' && c <= 'f' ? unsigned(c - 'a' + 10)
                                  : 0;
}

// Of words of a fixed count of digits, one behind the other, bits from the lowest on. What is
// missing is not held.
static int marks_of_words(const char* text, char* flags, int marks, int word_digits)
{
    const size_t length = strlen(text);
    for (int m = 0; m < marks; m++) {
        const int word = m / (4 * word_digits);
        const int bit = m % (4 * word_digits);
        const size_t digit = size_t(word * word_digits + word_digits - 1 - bit / 4);
        flags[m] = digit < length && (hex_digit(text[digit]) >> (bit % 4) & 1);
    }
    return count(flags, marks);
}

int snapshot_xpthold_user(const char* text, char* flags)
{
    return marks_of_words(text, flags, HOLD_USER_BUSES, WORD_DIGITS);
}

int snapshot_xpthold_router(const char* text, char* flags)
{
    return marks_of_words(text, flags, HOLD_MARKS_MAX, HOLD_RTR_LEVELS / 4);
}

int snapshot_xpthold_dme(const char* text, char* flags)
{
    flags[0] = strstr(text, "Fv") != nullptr;
    return flags[0];
}

int snapshot_xpthold_marks(int region)
{
    switch (sort_of(region)) {
    case Sort::Bank:
    case Sort::Sub: return HOLD_ME_MARKS;
    case Sort::User: return HOLD_USER_BUSES;
    case Sort::Channel: return 1;
    case Sort::Router: return HOLD_MARKS_MAX;
    default: return 0;
    }
}

int snapshot_xpthold_set(int region, const char* text, char* flags)
{
    switch (sort_of(region)) {
    case Sort::Bank: return snapshot_xpthold_me(text, flags);
    case Sort::Sub: return snapshot_xpthold_me_mp2(text, flags);
    case Sort::User: return snapshot_xpthold_user(text, flags);
    case Sort::Channel: return snapshot_xpthold_dme(text, flags);
    case Sort::Router: return snapshot_xpthold_router(text, flags);
    default: return 0;
    }
}

// --- Marks to text ---

static void write_words(const char* flags, int marks, int word_digits, char* text, size_t size)
{
    char word_text[WORD_DIGITS + 1];
    const int bits = 4 * word_digits;
    for (int first = 0; first < marks; first += bits) {
        uint32_t word = 0;
        for (int bit = 0; bit < bits && first + bit < marks; bit++)
            word |= uint32_t(flags[first + bit] != 0) << bit;
        PrintText(word_text, "%0*X", word_digits, unsigned(word));
        ktr_strncat(text, word_text, size);
    }
}
static_assert(WORD_BITS == 4 * WORD_DIGITS);

void snapshot_xpthold_text(int region, const char* flags, char* text, size_t size)
{
    const Sort sort = sort_of(region);
    *text = '\0';
    if (sort == Sort::User)
        write_words(flags, HOLD_USER_BUSES, WORD_DIGITS, text, size);
    else if (sort == Sort::Router)
        write_words(flags, HOLD_MARKS_MAX, HOLD_RTR_LEVELS / 4, text, size);
    else if (sort == Sort::Channel)
        ktr_strncpy(text, flags[0] ? CHANNEL_HELD : "false", size);
    else if (sort != Sort::None)
        for (int m = sort == Sort::Sub ? HOLD_KEY1 : HOLD_A; m < HOLD_ME_MARKS; m++)
            if (flags[m])
                ktr_strncat(text, me_marks[m].text, size);
}

// --- What a list shows ---

int snapshot_xpthold_keys(int bank)
{
    constexpr int HALF = 4;
    constexpr int HALF_SIZE = 4, HALF_SCAN = 4; // a format in which a bank has four keys
    constexpr int OTHERS = HOLD_ME_MARKS - (HOLD_U1 - HOLD_KEY1);
    const bool is_ntr40 = SYS_RefSwrType == DEVTYPE_NTR40;
    const bool is_half = SYS_Format_Size == HALF_SIZE && SYS_Format_Scan == HALF_SCAN;
    const int rows = is_half ? XptHold_Max_3G : is_ntr40 ? XptHold_Max_7K : XptHold_Max;
    int keys = rows - OTHERS;
    if (is_ntr40 && me_split_max() > 2)
        keys = std::min(keys, GL_KeyMax[bank]);
    else if (is_ntr40 && GL_KeyMax[bank] <= HALF)
        keys = HALF;
    return keys;
}

static void show_bank(int region, const char* flags, char* shown, size_t size)
{
    const int keys = snapshot_xpthold_keys(bank_of(region));
    const bool has_one_utility = SYS_RefPnlType == DEVTYPE_QRD33;
    for (int m = 0; m < HOLD_ME_MARKS; m++) {
        const bool is_hidden = m >= HOLD_KEY1 + keys && m < HOLD_U1;
        if (flags[m] && !is_hidden)
            ktr_strncat(shown, has_one_utility && m == HOLD_U1 ? " U" : me_marks[m].shown, size);
    }
}

void snapshot_xpthold_display(int region, const char* text, char* shown, size_t size)
{
    char flags[HOLD_MARKS_MAX];
    const int held = snapshot_xpthold_set(region, text, flags);
    const Sort sort = sort_of(region);
    *shown = '\0';
    if (held == 0)
        return;
    if (sort == Sort::Bank || sort == Sort::Sub)
        show_bank(region, flags, shown, size);
    else if (sort == Sort::Channel)
        ktr_strncpy(shown, " Fv Fk Bv Bk", size);
    else if (sort == Sort::Router)
        ktr_strncpy(shown, " RTR", size);
    else if (count(flags, HOLD_USER_AUX) > 0)
        ktr_strncpy(shown, " Aux", size);
}

// A bank has more marks than it takes for all: not every system has each of the extra buses.
static bool is_all(int region, int held)
{
    const Sort sort = sort_of(region);
    if (sort == Sort::Bank || sort == Sort::Sub) {
        constexpr int BACKGROUNDS = 2;
        const bool has_few_keys = GL_KeyMax[bank_of(region)] < 5;
        const bool is_exact = sort == Sort::Bank && SYS_RefPnlType == DEVTYPE_QRD33;
        const int all = (has_few_keys ? 9 : 13) - (sort == Sort::Sub ? BACKGROUNDS : 0);
        return is_exact ? held == 13 : held >= all;
    }
    return held >= (sort == Sort::User ? HOLD_USER_AUX : snapshot_xpthold_marks(region));
}

const char* snapshot_xpthold_flag(int region, const char* text)
{
    char flags[HOLD_MARKS_MAX];
    const int held = snapshot_xpthold_set(region, text, flags);
    return held == 0 ? "" : is_all(region, held) ? " X" : " x";
}
