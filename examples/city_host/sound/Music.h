// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace host
{

/// The background music: a calm chord that swells and fades, played over and over.
class Music
{
public:
    Music() = default;
    ~Music();
    Music(const Music&) = delete;
    Music& operator=(const Music&) = delete;

    /// Whether the machine has a device to play on.
    static bool HasDevice();
    bool IsPlaying() const { return playing_; }
    /// @return false when it could not be started
    bool Start();
    void Stop();

private:
    std::vector<unsigned char> wave_; ///< a whole WAV file; the system reads it while it plays
    bool playing_ = false;
};

} // namespace host
