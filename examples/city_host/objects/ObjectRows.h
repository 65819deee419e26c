// SPDX-License-Identifier: MIT
#pragma once

#include "../city/City.h"

#include <NxOsgCeGui/CeGuiMainFrame.h>

namespace host
{

/// A text of the city in the interface's language.
CString InLanguage(const city::Label& label);

/// A building's entry in the city's register, with units, in the interface's language.
CeGuiMainFrame::PropertyRows BuildingRows(const city::City& city, const city::Building& building);
/// The city as a whole, for when no building is picked.
CeGuiMainFrame::PropertyRows CityRows(const city::City& city);

} // namespace host
