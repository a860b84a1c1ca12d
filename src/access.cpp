#include "access.h"
#include "a_ba.h"
#include "log.h"

#include "safeguards.h"

int FileCounter = 0;
int XferCounter = 0;

static void access_file_up()
{
    FileCounter++;
    BA_SetUsbAccess(1);
}

static void access_file_down()
{
    if (--FileCounter > 0)
        return;
    FileCounter = 0;
    BA_SetUsbAccess(0);
}

FILE* FileOpen(const char* path, const char* mode)
{
    access_file_up();
    Log_Output(LOG_TRACE, MOD_GLOBAL, "FileOpen: %s", path);
    FILE* fp = fopen(path, mode);
    if (fp) {
        Log_Output(LOG_TRACE, MOD_GLOBAL, "FileOpen: Successed");
    } else {
        Log_Output(LOG_TRACE, MOD_GLOBAL, "FileOpen: Error!!!");
        access_file_down();
    }
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "FileOpen(): FileCounter = %d", FileCounter);
    return fp;
}

void FileClose(FILE* fp)
{
    if (!fp) {
        Log_Output(LOG_TRACE, MOD_GLOBAL, "FileClose: no file");
        return;
    }
    Log_Output(LOG_TRACE, MOD_GLOBAL, "FileClose...");
    fclose(fp);
    access_file_down();
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "FileClose(): FileCounter = %d", FileCounter);
}

void FileCounterUp()
{
    access_file_up();
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "FileCounterUp(): FileCounter = %d", FileCounter);
}

void FileCounterDown()
{
    access_file_down();
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "FileCounterDown(): FileCounter = %d", FileCounter);
}

void XferCounterUp()
{
    XferCounter++;
    BA_SetFtpAccess(1);
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "XferCounterUp(): XferCounter = %d", XferCounter);
}

void XferCounterDown()
{
    if (--XferCounter <= 0) {
        XferCounter = 0;
        BA_SetFtpAccess(0);
    }
    Log_Output(LOG_DETAIL, MOD_GLOBAL, "XferCounterDown(): XferCounter = %d", XferCounter);
}
