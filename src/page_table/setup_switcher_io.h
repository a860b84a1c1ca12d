// setup_switcher_io: the Switcher group of engineering setup: Input, Output, Device Interface. Most pages are sheets: a list
// of what there is, and for each column its choices.
#pragma once
#include "pc_setup_fcadjust.h"
#include "pc_setup_gpi.h"
#include "pc_setup_output.h"
#include "rows.h"
#include "setup_tabs.h"

// --- Words that several pages share ---

inline constexpr SETUPWORD words_on_off[] = {{"On", "On"}, {"Off", "Off"}, {}};
inline constexpr SETUPWORD words_fc_convert[] = {{"Through", "Through"}, {"Up", "Up"}, {"Down", "Down"}, {"Cross", "Cross"}, {}};
inline constexpr SETUPWORD words_fc_format[] = {{"480i", "480i"}, {"576i", "576i"}, {"720p", "720p"}, {"1080i", "1080i"}, {"1080PsF", "1080PsF"}, {"1080p", "1080p"},
                                                {"2160p", "2160p"}, {}};
inline constexpr SETUPWORD words_4k_size[] = {{"3840x2160", "3840x2160"}, {"4096x2160", "4096x2160"}, {}};
inline constexpr SETUPWORD words_none_number[] = {{"0", "None"}, {}};
inline constexpr SETUPWORD words_group[] = {{"1", "1"}, {"2", "2"}, {"3", "3"}, {"4", "4"}, {"5", "5"}, {"6", "6"}, {"7", "7"}, {"8", "8"}, {}};

constexpr BT_TBL SheetJump(int id, const char* caption, const char* cmd, const char* group = nullptr) { return Jump({.id = id, .caption = caption, .group = group, .cmd = {cmd}}); }

constexpr int SWITCHER_INPUTS = 136;
constexpr int SWITCHER_OUTPUTS = 48;
constexpr int SWITCHER_FC = 8; // converters of the internal kind
constexpr int SHOWN_AT_ONCE = 16; // inputs or outputs of a page on which nothing waits for Execute

// --- Input ---

inline constexpr SETUPCOLUMN input_columns[] = {
    SheetName("Source Name", 210, "~@Source Name@$", 16, "Source\nName"),
    SheetWord("Auto Timing", 140, "~@Auto Timing@$", words_on_off),
    SheetNumber("H Phase", 140, "~@H Phase@$", -200, 200),
};
inline constexpr BT_TBL input_more[] = {
    SheetJump(36, "FC Input\nSelect", "#73320001"), SheetJump(37, "FC\nAdjust", "#73320002"), SheetJump(38, "Internal\nFC", "#73320003"),
    SheetJump(49, "4K Active\nSize", "#73320004"), SheetJump(50, "Video\nProcess", "#73320005"), SheetJump(51, "CCR", "#73320006"),
};
inline constexpr SETUPSHEET engsetup_switcher_input = SheetMore(SheetOf(input_columns, SWITCHER_INPUTS, {.key_head = "Input"}), input_more);

inline constexpr SETUPWORD words_fc_inputs[] = {{"1-4", "1-4"}, {"5-8", "5-8"}, {"9-12", "9-12"}, {"13-16", "13-16"}, {"17-20", "17-20"}, {"21-24", "21-24"},
                                                {"25-28", "25-28"}, {"29-32", "29-32"}, {}};
inline constexpr const char* fc_boards[] = {"FC1", "FC2", "FC3", "FC4"};
inline constexpr SETUPCOLUMN input_fcinputselect_columns[] = {SheetAsked("Inputs", 490, "~@$", words_fc_inputs)};
inline constexpr BT_TBL to_input[] = {SetupBack("Input", "#73320000")};
inline constexpr BT_TBL fc_input_more[] = {SheetJump(51, "FC\nAdjust", "#73320002"), SetupBack("Input", "#73320000")};
inline constexpr SETUPSHEET engsetup_switcher_input_fcinputselect =
    SheetMore(SheetOf(input_fcinputselect_columns, 4, {.names = fc_boards, .key_head = "FC"}), fc_input_more);

inline constexpr SETUPCOLUMN internal_fc_columns[] = {
    SheetAsked("Conversion", 240, "~@Convert Mode@$", words_fc_convert),
    SheetAsked("Format", 250, "~@Format@$", words_fc_format),
};
inline constexpr SETUPSHEET engsetup_switcher_input_internal_fc = SheetMore(SheetOf(internal_fc_columns, SWITCHER_FC, {.key_head = "FC"}), to_input);

// Four inputs make a picture.
inline constexpr const char* quads[] = {"1-4", "5-8", "9-12", "13-16", "17-20", "21-24", "25-28", "29-32", "33-36", "37-40", "41-44", "45-48"};
inline constexpr SETUPCOLUMN active_size_columns[] = {SheetWord("Active Size", 470, "~@$", words_4k_size)};
inline constexpr SETUPSHEET engsetup_switcher_input_4kactivesize =
    SheetMore(SheetOf(active_size_columns, 12, {.names = quads, .key_head = "Inputs", .key_width = 80}), to_input);

