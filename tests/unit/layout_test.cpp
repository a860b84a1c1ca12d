#include "harness.h"
#include "layout.h"
#include <map>
#include <numeric>
#include <random>
#include <set>
#include <tuple>

namespace
{
struct Package {
    INTILEDATA sizes[TEXTURE_SIZES];
    OUTMAPDATA places[TEXTURE_MAX];
    int placed = 0;

    Package() { TextureLayout_Clear(sizes); }
    Package& With(int width, int height, int count)
    {
        TextureLayout_Row(sizes, width, height)->num = count;
        return *this;
    }
    Package& Pack(int hw_type = 0)
    {
        placed = LayOut(places, sizes, hw_type);
        return *this;
    }
    // "width x height at x, y" of all, in the order of placing.
    std::string Places() const
    {
        std::string text;
        for (const OUTMAPDATA* p = places; p < places + placed; p++)
            text += std::to_string(p->sizeX) + "x" + std::to_string(p->sizeY) + "@" +
                    std::to_string(p->x) + "," + std::to_string(p->y) + " ";
        return text;
    }
    int Left() const
    {
        int left = 0;
        for (const INTILEDATA& size : sizes)
            left += size.remain;
        return left;
    }
};
} // namespace

TEST(TextureLayout, PlacesThatAreKnown)
{
    static const struct {
        std::vector<std::tuple<int, int, int>> patterns; // width, height, count
        int hw_type;
        const char* places;
        int left;
    } cases[] = {
        {{}, 0, "", 0},
        {{{8, 8, 2}, {1, 1, 1}}, 0, "8x8@0,0 ", 2},
        {{{4, 4, 4}}, 0, "4x4@0,0 4x4@0,4 4x4@4,0 4x4@4,4 ", 0},
        {{{8, 1, 1}, {4, 4, 2}}, 1, "4x4@0,0 ", 2}, // the small memory: 8 units are refused
        {{{8, 4, 1}, {1, 1, 1}}, 0, "8x4@0,0 1x1@0,4 ", 0},
        {{{1, 8, 1}, {1, 4, 1}, {1, 1, 1}}, 0, "1x8@0,0 1x4@1,0 1x1@1,4 ", 0},
        {{{1, 1, 3}, {2, 2, 2}, {4, 1, 1}},
         0,
         "4x1@0,0 2x2@0,1 2x2@0,3 1x1@0,5 1x1@1,5 1x1@2,1 ",
         0},
        {{{1, 8, 9}}, 0, "1x8@0,0 1x8@1,0 1x8@2,0 1x8@3,0 1x8@4,0 1x8@5,0 1x8@6,0 1x8@7,0 ", 1},
    };
    for (const auto& c : cases) {
        Package package;
        for (const auto& [width, height, count] : c.patterns)
            package.With(width, height, count);
        EXPECT_EQ(package.Pack(c.hw_type).Places(), c.places);
        EXPECT_EQ(package.Left(), c.left) << c.places;
    }
}

TEST(TextureLayout, WhateverIsPlacedFitsAndNeverOverlaps)
{
    std::mt19937 random(4711);
    for (int round = 0; round < 10000; round++) {
        Package package;
        const int hw_type = round % 8 == 0, edge = hw_type ? 4 : 8;
        for (int n = int(random() % 24); n > 0; n--)
            package.sizes[random() % TEXTURE_SIZES].num += 1 + int(random() % 3);
        package.Pack(hw_type);
        ASSERT_LE(package.placed, TEXTURE_MAX);

        std::set<std::pair<int, int>> taken;
        std::map<std::pair<int, int>, int> count;
        size_t cells = 0;
        for (const OUTMAPDATA* p = package.places; p < package.places + package.placed; p++) {
            ASSERT_TRUE(p->x >= 0 && p->y >= 0 && p->x + p->sizeX <= edge &&
                        p->y + p->sizeY <= edge)
                << package.Places();
            for (int i = 0; i < p->sizeX * p->sizeY; i++)
                taken.insert({p->x + i % p->sizeX, p->y + i / p->sizeX});
            cells += size_t(p->sizeX * p->sizeY);
            count[{p->sizeY, p->sizeX}]++;
        }
        ASSERT_EQ(taken.size(), cells) << "two lie over each other: " << package.Places();
        for (int i = 0; i < TEXTURE_SIZES; i++) {
            const INTILEDATA& size = package.sizes[i];
            ASSERT_EQ(size.sizeY, 1 << i / 4) << "the table has lost its order";
            ASSERT_EQ(size.sizeX, 1 << i % 4);
            ASSERT_EQ((count[{size.sizeY, size.sizeX}]), size.num - size.remain);
        }
        // No single unit is left out while there is room for it anywhere.
        if (package.sizes[0].remain > 0) {
            ASSERT_EQ(cells, size_t(edge * edge)) << package.Places();
        }
        const std::string places = package.Places();
        ASSERT_EQ(package.Pack(hw_type).Places(), places) << "the second time it is another";
    }
}
