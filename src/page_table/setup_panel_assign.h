// setup_panel_assign: what the buttons of the panel's modules can be given, one table a module: texts for the list, for the
// wire and for the button. The place in the table is the number that the server knows a row by. Rows that only some
// installations have carry what they need.
#pragma once
#include "pc_engsetup_pnl.h"
#include <array>
#include <cstddef>

struct AssignWord {
    const char* text = ""; // in the list and on the wire
    const char* button = "";
    ASSIGNNEED need = NEED_NOTHING;
};
template <size_t N> constexpr std::array<assign_regnametbl, N> Numbered(const AssignWord (&words)[N])
{
    std::array<assign_regnametbl, N> rows{};
    for (size_t i = 0; i < N; i++)
        rows[i] = {int(i), words[i].text, words[i].text, words[i].button, 1, 1, words[i].need};
    return rows;
}

// Flexi pad.
inline constexpr AssignWord words_FlexiPadmod[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Key", " KEY"}, {"Wipe", "WIPE"}, {"DME Wipe", " DME\nWIPE"},
    {"Snapshot", "SNAP\nSHOT"}, {"Master Effect", "MASTR\n EFF"}, {"Shotbox", "SHOT\n BOX"}, {"Macro", "MCRO"},
    {"Transition Rate", "TRANS\nRATE"}, {"Undo", "UNDO"}, {"Delete", " DEL"}, {"Bank0", "BANK\n   0"},
    {"Bank1", "BANK\n   1"}, {"Bank2", "BANK\n   2"}, {"Bank3", "BANK\n   3"}, {"Bank4", "BANK\n   4"},
    {"Bank5", "BANK\n   5"}, {"Bank6", "BANK\n   6"}, {"Bank7", "BANK\n   7"}, {"Bank8", "BANK\n   8"},
    {"Bank9", "BANK\n   9"}, {"Bank10", "BANK\n  10"}, {"Bank11", "BANK\n  11"}, {"Bank12", "BANK\n  12"},
    {"Bank13", "BANK\n  13"}, {"Bank14", "BANK\n  14"}, {"Recall", "RCL"}, {"Store", "STORE"}, {"Edit", "EDIT"},
    {"Copy", "COPY"}, {"Swap", "SWAP"}, {"Lock", "LOCK"}, {"Name", "NAME"}, {"All Regions", " ALL\n RGN"},
    {"Recall Hold", "HOLD"}, {"Auto Store", "AUTO\nSTORE"}, {"Home", "HOME"}, {"Menu", "MENU"}, {"Enter", "ENTER"},
};
inline constinit std::array<FlexiPadmod_regnametbl, 39> FlexiPadmodule_RegNameTbl = Numbered(words_FlexiPadmod);

// Transition module.
inline constexpr AssignWord words_TransModule[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Auto Trans", "AUTO\nTRANS"}, {"Cut", "CUT"}, {"Bkgd Next Trans", "BKGD\nNEXT"},
    {"Key1 Next Trans", "KEY1\nNEXT"}, {"Key2 Next Trans", "KEY2\nNEXT"}, {"Key3 Next Trans", "KEY3\nNEXT"},
    {"Key4 Next Trans", "KEY4\nNEXT"}, {"Key5 Next Trans", "KEY5\nNEXT", NEED_KEYS8},
    {"Key6 Next Trans", "KEY6\nNEXT", NEED_KEYS8}, {"Key7 Next Trans", "KEY7\nNEXT", NEED_KEYS8},
    {"Key8 Next Trans", "KEY8\nNEXT", NEED_KEYS8}, {"Key1 Cut", "KEY1\n CUT"}, {"Key2 Cut", "KEY2\n CUT"},
    {"Key3 Cut", "KEY3\n CUT"}, {"Key4 Cut", "KEY4\n CUT"}, {"Key5 Cut", "KEY5\n CUT", NEED_KEYS8},
    {"Key6 Cut", "KEY6\n CUT", NEED_KEYS8}, {"Key7 Cut", "KEY7\n CUT", NEED_KEYS8},
    {"Key8 Cut", "KEY8\n CUT", NEED_KEYS8}, {"Key1 Auto Trans", "KEY1\nAUTO"}, {"Key2 Auto Trans", "KEY2\nAUTO"},
    {"Key3 Auto Trans", "KEY3\nAUTO"}, {"Key4 Auto Trans", "KEY4\nAUTO"},
    {"Key5 Auto Trans", "KEY5\nAUTO", NEED_KEYS8}, {"Key6 Auto Trans", "KEY6\nAUTO", NEED_KEYS8},
    {"Key7 Auto Trans", "KEY7\nAUTO", NEED_KEYS8}, {"Key8 Auto Trans", "KEY8\nAUTO", NEED_KEYS8}, {"Mix", "MIX"},
    {"NAM", "NAM"}, {"Super Mix", "SUPER\n MIX"}, {"Preset Color Mix", "COLOR\n MIX"}, {"Wipe", "WIPE"},
    {"DME Wipe", " DME\nWIPE"}, {"Clip Trans", "CLIP"}, {"Trans Limit", "LIMIT\n SET"},
    {"Trans Preview", "TRANS\n PVW"}, {"Key Priority", "KEY\nPRIOR"}, {"Normal/Reverse", "NORM\n/REV"},
    {"Reverse", "REV"}, {"Pattern Limit", " PTN\nLIMIT"}, {"All Next Trans", " ALL\nNEXT"},
};
inline constinit std::array<transmod_regnametbl, 42> TransModule_RegNameTbl = Numbered(words_TransModule);

