// SPDX-License-Identifier: MIT
// OSG's windowing system is a static object that unregisters its window classes when it goes, after main. Wine has begun to
// end the process by then, and a call that late ends it with 0 instead of the program's own result. OSG calls this function
// instead, which leaves the classes to the end of the process.
#include <windows.h>

extern "C" BOOL WINAPI KeepWindowClass(LPCSTR, HINSTANCE)
{
    return TRUE;
}
