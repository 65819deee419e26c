// SPDX-License-Identifier: MIT
#include "IniFile.h"

#include "IniReader.h"

struct CIniFile::State
{
    CString path;
    bool read = false;
    IniReader reader;
};

CIniFile::CIniFile() : state_(new State) {}

CIniFile::~CIniFile()
{
    delete state_;
}

void CIniFile::SetPath(const CString& path)
{
    state_->path = path;
    state_->read = false;
}

CString CIniFile::GetKeyValue(const CString& section, const CString& key)
{
    if (!state_->read)
    {
        state_->reader.Read(state_->path, IniReader::Encoding::Detect);
        state_->read = true;
    }
    const CString* value = state_->reader.Find(section, key);
    return value ? *value : CString();
}
