// drive_check: whether the local drive's two partitions are mounted when the program starts, and
// what the operator is told when one is not. Formatting it belongs to the setup pages.
#pragma once

// Run the check, set GL_SSD_Data_Error and GL_SSD_Sys_Error, open the message pane when there is
// something to say.
void DriveCheck();

// --- Its parts, for tests ---
// What "df" wrote for a mount point into a file: 0 when its second line names a device, which
// begins with "/"; otherwise 1, also without a file.
int DriveCheck_IsMissing(const char* file);
struct DriveMessage {
    const char* title = nullptr; // null: nothing to say
    const char* text = nullptr;
};
DriveMessage DriveCheck_Message(bool is_emergency_boot, int data_error, int sys_error);
