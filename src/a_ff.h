// a_ff: the file folder.
#pragma once
#include "types.h"

struct FF_TBL;

// What the pages of the clip store are told of a folder or clip.
enum : int { OBJECT_TYPE_FOLDER = 0, OBJECT_TYPE_FILE = 1, OBJECT_TYPE_ALL = 2 };
enum : int { OBJECT_PAIR_SINGLE = 0, OBJECT_PAIR_PAIR = 1 };
enum : int { OBJECT_MODE_VIDEO = 0, OBJECT_MODE_KEY = 1 };
enum : int {
    OBJECT_STATUS_NONE = 0,
    OBJECT_STATUS_SSD = 1,
    OBJECT_STATUS_MEMOY = 2,
    OBJECT_STATUS_SSDMEMOY = 3,
};
struct FF_OBJECT {
    int type = OBJECT_TYPE_FOLDER;
    int pair = OBJECT_PAIR_SINGLE;
    int mode = OBJECT_MODE_VIDEO;
    int status = OBJECT_STATUS_NONE;
    int frame = 0;
    int format = 0;
    char create_time[32] = "";
    char name[33] = "";
};

// A null table empties the object and returns 1.
int FF_Create(const FF_TBL* table, uint32_t var);
int FF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
