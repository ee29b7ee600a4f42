#include "forms/controls/Controls.h"

#include <algorithm>
#include <stdexcept>

namespace sonaro {

ControlHandle::ControlHandle(Form& form, int id, std::initializer_list<ControlKind> kinds)
    : form_(&form), id_(id) {
  for (const ControlRow& row : form.Description().controls) {
    if (row.id == id && std::find(kinds.begin(), kinds.end(), row.kind) != kinds.end()) return;
  }
  throw std::logic_error(std::string(form.Description().name) + " has no control " + std::to_string(id) +
                         " of the kind that its member says");
}

}  // namespace sonaro
