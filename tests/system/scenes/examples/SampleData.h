// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Makes stand-ins for OpenSceneGraph's sample data, which no package holds: models, pictures and fonts under the names that its
/// examples ask for.
/// @return the folder, for OpenSceneGraph's list of data folders
std::string MakeSampleData();
