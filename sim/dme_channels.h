// dme_channels: which key has which channel of the effects units. A channel serves one key; another
// takes it only with the override. All panels follow one line of all channels, and the wipes one
// line a channel.
#pragma once
#include <string>

void Dme_Install(); // the tree is fresh: nobody has a channel
// A panel's put to a selection or an override. True: the values are shown.
bool Dme_Put(const std::string& path, const std::string& value);
void Dme_ShowStatus(); // a bank has changed its kind of transition
// A selection: no snapshot keeps it, since the channel may be another's by then.
bool Dme_IsSelection(const std::string& path);
