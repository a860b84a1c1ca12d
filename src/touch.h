// touch: the touch panel. Its raw records become SDL mouse events, so that a finger and a mouse
// share one road. It finds, grabs and re-opens the device; what a press means belongs to the loop.
#pragma once

extern int Touch_FD;         // -1 closed
extern int Touch_Resolution; // full-scale raw value: 1023 or 4095

// Find, open and grab the panel. -1 when it is already open, otherwise 0, also when there is none.
int touch_open();
// Read the calibration points from the EEPROM; a value out of range becomes the default.
void Touch_LoadCalibration();
// Once a pass: take all records that wait, as far as SDL has room for them; while closed, look for
// the panel every five seconds.
void Touch_Poll(int elapsed_ms);

void SetTouchBeep(); // tell the panel's buzzer whether a touch beeps

bool Touch_IsDown(); // a finger is on the panel

// One record of the panel as the conversion takes it; for Touch_Poll and tests.
void Touch_Record(int type, int code, int value);
void Touch_Reset(); // as at process start; a device that is open stays open
