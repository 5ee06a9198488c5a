// The command list control: its rows are those of the editor.
#include <algorithm>

#include "app/FindRow.h"
#include "app/frmMain.h"
#include "dialogs/cFontDlg.h"
#include "platform/win32/Icons.h"
#include "resources/icons.h"
#include "resources/resource.h"

namespace tessera {

namespace {

constexpr TextId ListName = TextId::CommandColumn;
constexpr int DefaultsSubItem = 2;

constexpr COLORREF Red = RGB(255, 0, 0);

constexpr int RowIcons[] = {IDI_COMMENTBLOCK, IDI_HASKEY};
constexpr int HeaderIcons[] = {IDI_ASCENDING, IDI_DESCENDING};

/// The faces of the bitmap font that is the default have few sizes; the system's font for messages
/// stands in for it, at every size and resolution.
constexpr wchar_t BitmapFace[] = L"MS Sans Serif";

int ImageOf(RowIcon icon) {
  switch (icon) {
    case RowIcon::CommentBlock:
      return 0;
    case RowIcon::HasKey:
      return 1;
    case RowIcon::None:
      break;
  }
  // An image that the list lacks: nothing is drawn, and the text stays in line with the others.
  return static_cast<int>(std::size(RowIcons));
}

int ColumnPixels(int twips, int dpi) { return std::max(0, TwipsToPixels(twips, dpi)); }

LOGFONTW FontOf(const Settings& settings, int dpi) {
  const bool isDefault = lstrcmpiW(settings.FontName.c_str(), BitmapFace) == 0;
  LOGFONTW font = isDefault ? MessageFont(dpi, settings.FontScript) : LOGFONTW{};
  if (!isDefault) {
    const std::size_t length = std::min<std::size_t>(settings.FontName.size(), LF_FACESIZE - 1);
    std::copy_n(settings.FontName.begin(), length, font.lfFaceName);
    font.lfCharSet = static_cast<BYTE>(settings.FontScript);
  }
  const int style = settings.FontStyle;
  font.lfHeight = -MulDiv(std::clamp<int>(settings.FontSize, 1, 200), dpi, 72);
  font.lfWidth = 0;
  font.lfWeight = (style & cFontDlg::Bold) != 0 ? FW_BOLD : FW_NORMAL;
  font.lfItalic = (style & cFontDlg::Italic) != 0;
  font.lfStrikeOut = (style & cFontDlg::StrikeOut) != 0;
  font.lfUnderline = (style & cFontDlg::Underline) != 0;
  return font;
}

}  // namespace

void frmMain::CreateCommandList() {
  // For screen readers, which call a control by the label before it, a hidden one too.
  lblListView1_ = CreateControl(window_, WC_STATICW, 0, 0, IDC_lblListView1);
  ListView1_ = CreateControl(window_, WC_LISTVIEWW,
                             WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                                 LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS,
                             0, IDC_ListView1);
  SetWindowTheme(ListView1_, L"Explorer", nullptr);
  const ColumnLayout layout = ReadColumnLayout(editor_.Options());
  for (std::size_t column = 0; column < layout.Widths.size(); ++column) {
    LVCOLUMNW added{};
    added.mask = LVCF_SUBITEM | LVCF_FMT | LVCF_WIDTH;
    added.fmt = LVCFMT_LEFT;
    added.cx = ColumnPixels(layout.Widths[column], dpi_);
    added.iSubItem = static_cast<int>(column);
    SendMessageW(ListView1_, LVM_INSERTCOLUMNW, column, reinterpret_cast<LPARAM>(&added));
  }
  std::array<int, 4> order = OrderOfPositions(layout.Positions);
  ListView_SetColumnOrderArray(ListView1_, 4, order.data());
}

void frmMain::LabelColumns() {
  SetText(lblListView1_, editor_.Language().GetLangText(ListName));
  for (std::size_t column = 0; column < ColumnHeadings.size(); ++column) {
    std::wstring text = editor_.Language().GetLangText(ColumnHeadings[column]);
    LVCOLUMNW label{};
    label.mask = LVCF_TEXT;
    label.pszText = text.data();
    SendMessageW(ListView1_, LVM_SETCOLUMNW, column, reinterpret_cast<LPARAM>(&label));
  }
}

void frmMain::SetColumnWidths(const std::array<int, 4>& twips) {
  for (std::size_t column = 0; column < twips.size(); ++column) {
    ListView_SetColumnWidth(ListView1_, static_cast<int>(column),
                            ColumnPixels(twips[column], dpi_));
  }
}

ColumnLayout frmMain::CurrentColumns() const {
  ColumnLayout layout = ReadColumnLayout(editor_.Options());
  std::array<int, 4> order{};
  if (ListView_GetColumnOrderArray(ListView1_, 4, order.data()) != FALSE) {
    layout.Positions = PositionsOfOrder(order);
  }
  for (std::size_t column = 0; column < layout.Widths.size(); ++column) {
    layout.Widths[column] = PixelsToTwips(
        ListView_GetColumnWidth(ListView1_, static_cast<int>(column)), dpi_, layout.Widths[column]);
  }
  return layout;
}

void frmMain::ApplyListFont() {
  const LOGFONTW font = FontOf(editor_.Options(), dpi_);
  Unique<HFONT> listFont(CreateFontIndirectW(&font));
  // The list passes it on to its header, and places its rows below that: a header with a font of
  // its own would make them jump.
  GiveFont(ListView1_, listFont.get());
  listFont_ = std::move(listFont);
}

void frmMain::LoadListImages() {
  const int size = Scaled(16, dpi_);
  Unique<HIMAGELIST> rows = LoadImages(RowIcons, size);
  Unique<HIMAGELIST> headers = LoadImages(HeaderIcons, size);
  ListView_SetImageList(ListView1_, rows.get(), LVSIL_SMALL);
  Header_SetImageList(ListView_GetHeader(ListView1_), headers.get());
  ilsListView_ = std::move(rows);
  ilsColumnHeader_ = std::move(headers);
}

LRESULT frmMain::OnListNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      FillListCell(reinterpret_cast<NMLVDISPINFOW&>(header).item);
      return 0;
    case LVN_ITEMCHANGED:
      OnListItemChanged(reinterpret_cast<const NMLISTVIEW&>(header));
      return 0;
    case LVN_COLUMNCLICK:
      if (AcceptsInput()) {
        editor_.Work(&CommandList::SortByColumn,
                     reinterpret_cast<const NMLISTVIEW&>(header).iSubItem + 1);
        Sync();
      }
      return 0;
    case LVN_ODFINDITEMW: {
      const auto& search = reinterpret_cast<const NMLVFINDITEMW&>(header);
      const bool byText = (search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) != 0;
      const auto found = byText ? FindRow(editor_.Document().Rows(), search.lvfi.psz,
                                          static_cast<std::size_t>(std::max(0, search.iStart)))
                                : std::nullopt;
      return found ? static_cast<LRESULT>(*found) : -1;
    }
    case NM_CLICK:
    case NM_RCLICK:
      // A click counts on the row that is selected already, too.
      SelectListRow(reinterpret_cast<const NMITEMACTIVATE&>(header).iItem);
      // One beside the rows takes the highlight away, but the editor keeps its selected row.
      SyncListSelection();
      return 0;
    case NM_CUSTOMDRAW:
      return OnListCustomDraw(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    default:
      return 0;
  }
}

