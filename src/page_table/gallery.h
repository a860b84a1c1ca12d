// gallery: the pages that show each object of the application in each of its states, without
// a server. Commands are local; page code (pc_gallery) brings the states about.
#pragma once
#include "a_st_draw.h"
#include "gallery_shared.h"
#include "patterns.h"
#include "pulldowns.h"
#include "rows.h"
#include "top.h"

constexpr BT_TBL ToEngineeringMenu()
{
    return Jump({.id = 54, .caption = "Engineer-\ning", .cmd = {"#99910000"}});
}
// A key of the row above the grid.
constexpr BT_TBL TopRow(int column, BT_TBL row)
{
    const Rect r = TopRect(0, column);
    row.id = 65 + column;
    row.x1 = r.x1;
    row.y1 = r.y1;
    row.x2 = r.x2;
    row.y2 = r.y2;
    return row;
}

// --- Buttons: a key of each type; the top row puts them all into a state ---

inline constexpr BT_TBL bt_gallery_buttons[] = {
    Radio(TopRow(0, {.caption = "Off", .group = "State of all", .cmd = {"LOCAL@Gallery@State#Off"}})),
    Radio(TopRow(1, {.caption = "On", .group = "State of all", .cmd = {"LOCAL@Gallery@State#On"}})),
    Radio(TopRow(2, {.caption = "Third", .group = "State of all", .cmd = {"LOCAL@Gallery@State#Third"}})),
    Radio(TopRow(3, {.caption = "Disabled", .group = "State of all", .cmd = {"LOCAL@Gallery@State#Disabled"}})),
    Radio(TopRow(4, {.caption = "Disabled\nOn", .group = "State of all", .cmd = {"LOCAL@Gallery@State#Disabled On"}})),
    Radio(TopRow(5, {.caption = "Hidden", .group = "State of all", .cmd = {"LOCAL@Gallery@State#Hidden"}})),
    Toggle(     {.id = 1, .caption = "Toggle", .group = "State", .cmd = {"LOCAL@Gallery@Toggle#*"}}),
    Radio(      {.id = 2, .caption = "Radio", .group = "State", .cmd = {"LOCAL@Gallery@Choice#Radio"}}),
    RadioRelease({.id = 3, .caption = "Radio\nRelease", .group = "State", .cmd = {"LOCAL@Gallery@Choice#Radio Release"}}),
    ActionState({.id = 4, .caption = "Action\nState", .group = "State", .cmd = {"LOCAL@Gallery@Action State#*"}}),
    Radio(      {.id = 5, .caption = "Radio\nKnobs", .group = "Knobs", .cmd = {"LOCAL@Gallery@Choice#Radio Knobs"}, .nb = nb_gallery_one}),
    Knobs(      {.id = 6, .caption = "Knobs\nOnly", .group = "Knobs", .cmd = {"LOCAL@Gallery@Key#Knobs"}, .nb = nb_gallery_one}),
    Jump(       {.id = 17, .caption = "Jump", .group = "Leads on", .cmd = {"LOCAL@Gallery@Key#Jump"}}),
    JumpTenKey( {.id = 18, .caption = "Ten Key", .group = "Leads on", .cmd = {"LOCAL@Gallery@Key#Ten Key"}}),
    Typed(      {.id = 19, .caption = "Keyboard", .group = "Leads on", .cmd = {"LOCAL@Gallery@Key#Keyboard"}}, BT_JUMP_KEYBOARD),
    JumpPopUp(  {.id = 20, .caption = "Pop-up", .group = "Leads on", .cmd = {"LOCAL@Gallery@Key#Pop-up"}}),
    Typed(      {.id = 21, .caption = "Find", .group = "Leads on", .cmd = {"LOCAL@Gallery@Key#Find"}}, BT_FIND),
    Typed(      {.id = 22, .caption = "New", .group = "Leads on", .cmd = {"LOCAL@Gallery@Key#New"}}, BT_NEW),
    PullDownKey({.id = 33, .caption = "Pull-down", .group = "Lists", .cmd = {"LOCAL@Gallery@Key#Pull-down"}}),
    Typed(PullDownKey({.id = 34, .caption = "Long List", .group = "Lists", .cmd = {"LOCAL@Gallery@Key#Long List"}}), BT_PULLDOWN_LONG),
    Tab(        {.id = 35, .caption = "Tab", .group = "Lists", .cmd = {"LOCAL@Side Flags"}}),
    Typed(PullDownKey({.id = 37, .caption = "Right", .group = "Transfer", .cmd = {"LOCAL@Gallery@Key#Right"}}), BT_TRANSFER_RIGHT),
    Typed(PullDownKey({.id = 38, .caption = "Left", .group = "Transfer", .cmd = {"LOCAL@Gallery@Key#Left"}}), BT_TRANSFER_LEFT),
    Action(     {.id = 49, .caption = "Action", .group = "Once", .cmd = {"LOCAL@Gallery@Key#Action"}}),
    Action(     {.id = 50, .caption = "Three\nlines of\ncaption", .group = "Once", .cmd = {"LOCAL@Gallery@Key#Lines"}}),
    Toggle(     {.id = 51, .caption = "Undecided", .group = "Undecided", .cmd = {"LOCAL@Gallery@Undecided#*"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_gallery_buttons));

// --- Boxes: each key shows another table ---

inline constexpr BT_TBL bt_gallery_boxes[] = {
    Knobs(      {.id = 17, .caption = "Kinds", .group = "Table", .cmd = {"LOCAL@Gallery@Table#Kinds"}, .nb = nb_gallery_kinds}),
    Knobs(      {.id = 18, .caption = "Ranges", .group = "Table", .cmd = {"LOCAL@Gallery@Table#Ranges"}, .nb = nb_gallery_reversed}),
    Knobs(      {.id = 19, .caption = "Layers", .group = "Table", .cmd = {"LOCAL@Gallery@Table#Layers"}, .nb = nb_gallery_layers}),
    Knobs(      {.id = 20, .caption = "None", .group = "Table", .cmd = {"LOCAL@Gallery@Table#None"}, .nb = NoKnobs()}),
    Action(     {.id = 33, .caption = "Lower\nLimit", .group = "Values", .cmd = {"LOCAL@Gallery@Values#Lower"}}),
    Action(     {.id = 34, .caption = "Middle", .group = "Values", .cmd = {"LOCAL@Gallery@Values#Middle"}}),
    Action(     {.id = 35, .caption = "Upper\nLimit", .group = "Values", .cmd = {"LOCAL@Gallery@Values#Upper"}}),
    Action(     {.id = 36, .caption = "Beyond", .group = "Values", .cmd = {"LOCAL@Gallery@Values#Beyond"}}),
    Action(     {.id = 37, .caption = "No\nValue", .group = "Values", .cmd = {"LOCAL@Gallery@Values#None"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_gallery_boxes));

// --- Lists: a wide one with groups, and a narrow one whose cells are selected alone ---

inline constexpr LS_TBL ls_gallery[] = {
    {.id = 1, .hn = 5, .vn = 12, .x = 100, .y = 78, .head = {"No", "Name", "Class", "A", "B"}, .width = {40, 130, 50, 30, 30},
     .group = {2, 1, 999}, .sb_top = 78, .sb_bottom = 364},
    {.id = 2, .hn = 3, .vn = 7, .x = 470, .y = 78, .head = {"Row", "1", "2"}, .width = {60, 50, 50}, .split = 1, .sb_top = 78,
     .sb_bottom = 254},
    LS_END,
};
static_assert(ListsAreSound(ls_gallery));

inline constexpr BT_TBL bt_gallery_lists[] = {
    Action(     {.id = 49, .caption = "Empty", .group = "Rows", .cmd = {"LOCAL@Gallery@Rows#Empty"}}),
    Action(     {.id = 50, .caption = "30", .group = "Rows", .cmd = {"LOCAL@Gallery@Rows#30"}}),
    Action(     {.id = 51, .caption = "12,000", .group = "Rows", .cmd = {"LOCAL@Gallery@Rows#12000"}}),
    Action(     {.id = 52, .caption = "Grey\nTitle", .group = "Header", .cmd = {"LOCAL@Gallery@Header#Grey"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_gallery_lists));

// --- File list: two sides, each with keys below its list ---

inline constexpr FL_TBL fl_gallery = {{{.device = FL_DIRDATA_LOCAL_DRIVE}, {.device = FL_DIRDATA_STORAGE_ROOT}}};

inline constexpr LS_TBL ls_gallery_files[] = {
    {.id = 1, .hn = 4, .vn = 11, .x = 100, .y = 78, .head = {"", "Name", "Frames", "Pair"}, .width = {24, 128, 58, 40},
     .sb_top = 78, .sb_bottom = 342, .block = 1},
    {.id = 2, .hn = 4, .vn = 11, .x = 404, .y = 78, .head = {"", "Name", "Frames", "Pair"}, .width = {24, 128, 58, 40},
     .sb_top = 78, .sb_bottom = 342, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_gallery_files));

inline constexpr BT_TBL bt_gallery_files[] = {
    Action(     {.id = 33, .caption = "Device", .group = "Left", .cmd = {"LOCAL@Gallery@Files@Device#0"}}),
    Action(     {.id = 34, .caption = "Up", .group = "Left", .cmd = {"LOCAL@Gallery@Files@Up#0"}}),
    Action(     {.id = 35, .caption = "Open", .group = "Left", .cmd = {"LOCAL@Gallery@Files@Open#0"}}),
    Action(     {.id = 36, .caption = "Device", .group = "Right", .cmd = {"LOCAL@Gallery@Files@Device#1"}}),
    Action(     {.id = 37, .caption = "Up", .group = "Right", .cmd = {"LOCAL@Gallery@Files@Up#1"}}),
    Action(     {.id = 38, .caption = "Open", .group = "Right", .cmd = {"LOCAL@Gallery@Files@Open#1"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_gallery_files));

// --- Status cells: the shared parts, then the cell of the key type in each of its types ---

constexpr ST_TBL TypeCell(int column, const char* type)
{
    return CellAt(column, 2, {.id = 13 + column, .draw_func = st_drw_me_key_type1,
                              .cmd = {type, "LOCAL@Gallery@Cell@Clean", "LOCAL@Gallery@Cell@Mix", "LOCAL@Gallery@Cell@Invert",
                                      "LOCAL@Gallery@Cell@Wipe", "LOCAL@Gallery@Cell@Key Wipe", "LOCAL@Gallery@Cell@Clean",
                                      "LOCAL@Gallery@Cell@Clean"}});
}
inline constexpr ST_TBL st_gallery[] = {
    CellAt(0, 0, {.id = 1,  .draw_func = st_drw_status_string_type}),
    CellAt(1, 0, {.id = 2,  .draw_func = st_drw_status_value_type}),
    CellAt(2, 0, {.id = 3,  .draw_func = st_drw_status_bmp}),
    CellAt(3, 0, {.id = 4,  .draw_func = st_drw_status_image}),
    CellAt(4, 0, {.id = 5,  .draw_func = st_drw_put_bmp_ptn1}),
    CellAt(5, 0, {.id = 6,  .draw_func = st_drw_put_bmp_ptn2}),
    CellAt(0, 1, {.id = 7,  .draw_func = st_drw_put_bmp_ptn3}),
    CellAt(1, 1, {.id = 8,  .draw_func = st_drw_test_1}),
    CellAt(2, 1, {.id = 9,  .draw_func = st_drw_test_2}),
    CellAt(3, 1, {.id = 10, .draw_func = st_drw_test_3}),
    CellAt(4, 1, {.id = 11, .draw_func = st_drw_test_4}),
    CellAt(5, 1, {.id = 12, .draw_func = st_drw_status_dummy}),
    TypeCell(0, "LOCAL@Gallery@Cell@Type 1"),
    TypeCell(1, "LOCAL@Gallery@Cell@Type 2"),
    TypeCell(2, "LOCAL@Gallery@Cell@Type 3"),
    TypeCell(3, "LOCAL@Gallery@Cell@Type 4"),
    TypeCell(4, "LOCAL@Gallery@Cell@Type 5"),
    TypeCell(5, "LOCAL@Gallery@Cell@Type 6"),
    ST_END,
};
static_assert(CellsAreSound(st_gallery));

inline constexpr BT_TBL bt_gallery_cells[] = {
    Toggle(     {.id = 49, .caption = "Lit", .group = "All cells", .cmd = {"LOCAL@Gallery@Cells@Lit#*"}}),
    Toggle(     {.id = 50, .caption = "Inverted", .group = "All cells", .cmd = {"LOCAL@Gallery@Cells@Inverted#*"}}),
    Toggle(     {.id = 51, .caption = "Veiled", .group = "All cells", .cmd = {"LOCAL@Gallery@Cells@Veiled#*"}}),
    Toggle(     {.id = 52, .caption = "Small\nFont", .group = "All cells", .cmd = {"LOCAL@Gallery@Cells@Small Font#*"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_gallery_cells));

// --- Panes and windows: each key opens one; the line at the top says how it was answered ---

constexpr BT_TBL Opens(int id, const char* caption, const char* group, const char* cmd)
{
    return Action({.id = id, .caption = caption, .group = group, .cmd = {cmd}});
}

inline constexpr BT_TBL bt_gallery_panes[] = {
    Opens(1,  "Info",            "Messages", "LOCAL@Gallery@Pane#Info"),
    Opens(2,  "Alert",           "Messages", "LOCAL@Gallery@Pane#Alert"),
    Opens(3,  "Fatal",           "Messages", "LOCAL@Gallery@Pane#Fatal"),
    Opens(4,  "Yes/No",          "Messages", "LOCAL@Gallery@Pane#Yes/No"),
    Opens(5,  "Three\nat once",  "Messages", "LOCAL@Gallery@Pane#Stack"),
    Opens(17, "Cancel",          "Progress", "LOCAL@Gallery@Pane#Progress"),
    Opens(18, "No Cancel",       "Progress", "LOCAL@Gallery@Pane#No Cancel"),
    Opens(20, "Find",            "Find", "LOCAL@Gallery@Pane#Find"),
    Opens(21, "Indicator",       "Find", "LOCAL@Gallery@Pane#Indicator"),
    Opens(22, "Run\nControl",    "Key Frame", "LOCAL@Gallery@Pane#Run Control"),
    Opens(33, "Pull-\ndown",     "Selection", "LOCAL@Gallery@Pane#Pull-down"),
    Opens(34, "Select",          "Selection", "LOCAL@Gallery@Pane#Select"),
    Opens(35, "Color",           "Selection", "LOCAL@Gallery@Pane#Color"),
    Opens(36, "Popup",           "Selection", "LOCAL@Gallery@Pane#Popup"),
    Opens(37, "FM Out",          "Selection", "LOCAL@Gallery@Pane#FM Out"),
    Opens(38, "Directory",       "Selection", "LOCAL@Gallery@Pane#Directory"),
    Opens(49, "Folders",         "Folders", "LOCAL@Gallery@Pane#Folders"),
    Opens(50, "Region",          "Regions", "LOCAL@Gallery@Pane#Region"),
    Opens(51, "Single\nRegion",  "Regions", "LOCAL@Gallery@Pane#Single Region"),
    Opens(52, "Router\nLevels",  "Regions", "LOCAL@Gallery@Pane#Router Levels"),
    Opens(53, "Router\nLevel",   "Regions", "LOCAL@Gallery@Pane#Router Level"),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_gallery_panes));

inline constexpr BT_TBL bt_gallery_windows[] = {
    Opens(1,  "Knob",            "Ten Keys", "LOCAL@Gallery@Window#Knob"),
    Opens(2,  "Time\nCode",      "Ten Keys", "LOCAL@Gallery@Window#Time Code"),
    Opens(3,  "Trim",            "Ten Keys", "LOCAL@Gallery@Window#Trim"),
    Opens(4,  "Bank",            "Ten Keys", "LOCAL@Gallery@Window#Bank"),
    Opens(5,  "Hex",             "Ten Keys", "LOCAL@Gallery@Window#Hex"),
    Opens(6,  "Keyboard",        "Text", "LOCAL@Gallery@Window#Keyboard"),
    Opens(17, "Page\nJump",      "Pages", "LOCAL@Gallery@Window#Page Jump"),
    Opens(18, "Page Get",        "Pages", "LOCAL@Gallery@Window#Page Get"),
    Opens(19, "Page\nInitial",   "Pages", "LOCAL@Gallery@Window#Page Initial"),
    Opens(20, "Message",         "Boxes", "LOCAL@Gallery@Window#Message"),
    Opens(21, "Yes/No",          "Boxes", "LOCAL@Gallery@Window#Yes/No"),
    Opens(22, "Progress",        "Boxes", "LOCAL@Gallery@Window#Progress"),
    Opens(33, "Pull-\ndown",     "Selection", "LOCAL@Gallery@Window#Pull-down"),
    Opens(34, "Select",          "Selection", "LOCAL@Gallery@Window#Select"),
    Opens(49, "Xpt",             "Paths", "LOCAL@Gallery@Window#Xpt"),
    Opens(50, "Hue",             "Paths", "LOCAL@Gallery@Window#Hue"),
    Opens(51, "Curve\nAll",      "Paths", "LOCAL@Gallery@Window#Curve 0"),
    Opens(52, "Curve\nFew",      "Paths", "LOCAL@Gallery@Window#Curve 3"),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_gallery_windows));

// --- Tabs: along the bottom of all pages here, and in all forms on pages of their own ---

inline constexpr HF_TBL hf_gallery[] = {
    {.id = 1, .caption = "Buttons",       .page = 0x99920000},
    {.id = 2, .caption = "Boxes",         .page = 0x99920001, .statcmd = {"LOCAL@Gallery@Tabs@Bars#true"}},
    {.id = 3, .caption = "Lists",         .page = 0x99920002},
    {.id = 4, .caption = "Status\nCells", .page = 0x99920003, .statcmd = {"LOCAL@Gallery@Tabs@Bars#true"}},
    {.id = 5, .caption = "Tabs",          .page = 0x99920004, .statcmd = {"LOCAL@Gallery@Tabs@Bars#true"}},
    {.id = 6, .caption = "Panes",         .page = 0x99920006},
    {.id = 7, .caption = "Windows",       .page = 0x99920007},
    HF_END,
};
inline constexpr VF_TBL vf_gallery[] = {
    {.id = 1, .caption = "Tabs",        .page = 0x99920004},
    {.id = 2, .caption = "Low Tabs",    .page = 0x99920008},
    {.id = 3, .caption = "Wipe List",   .page = 0x99920009},
    {.id = 4, .caption = "File\nList",   .page = 0x9992000B},
    {.id = 5, .caption = "Last",        .page = 0x99920004},
    VF_END,
};

inline constexpr BT_TBL bt_gallery_tabs[] = {
    Toggle(     {.id = 17, .caption = "Bars", .group = "Tabs", .cmd = {"LOCAL@Gallery@Tabs@Bars#*"}}),
    Toggle(     {.id = 18, .caption = "Gaps", .group = "Tabs", .cmd = {"LOCAL@Gallery@Tabs@Gaps#*"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_gallery_tabs));

// --- Wipes: they have no local form, so they want a server, under the page's own path ---

inline constexpr DW_TBL dw_gallery = {.cmd = "~@Pattern", .grpid = {17, 18, 19, 20, 21, 22, 33, 34, 35, 36}};

inline constexpr PAGE gallery_pages[] = {
    {.id = 0x99920000, .tree = {"Maintenance", "Gallery", "Buttons"},
     .obj = {Base(base_main), BottomTabs(hf_gallery, 1), Buttons(bt_gallery_buttons), Boxes(NB_Non), Code(pc_gallery_buttons)}},
    {.id = 0x99920001, .tree = {"Maintenance", "Gallery", "Boxes"},
     .obj = {Base(base_main), BottomTabs(hf_gallery, 2), Buttons(bt_gallery_boxes), Boxes(NB_Non), Code(pc_gallery_boxes)}, .knobassign = 17},
    {.id = 0x99920002, .tree = {"Maintenance", "Gallery", "Lists"},
     .obj = {Base(base_main), BottomTabs(hf_gallery, 3), Buttons(bt_gallery_lists), Lists(ls_gallery), Code(pc_gallery_lists)}},
    {.id = 0x99920003, .tree = {"Maintenance", "Gallery", "Status Cells"},
     .obj = {Base(base_main), BottomTabs(hf_gallery, 4), Cells(st_gallery), Buttons(bt_gallery_cells), Code(pc_gallery_cells)}},
    {.id = 0x99920004, .tree = {"Maintenance", "Gallery", "Tabs"},
     .obj = {Base(base_main), LeftTabs(vf_gallery, 1), BottomTabs(hf_gallery, 5), Buttons(bt_gallery_tabs),
             Code(pc_gallery_tabs)}},
    {.id = 0x99920006, .tree = {"Maintenance", "Gallery", "Panes"},
     .obj = {Base(base_main), BottomTabs(hf_gallery, 6), Buttons(bt_gallery_panes), Code(pc_gallery_panes)}},
    {.id = 0x99920007, .tree = {"Maintenance", "Gallery", "Windows"},
     .obj = {Base(base_main), BottomTabs(hf_gallery, 7), Buttons(bt_gallery_windows), Boxes(nb_gallery_windows), Code(pc_gallery_windows)}},
    {.id = 0x99920008, .tree = {"Maintenance", "Gallery", "Low Tabs"},
     .obj = {Base(base_main), LeftTabs(vf_gallery, 2), LowBottomTabs(hf_gallery, 5), Buttons(bt_gallery_tabs),
             Code(pc_gallery_tabs)}},
    {.id = 0x99920009, .tree = {"Maintenance", "Gallery", "Wipe List"},
     .obj = {Base(base_main), LeftTabs(vf_gallery, 3), WipeList(dw_gallery), Boxes(NB_Non)}},
    {.id = 0x9992000B, .tree = {"Maintenance", "Gallery", "File List"},
     .obj = {Base(base_main), LeftTabs(vf_gallery, 4), Buttons(bt_gallery_files), Lists(ls_gallery_files), Files(fl_gallery),
             Code(pc_gallery_files)}},
};
