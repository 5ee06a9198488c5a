// The command list. Messages with pointers take them into the program's own memory, laid out by the
// constants below.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <algorithm>
#include <iterator>
#include <memory>

#include "resources/resource.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/MainWindow.h"
#include "tests/support/win32/Program.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e {
namespace {

constexpr std::size_t Columns = 4;
constexpr std::size_t CellLength = 256;  // characters with the terminator

/// What LVM_GETITEMTEXT takes and fills, for many rows: the program's memory is slow to reach.
constexpr int RowsAtOnce = 128;
using Text = std::array<wchar_t, CellLength>;
using Requests = std::array<std::array<LVITEMW, Columns>, RowsAtOnce>;
using Answers = std::array<std::array<Text, Columns>, RowsAtOnce>;
constexpr std::size_t TextsAt = sizeof(Requests);
static_assert(TextsAt + sizeof(Answers) <= MainWindow::MemoryBytes);

}  // namespace

int MainWindow::RowCount() const {
  return static_cast<int>(Send(Control(IDC_ListView1), LVM_GETITEMCOUNT));
}

RowTexts MainWindow::Row(int position) const { return ReadRows(position, 1).front(); }

std::vector<RowTexts> MainWindow::Rows() const {
  std::vector<RowTexts> rows;
  const int count = RowCount();
  for (int first = 0; first < count; first += RowsAtOnce) {
    std::ranges::move(ReadRows(first, std::min(RowsAtOnce, count - first)),
                      std::back_inserter(rows));
  }
  return rows;
}

std::vector<RowTexts> MainWindow::ReadRows(int first, int count) const {
  const auto rows = static_cast<std::size_t>(count);
  auto requests = std::make_unique<Requests>();
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < Columns; ++column) {
      LVITEMW& item = (*requests)[row][column];
      item.iSubItem = static_cast<int>(column);
      item.cchTextMax = CellLength;
      item.pszText =
          static_cast<wchar_t*>(memory_.At(TextsAt + (row * Columns + column) * sizeof(Text)));
    }
  }
  memory_.Write(requests.get(), rows * sizeof requests->front());

  const HWND list = Control(IDC_ListView1);
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < Columns; ++column) {
      Send(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(first) + row,
           memory_.At((row * Columns + column) * sizeof(LVITEMW)));
    }
  }
  auto answers = std::make_unique<Answers>();
  memory_.Read(answers.get(), rows * sizeof answers->front(), TextsAt);
  std::vector<RowTexts> texts;
  for (std::size_t row = 0; row < rows; ++row) {
    const auto& [description, command, defaults, current] = (*answers)[row];
    texts.push_back({description.data(), command.data(), defaults.data(), current.data()});
  }
  return texts;
}

void MainWindow::LookFirst(const std::vector<RowTexts>& rows) const {
  positions_.clear();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    positions_.emplace(rows[row][1], static_cast<int>(row));
  }
}

int MainWindow::FindCommand(const std::wstring& command) const {
  // Reading every row takes a second: a row mostly is where it was seen last.
  const auto isAt = [&](int position) { return Row(position)[1] == command; };
  const auto seen = positions_.find(command);
  if (seen != positions_.end() && seen->second < RowCount() && isAt(seen->second)) {
    return seen->second;
  }
  LookFirst(Rows());
  const auto found = positions_.find(command);
  return found == positions_.end() ? -1 : found->second;
}

