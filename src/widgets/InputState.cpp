// SPDX-License-Identifier: MIT
#include "InputState.h"

#include <memory>

MouseFlags mouseFlags;

namespace
{
std::unique_ptr<InputState> state;
}

InputState& InputState::Get()
{
    if (!state)
    {
        state = std::make_unique<InputState>();
    }
    return *state;
}

InputState* InputState::GetIfThere()
{
    return state.get();
}

void InputState::Release()
{
    state.reset();
}
