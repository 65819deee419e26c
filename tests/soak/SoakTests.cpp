// SPDX-License-Identifier: MIT
// A user at random, for long: nothing that the interface takes stays behind.
#include "Actions.h"
#include "Counts.h"

#include "support/GTest.h"

#include <NxConfig/ParamConfig.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace
{
constexpr std::uint64_t UsualSeed = 20240607;
constexpr int UsualRounds = 8;
constexpr int ActionsPerRound = 40;
constexpr int ActionsOfARepeat = 30;
/// In which what is kept for good comes: fonts, shaders, the widest list.
constexpr int WarmUpRounds = 3;
/// Of every so many rounds one starts the interface again, the others have to hold without it.
constexpr int RoundsPerStart = 3;
constexpr int StartsPerRound = 3;
/// Heaps are not as tidy as handles.
constexpr std::size_t MemoryAllowed = 512 * 1024;

std::uint64_t NumberFrom(const char* variable, std::uint64_t otherwise)
{
    const char* const text = std::getenv(variable);
    return text && *text ? std::strtoull(text, nullptr, 10) : otherwise;
}

std::uint64_t Seed()
{
    return NumberFrom("NX_SOAK_SEED", UsualSeed);
}

/// Whether another round is due.
class Rounds
{
public:
    bool More()
    {
        const bool more =
            minutes_ ? Clock::now() - start_ < std::chrono::minutes(minutes_) || done_ <= 2 * WarmUpRounds : done_ < rounds_;
        ++done_;
        return more;
    }
    int Done() const { return done_; }

private:
    using Clock = std::chrono::steady_clock;
    const std::uint64_t minutes_ = NumberFrom("NX_SOAK_MINUTES", 0);
    const int rounds_ = static_cast<int>(NumberFrom("NX_SOAK_ROUNDS", UsualRounds));
    const Clock::time_point start_ = Clock::now();
    int done_ = 0;
};

/// @param log gets a line before the next begins, so that the last one tells what a crash came of
void DoRound(SoakHost& soak, Dice& dice, int round, std::ostream& log)
{
    for (int i = 0; i < ActionsPerRound; ++i)
    {
        log << round << "." << i << " " << std::flush;
        log << DoSomething(soak, dice) << std::endl;
    }
    for (int i = 0; round % RoundsPerStart == 0 && i < StartsPerRound; ++i)
    {
        log << round << "." << ActionsPerRound + i << " " << std::flush;
        log << StartAgain(soak, dice) << std::endl;
    }
    log << round << " back to the start" << std::endl;
    soak.GoToBase();
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
    std::printf("seed %llu, %d actions a round; soak.log has them one by one\n", static_cast<unsigned long long>(Seed()),
                ActionsPerRound);
    std::printf("round%s\n", Counts::Head().c_str());
    SoakHost soak;
    Dice dice(Seed());
    std::ofstream log("soak.log");
    std::vector<Counts> times;
    for (Rounds rounds; rounds.More();)
    {
        DoRound(soak, dice, rounds.Done(), log);
        const Counts counts = TakeCounts(soak.Host());
        std::printf("%5d%s%s\n", rounds.Done(), counts.Line().c_str(), rounds.Done() <= WarmUpRounds ? "  warm-up" : "");
        std::fflush(stdout);
        if (rounds.Done() > WarmUpRounds)
        {
            times.push_back(counts);
        }
    }
    ASSERT_GE(times.size(), 4u) << "too few rounds to tell";
    EXPECT_EQ(Growth(times, MemoryAllowed), std::vector<std::string>{});
}