int MainWindow::SelectedRow() const {
  return static_cast<int>(
      Send(Control(IDC_ListView1), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

int MainWindow::FindItem(UINT flags, const std::wstring& text) const {
  LVFINDINFOW search{};
  search.flags = flags;
  search.psz = static_cast<const wchar_t*>(memory_.At(TextsAt));
  memory_.Put(search);
  memory_.Write(text.c_str(), (text.size() + 1) * sizeof(wchar_t), TextsAt);
  return static_cast<int>(
      Send(Control(IDC_ListView1), LVM_FINDITEMW, static_cast<WPARAM>(-1), memory_.At()));
}

HeaderShows MainWindow::Header(int column) const {
  HDITEMW item{};
  item.mask = HDI_TEXT | HDI_FORMAT | HDI_IMAGE;
  item.cchTextMax = CellLength;
  item.pszText = static_cast<wchar_t*>(memory_.At(TextsAt));
  memory_.Put(item);
  const HWND list = Control(IDC_ListView1);
  const auto header = reinterpret_cast<HWND>(Send(list, LVM_GETHEADER));
  Send(header, HDM_GETITEMW, static_cast<WPARAM>(column), memory_.At());
  item = memory_.Get<HDITEMW>();
  const auto text = memory_.Get<Text>(TextsAt);
  return {text.data(), (item.fmt & HDF_IMAGE) != 0, item.iImage};
}

bool MainWindow::HeaderHasOwnImages() const {
  const HWND list = Control(IDC_ListView1);
  const auto header = reinterpret_cast<HWND>(Send(list, LVM_GETHEADER));
  const LRESULT ofHeader = Send(header, HDM_GETIMAGELIST);
  return ofHeader != 0 && ofHeader != Send(list, LVM_GETIMAGELIST, LVSIL_SMALL);
}

std::array<int, 4> MainWindow::ColumnWidths() const {
  std::array<int, Columns> widths{};
  for (std::size_t column = 0; column < widths.size(); ++column) {
    widths.at(column) = static_cast<int>(Send(Control(IDC_ListView1), LVM_GETCOLUMNWIDTH, column));
  }
  return widths;
}

std::array<int, 4> MainWindow::ColumnOrder() const {
  Send(Control(IDC_ListView1), LVM_GETCOLUMNORDERARRAY, Columns, memory_.At());
  return memory_.Get<std::array<int, Columns>>();
}

RECT MainWindow::CellRectangle(int position, int column) const {
  // The message takes the column and the part of the cell in the rectangle that it fills.
  const RECT asked{LVIR_BOUNDS, column, 0, 0};
  return RectangleBy(Control(IDC_ListView1), LVM_GETSUBITEMRECT, static_cast<WPARAM>(position),
                     asked);
}

RECT MainWindow::IconRectangle(int position) const {
  return RectangleBy(Control(IDC_ListView1), LVM_GETITEMRECT, static_cast<WPARAM>(position),
                     {LVIR_ICON, 0, 0, 0});
}

std::wstring MainWindow::CellTip() const { return TipIn(IDC_ListView1); }

std::wstring MainWindow::TipIn(int control) const { return TipOf(Control(control), 1); }

std::wstring MainWindow::TipOfButton(int button) const {
  return TipOf(Control(IDC_Frame1), reinterpret_cast<UINT_PTR>(Control(button)));
}

std::wstring MainWindow::TipOf(HWND window, UINT_PTR id) const {
  for (const HWND tip : VisibleWindows(ProcessId(), TOOLTIPS_CLASSW)) {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = window;
    tool.uId = id;
    tool.lpszText = static_cast<wchar_t*>(memory_.At(TextsAt));
    memory_.Put(tool);
    memory_.Put(Text{}, TextsAt);
    Send(tip, TTM_GETTEXTW, CellLength, memory_.At());
    const auto text = memory_.Get<Text>(TextsAt);
    if (text.front() != L'\0') return text.data();
  }
  return {};
}

void MainWindow::ClickRow(int position) {
  BringToFront(Handle());
  Send(Control(IDC_ListView1), LVM_ENSUREVISIBLE, static_cast<WPARAM>(position));
  Click(CenterOf(CellRectangle(position, 1)));
  WaitFor("row " + std::to_string(position) + " to be selected",
          [&] { return SelectedRow() == position; });
}

void MainWindow::SelectByAutomation(int position) {
  SetRowState(position, LVIS_SELECTED | LVIS_FOCUSED);
}

void MainWindow::FocusByAutomation(int position) { SetRowState(position, LVIS_FOCUSED); }

void MainWindow::SetRowState(int position, UINT state) {
  LVITEMW item{};
  item.stateMask = state;
  item.state = state;
  memory_.Put(item);
  Send(Control(IDC_ListView1), LVM_SETITEMSTATE, static_cast<WPARAM>(position), memory_.At());
}

void MainWindow::SetColumnOrder(const std::array<int, 4>& order) {
  memory_.Put(order);
  Send(Control(IDC_ListView1), LVM_SETCOLUMNORDERARRAY, order.size(), memory_.At());
}

void MainWindow::ClickHeader(int column) {
  BringToFront(Handle());
  const auto header = reinterpret_cast<HWND>(Send(Control(IDC_ListView1), LVM_GETHEADER));
  Click(CenterOf(RectangleBy(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), RECT{})));
}

}  // namespace tessera::e2e
