// global: the state that all modules read. GL_ is the application's own, SYS_ is what the server
// told, BUS_ are the name tables of the buses. Every value is valid from its first tally; readers
// live with the initial value, since pages come up before the server has answered. Devices and what
// is derived from them are in device.
#pragma once
#include "types.h"
#include <SDL.h>

// --- The main loop ---
extern uint32_t GL_MainCounter; // passes since the counter was last restarted
extern int GL_InitRead;         // the schedule of the initial read runs; never cleared
extern int GL_InitProgress;     // the timed progress pane is up
extern int GL_InitProgress_PaneID;
extern int GL_NetReConnect;     // a text or binary link has come up
extern int GL_NetReConnect_SHP; // the hub link has come up
extern int MenuDspPos_X;        // the last accepted press
extern int MenuDspPos_Y;
extern int MenuMacro_TouchCount; // accepted presses
extern int SYS_TouchScreen_AX;   // calibration: the raw point that is screen (50, 50)
extern int SYS_TouchScreen_AY;
extern int SYS_TouchScreen_BX; // ... (750, 550)
extern int SYS_TouchScreen_BY;

// --- The ini file ---
extern char GL_ServerAddress[64];
extern int GL_ChatteringTime; // ms
extern char GL_RegistDataPath[PATH_SIZE];
extern char GL_TempFile[64];
extern int GL_DebugMode;
extern char GL_LogFileName[PATH_SIZE];
extern int GL_LoopCounter;
extern int GL_NextVersion;
extern int GL_InitialReadPopupDisable;
extern int GL_ContinuousLoad;
extern int GL_ELCMode;
extern int GL_UtilCommand;
extern int GL_EmergencyMode;
extern int GL_ClipStoreSupportMode;
extern int GL_ClipStoreDebugMode;
extern char GL_ClipStoreDebugAddress[64];

// --- This unit ---
extern int SYS_GroupID;
extern int SYS_UnitID;
extern char SYS_SHP_MyUserID[16];
extern char SYS_StatusHubAddress[16];
extern int SYS_StatusHubPort;
extern int GL_IsRamDisk; // no real data disk: no maintenance log
extern int GL_SSD_Data_Error;
extern int GL_SSD_Sys_Error;
extern int GL_ScreenCapture; // mouse button 3 takes a screen capture
extern int GL_ErrorExist;    // number of self-diagnosis errors
extern int GL_ErrorPopup;    // errors may take over the title
extern int GL_ErrorPopup_On; // an error has taken it
extern int GL_ProcStatus[7]; // server link, then processors 1 to 6; 1 is up
extern int GL_RedrawMenu9991;

// --- Navigation requests and modes ---
extern uint32_t GL_CreatePage; // the page change that the loop is to make; 0 none
extern uint32_t GL_InitialPage;
extern int GL_AllPageDisplayMode; // the automatic walk through all pages
extern int GL_AllPageDisplayMsec;
extern int GL_ScreenSaver_Now;
extern int GL_ScreenSaverInterval; // s, 0 off
extern int GL_Macro_Offline_Store;
extern int GL_Macro_Online_TrueOrFalse;
extern int GL_MenuMacro_Edit;
extern int GL_MenuMacro_AT_Store;
extern int GL_MenuMacro_Run;
extern int GL_Progressbar_Restore_End;
extern int GL_DeviceNo; // device of the last "Page" tally, from 0
extern int GL_MM_Knob_Protcol;
extern uint32_t GL_ShortCutMenu; // the page that asked for a shortcut, and its button
extern int GL_SelectButtonID;
extern uint32_t GL_UtlAsgnShortCutMenu;
extern int GL_UtlAsgnSelectButtonID;
extern uint32_t GL_XptAsgnShortCutMenu;
extern int GL_XptAsgnSelectButtonID;

// --- Operation setup, from the server ---
extern int GL_TouchBuzz;
extern char GL_ImportDataPath[PATH_SIZE];
extern int GL_TimelineDisplayPriority;
extern int GL_SRAM_12K_Extension;
extern int GL_USB_AutoScan;
extern int GL_UnnecessaryThumb;
extern int GL_MouseWheelDirection; // 1: a step up scrolls down
extern int GL_MouseSliderControl;  // 1: the left button drags the slider
extern int GL_RegNameDisplay;
extern int GL_XptButtonCount;
extern int GL_PanelOperationLog;

// --- System setup, from the server ---
extern char GL_NFS_Server[32];
extern char GL_NFS_MountPoint[32];
extern char GL_NFS_MountOption[32];
extern int GL_NFS_Mounted;
extern int GL_DataGokan; // files are converted on loading
constexpr int FILE_LOCKS = 18;
extern int GL_FileLock[FILE_LOCKS]; // a file category that a load may not touch
extern int GL_FMDataPortDisable[2];
extern int GL_FileProcessing; // a unit reports file work of its own, as it does while it deletes

