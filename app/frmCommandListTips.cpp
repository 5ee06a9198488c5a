// The tips over the cells of the command list.
#include "app/CellTip.h"
#include "app/frmCommandList.h"

namespace tessera {
namespace {

bool IsPointer(UINT message) { return message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK; }

bool MovesRows(UINT message) {
  return message == WM_VSCROLL || message == WM_HSCROLL || message == WM_MOUSEWHEEL ||
         message == WM_MOUSEHWHEEL || message == WM_KEYDOWN;
}

}  // namespace

void frmCommandList::SyncTip(const MSG& message) {
  if (MovesRows(message.message)) HideTip();
  if (!IsPointer(message.message)) return;
  LVHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
  if (!NotePointer(hit.pt)) return;
  ListView_SubItemHitTest(ListView1_, &hit);
  if (tipCell_.x != hit.iSubItem || tipCell_.y != hit.iItem) {
    tipCell_ = {hit.iSubItem, hit.iItem};
    SetTip(hit.iItem, hit.iSubItem);
  }
  tip_.Follow(message);
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
  const ShownRows& rows = editor_.List().Shown();
  const auto shown = static_cast<std::size_t>(position);
  if (position < 0 || shown >= rows.Count() || subItem < 0) {
    tip_.Set(ListView1_, {}, {}, font_.get());
    return;
  }
  const CommandEntry& row = rows.At(shown);
  const RowPlaces places = PlacesOf(position);
  const Column column = RunsOverAllColumns(row, places.Order)
                            ? Column::Description
                            : AllColumns[static_cast<std::size_t>(subItem)];
  const RECT place = TextPlace(row, column, places);
  const std::wstring text(CellText(row, column));
  const LRESULT length =
      SendMessageW(ListView1_, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text.c_str()));
  RECT inside{};
  GetClientRect(ListView1_, &inside);
  const bool isCut = IsCut({.TextBegin = place.left,
                            .TextLength = static_cast<int>(length),
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
  tipCell_ = {-1, -1};
  tip_.Set(ListView1_, {}, {}, font_.get());
}

}  // namespace tessera
