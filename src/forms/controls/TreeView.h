// A tree drawn in the faceplate's way: the system's tree view with its own painting and scroll bar. Nodes
// have a text, a figure at the right end, and a number of the owner's, which is the row of a ContextMenu
// event. A click on a root opens it as well. Made by Form for rows of kind TreeView.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/controls/ScrolledView.h"

namespace sonaro {

class TreeView final : public ScrolledView {
 public:
  TreeView(HWND form, int id, FormServices& services);
  ~TreeView() override;

  // Between the two nothing is redrawn.
  void BeginFill();
  void EndFill();
  void Clear();
  // Adds a node as the last child of `parent` (nullptr: a root). `figure` is a number as text, or "".
  HTREEITEM Add(HTREEITEM parent, std::string_view text, std::string_view figure, int data);
  void SetFigure(HTREEITEM node, std::string_view figure);
  int Data(HTREEITEM node) const;  // -1 for nullptr
  HTREEITEM Selected() const;
  void Select(HTREEITEM node);  // no event
  void Expand(HTREEITEM node, bool expanded = true);

  void MoveTo(const RECT& place) override;
  bool OnNotify(NMHDR& notice, LRESULT& result) override;

 private:
  struct Node {
    std::wstring figure;
    int data = 0;
  };

  LRESULT HandleHooked(UINT message, WPARAM wParam, LPARAM lParam) override;
  void SyncScrollBar() override;
  void ScrollTo(int first) override;
  void Press(POINT at);
  void Toggle(HTREEITEM node);
  void ShowContextMenu(POINT screen);
  void SetHover(HTREEITEM node);
  HTREEITEM NodeAt(POINT client) const;
  bool OnMark(HTREEITEM node, POINT at) const;  // the plus or minus of a node with children
  bool IsExpanded(HTREEITEM node) const;
  int LevelOf(HTREEITEM node) const;
  RECT BoxOf(HTREEITEM node) const;
  const Node* NodeOf(HTREEITEM node) const;
  void PaintNode(HDC dc, HTREEITEM node) const;
  void PaintMark(HDC dc, HTREEITEM node, const RECT& box, int left) const;
  void RepaintNode(HTREEITEM node);

  std::vector<Node> nodes_;  // by the system's item data
  HTREEITEM hover_ = nullptr;
  bool quiet_ = false;
  std::optional<Unpainted> unpainted_;  // during a fill
};

}  // namespace sonaro
