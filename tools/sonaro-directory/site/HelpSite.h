// The pages that the program opens in the browser, made of the texts in site/pages, which are part of the
// tool.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// One of site/pages: "9018.html" and its text, whose first line is the title.
struct PageSource {
  std::string_view name;
  std::string_view text;
};

// All texts, in the order of their names; pages.cpp.in.
const std::vector<PageSource>& PageSources();
std::string_view PageStyle();  // style.css

struct WebPage {
  std::string name;
  std::string html;
};

// Every help page, "index.html" with its table of contents among them, and "privacy.html". All use the style
// that lies at the address `style`.
std::vector<WebPage> HelpSite(std::string_view style);

}  // namespace sonaro
