// The controls with a class of their own: which kind is made by which class, and the way to them.
#include "forms/FormParts.h"

namespace sonaro {

std::unique_ptr<FormControl> FormParts::MakeView(const ControlRow&) { return nullptr; }

}  // namespace sonaro
