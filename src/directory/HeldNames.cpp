#include "directory/HeldNames.h"

#include <algorithm>

#include "base/Text.h"

namespace sonaro {

HeldNames::HeldNames(std::string_view text) {
  // What stands behind the last tab is a name that was cut off in writing and does not count.
  while (text.find('\t') != std::string_view::npos) Add(NextField(text, '\t'));
}

bool HeldNames::Contains(std::string_view name) const {
  return std::any_of(names_.begin(), names_.end(),
                     [name](const std::string& held) { return EqualIgnoringCase(held, name); });
}

void HeldNames::Add(std::string_view name) {
  if (!Contains(name)) names_.emplace_back(name);
}

void HeldNames::Add(const HeldNames& names) {
  for (const std::string& name : names) Add(name);
}

void HeldNames::Remove(std::string_view name) {
  std::erase_if(names_, [name](const std::string& held) { return EqualIgnoringCase(held, name); });
}

std::string HeldNames::Text() const {
  std::string text;
  for (const std::string& name : names_) text.append(name).append("\t");
  return text;
}

}  // namespace sonaro
