// Writes the whole web site of the service: what installations fetch under "public", and the configuration of
// a web server for it. Every file is put in place as a whole, the configuration last, so that a site that is
// in use never leads to an update that is not there.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/DataFolder.h"

namespace sonaro {

struct SiteOptions {
  std::string date;
  std::string secretKey;    // "" for an update that nobody signs
  std::int64_t serial = 0;  // of a signed update: when it is published, in seconds since 1970
  std::string host;         // told to the installations; "" leaves them with the host that they have
  std::string listen = "80";
};

struct SiteResult {
  std::string failure;  // one sentence, or ""
  std::size_t files = 0;
  std::size_t updateBytes = 0;
  std::size_t changes = 0;           // earlier dates from which changes lead to this guide
  std::vector<std::string> leftOut;  // files of the folder that an update cannot carry
};

// The configuration of a web server for the published site: static files, and one redirect that tells an
// installation whether there is anything newer than what it has.
struct NginxSite {
  std::string listen;        // "80", "127.0.0.1:8080"
  std::string serverName;    // answers requests that name no host, too
  std::string updateScript;  // paths on the host, each beginning with "/"
  std::string updateFile;
  struct Changes {
    std::string date;  // of the directory that they start from
    std::string file;
  };
  std::vector<Changes> changes;  // for installations that read them
  std::string nothingNewFile;
  std::string date;  // of the directory, as installations keep it
};

// A whole configuration: nginx -p FOLDER -c nginx.conf, where FOLDER holds it and "public", the root of the
// files. It needs no rights beyond those to the folder and the port.
std::string NginxConfig(const NginxSite& site);

// The pages that the program opens in the browser, made of the texts in site/pages, which are part of the
// tool. One of site/pages: "9018.html" and its text, whose first line is the title.
struct PageSource {
  std::string_view name;
  std::string_view text;
};

// All texts, in the order of their names; embedded.cpp.in.
const std::vector<PageSource>& PageSources();
std::string_view PageStyle();  // style.css

struct WebPage {
  std::string name;
  std::string html;
};

// Every help page, "index.html" with its table of contents among them, and "privacy.html". All use the style
// that lies at the address `style`.
std::vector<WebPage> HelpSite(std::string_view style);

// Writes the help pages where the program looks for them before it asks the site. "", or one sentence about
// what was not written.
std::string WriteHelpPages(DataFolder& data);

// `directory` is a data folder, `site` the folder to write to.
SiteResult WriteSite(DataFolder& directory, DataFolder& site, const SiteOptions& options);

}  // namespace sonaro
