// The rows and the columns of the list.
#include "app/frmCommandList.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "app/Columns.h"
#include "app/FindRow.h"
#include "app/ListCell.h"
#include "platform/win32/Guarded.h"
#include "resources/resource.h"

namespace tessera {
namespace {

constexpr UINT_PTR ListSubclass = 1;

/// Of a search by a text; the headers do not name it.
constexpr UINT SearchBySubstring = 0x0004;

/// The place of an icon among the images of rows; nothing for none.
std::optional<int> ImageOf(RowIcon icon) {
  switch (icon) {
    case RowIcon::CommentBlock:
      return 0;
    case RowIcon::HasKey:
      return 1;
    case RowIcon::None:
      break;
  }
  return std::nullopt;
}

bool IsWidthChange(const NMHDR& header) {
  if (header.code != HDN_ITEMCHANGEDW) return false;
  return (reinterpret_cast<const NMHEADERW&>(header).pitem->mask & HDI_WIDTH) != 0;
}

}  // namespace

frmCommandList::frmCommandList(const Editor& editor, Events events)
    : editor_(editor), events_(std::move(events)) {}

void frmCommandList::Create(HWND window) {
  // For screen readers, which call a control by the label before it, a hidden one too.
  lblListView1_ = CreateControl(window, WC_STATICW, IDC_lblListView1);
  ListView1_ = CreateControl(window, WC_LISTVIEWW, IDC_ListView1,
                             WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                                 LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS);
  SetWindowSubclass(ListView1_, ListProcedure, ListSubclass, reinterpret_cast<DWORD_PTR>(this));
}

void frmCommandList::SetUpColumns() {
  const ColumnLayout layout = ReadColumnLayout(editor_.Options());
  const std::array<int, 4> widths = WidthsInPixels(layout.Widths, dpi_);
  for (std::size_t column = 0; column < widths.size(); ++column) {
    LVCOLUMNW added{};
    added.mask = LVCF_SUBITEM | LVCF_FMT | LVCF_WIDTH;
    added.cx = widths[column];
    added.iSubItem = static_cast<int>(column);
    SendMessageW(ListView1_, LVM_INSERTCOLUMNW, column, reinterpret_cast<LPARAM>(&added));
  }
  std::array<int, 4> order = OrderOfPositions(layout.Positions);
  ListView_SetColumnOrderArray(ListView1_, 4, order.data());
  // The header that comes with the first column has the images of the rows.
  Header_SetImageList(ListView_GetHeader(ListView1_), ilsColumnHeader_.get());
  ApplyLanguage();
}

HWND frmCommandList::Control() const { return ListView1_; }

std::array<int, 4> frmCommandList::ColumnOrder() const {
  std::array<int, 4> order{};
  if (ListView_GetColumnOrderArray(ListView1_, 4, order.data()) == FALSE) {
    order = OrderOfPositions(ReadColumnLayout(editor_.Options()).Positions);
  }
  return order;
}

ColumnLayout frmCommandList::Columns() const {
  const ColumnLayout stored = ReadColumnLayout(editor_.Options());
  std::array<int, 4> pixels{};
  for (std::size_t column = 0; column < pixels.size(); ++column) {
    pixels[column] = ListView_GetColumnWidth(ListView1_, static_cast<int>(column));
  }
  return ColumnsToStore(stored, ColumnOrder(), pixels, dpi_);
}

void frmCommandList::Show() {
  if (IsWindowVisible(ListView1_) != FALSE) return;
  GetCursorPos(&pointerBefore_);
  ShowWindow(ListView1_, SW_SHOWNA);
}

LRESULT frmCommandList::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      FillCell(reinterpret_cast<NMLVDISPINFOW&>(header).item);
      break;
    case LVN_ITEMCHANGED:
      OnItemChanged(reinterpret_cast<const NMLISTVIEW&>(header));
      break;
    case LVN_COLUMNCLICK:
      events_.ClickColumn(reinterpret_cast<const NMLISTVIEW&>(header).iSubItem + 1);
      break;
    case LVN_ODFINDITEMW:
      return FindItem(reinterpret_cast<const NMLVFINDITEMW&>(header));
    case NM_CLICK:
    case NM_RCLICK:
      // A click counts on the row that is selected already, too.
      SelectRow(reinterpret_cast<const NMITEMACTIVATE&>(header).iItem);
      // One beside the rows takes the highlight away, but the editor keeps its selected row.
      SyncSelection();
      break;
    case NM_CUSTOMDRAW:
      return OnCustomDraw(reinterpret_cast<const NMLVCUSTOMDRAW&>(header).nmcd);
    default:
      break;
  }
  return 0;
}

LRESULT CALLBACK frmCommandList::ListProcedure(HWND list, UINT message, WPARAM wParam,
                                               LPARAM lParam, UINT_PTR /*id*/, DWORD_PTR self) {
  return Guarded(list, [&] {
    reinterpret_cast<frmCommandList*>(self)->SyncTip(message, wParam, lParam);
    const LRESULT result = DefSubclassProc(list, message, wParam, lParam);
    // The list has moved the columns after one that changed its width, with what runs over them.
    if (message == WM_NOTIFY && IsWidthChange(*reinterpret_cast<const NMHDR*>(lParam))) {
      InvalidateRect(list, nullptr, TRUE);
      reinterpret_cast<frmCommandList*>(self)->HideTip();
    }
    return result;
  });
}

