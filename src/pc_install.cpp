#include "pc_install.h"
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "err.h"
#include "global.h"
#include "initread.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page_table/install.h"
#include "pane.h"
#include "process.h"
#include "ready.h"
#include "tally_value.h"
#include "text.h"
#include "touch.h"
#include "window.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#include "safeguards.h"

#define LOCAL_INSTALL "LOCAL@New Install@"

namespace
{
constexpr uint32_t PAGE_ERROR = 0x99000000;
constexpr int STATUS_NORMAL = 0;
constexpr int STATUS_WRONG = 2; // red
enum : int { LIST_UNITS = 1, LIST_PACKAGES = 2 };
enum : int { COLUMN_UNIT, COLUMN_MODEL, COLUMN_VERSION, COLUMN_OFFER, COLUMN_RESULT };
enum : int { COLUMN_TITLE, COLUMN_KIND, COLUMN_PACKAGE_VERSION, COLUMN_TARGET };
} // namespace

// What the last search has found. It outlives the page: what came of an install is there when the
// operator comes back from the error list.
static InstallPackage packages[INSTALL_PACKAGES];
static InstallUnit units[INSTALL_UNITS];
static int package_count = 0;
static int NewInstallMax = 0; // units in use

static struct {
    // At the next repaint, when what is beneath can be seen: a search, a message.
    bool is_to_search = false;
    const char* message = nullptr;
    int question_pane = 0;
    int shown[INSTALL_PACKAGES] = {}; // rows of the second list: the packages' places
    int shown_count = 0;
} ni; // valid from create(1) to create(0)

// --- The search ---

static bool find_files()
{
    char path[PATH_SIZE + 2];
    char file[sizeof GL_TempFile + 2];
    char cmd[CMD_SIZE];
    if (!GL_ImportDataPath[0] || !ShellWord(path, sizeof path, GL_ImportDataPath) ||
        !ShellWord(file, sizeof file, GL_TempFile))
        return false;
    PrintText(cmd, "/usr/bin/find %s -iname install.cfg > %s", path, file);
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "Execute: %s", cmd);
    (void)ktr_shell(cmd); // a stick that is not there has no packages
    return true;
}

static void read_package(const char* path)
{
    InstallPackage* const p = &packages[package_count];
    if (Install_ReadPackage(p, path) != 0)
        return;
    Log_Output(LOG_ALWAYS, MOD_INSTALL, "%s: [%s] [%s]", path, p->title, p->version);
    package_count++;
}

static void read_packages()
{
    char line[PATH_SIZE];
    FILE* fp = fopen(GL_TempFile, "re");
    if (!fp)
        return;
    while (package_count < INSTALL_PACKAGES && fgets(line, sizeof line, fp)) {
        const char* const end =
            std::find_if(line, line + strlen(line), [](char c) { return uint8_t(c) < ' '; });
        const bool is_whole = *end == '\n';
        line[end - line] = '\0';
        if (is_whole)
            read_package(line);
    }
    fclose(fp);
    qsort(packages, size_t(package_count), sizeof packages[0], newinstall_qsort_compare);
}

static void offer(InstallUnit& unit, const InstallPackage* package)
{
    unit.package = package;
    CopyText(unit.offer, package ? package->version : "");
}

// Each unit is offered the newest package that fits it.
static void offer_all()
{
    for (InstallUnit& unit : std::span(units, size_t(NewInstallMax)))
        for (int i = package_count - 1; i >= 0; i--)
            if (newinstall_calc_model(&unit, &packages[i]))
                offer(unit, &packages[i]);
}

// Results stay with their units.
static void read_units()
{
    InstallUnit before[INSTALL_UNITS];
    std::copy_n(units, INSTALL_UNITS, before);
    NewInstallMax = Install_Units(units);
    for (InstallUnit& unit : std::span(units, size_t(NewInstallMax)))
        for (const InstallUnit& b : before)
            if (strcmp(b.name, unit.name) == 0)
                CopyText(unit.result, b.result);
}

static void show_units();

static void newinstall_find_exec()
{
    (void)unlink(GL_TempFile);
    package_count = 0;
    display_progress("Install", 30, "Searching for software packages...");
    const bool is_searched = find_files();
    ProgBox_RedrawProgress(70);
    if (is_searched)
        read_packages();
    read_units();
    offer_all();
    (void)CloseWindow(); // the progress
    show_units();
    if (package_count == 0)
        ni.message = "Not Found.\n\nThe software package does not exist\non the removable drive.";
}

// --- The lists ---

// The rows that are selected in the first list, n from 0; null when there are no more.
static InstallUnit* selected_unit(int n)
{
    const int row = LS_GetSelected(LIST_UNITS, n);
    return row >= 0 && row < NewInstallMax ? &units[row] : nullptr;
}

