// SPDX-License-Identifier: MIT
// One target under libFuzzer: Fuzz.exe TARGET LIBFUZZER_ARGUMENTS...
#include "FuzzTarget.h"

#include <NxConfig/SystemUtility.h>

#include <afxwin.h>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerRunDriver(int* argc, char*** argv, int (*run)(const std::uint8_t* data, std::size_t size));

namespace
{
const FuzzTarget* chosen = nullptr;

int RunChosen(const std::uint8_t* data, std::size_t size)
{
    try
    {
        chosen->run(std::string(reinterpret_cast<const char*>(data), size));
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "FOUND: %s\n", failure.what());
        std::abort();
    }
    return 0;
}

/// The fuzzer learns of it by the signal, and keeps the bytes that led here.
LONG WINAPI AbortOnException(EXCEPTION_POINTERS* exception)
{
    std::fprintf(stderr, "FOUND: exception %08x at %p\n", static_cast<unsigned int>(exception->ExceptionRecord->ExceptionCode),
                 exception->ExceptionRecord->ExceptionAddress);
    std::abort();
}
} // namespace

int main(int argc, char** argv)
{
    static CWinApp application;
    wchar_t folder[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, folder);
    SystemUtility::SetAppPath(CString(folder) + L"\\app\\");
    chosen = argc > 1 ? FindFuzzTarget(argv[1]) : nullptr;
    if (!chosen)
    {
        for (const FuzzTarget& target : FuzzTargets())
        {
            std::puts(target.name);
        }
        return 2;
    }
    SetUnhandledExceptionFilter(AbortOnException);
    argv[1] = argv[0];
    --argc;
    ++argv;
    return LLVMFuzzerRunDriver(&argc, &argv, RunChosen);
}
