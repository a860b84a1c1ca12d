// lay: what a new desk finds on its drives: the folders, and pictures of each kind to import.
#pragma once

void Lay_Desk(); // what is there stays as it is
