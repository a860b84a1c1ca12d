// pc_shotbox: what the shotboxes can do on their first page beyond the family of register pages:
// whether the effects of a register run as soon as it is recalled.
#pragma once
#include "pc_register.h"

constexpr int BTN_SHOTBOX_AUTO_RUN = 33;

extern const RegisterExtra shotbox_extra;
