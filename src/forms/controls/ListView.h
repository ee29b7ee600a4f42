// A report list drawn in the faceplate's way: the system's list view in owner-data mode, so that 40,000 rows
// are there at once and screen readers read every cell, with its own painting and scroll bar. Rows live in a
// ListModel; header buttons stand over it and belong to the form. Made by Form for rows of kind ListView.
#pragma once

#include <windows.h>

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "forms/controls/ScrolledView.h"
#include "forms/controls/ToolTips.h"

namespace sonaro {

// What is drawn at the end of a row's first text.
struct RowMarks {
  bool star = false;   // a filled star
  bool offer = false;  // an empty one as long as the pointer or the selection is on the row
  bool sound = false;  // of the row that was played last
};

// What a list shows. Rows count from 0.
class ListModel {
 public:
  virtual ~ListModel() = default;
  virtual int RowCount() const = 0;
  virtual std::string Cell(int row, int column) const = 0;
  // The first row from `from` on, wrapping round, whose first cell begins with the text, letter case ignored;
  // -1: none. For models whose cells cost something to be read.
  virtual int FindRow(const std::string& start, int from) const;
  virtual int Symbol(int /*row*/) const { return -1; }  // reliability 0 to 4; -1: none
  virtual RowMarks Marks(int /*row*/) const { return {}; }
  // What the marks say, for screen readers: read behind the row's last text.
  virtual std::string MarksSpoken(int /*row*/) const { return {}; }
  // The one row only says that there is nothing: it is drawn as the picture of an empty list.
  virtual bool IsNotice() const { return false; }
};

class ListView final : public ScrolledView {
 public:
  ListView(HWND form, int id, FormServices& services);
  ~ListView() override;

  // Widths in design pixels; the last column takes the rest of the list. Names are for screen readers.
  struct Column {
    std::string name;
    int width = 0;
    bool rightAligned = false;
    bool figure = false;  // a number beside the texts: small and muted
  };
  void SetColumns(std::vector<Column> columns);
  // Right edges in pixels from the left end of the list's place, for columns below header buttons: they count
  // instead of the widths. A column of figures stands below the right end of the header before it.
  void SetColumnEdges(std::vector<int> edges);
  // How wide the header button must be, in pixels, for the texts of the rows in sight below it; 0: no rows.
  int WidthBelowHeader(int header) const;
  // Rows with a reliability symbol keep its place free before the first column's text.
  void SetModel(const ListModel* model, bool withSymbols);
  // Lines between the columns; there unless told otherwise.
  void SetColumnLines(bool lines) { columnLines_ = lines; }
  // What an empty list says: a heading and one line of help. Without a heading it stays blank.
  void SetEmptyText(std::string heading, std::string help);
  // Rows in design pixels high; 22 unless told otherwise. Before the first rows.
  void SetRowHeight(int design);

  // The model's rows changed: takes their number and paints anew, redrawing switched off meanwhile.
  void RowsChanged();
  // Shift, Ctrl and Ctrl+A select several rows from now on; one at a time unless told so. The event
  // ItemSelected then comes after every change, with the row that Selected() gives.
  void AllowSeveral();
  // The focused row when it is selected, else the first that is; -1: none.
  int Selected() const;
  int SelectedCount() const;
  std::vector<int> SelectedRows() const;  // ascending
  // These alone; the focus stays where it is. Raises no event.
  void SelectRows(std::span<const int> rows);
  void SelectAll();  // with the event, as Ctrl+A
  // Selects one row only and scrolls it into view; -1: none. Raises no event.
  void Select(int row);
  // After a fill that chooses nothing: no row is selected, and the keys go on from the first, which is in
  // sight.
  void SelectNone();
  void RepaintRows();
  int RowAt(POINT screen) const;  // -1: none
  RECT RowBox(int row) const;     // client pixels of the form

  void MoveTo(const RECT& place) override;
  void ThemeChanged() override;
  bool OnNotify(NMHDR& notice, LRESULT& result) override;

 private:
  LRESULT HandleHooked(UINT message, WPARAM wParam, LPARAM lParam) override;
  void PlaceColumns();
  int ColumnEdge(std::size_t column) const;
  int HeaderOf(std::size_t column) const;
  void UseRowHeight();
  void SyncScrollBar() override;
  void ScrollTo(int first) override;
  void RepaintRow(int row);
  void SetHover(int row);
  bool HitsStar(int row, LPARAM pointer) const;
  RECT StarBox(const RECT& row) const;
  int PaintMarks(HDC dc, int row, const RECT& box, bool selected, bool focused) const;
  int MarksWidth(const RowMarks& marks) const;
  void ShowTipAt(LPARAM pointer);
  int FocusedRow() const;  // -1: none
  int RowUnder(LPARAM pointer) const;
  LRESULT FocusOnly();
  LRESULT PassOnGathering(UINT message, WPARAM wParam, LPARAM lParam);
  void SelectByKey(WPARAM key, LPARAM lParam);
  void Deselect(int row);
  void ChangeMany(std::span<const int> rows, UINT state);
  bool SelectsOne() const;
  void PaintBelowRows(HDC dc) const;
  void PaintEmpty(HDC dc, const RECT& box) const;
  void PaintEmptyScale(HDC dc, int centre, int line) const;
  void PaintRow(HDC dc, int row) const;
  void PaintColumnLines(HDC dc, int top, int bottom) const;
  void PaintCells(HDC dc, int row, const RECT& box, bool selected, bool focused) const;
  LRESULT CustomDraw(const NMLVCUSTOMDRAW& draw) const;
  void ItemChanged(const NMLISTVIEW& change);
  void OnGetDispInfo(NMLVDISPINFOW& info) const;
  LRESULT FindTyped(const NMLVFINDITEMW& find) const;
  void ShowContextMenu(POINT screen);
  RECT ItemBox(int row) const;
  RECT TextBox(std::size_t column, const RECT& row) const;

  std::unique_ptr<CellTip> tip_;
  HIMAGELIST rowHeight_ = nullptr;  // an empty picture as high as a row
  const ListModel* model_ = nullptr;
  bool withSymbols_ = false;
  bool columnLines_ = true;
  std::vector<Column> columns_;
  std::vector<int> headers_;  // SetColumnEdges
  std::vector<int> edges_;    // right edges of the columns, pixels
  std::string emptyHeading_;
  std::string emptyHelp_;
  int designRow_ = 22;
  int hover_ = -1;
  bool quiet_ = false;  // selecting by program
  bool byKey_ = false;  // a key is being dealt with
  bool several_ = false;
  bool many_ = false;       // being selected or deselected in one go
  bool gathering_ = false;  // a key or click may change several rows
  bool changed_ = false;    // it has
};

}  // namespace sonaro
