// pc_router: page code of the router's pages. All but the salvos are about one of its
// destinations, and stay with it from one page to the next; a touch on a source is its preset.
#pragma once
#include "a_pc.h"

constexpr int ROUTER_DESTINATIONS = 128;
constexpr int ROUTER_SOURCES = 250;
constexpr int ROUTER_SALVOS = 32;
constexpr int ROUTER_LEVELS_MAX = 8;
constexpr int BTN_ROUTER_LEVELS = 49;
#define ROUTER_LEVELS "LOCAL@Router@Levels"
#define ROUTER_SALVO_NAME "LOCAL@Router@Salvo@Name"

extern const PC_TBL pc_router_destination;
extern const PC_TBL pc_router_source; // the other way round: destinations for one source
extern const PC_TBL pc_router_level;
extern const PC_TBL pc_router_lock;
extern const PC_TBL pc_router_salvo;
