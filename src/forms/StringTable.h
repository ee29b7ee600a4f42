// The texts of the program's own string table.
#pragma once

#include "settings/Strings.h"

namespace sonaro {

class StringTable : public Strings {
 public:
  std::string Load(int id) const override;
};

}  // namespace sonaro
