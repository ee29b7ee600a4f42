// Windows are cut to the polygons of the faceplate's point file, at every resolution.
#include <cmath>

#include "MainWindowTest.h"

namespace sonaro::desktop {
namespace {

// The line of the point file that begins with the key, as a region on a screen of `dotsPerInch`.
HRGN RegionOfFile(const std::string& file, const std::string& key, int dotsPerInch) {
  const std::size_t line = file.find(key + "=");
  if (line == std::string::npos) return nullptr;
  const std::size_t begin = line + key.size() + 1;
  const std::string points = file.substr(begin, file.find('\r', begin) - begin);
  std::vector<POINT> corners;
  for (std::size_t i = 0; i + 10 <= points.size(); i += 10) {
    const auto scaled = [&](std::size_t at) {
      return static_cast<LONG>(std::nearbyint(std::stoi(points.substr(at, 5)) * dotsPerInch / 96.0));
    };
    corners.push_back({scaled(i), scaled(i + 5)});
  }
  return CreatePolygonRgn(corners.data(), static_cast<int>(corners.size()), WINDING);
}

class OutlineTest : public MainWindowTest {
 protected:
  void ExpectOutline(HWND window, const std::string& key, int dotsPerInch) {
    HRGN wanted = RegionOfFile(ReadFile("Depot\\sshape.pts"), key, dotsPerInch);
    ASSERT_NE(wanted, nullptr) << key;
    HRGN found = CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(GetWindowRgn(window, found), COMPLEXREGION) << key;
    EXPECT_TRUE(EqualRgn(found, wanted)) << key << " at " << dotsPerInch;
    DeleteObject(found);
    DeleteObject(wanted);
  }
};

TEST_F(OutlineTest, WindowsHaveThePolygonsOfTheFile) {
  for (const int dotsPerInch : {96, 120}) {
    SetDotsPerInch(static_cast<DWORD>(dotsPerInch));
    HWND main = StartAndShowMain();
    Command(main, mnuScan);
    HWND scan = Dialog("frmScan");
    ExpectOutline(scan, "scf72", dotsPerInch);
    ExpectOutline(main, "maf98", dotsPerInch);
    Command(main, mnuExit);
    EXPECT_TRUE(Running().WaitForEnd().has_value());
  }
}

}  // namespace
}  // namespace sonaro::desktop