void frmMain::FillListCell(LVITEMW& item) const {
  const DisplayTable& rows = editor_.Document().Rows();
  const auto position = static_cast<std::size_t>(item.iItem);
  if (position >= rows.Count() || item.iSubItem < 0 || item.iSubItem >= 4) {
    return;
  }
  const CommandEntry& row = rows.At(position);
  if ((item.mask & LVIF_TEXT) != 0) {
    const std::wstring text(CellText(row, AllColumns[static_cast<std::size_t>(item.iSubItem)]));
    lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
  }
  if ((item.mask & LVIF_IMAGE) != 0) {
    item.iImage = ImageOf(row.Icon);
  }
}

void frmMain::OnListItemChanged(const NMLISTVIEW& change) {
  const bool selected = (change.uChanged & LVIF_STATE) != 0 &&
                        (change.uNewState & LVIS_SELECTED) != 0 &&
                        (change.uOldState & LVIS_SELECTED) == 0;
  if (syncing_ || !selected) {
    return;
  }
  const int position =
      change.iItem >= 0 ? change.iItem : ListView_GetNextItem(ListView1_, -1, LVNI_SELECTED);
  SelectListRow(position);
}

void frmMain::SelectListRow(int position) {
  if (position < 0 || !AcceptsInput()) {
    return;
  }
  editor_.Work(&CommandList::SelectRow, static_cast<std::size_t>(position));
  SyncPanel();
  SyncCommands();
  SyncKeysList();
}

LRESULT frmMain::OnListCustomDraw(NMLVCUSTOMDRAW& draw) {
  const std::size_t position = draw.nmcd.dwItemSpec;
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
      return position < editor_.Document().Rows().Count() &&
                     editor_.Document().Rows().At(position).DefaultKeysAreRed
                 ? CDRF_NOTIFYSUBITEMDRAW
                 : CDRF_DODEFAULT;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
      draw.clrText =
          draw.iSubItem == DefaultsSubItem ? Red : ColourOf(editor_.Options().ForegroundColor);
      return draw.iSubItem == DefaultsSubItem && DrawOverriddenKeys(draw) ? CDRF_SKIPDEFAULT
                                                                          : CDRF_DODEFAULT;
    default:
      return CDRF_DODEFAULT;
  }
}

