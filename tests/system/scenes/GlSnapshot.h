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

/// Those of them that are not client arrays which were enabled and are not any more: OpenSceneGraph is told to disable all before
/// the interface is drawn.
std::vector<std::string> ButDisabledArrays(const std::vector<std::string>& differences);
