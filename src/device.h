// device: the units of the installation, and all that follows from which of them belong to this panel.
// The tables are filled by the bus from tallies; DeviceStructure derives the rest and may be called after any
// change. Whether a page exists for the models in use is asked with the questions at the end.
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
    int refinputformat = 0; // 1 when the reference is "BB"
    int aspect[7] = {};
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
extern DEVICE* DEV_MyPnl[DEVICE_MAX];
extern DEVICE* DEV_MySwr[DEVICE_MAX];
extern DEVICE* DEV_MyDme[DEVICE_MAX];
extern DEVICE* DEV_MyMpe[DEVICE_MAX];
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
extern int SYS_MyDme1; // indices into DEV_Dme of the two channel pairs, -1 none; S: the pair's second unit
extern int SYS_MyDme1S;
extern int SYS_MyDme2;
extern int SYS_MyDme2S;

// --- Life ---
// The start state: one default device a class, every panel on switcher 1, every switcher on effects units 1 and 2.
void Device_Init();
// Derive everything below the tables. Idempotent.
void DeviceStructure();
// Ask the server for the models. The answers complete DEVICE.type.
void Get_DeviceType();
// The number in a device's id from its eighth character on: 1 in "SWR001D001".
int Device_UnitNumber(const DEVICE& dev);
// The row of a class ("PNL", "SWR", "DME", "MPE") with this name, or null.
DEVICE* Device_ByName(const char* name);
// The table of a class by the first three letters; null for none. *max gets the address of its count.
DEVICE* Device_Table(const char* name, int** max);

// --- Questions: 1 or 0 unless said otherwise ---
int is4KFormat();
int isDualProc_DualLink();
int isDualProc_DualLink_DME();
int is1080P_3G();
int is1080P_3G_DME();
int is1080P_ZRD52_DME();
int isZRD52onSWR(const DEVICE* swr);
int getDmeReferenceModel(); // DEVTYPE bit of the reference channel's unit
int isMP2SettingME(uint32_t page); // the page's bank runs multi program 2
int isME_ConfigSelectType(int me); // me_config_type of 0 P/P, 1..5 M/E
int isRefPnlPCX50();
int Is_clip_transition_enable();