// Simple transition module.
inline constexpr AssignWord words_SimpleTrans[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Auto Trans", "AUTO\nTRANS"}, {"Cut", "CUT"}, {"Bkgd Next Trans", "BKGD\nNEXT"},
    {"Key1 Next Trans", "KEY1\nNEXT"}, {"Key2 Next Trans", "KEY2\nNEXT"}, {"Key3 Next Trans", "KEY3\nNEXT"},
    {"Key4 Next Trans", "KEY4\nNEXT"}, {"Mix", "MIX"}, {"Wipe", "WIPE"}, {"DME Wipe", " DME\nWIPE"},
    {"Super Mix", "SUPER\n MIX"}, {"NAM", "NAM"}, {"Preset Color Mix", "COLOR\n MIX"}, {"Clip Trans", "CLIP"},
    {"Trans Preview", "TRANS\n PVW"}, {"Trans Limit", "LIMIT\n SET"}, {"Normal/Reverse", "NORM\n/REV"},
    {"Reverse", "REV"}, {"Key Priority", "KEY\nPRIOR"}, {"Pattern Limit", " PTN\nLIMIT"},
    {"All Next Trans", " ALL\nNEXT"},
};
inline constinit std::array<transmod_regnametbl, 22> TransMod_SimpleTransRegName = Numbered(words_SimpleTrans);

// The same, one and a half rows high.
inline constexpr AssignWord words_Simple15RTrans[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Auto Trans", "AUTO\nTRANS"}, {"Cut", "CUT"}, {"Bkgd Next Trans", "BKGD\nNEXT"},
    {"Key1 Next Trans", "KEY1\nNEXT"}, {"Key2 Next Trans", "KEY2\nNEXT"}, {"Key3 Next Trans", "KEY3\nNEXT"},
    {"Key4 Next Trans", "KEY4\nNEXT"}, {"Mix", "MIX"}, {"Wipe", "WIPE"}, {"DME Wipe", " DME\nWIPE"},
    {"Super Mix", "SUPER\n MIX"}, {"Trans Preview", "TRANS\n PVW"}, {"Trans Limit", "LIMIT\n SET"},
};
inline constinit std::array<transmod_regnametbl, 14> TransMod_Simple15RTransRegName = Numbered(words_Simple15RTrans);

