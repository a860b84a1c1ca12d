// path_kinds: what the switcher knows of its values without the pages: the kinds of those that no
// button or box names, because page code subscribes them itself or only a status cell shows them,
// and what values begin with where that isn't the lowest. Rows are patterns: a bank, a key or a
// channel is a star. The file of the pages (values) comes first.
#pragma once
#include "tree.h"

ValueType PathKinds_Type(const std::string& path);    // KIND_ANY when no row knows it
std::string PathKinds_Start(const std::string& path); // empty when no row knows it
