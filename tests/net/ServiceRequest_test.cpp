#include "net/ServiceRequest.h"

#include <gtest/gtest.h>

#include "base/http/HttpRequest.h"
#include "net/NetWorld.h"
#include "net/ProxyDetection.h"
#include "net/ServiceUrlTable.h"
#include "net/UpdateFormat.h"

namespace sonaro {
namespace {

class ServiceRequestTest : public testing::Test {
 protected:
  ServiceRequestTest() {
    reg_.CheckKeyIsThere(kSettingsKey);
    reg_.SetSetting(setting::kInstallId.name, "a b\xE9\x05");
  }
  void UseProxy(const char* use, const char* address, const char* port) {
    reg_.SetSetting(setting::kProxyUse.name, use);
    reg_.SetSetting(setting::kProxyAddress.name, address);
    reg_.SetSetting(setting::kProxyPort.name, port);
  }

  FakeRegistry registry_;
  CReg reg_{registry_};
};

TEST_F(ServiceRequestTest, SplitsUrlsWithoutAProxy) {
  const struct {
    const char* url;
    const char* host;
    const char* target;
  } kCases[] = {
      {"http://www.x.org/a/b.asp", "www.x.org", "/a/b.asp"},
      {"http://www.x.org", "www.x.org", "/"},
      {"http://www.x.org/", "www.x.org", "/"},
      {"http://www.x.org:8080/a?u=//y/z", "www.x.org:8080", "/a?u=//y/z"},
      {"www.x.org/a", "", "/"},
      {"", "", "/"},
  };
  UseProxy("Y", "proxy", "3128");
  for (const auto& [host, name] : {std::pair{"www.x.org:8080", "www.x.org"},
                                   {"www.x.org", "www.x.org"},
                                   {"[::1]:8080", "::1"},
                                   {"::1", "::1"},
                                   {"[", ""},
                                   {"", ""}}) {
    EXPECT_EQ(HostWithoutPort(host), name) << host;
  }
  for (const auto& each : kCases) {
    EXPECT_EQ(ServerHostFor(reg_, each.url), each.host) << each.url;
    EXPECT_EQ(RequestTargetFor(reg_, each.url), each.target) << each.url;
  }
  const ServiceRequest request = BuildServiceRequest(reg_, "http://www.x.org/a", "?q");
  EXPECT_EQ(request.requestText, "GET /a?q");
  EXPECT_EQ(request.port, 80);
  EXPECT_EQ(request.proxy, "");
}

TEST_F(ServiceRequestTest, AsksAProxyForTheWholeUrl) {
  UseProxy("yes ", " proxy ", " 3128 ");
  const ServiceRequest request = BuildServiceRequest(reg_, "http://www.x.org/a", "?q");
  EXPECT_EQ(request.host, "proxy");
  EXPECT_EQ(request.port, 3128);
  EXPECT_EQ(request.requestText, "GET http://www.x.org/a?q");
  EXPECT_EQ(request.proxy, "http://proxy:3128");
  for (const char* port : {"", "abc", "0", "-1", "65536", "99999999999999999999"}) {
    UseProxy("YES", "proxy", port);
    EXPECT_EQ(ProxyPortSetting(reg_), 80) << port;
  }
}

TEST_F(ServiceRequestTest, BeginsTheQueryWithTheInstallation) {
  EXPECT_EQ(QueryStart(reg_), "?ajfsfsr=a+b%E9%5");
}

TEST(ServiceAnswer, FindsTheRedirectTarget) {
  const struct {
    const char* headers;
    const char* target;
  } kCases[] = {
      {"HTTP/1.1 302 Found\r\nLocation: http://a/b\r\nServer: x\r\n\r\n", "http://a/b"},
      {"HTTP/1.1 302 Found\r\nServer: x\r\nLocation: http://a/b\r\n", "http://a/b"},
      {"HTTP/1.1 302 Found\r\nX-Location: http://a/b\r\n\r\n", ""},
      {"HTTP/1.1 302 Found\r\nLocation: \r\n\r\n", ""},
      {"\nLocation: \n", ""},
      {"\nLocation: http://a", ""},
      {"", ""},
  };
  for (const auto& each : kCases) EXPECT_EQ(RedirectTarget(each.headers), each.target) << each.headers;
}

class ServiceUrlTableTest : public ServiceRequestTest {};

TEST_F(ServiceUrlTableTest, FillsInWhatIsEmpty) {
  reg_.SetSetting("HelpURL", "http://kept/");
  WriteServiceDefaults(reg_);
  EXPECT_EQ(reg_.Setting("HelpURL"), "http://kept/");
  EXPECT_EQ(reg_.Setting("UpdateURL"),
            "http://www.sonaro.example/sonaroapp/sonaro4vf/asp/appupdate/update.asp");
  EXPECT_EQ(reg_.Setting("ProxyTestText"), "cool proxy works!");
  EXPECT_EQ(reg_.Setting("SearchShowURL"),
            "http://search.sonaro.example/sonaroapp/sonaro3/asp/searchshows/searchshows.asp?sSearchWords=");
  EXPECT_EQ(reg_.Setting("PersonalPage").substr(0, 25), "http://db.sonaro.example/");
  EXPECT_EQ(reg_.Setting("SchedOnNowInfoURL").substr(0, 31), "http://stations.sonaro.example/");
  EXPECT_EQ(reg_.Setting("sLocal"), "");
}

// Nothing that one could call good comes of a store that cannot be written.
TEST_F(ServiceUrlTableTest, DoesWithoutAStoreThatCanBeWritten) {
  const std::string page = "http://www.sonaro.example/sonaroapp/sonaro3/asp/proxy/test.asp";
  registry_.writesDenied = true;
  EXPECT_EQ(StoredServiceSetting(reg_, setting::kProxyTest), page);
  EXPECT_EQ(StoredServiceSetting(reg_, setting::kProxyTestText), "cool proxy works!");
  registry_.writesDenied = false;
  EXPECT_EQ(StoredServiceSetting(reg_, setting::kProxyTest), page);
  EXPECT_EQ(reg_.Setting(setting::kProxyTest.name), page);
  reg_.SetSetting(setting::kProxyTest.name, "http://kept/");
  EXPECT_EQ(StoredServiceSetting(reg_, setting::kProxyTest), "http://kept/");
}

TEST_F(ServiceUrlTableTest, FindsEveryKeyOfALine) {
  const struct {
    const char* line;
    const char* found;  // setting=value;...
    std::size_t refused;
  } kCases[] = {
      {"::HelpURL::http://a/::", "HelpURL=http://a/;", 0},
      {"x::OwnURL::http://a/::OwnURLGet::http://b::y", "OwnURL=http://a/;OwnURLGet=http://b;", 0},
      {"::HelpURL::::", "", 0},
      {"::HelpURL::http://a/", "", 0},
      {"::AdLocation::http://ads/::", "GetAdsHere=http://ads/;", 0},
      {"::PriacyPol::http://p/::", "PriacyPol=http://p/;", 0},
      {"::NumberAds::12::sLocal::409|809::", "NumberOfAds=12;sLocal=409|809;", 0},
      {"::ProxyTestText::it works!::", "ProxyTestText=it works!;", 0},
      {"::HelpURL::file:///c/x::UpdateURL::http://u v/::LiveUpdate::https://x/::", "", 3},
      {"::UpdateURL::http:///x::", "", 1},
      {"::SearchShowURL::http://a/::", "", 0},
  };
  for (const auto& each : kCases) {
    std::vector<ServiceValue> values;
    std::size_t refused = 0;
    FindServiceValues(each.line, values, refused);
    std::string found;
    for (const ServiceValue& value : values) found += std::string(value.setting) + "=" + value.value + ";";
    EXPECT_EQ(found, each.found) << each.line;
    EXPECT_EQ(refused, each.refused) << each.line;
  }
}

constexpr const char* kInternetKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
constexpr const char* kDefaultUserKey =
    ".Default\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";

TEST(ProxyDetection, ReadsTheBrowserOfTheSystem) {
  const std::string_view kOne("\x01\0\0\0", 4);
  const std::string_view kZero("\0\0\0\0", 4);
  const struct {
    std::string_view enabledByDefault, enabled;
    const char* server;
    const char* defaultServer;
    const char* proxy;
  } kCases[] = {
      {"", "", "proxy:3128", "", ""},
      {kZero, kZero, "proxy:3128", "", ""},
      {"", kOne, "proxy:3128", "other:1", "proxy:3128"},
      {kOne, "", "", "other:1", "other:1"},
      {kZero, kOne, "http=proxy:8080;ftp=other:21", "", "proxy:8080"},
      {"", "1", "https=s:1;http=proxy:8080", "", "proxy:8080"},
      {"", "1", "ftp=a:21;socks=b:1080", "", "ftp=a:21"},
      {"", "1", "proxyhost", "", "proxyhost"},
      {"", "1", "proxy\r:3128", "", ""},
      {"", "1", "", "", ""},
  };
  for (const auto& each : kCases) {
    FakeRegistry registry;
    CReg reg(registry);
    registry.Put(RootKey::Users, kDefaultUserKey, "ProxyEnable", each.enabledByDefault);
    registry.Put(RootKey::CurrentUser, kInternetKey, "ProxyEnable", each.enabled);
    registry.Put(RootKey::CurrentUser, kInternetKey, "ProxyServer", each.server);
    registry.Put(RootKey::Users, kDefaultUserKey, "ProxyServer", each.defaultServer);
    EXPECT_EQ(DetectIeProxy(reg), each.proxy) << each.server << each.defaultServer;
    EXPECT_EQ(reg.MainKey(), RootKey::LocalMachine);
  }
}

TEST(ProxyDetection, ReadsTheOtherBrowsersPreferences) {
  const struct {
    const char* preferences;
    const char* proxy;
  } kCases[] = {
      {"// x\r\nuser_pref(\"network.proxy.http\", \"proxy\");\r\nuser_pref(\"network.proxy.http_port\", "
       "8080);\r\n",
       "proxy:8080"},
      {"user_pref(\"network.proxy.http_port\",8080);\nuser_pref(\"network.proxy.http\", \" proxy\");",
       "proxy:8080"},
      {"user_pref(\"network.proxy.http\", \"proxy\");\n", ""},
      {"user_pref(\"network.proxy.http\", \"proxy\");\nuser_pref(\"network.proxy.http_port\", 80\r80);\n",
       ""},
      {"user_pref(\"network.proxy.http_port\", 8080);\n", ""},
      {"user_pref(\"network.proxy.http\",\nuser_pref(\"network.proxy.http_port\",", ""},
      {"", ""},
  };
  for (const auto& each : kCases) {
    FakeRegistry registry;
    CReg reg(registry);
    FakeFiles files;
    registry.Put(RootKey::LocalMachine, "SOFTWARE\\Netscape\\Netscape Navigator\\Users", "CurrentUser", "me");
    registry.Put(RootKey::LocalMachine, "SOFTWARE\\Netscape\\Netscape Navigator\\Users\\me", "DirRoot", "/n");
    EXPECT_EQ(DetectNetscapeProxy(reg, files), "");
    files.Put("/n\\prefs.js", each.preferences);
    EXPECT_EQ(DetectNetscapeProxy(reg, files), each.proxy) << each.preferences;
  }
}

}  // namespace
}  // namespace sonaro
