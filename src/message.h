// message: the numbers of everything that travels through SendMessage.
// Below 0x10000000 the numbers are bits, so that a mask can withhold classes of them from an object
// type; from 0x10000001 upward they are internal notifications, which are never masked.
#pragma once

enum : int {
    MSG_REDRAW = 1,       // elapsed ms (0: asked for by code)
    MSG_PRESS = 2,        // x, y, mouse button (0: made from a wheel step)
    MSG_RELEASE = 4,      // x, y
    MSG_TALLY = 8,        // path, value, Hash(path)
    MSG_DRAG = 16,        // x, y, left button held, right button held
    MSG_KEY = 32,         // SDL key symbol, modifier state
    MSG_BINTALLY = 128,   // id, payload, length; handed to KF_Proc directly
    MSG_PANETICK = 256,   // elapsed ms, in place of MSG_REDRAW while a pane is up
    MSG_WHEELUP = 512,    // x, y
    MSG_WHEELDOWN = 1024, // x, y
    MSG_SHPTALLY = 2048,  // verb, table path, Hash(verb), row id text or 0
};

enum : int {
    LMSG_LISTSEL = 0x10000001,
    LMSG_BTNSEL = 0x10000002, // command path, command value, 1 when the press only moved the knobs
    LMSG_KNOBVAR = 0x10000003,
    LMSG_KNOBFVAR = 0x10000004,
    LMSG_PULLDOWNSEL = 0x10000005,
    LMSG_SBSEL = 0x10000006,
    LMSG_LISTAREASEL = 0x10000007,
    LMSG_REGIONSTATUS = 0x10000008,
    LMSG_REGSELCHANGE = 0x10000009,
    LMSG_SELECTBOX = 0x1000000A,
    LMSG_PATHSELSEL = 0x1000000B,
    LMSG_LISTFLASH = 0x1000000C,
    LMSG_KNOBUPPER = 0x1000000D,
    LMSG_KNOBLOWER = 0x1000000E,
    LMSG_KNOBCREATE = 0x1000000F,
    LMSG_KNOBDEFAULT = 0x10000010,
    LMSG_FMPAIRCHANGE = 0x10000011,
    LMSG_FMSELCHANGE = 0x10000012,
    LMSG_FMOUTCHANGE = 0x10000013,
    LMSG_FMREGSEL = 0x10000014,
    LMSG_FMCTRLCHANGE = 0x10000015,
    LMSG_PANEBTNSEL = 0x10000016,
    LMSG_PANEQUIT = 0x10000017,
    LMSG_PANEREGION = 0x10000018,
    LMSG_FILESTATUS = 0x10000019,
    LMSG_REGISTER = 0x1000001A,
    LMSG_DMEREFCHANGE = 0x1000001B,
    LMSG_KNOBDIFF = 0x1000001C,
    LMSG_PAGEREQUEST = 0x1000001D,
    LMSG_FINDSTATUS = 0x1000001E,
    LMSG_KNOBRELEASE = 0x1000001F,
    LMSG_FOLDERNAMESENSE = 0x10000020,
    LMSG_SELFDIAGCHANGE = 0x10000021,
    LMSG_XPTSRCCHANGE = 0x10000022,
    LMSG_XPTASSIGNCHANGE = 0x10000023,
    LMSG_FMCLIPPLAY = 0x10000025,
    LMSG_FMFRAMECHANGE = 0x10000026,
    LMSG_FFSELCHANGE = 0x10000028,
    LMSG_FMCTRL3CHANGE = 0x10000029,
    LMSG_FMCLIPCHANGE = 0x1000002A,
    LMSG_FFCRNTCHANGE = 0x1000002B,
    LMSG_FMLOAD = 0x1000002D,
    LMSG_FFLISTCHANGE = 0x1000002E,
    LMSG_FFCHKCHNAGE = 0x1000002F,
    LMSG_FLCURDIRCHANGE = 0x10000030,
    LMSG_FLLISTCHANGE = 0x10000031,
};