static void newinstall_execute_grayout()
{
    bool has_offer = false;
    for (int n = 0; const InstallUnit* unit = selected_unit(n); n++)
        has_offer |= unit->package != nullptr;
    BT_SetDisable(BTN_INSTALL, !has_offer);
}

static void show_unit(int row)
{
    const InstallUnit& unit = units[row];
    const bool is_wrong = unit.package && !newinstall_calc_model(&unit, unit.package);
    const bool is_bad = unit.result[0] && strcmp(unit.result, "OK") != 0;
    LS_SetData(LIST_UNITS, row, COLUMN_UNIT, unit.name);
    LS_SetData(LIST_UNITS, row, COLUMN_MODEL, unit.model);
    LS_SetData(LIST_UNITS, row, COLUMN_VERSION, unit.version);
    LS_SetData(LIST_UNITS, row, COLUMN_OFFER, unit.offer);
    LS_SetData(LIST_UNITS, row, COLUMN_RESULT, unit.result);
    LS_SetStatus(LIST_UNITS, row, COLUMN_OFFER, is_wrong ? STATUS_WRONG : STATUS_NORMAL);
    LS_SetStatus(LIST_UNITS, row, COLUMN_RESULT, is_bad ? STATUS_WRONG : STATUS_NORMAL);
}

static void show_package(int row, const InstallPackage& p)
{
    LS_SetData(LIST_PACKAGES, row, COLUMN_TITLE, p.title[0] ? p.title : p.path);
    LS_SetData(LIST_PACKAGES, row, COLUMN_KIND, p.kind);
    LS_SetData(LIST_PACKAGES, row, COLUMN_PACKAGE_VERSION, p.version);
    LS_SetData(LIST_PACKAGES, row, COLUMN_TARGET, target_str[p.target]);
}

// The packages for units of the kind that was touched last, the one that it is offered selected.
static void newinstall_refresh_list2()
{
    const int now = LS_GetNowLine(LIST_UNITS);
    const InstallUnit* const unit = now >= 0 && now < NewInstallMax ? &units[now] : nullptr;
    ni.shown_count = 0;
    LS_ClearData(LIST_PACKAGES);
    for (int i = 0; unit && i < package_count; i++) {
        if (packages[i].target != unit->target)
            continue;
        show_package(ni.shown_count, packages[i]);
        ni.shown[ni.shown_count++] = i;
    }
    LS_SetNData(LIST_PACKAGES, ni.shown_count);
    for (int row = 0; row < ni.shown_count; row++)
        if (unit->package == &packages[ni.shown[row]])
            LS_SetNowLine(LIST_PACKAGES, row);
    LS_RedrawData(LIST_PACKAGES);
}

static void show_units()
{
    for (int row = 0; row < NewInstallMax; row++)
        show_unit(row);
    LS_SetNData(LIST_UNITS, NewInstallMax);
    LS_RedrawData(LIST_UNITS);
    newinstall_refresh_list2();
    newinstall_execute_grayout();
}

// Of the units that are selected those of its kind are offered it, for what model it may be.
static void package_chosen(int row)
{
    if (row < 0 || row >= ni.shown_count)
        return;
    const InstallPackage* const p = &packages[ni.shown[row]];
    for (int n = 0; InstallUnit* unit = selected_unit(n); n++)
        if (unit->target == p->target)
            offer(*unit, p);
    for (int i = 0; i < NewInstallMax; i++)
        show_unit(i);
    LS_RedrawData(LIST_UNITS);
    newinstall_execute_grayout();
}

// --- The install ---

static int refuse_package(const InstallUnit& unit)
{
    const bool is_kind = unit.package->target == unit.target;
    (void)Err_Add("[Error] The selected device is  %s,", is_kind ? unit.model : unit.name);
    (void)Err_Add("    Please select the correct package.");
    return -1;
}

// "OK", what the step that failed has ended with, or that nothing was begun.
static void set_result(InstallUnit& unit, int result)
{
    if (result == 0)
        CopyText(unit.result, "OK");
    else if (Install_FailedCode() == 0)
        CopyText(unit.result, "Cancel");
    else
        PrintText(unit.result, "%d", Install_FailedCode());
}

static int install_unit(InstallUnit& unit)
{
    const InstallPackage& p = *unit.package;
    if (!newinstall_calc_model(&unit, &p)) {
        CopyText(unit.result, "Cancel");
        return refuse_package(unit);
    }
    Log_Output(LOG_ALWAYS, MOD_INSTALL,
               "newinstall_execute_core:: INSTALL_INFO: [%s] %s %s -> %s : %s", unit.name, p.title,
               unit.version, p.version, p.path);
    const int result = SystemInstall(p.path, unit.target, unit.uid);
    Log_Output(LOG_ALWAYS, MOD_INSTALL,
               "newinstall_execute_core:: INSTALL_RESULT: [%s] (result %d)", unit.name, result);
    set_result(unit, result);
    return result;
}

