#include "forms/HeaderEdges.h"

#include <windowsx.h>

#include <algorithm>

#include "forms/FormWindow.h"
#include "forms/controls/ListView.h"
#include "settings/CReg.h"

namespace sonaro {
namespace {

constexpr int kReach = 4;  // to either side of an edge
constexpr int kLeast = 40;
constexpr int kKeyStep = 8;

int IndexOf(const std::vector<ControlInstance*>& headers, const ControlInstance& header) {
  return static_cast<int>(std::ranges::find(headers, &header) - headers.begin());
}

}  // namespace

std::vector<ControlInstance*> HeaderEdges::Headers() const {
  std::vector<ControlInstance*> headers;
  if (!form_.Design().keptColumns) return headers;
  for (ControlInstance& item : form_.Controls().All()) {
    if (item.KindOf() == ControlKind::HeaderButton) headers.push_back(&item);
  }
  return headers;
}

void HeaderEdges::ReadShares() {
  dragged_ = -1;
  shares_.clear();
  if (!context_.settings || !form_.Design().keptColumns) return;
  const auto isHeader = [](const ControlRow& row) { return row.kind == ControlKind::HeaderButton; };
  const auto columns = static_cast<std::size_t>(std::ranges::count_if(form_.Design().controls, isHeader));
  const std::string text = context_.settings->Get(*form_.Design().keptColumns);
  shares_ = ReadColumnShares(text, columns).value_or(ColumnShares());
}

void HeaderEdges::KeepShares() const {
  if (!context_.settings || shares_.empty()) return;
  const std::string text = WriteColumnShares(shares_);
  const setting::Text& name = *form_.Design().keptColumns;
  if (context_.settings->Get(name) != text) context_.settings->Set(name, text);
}

void HeaderEdges::Arrange() const {
  if (shares_.empty()) return;
  const std::vector<ControlInstance*> headers = Headers();
  const int start = headers.front()->place.left;
  const int width = headers.back()->place.right - start;
  const std::vector<int> edges = EdgesOf(shares_, width, form_.Theme().Px(kLeast));
  int left = start;
  for (std::size_t i = 0; i < headers.size(); ++i) {
    headers[i]->place.left = left;
    headers[i]->place.right = left = start + edges[i];
  }
}

int HeaderEdges::EdgeUnder(const ControlInstance& header, int x) const {
  const std::vector<ControlInstance*> headers = Headers();
  const int index = IndexOf(headers, header);
  const int count = static_cast<int>(headers.size());
  const int reach = form_.Theme().Px(kReach);
  if (index == count) return -1;
  if (x < reach) return index - 1;
  return x >= header.place.Width() - reach && index + 1 < count ? index : -1;
}

// The form has the mouse while an edge is dragged: a place in the button would move with the button.
bool HeaderEdges::HandleHeader(const ControlInstance& header, UINT message, LPARAM lParam) {
  POINT at = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (message == WM_SETCURSOR) {
    GetCursorPos(&at);
    ScreenToClient(header.window, &at);
  }
  const int edge = EdgeUnder(header, at.x);
  if (edge < 0) return false;
  if (message == WM_SETCURSOR) {
    SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32644)));
  } else if (message == WM_LBUTTONDBLCLK) {
    Fit(edge);
  } else {
    dragged_ = edge;
    grip_ = Headers()[static_cast<std::size_t>(edge)]->place.right - (header.place.left + at.x);
    SetCapture(form_.Window());
  }
  return true;
}

bool HeaderEdges::HandleDrag(UINT message, LPARAM lParam) {
  if (dragged_ < 0) return false;
  if (message == WM_MOUSEMOVE) {
    MoveEdge(dragged_, GET_X_LPARAM(lParam) + grip_);
  } else if (message == WM_LBUTTONUP) {
    ReleaseCapture();
  } else if (message == WM_CAPTURECHANGED) {  // after the release, or when another window takes the mouse
    dragged_ = -1;
    KeepShares();
  } else {
    return false;
  }
  return true;
}

bool HeaderEdges::RunKey(const ControlInstance& focused, WPARAM key) {
  const std::vector<ControlInstance*> headers = Headers();
  if ((key != VK_LEFT && key != VK_RIGHT) || headers.size() < 2) return false;
  const int index = IndexOf(headers, focused);
  const int count = static_cast<int>(headers.size());
  if (index == count) return false;
  const int edge = std::min(index, count - 2);
  const int step = form_.Theme().Px(kKeyStep);
  MoveEdge(edge, headers[static_cast<std::size_t>(edge)]->place.right + (key == VK_LEFT ? -step : step));
  KeepShares();
  return true;
}

// An empty list has nothing to be fitted to.
void HeaderEdges::Fit(int edge) {
  const ControlInstance& header = *Headers()[static_cast<std::size_t>(edge)];
  const ListView* list = form_.Controls().ListBelow(header);
  const int needed = list ? list->WidthBelowHeader(edge) : 0;
  if (needed == 0) return;
  MoveEdge(edge, header.place.left + needed);
  KeepShares();
}

// `to` in client pixels of the form. An edge that stays must not change the shares, which were perhaps made
// in a larger window.
void HeaderEdges::MoveEdge(int edge, int to) {
  const std::vector<ControlInstance*> headers = Headers();
  if (to == headers[static_cast<std::size_t>(edge)]->place.right) return;
  const int start = headers.front()->place.left;
  std::vector<int> edges;
  for (const ControlInstance* header : headers) edges.push_back(header->place.right - start);
  shares_ = MoveColumnEdge(shares_.empty() ? SharesOf(edges) : shares_, static_cast<std::size_t>(edge),
                           to - start, edges.back(), form_.Theme().Px(kLeast));
  form_.Controls().PlaceHeaders(form_.Theme());
}

}  // namespace sonaro
