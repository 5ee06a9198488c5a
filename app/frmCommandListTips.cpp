// The tips over the cells of the command list.
#include <utility>

#include "app/CellTip.h"
#include "app/frmCommandList.h"
#include "app/ListCell.h"

namespace tessera {
namespace {

bool IsPointer(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK; }

bool MovesRows(UINT message) {
  return message == WM_VSCROLL || message == WM_HSCROLL || message == WM_MOUSEWHEEL ||
         message == WM_MOUSEHWHEEL || message == WM_KEYDOWN;
}

}  // namespace

void frmCommandList::SyncTip(UINT message, WPARAM wParam, LPARAM lParam) {
  if (MovesRows(message)) HideTip();
  if (!IsPointer(message)) return;
  LVHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (!NotePointer(hit.pt)) return;
  ListView_SubItemHitTest(ListView1_, &hit);
  const std::pair cell(hit.iItem, hit.iSubItem);
  if (std::exchange(tipCell_, cell) != cell) SetTip(hit.iItem, hit.iSubItem);
  tip_.Follow(ListView1_, message, wParam, lParam);
}

/// A list that comes up beneath the pointer is told of it, too; a tip would cover what the user has
/// not pointed at.
bool frmCommandList::NotePointer(POINT place) {
  if (hasPointerMoved_) return true;
  ClientToScreen(ListView1_, &place);
  hasPointerMoved_ = place.x != pointerBefore_.x || place.y != pointerBefore_.y;
  return hasPointerMoved_;
}

void frmCommandList::SetTip(int position, int subItem) {
  const auto cell = CellAt(editor_.List().Shown(), position, subItem);
  if (!cell) {
    tip_.Set(ListView1_, {}, {}, font_.get());
    return;
  }
  const CommandEntry& row = cell->Row;
  const RowPlaces places = PlacesOf(position);
  const Column column = RunsOverAllColumns(row, places.Order) ? Column::Description : cell->Of;
  const RECT place = TextPlace(row, column, places);
  const std::wstring text(CellText(row, column));
  RECT inside{};
  GetClientRect(ListView1_, &inside);
  const bool isCut =
      IsCut({.TextBegin = place.left,
             .TextLength = TextSize(ListView1_, font_.get(), text, DT_NOPREFIX).Width,
             .CellEnd = place.right,
             .ListEnd = inside.right});
  const tessera::Document& document = editor_.Document();
  const std::size_t inTable = document.Rows().PositionOf(row.Key).value();
  tip_.Set(
      ListView1_, place,
      CellTip(document.Rows(), inTable, column, isCut, document.Notation(), editor_.Language()),
      font_.get());
}

void frmCommandList::HideTip() {
  tipCell_.reset();
  tip_.Set(ListView1_, {}, {}, font_.get());
}

}  // namespace tessera
