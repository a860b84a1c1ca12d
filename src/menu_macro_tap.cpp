// The tap in the send path: which of the commands that go out are the operator's, and which of
// them one touch has sent.
#include "a_ba.h"
#include "global.h"
#include "log.h"
#include "menu_macro_private.h"
#include "page.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

// What a recording refuses, wherever it stands in a command: what the program sends by itself,
// what belongs to files, to setup and to recording.
static constexpr const char* invalid_put_protcol[] = {
    "Engineering Setup@System",
    "Frame Mem@External HDD",
    "put Device@DDR/VTR@File List",
    "put Engineering Setup@System",
    "put Engineering Setup@Panel@Maintenance",
    "put File@",
    "put Frame Mem@File",
    "put Frame Mem@Folder",
    "put Info@Active Indicator@",
    "put Info@Operation Setup Data@SRAM Map KeyCode",
    "put Info@Operation Setup Data@Group Name",
    "put Info@Operation Setup Data@Shortcut Name",
    "put Info@Status Report",
    "put Info@System Setup Data",
    "put Info@Initial Read Status",
    "put Info@Menu Macro@Report",
    "put Info@Self Diagnosis Notice@",
    "put Info@Menu Macro@Run",
    "put Info@Auto Load@",
    "put Info@Operation Setup Data@Screen Saver",
    "put Info@Operation Setup Data@Touch Buzz",
    "put Info@Operation Setup Data@Initial Menu Set",
    "put Info@Operation Setup Data@Import Path",
    "put Macro@",
    "put Option@Debug",
    "put Register@All Delete@Effect",
    "put TopMenu@SubMenuSite",
    "put 16@Frame Mem@Status",
    "put 32@Frame Mem@Status",
    "put Device@GPI Timeline@Tally Back",
    "put Device@P-BUS Timeline@Tally Back",
    "put Device@DDR/VTR@Cueup&Play@Tally Back",
    "Device@DDR/VTR@Timeline@Tally Back",
    "Engineering Setup@DME@Device Interface@DME2 GPI Input@GPI Enable",
    "Info@Operation Setup Data@Timeline Region Display",
    "Info@Operation Setup Data@Timeline Region Priority",
    "Engineering Setup@Panel@Config@10 Key Region Assign@Pcx",
    "Engineering Setup@Panel@Xpt Assign@Button Enable",
    "Frame Mem@Clip@Delete",
    "Frame Mem@Clip@Rename",
    "Info@Operation Setup Data@Auto Load",
    "Engineering Setup@Switcher@Input@FC Adjust@FC Signal Format",
    "Engineering Setup@Switcher@Output@FC Adjust@FC Signal Format",
    "Frame Mem@Clip@Auto Extract",
    "put Info@Operation Setup Data@Mouse Wheel Direction",
    "put Info@Operation Setup Data@Mouse Slider Control",
};

static struct {
    CURRENT_EVENT_DATA event;   // of the last touch
    int event_ms = 0;           // when it began
    int current_TouchCount = 0; // the touch that it belongs to
    int clock_ms = 0;
    bool is_held = false; // what goes out is the program's own
} tap;

// Of a thumbnail that goes with its still, on the pages that delete stills.
static bool is_thumbnail_of_page(const char* line)
{
    return (GL_NowPage == 0x21210000 || GL_NowPage == 0x25120000) &&
           strstr(line, "Frame Mem@File@Delete Thumbnail");
}

static bool is_refused_put(const char* line)
{
    if (GL_MenuMacroUnrestrict)
        return strstr(line, "put TopMenu@SubMenuSite") != nullptr;
    return std::any_of(std::begin(invalid_put_protcol), std::end(invalid_put_protcol),
                       [line](const char* text) { return strstr(line, text) != nullptr; });
}

int mm_protcol_invalid_check(const char* line)
{
    if (BeginsWith(line, "Event@Pause Set"))
        return 1;
    if (BeginsWith(line, "default "))
        return 0;
    const bool is_taken = is_thumbnail_of_page(line) || !is_refused_put(line);
    return BeginsWith(line, "put ") && is_taken ? 0 : -1;
}

static void show_or_insert()
{
    if (GL_MenuMacro_AT_Store)
        (void)mm_event_set_after(tap.event); // the editor says when there is no room
    else
        BA_RedrawMenuMacro();
}

// The next command begins an event, whoever sends it.
static void part_from_touch()
{
    tap.current_TouchCount = MenuMacro_TouchCount - 1;
}

static void begin_event(const char* line)
{
    if (mm_event_begin(tap.event, line) != 0)
        return;
    tap.event_ms = tap.clock_ms;
    show_or_insert();
}

static void open_event(const char* line)
{
    part_from_touch();
    begin_event(line);
}

static bool has_room(const char* line)
{
    return tap.event.protcol_cnt < MENU_MACRO_COMMANDS &&
           tap.event.data_byte + strlen(line) + 1 <= UINT16_MAX;
}

static void join_event(const char* line)
{
    const int length = int(strcspn(line, "\n"));
    Log_Output(LOG_TRACE, MOD_GLOBAL, "* Macro Event * Page[%8X], TouchCount[%d], Cmd [%.*s] ",
               unsigned(GL_NowPage), MenuMacro_TouchCount, length, line);
    Log_Output(LOG_TRACE, MOD_GLOBAL, "* DME   EVENT * SYS_DMEChannel[%d] / SYS_DMEReference[%d] ",
               SYS_DMEChannel, SYS_DMEReference);
    if (!has_room(line))
        part_from_touch();
    if (tap.current_TouchCount != MenuMacro_TouchCount) {
        tap.current_TouchCount = MenuMacro_TouchCount;
        begin_event(line);
    } else if (mm_event_append(tap.event, line) == 0 && GL_MenuMacro_AT_Store) {
        mm_event_set_contnue(line);
    }
}

void mm_protcol_get(const char* line)
{
    if (GL_MenuMacro_Edit != 1)
        return;
    if (GL_MenuMacro_Run && !SL_Reg_Recycle)
        return;
    if (GL_MM_Knob_Protcol == 1 || tap.is_held)
        return; // the page is being told: what the turn sends comes by itself
    switch (mm_protcol_invalid_check(line)) {
    case 0: join_event(line); break;
    case 1: open_event(line); break;
    default: break;
    }
}

const CURRENT_EVENT_DATA& mm_last_event()
{
    return tap.event;
}

int mm_last_event_ms()
{
    return tap.event_ms;
}

void mm_tap_touch()
{
    part_from_touch();
}

void mm_tap_hold(bool on)
{
    tap.is_held = on;
}

void mm_tap_reset()
{
    mm_event_free(tap.event);
    part_from_touch();
}

// Differences are taken of it, so it may begin anew after its three weeks.
void mm_clock_pass(int elapsed_ms)
{
    tap.clock_ms = int((unsigned(tap.clock_ms) + unsigned(elapsed_ms)) & 0x7FFFFFFF);
}
