// A form with the main window's list and tree, and a log of their events.
#pragma once

#include <string>
#include <vector>

#include "forms/controls/Controls.h"
#include "forms/controls/ListView.h"

namespace sonaro {

// Stations made up from a row's number; as many as asked for.
class MadeUpStations final : public ListModel {
 public:
  explicit MadeUpStations(int count) : count_(count) {}
  void SetCount(int count) { count_ = count; }
  int RowCount() const override { return count_; }
  std::string Cell(int row, int column) const override;
  int Symbol(int row) const override { return (row * 7 + 4) % 5; }

 private:
  int count_;
};

class ViewsForm final : public Form {
 public:
  enum Number { kTree = 5210, kList = 5211 };

  ViewsForm(FormContext& context, MadeUpStations& stations);
  void FillTree();

  std::vector<std::string> log;  // one entry for each event: "ItemActivated 3", "NodeClick 12"
  ListHandle list{*this, kList};
  TreeHandle tree{*this, kTree};

 private:
  static const FormDesign& Design();
  std::span<const EventRow> Events() const override;
  void OnLoad() override;
  void List_ItemActivate(int row) { Note("ItemActivated", row); }
  void List_ItemSelect(int row) { Note("ItemSelected", row); }
  void List_ContextMenu(int row, POINT) { Note("ContextMenu", row); }
  void Tree_NodeClick(HTREEITEM node);
  void Note(const std::string& what, int number) { log.push_back(what + " " + std::to_string(number)); }

  MadeUpStations& stations_;
};

}  // namespace sonaro
