// The reports of the units: whatever a line says, the items and the log keep to their fields, the
// errors are counted right, and the same line twice changes nothing more. The input is lines of
// path, "#" and value.
#include "device.h"
#include "fuzz_lines.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "page.h"
#include "selfdiag.h"
#include "text.h"
#include "xsyslog.h"
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

static void Check(bool ok)
{
    if (!ok)
        abort();
}

static void Take(const std::string& path, const std::string& value)
{
    selfdiag_proc(MSG_TALLY, Arg(path.c_str()), Arg(value.c_str()), 0, 0);
    if (path.ends_with("Circuit Board ID"))
        circuitboardid_tly(value.c_str());
}

static void CheckItems()
{
    int errors = 0;
    DiagUnit unit;
    for (int c = 0; c < DIAG_CLASSES; c++)
        for (int n = 0; SelfDiag_Unit(DIAG_CLASS(c), n, &unit); n++)
            for (int i = 0; i < unit.items; i++) {
                const SELFDIAG& it = unit.item[i];
                errors += it.status >= SELFDIAG_ERROR;
                Check(strnlen(it.message, sizeof it.message) < sizeof it.message);
                Check((it.status != SELFDIAG_UNKNOWN) == (it.message[0] != '\0'));
            }
    Check(errors == 0 || errors == GL_ErrorExist);
    for (const auto& words : {GL_CircuitBoard[0], GL_CircuitBoard[4]})
        for (int i = 0; i < DIAG_BOARDS; i++)
            Check(words[i][0] && strnlen(words[i], 16) < 16);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static PAGE page = {.id = PAGE_TOP};
    Page = &page;
    GL_IsRamDisk = 1;                // no maintenance log
    xsys_openlog("fuzz", 0, 1 << 3); // no other system log than none
    Device_Init();
    CopyText(DEV_Mpe[0].name, "MPE1");
    CopyText(DEV_Mpe[0].id, "MPE001D001");
    SYS_MpeMax = 1;
    DeviceStructure();
    SelfDiag_Init();
    GL_ErrorExist = 0;
    ForEachTally(data, size, [](const std::string& path, const std::string& value) {
        Take(path, value);
        const uint32_t added = SelfDiag_LogAdded();
        Take(path, value);
        Check(SelfDiag_LogAdded() == added);
    });
    CheckItems();
    return 0;
}
