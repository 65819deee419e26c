// SPDX-License-Identifier: MIT
#include <NxOsgCeGui/BtnUnit.h>

BTN_UNIT::BTN_UNIT() : kind(0), color(0xFFFFFF), value(-1.0f) {}
BTN_UNIT::BTN_UNIT(const BTN_UNIT&) = default;
BTN_UNIT& BTN_UNIT::operator=(const BTN_UNIT&) = default;
BTN_UNIT::~BTN_UNIT() = default;