static bool newinstall_execute_core()
{
    bool is_good = true;
    (void)Net_SendCommand("put Info@Status Report#true"); // goes out afterwards
    for (int n = 0; InstallUnit* unit = selected_unit(n); n++)
        if (unit->package && install_unit(*unit) != 0)
            is_good = false;
    return is_good;
}

// Whoever touched the panel meanwhile meant what stood there before.
static void drop_touches()
{
    SDL_Event event;
    Ready_Ask(); // the last question was before them
    Touch_Poll(0);
    SDL_PumpEvents();
    while (SDL_PeepEvents(&event, 1, SDL_GETEVENT,
                          SDL_MOUSEBUTTONDOWNMASK | SDL_MOUSEMOTIONMASK | SDL_KEYDOWNMASK) == 1) {
    }
}

// The units restart: everything that they told is asked for anew, without the pane that tells of
// it.
static bool install_and_read_again()
{
    const int popup_disable = GL_InitialReadPopupDisable;
    GL_InitialReadPopupDisable = 1;
    DeathCommand0();
    DeathCommand1();
    const bool is_good = newinstall_execute_core();
    InitialCommand0();
    InitialCommand1();
    GL_InitialReadPopupDisable = popup_disable;
    return is_good;
}

static void newinstall_execute()
{
    Err_Clear();
    for (InstallUnit& unit : units)
        unit.result[0] = '\0';
    show_units();
    SendDummyTally(LOCAL_INSTALL "Install#true");
    SendMessage(MSG_REDRAW, 0, 0, 0, 0); // for a long time the last
    const bool is_good = install_and_read_again();
    SendDummyTally(LOCAL_INSTALL "Install#false");
    drop_touches();
    read_units();
    offer_all();
    show_units();
    if (is_good)
        ni.message = "All processes have succeeded.";
    else
        GL_CreatePage = PAGE_ERROR; // once the window of the failure is closed
}

static void ask_install()
{
    ni.question_pane = PaneYesNo_Create("Install", PANE_ALERT,
                                        "This operation will cause the software of the\nselected "
                                        "units to be replaced. The menu will\nnot respond until it "
                                        "has ended.\n\nContinue?");
}

// --- Messages ---

static int install_button(const char* path)
{
    if (Same(path, LOCAL_INSTALL "Refresh"))
        ni.is_to_search = true;
    else if (Same(path, LOCAL_INSTALL "Install"))
        ask_install();
    return 0;
}

static int install_pane_closed(int pane, int result)
{
    constexpr int YES = 1;
    if (pane == 0 || pane != ni.question_pane)
        return 0;
    ni.question_pane = 0;
    if (result == YES)
        newinstall_execute();
    return 0;
}

static int install_list_touched(int list, int row)
{
    if (list == LIST_PACKAGES) {
        package_chosen(row);
    } else if (list == LIST_UNITS) {
        if (row >= 0 && row < NewInstallMax)
            CopyText(Page_InstallUnit, units[row].name); // whose Unit Config opens
        newinstall_refresh_list2();
        newinstall_execute_grayout();
    }
    return 0;
}

static int install_redraw()
{
    if (ni.is_to_search) {
        ni.is_to_search = false;
        newinstall_find_exec();
    } else if (const char* message = ni.message) {
        ni.message = nullptr;
        CreateWindow(WINDOW_MESSAGE, "Install", {.message = message});
    }
    return 0;
}

static int pc_engsetup_system_install_newinstall_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return install_redraw();
    case LMSG_BTNSEL: return install_button(Text(ax));
    case LMSG_PANEQUIT: return install_pane_closed(int(ax), int(bx));
    case LMSG_LISTSEL: return install_list_touched(int(ax), int(bx));
    case LMSG_LISTFLASH: newinstall_execute_grayout(); return 0;
    default: return 0;
    }
}

static int pc_engsetup_system_install_newinstall_create(int on, uint32_t)
{
    ni = {};
    if (!on)
        return 1;
    ni.is_to_search = true;
    NewInstallMax = std::min(NewInstallMax, INSTALL_UNITS);
    show_units();
    return 0;
}

const PC_TBL pc_engsetup_system_install_newinstall = {
    .proc_func = pc_engsetup_system_install_newinstall_proc,
    .create_func = pc_engsetup_system_install_newinstall_create};
