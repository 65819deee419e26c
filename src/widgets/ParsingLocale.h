// SPDX-License-Identifier: MIT
#pragma once

#include <clocale>
#include <string>

/// Has the C locale in force for as long as it lives. CEGUI reads and writes numbers by the C library, and a host may have
/// set a locale with a decimal comma.
class ParsingLocale
{
public:
    ParsingLocale() : former_(std::setlocale(LC_ALL, nullptr)) { std::setlocale(LC_ALL, "C"); }
    ~ParsingLocale() { std::setlocale(LC_ALL, former_.c_str()); }
    ParsingLocale(const ParsingLocale&) = delete;
    ParsingLocale& operator=(const ParsingLocale&) = delete;

private:
    std::string former_;
};
