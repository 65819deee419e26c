// SPDX-License-Identifier: MIT
// Preloaded into the benchmark: every allocation of a thread that asks for it is counted, with the place that it came from.
#include <cstddef>
#include <cstdlib>
#include <cerrno>
#include <new>

extern "C"
{
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* block, std::size_t size);
    void* __libc_memalign(std::size_t alignment, std::size_t size);
}

namespace
{
constexpr int MostPlaces = 4096;
__attribute__((tls_model("initial-exec"))) thread_local bool counting = false;
__attribute__((tls_model("initial-exec"))) thread_local int count = 0;
// Written by the one thread that counts.
void* places[MostPlaces];

void Note(void* place)
{
    if (counting)
    {
        if (count < MostPlaces)
        {
            places[count] = place;
        }
        ++count;
    }
}

void* New(std::size_t size, void* place)
{
    Note(place);
    void* block = __libc_malloc(size ? size : 1);
    if (!block)
    {
        throw std::bad_alloc();
    }
    return block;
}
} // namespace

extern "C"
{
    void BenchCountAllocations(bool on)
    {
        if (on)
        {
            count = 0;
        }
        counting = on;
    }

    /// How many there were; the places of the first of them.
    int BenchAllocations(void*** where)
    {
        *where = places;
        return count;
    }

    void* malloc(std::size_t size)
    {
        Note(__builtin_return_address(0));
        return __libc_malloc(size);
    }

    void* calloc(std::size_t number, std::size_t size)
    {
        Note(__builtin_return_address(0));
        return __libc_calloc(number, size);
    }

    void* realloc(void* block, std::size_t size)
    {
        Note(__builtin_return_address(0));
        return __libc_realloc(block, size);
    }

    int posix_memalign(void** block, std::size_t alignment, std::size_t size)
    {
        Note(__builtin_return_address(0));
        *block = __libc_memalign(alignment, size);
        return *block ? 0 : ENOMEM;
    }

    void* aligned_alloc(std::size_t alignment, std::size_t size)
    {
        Note(__builtin_return_address(0));
        return __libc_memalign(alignment, size);
    }
}

void* operator new(std::size_t size)
{
    return New(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size)
{
    return New(size, __builtin_return_address(0));
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete[](void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    std::free(block);
}
