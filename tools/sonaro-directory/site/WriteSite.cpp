#include "site/WriteSite.h"

#include <algorithm>

#include "base/crypto/Signing.h"
#include "net/ServiceUrlTable.h"
#include "net/UpdateFormat.h"
#include "settings/ServiceHosts.h"
#include "settings/SettingNames.h"
#include "site/PublishedGuides.h"
#include "site/UpdateText.h"

namespace sonaro {
namespace {

// Part of the addresses of the help pages, which installations have built in.
constexpr std::string_view kHelpEdition = "/2/";
constexpr std::string_view kPrivacyName = "privacy.html";
constexpr std::size_t kDigitsOfName = 16;

// The path of a service's address on its host. Where installations look is decided by the defaults built into
// them, and the site is laid out after these.
std::string PathOf(const setting::Text& address) {
  const std::string url = ServiceDefault(address);
  return url.substr(url.find('/', std::string_view("http://").size()));
}

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

// The addresses that this site answers.
std::vector<ServiceLine> ServiceLines(const std::string& host) {
  if (host.empty()) return {};
  const auto line = [&host](const char* key, const setting::Text& address) {
    return ServiceLine{key, "http://" + host + PathOf(address)};
  };
  // The spelling of the last key is the one that installations read.
  return {line("::UpdateURL::", setting::kUpdateUrl), line("::ProxyTest::", setting::kProxyTest),
          line("::HelpURL::", setting::kHelpUrl), line("::PriacyPol::", setting::kPrivacyPolicy)};
}

class SiteWriter {
 public:
  SiteWriter(DataFolder& site, SiteResult& result) : site_(site), result_(result) {}

  // `path` begins with "/" and lies in the site's folder.
  void Put(const std::string& path, std::string_view bytes) {
    if (!result_.failure.empty()) return;
    std::string name = path;
    for (char& c : name) c = c == '/' ? '\\' : c;
    const std::string folder = site_.Path(name.substr(0, name.rfind('\\')));
    if (!site_.FileSystem().MakeFolder(folder) || !site_.Save(name, bytes)) {
      result_.failure = "\"" + site_.Path(name) + "\" could not be written.";
    } else {
      ++result_.files;
    }
  }
  // A file that is fetched from the host.
  void PutPublic(const std::string& path, std::string_view bytes) { Put("/public" + path, bytes); }

 private:
  DataFolder& site_;
  SiteResult& result_;
};

void PutPages(SiteWriter& writer) {
  const std::string folder = PathOf(setting::kHelpUrl).append(kHelpEdition);
  const std::string style = folder + "style.css";
  writer.PutPublic(style, PageStyle());
  for (const WebPage& page : HelpSite(style)) {
    if (page.name == kPrivacyName) {
      writer.PutPublic(PathOf(setting::kPrivacyPolicy), page.html);
    } else {
      writer.PutPublic(folder + page.name, page.html);
    }
  }
}

// The files of a guide that was published before; none when its update is no longer there, or no update.
std::vector<ReceivedFile> FilesOf(DataFolder& site, const PublishedGuide& guide) {
  std::string name = "\\public" + guide.update;
  std::replace(name.begin(), name.end(), '/', '\\');
  const ReadResult file = site.Read(name);
  return file.status == ReadStatus::Ok ? ReadUpdateText(file.bytes).files : std::vector<ReceivedFile>();
}

// Another update has another name: caches on the way never mix them up.
std::string UpdateName(const std::string& folder, std::string_view bytes) {
  return folder + "update-" + Sha256Hex(bytes).substr(0, kDigitsOfName) + ".txt";
}

// Puts the changes from each earlier guide beside the whole update.
void PutChanges(DataFolder& directory, DataFolder& site, const PublishedGuides& published,
                UpdateRequest request, SiteWriter& writer, NginxSite& server) {
  for (const PublishedGuide& guide : published.Before(request.date)) {
    const std::vector<ReceivedFile> files = FilesOf(site, guide);
    if (files.empty()) continue;
    request.since = &files;
    const UpdateText changes = MakeUpdateText(directory, request);
    if (!changes.failure.empty()) continue;  // who has that guide gets the whole one
    const std::string path = UpdateName(FolderOf(server.updateScript), changes.bytes);
    writer.PutPublic(path, changes.bytes);
    server.changes.push_back({guide.date, path});
  }
}

}  // namespace

SiteResult WriteSite(DataFolder& directory, DataFolder& site, const SiteOptions& options) {
  SiteResult result;
  const UpdateRequest request{options.date, ServiceLines(options.host), options.secretKey, options.serial};
  UpdateText update = MakeUpdateText(directory, request);
  result.failure = std::move(update.failure);
  result.leftOut = std::move(update.leftOut);
  result.updateBytes = update.bytes.size();

  NginxSite server;
  server.listen = options.listen;
  server.serverName = options.host.empty() ? HostOf(ServiceHost::Web) : options.host;
  server.updateScript = PathOf(setting::kUpdateUrl);
  const std::string folder = FolderOf(server.updateScript);
  server.updateFile = UpdateName(folder, update.bytes);
  server.nothingNewFile = folder + std::string(update::kNothingNew);
  server.date = options.date;

  SiteWriter writer(site, result);
  // The update first and the configuration last: a server is not told of a file before it is there.
  writer.PutPublic(server.updateFile, update.bytes);
  PublishedGuides published(site);
  if (result.failure.empty()) PutChanges(directory, site, published, request, writer, server);
  writer.PutPublic(server.nothingNewFile, "Nothing is newer.\r\n");
  writer.PutPublic(PathOf(setting::kProxyTest), ServiceDefault(setting::kProxyTestText) + "\r\n");
  PutPages(writer);
  writer.Put("/nginx.conf", NginxConfig(server));
  std::vector<std::string> changes;
  for (const NginxSite::Changes& one : server.changes) changes.push_back(one.file);
  result.changes = changes.size();
  if (result.failure.empty() && !published.Add({options.date, server.updateFile}, changes))
    result.failure = "The list of what was published could not be saved.";
  return result;
}

}  // namespace sonaro