// --- Formats and modes of the switcher ---
extern int SYS_FrameRate; // frames a second: 60, 30, 25, 24
extern int SYS_Format_Size;
extern int SYS_Format_Freq;
extern int SYS_Format_Scan;
extern int SYS_SignalFormat; // 0 interlaced SD, 1 HD; picks knob tables
extern int SYS_ScreenAspect; // 1 is 16:9
extern int SYS_RefSwrScreenAspect[7];
extern int SYS_3DMode; // 1 is on
extern int SYS_4KMode;
extern int SYS_FrameDelayMode2[4];
extern int SYS_DualProc;
extern int SYS_Simul;
extern int SYS_DualSimul;
extern int SYS_SetupTarget; // which switcher the setup pages mean, from 0
extern int SYS_ConfigChange;

// --- M/E banks: index 0..5 is M/E-1 to M/E-5, P/P unless it says P/P first ---
constexpr int ME_COUNT = 6;
extern int SYS_MEOperation[ME_COUNT]; // 1 disabled, 2 inhibited
extern int SYS_KeyTransitionME1;
extern int SYS_KeyTransitionME2;
extern int SYS_KeyTransitionME3;
extern int SYS_KeyTransitionME4;
extern int SYS_KeyTransitionME5;
extern int SYS_KeyTransitionPP;
extern int multiprogram2_me[ME_COUNT]; // index 0 is P/P, 1..5 M/E-1 to M/E-5
// The same index: 1 standard, 2 multi program, 3 multi program 2, 4 DSK.
constexpr int CONFIG_MULTI_PROGRAM_2 = 3;
extern int me_config_type[ME_COUNT];
extern int GL_KeyMax[ME_COUNT]; // keys of a bank, 4 or 8
extern int GL_KeyRowMode;
extern int GL_BoardMESplit[5];
constexpr int PANEL_ROWS = 14;
enum { ASSIGN_1ST_AUX = 6, ASSIGN_2ND_AUX = 7 };
extern int GL_MEAssign[PANEL_ROWS];      // 0 P/P, 1..5 M/E, 6 and 7 the aux buses, -1 none
extern int GL_MainSubAssign[PANEL_ROWS]; // 0 main, 1 sub, 2 both
extern int GL_KeyTransKeyUnitConfig[PANEL_ROWS];
extern int GL_TransKeyUnitConfig[PANEL_ROWS];
extern int FlexiPadKeyUnitConfig[PANEL_ROWS];
extern int SYS_PnlMFFP;

// --- Effects units ---
extern int SYS_DMEReference; // channel bits
extern int SYS_DMEChannel;
extern int SYS_MPEReference;
extern int SYS_MPEChannel;
extern int SYS_Combine[8];   // a channel runs combined
extern int SYS_CombineCh[8]; // what the server said of each channel
extern int SYS_CombineDP[4]; // the pairs
extern int GL_DmeSdiIF[4];   // 1 dedicated interface
extern int GL_DmeSdiIFDP[4];
extern int GL_DmeModel[4];
extern int GL_DmeModelDP[4];
extern int GL_DmeIFType;
extern int GL_LightActive[3];

// --- Frame memory and switcher options ---
extern int SYS_FmemV6;
extern int SYS_FmemAncillary;
extern int SYS_3DPair;
extern int SYS_AutoStore;
extern int SYS_StoreFree;
extern int SYS_StoreFree2;
extern int SYS_StoreTotal; // of the clip store, as SYS_StoreFree; the hub tells these
extern int SYS_MemoryTotal;
extern int SYS_MemoryFree;
extern int SYS_DWSubEnable;
extern int SYS_MP2ReEntry;
extern int SYS_CCRReEntry;
extern int GL_FMThumbnailGetAfter;
extern int GL_FM_Find_Window; // the find of the frame memory is open: no input reaches the page
extern int GL_FM_Find_PaneID;
extern int GL_FreezeStore;
extern int GL_FreezeStore_Exec;
extern int GL_DskInhibit; // 1: the pages that assign the DSK faders only show

// --- Buses ---
constexpr int BUS_EXT_MASTER = 193;
constexpr int BUS_INT_MASTER = 301;
constexpr int BUS_SBUS = 1024;
constexpr int BUS_XPT_SRC = 254;
extern char* BUS_ExtMaster[BUS_EXT_MASTER]; // each allocated; Global_FreeBusNames at the end
extern char* BUS_IntMaster[BUS_INT_MASTER];
extern char* BUS_SBusSrc[BUS_SBUS];
extern char* BUS_SBusDst[BUS_SBUS];
extern char* BUS_XptSrc[BUS_XPT_SRC];
extern int SYS_XptAssignV[BUS_XPT_SRC];
extern int SYS_XptAssignK[BUS_XPT_SRC];

void Global_InitBusNames(); // an own empty text each
void Global_FreeBusNames();

// --- The initial read ---
extern int GL_InitReadStatus[7]; // a unit's initial read is in progress
extern int GL_InitReadStatus_Busy;
extern int GL_InitReadSHP; // the hub subscriptions have been issued
