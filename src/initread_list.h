// initread_list: the subscriptions of the initial read as rows. Only initread.cpp includes it.
#pragma once
#include <cstddef>

enum class Verb { Add, Read, Put, Wait, AddOwnPanel };

// One path, or one for each word or number that stands between head and tail. With also, each is
// followed by the same with those heads.
struct SubscribeRow {
    Verb verb = Verb::Add;
    const char* head = "";
    const char* tail = "";
    const char* const* words = nullptr; // ended by null
    int from = 0;
    int to = -1; // below from: no numbers
    const char* also[2] = {};
};

constexpr SubscribeRow Add(const char* path)
{
    return {.head = path};
}
constexpr SubscribeRow AddEach(const char* head, const char* const* words,
                               const char* also = nullptr, const char* also_2 = nullptr)
{
    return {.head = head, .words = words, .also = {also, also_2}};
}
constexpr SubscribeRow AddNumbers(const char* head, int from, int to, const char* also = nullptr)
{
    return {.head = head, .from = from, .to = to, .also = {also}};
}
constexpr SubscribeRow Read(const char* path)
{
    return {.verb = Verb::Read, .head = path};
}
constexpr SubscribeRow Put(const char* path_and_value)
{
    return {.verb = Verb::Put, .head = path_and_value};
}

constexpr const char* words_switchers[] = {"SWR1", "SWR2", nullptr};
constexpr const char* words_dmes[] = {"DME1", "DME2", "DME3", "DME4", nullptr};
constexpr const char* words_mpes[] = {"MPE1", "MPE2", "MPE3", "MPE4", nullptr};
// The units that are asked for what they shall start with.
constexpr const char* words_auto_load[] = {"PNL",  "SWR1", "SWR2", "DME1",
                                           "DME2", "DME3", "DME4", nullptr};
