// The arithmetic of identifiers that are computed from what they stand for.
#pragma once

#include <cstdint>
#include <string_view>

namespace sonaro {

// FNV-1a, folded to 31 bits. Never change it: the identifiers in users' favourites depend on it.
inline std::uint32_t IdNumber(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return static_cast<std::uint32_t>(hash ^ hash >> 32) & 0x7FFFFFFFu;
}

// The first identifier from `number` on, upwards and round, that is positive and for which `isFree` holds.
template <typename IsFree>
std::int32_t FirstFreeId(std::uint32_t number, IsFree isFree) {
  for (;; number = (number + 1) & 0x7FFFFFFFu) {
    const auto id = static_cast<std::int32_t>(number);
    if (id != 0 && isFree(id)) return id;
  }
}

}  // namespace sonaro
