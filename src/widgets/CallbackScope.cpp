// SPDX-License-Identifier: MIT
#include "CallbackScope.h"

#include "FailureLog.h"
#include "Names.h"

#include <CEGUI/Exceptions.h>

#include <deque>
#include <exception>
#include <utility>

namespace
{
struct PutOff
{
    CallbackScope::Request request;
    std::function<void()> work;
};

int depth = 0;
std::deque<PutOff> requests;

void CarryOut(const std::function<void()>& work)
{
    try
    {
        work();
    }
    catch (const CEGUI::Exception& failure)
    {
        LogPassing("request of a callback not carried out", NameBytes(failure.getMessage()));
    }
    catch (const std::exception& failure)
    {
        LogFailure("request of a callback not carried out", failure.what());
    }
    catch (...)
    {
        LogFailure("request of a callback not carried out", "an exception of no known kind");
    }
}
} // namespace

CallbackScope::CallbackScope()
{
    ++depth;
}

CallbackScope::~CallbackScope()
{
    // Still inside the scope: the work calls the host's slots as well, which may ask for more.
    while (depth == 1 && !requests.empty())
    {
        const std::function<void()> work = std::move(requests.front().work);
        requests.pop_front();
        CarryOut(work);
    }
    --depth;
}

bool CallbackScope::IsActive()
{
    return depth > 0;
}

bool CallbackScope::IsNested()
{
    return depth > 1;
}

bool CallbackScope::Run(Request request, std::function<void()> work)
{
    if (!IsActive())
    {
        const CallbackScope scope;
        work();
        return true;
    }
    if (!requests.empty() && requests.back().request == request)
    {
        requests.pop_back();
    }
    requests.push_back({request, std::move(work)});
    return false;
}