// Seen on the air as it is turned: nothing waits for Execute.
inline constexpr SETUPCOLUMN input_videoprocess_columns[] = {
    SheetWord("Process", 90, "~@Video Process@$", words_on_off),
    SheetNumber("Video Gain", 90, "~@Video Gain@$", 0, 200), SheetNumber("Y Gain", 75, "~@Y Gain@$", 0, 200),
    SheetNumber("C Gain", 75, "~@C Gain@$", 0, 200), SheetNumber("Hue Delay", 85, "~@Hue Delay@$", -180, 180),
    SheetNumber("Black Level", 75, "~@Black Level@$", -10, 110),
};
inline constexpr SETUPSHEET engsetup_switcher_input_videoprocess =
    SheetMore(SheetOf(input_videoprocess_columns, SWITCHER_INPUTS, {.key_head = "Input", .is_direct = 1, .group = SHOWN_AT_ONCE}), to_input);

inline constexpr const char* ccr_units[] = {"CCR1", "CCR2", "CCR3", "CCR4"};
inline constexpr SETUPCOLUMN input_ccr_columns[] = {
    SheetWord("CCR", 240, "~@CCR@$", words_on_off),
    SheetNumber("Input", 250, "~@Input@$", 1, SWITCHER_INPUTS),
};
inline constexpr SETUPSHEET engsetup_switcher_input_ccr = SheetMore(SheetOf(input_ccr_columns, 4, {.names = ccr_units, .key_head = "Unit"}), to_input);

// The converters: a short list above three rows of keys.
constexpr LS_TBL FcList(int inputs)
{
    LS_TBL list = {.id = 1, .hn = 7, .vn = inputs, .x = 100, .y = 76,
                   .head = {"Src No", "Source Name", "Conversion", "Motion Sel", "Aspect", "EC Pos", "LB Pos"}, .width = {60, 98, 86, 76, 90, 70, 70},
                   .group = {2, 999}, .sb_top = 76, .block = 1};
    list.sb_bottom = list.y + LS_ROW_PX * (inputs + 1);
    return list;
}
inline constexpr LS_TBL ls_engsetup_switcher_input_fcadjust[] = {FcList(4), LS_END};
inline constexpr LS_TBL ls_engsetup_switcher_input_fcadjust6[] = {FcList(6), LS_END};
static_assert(ListsAreSound(ls_engsetup_switcher_input_fcadjust));
static_assert(ListsAreSound(ls_engsetup_switcher_input_fcadjust6));

#define FC_HEAD \
    JumpPopUp({.id = BTN_FCADJUST_GROUP, .caption = "FC\nInput", .group = "Converter", .cmd = {FCADJUST("FC Input")}}), \
    JumpPopUp({.id = BTN_FCADJUST_FORMAT, .caption = "Signal\nFormat", .group = "Converter", .cmd = {FCADJUST("Signal Format")}}), \
    Toggle({.id = BTN_FCADJUST_ASPECT, .caption = "4:3", .group = "Aspect", .cmd = {FCADJUST("Aspect#true")}}), \
    Action({.id = 22, .caption = "Default", .cmd = {FCADJUST("Default")}}), \
    Radio({.id = 33, .caption = "Through", .group = "Conversion", .cmd = {FCADJUST("Convert Mode#Through")}}), \
    Radio({.id = 34, .caption = "Up", .group = "Conversion", .cmd = {FCADJUST("Convert Mode#Up")}}), \
    Radio({.id = 35, .caption = "Down", .group = "Conversion", .cmd = {FCADJUST("Convert Mode#Down")}}), \
    Radio({.id = 36, .caption = "Cross", .group = "Conversion", .cmd = {FCADJUST("Convert Mode#Cross")}}), \
    Radio({.id = BTN_FCADJUST_TYPE, .caption = "Edge\nCrop", .group = "Aspect Type", .cmd = {FCADJUST("Aspect Type#Edge Crop")}}), \
    Radio({.id = BTN_FCADJUST_TYPE + 1, .caption = "Letter\nBox", .group = "Aspect Type", .cmd = {FCADJUST("Aspect Type#Letter Box")}}), \
    Radio({.id = BTN_FCADJUST_TYPE + 2, .caption = "Squeeze", .group = "Aspect Type", .cmd = {FCADJUST("Aspect Type#Squeeze")}})
#define FC_ENHANCER \
    Toggle({.id = BTN_FCADJUST_ENHANCER, .caption = "Enhancer", .group = "Enhancer", .cmd = {FCADJUST("Enhancer Mode#true")}}), \
    ActionState({.id = BTN_FCADJUST_ENHANCER_ADJUST, .caption = "Adjust", .group = "Enhancer", .cmd = {FCADJUST("Enhancer Adjust")}})