void frmCommandList::FillCell(LVITEMW& item) const {
  const auto cell = CellAt(editor_.List().Shown(), item.iItem, item.iSubItem);
  if (!cell) return;
  if ((item.mask & LVIF_TEXT) != 0) {
    const std::wstring text(CellText(cell->Row, cell->Of));
    lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
  }
  if ((item.mask & LVIF_IMAGE) != 0) {
    // By an image that the list lacks the text stays in line with the others.
    item.iImage = ImageOf(cell->Row.Icon).value_or(ImageList_GetImageCount(ilsListView_.get()));
  }
}

void frmCommandList::OnItemChanged(const NMLISTVIEW& change) {
  const bool selected =
      (change.uNewState & LVIS_SELECTED) != 0 && (change.uOldState & LVIS_SELECTED) == 0;
  if (selected && !syncing_) SelectRow(change.iItem);
}

int frmCommandList::SelectedRow() const {
  return ListView_GetNextItem(ListView1_, -1, LVNI_SELECTED);
}

void frmCommandList::SelectRow(int position) const {
  if (position >= 0) events_.SelectRow(static_cast<std::size_t>(position));
}

bool frmCommandList::SelectRowAt(POINT place) {
  LVHITTESTINFO hit{};
  hit.pt = place;
  ScreenToClient(ListView1_, &hit.pt);
  const int position = ListView_SubItemHitTest(ListView1_, &hit);
  SelectRow(position);
  SyncSelection();
  return position >= 0;
}

POINT frmCommandList::ScrollToMenuPlace() {
  ShowSelectedRow();
  RECT row{};
  const int selected = SelectedRow();
  if (selected >= 0) ListView_GetItemRect(ListView1_, selected, &row, LVIR_ICON);
  POINT place{row.left, row.bottom};
  ClientToScreen(ListView1_, &place);
  return place;
}

LRESULT frmCommandList::FindItem(const NMLVFINDITEMW& search) const {
  if ((search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL | SearchBySubstring)) == 0) return -1;
  const auto start = static_cast<std::size_t>(std::max(0, search.iStart));
  const bool isTyped = (search.lvfi.flags & (LVFI_PARTIAL | SearchBySubstring)) != 0;
  const auto found = isTyped ? FindTypedRow(editor_.List().Shown(), search.lvfi.psz, start)
                             : FindRow(editor_.List().Shown(), search.lvfi.psz, start);
  return found ? static_cast<LRESULT>(*found) : -1;
}

void frmCommandList::Sync() {
  const auto count = static_cast<int>(editor_.List().Shown().Count());
  if (ListView_GetItemCount(ListView1_) != count) {
    ListView_SetItemCountEx(ListView1_, count, LVSICF_NOSCROLL);
  }
  SyncSelection();
  SyncHeaderIcons();
  HideTip();
  // With its background: an icon may have gone.
  InvalidateRect(ListView1_, nullptr, TRUE);
}

void frmCommandList::SyncSelection() {
  const auto position = editor_.List().Shown().PositionOf(editor_.List().SelectedRow());
  const int shown = SelectedRow();
  const int wanted = position ? static_cast<int>(*position) : -1;
  if (shown == wanted || editor_.Document().Busy()) return;
  syncing_ = true;
  const LONG top = TopOfRows();
  constexpr UINT Both = LVIS_SELECTED | LVIS_FOCUSED;
  ListView_SetItemState(ListView1_, -1, 0, LVIS_SELECTED);
  if (wanted >= 0) ListView_SetItemState(ListView1_, wanted, Both, Both);
  // Some lists scroll to the row that gets the focus; the user's view of the list is to stay.
  ListView_Scroll(ListView1_, 0, TopOfRows() - top);
  syncing_ = false;
}

LONG frmCommandList::TopOfRows() const {
  RECT first{};
  ListView_GetItemRect(ListView1_, 0, &first, LVIR_BOUNDS);
  return first.top;
}

void frmCommandList::ShowSelectedRow() { ListView_EnsureVisible(ListView1_, SelectedRow(), FALSE); }

void frmCommandList::SyncHeaderIcons() {
  const HWND header = ListView_GetHeader(ListView1_);
  for (const Column column : AllColumns) {
    const HeaderIcon icon = editor_.List().IconOf(column);
    HDITEMW shown{};
    shown.mask = HDI_FORMAT | HDI_IMAGE;
    SendMessageW(header, HDM_GETITEMW, IndexOf(column), reinterpret_cast<LPARAM>(&shown));
    HDITEMW wanted = shown;
    constexpr int IconFormat = HDF_IMAGE | HDF_BITMAP_ON_RIGHT;
    if (icon == HeaderIcon::None) {
      wanted.fmt &= ~IconFormat;
    } else {
      wanted.fmt |= IconFormat;
      wanted.iImage = static_cast<int>(icon) - 1;
    }
    if (wanted.fmt != shown.fmt || wanted.iImage != shown.iImage) {
      SendMessageW(header, HDM_SETITEMW, IndexOf(column), reinterpret_cast<LPARAM>(&wanted));
    }
  }
}

void frmCommandList::Forget() {
  tip_.Forget();
  lblListView1_ = ListView1_ = nullptr;
}

}  // namespace tessera