// Downstream keys and fade to black.
inline constexpr AssignWord words_DSKFTB[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"FTB Auto Trans", " FTB\nAUTO"}, {"FTB Cut", " FTB\n CUT"}, {"DSK1 On", "DSK1\n ON"},
    {"DSK1 Auto Trans", "DSK1\nAUTO"}, {"DSK1 Cut", "DSK1\n CUT"}, {"DSK1 PVW", "DSK1\n PVW"},
    {"DSK1 Drop", "DSK1\nDROP"}, {"DSK2 On", "DSK2\n ON"}, {"DSK2 Auto Trans", "DSK2\nAUTO"},
    {"DSK2 Cut", "DSK2\n CUT"}, {"DSK2 PVW", "DSK2\n PVW"}, {"DSK2 Drop", "DSK2\nDROP"}, {"DSK3 On", "DSK3\n ON"},
    {"DSK3 Auto Trans", "DSK3\nAUTO"}, {"DSK3 Cut", "DSK3\n CUT"}, {"DSK3 PVW", "DSK3\n PVW"},
    {"DSK3 Drop", "DSK3\nDROP"}, {"DSK4 On", "DSK4\n ON"}, {"DSK4 Auto Trans", "DSK4\nAUTO"},
    {"DSK4 Cut", "DSK4\n CUT"}, {"DSK4 PVW", "DSK4\n PVW"}, {"DSK4 Drop", "DSK4\nDROP"},
    {"DSK5 On", "DSK5\n ON", NEED_KEYS8}, {"DSK5 Auto Trans", "DSK5\nAUTO", NEED_KEYS8},
    {"DSK5 Cut", "DSK5\n CUT", NEED_KEYS8}, {"DSK5 PVW", "DSK5\n PVW", NEED_KEYS8},
    {"DSK5 Drop", "DSK5\nDROP", NEED_KEYS8}, {"DSK6 On", "DSK6\n ON", NEED_KEYS8},
    {"DSK6 Auto Trans", "DSK6\nAUTO", NEED_KEYS8}, {"DSK6 Cut", "DSK6\n CUT", NEED_KEYS8},
    {"DSK6 PVW", "DSK6\n PVW", NEED_KEYS8}, {"DSK6 Drop", "DSK6\nDROP", NEED_KEYS8},
    {"DSK7 On", "DSK7\n ON", NEED_KEYS8}, {"DSK7 Auto Trans", "DSK7\nAUTO", NEED_KEYS8},
    {"DSK7 Cut", "DSK7\n CUT", NEED_KEYS8}, {"DSK7 PVW", "DSK7\n PVW", NEED_KEYS8},
    {"DSK7 Drop", "DSK7\nDROP", NEED_KEYS8}, {"DSK8 On", "DSK8\n ON", NEED_KEYS8},
    {"DSK8 Auto Trans", "DSK8\nAUTO", NEED_KEYS8}, {"DSK8 Cut", "DSK8\n CUT", NEED_KEYS8},
    {"DSK8 PVW", "DSK8\n PVW", NEED_KEYS8}, {"DSK8 Drop", "DSK8\nDROP", NEED_KEYS8}, {"All DSK Off", "DSKS\n OFF"},
    {"DSK Fader", "FADER"}, {"DSK Trans Rate", "TRANS\nRATE"}, {"DSK Lock", "LOCK"}, {"FTB Rate", " FTB\nRATE"},
    {"FTB Lock", " FTB\nLOCK"}, {"Shift", "SHIFT"},
};
inline constinit std::array<regnametbl_dskftb, 50> RegName_DSKFTB_Tbl = Numbered(words_DSKFTB);

// Device control.
inline constexpr AssignWord words_DEVCTRL[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Play", "PLAY"}, {"Stop", "STOP"}, {"Still", "STILL"}, {"Record", "REC"},
    {"Fast Forward", "FF"}, {"Rewind", "REW"}, {"Jog", "JOG"}, {"Shuttle", "SHTL"}, {"Variable", "VAR"},
    {"Slow", "SLOW"}, {"Cue Up", " CUE\n UP"}, {"All Stop", " ALL\nSTOP"}, {"Loop", "LOOP"}, {"Recue", "RECUE"},
    {"Eject", "EJECT"}, {"Standby", "STBY"}, {"Top", "TOP"}, {"End", "END"}, {"Frame Forward", "FRM\nFWD"},
    {"Frame Back", "FRM\nBACK"}, {"Mark In", "MARK\n IN"}, {"Mark Out", "MARK\n OUT"}, {"Go To", "GO TO"},
    {"Preroll", "PRE\nROLL"}, {"Device 1", " DEV\n   1"}, {"Device 2", " DEV\n   2"}, {"Device 3", " DEV\n   3"},
    {"Device 4", " DEV\n   4"}, {"Device 5", " DEV\n   5"}, {"Device 6", " DEV\n   6"}, {"Device 7", " DEV\n   7"},
    {"Device 8", " DEV\n   8"}, {"Device 9", " DEV\n   9"}, {"Device 10", " DEV\n  10"}, {"Device 11", " DEV\n  11"},
    {"Device 12", " DEV\n  12"}, {"Cue 1", " CUE\n   1"}, {"Cue 2", " CUE\n   2"}, {"Cue 3", " CUE\n   3"},
    {"Cue 4", " CUE\n   4"}, {"Cue 5", " CUE\n   5"}, {"Cue 6", " CUE\n   6"}, {"Cue 7", " CUE\n   7"},
    {"Cue 8", " CUE\n   8"}, {"Cue 9", " CUE\n   9"}, {"Cue 10", " CUE\n  10"}, {"Cue 11", " CUE\n  11"},
    {"Cue 12", " CUE\n  12"}, {"Cue 13", " CUE\n  13"}, {"Cue 14", " CUE\n  14"}, {"Cue 15", " CUE\n  15"},
    {"Cue 16", " CUE\n  16"}, {"Cue 17", " CUE\n  17"}, {"Cue 18", " CUE\n  18"}, {"Cue 19", " CUE\n  19"},
    {"Cue 20", " CUE\n  20"}, {"Cue 21", " CUE\n  21"}, {"Cue 22", " CUE\n  22"}, {"Cue 23", " CUE\n  23"},
    {"Cue 24", " CUE\n  24"}, {"Cue 25", " CUE\n  25"}, {"Cue 26", " CUE\n  26"}, {"Cue 27", " CUE\n  27"},
    {"Cue 28", " CUE\n  28"}, {"Cue 29", " CUE\n  29"}, {"Cue 30", " CUE\n  30"}, {"Cue 31", " CUE\n  31"},
    {"Cue 32", " CUE\n  32"}, {"GPI 1", " GPI\n   1"}, {"GPI 2", " GPI\n   2"}, {"GPI 3", " GPI\n   3"},
    {"GPI 4", " GPI\n   4"}, {"GPI 5", " GPI\n   5"}, {"GPI 6", " GPI\n   6"}, {"GPI 7", " GPI\n   7"},
    {"GPI 8", " GPI\n   8"}, {"GPI 9", " GPI\n   9"}, {"GPI 10", " GPI\n  10"}, {"GPI 11", " GPI\n  11"},
    {"GPI 12", " GPI\n  12"}, {"GPI 13", " GPI\n  13"}, {"GPI 14", " GPI\n  14"}, {"GPI 15", " GPI\n  15"},
    {"GPI 16", " GPI\n  16"}, {"Channel 1", "  CH\n   1"}, {"Channel 2", "  CH\n   2"}, {"Channel 3", "  CH\n   3"},
    {"Channel 4", "  CH\n   4"}, {"Channel 5", "  CH\n   5"}, {"Channel 6", "  CH\n   6"},
    {"Channel 7", "  CH\n   7"}, {"Channel 8", "  CH\n   8"}, {"Channel 9", "  CH\n   9"},
    {"Channel 10", "  CH\n  10"}, {"Channel 11", "  CH\n  11"}, {"Channel 12", "  CH\n  12"},
    {"Channel 13", "  CH\n  13"}, {"Channel 14", "  CH\n  14"}, {"Channel 15", "  CH\n  15"},
    {"Channel 16", "  CH\n  16"}, {"Play List 1", "LIST\n   1"}, {"Play List 2", "LIST\n   2"},
    {"Play List 3", "LIST\n   3"}, {"Play List 4", "LIST\n   4"}, {"Play List 5", "LIST\n   5"},
    {"Play List 6", "LIST\n   6"}, {"Play List 7", "LIST\n   7"}, {"Play List 8", "LIST\n   8"},
    {"Play List 9", "LIST\n   9"}, {"Play List 10", "LIST\n  10"}, {"Timeline Link", " TL\nLINK"},
    {"Start TC", "START\n TC"}, {"Stop TC", "STOP\n TC"}, {"Duration", "DUR"}, {"Speed", "SPEED"},
    {"Speed 100%", "100%"}, {"Speed 50%", " 50%"}, {"Reverse Play", "REV\nPLAY"}, {"Clip Select", "CLIP\n SEL"},
    {"Clip Next", "NEXT\nCLIP"}, {"Clip Previous", "PREV\nCLIP"}, {"Audio", "AUDIO"}, {"Shift", "SHIFT"},
    {"Lock", "LOCK"},
};
inline constinit std::array<regnametbl_devctrl, 125> RegName_DEVCTRL_Tbl = Numbered(words_DEVCTRL);

