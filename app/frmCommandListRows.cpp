// How the command list draws its rows. It draws all of them itself: what the system makes of a row
// in colours of the user's, or without the focus, is not always to be seen.
#include <algorithm>
#include <string_view>

#include "app/frmCommandList.h"

namespace tessera {
namespace {

/// Between the edge of a cell and its text, for 96 pixels an inch.
constexpr int TextMargin = 6;
constexpr int TextMarginAfterIcon = 2;
constexpr int TextMarginAtEnd = 2;

/// Pixels at the beginning of a row that are not drawn, since some lists do not redraw them with
/// it.
constexpr int RowMargin = 2;

ListColors ColorsOfList(const Settings& settings) {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
  return {.Text = ColorOf(settings.ForegroundColor),
          .Back = ColorOf(settings.BackgroundColor),
          .Highlight = GetSysColor(COLOR_HIGHLIGHT),
          .HighlightText = GetSysColor(COLOR_HIGHLIGHTTEXT),
          .Shadow = GetSysColor(COLOR_BTNSHADOW),
          .HighContrast = (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0};
}

void Fill(HDC context, const RECT& area, Rgb color) {
  const Unique<HBRUSH> brush(CreateSolidBrush(color));
  FillRect(context, &area, brush.get());
}

void Write(HDC context, RECT place, std::wstring_view text) {
  if (place.left >= place.right) return;
  DrawTextW(context, text.data(), static_cast<int>(text.size()), &place,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace

LRESULT frmCommandList::OnCustomDraw(const NMCUSTOMDRAW& draw) {
  if (draw.dwDrawStage == CDDS_PREPAINT) {
    drawnColors_ = ColorsOfList(editor_.Options());
    drawnSelection_ = SelectedRow();
    drawnFocus_ = GetFocus() == ListView1_;
    drawnPlaces_ = PlacesOf(ListView_GetTopIndex(ListView1_));
    return CDRF_NOTIFYITEMDRAW;
  }
  if (draw.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  if (draw.dwItemSpec < editor_.List().Shown().Count()) {
    const int former = SaveDC(draw.hdc);
    DrawRow(draw);
    RestoreDC(draw.hdc, former);
  }
  return CDRF_SKIPDEFAULT;
}

void frmCommandList::DrawRow(const NMCUSTOMDRAW& draw) const {
  const HDC context = draw.hdc;
  const CommandEntry& row = editor_.List().Shown().At(draw.dwItemSpec);
  const auto item = static_cast<int>(draw.dwItemSpec);
  const CellColors rowColors = ColorsOfRow(drawnColors_, item == drawnSelection_, drawnFocus_);
  const RowPlaces places = drawnPlaces_.MovedTo(draw.rc.top);
  RECT whole = draw.rc;
  whole.left += RowMargin;
  Fill(context, whole, rowColors.Back);
  DrawIcon(context, item, places);
  SelectObject(context, font_.get());
  SetBkMode(context, TRANSPARENT);
  for (const Column column : AllColumns) {
    const CellColors cellColors = ColorsOfCell(drawnColors_, rowColors, row, column);
    if (cellColors.Back != rowColors.Back) {
      Fill(context, places.Cells[IndexOf(column)], cellColors.Back);
    }
    SetTextColor(context, cellColors.Text);
    Write(context, TextPlace(row, column, places), CellText(row, column));
  }
}

// Up to the end of its column, if that is narrower.
void frmCommandList::DrawIcon(HDC context, int position, const RowPlaces& places) const {
  LVITEMW item{};
  item.mask = LVIF_IMAGE;
  item.iItem = position;
  FillCell(item);
  const RECT& place = places.Icon;
  const LONG room = places.Cells[IndexOf(Column::Description)].right - place.left;
  const int size = IconSize();
  if (room <= 0) return;
  ImageList_DrawEx(ilsListView_.get(), item.iImage, context, place.left,
                   (place.top + place.bottom - size) / 2, std::min<int>(size, room), size, CLR_NONE,
                   CLR_NONE, ILD_NORMAL);
}

frmCommandList::RowPlaces frmCommandList::RowPlaces::MovedTo(LONG top) const {
  RowPlaces moved = *this;
  const int distance = static_cast<int>(top - Whole.top);
  OffsetRect(&moved.Whole, 0, distance);
  OffsetRect(&moved.Icon, 0, distance);
  for (RECT& cell : moved.Cells) OffsetRect(&cell, 0, distance);
  return moved;
}

frmCommandList::RowPlaces frmCommandList::PlacesOf(int position) const {
  RowPlaces places;
  ListView_GetItemRect(ListView1_, position, &places.Whole, LVIR_BOUNDS);
  ListView_GetItemRect(ListView1_, position, &places.Icon, LVIR_ICON);
  for (const Column column : AllColumns) {
    const std::size_t index = IndexOf(column);
    ListView_GetSubItemRect(ListView1_, position, static_cast<int>(index), LVIR_LABEL,
                            &places.Cells[index]);
  }
  places.Order = ColumnOrder();
  return places;
}

RECT frmCommandList::TextPlace(const CommandEntry& row, Column column,
                               const RowPlaces& places) const {
  RECT place = places.Cells[IndexOf(column)];
  const bool description = column == Column::Description;
  if (description && RunsOverAllColumns(row, places.Order)) place.right = places.Whole.right;
  place.left += Scaled(description ? TextMarginAfterIcon : TextMargin, dpi_);
  place.right -= Scaled(TextMarginAtEnd, dpi_);
  return place;
}

}  // namespace tessera
