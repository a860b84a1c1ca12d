#include "err.h"
#include "a_ls.h"
#include "log.h"
#include "memory.h"
#include "page.h"
#include "safe_file.h"
#include "text.h"
#include <cstdarg>
#include <cstdio>
#include <ctime>

#include "safeguards.h"

namespace
{
constexpr size_t TIME_SIZE = 12; // "07:08:09" and room
constexpr int ERROR_LIST = 1;    // the list of the error page and its columns
enum : int { COL_TIME = 0, COL_TEXT = 1 };
} // namespace

static char* Err[ERR_MAX];  // the texts, each allocated
static char* ErrT[ERR_MAX]; // when they came, each allocated
static int ErrMax = 0;      // entries in use

static char* err_time()
{
    char* text = static_cast<char*>(GDL_Malloc(TIME_SIZE));
    if (!text)
        return nullptr;
    const time_t now = time(nullptr);
    tm t{};
    gmtime_r(&now, &t);
    snprintf(text, TIME_SIZE, "%02d:%02d:%02d", t.tm_hour, t.tm_min, t.tm_sec);
    return text;
}

int Err_Add(const char* format, ...)
{
    if (ErrMax >= ERR_MAX)
        return -1;
    va_list ap;
    va_start(ap, format);
    char* text = GDL_StrDup(Log_Format(format, ap));
    va_end(ap);
    char* stamp = err_time();
    if (!text || !stamp) {
        GDL_Free(text);
        GDL_Free(stamp);
        return -1;
    }
    Err[ErrMax] = text;
    ErrT[ErrMax] = stamp;
    ErrMax++;
    return 0;
}

void Err_Clear()
{
    if (IsObjetype(OBJ_ERR))
        (void)LS_ClearData(ERROR_LIST); // it shows the texts that go here
    for (int i = 0; i < ErrMax; i++) {
        GDL_Free(Err[i]);
        GDL_Free(ErrT[i]);
    }
    ErrMax = 0;
}

int Err_GetMax()
{
    return ErrMax;
}

void Err_Create()
{
    SafeFile file;
    (void)SafeFile_Open(file, "/var/log2/tm3err.log"); // the list on the page comes first
    for (int row = 0; row < ErrMax; row++) {
        // Without its list the page still writes the file, so the results don't matter.
        (void)LS_SetData(ERROR_LIST, row, COL_TIME, ErrT[row]);
        (void)LS_SetData(ERROR_LIST, row, COL_TEXT, Err[row]);
        if (file.fp)
            fprintf(file.fp, "[%s] %s\n", ErrT[row], Err[row]);
    }
    (void)LS_SetNData(ERROR_LIST, ErrMax);
    (void)SafeFile_CommitUnsynced(file); // a page does not wait for the disk
}

int Err_Proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}
