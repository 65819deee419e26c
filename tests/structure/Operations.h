// SPDX-License-Identifier: MIT
#pragma once

#include "SourceTree.h"

#include <set>
#include <string>

/// Public operations of exported classes and exported functions, as "Class: Name(parameters) const"; functions have the class
/// "Functions".
std::set<std::string> ExportedOperations(const SourceFile& header);

/// The same out of a document's tables: under a heading "## Class" each row that begins with an operation in backticks. A
/// row is told in `faults` when it stands twice, or has not a text in each of three more columns.
std::set<std::string> DocumentedOperations(const SourceFile& document, std::vector<std::string>& faults);
