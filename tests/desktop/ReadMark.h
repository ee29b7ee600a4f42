// Tells whether a file was read. How a test hears a sound on a machine without a sound card: the wave file is
// opened and read before the device is asked for.
#pragma once

#include <cstdint>
#include <string>

namespace sonaro::desktop {

class ReadMark {
 public:
  // Marks the file as last read long ago.
  explicit ReadMark(std::string path);

  // Whether the file system keeps the time of the last read at all; some are set not to.
  static bool Works(const std::string& scratchFile);

  bool IsRead() const;
  // True as soon as the file has been read; false when it is not read within the usual time.
  bool WasRead() const;

 private:
  std::uint64_t LastRead() const;

  std::string path_;
  std::uint64_t marked_ = 0;
};

}  // namespace sonaro::desktop
