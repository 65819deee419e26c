// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "fuzz/TextTables.h"

#include <KernelCommonUse/IniFile.h>

void FuzzIniFile(const std::string& bytes)
{
    const FuzzedServices services(ScratchFolder());
    CIniFile file;
    file.SetPath(ScratchFile(L"fuzz.ini", bytes));
    const TextTable table = ReadTextTable(bytes, false);
    std::vector<CString> values;
    for (const TextTable::Question& question : table.questions)
    {
        values.push_back(file.GetKeyValue(question.section, question.key));
        RequireValue(values.back());
        Require(file.GetKeyValue(OtherCase(question.section), OtherCase(question.key)) == values.back(),
                "sections and keys go without regard to case");
    }
    for (const std::string* again : {&table.utf8, &table.utf16, &table.utf16BigEndian})
    {
        file.SetPath(ScratchFile(L"again.ini", *again));
        for (std::size_t i = 0; i < values.size(); ++i)
        {
            Require(file.GetKeyValue(table.questions[i].section, table.questions[i].key) == values[i],
                    "the same text in another encoding gives the same values");
        }
    }
}
