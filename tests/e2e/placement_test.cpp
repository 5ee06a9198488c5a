// The place of the window and of its columns, from one run to the next.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::placement_test {
namespace {

class PlacementTest : public EndToEndTest {
 protected:
  [[nodiscard]] RECT Place() const {
    RECT place{};
    GetWindowRect(window_->Handle(), &place);
    return place;
  }

  void ExpectFirstSize() const {
    const RECT place = Place();
    const auto dpi = static_cast<int>(GetDpiForSystem());
    EXPECT_NEAR(place.right - place.left, MulDiv(10000, dpi, 1440), 1);
    EXPECT_NEAR(place.bottom - place.top, MulDiv(7000, dpi, 1440), 1);
  }

  void WaitForPlace(const RECT& wanted) const {
    WaitFor("the window at its place", [&] {
      const RECT place = Place();
      return EqualRect(&place, &wanted) != FALSE;
    });
  }

  void MoveTo(const RECT& place) const {
    SetWindowPos(window_->Handle(), nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    WaitForPlace(place);
  }
};

TEST_F(PlacementTest, FirstRunIsCentred) {
  StartAndLoad();
  const RECT place = Place();
  const int width = place.right - place.left;
  const int height = place.bottom - place.top;
  EXPECT_NEAR(place.left, (GetSystemMetrics(SM_CXSCREEN) - width) / 2, 1);
  EXPECT_NEAR(place.top, (GetSystemMetrics(SM_CYSCREEN) - height) / 2, 1);
  ExpectFirstSize();
}

TEST_F(PlacementTest, WindowComesBackWhereItWas) {
  StartAndLoad();
  // Multiples of one twip's pixels at any DPI: nothing is lost in the conversion.
  const RECT place{120, 96, 120 + 720, 96 + 600};
  MoveTo(place);
  Close();
  StartAndLoad();
  WaitForPlace(place);
}

TEST_F(PlacementTest, MaximisedWindowComesBackMaximisedAndItsFormerPlaceStaysStored) {
  StartAndLoad();
  const RECT place{120, 96, 120 + 720, 96 + 600};
  MoveTo(place);
  Close();
  StartAndLoad();
  ShowWindow(window_->Handle(), SW_MAXIMIZE);
  WaitFor("the window to be maximised", [&] { return IsZoomed(window_->Handle()) != FALSE; });
  Close();

  const std::string settings = ReadBytes(folder_.SettingsFile());
  EXPECT_EQ(SectionValue(settings, "Tessera", "MainWindowMaxmized"), "1");
  EXPECT_EQ(SectionValue(settings, "Tessera", "MainWindowLeft"), "1800");
  StartAndLoad();
  EXPECT_NE(IsZoomed(window_->Handle()), FALSE);
  ShowWindow(window_->Handle(), SW_RESTORE);
  WaitFor("the window to be restored", [&] { return IsZoomed(window_->Handle()) == FALSE; });
  ExpectFirstSize();
}

TEST_F(PlacementTest, ColumnsComeBackAsTheyWere) {
  StartAndLoad();
  const HWND list = window_->Control(IDC_ListView1);
  const std::array<int, 4> widths{210, 90, 150, 120};
  for (std::size_t column = 0; column < widths.size(); ++column) {
    Send(list, LVM_SETCOLUMNWIDTH, column, LPARAM{widths.at(column)});
  }
  window_->SetColumnOrder({3, 0, 2, 1});
  Close();
  StartAndLoad();
  EXPECT_EQ(window_->ColumnWidths(), widths);
  EXPECT_EQ(window_->ColumnOrder(), (std::array<int, 4>{3, 0, 2, 1}));
}

TEST_F(PlacementTest, WhatWasNotMovedIsStoredAsItWas) {
  // No whole numbers of pixels, and a place on a screen that is no longer there.
  const std::vector<std::pair<std::string, std::string>> stored{
      {"MainWindowLeft", "30001"},
      {"MainWindowTop", "1007"},
      {"MainWindowWidth", "10007"},
      {"MainWindowHeight", "7001"},
      {"ColumnHeadersSize", "1007,2008,3001,1004"}};
  std::string text = "[Tessera]\r\n";
  for (const auto& [name, value] : stored) text += name + '=' + value + "\r\n";
  WriteBytes(folder_.SettingsFile(), text);
  StartAndLoad();
  Close();
  for (const auto& [name, value] : stored) EXPECT_EQ(Setting(name), value) << name;
}

TEST_F(PlacementTest, HiddenToolbarStaysHidden) {
  StartAndLoad();
  window_->Command(IDM_mnuViewToolbar);
  WaitFor("the toolbar to be hidden", [&] { return !window_->Visible(IDC_Toolbar1); });
  Close();
  StartAndLoad();
  EXPECT_FALSE(window_->Visible(IDC_Toolbar1));
}

TEST_F(PlacementTest, WindowStoredOutsideTheScreenCanBeReached) {
  WriteBytes(folder_.SettingsFile(),
             "[Tessera]\r\nMainWindowLeft=-32000\r\nMainWindowTop=32000\r\n"
             "MainWindowWidth=9000\r\nMainWindowHeight=7500\r\n");
  StartAndLoad();
  const RECT place = Place();
  EXPECT_NE(MonitorFromRect(&place, MONITOR_DEFAULTTONULL), nullptr);
}

}  // namespace
}  // namespace tessera::e2e::placement_test
