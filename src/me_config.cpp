#include "me_config.h"
#include "global.h"
#include "page.h"
#include "tally_value.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

namespace
{
constexpr int OUTPUTS = 8; // of one bank
constexpr int KEYS = 8;
enum : unsigned { SIDE_MAIN = 1, SIDE_SUB = 2 };

// One bank. All zero: neither list has named it.
struct BankConfig {
    unsigned side[OUTPUTS];   // that the output carries, 0 none
    unsigned keys[OUTPUTS];   // that the output shows, bit 0 is Key1
    unsigned key_sides[KEYS]; // from the two above
    bool has_sides;
    bool has_keys;
    int rotation[KEYS];
};
} // namespace

static BankConfig bank_config[ME_COUNT]; // P/P, M/E-1 to M/E-5

static int me_of_word(const char* word)
{
    const MeBank* bank = MeBank_OfName(word);
    return bank ? bank->me : -1;
}

// --- The two lists ---

namespace
{
struct ListRow {
    BankConfig* bank = nullptr; // null: the row names nothing that there is
    int output = 0;
    const char* last = "";
};
} // namespace

static ListRow list_row(Parts& p, const char* value)
{
    if (SplitValue(p, value, 3) < 3)
        return {};
    const int me = me_of_word(p.v[0]);
    const int output = Index(p.v[1], OUTPUTS + 1) - 1;
    if (me < 0 || output < 0)
        return {};
    return {&bank_config[me], output, p.v[2]};
}

void swcnf_set(const char* value)
{
    if (IsKill(value)) {
        for (BankConfig& b : bank_config) {
            std::fill(std::begin(b.side), std::end(b.side), 0u);
            b.has_sides = false;
        }
        return;
    }
    Parts p;
    const ListRow row = list_row(p, value);
    if (!row.bank)
        return;
    row.bank->side[row.output] = Same(row.last, "Main")  ? unsigned(SIDE_MAIN)
                                 : Same(row.last, "Sub") ? unsigned(SIDE_SUB)
                                                         : 0u;
    row.bank->has_sides = true;
}

void swcnfpgm_set(const char* value)
{
    if (IsKill(value)) {
        for (BankConfig& b : bank_config) {
            std::fill(std::begin(b.keys), std::end(b.keys), 0u);
            b.has_keys = false;
        }
        return;
    }
    Parts p;
    const ListRow row = list_row(p, value);
    if (!row.bank)
        return;
    row.bank->keys[row.output] = Hex(row.last);
    row.bank->has_keys = true;
}

void mp2_keyassign_check()
{
    for (BankConfig& b : bank_config) {
        std::fill(std::begin(b.key_sides), std::end(b.key_sides), 0u);
        for (int output = 0; output < OUTPUTS; output++)
            for (int key = 0; key < KEYS; key++)
                if (b.keys[output] >> key & 1)
                    b.key_sides[key] |= b.side[output];
    }
}

// A bank of one side has all its keys there, and so has one whose lists have not come yet.
static unsigned sides_of_key(int me, int key)
{
    const BankConfig& b = bank_config[me];
    const bool is_known = multiprogram2_me[me] && b.has_sides && b.has_keys;
    return is_known ? b.key_sides[key] : unsigned(SIDE_MAIN);
}

KeyAssignText keyassign_str_get(uint32_t page)
{
    const int side = isNowPageMeKey(page);
    const MeBank* bank = MeBank_OfPage(page);
    if (side == 0 || !bank)
        return {};
    const int key = int(page >> 20 & 0x0F) - 1 + (side == 2 ? 4 : 0);
    const unsigned sides = sides_of_key(bank->me, key);
    return {sides & SIDE_MAIN ? "Main" : "", sides & SIDE_SUB ? "Sub" : ""};
}

int me_split_max()
{
    return *std::max_element(std::begin(GL_BoardMESplit), std::end(GL_BoardMESplit));
}

// --- Processed keys ---

// "Key3" and "DSK3" are key 2; -1 for other words.
static int key_of_word(const char* word)
{
    return BeginsWith(word, "Key") || BeginsWith(word, "DSK") ? Index(word + 3, KEYS + 1) - 1 : -1;
}

void GL_ProcKey_Rotation(const char* path, const char* value)
{
    char text[CMD_SIZE];
    CopyText(text, path);
    char* word[5];
    if (SplitCmds(text, word, 5) != 4 || !Same(word[2], "Processed Key") ||
        !Same(word[3], "Rotation"))
        return;
    const int me = me_of_word(word[0]);
    const int key = key_of_word(word[1]);
    if (me >= 0 && key >= 0)
        bank_config[me].rotation[key] = SwitchOrNumber(value);
}

int GL_ProcKeyRotationInfo(int me, int key)
{
    return me >= 0 && me < ME_COUNT && key >= 1 && key <= KEYS ? bank_config[me].rotation[key - 1]
                                                               : 0;
}

void me_config_reset()
{
    std::fill(std::begin(bank_config), std::end(bank_config), BankConfig{});
}
