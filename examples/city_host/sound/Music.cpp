// SPDX-License-Identifier: MIT
#include "Music.h"

#include <windows.h>

#include <mmsystem.h>

#include <cmath>
#include <cstdint>

namespace host
{
namespace
{

constexpr int SampleRate = 22050;
constexpr int Seconds = 8;
constexpr double Loudness = 2600;
constexpr double Pi = 3.14159265358979;
/// Hertz; each fits a whole number of times into the piece, so that its end meets its beginning.
const double chord[] = {110.0, 164.875, 220.0, 277.125, 329.625};

void Append(std::vector<unsigned char>& file, const void* data, std::size_t size)
{
    const auto* bytes = static_cast<const unsigned char*>(data);
    file.insert(file.end(), bytes, bytes + size);
}

std::vector<unsigned char> Compose()
{
    const std::uint32_t dataSize = SampleRate * Seconds * sizeof(std::int16_t);
    struct
    {
        char riff[4] = {'R', 'I', 'F', 'F'};
        std::uint32_t size;
        char wave[8] = {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '};
        std::uint32_t formatSize = 16;
        std::uint16_t format = WAVE_FORMAT_PCM;
        std::uint16_t channels = 1;
        std::uint32_t rate = SampleRate;
        std::uint32_t bytesPerSecond = SampleRate * sizeof(std::int16_t);
        std::uint16_t block = sizeof(std::int16_t);
        std::uint16_t bits = 16;
        char data[4] = {'d', 'a', 't', 'a'};
        std::uint32_t dataSize;
    } header;
    header.size = sizeof(header) - 8 + dataSize;
    header.dataSize = dataSize;
    std::vector<unsigned char> file;
    Append(file, &header, sizeof(header));
    for (int i = 0; i < SampleRate * Seconds; ++i)
    {
        const double t = static_cast<double>(i) / SampleRate;
        double sum = 0;
        for (const double frequency : chord)
        {
            sum += std::sin(2 * Pi * frequency * t);
        }
        const double swell = 0.5 - 0.5 * std::cos(2 * Pi * t / Seconds);
        const auto sample = static_cast<std::int16_t>(Loudness * swell * sum);
        Append(file, &sample, sizeof(sample));
    }
    return file;
}

} // namespace

Music::~Music()
{
    Stop();
}

bool Music::HasDevice()
{
    return waveOutGetNumDevs() > 0;
}

bool Music::Start()
{
    if (wave_.empty())
    {
        wave_ = Compose();
    }
    playing_ = PlaySoundW(reinterpret_cast<LPCWSTR>(wave_.data()), nullptr, SND_MEMORY | SND_ASYNC | SND_LOOP | SND_NODEFAULT);
    return playing_;
}

void Music::Stop()
{
    if (playing_)
    {
        PlaySoundW(nullptr, nullptr, 0);
        playing_ = false;
    }
}

} // namespace host
