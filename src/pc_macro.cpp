#include "pc_macro.h"
#include "a_bt.h"
#include "device.h"
#include "file.h"
#include "global.h"
#include "page.h"
#include "pc_macro_offline.h"
#include "process.h"
#include "register.h"
#include "text.h"
#include "window.h"
#include <unistd.h>
#include "safeguards.h"

int GL_MacroEditNo = 0;
char GL_MacroEditNoName[32] = "";
char GL_Macro_Offline_OriginalName[12] = "";
int GL_Macro_Offline_RegStore = 0;

static FILEXFERLIST* fetched;  // the job's; null while none runs
static uint32_t fetching_page; // that began it

int Macro_PanelFile(int number, char* path, int path_size, char* target, int target_size)
{
    const DEVICE* const panel = DEV_MyPnl[0];
    if (!panel)
        return -1;
    snprintf(target, size_t(target_size), "PNL%d", Device_UnitNumber(*panel));
    snprintf(path, size_t(path_size), "%s:/vorn/tmp/file/MACRO/%s/PNL_%04d.PMR", panel->id, target,
             number);
    return 0;
}

void Macro_ShowFileError()
{
    (void)CreateWindow(WINDOW_MESSAGE, "Error", {.message = "It was not possible to make a file."});
}

static void note_register(int number, const char* shown, const char* name)
{
    GL_MacroEditNo = number;
    PrintText(GL_MacroEditNoName, "%d  Name: %s", number, shown);
    CopyText(GL_Macro_Offline_OriginalName, name);
}

// What went wrong stands in the job's own pane.
static void macro_offline_edit_sel_result(uint32_t, int number)
{
    const bool is_there = fetched && fetched->status == FILESTATUS_OK;
    if (is_there && GL_NowPage == fetching_page && number == GL_MacroEditNo)
        GL_CreatePage = PAGE_MACRO_OFFLINE;
}

static int fetch(int number)
{
    char src[FILE_PATH_SIZE], dst[FILE_PATH_SIZE], target[32];
    PrintText(dst, "MYHOST:%s", MACRO_EDIT_FILE);
    if (Macro_PanelFile(number, src, sizeof src, target, sizeof target) == 0 &&
        File_XferList_SCPAdd(&fetched, src, dst, "MACRO", target) == 0 &&
        File_TransSCPdirGetList(&fetched, macro_offline_edit_sel_result, number) >= 0)
        return 0;
    File_XferList_RemoveAll(&fetched);
    Macro_ShowFileError();
    return -1;
}

static int make_new(int number)
{
    char header[MACRO_HEADER_SIZE];
    MacroFile_Header(number, GL_Macro_Offline_OriginalName, header);
    if (MacroFile_New(MACRO_EDIT_FILE, header) != 0) {
        Macro_ShowFileError();
        return -1;
    }
    GL_CreatePage = PAGE_MACRO_OFFLINE;
    return 0;
}

int Macro_OfflineEdit(int number)
{
    char shown[12], name[12];
    if (fetched || MacroOffline_IsStoring())
        return 0;                  // one at a time
    (void)unlink(MACRO_EDIT_FILE); // of an editor that was never closed
    (void)MakeDir(MACRO_EDIT_DIR); // told when the file cannot be made
    GL_Macro_Offline_RegStore = !Register_Exist_Macro(0, number - 1);
    if (!GL_Macro_Offline_RegStore) {
        CopyText(name, Register_Name_Macro(0, number - 1));
        note_register(number, name, name);
        fetching_page = GL_NowPage;
        return fetch(number);
    }
    PrintText(shown, "MCRO%d", number);
    PrintText(name, "M%d", number);
    note_register(number, shown, name);
    return make_new(number);
}

static int macro_offline_edit_sel()
{
    return Macro_OfflineEdit(RegisterPage_Number());
}

static int macro_online_edit_sel()
{
    const int number = RegisterPage_Number();
    const char* const name = RegisterPage_Line().name;
    note_register(number, name, name);
    GL_Macro_Online_TrueOrFalse = 1;
    GL_CreatePage = PAGE_MACRO_ONLINE;
    return 0;
}

static void macro_open(int on)
{
    if (on && !SearchPageTable(PAGE_MACRO_ONLINE))
        BT_SetDisable(BTN_MACRO_ONLINE, 1);
    if (on && !SearchPageTable(PAGE_MACRO_OFFLINE))
        BT_SetDisable(BTN_MACRO_OFFLINE, 1);
}

static constexpr RegisterTouch macro_touches[] = {{"Single@OfflineEdit", macro_offline_edit_sel},
                                                  {"Single@OnlineEdit", macro_online_edit_sel},
                                                  {nullptr, nullptr}};

const RegisterExtra macro_extra = {
    .kind = REGKIND_MACRO, .is_everywhere = true, .touches = macro_touches, .open = macro_open};
