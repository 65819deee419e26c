// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

/// OpenGL's state as OpenGL reports it, by readable names: capabilities, values, bindings of all texture units, arrays, buffers,
/// stacks, pixel storage. A context has to be current; errors that wait are kept out of it and dropped.
using GlSnapshot = std::map<std::string, std::string>;

GlSnapshot TakeGlSnapshot();

/// What differs, one line each: name, before, after.
std::vector<std::string> Differences(const GlSnapshot& before, const GlSnapshot& after);
