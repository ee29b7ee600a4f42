// The service's addresses and the few values that come with them: one table of the key in an update file, the
// setting that holds it, and the default that the setting gets when it is empty.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "settings/SettingTypes.h"

namespace sonaro {

class CReg;

// Gives every setting of the table that is empty its default. Run at every start.
void WriteServiceDefaults(CReg& reg);

// The default of one setting of the table; "" when it has none.
std::string ServiceDefault(const setting::Text& setting);

// The setting's value, or its default when it is empty.
std::string ServiceSetting(const CReg& reg, const setting::Text& setting);

// The same, and the default is stored as well. A store that cannot be written changes nothing about the
// result.
std::string StoredServiceSetting(CReg& reg, const setting::Text& setting);

// One setting of the table with a new value.
struct ServiceValue {
  const char* key = "";      // of the registry
  const char* setting = "";  // within it
  std::string value;
};

// Finds every key of the table in a line of an update file: the value is what stands between the key and the
// next "::". Empty values change nothing. Addresses that the program would not contact are counted in
// `refused` and left out.
void FindServiceValues(std::string_view line, std::vector<ServiceValue>& found, std::size_t& refused);

}  // namespace sonaro
