// me_snapshot: the keys of a bank's wipe and DME wipe snapshots, and of a key's own. The first two: the ten registers stand as on the keypad of the panel,
// with 10 where there is room for a zero. The page code writes the captions.
#pragma once
#include "pc_me_snapshot.h"
#include "rows.h"

#define SNAPSHOT_KEY(place) {"LOCAL@M/E@Snapshot@Register#" place}
inline constexpr BT_TBL bt_me_snapshot[] = {
    ActionState({.id = 17, .caption = "7",  .group = "Register", .cmd = SNAPSHOT_KEY("0")}),
    ActionState({.id = 18, .caption = "8",  .group = "Register", .cmd = SNAPSHOT_KEY("1")}),
    ActionState({.id = 19, .caption = "9",  .group = "Register", .cmd = SNAPSHOT_KEY("2")}),
    ActionState({.id = 33, .caption = "4",  .group = "Register", .cmd = SNAPSHOT_KEY("3")}),
    ActionState({.id = 34, .caption = "5",  .group = "Register", .cmd = SNAPSHOT_KEY("4")}),
    ActionState({.id = 35, .caption = "6",  .group = "Register", .cmd = SNAPSHOT_KEY("5")}),
    ActionState({.id = 49, .caption = "1",  .group = "Register", .cmd = SNAPSHOT_KEY("6")}),
    ActionState({.id = 50, .caption = "2",  .group = "Register", .cmd = SNAPSHOT_KEY("7")}),
    ActionState({.id = 51, .caption = "3",  .group = "Register", .cmd = SNAPSHOT_KEY("8")}),
    ActionState({.id = 52, .caption = "10", .group = "Register", .cmd = SNAPSHOT_KEY("9")}),
    Toggle({.id = 22, .caption = "Store",  .group = "Mode", .cmd = {"LOCAL@M/E@Snapshot@Store#*"}}),
    Toggle({.id = 38, .caption = "Delete", .group = "Mode", .cmd = {"LOCAL@M/E@Snapshot@Delete#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_snapshot));

// The four of a key stand in a row; what a recall leaves alone, and their names, are a matter of the Snapshot menu.
inline constexpr BT_TBL bt_me_key_snapshot[] = {
    ActionState({.id = 17, .caption = "1", .group = "Key Snapshot", .cmd = SNAPSHOT_KEY("0")}),
    ActionState({.id = 18, .caption = "2", .group = "Key Snapshot", .cmd = SNAPSHOT_KEY("1")}),
    ActionState({.id = 19, .caption = "3", .group = "Key Snapshot", .cmd = SNAPSHOT_KEY("2")}),
    ActionState({.id = 20, .caption = "4", .group = "Key Snapshot", .cmd = SNAPSHOT_KEY("3")}),
    Jump({.id = 33, .caption = "Recall\nMode", .group = "Snapshot Menu", .cmd = {"#63510000"}}),
    Jump({.id = 34, .caption = "Rename",       .group = "Snapshot Menu", .cmd = {"#63570000"}}),
    Toggle({.id = 22, .caption = "Store",  .group = "Mode", .cmd = {"LOCAL@M/E@Snapshot@Store#*"}}),
    Toggle({.id = 38, .caption = "Delete", .group = "Mode", .cmd = {"LOCAL@M/E@Snapshot@Delete#*"}}),
    BT_END,
};
#undef SNAPSHOT_KEY
static_assert(ButtonsAreSound(bt_me_key_snapshot));
