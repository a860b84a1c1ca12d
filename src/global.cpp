#include "global.h"
#include "memory.h"

#include "safeguards.h"

// --- The main loop ---
uint32_t GL_MainCounter = 0;
int GL_InitRead = 0;
int GL_InitProgress = 0;
int GL_InitProgress_PaneID = 0;
int GL_NetReConnect = 0;
int GL_NetReConnect_SHP = 0;
int MenuDspPos_X = 0;
int MenuDspPos_Y = 0;
int MenuMacro_TouchCount = 0;
int SYS_TouchScreen_AX = 50;
int SYS_TouchScreen_AY = 50;
int SYS_TouchScreen_BX = 750;
int SYS_TouchScreen_BY = 550;

// --- The ini file ---
char GL_ServerAddress[64] = "";
int GL_ChatteringTime = 130;
char GL_RegistDataPath[PATH_SIZE] = "/mnt/data/";
char GL_TempFile[64] = "/var/tmp/__tm3__.tmp";
int GL_DebugMode = 0;
char GL_LogFileName[PATH_SIZE] = "/var/log2/tm3.log";
int GL_LoopCounter = 0;
int GL_NextVersion = 0;
int GL_InitialReadPopupDisable = 0;
int GL_ContinuousLoad = 0;
int GL_ELCMode = 0;
int GL_UtilCommand = 0;
int GL_EmergencyMode = 0;
int GL_ClipStoreSupportMode = 0;
int GL_ClipStoreDebugMode = 0;
char GL_ClipStoreDebugAddress[64] = "";

// --- This unit ---
int SYS_GroupID = 1;
int SYS_UnitID = 1;
char SYS_SHP_MyUserID[16] = "MENU1";
char SYS_StatusHubAddress[16] = "192.168.111.1";
int SYS_StatusHubPort = 9500;
int GL_IsRamDisk = 0;
int GL_SSD_Data_Error = 1;
int GL_SSD_Sys_Error = 1;
int GL_ScreenCapture = 0;
int GL_ErrorExist = 0;
int GL_ErrorPopup = 0;
int GL_ErrorPopup_On = 0;
int GL_ProcStatus[7] = {};
int GL_RedrawMenu9991 = 0;

// --- Navigation requests and modes ---
uint32_t GL_CreatePage = 0;
uint32_t GL_InitialPage = 0x00110000;
int GL_AllPageDisplayMode = 0;
int GL_AllPageDisplayMsec = 0;
int GL_ScreenSaver_Now = 0;
int GL_ScreenSaverInterval = 1200;
int GL_Macro_Offline_Store = 0;
int GL_Macro_Online_TrueOrFalse = 0;
int GL_MenuMacro_Edit = 0;
int GL_MenuMacro_AT_Store = 0;
int GL_MenuMacro_Run = 0;
int GL_Progressbar_Restore_End = 0;
int GL_DeviceNo = 0;
int GL_MM_Knob_Protcol = 0;
uint32_t GL_ShortCutMenu = 0;
int GL_SelectButtonID = 0;
uint32_t GL_UtlAsgnShortCutMenu = 0;
int GL_UtlAsgnSelectButtonID = 0;
uint32_t GL_XptAsgnShortCutMenu = 0;
int GL_XptAsgnSelectButtonID = 0;

// --- Operation setup, from the server ---
int GL_TouchBuzz = 0;
char GL_ImportDataPath[PATH_SIZE] = "";
int GL_TimelineDisplayPriority = 0;
int GL_SRAM_12K_Extension = 0;
int GL_USB_AutoScan = 0;
int GL_UnnecessaryThumb = 0;
int GL_MouseWheelDirection = 0;
int GL_MouseSliderControl = 0;
int GL_RegNameDisplay = 0;
int GL_XptButtonCount = 0;
int GL_PanelOperationLog = 0;

// --- System setup, from the server ---
char GL_NFS_Server[32] = "192.168.111.10";
char GL_NFS_MountPoint[32] = "/ktrfiles";
char GL_NFS_MountOption[32] = "retrans=5,soft,nolock";
int GL_NFS_Mounted = 0;
int GL_DataGokan = 0;
int GL_FileLock[FILE_LOCKS] = {};
int GL_FMDataPortDisable[2] = {};
int GL_FileProcessing = 0;