constexpr const char* words_swr_dme[] = {"SWR1", "SWR2", "DME1", "DME2", "DME3", "DME4", nullptr};
constexpr const char* words_banks[] = {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P", nullptr};
constexpr const char* words_rows[] = {"1st Row",  "2nd Row",  "3rd Row",  "4th Row",  "5th Row",
                                      "6th Row",  "7th Row",  "8th Row",  "9th Row",  "10th Row",
                                      "11th Row", "12th Row", "13th Row", "14th Row", nullptr};
constexpr const char* words_video_format[] = {"PNL1", "PNL2", "PNL3", "PNL4", "SWR1",
                                              "SWR2", "DME1", "DME2", "DME3", "DME4",
                                              "MPE1", "MPE2", "MPE3", "MPE4", nullptr};
constexpr const char* words_reference[] = {"SWR1", "SWR2", "DME1", "DME2", "DME3", "DME4",
                                           "PNL1", "PNL2", "PNL3", "PNL4", nullptr};
constexpr const char* words_setup_data[] = {"SRAM Map KeyCode",
                                            "Screen Saver",
                                            "Touch Buzz",
                                            "Import Path",
                                            "Timeline Display Priority",
                                            "Error Status",
                                            "Timeline Region Display",
                                            "Timeline Region Priority",
                                            "Initial Menu Set",
                                            "V/K Pair Assign",
                                            nullptr};
constexpr const char* words_setup_data_end[] = {
    "Usb Auto Scan", "Mouse Wheel Direction", "Mouse Slider Control", "Reg Name Display", nullptr};
constexpr const char* words_system[] = {
    "File Auto Convert", "NFS Enable",     "NFS Server",          "NFS Mount Point",
    "NFS Mount Option",  "File Load Lock", "Panel Operation Log", nullptr};
constexpr const char* words_board[] = {"SWR1@EEPROM",    "SWR1@Auto Scan", "SWR2@EEPROM",
                                       "SWR2@Auto Scan", "DME1",           "DME2",
                                       "DME3",           "DME4",           nullptr};
constexpr const char* words_procs[] = {"PROC1", "PROC2", nullptr};
// The outputs of the frame memory, two by two.
constexpr const char* words_fm_pairs[] = {"FM1/2",   "FM3/4",   "FM5/6",   "FM7/8",
                                          "FM9/10",  "FM11/12", "FM13/14", "FM15/16",
                                          "FM17/18", "FM19/20", nullptr};
constexpr const char* words_flexi_pad[] = {"P/P",       "M/E-1",     "M/E-2",     "M/E-3",
                                           "M/E-4",     "M/E-5",     "P/P SUB",   "M/E-1 SUB",
                                           "M/E-2 SUB", "M/E-3 SUB", "M/E-4 SUB", "M/E-5 SUB",
                                           "1st AUX",   "2nd AUX",   nullptr};
constexpr const char* words_key_banks[] = {"M/E-1@Key", "M/E-2@Key", "M/E-3@Key", "PGM/PST@DSK",
                                           "M/E-4@Key", "M/E-5@Key", nullptr};

#define FORMAT "Engineering Setup@System@Format@"
#define UNIT_CONFIG "Engineering Setup@System@Install@Unit Config@"
#define SYSTEM_CONFIG "Engineering Setup@System@System Config@"
#define PANEL "Engineering Setup@Panel@"
#define SWITCHER "Engineering Setup@Switcher@"
#define OPERATION "Info@Operation Setup Data@"
#define FLEXI_PAD PANEL "Operation@Xpt Module Operation@Flexi Pad Button@"

// The units and their assignment come first: nothing else can be understood without them. The pause
// lets the answers arrive before the next lines go out.
constexpr SubscribeRow initial_0[] = {
    Put("Info@Status Report#true"),
    Read("Info@IP Address@Menu CPU"),
    Add("Engineering Setup@System@Network Config@List"),
    Add(SYSTEM_CONFIG "Panel Assign"),
    Add(SYSTEM_CONFIG "Switcher Assign"),
    {.verb = Verb::AddOwnPanel, .head = SYSTEM_CONFIG "System Operation Mode@"},
    Add(SYSTEM_CONFIG "Setup Target"),
    Add(SYSTEM_CONFIG "S-Bus Remote"),
    {.verb = Verb::Wait, .head = "TM3WAIT#2000"},
    Add("Frame Mem@Status@Extended Capacity"),
    Add("16@Frame Mem@Status@Max Register"),
    Add(UNIT_CONFIG "M/E Split"),
    Add("MPE@Fx@Channel@Selected"),
    Add("MPE@Fx@Channel@Reference"),
};

constexpr SubscribeRow initial_1[] = {
    AddNumbers("Info@Processor Status@", 1, 6),
    Put("Info@Menu Macro@Report#true"),
    Put(OPERATION "SRAM Map KeyCode#true"),
    AddEach(OPERATION, words_setup_data),
    AddNumbers(OPERATION "Color Select@", 1, 12),
    Add(OPERATION "Unnecessary Thumbnail"),
    AddEach("Info@System Setup Data@FM Data Port Disable@", words_switchers),
    AddNumbers(OPERATION "Group Name@", 1, 10, OPERATION "Shortcut Name@"),
    AddEach(OPERATION, words_setup_data_end),
    Add("Info@DME@RefCH"),
    Add("Info@DME@SelCH"),
    AddEach("Info@System Setup Data@", words_system),
    Add("Info@Xpt Button Count"),
    AddEach("Info@Board Config@Board Exist Set@", words_board),
    {.verb = Verb::AddOwnPanel, .head = "Info@Board Config@Board Exist Set@"}, // its option word
    Add("TopMenu"),
    Put("TopMenu@SubMenuSite#false"),
    AddEach(FORMAT "Video Format2@", words_switchers),
    Add(FORMAT "Switcher Aspect"),
    Add(FORMAT "DME Aspect"),
    AddEach(FORMAT "Video Format@", words_video_format),
    AddEach(FORMAT "Reference@", words_reference),
    AddEach(FORMAT "3D Mode@", words_swr_dme),
    Add(FORMAT "4K Mode"),
    Add("16@" UNIT_CONFIG "CCR Config"),
    Add("32@" UNIT_CONFIG "CCR Config"),
    Add("16@" UNIT_CONFIG "FM Data"),
    Add("32@" UNIT_CONFIG "FM Data"),
    AddEach(PANEL "Config@M/E Operation@", words_banks),
    Add(PANEL "Xpt Assign@Source@List"),
    Add(PANEL "Xpt Assign@Assign"),
    Add(PANEL "Xpt Assign@Button No"),
    Read(PANEL "Config@External Bus Link@Master Bus List"),
    Read(PANEL "Config@External Bus Link@S-BUS Src Name List"),
    Read(PANEL "Config@External Bus Link@S-BUS Dst Name List"),
    AddNumbers(PANEL "Config@10 Key Region Assign@Common@Region@Common@", 1, 23),
    AddEach(PANEL "Config@M/E Assign@", words_rows),
    AddEach(PANEL "Config@MP2 Main/Sub Assign@Main/Sub Assign@", words_rows),
    AddNumbers(PANEL "Config@Compact Key Module Assign@KY Unit Config@", 0, 14),
    AddEach(SWITCHER "Config@M/E Config@", words_banks),
    Add(SWITCHER "Config@M/E Output Assign@List"),
    Add(SWITCHER "Config@PGM Config@List"),
    Add(SWITCHER "Key/Wipe@FM Auto Store"),
    AddEach(SWITCHER "Transition@Key Transition@", words_banks),
    Add(SWITCHER "SDI I/F@DME1"),
    Add(SWITCHER "SDI I/F@DME2"),
    Add(SWITCHER "Config@DME Wipe Sub Enable"),
    Add(SWITCHER "Config@MP2 Re-Entry"),
    Add(SWITCHER "Key/Wipe/FM/CCR@CCR Intrnl Signl Enbl"),
    Read(SWITCHER "Link@Internal Bus Link@Master Bus List"),
    Add("Engineering Setup@DME@Model@DME1"),
    Add("Engineering Setup@DME@Model@DME2"),
    Add(FORMAT "FC Format"),
    AddEach("Engineering Setup@MPE@Config@SCU Select@", words_mpes),
    AddEach("Engineering Setup@MPE@Config@SWR Select@", words_mpes),
    AddEach("Info@Self Diagnosis Notice@MPE Status@", words_mpes),
    Add("Frame Mem@Status@Store Number Sense"),
    Add("Frame Mem@Status@Store Number2 Sense"),
    AddNumbers("16@Frame Mem@Status@Register Status@", 0, 44),
    AddNumbers("16@Frame Mem@Status@Register Status@", 128, 172),
    AddNumbers("16@Frame Mem@Status@Folder Status@", 0, 44),
    AddNumbers("16@Frame Mem@Status@Folder Status@", 128, 172),
    Add("16@Frame Mem@Status@Folder Name Sense"),
    Add("Frame Mem@Folder@Move Still"),
    Add("Frame Mem@Clip@Ancillary Playback Enable"),
    AddEach("Frame Mem@Clip@Rec@", words_procs),
    Add("16@Frame Mem@External HDD@Busy"),
    Add("32@Frame Mem@External HDD@Busy"),
    AddEach("Frame Mem@Edit@Freeze@Freeze@Frame@", words_procs),
    AddEach("Frame Mem@Edit@Freeze@Freeze@Field@", words_procs),
    AddEach("Frame Mem 2@Clip/Still@Pair@", words_fm_pairs),
    Add("Frame Mem 2@Clip/Still@Out Pair Select"),
    AddEach(FLEXI_PAD "Assign@", words_flexi_pad, FLEXI_PAD "Page Name@", FLEXI_PAD "Page Jump@"),
    Add("Macro@Attachment@All Clear"),
};

constexpr SubscribeRow initial_2[] = {
    Add(OPERATION "Auto Load"),
    AddEach("Info@Auto Load@Data Exist@", words_auto_load),
    AddEach("Info@Auto Load@Start@", words_auto_load),
};

#undef FORMAT
#undef UNIT_CONFIG
#undef SYSTEM_CONFIG
#undef PANEL
#undef SWITCHER
#undef OPERATION
#undef FLEXI_PAD
