// SPDX-License-Identifier: MIT
#pragma once

#include "Dice.h"
#include "SoakHost.h"

#include <string>

/// Does one thing that a user or a host does, chosen by the dice, and lets the host carry out what comes of it.
/// @return what it was, with its particulars and the codes that the host received
std::string DoSomething(SoakHost& soak, Dice& dice);

/// The same of one kind.
/// @param kind 0 to ActionCount() - 1
std::string DoKind(SoakHost& soak, Dice& dice, int kind);

/// The same, of what takes the interface down and starts it again.
std::string StartAgain(SoakHost& soak, Dice& dice);

/// How many kinds of things there are.
int ActionCount();
