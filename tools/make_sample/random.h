// Random numbers that are the same on every machine: a counter run through a mixing function.
#pragma once

#include <cstdint>

namespace ground {

struct Random {
  std::uint64_t state = 0;
};

// Mixes the bits of a number (splitmix64's finishing step).
inline std::uint64_t mix_bits(std::uint64_t value) {
  value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9ULL;
  value = (value ^ (value >> 27)) * 0x94d049bb133111ebULL;
  return value ^ (value >> 31);
}

// Evenly spread from 0 up to, but without, 1.
inline double next_fraction(Random& random) {
  random.state += 0x9e3779b97f4a7c15ULL;
  return static_cast<double>(mix_bits(random.state) >> 11) * 0x1.0p-53;
}

inline double next_between(Random& random, double low, double high) {
  return low + (high - low) * next_fraction(random);
}

}  // namespace ground
