// transfer: bytes from one place to another, where a place may be a file or what a unit holds: a
// register of its running system, a setup, a picture of the frame memory.
#pragma once
#include "drive.h"
#include <string>

// The bytes of a place. Empty, or why there are none.
std::string Transfer_Fetch(const Place& from, std::string* bytes);
// Bring bytes to a place: a file is written, a unit loads what came. source is the name of the file
// that they come from, which tells a register's name where the place doesn't.
std::string Transfer_Deliver(const Place& to, const std::string& source, const std::string& bytes);
bool Transfer_IsPlainFile(const Place& place); // nothing but a file: copied piece by piece
