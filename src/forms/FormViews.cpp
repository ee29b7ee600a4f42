// The controls with a class of their own: which kind is made by which class.
#include "forms/FormImpl.h"
#include "forms/controls/ListView.h"
#include "forms/controls/ProgressScale.h"
#include "forms/controls/RatingPicture.h"
#include "forms/controls/TreeView.h"

namespace sonaro {

std::unique_ptr<FormControl> FormImpl::MakeView(const ControlRow& row) {
  switch (row.kind) {
    case ControlKind::ListView:
      return std::make_unique<ListView>(window, row.id, *this);
    case ControlKind::TreeView:
      return std::make_unique<TreeView>(window, row.id, *this);
    case ControlKind::Rating:
      return std::make_unique<RatingPicture>(window, row.id, *this, TextOf(row.text));
    case ControlKind::Progress:
      return std::make_unique<ProgressScale>(window, row.id, *this);
    default:
      return nullptr;
  }
}

}  // namespace sonaro
