// The search form in the left column, and what the middle shows of a search of the web. Part of SonaroFrm.
#pragma once

#include <cstddef>

namespace sonaro {

class Form;
class SearchPanel;

class SearchPane {
 public:
  SearchPane(Form& form, SearchPanel& search) : form_(form), search_(search) {}

  void Load();
  void ShowHistory();
  void ShowWebSearch();
  // The first chosen of the first five kinds, otherwise the sixth.
  std::size_t ChosenKind() const;
  bool AllWords() const;

 private:
  Form& form_;
  SearchPanel& search_;
};

}  // namespace sonaro
