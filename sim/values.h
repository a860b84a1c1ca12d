// values: which values the paths of the pages may take, as the application's tables export them.
// One path a line, fields separated by tabs; a path may stand in several lines, which are merged:
//   PATH  bool | PATH  word  A,B,C | PATH  num  MIN  MAX  DECIMALS | PATH  action | PATH  any
#pragma once
#include "tree.h"

bool Values_Load(const char* file); // false when it can't be read; a bad line costs a log line
ValueType Values_Type(const std::string& path); // KIND_ANY for a path that is not listed
