// layout: where the patterns of a package lie in an effects unit's texture memory, a square
// of units. Every pattern is 1, 2, 4 or 8 units wide and high. The same package always yields the
// same places; what a package holds, and what is done about one that is too large, is its page's.
#pragma once

constexpr int TEXTURE_SIZES = 16; // pairs of height and width
constexpr int TEXTURE_MAX = 64;   // patterns that the memory can hold: as many as it has units
constexpr int TEXTURE_EDGE = 8;   // units

// One size of pattern. A table has all pairs, by height, then by width.
struct INTILEDATA {
    int sizeY = 0;
    int sizeX = 0;
    int num = 0;    // patterns of this size in the package, 0 or more
    int remain = 0; // of them without a place, after LayOut
};

// One pattern that has its place; x and y from 0.
struct OUTMAPDATA {
    int x = 0;
    int y = 0;
    int sizeY = 0;
    int sizeX = 0;
};

// The table of all sizes, no pattern in it.
void TextureLayout_Clear(INTILEDATA (&sizes)[TEXTURE_SIZES]);
// The row of a size in such a table; null for a size that no pattern has.
INTILEDATA* TextureLayout_Row(INTILEDATA (&sizes)[TEXTURE_SIZES], int sizeX, int sizeY);

// Place the patterns that inData (16 rows, as above) counts: outData (64 rows) gets one row for
// each that found room, in the order of placing, and inData's remain the number of the others.
// hwType 0 is a memory of 8 x 8 units, otherwise it has 4 x 4. Returns the rows written; never
// fails.
int LayOut(OUTMAPDATA* outData, INTILEDATA* inData, int hwType);
