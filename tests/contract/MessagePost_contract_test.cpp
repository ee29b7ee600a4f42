#include <gtest/gtest.h>

#include "fakes/FakeMessagePost.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win/PlatformWin.h"
#endif

namespace sonaro {
namespace {

constexpr const char* kCaption = "Sonaro contract \u00E9";
using Posted = FakeMessagePost::Posted;

struct PostRecorded {
  FakeMessagePost messages;
  void OpenWindow() { messages.windows.insert(kCaption); }
  std::vector<Posted> Arrived() { return messages.posted; }
};

#ifdef _WIN32
// A window that was never shown, as the tray window is.
struct PostOnMachine {
  MessagePostWin messages;
  HWND window = nullptr;

  ~PostOnMachine() {
    if (window) DestroyWindow(window);
  }
  void OpenWindow() {
    window = CreateWindowExA(0, "STATIC", kCaption, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(window);
  }
  std::vector<Posted> Arrived() {
    std::vector<Posted> arrived;
    MSG message{};
    while (PeekMessageA(&message, window, WM_USER, 0xFFFF, PM_REMOVE)) {
      arrived.push_back({kCaption, message.message, message.wParam, message.lParam});
    }
    return arrived;
  }
};
using PostWorlds = testing::Types<PostRecorded, PostOnMachine>;
#else
using PostWorlds = testing::Types<PostRecorded>;
#endif

template <typename World>
class MessagePostContract : public testing::Test {};
TYPED_TEST_SUITE(MessagePostContract, PostWorlds);

TYPED_TEST(MessagePostContract, PostsOnlyToAWindowOfExactlyThisCaption) {
  TypeParam world;
  EXPECT_FALSE(world.messages.WindowExists(kCaption));
  EXPECT_FALSE(world.messages.PostTo(kCaption, 1793, 0, 0));
  world.OpenWindow();
  EXPECT_TRUE(world.messages.WindowExists(kCaption));
  EXPECT_FALSE(world.messages.WindowExists(std::string(kCaption) + "!"));
  EXPECT_TRUE(world.messages.PostTo(kCaption, 1793, 0, 0));
  EXPECT_TRUE(world.messages.PostTo(kCaption, 1795, 7, -1));
  EXPECT_EQ(world.Arrived(), (std::vector<Posted>{{kCaption, 1793, 0, 0}, {kCaption, 1795, 7, -1}}));
}

#ifdef _WIN32
TEST(MessagePostWin, AnInstanceKnowsTheOneBefore) {
  const std::string name = "Local\\SonaroContract" + std::to_string(GetCurrentProcessId());
  {
    MessagePostWin first(name);
    EXPECT_FALSE(first.EarlierInstanceRuns());
    EXPECT_FALSE(first.EarlierInstanceRuns());
    EXPECT_TRUE(MessagePostWin(name).EarlierInstanceRuns());
  }
  EXPECT_FALSE(MessagePostWin(name).EarlierInstanceRuns());
}
#endif

}  // namespace
}  // namespace sonaro
