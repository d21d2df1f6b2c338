#include "Toolkit/base/Checksum.h"

#include <array>
#include <bit>
#include <cstring>

namespace toolkit
{
namespace
{

constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::size_t kLanes = 8; // independent of each other, so that a processor works on all of them at once

std::uint64_t Mix(std::uint64_t state, std::uint64_t word)
{
    state = (state ^ word) * 0xD1342543DE82EF95u;
    return state ^ state >> 29;
}

std::uint64_t WordAt(const char* pBytes)
{
    std::uint64_t word;
    std::memcpy(&word, pBytes, kWord);
    return word;
}

} // namespace

std::uint64_t Checksum(std::string_view bytes, std::uint64_t former)
{
    std::array<std::uint64_t, kLanes> lanes{former, 1, 2, 3, 4, 5, 6, 7};
    const std::size_t length = bytes.size();
    for (; bytes.size() >= kLanes * kWord; bytes.remove_prefix(kLanes * kWord))
        for (std::size_t i = 0; i < kLanes; ++i)
            lanes[i] = Mix(lanes[i], WordAt(bytes.data() + i * kWord));
    std::uint64_t sum = Mix(lanes[0], length);
    for (std::size_t i = 1; i < kLanes; ++i)
        sum = Mix(sum, std::rotl(lanes[i], static_cast<int>(8 * i)));
    for (; bytes.size() >= kWord; bytes.remove_prefix(kWord))
        sum = Mix(sum, WordAt(bytes.data()));
    std::uint64_t rest = 0;
    if (!bytes.empty())
        std::memcpy(&rest, bytes.data(), bytes.size());
    return Mix(sum, rest);
}

} // namespace toolkit
