// info_config: the parts of InfoProc that keep how the banks and the panel rows are configured.
#pragma once

// rest: what stands in the path behind the last fixed "@".
void info_me_config(const char* bank, const char* value);
void info_key_unit(const char* row, const char* value);
void info_output_assign(const char* value);
void info_pgm_config(const char* value);
void info_setup_target(const char* value);
