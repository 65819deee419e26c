// SPDX-License-Identifier: MIT
#include "Operations.h"

#include <sstream>

namespace
{
const char* const Export = "NXOSGCEGUI_API";

std::string Tidy(const std::string& text)
{
    std::istringstream words(text);
    std::string tidy;
    for (std::string word; words >> word;)
    {
        tidy += (tidy.empty() ? "" : " ") + word;
    }
    return tidy;
}

bool Begins(const std::string& text, const std::string& start)
{
    return text.rfind(start, 0) == 0;
}

/// Without comments and preprocessor lines.
std::string CodeOf(const SourceFile& header)
{
    std::string code;
    for (const std::string& line : header.lines)
    {
        if (!Begins(Tidy(line), "#"))
        {
            code += line.substr(0, line.find("//")) + "\n";
        }
    }
    return code;
}

/// "Name(parameters) const" of a declaration.
std::string SignatureOf(const std::string& declaration)
{
    const std::size_t open = declaration.find('(');
    const std::size_t close = declaration.rfind(')');
    std::size_t name = declaration.find_last_of(" *&", open);
    name = name == std::string::npos ? 0 : name + 1;
    const bool isConst = Begins(declaration.substr(close + 1), " const");
    return declaration.substr(name, close + 1 - name) + (isConst ? " const" : "");
}

/// Reads a header's code statement by statement.
class Reader
{
public:
    void Read(const std::string& code)
    {
        for (const char c : code)
        {
            Take(c);
        }
    }

    std::set<std::string> operations;

private:
    void Take(char c)
    {
        if (c == '{')
        {
            Open();
        }
        else if (c == '}')
        {
            --depth_;
            exported_ = exported_ && depth_ > 0;
            statement_.clear();
        }
        else if (c == ';')
        {
            Statement();
        }
        else
        {
            statement_ += c;
            Access("public:", true);
            Access("protected:", false);
            Access("private:", false);
        }
    }

    void Open()
    {
        const std::string head = Tidy(statement_);
        if (depth_ == 0)
        {
            std::istringstream words(head);
            std::string kind;
            std::string mark;
            words >> kind >> mark >> class_;
            exported_ = (kind == "class" || kind == "struct") && mark == Export;
            public_ = kind == "struct";
            statement_.clear();
        }
        else
        {
            Statement();
        }
        ++depth_;
    }

    void Statement()
    {
        const std::string declaration = Tidy(statement_);
        statement_.clear();
        if (declaration.find('(') == std::string::npos)
        {
            return;
        }
        if (depth_ == 0 && declaration.find(Export) != std::string::npos)
        {
            operations.insert("Functions: " + SignatureOf(declaration));
        }
        else if (depth_ == 1 && exported_ && public_)
        {
            operations.insert(class_ + ": " + SignatureOf(declaration));
        }
    }

    void Access(const std::string& label, bool isPublic)
    {
        if (depth_ == 1 && Tidy(statement_) == label)
        {
            public_ = isPublic;
            statement_.clear();
        }
    }

    std::string statement_;
    std::string class_;
    int depth_ = 0;
    bool exported_ = false;
    bool public_ = false;
};
} // namespace

std::set<std::string> ExportedOperations(const SourceFile& header)
{
    Reader reader;
    reader.Read(CodeOf(header));
    return reader.operations;
}

std::set<std::string> DocumentedOperations(const SourceFile& document, std::vector<std::string>& faults)
{
    std::set<std::string> operations;
    std::string heading;
    for (const std::string& line : document.lines)
    {
        if (Begins(line, "## "))
        {
            heading = line.substr(3);
        }
        if (!Begins(line, "| `"))
        {
            continue;
        }
        std::istringstream columns(line.substr(1));
        std::vector<std::string> cells;
        for (std::string cell; std::getline(columns, cell, '|');)
        {
            cells.push_back(Tidy(cell));
        }
        const bool whole = cells.size() == 4 && !cells[1].empty() && !cells[2].empty() && !cells[3].empty();
        const std::string operation = heading + ": " + cells[0].substr(1, cells[0].size() - 2);
        const bool first = operations.insert(operation).second;
        if (!whole || !first)
        {
            faults.push_back(line);
        }
    }
    return operations;
}
