// The fakes of the start that note what happens, in order, in one journal.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/Startup.h"
#include "fakes/FakeMessageBox.h"
#include "fakes/FakeMessagePost.h"
#include "fakes/FakeRegistry.h"
#include "fakes/FakeSystemInfo.h"
#include "settings/HelpPages.h"

namespace sonaro {

// What happened, in order, over all the fakes: what was shown, asked and written.
using Journal = std::vector<std::string>;

class JournalRegistry : public FakeRegistry {
 public:
  explicit JournalRegistry(Journal& journal) : journal_(journal) {}
  bool CreateKey(RootKey root, const std::string& key) override {
    journal_.push_back("create key");
    return FakeRegistry::CreateKey(root, key);
  }
  bool WriteValue(RootKey root, const std::string& key, const std::string& name, ValueType type,
                  std::string_view bytes) override {
    journal_.push_back("write " + name + (name == "InstallId" ? "" : "=" + std::string(bytes)));
    return FakeRegistry::WriteValue(root, key, name, type, bytes);
  }

 private:
  Journal& journal_;
};

class JournalMessages : public FakeMessagePost {
 public:
  explicit JournalMessages(Journal& journal) : journal_(journal) {}
  bool WindowExists(const std::string& caption) override {
    journal_.push_back("look for " + caption);
    return FakeMessagePost::WindowExists(caption);
  }
  bool EarlierInstanceRuns() override {
    journal_.push_back("earlier instance?");
    return FakeMessagePost::EarlierInstanceRuns();
  }

 private:
  Journal& journal_;
};

class JournalView : public StartupView, public StartupExchange, public FakeMessageBox, public WebBrowser {
 public:
  explicit JournalView(Journal& journal) : journal_(journal) {}
  bool proxyFound = false;
  std::string exitAfter;    // the happening during which the user chooses Exit
  std::string noWindowFor;  // what the system refuses a window for

  void ShowSplash(bool shown) override { journal_.push_back(shown ? "splash" : "close splash"); }
  bool GoesOn(double done) override {
    EXPECT_GT(done, done_);
    done_ = done;
    return exitAfter.empty() || std::find(journal_.begin(), journal_.end(), exitAfter) == journal_.end();
  }
  bool LoadFaceplate() override {
    done_ = 0;
    return Window("faceplate");
  }
  void ShowStartUpInfo(StartUpInfoPage page) override {
    journal_.push_back(page == StartUpInfoPage::Player ? "page Player" : "page Proxy");
  }
  bool LoadMainWindow() override { return Window("load main"); }
  void StoreAddresses() override { journal_.push_back("addresses"); }
  bool ProxyFound() override {
    journal_.push_back("find proxy");
    return proxyFound;
  }
  void FinishUndo() override {}
  void ShowMainWindow() override { journal_.push_back("show main"); }
  MessageResult Ask(const Message& message) override {
    journal_.push_back("ask " + message.key);
    return FakeMessageBox::Ask(message);
  }
  void OpenWebPage(const std::string& textOrKey) override {
    journal_.push_back("open " + textOrKey.substr(textOrKey.rfind('/') + 1));
  }

 private:
  bool Window(const std::string& of) {
    journal_.push_back(of);
    return of != noWindowFor;
  }

  Journal& journal_;
  double done_ = 0;
};

}  // namespace sonaro
