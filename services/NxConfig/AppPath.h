// SPDX-License-Identifier: MIT
#pragma once

#include <afx.h>

// Counts the changes of the application directory, so that whoever read a file of it knows when to read again. Never 0.
unsigned int AppPathGeneration();

// The full path of the process's executable.
CString ExecutablePath();
