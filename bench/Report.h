// SPDX-License-Identifier: MIT
#pragma once

#include "Measure.h"

#include <string>
#include <vector>

std::string Table(const std::vector<Row>& rows);
/// A list of objects, one a row.
std::string Json(const std::vector<Row>& rows);
