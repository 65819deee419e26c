// SPDX-License-Identifier: MIT
// One target under libFuzzer: Fuzz.exe TARGET LIBFUZZER_ARGUMENTS...
#include "FuzzTarget.h"

#include <NxConfig/SystemUtility.h>

#include <afxwin.h>

#include <cstdio>
#include <fstream>

#include <unistd.h>

extern "C" int LLVMFuzzerRunDriver(int* argc, char*** argv, int (*run)(const std::uint8_t* data, std::size_t size));

namespace
{
const FuzzTarget* chosen = nullptr;

/// The process ends at once, without the signal that the fuzzer waits for: handlers of signals are not safe everywhere in Wine.
/// The bytes have been written before.
constexpr int Found = 77;

int RunChosen(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    // What the process ends on, if it does.
    std::ofstream("last_bytes", std::ios::binary | std::ios::trunc) << bytes;
    try
    {
        chosen->run(bytes);
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "FOUND: %s\n", failure.what());
        _exit(Found);
    }
    return 0;
}

/// First of all handlers, since not every one of Wine's own modules can be left by an exception.
LONG CALLBACK EndOnFault(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode != EXCEPTION_ACCESS_VIOLATION && record.ExceptionCode != EXCEPTION_STACK_OVERFLOW)
    {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    HMODULE module = nullptr;
    char name[MAX_PATH] = "";
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<LPCWSTR>(record.ExceptionAddress), &module);
    GetModuleFileNameA(module, name, MAX_PATH);
    std::fprintf(stderr, "FOUND: exception %08x at %p in %s\n", static_cast<unsigned int>(record.ExceptionCode),
                 record.ExceptionAddress, module ? name : "a native library");
    _exit(Found);
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
    AddVectoredExceptionHandler(1, EndOnFault);
    argv[1] = argv[0];
    --argc;
    ++argv;
    return LLVMFuzzerRunDriver(&argc, &argv, RunChosen);
}
