// SPDX-License-Identifier: MIT
#include "GuiLog.h"

#include <KernelCommonUse/StringConvert.h>

#include <atlstr.h>

#include <ctime>
#include <memory>

namespace
{
/// CEGUI logs an exception in one line, and then a line for each function on the stack ("#0 ...").
const char* const BacktraceBegin = "Start of Backtrace";
const char* const BacktraceEnd = "End of Backtrace";

std::unique_ptr<GuiLog> own;

CString FullPath(const char* file)
{
    CString path;
    const DWORD length = GetFullPathNameW(Utf8ToCString(file), MAX_PATH, path.GetBuffer(MAX_PATH), nullptr);
    path.ReleaseBuffer(length < MAX_PATH ? static_cast<int>(length) : 0);
    return path.IsEmpty() ? Utf8ToCString(file) : path;
}

/// Of the last start; before the first one as it would be now.
CString& LogPath()
{
    static CString path = FullPath(GuiLog::FileName);
    return path;
}

void Write(const std::string& text)
{
    // Opened for each write: another program may write to the same file, and the user may take it away.
    const HANDLE file = CreateFileW(LogPath(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    const bool complete = file != INVALID_HANDLE_VALUE &&
                          WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
                          written == text.size();
    if (file != INVALID_HANDLE_VALUE)
    {
        CloseHandle(file);
    }
    if (!complete)
    {
        OutputDebugStringA(strUtf8ToAnsi(text).c_str());
    }
}

void Rotate(const CString& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (GetFileAttributesExW(path, GetFileExInfoStandard, &data) && !(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) &&
        (static_cast<long long>(data.nFileSizeHigh) << 32 | data.nFileSizeLow) > GuiLog::MaxSize)
    {
        MoveFileExW(path, path.Left(path.ReverseFind(L'.')) + L".old.log", MOVEFILE_REPLACE_EXISTING);
    }
}

const char* NameOf(CEGUI::LoggingLevel level)
{
    switch (level)
    {
    case CEGUI::Errors:
        return "(Error)\t";
    case CEGUI::Warnings:
        return "(Warn)\t";
    case CEGUI::Standard:
        return "(Std) \t";
    case CEGUI::Informative:
        return "(Info) \t";
    default:
        return "(Insan)\t";
    }
}

std::string Line(const char* message, CEGUI::LoggingLevel level)
{
    // The same for all the lines of a second.
    static std::time_t second = -1;
    static char begin[64] = "";
    const std::time_t now = std::time(nullptr);
    if (now != second)
    {
        second = now;
        std::strftime(begin, sizeof(begin), "%d/%m/%Y %H:%M:%S ", std::localtime(&now));
    }
    return std::string(begin) + NameOf(level) + message + '\n';
}
} // namespace

void GuiLog::Begin()
{
    if (!CEGUI::Logger::getSingletonPtr())
    {
        own = std::make_unique<GuiLog>();
        own->setLogFilename(FileName, true);
    }
}

void GuiLog::Quieten()
{
    if (own)
    {
        own->Flush();
    }
    CEGUI::Logger::getSingleton().setLoggingLevel(CEGUI::Warnings);
}

void GuiLog::Reopen()
{
    CEGUI::Logger::getSingleton().setLoggingLevel(CEGUI::Standard);
}

void GuiLog::End()
{
    own.reset();
}

void GuiLog::Append(const std::string& line)
{
    Write(Line(line.c_str(), CEGUI::Errors));
}

GuiLog::~GuiLog()
{
    Flush();
}

void GuiLog::logEvent(const CEGUI::String& message, CEGUI::LoggingLevel level)
{
    if (level > getLoggingLevel() || (level == CEGUI::Errors && IsBacktrace(message)))
    {
        return;
    }
    waiting_ += Line(message.c_str(), level);
    if (level <= CEGUI::Warnings)
    {
        Flush();
    }
}

bool GuiLog::IsBacktrace(const CEGUI::String& message)
{
    const bool begins = message.find(BacktraceBegin) != CEGUI::String::npos;
    const bool ends = inBacktrace_ && message.find(BacktraceEnd) != CEGUI::String::npos;
    const bool within = begins || ends || (inBacktrace_ && !message.empty() && message[0] == '#');
    inBacktrace_ = within && !ends;
    return within;
}

void GuiLog::setLogFilename(const CEGUI::String& file, bool)
{
    LogPath() = FullPath(file.c_str());
    Rotate(LogPath());
    const std::string start = "NxOsgCeGui starts, process " + std::to_string(GetCurrentProcessId());
    waiting_.insert(0, Line(start.c_str(), CEGUI::Standard));
    Flush();
}

void GuiLog::Flush()
{
    if (!waiting_.empty())
    {
        Write(waiting_);
        waiting_.clear();
    }
}
