// followed: whether an object of the page is subscribed to a path.
// The server keeps one subscription of a path, however often it was asked for, and one "remove"
// ends it for all. While a page stands, boxes come and go and commands change: what leaves asks
// here first. Page code that adds paths of its own, and the objects that come and go with the page
// as a whole, need not ask: they all leave together.
#pragma once

// An object that leaves takes itself out before it asks. The path has no value part.
bool IsFollowed(const char* path);
