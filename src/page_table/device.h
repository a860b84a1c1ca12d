// device: the menu of the machines that the switcher controls: recorders and players, P-Bus devices, GPI outputs, and what
// each of them does on its timeline.
#pragma once
#include "nb_rows.h"
#include "pc_device.h"
#include "rows.h"

inline constexpr VF_TBL vf_device[] = {
    {.id = 1, .caption = "P-Bus",   .page = 0x53110000},
    {.id = 2, .caption = "DDR/VTR", .page = 0x53210000},
    {.id = 3, .caption = "GPI",     .page = 0x53310000},
    VF_END,
};
inline constexpr HF_TBL hf_device_pbus[] = {
    {.id = 1, .caption = "Control",  .page = 0x53110000},
    {.id = 2, .caption = "Timeline", .page = 0x53120000},
    HF_END,
};
inline constexpr HF_TBL hf_device_vtr[] = {
    {.id = 1, .caption = "Cueup&Play", .page = 0x53210000},
    {.id = 2, .caption = "Timeline",   .page = 0x53220000},
    {.id = 3, .caption = "File List",  .page = 0x53230000},
    {.id = 4, .caption = "Setting",    .page = 0x53240000},
    HF_END,
};
inline constexpr HF_TBL hf_device_gpi[] = {
    {.id = 1, .caption = "Control",  .page = 0x53310000},
    {.id = 2, .caption = "Timeline", .page = 0x53320000},
    HF_END,
};

constexpr LS_TBL DeviceList(LS_TBL row)
{
    row.y = 76;
    row.block = 1; // one at a time
    row.mono = 1;
    row.sb_top = row.y;
    row.sb_bottom = row.y + LS_ROW_PX * (row.vn + 1);
    return row;
}
constexpr NB_TBL TimeCode(int id, const char* caption, const char* cmd)
{
    return Box(id, caption, cmd, 0, 24 * 60 * 60 * 30 - 1, NB_TC); // a day
}

// --- Recorders and players; a device's own paths begin with its three words ---

