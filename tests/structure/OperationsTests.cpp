// SPDX-License-Identifier: MIT
// The table of every exported operation says what the headers say.
#include "Operations.h"

#include "support/GTest.h"

TEST(Operations, are_read_from_a_header)
{
    const SourceFile header = {"a.h",
                               {"#define NXOSGCEGUI_API",
                                "class Hidden { public: void Not(); };",
                                "extern \"C\" NXOSGCEGUI_API const char* Version();",
                                "class NXOSGCEGUI_API Frame : public Base",
                                "{",
                                "public:",
                                "    Frame();  ///< with a (comment);",
                                "    static Frame* Get();",
                                "    virtual bool Open(const std::vector<int>& rows,",
                                "                      int at) const override;",
                                "    int Inline() const { return Call(1); }",
                                "    Frame& operator=(const Frame& other);",
                                "    int field = 3;",
                                "protected:",
                                "    void Inner();",
                                "private:",
                                "    void Own();",
                                "};",
                                "struct NXOSGCEGUI_API Record",
                                "{",
                                "    ~Record();",
                                "};",
                                "void NotExported();"}};
    EXPECT_EQ(ExportedOperations(header),
              (std::set<std::string>{"Functions: Version()", "Frame: Frame()", "Frame: Get()",
                                     "Frame: Open(const std::vector<int>& rows, int at) const", "Frame: Inline() const",
                                     "Frame: operator=(const Frame& other)", "Record: ~Record()"}));
}

TEST(Operations, are_read_from_a_table)
{
    const SourceFile document = {"a.md",
                                 {"## Frame", "| operation | a | b | c |", "|---|---|---|---|", "| `Get() const` | 1 | 2 | 3 |",
                                  "text `Other()`", "| `Get() const` | 1 | 2 | 3 |", "| `Empty()` | 1 |  | 3 |"}};
    std::vector<std::string> faults;
    EXPECT_EQ(DocumentedOperations(document, faults), (std::set<std::string>{"Frame: Get() const", "Frame: Empty()"}));
    EXPECT_EQ(faults, (std::vector<std::string>{"| `Get() const` | 1 | 2 | 3 |", "| `Empty()` | 1 |  | 3 |"}));
}

TEST(Operations, of_the_headers_are_those_of_the_document)
{
    std::set<std::string> exported;
    for (const SourceFile& header : SourcesIn("include"))
    {
        for (const std::string& operation : ExportedOperations(header))
        {
            exported.insert(operation);
        }
    }
    EXPECT_GT(exported.size(), 80u);
    std::vector<std::string> faults;
    const std::set<std::string> documented = DocumentedOperations(ReadSource("docs/operations.md"), faults);
    EXPECT_EQ(faults, std::vector<std::string>{});
    for (const std::string& operation : exported)
    {
        EXPECT_EQ(documented.count(operation), 1u) << "docs/operations.md lacks " << operation;
    }
    for (const std::string& operation : documented)
    {
        EXPECT_EQ(exported.count(operation), 1u) << "docs/operations.md tells of what is not there: " << operation;
    }
}
