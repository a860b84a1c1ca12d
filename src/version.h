// version: what software and firmware this menu computer runs, for the pages, the log and the other
// units.
#pragma once
#include "types.h"

constexpr int DETAIL_INFO_ROWS = 8;
extern char GL_MenuDetailInfoTitle[DETAIL_INFO_ROWS][256];
extern char GL_MenuDetailInfo[DETAIL_INFO_ROWS][256];
extern char GL_MenuDetailInfoFull[DETAIL_INFO_ROWS][256];
extern int GL_DetailInfoMax; // rows in use
extern char GL_Version[256];
extern char GL_VerTime[256];
extern int GL_DetailInfoFull; // versions are shown with their build numbers

// Read the version files and the FPGA registers and publish them under /var/tmp/version2.
void GetMenuDetailInfo();
void Version_Read(); // without publishing
// The short form of a version line: what stands before a "#" or the comment in brackets is kept
// with the brackets, the build number is dropped. dst gets at most size - 1 characters.
void Strip_VersionStr(char* dst, const char* src, int size);
