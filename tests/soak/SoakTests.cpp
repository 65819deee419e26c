// SPDX-License-Identifier: MIT
// A user at random, for long: nothing that the interface takes stays behind.
#include "Actions.h"
#include "Counts.h"

#include "support/GTest.h"

#include <NxConfig/ParamConfig.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace
{
constexpr std::uint64_t UsualSeed = 20240607;
/// Rounds follow scripts of their own, each drawn from the seed, one after the other, and then the same ones again: what a script
/// leaves behind each time is then no chance.
constexpr int UsualScripts = 5;
constexpr int ScriptsPerMinute = 4;
/// Beside some of each kind.
constexpr int ActionsByChance = 8;
constexpr int ActionsOfARepeat = 30;
/// How often all scripts are done before anything is counted: fonts, shaders, the widest list and the like are made then, which
/// are kept for good.
constexpr int WarmUpTurns = 2;
constexpr int UsualTurns = 4;
constexpr std::size_t LeastSamples = 20;
/// The first script starts the interface again, the others have to hold without it.
constexpr int StartsPerTurn = 2;
/// Bytes that an action may leave behind: heaps are not as tidy as handles.
constexpr double MemoryAllowed = 512;
/// Leaks that a run has to be able to find.
constexpr double ObjectsPlanted = 0.1; ///< a round
constexpr double MemoryPlanted = 1024; ///< bytes an action

std::uint64_t NumberFrom(const char* variable, std::uint64_t otherwise)
{
    const char* const text = std::getenv(variable);
    return text && *text ? std::strtoull(text, nullptr, 10) : otherwise;
}

std::uint64_t Seed()
{
    return NumberFrom("NX_SOAK_SEED", UsualSeed);
}

/// What is to be done in a run.
class Plan
{
public:
    int Scripts() const { return minutes_ ? std::max(UsualScripts, ScriptsPerMinute * minutes_) : UsualScripts; }
    /// Whether another turn of all scripts is due.
    bool MoreTurns(int done) const
    {
        return minutes_ ? Clock::now() - start_ < std::chrono::minutes(minutes_) || done < WarmUpTurns + UsualTurns
                        : done < WarmUpTurns + UsualTurns;
    }

private:
    using Clock = std::chrono::steady_clock;
    const int minutes_ = static_cast<int>(NumberFrom("NX_SOAK_MINUTES", 0));
    const Clock::time_point start_ = Clock::now();
};

/// Leaves behind what a run by hand is told to, for the sake of seeing that it is found.
class Leaks
{
public:
    void AfterAction()
    {
        if (what_ == "memory")
        {
            kept_.emplace_back(static_cast<std::size_t>(MemoryPlanted), 'x');
        }
    }
    void AfterRound()
    {
        if (what_ == "object" && ++rounds_ % static_cast<int>(1 / ObjectsPlanted) == 0)
        {
            CreateSolidBrush(RGB(1, 2, 3));
        }
    }

private:
    const std::string what_ = std::getenv("NX_SOAK_LEAK") ? std::getenv("NX_SOAK_LEAK") : "";
    std::vector<std::string> kept_;
    int rounds_ = 0;
};

/// @param log gets a line before the next begins, so that the last one tells what a crash came of
/// @return how many actions it had
int DoRound(SoakHost& soak, int script, Leaks& leaks, std::ostream& log)
{
    Dice dice(Seed() + static_cast<std::uint64_t>(script));
    int done = 0;
    const auto act = [&](const std::function<std::string()>& action)
    {
        log << script << "." << done++ << " " << std::flush;
        log << action() << std::endl;
        leaks.AfterAction();
    };
    // In every turn of the scripts each kind comes at least once.
    for (int kind = script % UsualScripts; kind < ActionCount(); kind += UsualScripts)
    {
        act([&] { return DoKind(soak, dice, kind); });
    }
    for (int i = 0; i < ActionsByChance; ++i)
    {
        act([&] { return DoSomething(soak, dice); });
    }
    for (int i = 0; script == 0 && i < StartsPerTurn; ++i)
    {
        act([&] { return StartAgain(soak, dice); });
    }
    log << script << " back to the start" << std::endl;
    soak.GoToBase();
    leaks.AfterRound();
    return done;
}
} // namespace

TEST(Soak, the_same_seed_does_the_same)
{
    std::vector<std::string> runs[2];
    for (std::vector<std::string>& did : runs)
    {
        SoakHost soak;
        Dice dice(Seed());
        for (int i = 0; i < ActionsOfARepeat; ++i)
        {
            did.push_back(DoSomething(soak, dice));
        }
    }
    EXPECT_EQ(runs[0], runs[1]);
}

TEST(Soak, nothing_is_left_behind)
{
    const Plan plan;
    std::printf("seed %llu, %d scripts; soak.log has the actions one by one\n", static_cast<unsigned long long>(Seed()),
                plan.Scripts());
    std::printf("round%s\n", Counts::Head().c_str());
    SoakHost soak;
    Leaks leaks;
    std::ofstream log("soak.log");
    std::vector<Sample> samples;
    int rounds = 0;
    int actions = 0;
    for (int turn = 0; plan.MoreTurns(turn); ++turn)
    {
        for (int script = 0; script < plan.Scripts(); ++script)
        {
            const int done = DoRound(soak, script, leaks, log);
            const Counts counts = TakeCounts(soak.Host());
            std::printf("%5d%s%s\n", ++rounds, counts.Line().c_str(), turn < WarmUpTurns ? "  warm-up" : "");
            std::fflush(stdout);
            if (turn >= WarmUpTurns)
            {
                samples.push_back({script, counts});
                actions += done;
            }
        }
    }
    ASSERT_GE(samples.size(), LeastSamples) << "too few rounds to tell";
    const double actionsPerRound = actions / static_cast<double>(samples.size());
    const double allowed = MemoryAllowed * actionsPerRound;
    EXPECT_EQ(Growth(samples, allowed), std::vector<std::string>{});
    // As unsteady as these counts were, this run would have found a leak of each kind.
    for (const std::vector<Sample>& leaking : WithLeaks(samples, ObjectsPlanted, MemoryPlanted * actionsPerRound))
    {
        EXPECT_FALSE(Growth(leaking, allowed).empty());
    }
}
