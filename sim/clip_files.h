// clip_files: the clip store's pictures as files, in "/vorn/FM/1/" of its switcher, and the work
// folder that the hub hands out for them, with its result list.
#pragma once
#include <string>

void ClipFiles_ClearWork(int unit);
// Get one picture ready: its path without an extension ("/NEWS/OPENING.SFH/OPENING#000003" of a
// frame), and the kind: SFH, TIF, BMP, TGA or PNG.
void ClipFiles_PrepareGet(int unit, const std::string& path, const std::string& kind);
// All that is in the work folder: frames is how many the clip of it will have.
void ClipFiles_TakePut(int unit, int frames);