// Key transition module.
inline constexpr AssignWord words_KeyTrans[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Key1 Next Trans", "KEY1\nNEXT"}, {"Key2 Next Trans", "KEY2\nNEXT"},
    {"Key3 Next Trans", "KEY3\nNEXT"}, {"Key4 Next Trans", "KEY4\nNEXT"},
    {"Key5 Next Trans", "KEY5\nNEXT", NEED_KEYS8}, {"Key6 Next Trans", "KEY6\nNEXT", NEED_KEYS8},
    {"Key7 Next Trans", "KEY7\nNEXT", NEED_KEYS8}, {"Key8 Next Trans", "KEY8\nNEXT", NEED_KEYS8},
    {"Key1 Cut", "KEY1\n CUT"}, {"Key2 Cut", "KEY2\n CUT"}, {"Key3 Cut", "KEY3\n CUT"}, {"Key4 Cut", "KEY4\n CUT"},
    {"Key5 Cut", "KEY5\n CUT", NEED_KEYS8}, {"Key6 Cut", "KEY6\n CUT", NEED_KEYS8},
    {"Key7 Cut", "KEY7\n CUT", NEED_KEYS8}, {"Key8 Cut", "KEY8\n CUT", NEED_KEYS8},
    {"Key1 Auto Trans", "KEY1\nAUTO"}, {"Key2 Auto Trans", "KEY2\nAUTO"}, {"Key3 Auto Trans", "KEY3\nAUTO"},
    {"Key4 Auto Trans", "KEY4\nAUTO"}, {"Key5 Auto Trans", "KEY5\nAUTO", NEED_KEYS8},
    {"Key6 Auto Trans", "KEY6\nAUTO", NEED_KEYS8}, {"Key7 Auto Trans", "KEY7\nAUTO", NEED_KEYS8},
    {"Key8 Auto Trans", "KEY8\nAUTO", NEED_KEYS8}, {"Key On/Off All", " ALL\nON/OF"}, {"Key Priority", "KEY\nPRIOR"},
    {"Key Trans Rate", "TRANS\nRATE"}, {"Shift", "SHIFT"},
};
inline constinit std::array<assign_regnametbl, 29> RegName_KeyTrans_Tbl = Numbered(words_KeyTrans);

