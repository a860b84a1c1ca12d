// values: which values the paths of the pages may take, as the application's tables export them.
// One path a line, fields separated by tabs; a path may stand in several lines, which are merged:
//   PATH  bool | PATH  word  A,B,C | PATH  num  MIN  MAX  DECIMALS | PATH  action | PATH  any
#pragma once
#include "tree.h"

bool Values_Load(const char* file); // false when it can't be read; a bad line costs a log line
// What the file says; of a path that it doesn't list or knows nothing of, what the switcher knows
// itself (path_kinds). KIND_ANY for all others.
ValueType Values_Type(const std::string& path);
// The value that a path of this type has in a switcher that nobody has touched.
std::string Values_Start(const std::string& path, const ValueType& type);
// One type from its fields behind the path; false when it is none.
bool Values_ParseType(const std::vector<std::string>& fields, ValueType* type);
