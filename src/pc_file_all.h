// pc_file_all: the All page of the File menu: every category at once, between the running system
// and a directory of a drive or between two drives, and the same for the automation's folder.
#pragma once

// --- For the automation's command folder ---
// All that the All page has chosen, to or from the automation's folder "/tmp/FTPIF". 0 when the job
// has begun, -1 when it cannot begin now. The reply file comes at its end.
int AllSave();
int AllLoad();
