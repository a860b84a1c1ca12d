// setup_switcher: the switcher's engineering setup: what its settings may be, what it starts with,
// and what follows from them: links of keys, banks, buses and contacts, the drop of downstream
// keys, the curve of a transition.
#pragma once
#include <string>

void SetupSwitcher_Install();
// A row that doesn't fit its list is answered with the old one. True: taken or refused here.
bool SetupSwitcher_Put(const std::string& path, const std::string& value);
// A value of an operation page was changed by a panel or by the end of a transition: what is linked
// goes along.
void SetupSwitcher_Follow(const std::string& path);
// How far a bank's transition has come at a place of the fader, both in per cent.
double SetupSwitcher_Curve(const std::string& bank, double percent);