// Which bus or key a row works on.
inline constexpr AssignWord words_KeyDeleg[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Key1 Delegation", " KEY\n   1"}, {"Key2 Delegation", " KEY\n   2"},
    {"Key3 Delegation", " KEY\n   3"}, {"Key4 Delegation", " KEY\n   4"},
    {"Key5 Delegation", " KEY\n   5", NEED_KEYS8}, {"Key6 Delegation", " KEY\n   6", NEED_KEYS8},
    {"Key7 Delegation", " KEY\n   7", NEED_KEYS8}, {"Key8 Delegation", " KEY\n   8", NEED_KEYS8},
    {"Bkgd A", "BKGD\n  A"}, {"Bkgd B", "BKGD\n  B"}, {"Util 1", "UTIL\n  1"}, {"Util 2", "UTIL\n  2"},
    {"All Keys", " ALL\nKEYS"}, {"Main Side", "MAIN", NEED_SUB}, {"Sub Side", " SUB", NEED_SUB},
};
inline constinit std::array<assign_regnametbl, 16> RegName_KeyDeleg_Tbl = Numbered(words_KeyDeleg);

// Key control module.
inline constexpr AssignWord words_KeyControl[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Luminance", "LUM"}, {"Linear", "LIN"}, {"Chroma", "CHRM"},
    {"Color Vector", "COLOR\nVECT"}, {"Key Invert", " KEY\n INV"}, {"Self", "SELF"}, {"Split", "SPLIT"},
    {"Fill Matte", "FILL\nMATTE"}, {"Auto Chroma", "AUTO\nCHRM"}, {"Clean Mode", "CLEAN"}, {"Edge Border", "BORDR"},
    {"Drop Border", "DROP\nBORDR"}, {"Shadow", "SHADW"}, {"Outline", " OUT\nLINE"}, {"Emboss", " EM\nBOSS"},
    {"Main Mask", "MAIN\nMASK"}, {"Sub Mask", " SUB\nMASK"}, {"Resizer", " RE\nSIZER"}, {"DME", "DME"},
    {"Video Process", "VIDEO\nPROC"}, {"Store Key", "STORE\n KEY"}, {"Undo", "UNDO"},
    {"Default Recall", "DEF\n RCL"},
};
inline constinit std::array<assign_regnametbl, 24> RegName_KeyControl_Tbl = Numbered(words_KeyControl);

// What a crosspoint module has beside its crosspoints.
inline constexpr AssignWord words_Xpt[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"XPT Hold", "HOLD"}, {"Shift", "SHIFT"}, {"Shift Lock", "SHIFT\nLOCK"},
    {"Show Name", "SHOW\nNAME"}, {"Router Mode", " RTR\nMODE"}, {"Aux Delegation", " AUX\nDELEG"},
    {"Key Delegation", " KEY\nDELEG"}, {"Video/Key Split", "SPLIT"}, {"Lock", "LOCK"}, {"Macro Attach", "MCRO"},
    {"Key Invert", " KEY\n INV"}, {"Bus Undo", "UNDO"}, {"Preview", "PVW"}, {"Side Flags", "SIDE\nFLAG"},
};
inline constinit std::array<assign_regnametbl, 15> RegName_Xpt_Tbl = Numbered(words_Xpt);

// Menu panel.
inline constexpr AssignWord words_MenuPanel[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Home", "HOME"}, {"M/E-1", "M/E\n  1"}, {"M/E-2", "M/E\n  2"}, {"M/E-3", "M/E\n  3"},
    {"M/E-4", "M/E\n  4"}, {"M/E-5", "M/E\n  5"}, {"PGM/PST", " PGM\n/PST"}, {"Frame Memory", "FRAME\n MEM"},
    {"Color Bkgd", "COLOR\nBKGD"}, {"Aux", "AUX"}, {"CCR", "CCR"}, {"Copy/Swap", "COPY\nSWAP"}, {"Status", "STAT"},
    {"DME", "DME"}, {"Global Effect", "GLOB\n EFF"}, {"Router", "RTR"}, {"Device", "DEV"}, {"Macro", "MCRO"},
    {"Key Frame", " KEY\nFRAME"}, {"Effect", "EFF"}, {"Snapshot", "SNAP\nSHOT"}, {"Shotbox", "SHOT\n BOX"},
    {"File", "FILE"}, {"Engineering Setup", " ENG\nSETUP"}, {"Diag", "DIAG"}, {"Default Recall", "DEF\n RCL"},
    {"Page", "PAGE"}, {"Previous Page", "PREV"}, {"Top Menu", "TOP"},
};
inline constinit std::array<assign_regnametbl, 30> RegName_MenuPanel_Tbl = Numbered(words_MenuPanel);

