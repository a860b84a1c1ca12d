// copy_swap: what the panels copy and swap: a bank, a key, a wipe, a matte, an effects channel is
// given to another of its kind, whole or in parts, and the last of each kind can be undone. What is
// on the air stays there: keys are neither cut on nor off by it, and channels keep their users.
#pragma once
#include <string>

void CopySwap_Install(); // nothing can be undone
// A panel's put to a copy or a swap: "FROM,TO,All", or parts in the place of "All". True: the
// values are shown; an order that makes no sense changes nothing.
bool CopySwap_Put(const std::string& path, const std::string& value);
void CopySwap_Undo(const std::string& kind); // "Key"; without one to undo, nothing
