// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include <cstdarg>
#include <string>

// One conversion of a format: what stands between a percent sign and the letter that ends it.
enum class ArgumentSize
{
    Plain,
    Short,
    Long,
    Wide64
};

struct Conversion
{
    std::string flags;
    int width = 0;
    int precision = -1;
    ArgumentSize size = ArgumentSize::Plain;
    wchar_t kind = 0;
};

// An object of its own, since a va_list parameter is a pointer on some platforms and a copy on others.
struct Arguments
{
    va_list list;
};

// The place is behind the percent sign before and behind the conversion afterwards; a width or precision of "*" is taken from
// the arguments.
Conversion TakeConversion(LPCWSTR& place, Arguments& arguments);
