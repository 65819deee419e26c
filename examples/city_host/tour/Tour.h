// SPDX-License-Identifier: MIT
#pragma once

namespace host
{

class CityHost;
struct Options;

/// The host shows itself: goes through the stops as a user would, with real input only, and keeps a picture of each.
class Tour
{
public:
    /// @param host outlives this
    /// @param options which stops, and where the pictures, their lists and their references go; outlives this
    Tour(CityHost& host, const Options& options) : host_(host), options_(options) {}

    /// @return the process's exit code: 0 when every stop was reached, no two pictures are the same, and all are like their
    ///     references
    int Run();

private:
    CityHost& host_;
    const Options& options_;
};

} // namespace host
