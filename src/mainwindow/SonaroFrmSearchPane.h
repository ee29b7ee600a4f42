// The search form in the left column, and what the middle shows of a search of the web. Part of SonaroFrm.
#pragma once

#include "mainwindow/MainPane.h"

namespace sonaro {

class SearchPane final : public EventTarget {
 public:
  explicit SearchPane(const MainContext& context)
      : context_(context), form_(context.form), search_(context.models.search) {}

  void Load();
  void ShowWebSearch();
  // Shows the stations that fit best to what stands in the words by now.
  void TakeTyped();

 private:
  std::span<const EventRow> Events() const override;
  void ShowHistory();
  // The first chosen of the first five kinds, otherwise the sixth.
  std::size_t ChosenKind() const;
  void txtQuickSearch_Change() { context_.view.Typed(); }
  void FindStation();
  void butPinSearch_Click();
  void ShowPinned() const;
  void butWebOpen_Click();

  const MainContext& context_;
  Form& form_;
  SearchPanel& search_;
  ComboBox txtQuickSearch_{form_, txtQuickSearch};
  RadioButton optSearch_{form_, optSearch};  // all words; the other one any word
  ControlArray<RadioButton> optSearchType_{form_, optSearchType, static_cast<int>(SearchPanel::kMaxKinds)};
  ToggleButton butPinSearch_{form_, butPinSearch};
  Label lblWebAsked_{form_, lblWebAsked};
  Edit lblWebAddress_{form_, lblWebAddress};
  Label lblListing_{form_, lblListing};
  Label lblCount_{form_, lblCount};
  std::vector<std::string> shownSearches_;
  std::string taken_;  // the words that the list shows something of
};

}  // namespace sonaro
