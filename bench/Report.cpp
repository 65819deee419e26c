// SPDX-License-Identifier: MIT
#include "Report.h"

#include <cstdio>
#include <sstream>

namespace
{
std::string Number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char c : text)
    {
        if (c == '"' || c == '\\')
        {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + "\"";
}

/// "name": {key: value, ...}
template <class Map, class Key, class Value>
void Object(std::ostringstream& out, const char* name, const Map& map, Key key, Value value)
{
    if (map.empty())
    {
        return;
    }
    out << ",\n    " << Quoted(name) << ": {";
    const char* separator = "";
    for (const auto& [k, v] : map)
    {
        out << separator << Quoted(key(k)) << ": " << value(v);
        separator = ", ";
    }
    out << "}";
}
} // namespace

std::string Table(const std::vector<Row>& rows)
{
    std::string table;
    char line[160];
    std::snprintf(line, sizeof line, "%-16s %12s %12s %-6s %8s %8s  %s\n", "name", "measured", "reference", "unit", "ratio",
                  "limit", "holds");
    table += line;
    for (const Row& row : rows)
    {
        std::snprintf(line, sizeof line, "%-16s %12.1f %12.1f %-6s %8.3f %8.3f  %s\n", row.name.c_str(), row.measured,
                      row.reference, row.unit.c_str(), row.Ratio(), row.limit, row.Holds() ? "yes" : "no");
        table += line;
    }
    return table;
}

std::string Json(const std::vector<Row>& rows)
{
    const auto same = [](const std::string& text) { return text; };
    std::ostringstream out;
    out << "[";
    const char* separator = "\n";
    for (const Row& row : rows)
    {
        out << separator << "  {\n    \"name\": " << Quoted(row.name) << ",\n    \"what\": " << Quoted(row.what)
            << ",\n    \"unit\": " << Quoted(row.unit) << ",\n    \"measured\": " << Number(row.measured)
            << ",\n    \"reference\": " << Number(row.reference) << ",\n    \"ratio\": " << Number(row.Ratio())
            << ",\n    \"limit\": " << Number(row.limit) << ",\n    \"holds\": " << (row.Holds() ? "true" : "false")
            << ",\n    \"rounds\": " << row.rounds;
        Object(out, "spread", row.spread, same,
               [](const std::pair<double, double>& quartiles)
               { return "[" + Number(quartiles.first) + ", " + Number(quartiles.second) + "]"; });
        Object(out, "extra", row.extra, same, Number);
        Object(
            out, "growth", row.growth, [](int count) { return std::to_string(count); }, Number);
        if (!row.note.empty())
        {
            out << ",\n    \"note\": " << Quoted(row.note);
        }
        out << "\n  }";
        separator = ",\n";
    }
    out << "\n]\n";
    return out.str();
}
