// SPDX-License-Identifier: MIT
#pragma once

#include "../city/Viewpoints.h"

#include <NxOsgCeGui/BtnUnit.h>

#include <vector>

namespace host
{

/// The control buttons of the host: one for each viewpoint of the city, and one note that leads nowhere. A record's name is
/// "TavGuiButton_" and the viewpoint's id, its target the viewpoint's name in the interface's language, its second text the
/// name in the other one, its last text the path of its picture.
/// @param pictures folder of the pictures, with its trailing separator
std::vector<BTN_UNIT> MakeViewRecords(const CString& pictures);

/// The viewpoint that a record stands for; null when there is none.
const city::Viewpoint* FindViewpoint(const BTN_UNIT& record);

} // namespace host
