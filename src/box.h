// box: the raised boxes that panes and windows are, and what is sunk into them. Draws without a
// flush and keeps nothing; where a box stands and what it holds belong to its owner.
#pragma once
#include "types.h"

struct BoxLook {
    unsigned ground;
    unsigned light; // edge at the top and left, the outer line and the inner one
    unsigned light2;
    unsigned dark; // bottom and right
    unsigned dark2;
};
extern const BoxLook BOX_LIGHT; // messages and progress
extern const BoxLook BOX_DARK;  // everything that is chosen from

constexpr int BOX_SHADOW = 9;                // px that the shadow lies to the right and below
constexpr unsigned BOX_SUNK_EDGE = 0x969696; // round a well of text
constexpr unsigned BOX_BAR_EDGE = 0x3C3C3C;  // round a bar or a lamp, where it should stand out

// The box over its shadow. reach is how far the shadow sticks out, BOX_SHADOW for one of the box's
// own size.
void Box_Draw(Rect box, const BoxLook& look, int reach);
void Box_Edge(Rect box, unsigned top_left, unsigned bottom_right); // one line
void Box_Sunk(Rect well, unsigned ground, unsigned edge);          // edge at the top and left
void Box_Progress(Rect bar, unsigned edge, int percent);           // 0 to 100, with the number