// Joystick or trackball module.
inline constexpr AssignWord words_JoyTrack[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Location", "LOC"}, {"Rotation", "ROT"}, {"Size", "SIZE"}, {"Aspect", "ASPCT"},
    {"Axis Location", "AXIS\nLOC"}, {"Perspective", "PERSP"}, {"Local", "LOCAL"}, {"Global", "GLOBL"},
    {"Source Space", " SRC"}, {"Target Space", " TRGT"}, {"X Only", "X"}, {"Y Only", "Y"}, {"Z Only", "Z"},
    {"Center", "CNTR"}, {"Fine", "FINE"}, {"Wipe Position", "WIPE\n POS"}, {"Mask Position", "MASK\n POS"},
    {"Resizer Position", "RSZR\n POS"}, {"Spot Position", "SPOT\n POS"}, {"Crop", "CROP"}, {"Edge", "EDGE"},
    {"Undo", "UNDO"}, {"Trans Reset", "RESET"},
};
inline constinit std::array<assign_regnametbl, 24> RegName_JoyTrack_Tbl = Numbered(words_JoyTrack);

// Shotbox module.
inline constexpr AssignWord words_Shotbox[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Shotbox 1", "SHOT\n   1"}, {"Shotbox 2", "SHOT\n   2"}, {"Shotbox 3", "SHOT\n   3"},
    {"Shotbox 4", "SHOT\n   4"}, {"Shotbox 5", "SHOT\n   5"}, {"Shotbox 6", "SHOT\n   6"},
    {"Shotbox 7", "SHOT\n   7"}, {"Shotbox 8", "SHOT\n   8"}, {"Shotbox 9", "SHOT\n   9"},
    {"Shotbox 10", "SHOT\n  10"}, {"Shotbox 11", "SHOT\n  11"}, {"Shotbox 12", "SHOT\n  12"},
    {"Shotbox 13", "SHOT\n  13"}, {"Shotbox 14", "SHOT\n  14"}, {"Shotbox 15", "SHOT\n  15"},
    {"Shotbox 16", "SHOT\n  16"}, {"Shotbox 17", "SHOT\n  17"}, {"Shotbox 18", "SHOT\n  18"},
    {"Shotbox 19", "SHOT\n  19"}, {"Shotbox 20", "SHOT\n  20"}, {"Macro 1", "MCRO\n   1"}, {"Macro 2", "MCRO\n   2"},
    {"Macro 3", "MCRO\n   3"}, {"Macro 4", "MCRO\n   4"}, {"Macro 5", "MCRO\n   5"}, {"Macro 6", "MCRO\n   6"},
    {"Macro 7", "MCRO\n   7"}, {"Macro 8", "MCRO\n   8"}, {"Macro 9", "MCRO\n   9"}, {"Macro 10", "MCRO\n  10"},
    {"Macro 11", "MCRO\n  11"}, {"Macro 12", "MCRO\n  12"}, {"Macro 13", "MCRO\n  13"}, {"Macro 14", "MCRO\n  14"},
    {"Macro 15", "MCRO\n  15"}, {"Macro 16", "MCRO\n  16"}, {"Macro 17", "MCRO\n  17"}, {"Macro 18", "MCRO\n  18"},
    {"Macro 19", "MCRO\n  19"}, {"Macro 20", "MCRO\n  20"}, {"Bank Shift", "BANK\nSHIFT"}, {"Auto Run", "AUTO\nRUN"},
    {"Store", "STORE"}, {"Hold", "HOLD"},
};
inline constinit std::array<assign_regnametbl, 45> RegName_Shotbox_Tbl = Numbered(words_Shotbox);

// Fade to black module.
inline constexpr AssignWord words_FTB[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"FTB Auto Trans", " FTB\nAUTO"}, {"FTB Cut", " FTB\n CUT"},
    {"FTB Rate", " FTB\nRATE"}, {"FTB Lock", " FTB\nLOCK"}, {"FTB Key Include", " KEY\nINCL"},
    {"Color Select", "COLOR"}, {"Shift", "SHIFT"},
};
inline constinit std::array<assign_regnametbl, 8> RegName_FTB_Tbl = Numbered(words_FTB);

