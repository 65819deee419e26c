// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "fuzz/TextTables.h"

#include <KernelCommonUse/IniReader.h>
#include <KernelCommonUse/MultiLanguage.h>
#include <KernelCommonUse/StringConvert.h>
#include <NxConfig/ParamConfig.h>

void FuzzLanguageTable(const std::string& bytes)
{
    const FuzzedServices services(ScratchFolder());
    IniReader reader;
    Require(reader.Read(ScratchFile(L"languages\\fuzz.ini", bytes), IniReader::Encoding::Utf8) == IniReader::Result::Read,
            "a table of this size is read");
    const TextTable table = ReadTextTable(bytes, true);
    ScratchFile(L"languages\\again.ini", table.utf16);
    for (const char* language : {"fuzz", "again"})
    {
        CParamConfig::getInstance()->setStringParam("Language", language);
        CMultiLanguageMgr& texts = *CMultiLanguageMgr::GetInstance();
        for (const TextTable::Question& question : table.questions)
        {
            const std::string key = CString2string(question.key);
            const CString text = texts.translation(key, "default", CString2string(question.section));
            RequireValue(text);
            const CString* expected = reader.Find(question.section, question.key);
            Require(text == (expected ? *expected : CString(L"default")), "a text is the table's, or else the default");
        }
        // No key of a line holds a line end.
        Require(texts.translation(bytes + "\n", "", "Common") == Utf8ToCString(bytes + "\n"),
                "a key without a text is shown itself");
    }
}