#define FC_POSITIONS \
    Toggle({.id = BTN_FCADJUST_EC_MODE, .caption = "Variable", .group = "EC Pos", .cmd = {FCADJUST("EC Pos Mode#true")}}), \
    ActionState({.id = BTN_FCADJUST_EC_CENTER, .caption = "Center", .group = "EC Pos", .cmd = {FCADJUST("EC Pos Center")}}), \
    Toggle({.id = BTN_FCADJUST_LB_MODE, .caption = "Variable", .group = "LB Pos", .cmd = {FCADJUST("LB Pos Mode#true")}}), \
    ActionState({.id = BTN_FCADJUST_LB_CENTER, .caption = "Center", .group = "LB Pos", .cmd = {FCADJUST("LB Pos Center")}})
inline constexpr BT_TBL bt_engsetup_switcher_input_fcadjust[] = {FC_HEAD, FC_ENHANCER, FC_POSITIONS, SheetJump(52, "3G", "#73320008"), BT_END};
inline constexpr BT_TBL bt_engsetup_switcher_input_fcadjust6[] = {FC_HEAD, FC_ENHANCER, FC_POSITIONS, SheetJump(52, "Four\nInputs", "#73320007"), BT_END};
inline constexpr BT_TBL bt_engsetup_switcher_input_fcadjust3g[] = {FC_HEAD, FC_POSITIONS, SheetJump(52, "4K", "#73320009"), BT_END};
inline constexpr BT_TBL bt_engsetup_switcher_input_f4kadjust[] = {
    FC_HEAD, FC_ENHANCER,
    Radio({.id = 37, .caption = "Square", .group = "Division", .cmd = {FCADJUST_4K("Division#Square")}}),
    Radio({.id = 38, .caption = "2SI", .group = "Division", .cmd = {FCADJUST_4K("Division#2SI")}}),
    Radio({.id = 53, .caption = "On", .group = "I/P", .cmd = {FCADJUST_4K("IP#On")}}),
    Radio({.id = 54, .caption = "Off", .group = "I/P", .cmd = {FCADJUST_4K("IP#Off")}}),
    SheetJump(52, "Six\nInputs", "#73320002"),
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_switcher_output_fcadjust[] = {FC_HEAD, FC_ENHANCER, FC_POSITIONS, SetupBack("Output", "#73330000"), BT_END};
#undef FC_HEAD
#undef FC_ENHANCER
#undef FC_POSITIONS
static_assert(ButtonsAreSound(bt_engsetup_switcher_input_fcadjust));
static_assert(ButtonsAreSound(bt_engsetup_switcher_input_fcadjust6));
static_assert(ButtonsAreSound(bt_engsetup_switcher_input_fcadjust3g));
static_assert(ButtonsAreSound(bt_engsetup_switcher_input_f4kadjust));
static_assert(ButtonsAreSound(bt_engsetup_switcher_output_fcadjust));

// --- Output ---

#define OUTPUT "Engineering Setup@Switcher@Output@"
inline constexpr BT_TBL to_output[] = {SetupBack("Output", "#73330000")};

inline constexpr SETUPWORD words_inhibit[] = {{"true", "Inhibit"}, {"false", "---"}, {}};
inline constexpr SETUPCOLUMN output_columns[] = {
    SheetPart(SheetShown("Assign", 160, OUTPUT "Assign"), 1),
    SheetPart(SheetShown("Source", 170, OUTPUT "Source"), 1),
    {.head = "Inhibit", .width = 160, .path = OUTPUT "Inhibit", .part = 1, .words = words_inhibit, .is_fixed = 1},
};
inline constexpr BT_TBL output_more[] = {
    SheetJump(33, "Output\nAssign", "#73330001"),
    SheetJump(34, "Crop", "#73330002"), SheetJump(35, "V Blank", "#73330003"),
    SheetJump(36, "Video\nClip", "#73330004"), SheetJump(37, "Safe\nTitle", "#73330005"), SheetJump(38, "Re-Entry\nAssign", "#73330006"),
    SheetJump(49, "FC\nAdjust", "#73330007"), SheetJump(50, "4K Active\nSize", "#73330008"), SheetJump(51, "FC Output\nAssign", "#73330009"),
    SheetJump(52, "Internal\nFC", "#73330011"), SheetJump(53, "Multi\nViewer", "#73330014"),
};
inline constexpr SETUPSHEET engsetup_switcher_output = SheetMore(SheetOf(output_columns, SWITCHER_OUTPUTS, {.key_head = "Output", .is_direct = 1}), output_more);

inline constexpr BT_TBL bt_engsetup_switcher_output_assign[] = {
    JumpPopUp({.id = BTN_OUTPUT_BUS, .caption = "Output\nAssign", .group = "Output Assign", .cmd = {OUTPUT_LOCAL("Output Assign")}}),
    Action({.id = BTN_OUTPUT_SET, .caption = "Set", .group = "Output Assign", .cmd = {OUTPUT_LOCAL("Set")}}),
    Toggle({.id = BTN_OUTPUT_INHIBIT, .caption = "Inhibit", .group = "Output", .cmd = {OUTPUT_LOCAL("Inhibit#true")}}),
    SetupBack("Output", "#73330000"),
    Action({.id = BTN_SHEET_CLEAR, .caption = "Clear", .cmd = {OUTPUT_LOCAL("Clear")}}),
    Action({.id = BTN_SHEET_EXECUTE, .caption = "Execute", .cmd = {OUTPUT_LOCAL("Execute")}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_output_assign));
inline constexpr LS_TBL ls_engsetup_switcher_output_assign[] = {
    {.id = 1, .hn = 5, .vn = 9, .x = 100, .y = SHEET_LIST_Y, .head = {"Output", "Assign", "Source", "Inhibit", "GPI In"}, .width = {70, 150, 150, 100, 80},
     .group = {1, 999}, .sb_top = SHEET_LIST_Y, .sb_bottom = SHEET_LIST_Y + 10 * LS_ROW_PX},
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_output_assign));

inline constexpr SETUPCOLUMN output_crop_columns[] = {
    SheetWord("Crop", 90, "~@Crop@$", words_on_off),
    SheetNumber("Left", 100, "~@Left@$", 0, 50), SheetNumber("Right", 100, "~@Right@$", 0, 50),
    SheetNumber("Top", 100, "~@Top@$", 0, 50), SheetNumber("Bottom", 100, "~@Bottom@$", 0, 50),
};
inline constexpr SETUPSHEET engsetup_switcher_output_crop =
    SheetMore(SheetOf(output_crop_columns, SWITCHER_OUTPUTS, {.key_head = "Output", .is_direct = 1, .group = SHOWN_AT_ONCE}), to_output);

inline constexpr SETUPWORD words_vblank[] = {{"Through", "Through"}, {"Blank", "Blank"}, {}};
inline constexpr SETUPCOLUMN output_vblank_columns[] = {
    SheetWord("V Blank", 240, "~@V Blank@$", words_vblank),
    SheetNumber("Last Line", 250, "~@Last Line@$", 10, 22),
};
inline constexpr SETUPSHEET engsetup_switcher_output_vblank = SheetMore(SheetOf(output_vblank_columns, SWITCHER_OUTPUTS, {.key_head = "Output"}), to_output);

inline constexpr SETUPCOLUMN output_videoclip_columns[] = {
    SheetWord("Clip", 100, "~@Clip@$", words_on_off),
    SheetNumber("White", 130, "~@White@$", 90, 109), SheetNumber("Dark", 130, "~@Dark@$", -7, 10),
    SheetNumber("Chroma", 130, "~@Chroma@$", 90, 112),
};
inline constexpr SETUPSHEET engsetup_switcher_output_videoclip =
    SheetMore(SheetOf(output_videoclip_columns, SWITCHER_OUTPUTS, {.key_head = "Output", .is_direct = 1, .group = SHOWN_AT_ONCE}), to_output);

inline constexpr SETUPWORD words_safe_area[] = {{"16:9", "16:9"}, {"14:9", "14:9"}, {"4:3", "4:3"}, {}};
inline constexpr SETUPCOLUMN output_safetitle_columns[] = {
    SheetWord("Safe Title", 120, "~@Safe Title@$", words_on_off),
    SheetWord("Area", 120, "~@Area@$", words_safe_area),
    SheetNumber("Title %", 125, "~@Title@$", 50, 100), SheetNumber("Action %", 125, "~@Action@$", 50, 100),
};
inline constexpr SETUPSHEET engsetup_switcher_output_safetitle =
    SheetMore(SheetOf(output_safetitle_columns, SWITCHER_OUTPUTS, {.key_head = "Output", .is_direct = 1, .group = SHOWN_AT_ONCE}), to_output);

// What a bank puts out comes in again as a source with a number and a name.
inline constexpr const char* reentries[] = {
    "M/E-1 Out1", "M/E-1 Out2", "M/E-1 Out3", "M/E-1 Out4", "M/E-1 Out5", "M/E-1 Out6", "M/E-2 Out1", "M/E-2 Out2", "M/E-2 Out3", "M/E-2 Out4", "M/E-2 Out5", "M/E-2 Out6",
    "M/E-3 Out1", "M/E-3 Out2", "M/E-3 Out3", "M/E-3 Out4", "M/E-3 Out5", "M/E-3 Out6", "M/E-4 Out1", "M/E-4 Out2", "M/E-4 Out3", "M/E-4 Out4", "M/E-4 Out5", "M/E-4 Out6",
    "M/E-5 Out1", "M/E-5 Out2", "M/E-5 Out3", "M/E-5 Out4", "M/E-5 Out5", "M/E-5 Out6", "P/P Out1", "P/P Out2", "P/P Out3", "P/P Out4", "P/P Out5", "P/P Out6",
};
inline constexpr SETUPCOLUMN output_reentryassign_columns[] = {
    SheetPart(SheetNumber("Src No", 160, "~@$", 1, SWITCHER_INPUTS), 1),
    SheetPart(SheetName("Name", 260, "~@$", 16), 2),
};
inline constexpr SETUPSHEET engsetup_switcher_output_reentryassign =
    SheetMore(SheetOf(output_reentryassign_columns, 36, {.names = reentries, .key_head = "Re-Entry", .key_width = 130}), to_output);

inline constexpr SETUPSHEET engsetup_switcher_output_4kactivesize =
    SheetMore(SheetOf(active_size_columns, 12, {.names = quads, .key_head = "Outputs", .key_width = 80}), to_output);

inline constexpr SETUPCOLUMN output_fcoutputassign_columns[] = {SheetNumberOr("Output", 490, "~@$", words_none_number, SWITCHER_OUTPUTS)};
inline constexpr BT_TBL fc_output_more[] = {SheetJump(33, "FC Output\nSelect", "#73330010"), SetupBack("Output", "#73330000")};
inline constexpr SETUPSHEET engsetup_switcher_output_fcoutputassign =
    SheetMore(SheetOf(output_fcoutputassign_columns, SWITCHER_FC, {.key_head = "FC"}), fc_output_more);

inline constexpr SETUPWORD words_fc_side[] = {{"Input", "Input"}, {"Output", "Output"}, {}};
inline constexpr SETUPCOLUMN output_fcoutputselect_columns[] = {SheetWord("Used For", 490, "~@$", words_fc_side)};
inline constexpr BT_TBL to_fc_output[] = {SetupBack("FC Output\nAssign", "#73330009")};
inline constexpr SETUPSHEET engsetup_switcher_output_fcoutput_fcoutputselect =
    SheetMore(SheetOf(output_fcoutputselect_columns, 4, {.names = fc_boards, .key_head = "FC"}), to_fc_output);

inline constexpr SETUPCOLUMN output_internal_fc_columns[] = {SheetNumberOr("Output", 490, "~@Output@$", words_none_number, SWITCHER_OUTPUTS)};
inline constexpr BT_TBL internal_fc_more[] = {
    SheetJump(33, "FC\nConfig", "#73330012"), SheetJump(34, "FC\nFormat", "#73330013"), SetupBack("Output", "#73330000"),
};
inline constexpr SETUPSHEET engsetup_switcher_output_internal_fc =
    SheetMore(SheetOf(output_internal_fc_columns, SWITCHER_FC, {.key_head = "FC"}), internal_fc_more);

inline constexpr BT_TBL to_internal_fc[] = {SetupBack("Internal\nFC", "#73330011")};
inline constexpr SETUPCOLUMN output_fc_config_columns[] = {
    SheetAsked("Conversion", 240, "~@Convert Mode@$", words_fc_convert),
    SheetWord("Side", 250, "~@Side@$", words_fc_side),
};
inline constexpr SETUPSHEET engsetup_switcher_output_internal_fc_fc_config =
    SheetMore(SheetOf(output_fc_config_columns, SWITCHER_FC, {.key_head = "FC"}), to_internal_fc);
inline constexpr SETUPCOLUMN output_fc_format_columns[] = {SheetAsked("Format", 490, "~@$", words_fc_format)};
inline constexpr SETUPSHEET engsetup_switcher_output_internal_fc_fc_format =
    SheetMore(SheetOf(output_fc_format_columns, SWITCHER_FC, {.key_head = "FC"}), to_internal_fc);

inline constexpr SETUPWORD words_split[] = {{"4", "4"}, {"9", "9"}, {"10", "10"}, {"13", "13"}, {"16", "16"}, {}};
inline constexpr const char* viewers[] = {"MV1", "MV2"};
inline constexpr SETUPCOLUMN output_multiviewer_columns[] = {
    SheetAsked("Layout", 120, "~@Layout@$", words_split),
    SheetWord("Label", 120, "~@Label@$", words_on_off),
    SheetWord("Tally", 120, "~@Tally@$", words_on_off),
    SheetNumberOr("Output", 130, "~@Output@$", words_none_number, SWITCHER_OUTPUTS),
};
inline constexpr BT_TBL multiviewer_more[] = {SheetJump(38, "Output\nAssign", "#73330015"), SetupBack("Output", "#73330000")};
inline constexpr SETUPSHEET engsetup_switcher_output_multiviewer =
    SheetMore(SheetOf(output_multiviewer_columns, 2, {.names = viewers, .key_head = "Viewer"}), multiviewer_more);

inline constexpr const char* windows[] = {
    "MV1-1", "MV1-2", "MV1-3", "MV1-4", "MV1-5", "MV1-6", "MV1-7", "MV1-8", "MV1-9", "MV1-10", "MV1-11", "MV1-12", "MV1-13", "MV1-14", "MV1-15", "MV1-16",
    "MV2-1", "MV2-2", "MV2-3", "MV2-4", "MV2-5", "MV2-6", "MV2-7", "MV2-8", "MV2-9", "MV2-10", "MV2-11", "MV2-12", "MV2-13", "MV2-14", "MV2-15", "MV2-16",
};
inline constexpr SETUPCOLUMN multiviewer_outputassign_columns[] = {
    SheetPart(SheetNumberOr("Output", 200, "~@$", words_none_number, SWITCHER_OUTPUTS), 1),
    SheetPart(SheetName("Label", 250, "~@$", 16), 2),
};
inline constexpr BT_TBL to_multiviewer[] = {SetupBack("Multi\nViewer", "#73330014")};
inline constexpr SETUPSHEET engsetup_switcher_multiviewer_outputassign =
    SheetMore(SheetOf(multiviewer_outputassign_columns, 32, {.names = windows, .key_head = "Window", .key_width = 100}), to_multiviewer);

// --- Device Interface ---

inline constexpr SETUPWORD words_protocol[] = {{"None", "None"}, {"Editor", "Editor"}, {"AUX", "AUX"}, {"Peripheral", "Peripheral"}, {"Tally", "Tally"}, {}};
inline constexpr SETUPWORD words_baud[] = {{"9600", "9600"}, {"19200", "19200"}, {"38400", "38400"}, {"76800", "76800"}, {"115200", "115200"}, {}};
inline constexpr SETUPWORD words_parity[] = {{"None", "None"}, {"Even", "Even"}, {"Odd", "Odd"}, {}};
inline constexpr const char* remote_ports[] = {"Remote1", "Remote2", "Remote3", "Remote4"};
inline constexpr SETUPCOLUMN devinterface_columns[] = {
    SheetAsked("Protocol", 150, "~@Protocol@$", words_protocol),
    SheetAsked("Baud Rate", 150, "~@Baud Rate@$", words_baud, "Baud\nRate"),
    SheetAsked("Parity", 150, "~@Parity@$", words_parity),
};
inline constexpr BT_TBL devinterface_more[] = {
    SheetJump(36, "Remote\nAssign", "#73370001"), SheetJump(37, "AUX\nControl", "#73370002"), SheetJump(38, "DME Type\nSetting", "#73370003"),
    SheetJump(49, "GPI\nInput", "#73370004"), SheetJump(50, "GPI\nOutput", "#73370007"), SheetJump(51, "PC Editor\nI/F", "#73370008"),
    SheetJump(52, "AUX Mix", "#73370009"),
};
inline constexpr SETUPSHEET engsetup_switcher_devinterface =
    SheetMore(SheetOf(devinterface_columns, 4, {.names = remote_ports, .key_head = "Port", .key_width = 100}), devinterface_more);

inline constexpr BT_TBL to_devinterface[] = {SetupBack("Device\nInterface", "#73370000")};
inline constexpr SETUPWORD words_remote[] = {{"None", "None"}, {"M/E-1", "M/E-1"}, {"M/E-2", "M/E-2"}, {"M/E-3", "M/E-3"}, {"M/E-4", "M/E-4"}, {"M/E-5", "M/E-5"}, {"P/P", "P/P"},
                                             {"AUX", "AUX"}, {}};
inline constexpr SETUPCOLUMN devinterface_remoteassign_columns[] = {SheetAsked("Works", 450, "~@$", words_remote)};
inline constexpr SETUPSHEET engsetup_switcher_devinterface_remoteassign =
    SheetMore(SheetOf(devinterface_remoteassign_columns, 4, {.names = remote_ports, .key_head = "Port", .key_width = 100}), to_devinterface);

inline constexpr SETUPWORD words_aux_control[] = {{"Panel", "Panel"}, {"AUX Panel", "AUX Panel"}, {"Both", "Both"}, {}};
inline constexpr SETUPCOLUMN devinterface_auxcontrol_columns[] = {
    SheetWord("Control", 240, "~@Control@$", words_aux_control),
    SheetNumberOr("AUX Panel", 250, "~@AUX Panel@$", words_none_number, 16),
};
inline constexpr SETUPSHEET engsetup_switcher_devinterface_auxcontrol =
    SheetMore(SheetOf(devinterface_auxcontrol_columns, SWITCHER_OUTPUTS, {.key_head = "Aux"}), to_devinterface);

inline constexpr const char* effects_units[] = {"DME1", "DME2", "DME3", "DME4"};
inline constexpr SETUPWORD words_dme_type[] = {{"None", "None"}, {"Single", "Single"}, {"Dual", "Dual"}, {"Quad", "Quad"}, {}};
inline constexpr SETUPCOLUMN devinf_dmetypesetting_columns[] = {SheetAsked("DME Type", 490, "~@$", words_dme_type)};
inline constexpr BT_TBL dme_type_more[] = {SheetJump(36, "SDI I/F", "#73370013"), SetupBack("Device\nInterface", "#73370000")};
inline constexpr SETUPSHEET engsetup_switcher_devinf_dmetypesetting =
    SheetMore(SheetOf(devinf_dmetypesetting_columns, 4, {.names = effects_units, .key_head = "DME"}), dme_type_more);
inline constexpr SETUPWORD words_sdi[] = {{"Dedicated", "Dedicated"}, {"SDI", "SDI"}, {}};
inline constexpr SETUPCOLUMN dme_sdi_columns[] = {SheetFollowed(SheetWord("Interface", 490, "Engineering Setup@Switcher@SDI I/F@$", words_sdi))};
inline constexpr BT_TBL to_dme_type[] = {SetupBack("DME Type\nSetting", "#73370003")};
inline constexpr SETUPSHEET engsetup_switcher_devinf_dmetypesetting_dmesdiinf =
    SheetMore(SheetOf(dme_sdi_columns, 4, {.names = effects_units, .key_head = "DME", .question = setup_reboot_question}), to_dme_type);

inline constexpr SETUPWORD words_editor[] = {{"None", "None"}, {"LAN", "LAN"}, {"Serial", "Serial"}, {}};
inline constexpr const char* editors[] = {"Editor1", "Editor2"};
inline constexpr SETUPCOLUMN pc_editor_columns[] = {
    SheetWord("Interface", 220, "~@Interface@$", words_editor),
    SheetNumberOr("M/E", 230, "~@M/E@$", words_none_number, 5),
};
inline constexpr SETUPSHEET engsetup_switcher_pc_editor_if_menu =
    SheetMore(SheetOf(pc_editor_columns, 2, {.names = editors, .key_head = "Editor", .key_width = 100}), to_devinterface);

inline constexpr const char* aux_pairs[] = {"1/2", "3/4", "5/6", "7/8", "9/10", "11/12", "13/14", "15/16", "17/18", "19/20", "21/22", "23/24"};
inline constexpr SETUPCOLUMN auxmix_columns[] = {
    SheetWord("AUX Mix", 230, "~@Mix@$", words_on_off),
    SheetNumber("Rate", 240, "~@Rate@$", 0, 999),
};
inline constexpr SETUPSHEET engsetup_switcher_auxmix =
    SheetMore(SheetOf(auxmix_columns, 12, {.names = aux_pairs, .key_head = "Aux", .key_width = 80}), to_devinterface);

constexpr int SWITCHER_GPI_PORTS = 8;
inline constexpr BT_TBL gpi_input_more[] = {SheetJump(36, "H/L Set", "#73370005", "Level"), SetupBack("Device\nInterface", "#73370000")};
inline constexpr BT_TBL gpi_hlset_more[] = {SheetJump(50, "FC\nInput/\nOutput", "#73370006"), SetupBack("GPI\nInput", "#73370004")};
inline constexpr BT_TBL gpi_hlset_fc_more[] = {SetupBack("H/L Set", "#73370005")};
inline constexpr SETUPSHEET engsetup_switcher_deviceinterface_gpiinput = SheetMore(SetupGpi_Input(SWITCHER_GPI_PORTS), gpi_input_more);
inline constexpr SETUPSHEET engsetup_switcher_deviceinterface_gpiinput_hlset = SheetMore(SetupGpi_HLSet(SWITCHER_GPI_PORTS), gpi_hlset_more);
inline constexpr SETUPSHEET engsetup_switcher_deviceinterface_gpiinput_hlset_fc = SheetMore(SetupGpi_HLSetFC(SWITCHER_GPI_PORTS), gpi_hlset_fc_more);
inline constexpr BT_TBL gpi_output_more[] = {gpi_test_fire, SetupBack("Device\nInterface", "#73370000")};
inline constexpr SETUPSHEET engsetup_switcher_deviceinterface_gpioutput = SheetMore(SetupGpi_Output(SWITCHER_GPI_PORTS), gpi_output_more);
#undef OUTPUT

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 3), BottomTabs(hf_setup_switcher, n)
#define TREE(...) {"Engineering Setup", "Switcher", __VA_ARGS__}
#define SHEET(n, name) {TABS(n), SHEET_OBJECTS(engsetup_switcher_##name), Code(SetupSheet_Code<engsetup_switcher_##name>)}
#define FC(n, name, list) {TABS(n), Buttons(bt_engsetup_switcher_##name), Boxes(NB_Non), Lists(ls_engsetup_switcher_##list), Code(pc_engsetup_switcher_##name)}
#define GPI(name) {TABS(7), SHEET_OBJECTS(engsetup_switcher_##name), Code(SetupGpi_Code<engsetup_switcher_##name>)}
inline constexpr PAGE setup_switcher_io_pages[] = {
    {.id = 0x73320000, .tree = TREE("Input"), .obj = SHEET(2, input)},
    {.id = 0x73320001, .tree = TREE("Input", "FC Input Select"), .obj = SHEET(2, input_fcinputselect)},
    {.id = 0x73320602, .tree = TREE("Input", "FC Adjust"), .obj = FC(2, input_fcadjust6, input_fcadjust6)},
    {.id = 0x73320007, .tree = TREE("Input", "FC Adjust"), .obj = FC(2, input_fcadjust, input_fcadjust)},
    {.id = 0x73320008, .tree = TREE("Input", "FC Adjust 3G"), .obj = FC(2, input_fcadjust3g, input_fcadjust)},
    {.id = 0x73320009, .tree = TREE("Input", "4K Adjust"), .obj = FC(2, input_f4kadjust, input_fcadjust)},
    {.id = 0x73320003, .tree = TREE("Input", "Internal FC"), .obj = SHEET(2, input_internal_fc)},
    {.id = 0x73320004, .tree = TREE("Input", "4K Active Size"), .obj = SHEET(2, input_4kactivesize)},
    {.id = 0x73320005, .tree = TREE("Input", "Video Process"), .obj = SHEET(2, input_videoprocess)},
    {.id = 0x73320006, .tree = TREE("Input", "CCR"), .obj = SHEET(2, input_ccr)},

    {.id = 0x73330200, .tree = TREE("Output"), .obj = SHEET(3, output)},
    {.id = 0x73330201, .tree = TREE("Output", "Output Assign"),
     .obj = {TABS(3), Buttons(bt_engsetup_switcher_output_assign), Lists(ls_engsetup_switcher_output_assign), Code(pc_engsetup_switcher_output_assign)}},
    {.id = 0x73330002, .tree = TREE("Output", "Crop"), .obj = SHEET(3, output_crop)},
    {.id = 0x73330003, .tree = TREE("Output", "V Blank"), .obj = SHEET(3, output_vblank)},
    {.id = 0x73330004, .tree = TREE("Output", "Video Clip"), .obj = SHEET(3, output_videoclip)},
    {.id = 0x73330005, .tree = TREE("Output", "Safe Title"), .obj = SHEET(3, output_safetitle)},
    {.id = 0x73330006, .tree = TREE("Output", "Re-Entry Assign"), .obj = SHEET(3, output_reentryassign)},
    {.id = 0x73330007, .tree = TREE("Output", "FC Adjust"), .obj = FC(3, output_fcadjust, input_fcadjust)},
    {.id = 0x73330008, .tree = TREE("Output", "4K Active Size"), .obj = SHEET(3, output_4kactivesize)},
    {.id = 0x73330009, .tree = TREE("Output", "FC Output Assign"), .obj = SHEET(3, output_fcoutputassign)},
    {.id = 0x73330010, .tree = TREE("Output", "FC Output Select"), .obj = SHEET(3, output_fcoutput_fcoutputselect)},
    {.id = 0x73330011, .tree = TREE("Output", "Internal FC"), .obj = SHEET(3, output_internal_fc)},
    {.id = 0x73330012, .tree = TREE("Output", "Internal FC", "FC Config"), .obj = SHEET(3, output_internal_fc_fc_config)},
    {.id = 0x73330013, .tree = TREE("Output", "Internal FC", "FC Format"), .obj = SHEET(3, output_internal_fc_fc_format)},
    {.id = 0x73330014, .tree = TREE("Output", "Multi Viewer"), .obj = SHEET(3, output_multiviewer)},
    {.id = 0x73330015, .tree = TREE("Output", "Multi Viewer", "Output Assign"), .obj = SHEET(3, multiviewer_outputassign)},

    {.id = 0x73370000, .tree = TREE("Device Interface"), .obj = SHEET(7, devinterface)},
    {.id = 0x73370001, .tree = TREE("Device Interface", "Remote Assign"), .obj = SHEET(7, devinterface_remoteassign)},
    {.id = 0x73370002, .tree = TREE("Device Interface", "AUX Control"), .obj = SHEET(7, devinterface_auxcontrol)},
    {.id = 0x73370003, .tree = TREE("Device Interface", "DME Type"), .obj = SHEET(7, devinf_dmetypesetting)},
    {.id = 0x73370013, .tree = TREE("Device Interface", "DME Type", "SDI I/F"), .obj = SHEET(7, devinf_dmetypesetting_dmesdiinf)},
    {.id = 0x73370004, .tree = TREE("Device Interface", "GPI Input"), .obj = GPI(deviceinterface_gpiinput)},
    {.id = 0x73370005, .tree = TREE("Device Interface", "GPI Input", "H/L Set"), .obj = SHEET(7, deviceinterface_gpiinput_hlset)},
    {.id = 0x73370006, .tree = TREE("Device Interface", "GPI Input", "H/L Set", "FC Input/Output"), .obj = SHEET(7, deviceinterface_gpiinput_hlset_fc)},
    {.id = 0x73370007, .tree = TREE("Device Interface", "GPI Output"), .obj = GPI(deviceinterface_gpioutput)},
    {.id = 0x73370008, .tree = TREE("Device Interface", "PC Editor I/F"), .obj = SHEET(7, pc_editor_if_menu)},
    {.id = 0x73370009, .tree = TREE("Device Interface", "AUX Mix"), .obj = SHEET(7, auxmix)},
};
#undef TABS
#undef TREE
#undef SHEET
#undef FC
#undef GPI
