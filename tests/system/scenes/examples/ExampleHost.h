// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

/// An example's `main`, known under its name.
class RegisteredExample
{
public:
    using Main = std::function<int(int argc, char** argv)>;
    RegisteredExample(const char* name, Main main);
    static const Main* Find(const std::string& name);
};

inline int CallMain(int (*main)(int, char**), int argc, char** argv)
{
    return main(argc, argv);
}
inline int CallMain(int (*main)(int, char*[], char*[]), int argc, char** argv)
{
    return main(argc, argv, nullptr);
}
inline int CallMain(int (*main)(), int, char**)
{
    return main();
}
