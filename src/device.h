// device: the units of the installation, and all that follows from which of them belong to this
// panel. The tables are filled by the bus from tallies; DeviceStructure derives the rest and may be
// called after any change. Whether a page exists for the models in use is asked with the questions
// at the end.
#pragma once
#include "types.h"
#include <ctime>

enum : int {
    DEVTYPE_UNKNOWN = 0,
    // panels
    DEVTYPE_QRD11 = 1,
    DEVTYPE_QRD11A = 2,
    DEVTYPE_QRD21 = 4,
    DEVTYPE_QRD22 = 8,
    DEVTYPE_QRD21A = 16,
    DEVTYPE_QRD22A = 32,
    DEVTYPE_QRD31 = 64,
    DEVTYPE_QRD32 = 128,
    DEVTYPE_QRD33 = 256,
    DEVTYPE_QRD11B = 512,
    // switchers
    DEVTYPE_KTR40 = 1,
    DEVTYPE_KTR40SF = 2,
    DEVTYPE_LTR50 = 4,
    DEVTYPE_LTR50SF = 8,
    DEVTYPE_KTR40A = 16,
    DEVTYPE_KTR40ASF = 32,
    DEVTYPE_KTR40G = 64,
    DEVTYPE_KTR40GSF = 128,
    DEVTYPE_KTR40E = 256,
    DEVTYPE_KTR40X = 512,
    DEVTYPE_KTR40XSF = 1024,
    DEVTYPE_NTR40 = 2048,
    // effects units
    DEVTYPE_FXU40 = 1,
    DEVTYPE_HLDB7 = 2,
    DEVTYPE_FXU50 = 4,
    DEVTYPE_FXU40A = 8,
    DEVTYPE_QRD51 = 16,
    DEVTYPE_QRD52E = 32,
    DEVTYPE_QRD53X = 64,
    DEVTYPE_ZRD52 = 128,
    // multi-picture effects
    DEVTYPE_TPE20 = 1,
};
using DEVTYPE = int;

struct SELFDIAG {
    int status = 0; // 0 not reported, 1 OK, 128 and above an error
    int value = 0;
    char time[24] = "";
    char message[64] = "";
    time_t lerr = 0;
};
constexpr int SELFDIAG_ITEMS = 466;

struct DEVICE {
    char name[16] = ""; // "SWR1"
    char id[16] = "";   // "SWR001D001": class, unit number, sub id
    char dataip[24] = "";
    char ctrlip[24] = "";
    char periip[24] = "";
    int format_size = 0;
    int format_freq = 0;
    int format_scan = 0;
    int refinputformat = 0;                // 1 when the reference is "BB"
    int aspect[7] = {1, 1, 1, 1, 1, 1, 1}; // of each output or channel; 0 is 4:3, 1 is 16:9
    int function[256] = {};
    DEVTYPE type = DEVTYPE_UNKNOWN;
    char version[16] = "";
    int selfdiag_from = 0;
    SELFDIAG selfdiag[SELFDIAG_ITEMS];
    double framerate = 30.0;
    int activeline = 0; // 1 "480i", 2 "576i", 3 "720p", 4 "1080i", 5 "1080PsF", 6 "1080p"
};

constexpr int DEVICE_MAX = 8;
constexpr int DCU_MAX = 2;
constexpr int UNIT_MAX = 256;
extern DEVICE DEV_Pnl[DEVICE_MAX];
extern DEVICE DEV_Swr[DEVICE_MAX];
extern DEVICE DEV_Dme[DEVICE_MAX];
extern DEVICE DEV_Mpe[DEVICE_MAX];
extern DEVICE DEV_Dcu[DCU_MAX];
extern int SYS_PnlMax; // rows in use
extern int SYS_SwrMax;
extern int SYS_DmeMax;
extern int SYS_MpeMax;
extern int SYS_PnlAssign[UNIT_MAX][2]; // switchers of a panel, by panel number
extern int SYS_SwrAssign[UNIT_MAX][4]; // effects units of a switcher, by switcher number
extern char SYS_PnlName[UNIT_MAX][16];
extern char SYS_SwrName[UNIT_MAX][16];
extern char SYS_DmeName[UNIT_MAX][16];
extern int SYS_MyPnl; // number of this panel