inline constexpr LS_TBL ls_device_control[] = {
    DeviceList({.id = 1, .hn = 3, .vn = 12, .x = 100, .head = {"Dev", "State", "Time Code"}, .width = {52, 70, 88}}),
    LS_END,
};
inline constexpr auto nb_device_point = Column(TimeCode(1, "Start TC", "~3@Start TC"), TimeCode(2, "Stop TC", "~3@Stop TC"), TimeCode(3, "Recue TC", "~3@Recue TC"));
inline constexpr auto nb_device_speed = Column(Box(1, "Speed", "~3@Speed", -100, 300));
inline constexpr auto nb_device_shuttle = Column(Box(1, "Shuttle\nx play", "~3@Shuttle", -50, 50, NB_1));
inline constexpr auto nb_device_jog = Column(TimeCode(1, "Jog", "~3@Position"));
#define TRANSPORT(n, words, word) Radio({.id = (n), .caption = words, .group = "Transport", .cmd = {"~3@Transport#" word, "~3@Control#Local"}})
#define MOVES_BY(n, word, knobs) Radio({.id = (n), .caption = word, .group = "Speed", .cmd = {"~3@Transport#" word, "~3@Control#Local"}, .nb = (knobs).row})
inline constexpr BT_TBL bt_device_control[] = {
    TRANSPORT(4, "Rewind", "Rewind"), TRANSPORT(5, "Stop", "Stop"), TRANSPORT(6, "F Fwd", "F Fwd"),
    TRANSPORT(20, "Cue Up", "Cue Up"), TRANSPORT(21, "Play", "Play"),
    Radio ({.id = 22, .caption = "Record", .group = "Transport", .cmd = {"~3@Transport#Record", "~3@Rec Enable#false", "~3@Control#Local"}}),
    MOVES_BY(36, "Variable", nb_device_speed), MOVES_BY(37, "Shuttle", nb_device_shuttle), MOVES_BY(38, "Jog", nb_device_jog),
    Knobs ({.id = 49, .caption = "Points",      .group = "Point", .cmd = {}, .nb = nb_device_point.row}),
    Action({.id = 50, .caption = "Set\nStart",  .group = "Point", .cmd = {"~3@Set Start#*"}}),
    Action({.id = 51, .caption = "Set\nStop",   .group = "Point", .cmd = {"~3@Set Stop#*"}}),
    Action({.id = 52, .caption = "Recue",       .group = "Point", .cmd = {"~3@Recue#*", "~3@Control#Local"}}),
    Toggle({.id = 53, .caption = "Rec\nEnable", .group = "Mode", .cmd = {"~3@Rec Enable#*"}}),
    Toggle({.id = 54, .caption = "Loop",        .group = "Mode", .cmd = {"~3@Loop#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_device_control) && ListsAreSound(ls_device_control));
#undef MOVES_BY
#undef TRANSPORT

inline constexpr LS_TBL ls_device_timeline[] = {
    DeviceList({.id = 1, .hn = 5, .vn = 11, .x = 100, .head = {"Dev", "Action", "Start TC", "Stop TC", "On Rewind"}, .width = {80, 110, 120, 120, 114}}),
    LS_END,
};
inline constexpr auto nb_device_timeline = Column(TimeCode(1, "Start TC", "~@Start TC"), TimeCode(2, "Stop TC", "~@Stop TC"), Box(3, "Speed", "~@Speed", -100, 300));
#define KEYFRAME_ACTION(n, words, word) Radio({.id = (n), .caption = words, .group = "Action", .cmd = {"~@Action#" word}})
inline constexpr BT_TBL bt_device_timeline[] = {
    KEYFRAME_ACTION(33, "None", "None"), KEYFRAME_ACTION(34, "Cue Up", "Cue Up"), KEYFRAME_ACTION(35, "Play", "Play"),
    KEYFRAME_ACTION(36, "Variable", "Variable"), KEYFRAME_ACTION(37, "Stop", "Stop"), KEYFRAME_ACTION(38, "Record", "Record"),
    Radio ({.id = 49, .caption = "None",       .group = "On Rewind", .cmd = {"~@Rewind Action#None"}}),
    Radio ({.id = 50, .caption = "Cue Up",     .group = "On Rewind", .cmd = {"~@Rewind Action#Cue Up"}}),
    Radio ({.id = 51, .caption = "Stop",       .group = "On Rewind", .cmd = {"~@Rewind Action#Stop"}}),
    Knobs ({.id = 53, .caption = "Points",     .group = "Point", .cmd = {}, .nb = nb_device_timeline.row}),
    Action({.id = 54, .caption = "Set\nStart", .group = "Point", .cmd = {"~@Set Start#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_device_timeline) && ListsAreSound(ls_device_timeline));
#undef KEYFRAME_ACTION

inline constexpr LS_TBL ls_device_files[] = {
    DeviceList({.id = 1, .hn = 4, .vn = 15, .x = 100, .head = {"Dev", "Type", "State", "File"}, .width = {46, 54, 62, 104}}),
    DeviceList({.id = 2, .hn = 3, .vn = 15, .x = 420, .head = {"No", "Name", "Length"}, .width = {30, 122, 76}}),
    LS_END,
};
#define DISK "~3@Type#!DDR"
inline constexpr BT_TBL bt_device_files[] = {
    Action({.id = 49, .caption = "Read\nList",   .group = "File", .cmd = {DEVICE_FILE_READ}}),
    Action({.id = 50, .caption = "Load",         .group = "File", .cmd = {DEVICE_FILE_LOAD, DISK}}),
    Action({.id = 51, .caption = "Load &\nCue",  .group = "File", .cmd = {DEVICE_FILE_CUE, DISK}}),
    Action({.id = 52, .caption = "Eject",        .group = "File", .cmd = {"~3@Eject#*", DISK}}),
    Radio ({.id = 53, .caption = "Stop",         .group = "Transport", .cmd = {"~3@Transport#Stop"}}),
    Radio ({.id = 54, .caption = "Play",         .group = "Transport", .cmd = {"~3@Transport#Play"}}),
    BT_END,
};
#undef DISK
static_assert(ButtonsAreSound(bt_device_files) && ListsAreSound(ls_device_files));

// What a recorder edits: all from the edit point on, or the tracks that are on.
inline constexpr LS_TBL ls_device_setting[] = {
    DeviceList({.id = 1, .hn = 5, .vn = 11, .x = 100, .head = {"Dev", "Type", "Control", "Preroll", "Edit"}, .width = {80, 130, 110, 100, 124}}),
    LS_END,
};
inline constexpr auto nb_device_setting = Column(Frames(1, "Preroll\nframes", "~3@Preroll"), Frames(2, "Delay\nframes", "~3@Start Delay"));
#define TRACK(n, words, word) Toggle({.id = (n), .caption = words, .group = "Insert", .cmd = {"~3@Edit@" word "#*", "~3@Edit@Mode#!Insert"}})
inline constexpr BT_TBL bt_device_setting[] = {
    Radio({.id = 33, .caption = "VTR",          .group = "Type", .cmd = {"~3@Type#VTR"}}),
    Radio({.id = 34, .caption = "DDR",          .group = "Type", .cmd = {"~3@Type#DDR"}}),
    Radio({.id = 35, .caption = "Extended\nVTR", .group = "Type", .cmd = {"~3@Type#Extended VTR"}}),
    Radio({.id = 36, .caption = "Remote",       .group = "Control", .cmd = {"~3@Control#Remote"}}),
    Radio({.id = 37, .caption = "Local",        .group = "Control", .cmd = {"~3@Control#Local"}}),
    Knobs({.id = 38, .caption = "Preroll",      .group = "Timing", .cmd = {}, .nb = nb_device_setting.row}),
    Radio({.id = 49, .caption = "Assemble",     .group = "Edit", .cmd = {"~3@Edit@Mode#Assemble", "~3@Type#DDR"}}),
    Radio({.id = 50, .caption = "Insert",       .group = "Edit", .cmd = {"~3@Edit@Mode#Insert", "~3@Type#DDR"}}),
    TRACK(51, "Video", "Video"), TRACK(52, "Audio 1", "Audio 1"), TRACK(53, "Audio 2", "Audio 2"), TRACK(54, "Time\nCode", "Time Code"),
    BT_END,
};
#undef TRACK
static_assert(ButtonsAreSound(bt_device_setting) && ListsAreSound(ls_device_setting));

// --- P-Bus: registers and triggers go to all devices that are enabled ---

inline constexpr LS_TBL ls_device_pbus[] = {
    DeviceList({.id = 1, .hn = 4, .vn = 7, .x = 100, .head = {"Device", "Name", "Enable", "Last"}, .width = {100, 190, 90, 164}}),
    LS_END,
};
inline constexpr auto nb_device_pbus = Column(Count(1, "Register", "Device@P-BUS@Register", 0, PBUS_REGISTERS));
#define TRIGGER(n, number) Action({.id = (n), .caption = "Trigger\n" number, .group = "Trigger", .cmd = {"Device@P-BUS@Trigger@" number "#*"}})
inline constexpr BT_TBL bt_device_pbus[] = {
    Toggle({.id = 17, .caption = "Enable",      .group = "Device", .cmd = {"~@Enable#*"}}),
    Action({.id = 18, .caption = "All\nEnable", .group = "Device", .cmd = {"Device@P-BUS@All Enable#*"}}),
    Action({.id = 19, .caption = "All\nDisable", .group = "Device", .cmd = {"Device@P-BUS@All Disable#*"}}),
    Knobs ({.id = 20, .caption = "Register",    .group = "Register", .cmd = {}, .nb = nb_device_pbus.row}),
    Action({.id = 21, .caption = "Store",       .group = "Register", .cmd = {"Device@P-BUS@Store#*"}, .nb = nb_device_pbus.row}),
    Action({.id = 22, .caption = "Recall",      .group = "Register", .cmd = {"Device@P-BUS@Recall#*"}, .nb = nb_device_pbus.row}),
    TRIGGER(33, "1"), TRIGGER(34, "2"), TRIGGER(35, "3"), TRIGGER(36, "4"), TRIGGER(49, "5"), TRIGGER(50, "6"), TRIGGER(51, "7"), TRIGGER(52, "8"),
    BT_END,
};
#undef TRIGGER
static_assert(ButtonsAreSound(bt_device_pbus) && ListsAreSound(ls_device_pbus));

inline constexpr LS_TBL ls_device_pbus_timeline[] = {
    DeviceList({.id = 1, .hn = 4, .vn = 15, .x = 100, .head = {"Device", "Action", "Register", "Trigger"}, .width = {124, 160, 130, 130}}),
    LS_END,
};
inline constexpr auto nb_pbus_tl_register = Column(Count(1, "Register", "~@Register", 0, PBUS_REGISTERS));
inline constexpr auto nb_pbus_tl_trigger = Column(Count(1, "Trigger", "~@Trigger", 1, 8));
inline constexpr BT_TBL bt_device_pbus_timeline[] = {
    Radio ({.id = 49, .caption = "None",       .group = "Action", .cmd = {"~@Action#None"}}),
    Radio ({.id = 50, .caption = "Recall",     .group = "Action", .cmd = {"~@Action#Recall"}, .nb = nb_pbus_tl_register.row}),
    Radio ({.id = 51, .caption = "Trigger",    .group = "Action", .cmd = {"~@Action#Trigger"}, .nb = nb_pbus_tl_trigger.row}),
    Action({.id = 53, .caption = "All\nNone",  .group = "All", .cmd = {"Device@P-BUS Timeline@All None#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_device_pbus_timeline) && ListsAreSound(ls_device_pbus_timeline));

// --- GPI outputs ---

inline constexpr LS_TBL ls_device_gpi[] = {
    DeviceList({.id = 1, .hn = 3, .vn = 11, .x = 100, .head = {"Output", "Name", "Enable"}, .width = {104, 300, 140}}),
    LS_END,
};
inline constexpr BT_TBL bt_device_gpi[] = {
    Toggle({.id = 33, .caption = "Enable",       .group = "Output", .cmd = {"~@Enable#*"}}),
    Action({.id = 34, .caption = "All\nEnable",  .group = "Output", .cmd = {"Device@GPI@All Enable#*"}}),
    Action({.id = 35, .caption = "All\nDisable", .group = "Output", .cmd = {"Device@GPI@All Disable#*"}}),
    Action({.id = 37, .caption = "Test\nFire",   .group = "Test", .cmd = {DEVICE_GPI_FIRE}}),
    Jump  ({.id = 52, .caption = "Output\nSetup", .group = "Setup", .cmd = {"#73370007"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_device_gpi) && ListsAreSound(ls_device_gpi));

inline constexpr LS_TBL ls_device_gpi_timeline[] = {
    DeviceList({.id = 1, .hn = 3, .vn = 11, .x = 100, .head = {"Output", "Fire", "Delay"}, .width = {184, 180, 180}}),
    LS_END,
};
inline constexpr auto nb_gpi_timeline = Column(Frames(1, "Delay\nframes", "~@Delay"));
inline constexpr BT_TBL bt_device_gpi_timeline[] = {
    Toggle({.id = 33, .caption = "Fire",        .group = "Output", .cmd = {"~@Fire#*"}, .nb = nb_gpi_timeline.row}),
    Action({.id = 35, .caption = "All\nOff",    .group = "All", .cmd = {"Device@GPI Timeline@All Off#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_device_gpi_timeline) && ListsAreSound(ls_device_gpi_timeline));

inline constexpr BT_TBL bt_device_top[] = {
    Jump({.id = 17, .caption = "P-Bus",     .group = "Device", .cmd = {"#53110000"}}),
    Jump({.id = 18, .caption = "DDR/VTR",   .group = "Device", .cmd = {"#53210000"}}),
    Jump({.id = 19, .caption = "File List", .group = "Device", .cmd = {"#53230000"}}),
    Jump({.id = 20, .caption = "GPI",       .group = "Device", .cmd = {"#53310000"}}),
    Jump({.id = 33, .caption = "P-Bus",     .group = "Timeline", .cmd = {"#53120000"}}),
    Jump({.id = 34, .caption = "DDR/VTR",   .group = "Timeline", .cmd = {"#53220000"}}),
    Jump({.id = 35, .caption = "GPI",       .group = "Timeline", .cmd = {"#53320000"}}),
    Jump({.id = 36, .caption = "Macro",     .group = "Timeline", .cmd = {"#54410000"}}),
    Jump({.id = 6,  .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_device_top));

// --- Pages: the chosen one stands in the tree, so that the code comes before the keys that name it ---

constexpr PAGE DevicePage(uint32_t id, uint32_t group, const HF_TBL* tabs, const char* kind, const char* name, const char* what,
                          const LS_TBL* lists, const PC_TBL& code, const BT_TBL* keys)
{
    return {.id = id, .tree = {"Device", kind, name, what},
            .obj = {Base(base_main), LeftTabs(vf_device, group), BottomTabs(tabs, id >> 16 & 0x0F), Lists(lists), Code(code), Buttons(keys), Boxes(NB_Non)}};
}
inline constexpr PAGE device_pages[] = {
    {.id = 0x53000000, .tree = {"Device"}, .obj = {Base(base_main), Buttons(bt_device_top)}},
    DevicePage(0x53110000, 1, hf_device_pbus, "P-BUS", "P-Bus1", nullptr, ls_device_pbus, pc_device_pbus, bt_device_pbus),
    DevicePage(0x53120000, 1, hf_device_pbus, "P-BUS Timeline", "P-Bus1", nullptr, ls_device_pbus_timeline, pc_device_pbus_timeline, bt_device_pbus_timeline),
    DevicePage(0x53210000, 2, hf_device_vtr, "DDR/VTR", "Dev1", nullptr, ls_device_control, pc_device_control, bt_device_control),
    DevicePage(0x53220000, 2, hf_device_vtr, "DDR/VTR", "Dev1", "Timeline", ls_device_timeline, pc_device_timeline, bt_device_timeline),
    DevicePage(0x53230000, 2, hf_device_vtr, "DDR/VTR", "Dev1", "File List", ls_device_files, pc_device_files, bt_device_files),
    DevicePage(0x53240000, 2, hf_device_vtr, "DDR/VTR", "Dev1", "Setting", ls_device_setting, pc_device_setting, bt_device_setting),
    DevicePage(0x53310000, 3, hf_device_gpi, "GPI", "1", nullptr, ls_device_gpi, pc_device_gpi, bt_device_gpi),
    DevicePage(0x53320000, 3, hf_device_gpi, "GPI Timeline", "1", nullptr, ls_device_gpi_timeline, pc_device_gpi_timeline, bt_device_gpi_timeline),
};
