// Names of files as the setting "UpdateHold" lists them: each followed by a TAB, none twice whatever its
// letter case. Used by those who put downloaded files in place; knows no file and no setting.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

class HeldNames {
 public:
  HeldNames() = default;
  // What stands behind the last TAB is no name.
  explicit HeldNames(std::string_view text);

  bool Contains(std::string_view name) const;
  void Add(std::string_view name);  // at the end; a name that is there already stays where it is
  void Add(const HeldNames& names);
  void Remove(std::string_view name);

  bool Empty() const { return names_.empty(); }
  std::string Text() const;
  auto begin() const { return names_.begin(); }
  auto end() const { return names_.end(); }

 private:
  std::vector<std::string> names_;
};

}  // namespace sonaro
