// The controls with a class of their own: which kind is made by which class, and the way to them.
#include "forms/FormParts.h"
#include "forms/ListView.h"
#include "forms/ProgressScale.h"
#include "forms/RatingPicture.h"
#include "forms/TreeView.h"

namespace sonaro {

std::unique_ptr<FormControl> FormParts::MakeView(const ControlRow& row) {
  switch (row.kind) {
    case Kind::ListView:
      return std::make_unique<ListView>(window, row.id, *this);
    case Kind::TreeView:
      return std::make_unique<TreeView>(window, row.id, *this);
    case Kind::Rating:
      return std::make_unique<RatingPicture>(window, row.id, *this, TextOf(row.text));
    case Kind::Progress:
      return std::make_unique<ProgressScale>(window, row.id, *this);
    default:
      return nullptr;
  }
}

ListView& Form::List(int id) { return static_cast<ListView&>(*parts_->Find(id)->view); }
TreeView& Form::Tree(int id) { return static_cast<TreeView&>(*parts_->Find(id)->view); }
RatingPicture& Form::Rating(int id) { return static_cast<RatingPicture&>(*parts_->Find(id)->view); }
ProgressScale& Form::Progress(int id) { return static_cast<ProgressScale&>(*parts_->Find(id)->view); }

}  // namespace sonaro
