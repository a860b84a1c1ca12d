// storage: free space, and the mounts of memory sticks and of the NFS share.
#pragma once
#include <cstdio>

// Free KB of the file system that holds dir, -1 when it cannot be told.
int GetDiskFree(const char* dir);
int NFS_Mount();                     // 0, or -1 with GL_NFS_Mounted cleared
int NFS_MountEx(const char* mpoint); // the same with another remote mount point
int NFS_UnMount();
int NFS_UnMountEx();
// With the scan switched on: look for the first stick that is mounted, make it the import path,
// tell the server.
void Usb_Auto_Scan();
void UsbSync();
// The mount point of the stick with number n (0..8) into text; 0, or -1 when none is mounted there.
int GetUSBMountPointInfo(int n, char* text, int size);
// Total and free KB of the stick with number n; 0 or -1.
int GetUSBStorageInfo(int n, int* total_kb, int* free_kb);
int IsMPU302(); // 1 on the newer controller board

// What "df -m" printed of one file system: its last line.
struct DfSizes {
    long total_mb = 0;
    long used_mb = 0;
    long free_mb = 0;
};
bool Storage_ReadDf(FILE* fp, DfSizes* sizes); // false: there are no sizes, and nothing is changed

// --- Its parts, for tests ---
int Storage_NamesMPU302(const char* cpuinfo); // a file