// Extension panel.
inline constexpr AssignWord words_Extension[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"GPI Output 1", " GPI\n   1"}, {"GPI Output 2", " GPI\n   2"},
    {"GPI Output 3", " GPI\n   3"}, {"GPI Output 4", " GPI\n   4"}, {"GPI Output 5", " GPI\n   5"},
    {"GPI Output 6", " GPI\n   6"}, {"GPI Output 7", " GPI\n   7"}, {"GPI Output 8", " GPI\n   8"},
    {"GPI Output 9", " GPI\n   9"}, {"GPI Output 10", " GPI\n  10"}, {"GPI Output 11", " GPI\n  11"},
    {"GPI Output 12", " GPI\n  12"}, {"GPI Output 13", " GPI\n  13"}, {"GPI Output 14", " GPI\n  14"},
    {"GPI Output 15", " GPI\n  15"}, {"GPI Output 16", " GPI\n  16"}, {"Macro 1", "MCRO\n   1"},
    {"Macro 2", "MCRO\n   2"}, {"Macro 3", "MCRO\n   3"}, {"Macro 4", "MCRO\n   4"}, {"Macro 5", "MCRO\n   5"},
    {"Macro 6", "MCRO\n   6"}, {"Macro 7", "MCRO\n   7"}, {"Macro 8", "MCRO\n   8"}, {"Macro 9", "MCRO\n   9"},
    {"Macro 10", "MCRO\n  10"}, {"Macro 11", "MCRO\n  11"}, {"Macro 12", "MCRO\n  12"}, {"Shotbox 1", "SHOT\n   1"},
    {"Shotbox 2", "SHOT\n   2"}, {"Shotbox 3", "SHOT\n   3"}, {"Shotbox 4", "SHOT\n   4"},
    {"Shotbox 5", "SHOT\n   5"}, {"Shotbox 6", "SHOT\n   6"}, {"Shotbox 7", "SHOT\n   7"},
    {"Shotbox 8", "SHOT\n   8"}, {"Shotbox 9", "SHOT\n   9"}, {"Shotbox 10", "SHOT\n  10"},
    {"Shotbox 11", "SHOT\n  11"}, {"Shotbox 12", "SHOT\n  12"}, {"Shift", "SHIFT"}, {"Lock", "LOCK"},
};
inline constinit std::array<assign_regnametbl, 43> RegName_Extension_Tbl = Numbered(words_Extension);

// Multi-function module while it edits macros.
inline constexpr AssignWord words_MacroEdit[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Edit", "EDIT"}, {"Insert", "INS"}, {"Modify", "MOD"}, {"Delete", " DEL"},
    {"Copy", "COPY"}, {"Paste", "PASTE"}, {"Undo", "UNDO"}, {"Event Forward", "NEXT\nEVENT"},
    {"Event Back", "PREV\nEVENT"}, {"Pause Event", "PAUSE"}, {"Auto Insert", "AUTO\nINS"}, {"Step Run", "STEP"},
    {"Stop", "STOP"}, {"Recall", "RCL"}, {"Store", "STORE"}, {"Set", "SET"}, {"Take", "TAKE"}, {"Merge", "MERGE"},
};
inline constinit std::array<assign_regnametbl, 19> RegName_MacroEdit_Tbl = Numbered(words_MacroEdit);

// The same while it edits effects.
inline constexpr AssignWord words_EffEdit[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Edit", "EDIT"}, {"Insert Before", " INS\nBEFOR"}, {"Insert After", " INS\nAFTER"},
    {"Modify", "MOD"}, {"Delete", " DEL"}, {"Copy", "COPY"}, {"Paste Before", "PASTE\nBEFOR"},
    {"Paste After", "PASTE\nAFTER"}, {"Undo", "UNDO"}, {"Rewind", "REW"}, {"Run", "RUN"}, {"Fast Forward", "FF"},
    {"Stop Next", "STOP\nNEXT"}, {"Previous Keyframe", "PREV\n KF"}, {"Next Keyframe", "NEXT\n KF"},
    {"Go To", "GO TO"}, {"Pause", "PAUSE"}, {"Loop", "LOOP"}, {"Jog", "JOG"}, {"Normal/Reverse", "NORM\n/REV"},
    {"Const Duration", "CONST\n DUR"}, {"Transition Path", "PATH"}, {"Store", "STORE"}, {"Recall", "RCL"},
};
inline constinit std::array<assign_regnametbl, 25> RegName_EffEdit_Tbl = Numbered(words_EffEdit);

// The same: what its mode keys choose.
inline constexpr AssignWord words_ModeSel[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Effect", "EFF"}, {"Snapshot", "SNAP\nSHOT"}, {"Shotbox", "SHOT\n BOX"},
    {"Macro", "MCRO"}, {"Menu Macro", "MENU\nMCRO"}, {"Key Snapshot", " KEY\nSNAP"}, {"Wipe Snapshot", "WIPE\nSNAP"},
    {"DME Wipe Snapshot", " DME\nSNAP"}, {"Effect Edit", " EFF\nEDIT"}, {"Macro Edit", "MCRO\nEDIT"},
    {"Timeline", " TIME\nLINE"}, {"Device", "DEV"}, {"Ten Key", " 10\n KEY"}, {"Transition Rate", "TRANS\nRATE"},
    {"Wipe Pattern", "WIPE\n PTN"}, {"DME Pattern", " DME\n PTN"},
};
inline constinit std::array<assign_regnametbl, 17> RegName_ModeSel_Tbl = Numbered(words_ModeSel);

