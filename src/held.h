// held: whether what the page holds is still under its finger.
// A slider, a list, a scroll arrow is held from a press until the release. The release may go
// elsewhere: to a window or a pane that has come over the page, to the next page; or the next press
// comes without one. This module watches for all of that in one place. The bus then tells every
// object of the page MSG_RELEASE, at (-1, -1), so an object needs no rule of its own: it is held
// until MSG_RELEASE, and that always comes.
#pragma once

// For the bus, before it delivers a message: true when the page must let go first.
bool Held_IsLost(int msg);
void Held_Reset(); // nothing is held; for tests
