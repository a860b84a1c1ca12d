#include "pc_aux_mon.h"
#include "one_of.h"
#include "text.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

static_assert(AUX_BUSES <= ONEOF_ROWS && MONITORS <= ONEOF_ROWS);

// "Aux 1", "Aux 2"...
template <int N> static int numbered(const char* word, const char** names, int max)
{
    static char text[N][8];
    const int n = std::min(N, max);
    for (int i = 0; i < n; i++) {
        PrintText(text[i], "%s %d", word, i + 1);
        names[i] = text[i];
    }
    return n;
}

static ONEOFSTATE aux_state;
static ONEOFSTATE monitor_state;

void AuxBus_OpenNext(int bus)
{
    if (bus >= 0 && bus < AUX_BUSES)
        aux_state.cursor = bus;
}

void Monitor_OpenNext(int monitor)
{
    if (monitor >= 0 && monitor < MONITORS)
        monitor_state.cursor = monitor;
}

static constexpr ONEOFCOLUMN aux_columns[] = {
    {"Aux/Mon@Aux Bus@$@Source"},
    {"Aux/Mon@Aux Bus@$@Mix", one_of_switch},
    {"Aux/Mon@Aux Bus@$@Key Link", one_of_switch},
};
static constexpr ONEOFCOLUMN monitor_columns[] = {
    {"Aux/Mon@Monitor@$@Source"},
    {"Aux/Mon@Monitor@$@Safe Area", one_of_switch},
    {"Aux/Mon@Monitor@$@Show Key", one_of_switch},
};

static constexpr ONEOF aux_bus = {
    .state = &aux_state,
    .names = [](const char** names, int max) { return numbered<AUX_BUSES>("Aux", names, max); },
    .columns = aux_columns,
    .column_count = std::size(aux_columns),
    .signal_list = 2,
    .signal = aux_columns[0].path,
};
static constexpr ONEOF monitor = {
    .state = &monitor_state,
    .names = [](const char** names, int max) { return numbered<MONITORS>("Mon", names, max); },
    .columns = monitor_columns,
    .column_count = std::size(monitor_columns),
    .signal_list = 2,
    .signal = monitor_columns[0].path,
};

const PC_TBL pc_aux_bus = OneOf_Code<aux_bus>;
const PC_TBL pc_monitor = OneOf_Code<monitor>;
