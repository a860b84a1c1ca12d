#include "drive_check.h"
#include "global.h"
#include "pane.h"
#include "process.h"
#include "types.h"
#include <cstdio>

#include "safeguards.h"

namespace
{
constexpr int DRIVE_CHECK_LINES = 2;

constexpr char text_user_data[] = "The user data partition of local drive is\n"
                                  "damaged, and all data is lost. The local drive\n"
                                  "needs to be reformatted.\n"
                                  "Please execute local drive format on\n"
                                  "Page 7317.";
constexpr char text_system_data[] = "The system data partition of local drivek is\n"
                                    "damaged. The local drive needs to be\n"
                                    "reformatted. Please execute local drive format\n"
                                    "on Page 7317.\n"
                                    "Please make sure to save all data in the user\n"
                                    "data partition of local drive to any other\n"
                                    "device or media, before reformatted.";
constexpr char text_emergency[] = "Menu was launched from the built-in SSD\n"
                                  "because SCS was not found.\n"
                                  "\n"
                                  "Shutdown and restart the system is\n"
                                  "recommended to exit from emergency mode.";
} // namespace

int DriveCheck_IsMissing(const char* file)
{
    FILE* fp = fopen(file, "re");
    if (!fp)
        return 1;
    char line[PATH_SIZE] = "";
    int lines = 0;
    while (lines < DRIVE_CHECK_LINES && fgets(line, sizeof line, fp))
        lines++;
    fclose(fp);
    return lines == DRIVE_CHECK_LINES && line[0] == '/' ? 0 : 1;
}

DriveMessage DriveCheck_Message(bool is_emergency_boot, int data_error, int sys_error)
{
    if (is_emergency_boot)
        return {"SCS Communication Error", text_emergency};
    if (data_error && sys_error)
        return {"Internal Error: Local Drive is unknown", text_user_data};
    if (data_error)
        return {"Internal Error: Local Drive (User Data)", text_user_data};
    if (sys_error)
        return {"Internal Error: Local Drive (System Data)", text_system_data};
    return {};
}

static int drive_error(const char* command)
{
    return ktr_system_and_redirect(command, GL_TempFile) == 0 ? DriveCheck_IsMissing(GL_TempFile)
                                                              : 1;
}

void DriveCheck()
{
    GL_SSD_Data_Error = drive_error("/bin/df -m /mnt/data");
    GL_SSD_Sys_Error = drive_error("/bin/df -m /mnt/sys");
    const bool is_emergency_boot = ktr_system("/bin/grep BOOTFROM=SSD /proc/cmdline") == 0;
    const DriveMessage message =
        DriveCheck_Message(is_emergency_boot, GL_SSD_Data_Error, GL_SSD_Sys_Error);
    if (message.title)
        PaneMessage_Create(message.title, PANE_FATAL, message.text);
}
