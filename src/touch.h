// touch: the touch panel. Its raw records become SDL mouse events, so that a finger and a mouse
// share one road. It finds, grabs and re-opens the device; what a press means belongs to the loop.
#pragma once

extern int Touch_FD;         // -1 closed
extern int Touch_Resolution; // full-scale raw value: 1023 or 4095

// Find, open and grab the panel. -1 when it is already open, otherwise 0, also when there is none.
int touch_open();
// Read the calibration points from the EEPROM; a value out of range becomes the default.
void Touch_LoadCalibration();
// The calibration: the raw points, on 800 x 600, that are (50, 50) and (750, 550) of the screen.
struct TouchPoints {
    int ax = 0;
    int ay = 0;
    int bx = 0;
    int by = 0;
};
TouchPoints Touch_GetCalibration();
void Touch_SetCalibration(const TouchPoints& points); // counts from the next record on
bool Touch_IsFirstPoint(int ax, int ay);              // within what the EEPROM may hold
bool Touch_IsSecondPoint(int bx, int by);
// Write what counts now to the EEPROM. 0, or -1 when it can't be written.
int Touch_StoreCalibration();
// The raw point of a press at a place of the screen: as the panel told it or, for a press that came
// from elsewhere, the point that the calibration would put there.
void Touch_RawPoint(int x, int y, int* raw_x, int* raw_y);

// Once a pass: take all records that wait, as far as SDL has room for them; while closed, look for
// the panel every five seconds.
void Touch_Poll(int elapsed_ms);

void SetTouchBeep(); // tell the panel's buzzer whether a touch beeps

bool Touch_IsDown(); // a finger is on the panel

// One record of the panel as the conversion takes it; for Touch_Poll and tests.
void Touch_Record(int type, int code, int value);
// The device in the list that a search left, which goes; false when it names none. For touch_open
// and tests.
bool Touch_DeviceName(char* name, int size);
void Touch_Reset(); // as at process start; a device that is open stays open
