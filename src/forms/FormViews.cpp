// The controls with a class of their own: which kind is made by which class, and the way to them.
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

// A number of another kind is a mistake in the form's own code: the cast throws, and the window goes on.
ListView& Form::List(int id) { return dynamic_cast<ListView&>(parts_->ViewOf(id)); }
TreeView& Form::Tree(int id) { return dynamic_cast<TreeView&>(parts_->ViewOf(id)); }
RatingPicture& Form::Rating(int id) { return dynamic_cast<RatingPicture&>(parts_->ViewOf(id)); }
ProgressScale& Form::Progress(int id) { return dynamic_cast<ProgressScale&>(parts_->ViewOf(id)); }

}  // namespace sonaro
