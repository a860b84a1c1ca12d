// favorites: the operator's own buttons on the home page: twelve pages in ten groups, and their
// colours.
#pragma once
#include "types.h"

void shortcut_menu_group_name_tally(int group, const char* value);
void shortcut_menu_data_tally(int shortcut, const char* value);
int get_now_btn_color(int button_id); // 0..7 a colour, 8 none
