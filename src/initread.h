// initread: what the application subscribes when the server has announced itself, in three stages.
#pragma once

// Restart the schedule: the main loop runs the stages as its pass counter goes by.
void InitialRead();
// The timed progress pane after a start or a reconfiguration; cancel non-zero gives it a cancel button.
void InitialProgress(int cancel);

void InitialCommand0();
void InitialCommand1();
void InitialCommand2();
void InitialCommandSHP();
void DeathCommandSHP();
void InitialCommand_MP2();
// A tally on "Info@Initial Read Status": "unit,word". The value is not changed.
void InitialRead_Status(const char* value);
