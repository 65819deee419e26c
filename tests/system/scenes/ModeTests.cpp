// SPDX-License-Identifier: MIT
#include "UnderState.h"
