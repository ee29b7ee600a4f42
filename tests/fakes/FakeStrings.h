// Gives each text's number, so that tests do not depend on the wording.
#pragma once

#include <string>

#include "settings/Strings.h"

namespace sonaro {

class FakeStrings : public Strings {
 public:
  std::string Load(int id) const override { return std::to_string(id); }
};

}  // namespace sonaro
