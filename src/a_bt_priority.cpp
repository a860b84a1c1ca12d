// The key priority matrix: sixteen buttons, a row a priority, a column a key. The value lists the
// priority of each key: "1,3,2,4" for keys 1 to 4, and for banks of eight keys the same for keys 5
// to 8 behind a comma. The page of keys 5 to 8 has the same button ids and reads the second half.
#include "a_bt.h"
#include "netio.h"
#include "text.h"
#include <cstring>
#include "safeguards.h"

constexpr int KEYS = 4;
constexpr size_t HALF = 2 * KEYS - 1; // characters of four digits with their commas
constexpr size_t SECOND_HALF = HALF + 1;

static int priority_of(const BT_MEM* b)
{
    return b->id >> 4;
}

static int key_of(const BT_MEM* b)
{
    return b->id & 0x0F;
}

// The page has other buttons beside the matrix.
static bool in_matrix(const BT_MEM* b)
{
    return priority_of(b) >= 1 && priority_of(b) <= KEYS && key_of(b) >= 1 && key_of(b) <= KEYS;
}

static int matrix_tally(BT_MEM* b, const char* half)
{
    if (!in_matrix(b) || strlen(half) < HALF)
        return -1;
    const int priority = half[2 * (key_of(b) - 1)] - '0';
    b->status = priority == priority_of(b) ? BT_ON : BT_OFF;
    b->redraw = 1;
    return 0;
}

int bt_tly_keypriority(BT_MEM* b, int i, const char* path, const char* value)
{
    return i == 0 ? matrix_tally(b, value) : bt_tly_normal(b, i, path, value);
}

int bt_tly_keypriority1(BT_MEM* b, int i, const char* path, const char* value)
{
    if (i != 0)
        return bt_tly_normal(b, i, path, value);
    return strlen(value) < SECOND_HALF ? -1 : matrix_tally(b, value + SECOND_HALF);
}

// The keys from the highest priority down, as the buttons that are on tell. False while that isn't
// known.
static bool read_order(int (&order)[KEYS])
{
    int known = 0;
    for (const BT_MEM* b = bt_first(); b->id >= 1; b++) {
        if (!in_matrix(b) || b->status != BT_ON)
            continue;
        int& key = order[priority_of(b) - 1];
        if (key == 0)
            known++;
        key = key_of(b);
    }
    return known == KEYS;
}

// The priorities by key after the press, as "1,3,2,4". False when the press can't be carried out.
static bool priorities_after(const BT_MEM* b, char (&text)[HALF + 1])
{
    int order[KEYS] = {};
    if (!in_matrix(b) || !read_order(order))
        return false;
    int from = 0;
    while (from < KEYS && order[from] != key_of(b))
        from++;
    if (from == KEYS)
        return false;
    const int to = priority_of(b) - 1;
    for (; from < to; from++)
        order[from] = order[from + 1];
    for (; from > to; from--)
        order[from] = order[from - 1];
    order[to] = key_of(b);

    CopyText(text, "0,0,0,0");
    for (int place = 0; place < KEYS; place++)
        text[2 * (order[place] - 1)] = char('1' + place);
    return true;
}

int bt_sel_keypriority(BT_MEM* b)
{
    char mine[HALF + 1];
    if (!priorities_after(b, mine))
        return 0;
    const char* others = strlen(b->tally[0]) > SECOND_HALF ? b->tally[0] + SECOND_HALF : nullptr;
    if (others)
        Net_SendCommandFormat("put %s#%s,%s", b->cmd[0], mine, others);
    else
        Net_SendCommandFormat("put %s#%s", b->cmd[0], mine);
    return 0;
}

int bt_sel_keypriority1(BT_MEM* b)
{
    char mine[HALF + 1];
    if (strlen(b->tally[0]) < HALF || !priorities_after(b, mine))
        return 0;
    Net_SendCommandFormat("put %s#%.*s,%s", b->cmd[0], int(HALF), b->tally[0], mine);
    return 0;
}
