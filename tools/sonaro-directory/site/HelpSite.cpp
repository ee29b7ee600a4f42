#include "site/WriteSite.h"

#include <map>

#include "base/Text.h"
#include "settings/HelpPages.h"

namespace sonaro {
namespace {

constexpr std::string_view kFrontPage = "index.html";
constexpr std::string_view kPrivacyPage = "privacy.html";
// A page is its title, a line feed and the HTML of its body. The mark stands in the front page where the list
// of all other pages goes.
constexpr std::string_view kContents = "<!--contents-->\n";

std::string_view TitleOf(const PageSource& page) { return page.text.substr(0, page.text.find('\n')); }

std::string_view BodyOf(const PageSource& page) { return page.text.substr(page.text.find('\n') + 1); }

// All pages by their titles, as a list of links.
std::string Contents() {
  std::map<std::string_view, std::string_view> names;
  for (const PageSource& page : PageSources()) {
    if (page.name != kFrontPage && page.name != kPrivacyPage) names.emplace(TitleOf(page), page.name);
  }
  std::string list = "<ul>\n";
  for (const auto& [title, name] : names)
    list.append("<li><a href=\"").append(name).append("\">").append(title).append("</a></li>\n");
  return list.append("</ul>\n");
}

std::string HtmlOf(const PageSource& page, std::string_view style) {
  const std::string_view title = TitleOf(page);
  std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n";
  html.append("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
  html.append("<meta name=\"color-scheme\" content=\"light dark\">\n");
  html.append("<title>").append(title).append(" - Sonaro</title>\n");
  html.append("<link rel=\"stylesheet\" href=\"").append(style).append("\">\n</head>\n<body>\n");
  html.append("<header>Sonaro");
  if (page.name != kFrontPage && page.name != kPrivacyPage)
    html.append("<nav><a href=\"index.html\">All help pages</a></nav>");
  html.append("</header>\n<main>\n<h1>").append(title).append("</h1>\n");
  html.append(ReplaceFirst(BodyOf(page), kContents, Contents()));
  return html.append("</main>\n</body>\n</html>\n");
}

}  // namespace

std::vector<WebPage> HelpSite(std::string_view style) {
  std::vector<WebPage> pages;
  for (const PageSource& page : PageSources()) pages.push_back({std::string(page.name), HtmlOf(page, style)});
  return pages;
}

// Without the privacy page: it is the service's, and the program asks for it at its address.
std::string WriteHelpPages(DataFolder& data) {
  constexpr std::string_view kStyle = "style.css";
  std::vector<WebPage> files = HelpSite(kStyle);
  std::erase_if(files, [](const WebPage& page) { return page.name == kPrivacyPage; });
  files.push_back({std::string(kStyle), std::string(PageStyle())});
  const std::string folder = data.Path(kHelpFolder.substr(0, kHelpFolder.size() - 1));
  if (!data.FileSystem().MakeFolder(folder)) return "Cannot make the folder \"" + folder + "\".";
  for (const WebPage& file : files) {
    const std::string name = std::string(kHelpFolder) + file.name;
    if (!data.Save(name, file.html)) return "Cannot write \"" + data.Path(name) + "\".";
  }
  return {};
}

}  // namespace sonaro
