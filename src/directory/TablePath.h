// Where a table of the data folder lies.
#pragma once

#include <string>
#include <string_view>

#include "base/DataFolder.h"
#include "directory/VmxFormat.h"

namespace sonaro {

// The path without an extension of the table `name` ("\statorg"), in the letter case of its data file if
// there is one.
inline std::string TablePath(const DataFolder& data, std::string_view name) {
  std::string path = data.Path(std::string(name).append(kDataExtension));
  path.resize(path.size() - kDataExtension.size());
  return path;
}

}  // namespace sonaro
