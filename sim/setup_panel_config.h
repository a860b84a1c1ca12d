// setup_panel_config: the panel's engineering setup that is no table of buttons: links, modules,
// faders, what may not be operated, device interfaces, how keys and dials work, maintenance.
#pragma once
#include <string>

void SetupPanelConfig_Install(); // after SetupPanel_Install
// A put that does not fit is answered with the old value. True: taken or refused here.
bool SetupPanelConfig_Put(const std::string& path, const std::string& value);