// --- Formats and modes of the switcher ---
int SYS_FrameRate = 60;
int SYS_Format_Size = 0;
int SYS_Format_Freq = 0;
int SYS_Format_Scan = 0;
int SYS_SignalFormat = 1;
int SYS_ScreenAspect = 1;
int SYS_RefSwrScreenAspect[7] = {};
int SYS_3DMode = 0;
int SYS_4KMode = 0;
int SYS_FrameDelayMode2[4] = {};
int SYS_DualProc = 0;
int SYS_Simul = 0;
int SYS_DualSimul = 0;
int SYS_SetupTarget = 0;
int SYS_ConfigChange = 0;

// --- M/E banks: index 0..5 is M/E-1 to M/E-5, P/P unless it says P/P first ---
int SYS_MEOperation[ME_COUNT] = {};
int SYS_KeyTransitionME1 = 0;
int SYS_KeyTransitionME2 = 0;
int SYS_KeyTransitionME3 = 0;
int SYS_KeyTransitionME4 = 0;
int SYS_KeyTransitionME5 = 0;
int SYS_KeyTransitionPP = 0;
int multiprogram2_me[ME_COUNT] = {};
int me_config_type[ME_COUNT] = {};
int GL_KeyMax[ME_COUNT] = {8, 8, 8, 8, 8, 8};
int GL_KeyRowMode = 0;
int GL_BoardMESplit[5] = {};
int GL_MEAssign[PANEL_ROWS] = {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
int GL_MainSubAssign[PANEL_ROWS] = {};
int GL_KeyTransKeyUnitConfig[PANEL_ROWS] = {};
int GL_TransKeyUnitConfig[PANEL_ROWS] = {};
int FlexiPadKeyUnitConfig[PANEL_ROWS] = {};
int SYS_PnlMFFP = 0;

// --- Effects units ---
int SYS_DMEReference = 0;
int SYS_DMEChannel = 0;
int SYS_MPEReference = 0;
int SYS_MPEChannel = 0;
int SYS_Combine[8] = {};
int SYS_CombineCh[8] = {};
int SYS_CombineDP[4] = {};
int GL_DmeSdiIF[4] = {};
int GL_DmeSdiIFDP[4] = {};
int GL_DmeModel[4] = {};
int GL_DmeModelDP[4] = {};
int GL_DmeIFType = 0;
int GL_LightActive[3] = {};

// --- Frame memory and switcher options ---
int SYS_FmemV6 = 1;
int SYS_FmemAncillary = 0;
int SYS_3DPair = 2;
int SYS_AutoStore = 0;
int SYS_StoreFree = 0;
int SYS_StoreFree2 = 0;
int SYS_StoreTotal = 0;
int SYS_MemoryTotal = 0;
int SYS_MemoryFree = 0;
int SYS_DWSubEnable = 0;
int SYS_MP2ReEntry = 0;
int SYS_CCRReEntry = 0;
int GL_FMThumbnailGetAfter = 0;
int GL_FM_Find_Window = 0;
int GL_FM_Find_PaneID = 0;
int GL_FreezeStore = 0;
int GL_FreezeStore_Exec = 0;
int GL_DskInhibit = 0;

// --- Buses ---
char* BUS_ExtMaster[BUS_EXT_MASTER] = {};
char* BUS_IntMaster[BUS_INT_MASTER] = {};
char* BUS_SBusSrc[BUS_SBUS] = {};
char* BUS_SBusDst[BUS_SBUS] = {};
char* BUS_XptSrc[BUS_XPT_SRC] = {};
int SYS_XptAssignV[BUS_XPT_SRC] = {};
int SYS_XptAssignK[BUS_XPT_SRC] = {};

// --- The initial read ---
int GL_InitReadStatus[7] = {};
int GL_InitReadStatus_Busy = 0;
int GL_InitReadSHP = 0;

// --- Bus names ---
namespace
{
struct NameTable {
    char** names;
    int count;
};
} // namespace

static constexpr NameTable bus_names[] = {
    {BUS_ExtMaster, BUS_EXT_MASTER}, {BUS_IntMaster, BUS_INT_MASTER}, {BUS_SBusSrc, BUS_SBUS},
    {BUS_SBusDst, BUS_SBUS},         {BUS_XptSrc, BUS_XPT_SRC},
};

void Global_FreeBusNames()
{
    for (const NameTable& table : bus_names) {
        for (int i = 0; i < table.count; i++) {
            GDL_Free(table.names[i]);
            table.names[i] = nullptr;
        }
    }
}

void Global_InitBusNames()
{
    Global_FreeBusNames();
    for (const NameTable& table : bus_names)
        for (int i = 0; i < table.count; i++)
            table.names[i] = GDL_StrDup("");
}
