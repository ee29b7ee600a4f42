// A tree drawn in the faceplate's way: the system's tree view with its own painting and scroll bar. Nodes
// have a text, a figure at the right end, and a number of the owner's. Made by Form for rows of kind
// TreeView.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <string_view>
#include <vector>

#include "forms/FormControl.h"
#include "forms/ScrollBar.h"

namespace sonaro {

class TreeView final : public FormControl {
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

  HWND Window() const override { return tree_; }
  void MoveTo(const RECT& place) override;
  void SetShown(bool shown) override;
  void ThemeChanged() override;
  bool OnNotify(NMHDR& notice, LRESULT& result) override;

 private:
  struct Node {
    std::wstring figure;
    int data = 0;
  };

  static LRESULT CALLBACK Subclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                   DWORD_PTR data) noexcept;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void SyncScrollBar();
  void ScrollTo(int first);
  void Press(POINT at);
  void Toggle(HTREEITEM node);
  void SetHover(HTREEITEM node);
  HTREEITEM NodeAt(POINT client) const;
  int LevelOf(HTREEITEM node) const;
  RECT BoxOf(HTREEITEM node) const;
  const Node* NodeOf(HTREEITEM node) const;
  void PaintNode(HDC dc, HTREEITEM node) const;
  void PaintMark(HDC dc, HTREEITEM node, const RECT& box, int left) const;
  void Repaint(HTREEITEM node);

  FormServices& services_;
  const int id_;
  HWND tree_ = nullptr;
  ScrollBar bar_;
  std::vector<Node> nodes_;  // by the system's item data
  HTREEITEM hover_ = nullptr;
  int width_ = 0;  // visible part
  bool quiet_ = false;
};

}  // namespace sonaro
