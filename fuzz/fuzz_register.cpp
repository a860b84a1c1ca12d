// The register lists: whatever a line says, the mirror stays in its tables, a name ends inside its
// field, and the same line twice changes nothing more. The input is lines of path, "#" and value.
#include "fuzz_lines.h"
#include "memory.h"
#include "message.h"
#include "register.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

static void Take(const std::string& path, const std::string& value)
{
    RegisterProc(MSG_TALLY, Arg(path.c_str()), Arg(value.c_str()), 0, 0);
}

static void Check(bool ok)
{
    if (!ok)
        abort();
}

// Every text of the mirror that a line may have reached.
static void CheckMirror()
{
    for (int row = 0; row < 44; row++) {
        for (int no = 0; no < REGISTERS_EFFECT; no++) {
            Check(strnlen(Register_Name_Effect(row, no), 12) < 12);
            Check(Register_Tally_Effect(row, no) || !Register_Exist_Effect(row, no));
        }
    }
    for (int user = 0; user < 8; user++)
        for (int sub = 0; sub < 20; sub++)
            for (int no = 0; no < REGISTERS; no++)
                Check(strnlen(ClipEvent_Tally_Name(user, sub, no), 32) < 32);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Register_Free();
    const int used = UsedMemPtr;
    ForEachTally(data, size, [](const std::string& path, const std::string& value) {
        const int before = UsedMemPtr;
        Take(path, value);
        const int after = UsedMemPtr;
        Check(after - before <= 1); // nothing but its own copy
        Take(path, value);
        Check(UsedMemPtr == after);
    });
    CheckMirror();
    Register_Free();
    Check(UsedMemPtr <= used);
    return 0;
}
