// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

namespace host
{

class CityHost;

/// The host shows itself: goes through the stops as a user would, with real input only, and keeps a picture of each.
class Tour
{
public:
    /// @param host outlives this
    /// @param folder for the pictures and their lists
    /// @param part of the stops, as `TourStops` knows them; empty: all
    Tour(CityHost& host, const CString& folder, const CString& part) : host_(host), folder_(folder), part_(part) {}

    /// @return the process's exit code: 0 when every stop was reached and no two pictures are the same
    int Run();

private:
    CityHost& host_;
    CString folder_;
    CString part_;
};

} // namespace host
