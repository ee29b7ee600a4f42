#include "mainwindow/SonaroFrmFilterPane.h"

#include <algorithm>

#include "mainwindow/SonaroFrm_panes.h"
#include "resources/texts/mainwindow.h"
#include "settings/Strings.h"

namespace sonaro {
namespace {

using FilterPart = StationFilter::Part;

constexpr int kAnyTexts[] = {IDS_FILTER_ANY_PLACE, IDS_FILTER_ANY_GENRE, IDS_FILTER_ANY_RATE};

}  // namespace

std::span<const EventRow> FilterPane::Events() const {
  static const EventRow kRows[] = {
      {cmbListFilter, SelChange, &FilterPane::cmbListFilter_Change, kBoxes},
      {butEndListFilter, Click, &FilterPane::butEndListFilter_Click, kBoxes},
      {butOnlyAnswering, Click, &FilterPane::butOnlyAnswering_Click},
  };
  return kRows;
}

void FilterPane::Show(bool shown) {
  form_.ShowPane(kFilterPane, shown);
  if (!shown) return;
  if (values_[0].empty()) FillBoxes();  // files are read for those only who look for them
  for (int box = 0; box < kBoxes; ++box) ShowBox(box);
  butOnlyAnswering_.SetActive(!filter_.Value(FilterPart::Answers).empty());
}

void FilterPane::GuideChanged() {
  filter_.GuideChanged();
  values_ = {};
}

void FilterPane::FillBoxes() {
  butOnlyAnswering_.SetTip(form_.LoadText(IDS_FILTER_ANSWERS_TIP));
  for (int box = 0; box < kBoxes; ++box) {
    std::vector<std::string>& values = values_[static_cast<std::size_t>(box)];
    const auto add = [&](const std::string& text, std::string value) {
      cmbListFilter_[box].AddItem(text);
      values.push_back(std::move(value));
    };
    cmbListFilter_[box].ClearItems();
    values.clear();
    add(form_.LoadText(kAnyTexts[box]), "");
    if (static_cast<FilterPart>(box) == FilterPart::BitRate) {
      for (const int rate : StationFilter::kBitRates) {
        add(FormatText(form_.LoadText(IDS_FILTER_RATE), {std::to_string(rate)}), std::to_string(rate));
      }
    } else {
      for (StationFilter::Choice& choice : filter_.Choices(static_cast<FilterPart>(box)))
        add(choice.text, std::move(choice.value));
    }
    cmbListFilter_[box].FitListToTexts();
  }
}

// A region that was chosen in the tree, or a place that the guide has no longer, has no row until it is
// shown.
void FilterPane::ShowBox(int box) {
  std::vector<std::string>& values = values_[static_cast<std::size_t>(box)];
  const std::string& value = filter_.Value(static_cast<FilterPart>(box));
  auto found = std::find(values.begin(), values.end(), value);
  if (found == values.end()) {
    cmbListFilter_[box].AddItem(StationFilter::ShortText(value));
    found = values.insert(values.end(), value);
  }
  cmbListFilter_[box].SelectItem(static_cast<int>(found - values.begin()));
  if (static_cast<FilterPart>(box) != FilterPart::BitRate)
    cmbListFilter_[box].SetTip(value);  // whole, and the way to it
  butEndListFilter_[box].Show(!value.empty());
}

void FilterPane::Set(FilterPart part, std::string_view value) {
  filter_.Set(part, value);
  context_.models.listing.FilterChanged();
  context_.view.ShowEverything();
}

// Comes with every step of the arrow keys through a box, too: the box stays, so that they can go on.
void FilterPane::cmbListFilter_Change(int box) {
  const std::vector<std::string>& values = values_[static_cast<std::size_t>(box)];
  const auto row = static_cast<std::size_t>(cmbListFilter_[box].SelectedItem());
  if (row < values.size()) Set(static_cast<FilterPart>(box), values[row]);
}

void FilterPane::butEndListFilter_Click(int box) {
  cmbListFilter_[box].Focus();  // before its own window goes
  Set(static_cast<FilterPart>(box), "");
}

void FilterPane::butOnlyAnswering_Click() {
  Set(FilterPart::Answers, filter_.Value(FilterPart::Answers).empty() ? "1" : "");
}

}  // namespace sonaro
