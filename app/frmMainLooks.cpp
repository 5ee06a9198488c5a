// How the main window looks: texts, display settings, resolution and layout.
#include <algorithm>
#include <utility>
#include <vector>

#include "app/frmMain.h"
#include "platform/win32/Icons.h"
#include "resources/icons.h"
#include "resources/resource.h"

namespace tessera {

namespace {

constexpr COLORREF Aqua = RGB(0, 255, 255);

/// Goes with a drop of files; the headers do not name it.
constexpr UINT CopyGlobalData = 0x0049;

/// What a control of the panel needs beside its text, for 96 pixels an inch.
constexpr int BoxMarkWidth = 22;
constexpr int BoxFocusHeight = 4;
constexpr int PanelMargin = 10;
constexpr int ItemGap = 12;
constexpr int ChooserWidth = 150;
constexpr int AllKeysIconSize = 16;

/// First-run size of the settings file; what a window that starts maximised is restored to.
constexpr int RestoredWidthTwips = 10000;
constexpr int RestoredHeightTwips = 7000;

BOOL CALLBACK AddScreen(HMONITOR monitor, HDC /*context*/, RECT* /*area*/, LPARAM screens) {
  MONITORINFO information{};
  information.cbSize = sizeof information;
  if (GetMonitorInfoW(monitor, &information) != FALSE) {
    const RECT& work = information.rcWork;
    auto& areas = *reinterpret_cast<std::vector<Area>*>(screens);
    const Area area{work.left, work.top, work.right - work.left, work.bottom - work.top};
    const bool primary = (information.dwFlags & MONITORINFOF_PRIMARY) != 0;
    areas.insert(primary ? areas.begin() : areas.end(), area);
  }
  return TRUE;
}

/// The work areas of all screens, the primary one first.
std::vector<Area> Screens() {
  std::vector<Area> screens;
  EnumDisplayMonitors(nullptr, nullptr, AddScreen, reinterpret_cast<LPARAM>(&screens));
  return screens;
}

void PlaceLater(HDWP& places, HWND control, const Area& area) {
  places = DeferWindowPos(places, control, nullptr, area.Left, area.Top, area.Width, area.Height,
                          SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void frmMain::CreateControls() {
  translatorsBrush_.reset(CreateSolidBrush(Aqua));
  CreateCommandList();
  CreatePanel();
  CreateToolbars();
  ProgressBar1_ = CreateControl(window_, PROGRESS_CLASSW, 0, 0, IDC_ProgressBar1);
  SetWindowPos(ProgressBar1_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  // A program of lower rights, as the desktop is for an elevated window, may drop files too.
  for (const UINT message : {UINT{WM_DROPFILES}, UINT{WM_COPYDATA}, CopyGlobalData}) {
    ChangeWindowMessageFilterEx(window_, message, MSGFLT_ALLOW, nullptr);
  }
}

void frmMain::ApplyLanguage() {
  SetRightToLeft(window_, editor_.Language().RightToLeft());
  BuildMenus();
  LabelToolbars();
  LabelColumns();
  LabelPanel();
}

void frmMain::ApplyDpi() {
  const auto showIcon = [this](WPARAM kind, int metric, Unique<HICON>& shown) {
    const int size = GetSystemMetricsForDpi(metric, static_cast<UINT>(dpi_));
    Unique<HICON> icon = LoadIconOfSize(IDI_TESSERA, size);
    SendMessageW(window_, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon.get()));
    shown = std::move(icon);
  };
  showIcon(ICON_BIG, SM_CXICON, icon_);
  showIcon(ICON_SMALL, SM_CXSMICON, smallIcon_);
  Unique<HICON> allKeys = LoadIconOfSize(IDI_ALLKEYS, Scaled(AllKeysIconSize, dpi_));
  SendMessageW(cmdAllList_, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(allKeys.get()));
  allKeysIcon_ = std::move(allKeys);
  LoadToolbarImages();
  LoadListImages();
  ApplyFonts();
}

void frmMain::ApplyFonts() {
  const LOGFONTW messageFont = MessageFont(dpi_, editor_.Options().FontScript);
  Unique<HFONT> font(CreateFontIndirectW(&messageFont));
  const auto give = [&font](HWND control) { GiveFont(control, font.get()); };
  give(lblHotkey_);
  std::ranges::for_each(chkCtrlAlt_, give);
  give(Combo1_);
  give(Toolbar1_);
  give(Toolbar2_);
  frmKeysList_.ApplyFont(font.get(), dpi_);
  font_ = std::move(font);
  ApplyListFont();
  LayOutPanel();
}

void frmMain::ApplyDisplaySettings() {
  const Settings& settings = editor_.Options();
  const bool border = settings.FixedBorders != 0;
  const bool raised = settings.FlatUserInterface == 0;
  SetStyleBits(ListView1_, GWL_STYLE, WS_BORDER, border && !raised);
  SetStyleBits(ListView1_, GWL_EXSTYLE, WS_EX_CLIENTEDGE, border && raised);
  // The two settings reach the toolbar crosswise, deliberately.
  SetStyleBits(Toolbar1_, GWL_STYLE, WS_BORDER, raised && !border);
  SetStyleBits(Toolbar1_, GWL_EXSTYLE, WS_EX_STATICEDGE, raised && border);
  const DWORD lines = settings.CommandListShowLines != 0 ? LVS_EX_GRIDLINES : 0;
  // A mirrored list may draw its texts mirrored too while it is buffered.
  const DWORD buffer = editor_.Language().RightToLeft() ? 0 : LVS_EX_DOUBLEBUFFER;
  ListView_SetExtendedListViewStyle(ListView1_, LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP |
                                                    buffer | LVS_EX_INFOTIP | LVS_EX_LABELTIP |
                                                    lines);
  ListView_SetTextColor(ListView1_, ColourOf(settings.ForegroundColor));
  ListView_SetBkColor(ListView1_, ColourOf(settings.BackgroundColor));
  ListView_SetTextBkColor(ListView1_, ColourOf(settings.BackgroundColor));
  InvalidateRect(ListView1_, nullptr, TRUE);
  LayOut();
}

void frmMain::ApplyPlacement() {
  const Settings& settings = editor_.Options();
  if (settings.MainWindowMaxmized == 1) {
    SetWindowPos(window_, nullptr, 0, 0, TwipsToPixels(RestoredWidthTwips, dpi_),
                 TwipsToPixels(RestoredHeightTwips, dpi_),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return;
  }
  // Moving to another screen may change the resolution, and with it what the twips stand for.
  int dpi = 0;
  for (int attempt = 0; attempt < 2 && dpi != dpi_; ++attempt) {
    dpi = dpi_;
    // The system makes no window smaller: where it then reaches decides whether it can be reached.
    const SIZE smallest = SmallestSize();
    const Area stored{TwipsToPixels(settings.MainWindowLeft, dpi_),
                      TwipsToPixels(settings.MainWindowTop, dpi_),
                      std::max<int>(TwipsToPixels(settings.MainWindowWidth, dpi_), smallest.cx),
                      std::max<int>(TwipsToPixels(settings.MainWindowHeight, dpi_), smallest.cy)};
    const Area area = MakeReachable(stored, Screens(), dpi_);
    SetWindowPos(window_, nullptr, area.Left, area.Top, area.Width, area.Height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  }
  placed_ = WindowArea(window_);
}

WindowPlacement frmMain::CurrentPlacement() const {
  const Settings& stored = editor_.Options();
  const Area area = WindowArea(window_);
  WindowPlacement placement{.Minimised = IsIconic(window_) != FALSE,
                            .Maximised = IsZoomed(window_) != FALSE};
  // A window that nobody moved goes back to where it came from, also when its screen was missing.
  if (area == placed_) {
    placement.Left = stored.MainWindowLeft;
    placement.Top = stored.MainWindowTop;
    placement.Width = stored.MainWindowWidth;
    placement.Height = stored.MainWindowHeight;
  } else {
    placement.Left = PixelsToTwips(area.Left, dpi_, stored.MainWindowLeft);
    placement.Top = PixelsToTwips(area.Top, dpi_, stored.MainWindowTop);
    placement.Width = PixelsToTwips(area.Width, dpi_, stored.MainWindowWidth);
    placement.Height = PixelsToTwips(area.Height, dpi_, stored.MainWindowHeight);
  }
  return placement;
}

Area frmMain::InnerArea() const {
  RECT inside{};
  GetClientRect(window_, &inside);
  return {0, 0, inside.right, inside.bottom};
}

void frmMain::LayOut() {
  if (ProgressBar1_ == nullptr || IsIconic(window_) != FALSE) {
    return;
  }
  const Area inner = InnerArea();
  const int toolbarHeight = ToolbarHeight();
  const MainLayout layout =
      LayOutMainWindow(inner.Width, inner.Height, toolbarHeight, frameHeight_);
  ShowWindow(Toolbar1_, toolbarHeight > 0 ? SW_SHOWNA : SW_HIDE);
  HDWP places = BeginDeferWindowPos(4);
  PlaceLater(places, Toolbar1_, layout.Toolbar1);
  PlaceLater(places, ListView1_, layout.ListView1);
  PlaceLater(places, Frame1_, layout.Frame1);
  PlaceLater(places, ProgressBar1_, Centred(layout.ListView1, Scaled(320, dpi_), Scaled(18, dpi_)));
  EndDeferWindowPos(places);
}

void frmMain::LayOutPanel() {
  const auto scaled = [this](int pixels) { return Scaled(pixels, dpi_); };
  const Area chooser = WindowArea(Combo1_);
  SIZE buttons{};
  SendMessageW(Toolbar2_, TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&buttons));
  const std::array<HWND, 6> controls{lblHotkey_,     chkCtrlAlt_[0], chkCtrlAlt_[1],
                                     chkCtrlAlt_[2], Combo1_,        Toolbar2_};
  std::vector<RowItem> items;
  const Texts& texts = editor_.Language();
  for (const TextId id : {TextId::Hotkey, TextId::ControlBox, TextId::AltBox, TextId::ShiftBox}) {
    const SIZE text = TextSize(window_, font_.get(), texts.GetLangText(id));
    if (items.empty()) {
      items.push_back({scaled(PanelMargin), text.cx, text.cy});
    } else {
      items.push_back(
          {scaled(ItemGap), text.cx + scaled(BoxMarkWidth), text.cy + scaled(BoxFocusHeight)});
    }
  }
  items.push_back({scaled(ItemGap), scaled(ChooserWidth), chooser.Height});
  items.push_back({scaled(ItemGap), buttons.cx, buttons.cy});
  frameHeight_ = std::max<int>(chooser.Height, buttons.cy) + scaled(16);
  const std::vector<Area> areas = LayOutRow(items, frameHeight_);
  for (std::size_t index = 0; index < controls.size(); ++index) {
    const Area& area = areas[index];
    SetWindowPos(controls[index], nullptr, area.Left, area.Top, area.Width, area.Height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  }
  const Area button = PlaceAllKeysButton(areas[4], dpi_);
  SetWindowPos(cmdAllList_, HWND_TOP, button.Left, button.Top, button.Width, button.Height,
               SWP_NOACTIVATE);
  panelWidth_ = areas.back().Left + areas.back().Width + scaled(PanelMargin);
}

SIZE frmMain::SmallestSize() const {
  RECT frame{0, 0, panelWidth_ + Scaled(10, dpi_), frameHeight_ + Scaled(160, dpi_)};
  AdjustWindowRectExForDpi(&frame, WS_OVERLAPPEDWINDOW, TRUE, 0, static_cast<UINT>(dpi_));
  // Texts of any length must not make the window larger than its screen.
  const Area screen = WorkArea(window_);
  return {std::min<LONG>(frame.right - frame.left, screen.Width),
          std::min<LONG>(frame.bottom - frame.top, screen.Height)};
}

void frmMain::ShowProgress(const LoadProgress& progress) {
  if (progress.Visible()) {
    SendMessageW(ProgressBar1_, PBM_SETRANGE32, 0, progress.Maximum());
    SendMessageW(ProgressBar1_, PBM_SETPOS, static_cast<WPARAM>(progress.Value()), 0);
  }
  if ((IsWindowVisible(ProgressBar1_) != FALSE) != progress.Visible()) {
    ShowWindow(ProgressBar1_, progress.Visible() ? SW_SHOWNA : SW_HIDE);
    SetCursor(LoadCursorW(nullptr, progress.Visible() ? IDC_WAIT : IDC_ARROW));
  }
}

bool frmMain::IsTranslatorsControl(LPARAM control) const {
  const HWND window = reinterpret_cast<HWND>(control);
  return window == lblHotkey_ || std::ranges::find(chkCtrlAlt_, window) != chkCtrlAlt_.end();
}

LRESULT frmMain::ColourControl(WPARAM wParam) const {
  SetBkColor(reinterpret_cast<HDC>(wParam), Aqua);
  return reinterpret_cast<LRESULT>(translatorsBrush_.get());
}

}  // namespace tessera