// What belongs to this panel; null behind the last.
extern DEVICE* DEV_MyPnl[DEVICE_MAX + 1];
extern DEVICE* DEV_MySwr[DEVICE_MAX + 1];
extern DEVICE* DEV_MyDme[DEVICE_MAX + 1];
extern DEVICE* DEV_MyMpe[DEVICE_MAX + 1];
extern int SYS_MyPnlMax;
extern int SYS_MySwrMax;
extern int SYS_MyDmeMax;
extern int SYS_MyMpeMax;
extern int SYS_MyAllMax;
extern DEVTYPE SYS_RefPnlType;
extern DEVTYPE SYS_RefSwrType;
extern DEVTYPE SYS_RefDmeType;
extern DEVTYPE SYS_TargetSwrType;
extern int SYS_RefSwrActiveLine;
extern int SYS_RefPnlActiveLine;
// Indices into DEV_Dme, -1 none. 1 serves channels 1 to 4, 2 channels 5 to 8; S is the second unit
// that a group has where one unit cannot carry the format alone. They are the four places of the
// switcher's assignment row in the order 1, 2, 1S, 2S; a place that the first switcher leaves empty
// is taken from the next.
extern int SYS_MyDme1;
extern int SYS_MyDme1S;
extern int SYS_MyDme2;
extern int SYS_MyDme2S;

constexpr DEVTYPE OLD_SWITCHERS =
    DEVTYPE_KTR40 | DEVTYPE_KTR40SF | DEVTYPE_LTR50 | DEVTYPE_LTR50SF; // frame memory before V6
enum : int { ACTIVELINE_576I = 2, ACTIVELINE_1080P = 6 };              // of DEVICE.activeline

// What DEVICE.function holds.
enum : int {
    FUNCTION_OPTION_WORD = 0,     // of a panel: the options that it is fitted with, 0 none
    FUNCTION_FRAME_CONVERTER = 1, // of a switcher: the frame-converter board is fitted
};

// --- Life ---
// The start state: one default device a class, every panel on switcher 1, every switcher on effects
// units 1 and 2, eight keys in every bank until the switcher says less.
void Device_Init();
// Derive everything below the tables. Idempotent. An assignment row names units by their number; a
// number that no row of the table has is passed over. All multi-picture units in the table belong
// to this panel: nothing assigns them. Without an own unit of a class its reference type is
// DEVTYPE_UNKNOWN; a setup target that does not exist means the first switcher.
void DeviceStructure();
// The subscriptions of the sub sides are gone: the next DeviceStructure makes them anew if some
// bank runs multi program 2.
void Device_ForgetMultiProgram();
// Ask the server for the models. The answers complete DEVICE.type.
void Get_DeviceType();
// Take an answer to Get_DeviceType or a report of fitted boards. 1 when the path was one of these
// two, otherwise 0:
//   "Info@Board Config@Unit Model@SWR1": the model's number from 1 in the order of DEVTYPE
//   "Info@Board Config@Board Exist Set@SWR1@EEPROM": the entries of DEVICE.function from 0, with
//   commas between them; "...@PNL1" begins with the panel's option word
int Device_Tally(const char* path, const char* value);
// The number in a device's id from its eighth character on: 1 in "SWR001D001"; 0 for an id that is
// too short.
int Device_UnitNumber(const DEVICE& dev);
// The row of a class ("PNL", "SWR", "DME", "MPE") with this name, or null.
DEVICE* Device_ByName(const char* name);
// The table of a class by the first three letters; null for none. *max gets the address of its
// count.
DEVICE* Device_Table(const char* name, int** max);

// --- Questions: 1 or 0 unless said otherwise ---
// Every one has an answer for units that are not known yet. "1080p" is 1080p of 50 or 59.94 Hz,
// which one HD link cannot carry; "first" is the first unit of this panel.
int is4KFormat();              // the 4K mode is on or the switcher's picture is 3840 x 2160
int isDualProc_DualLink();     // two processors share the first switcher's 1080p
int isDualProc_DualLink_DME(); // the same for the effects units; a ZRD52 needs no partner
// The same with one processor, which then lacks half of its banks or channels.
int isSingleProc_DualLink();
int isSingleProc_DualLink_DME();
int is1080P_3G();                    // one processor of a KTR40G or later carries 1080p on one link
int is1080P_3G_DME();                // there the first effects unit runs 1080p, too
int is1080P_ZRD52_DME();             // the first effects unit is a ZRD52 and runs 1080p
int isZRD52onSWR(const DEVICE* swr); // an effects unit that is assigned to the switcher is a ZRD52
// DEVTYPE bit of the unit that serves the lowest reference channel; without a reference that of
// channel 1.
int getDmeReferenceModel();
int getDmeReferenceUnit();         // that unit's number from 1, as GL_DmeModel counts; 0 none
int isMP2SettingME(uint32_t page); // the page's bank runs multi program 2
int isME_ConfigSelectType(int me); // me_config_type of 0 P/P, 1..5 M/E
int isRefPnlPCX50();               // the own panel is of the newest frame, QRD11B
int Is_clip_transition_enable();   // clips come from frame memory V6, which has none in 4K
int hasPanelOption();              // an own panel reports an option word
int hasFrameConverter();           // the setup target has the frame-converter board
