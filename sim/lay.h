// lay: what a new desk finds on its drives: the folders, pictures of each kind to import, and what
// no save of a whole show brings there, the setups of users and the names of sources and frames.
#pragma once

// What is there stays as it is.
void Lay_Desk();
void Lay_Setups(); // of the system as it is installed
