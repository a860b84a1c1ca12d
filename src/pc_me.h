// pc_me: page code of the pages of a mix/effect bank. A table says nearly all of such a page; the
// code adds what depends on a choice made on the page.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_me_key_type;