// Red cannot be read on a dark highlight: in the selected row the cell keeps the list's back
// colour.
bool frmMain::DrawOverriddenKeys(const NMLVCUSTOMDRAW& draw) {
  const std::size_t position = draw.nmcd.dwItemSpec;
  if (position >= editor_.Document().Rows().Count() ||
      ListView_GetItemState(ListView1_, static_cast<int>(position), LVIS_SELECTED) == 0) {
    return false;
  }
  RECT cell{};
  ListView_GetSubItemRect(ListView1_, static_cast<int>(position), DefaultsSubItem, LVIR_BOUNDS,
                          &cell);
  const HDC context = draw.nmcd.hdc;
  const Unique<HBRUSH> back(CreateSolidBrush(ColourOf(editor_.Options().BackgroundColor)));
  FillRect(context, &cell, back.get());
  SetTextColor(context, Red);
  SetBkMode(context, TRANSPARENT);
  const HGDIOBJ former = SelectObject(context, listFont_.get());
  cell.left += Scaled(6, dpi_);
  DrawTextW(context, editor_.Document().Rows().At(position).DefaultKeys.c_str(), -1, &cell,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  SelectObject(context, former);
  return true;
}

void frmMain::SyncList() {
  const auto count = static_cast<int>(editor_.Document().Rows().Count());
  syncing_ = true;
  if (ListView_GetItemCount(ListView1_) != count) {
    ListView_SetItemCountEx(ListView1_, count, LVSICF_NOSCROLL);
  }
  syncing_ = false;
  SyncListSelection();
  SyncHeaderIcons();
  // With its background: an icon may have gone.
  InvalidateRect(ListView1_, nullptr, TRUE);
}

void frmMain::SyncListSelection() {
  const auto position = editor_.Document().Rows().PositionOf(editor_.List().SelectedRow());
  const int shown = ListView_GetNextItem(ListView1_, -1, LVNI_SELECTED);
  const int wanted = position ? static_cast<int>(*position) : -1;
  if (shown == wanted || editor_.Document().Busy()) {
    return;
  }
  syncing_ = true;
  const int top = ListView_GetTopIndex(ListView1_);
  constexpr UINT Both = LVIS_SELECTED | LVIS_FOCUSED;
  ListView_SetItemState(ListView1_, -1, 0, LVIS_SELECTED);
  if (wanted >= 0) {
    ListView_SetItemState(ListView1_, wanted, Both, Both);
  }
  // Some lists scroll to the row that gets the focus; the user's view of the list is to stay.
  RECT row{};
  const int moved = top - ListView_GetTopIndex(ListView1_);
  if (moved != 0 && ListView_GetItemRect(ListView1_, 0, &row, LVIR_BOUNDS) != FALSE) {
    ListView_Scroll(ListView1_, 0, moved * (row.bottom - row.top));
  }
  syncing_ = false;
}

void frmMain::ShowSelectedRow() {
  const int selected = ListView_GetNextItem(ListView1_, -1, LVNI_SELECTED);
  if (selected >= 0) {
    ListView_EnsureVisible(ListView1_, selected, FALSE);
  }
}

void frmMain::SyncHeaderIcons() {
  const HWND header = ListView_GetHeader(ListView1_);
  for (std::size_t column = 0; column < AllColumns.size(); ++column) {
    const HeaderIcon icon = editor_.List().IconOf(AllColumns[column]);
    HDITEMW item{};
    item.mask = HDI_FORMAT | HDI_IMAGE;
    SendMessageW(header, HDM_GETITEMW, column, reinterpret_cast<LPARAM>(&item));
    const int shownFormat = item.fmt;
    const int shownImage = item.iImage;
    constexpr int IconFormat = HDF_IMAGE | HDF_BITMAP_ON_RIGHT;
    const bool hasIcon = icon != HeaderIcon::None;
    item.fmt = hasIcon ? shownFormat | IconFormat : shownFormat & ~IconFormat;
    item.iImage = hasIcon ? static_cast<int>(icon) - 1 : 0;
    if (item.fmt != shownFormat || (hasIcon && item.iImage != shownImage)) {
      SendMessageW(header, HDM_SETITEMW, column, reinterpret_cast<LPARAM>(&item));
    }
  }
}

}  // namespace tessera
