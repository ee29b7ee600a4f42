// Unpacks gzip data in memory.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sonaro {

bool IsGzip(std::string_view bytes);

enum class GunzipStatus { Ok, Damaged, TooLarge };

// All members of the file, one after the other. Stops at `limit` bytes of result, so that a small hostile
// file cannot fill the memory.
GunzipStatus Gunzip(std::string_view bytes, std::size_t limit, std::string& unpacked);

}  // namespace sonaro
