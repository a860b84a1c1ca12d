// setup_panel: the panel's engineering setup as the switcher keeps it: what the buttons of each
// module do, the regions on the ten keys, the tables of crosspoint, aux and router buttons, names
// and colours. What is inserted into a table or deleted moves the buttons behind it.
#pragma once
#include <string>

void SetupPanel_Install();
// A panel's put below "Engineering Setup@Panel@". True: taken and shown.
bool SetupPanel_Put(const std::string& path, const std::string& value);
// Somebody presses a button of a key 2 bus that carries an action: place 1 is P/P, 2 M/E-1 and so
// on, their sub sides 8 higher. False: it carries no register.
bool SetupPanel_PressKey2(int place, int button);
