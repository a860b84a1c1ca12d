#include "layout.h"
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <span>
#include <utility>

#include "safeguards.h"

namespace
{
enum : int { CELL_GIVEN_UP = -1, CELL_FREE = 0, CELL_TAKEN = 1 };

struct Position {
    int x;
    int y;
};

// What is tried at a position, by whether its column and its row are odd. A number is 4 * log2 of
// the width + log2 of the height: the row of inData while it is sorted by width. An even place
// takes the largest pattern that fits; an odd column first those of one unit's width, an odd row
// those of one unit's height, so that small ones fill the gaps that large ones leave. Some numbers
// stand twice in a row. That is meant: keep it.
constexpr uint8_t even_even[] = {15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0};
constexpr uint8_t odd_even[] = {3, 2, 1, 15, 11, 14, 7, 13, 10, 3, 12, 6, 9, 2, 8, 5, 1, 4, 0};
constexpr uint8_t even_odd[] = {12, 8, 4, 15, 14, 11, 13, 7, 10, 12, 3, 9, 6, 8, 2, 5, 4, 1, 0};
constexpr uint8_t odd_odd[] = {0, 12, 8, 4, 15, 14, 11, 13, 7, 10, 12, 3, 9, 6, 8, 2, 5, 4, 1, 0};
} // namespace

static int vramSize = 0;                          // edge of the usable square
static int outDataSize = 0;                       // rows of outData written
static int LayOutMap[TEXTURE_EDGE][TEXTURE_EDGE]; // x, then y

static void sort_rows(INTILEDATA* rows, int INTILEDATA::*first, int INTILEDATA::*second)
{
    const auto key = [&](const INTILEDATA& r) { return std::pair(r.*first, r.*second); };
    for (int i = 0; i < TEXTURE_SIZES; i++)
        for (int k = i + 1; k < TEXTURE_SIZES; k++)
            if (key(rows[k]) < key(rows[i]))
                std::swap(rows[i], rows[k]);
}

static std::span<const uint8_t> candidates(const Position& at)
{
    if (at.x % 2 == 0)
        return at.y % 2 == 0 ? std::span<const uint8_t>(even_even) : even_odd;
    return at.y % 2 == 0 ? std::span<const uint8_t>(odd_even) : odd_odd;
}

// Only what is taken refuses: a cell that was given up may be covered by a pattern from elsewhere.
static bool fits(const INTILEDATA& size, const Position& at)
{
    if (size.remain <= 0 || at.x + size.sizeX > TEXTURE_EDGE || at.y + size.sizeY > TEXTURE_EDGE)
        return false;
    for (int x = at.x; x < at.x + size.sizeX; x++)
        for (int y = at.y; y < at.y + size.sizeY; y++)
            if (LayOutMap[x][y] == CELL_TAKEN)
                return false;
    return true;
}

// The three lines cannot come while the map is preset as below: they would tell of our own mistake.
static void mark_cell(const INTILEDATA& size, int x, int y)
{
    if (x >= vramSize)
        printf("\nError! Vram Size Over. VramSize = %d, X = %d, sizeX = %d\n", vramSize, x,
               size.sizeX);
    if (y >= vramSize)
        printf("\nError! Vram Size Over. VramSize = %d, Y = %d, sizeY = %d\n", vramSize, y,
               size.sizeY);
    if (LayOutMap[x][y] == CELL_TAKEN)
        printf("\nError! Double LayOut. (X/Y) = (%d/%d), sizeX = %d, sizeY = %d\n", x, y,
               size.sizeX, size.sizeY);
    LayOutMap[x][y] = CELL_TAKEN;
}

static void place(OUTMAPDATA* outData, INTILEDATA& size, const Position& at)
{
    for (int x = at.x; x < at.x + size.sizeX; x++)
        for (int y = at.y; y < at.y + size.sizeY; y++)
            mark_cell(size, x, y);
    outData[outDataSize++] = {.x = at.x, .y = at.y, .sizeY = size.sizeY, .sizeX = size.sizeX};
    size.remain--;
}

// Whether a pattern has found its place there; otherwise the cell is given up.
static bool fill_position(OUTMAPDATA* outData, INTILEDATA* rows, const Position& at)
{
    for (uint8_t row : candidates(at)) {
        if (!fits(rows[row], at))
            continue;
        place(outData, rows[row], at);
        return true;
    }
    LayOutMap[at.x][at.y] = CELL_GIVEN_UP;
    return false;
}

// The first free cell of a column; vramSize when it has none.
static int first_free(int x)
{
    return int(std::find(LayOutMap[x], LayOutMap[x] + vramSize, CELL_FREE) - LayOutMap[x]);
}

// Odd rows first, from the left: the gaps are filled before the packer moves on. False when nothing
// is free.
static bool next_position(Position& at)
{
    bool is_found = false;
    for (int x = 0; x < vramSize; x++) {
        const int y = first_free(x);
        if (y == vramSize)
            continue;
        if (y % 2 != 0) {
            at = {x, y};
            return true;
        }
        if (!is_found)
            at = {x, y};
        is_found = true;
    }
    return is_found;
}

static int count_patterns(INTILEDATA* rows)
{
    int count = 0;
    for (int i = 0; i < TEXTURE_SIZES; i++)
        count += rows[i].remain = rows[i].num;
    return count;
}

static void preset_map(int hwType)
{
    vramSize = hwType ? TEXTURE_EDGE / 2 : TEXTURE_EDGE;
    for (int x = 0; x < TEXTURE_EDGE; x++)
        for (int y = 0; y < TEXTURE_EDGE; y++)
            LayOutMap[x][y] = x < vramSize && y < vramSize ? CELL_FREE : CELL_TAKEN;
    outDataSize = 0;
}

int LayOut(OUTMAPDATA* outData, INTILEDATA* inData, int hwType)
{
    sort_rows(inData, &INTILEDATA::sizeX, &INTILEDATA::sizeY);
    int left = count_patterns(inData);
    preset_map(hwType);
    Position at = {0, 0};
    for (bool is_free = true; left > 0 && is_free; is_free = next_position(at))
        left -= fill_position(outData, inData, at);
    sort_rows(inData, &INTILEDATA::sizeY, &INTILEDATA::sizeX);
    return outDataSize;
}

void TextureLayout_Clear(INTILEDATA (&sizes)[TEXTURE_SIZES])
{
    for (int i = 0; i < TEXTURE_SIZES; i++)
        sizes[i] = {.sizeY = 1 << i / 4, .sizeX = 1 << i % 4};
}

INTILEDATA* TextureLayout_Row(INTILEDATA (&sizes)[TEXTURE_SIZES], int sizeX, int sizeY)
{
    for (INTILEDATA& size : sizes)
        if (size.sizeX == sizeX && size.sizeY == sizeY)
            return &size;
    return nullptr;
}
