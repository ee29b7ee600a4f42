#include <algorithm>
#include <set>
#include <string>

#include "base/DataFolder.h"
#include "base/Text.h"
#include "base/http/HttpRequest.h"
#include "base/http/HttpResponse.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"
#include "fuzz/Targets.h"
#include "net/ProxyDetection.h"
#include "net/ServiceRequest.h"
#include "net/UpdateChanges.h"
#include "net/UpdateFile.h"
#include "net/UpdateFormat.h"
#include "net/WhatIsNew.h"
#include "settings/CReg.h"
#include "settings/SettingNames.h"

namespace sonaro {

// The first byte is the size of the pieces; whatever it is, the same comes out.
void FuzzHttpResponse(std::string_view input) {
  if (input.empty()) return;
  const std::size_t piece = 1 + static_cast<unsigned char>(input.front());
  input.remove_prefix(1);
  HttpResponse whole;
  whole.Feed(input);
  const auto expected = whole.EndOfStream();
  HttpResponse pieces;
  for (std::size_t at = 0; at < input.size(); at += piece) pieces.Feed(input.substr(at, piece));
  Require(pieces.EndOfStream() == expected, "the same outcome");
  if (expected != HttpResponse::State::Complete) return;
  Require(pieces.StatusCode() == whole.StatusCode() && whole.StatusCode().size() == 3, "the same status");
  Require(pieces.Headers() == whole.Headers(), "the same headers");
  Require(pieces.Body() == whole.Body(), "the same body");
}

void FuzzUpdateFile(std::string_view input) {
  FakeFiles files;
  files.MakeFolder("/d");
  files.Put("/d/update.txt", input);
  DataFolder data(files, "/d", '/');
  UpdateContents contents = ReadUpdateFile(data).Finish();
  Require(contents.status == UpdateFileStatus::Read, "read without a key");
  std::set<std::string> names;
  std::size_t bytes = 0;
  for (const ReceivedFile& file : contents.files) {
    Require(update::MayBringFile(file.name), "a name that an update may bring");
    Require(names.insert(FoldCase(file.name)).second, "each name once");
    bytes += file.bytes.size();
  }
  Require(names.size() <= update::kMaxSections && bytes <= update::kMaxBytes, "bounded");
  Require(contents.values.size() <= 20, "a value for each setting");
  for (const ServiceValue& value : contents.values)
    Require(!value.value.empty() && value.value.size() <= 2048, "the length of a value");
  Require(files.AllPaths() == std::vector<std::string>{"/d/update.txt"}, "no other file is touched");

  // The file that is there may be what the changes start from.
  const std::size_t before = contents.files.size();
  if (ExpandChanges(data, contents).Finish()) Require(contents.files.size() >= before, "files are added");
  (void)ApplySteps("one\r\ntwo\r\n", input, 1000);

  files.Put("/d/publish.key", "d75a980182b10ab7d54bfed3c964073a0ee172f3daa62325af021a68f707511a\n");
  const UpdateFileStatus guarded = ReadUpdateFile(data).Finish().status;
  Require(guarded == UpdateFileStatus::NotSigned || guarded == UpdateFileStatus::WrongSign, "refused");
}

// What is sent after a redirect is one request, whatever the headers say.
void FuzzRedirect(std::string_view input) {
  const std::string target = RedirectTarget(input);
  if (!IsServiceAddress(target)) return;
  for (const char* proxy : {"", "Yes"}) {
    FakeRegistry registry;
    CReg reg(registry);
    reg.CheckKeyIsThere(kSettingsKey);
    reg.SetSetting(setting::kProxyUse.name, proxy);
    reg.SetSetting(setting::kProxyAddress.name, "127.0.0.1");
    const ServiceRequest request = BuildServiceRequest(reg, target, "?Flush=No");
    const auto bytes = HttpRequestBytes(request.host, request.port, request.requestText, "Fuzz/1.0");
    if (!bytes) continue;
    Require(bytes->starts_with("GET ") && bytes->find("\r\n\r\n") == bytes->size() - 4, "one request");
    const std::string line = bytes->substr(0, bytes->find('\r'));
    Require(line.ends_with("?Flush=No HTTP/1.0"), "the line ends as it must");
    Require(std::count(bytes->begin(), bytes->end(), '\n') == 5, "no line is added");
  }
}

// The system's setting, a zero, and the other browser's preferences.
void FuzzProxySettings(std::string_view input) {
  const std::string server(NextField(input, '\0'));
  FakeRegistry registry;
  CReg reg(registry);
  registry.Put(RootKey::CurrentUser, systemkey::kInternetSettings, systemkey::kProxyEnable, "1");
  registry.Put(RootKey::CurrentUser, systemkey::kInternetSettings, systemkey::kProxyServer, server);
  const std::string found = DetectIeProxy(reg);
  Require(server.find(found) != std::string::npos, "what is found is there");

  FakeFiles files;
  files.Put("/n\\prefs.js", input);
  registry.Put(RootKey::LocalMachine, "SOFTWARE\\Netscape\\Netscape Navigator\\Users", "CurrentUser", "me");
  registry.Put(RootKey::LocalMachine, "SOFTWARE\\Netscape\\Netscape Navigator\\Users\\me", "DirRoot", "/n");
  const std::string other = DetectNetscapeProxy(reg, files);
  Require(other.empty() || other.find(':') != std::string::npos, "host and port");
  for (const std::string& each : {found, other})
    Require(each.find_first_of(std::string_view("\0\r\n\t", 4)) == std::string::npos, "one plain line");
}

// A service's answer. The to-do list holds known marks only, and an address to fetch is one plain line.
void FuzzWhatIsNew(std::string_view input) {
  FakeFiles files;
  files.MakeFolder("/d");
  DataFolder data(files, "/d", '/');
  FakeRegistry registry;
  CReg reg(registry);
  reg.CheckKeyIsThere(kSettingsKey);
  const WhatIsNew found = CheckWhatIsNew(input, "M/d/yyyy", data, reg);
  for (const std::string_view known : {"", "/SL/", "/SF/", "/SL//SF/"}) {
    if (found.toDo != known) continue;
    Require(reg.Setting(setting::kDoWhat.name) == known, "the to-do list is stored");
    Require(found.sideFileUrl.empty() == (known.find("/SF/") == std::string_view::npos),
            "an address to fetch");
    Require(found.sideFileUrl.find_first_of(std::string_view("\0\r\n", 3)) == std::string::npos, "one line");
    return;
  }
  Require(false, "known marks only");
}

}  // namespace sonaro