// Menu pages that a shortcut button opens.
inline constexpr AssignWord words_Shortcut[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Top Menu", "TOP"}, {"M/E-1 Key1", "M/E1\nKEY1"}, {"M/E-2 Key1", "M/E2\nKEY1"},
    {"M/E-3 Key1", "M/E3\nKEY1"}, {"M/E-4 Key1", "M/E4\nKEY1"}, {"M/E-5 Key1", "M/E5\nKEY1"},
    {"PGM/PST Key1", " PGM\nKEY1"}, {"M/E-1 Wipe", "M/E1\nWIPE"}, {"M/E-2 Wipe", "M/E2\nWIPE"},
    {"M/E-3 Wipe", "M/E3\nWIPE"}, {"M/E-4 Wipe", "M/E4\nWIPE"}, {"M/E-5 Wipe", "M/E5\nWIPE"},
    {"PGM/PST Wipe", " PGM\nWIPE"}, {"Frame Memory", "FRAME\n MEM"}, {"Color Bkgd", "COLOR\nBKGD"}, {"CCR", "CCR"},
    {"DME", "DME"}, {"Global Effect", "GLOB\n EFF"}, {"Device", "DEV"}, {"Macro", "MCRO"},
    {"Key Frame", " KEY\nFRAME"}, {"Effect", "EFF"}, {"Snapshot", "SNAP\nSHOT"}, {"Shotbox", "SHOT\n BOX"},
    {"File", "FILE"}, {"Engineering Setup", " ENG\nSETUP"}, {"Diag", "DIAG"},
};
inline constinit std::array<assign_regnametbl, 28> RegName_Shortcut_Tbl = Numbered(words_Shortcut);

// What a utility button does.
inline constexpr AssignWord words_Utility[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Key Priority", "KEY\nPRIOR"}, {"Aux Delegation", " AUX\nDELEG"},
    {"Show Key", "SHOW\n KEY"}, {"Safe Title", "SAFE\nTITLE"}, {"Clip Trans", "CLIP\nTRANS"}, {"Freeze", "FRZE"},
    {"FM Record", " FM\n REC"}, {"Undo", "UNDO"}, {"Default Recall", "DEF\n RCL"},
    {"Transition Preview", "TRANS\n PVW"}, {"Pattern Limit", " PTN\nLIMIT"}, {"Bus Toggle", "FLIP\nFLOP"},
    {"Effect Recall", " EFF\n RCL"}, {"Snapshot Recall", "SNAP\n RCL"}, {"Macro Record", "MCRO\n REC"},
    {"Macro Stop", "MCRO\nSTOP"}, {"Key Lock", " KEY\nLOCK"}, {"Panel Lock", "PANEL\nLOCK"},
    {"Side Flags", "SIDE\nFLAG"}, {"GPI Enable", " GPI\nENBL"}, {"Tally Enable", "TALLY\nENBL"},
    {"Screen Capture", "SHOT"}, {"Error Page", "ERROR"},
};
inline constinit std::array<assign_regnametbl, 24> RegName_Utility_Tbl = Numbered(words_Utility);

// Which rate a transition rate button works on.
inline constexpr AssignWord words_TransRate[] = {
    {"NO ASSIGN", "NO\nASGN"}, {"Bkgd Trans Rate", "BKGD\nRATE"}, {"Key1 Trans Rate", "KEY1\nRATE"},
    {"Key2 Trans Rate", "KEY2\nRATE"}, {"Key3 Trans Rate", "KEY3\nRATE"}, {"Key4 Trans Rate", "KEY4\nRATE"},
    {"Key5 Trans Rate", "KEY5\nRATE", NEED_KEYS8}, {"Key6 Trans Rate", "KEY6\nRATE", NEED_KEYS8},
    {"Key7 Trans Rate", "KEY7\nRATE", NEED_KEYS8}, {"Key8 Trans Rate", "KEY8\nRATE", NEED_KEYS8},
    {"DSK Trans Rate", " DSK\nRATE"}, {"FTB Rate", " FTB\nRATE"}, {"Preset Rate 1", "RATE\n  1"},
    {"Preset Rate 2", "RATE\n  2"}, {"Preset Rate 3", "RATE\n  3"}, {"Preset Rate 4", "RATE\n  4"},
    {"All Rates", " ALL\nRATE"},
};
inline constinit std::array<assign_regnametbl, 17> RegName_TransRate_Tbl = Numbered(words_TransRate);
