// The command list on the screen: its rows are those of the editor.
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "app/Editor.h"
#include "app/frmTip.h"
#include "app/RowLooks.h"
#include "platform/Pinned.h"
#include "platform/win32/Controls.h"

namespace tessera {

class frmCommandList : Pinned {
 public:
  /// What the user does in the list.
  struct Events {
    std::function<void(std::size_t position)> SelectRow;
    std::function<void(int column)> ClickColumn;  ///< its 1-based index
  };

  /// `editor` must outlive it.
  frmCommandList(const Editor& editor, Events events);

  /// Makes the list, hidden and without columns.
  void Create(HWND window);

  /// Gives it the columns of the settings, once it has its language and its looks.
  void SetUpColumns();
  [[nodiscard]] HWND Control() const;

  /// The order and the widths of the columns as they are shown.
  [[nodiscard]] ColumnLayout Columns() const;

  /// Give it what it takes from the texts, the resolution, and the settings. A new resolution needs
  /// a new font too.
  void ApplyLanguage();
  void ApplyDpi(int dpi);
  void ApplyFont();
  void ApplyDisplaySettings();

  /// Answers a notification of the list.
  LRESULT OnNotify(NMHDR& header);

  /// Selects the row at that place of the screen; false when there is none.
  bool SelectRowAt(POINT place);

  /// Scrolls to the selected row, and tells where a menu for it begins, on the screen: below its
  /// icon.
  [[nodiscard]] POINT ScrollToMenuPlace();

  void Show();
  void Sync();
  void ShowSelectedRow();

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget();

 private:
  /// Where the parts of a row are in the list.
  struct RowPlaces {
    RECT Whole{};
    RECT Icon{};
    std::array<RECT, 4> Cells{};  ///< the description's begins after its icon
    std::array<int, 4> Order{};   ///< the columns as they stand

    [[nodiscard]] RowPlaces MovedTo(LONG top) const;
  };

  static LRESULT CALLBACK ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                        UINT_PTR id, DWORD_PTR self);
  void LoadIcons();
  [[nodiscard]] int IconSize() const;  ///< in pixels, each way
  void ApplyColumnWidths(const std::array<int, 4>& twips);
  [[nodiscard]] LRESULT OnCustomDraw(const NMCUSTOMDRAW& draw);
  void DrawRow(const NMCUSTOMDRAW& draw) const;
  void DrawIcon(HDC context, int position, const RowPlaces& places) const;
  void SyncTip(UINT message, WPARAM wParam, LPARAM lParam);
  [[nodiscard]] bool NotePointer(POINT place);
  void SetTip(int position, int subItem);
  void HideTip();
  [[nodiscard]] std::array<int, 4> ColumnOrder() const;
  [[nodiscard]] RowPlaces PlacesOf(int position) const;
  [[nodiscard]] RECT TextPlace(const CommandEntry& row, Column column,
                               const RowPlaces& places) const;
  void OnItemChanged(const NMLISTVIEW& change);
  [[nodiscard]] int SelectedRow() const;  ///< as the list has it; -1 for none
  void SelectRow(int position) const;
  [[nodiscard]] LRESULT FindItem(const NMLVFINDITEMW& search) const;
  void FillCell(LVITEMW& item) const;
  void SyncSelection();

  /// Where the first row begins, be it scrolled away: in pixels, below the upper edge of the list.
  [[nodiscard]] LONG TopOfRows() const;
  void SyncHeaderIcons();

  const Editor& editor_;
  Events events_;
  HWND lblListView1_ = nullptr;
  HWND ListView1_ = nullptr;
  int dpi_ = 96;
  bool syncing_ = false;    ///< notifications are answers to our own changes
  ListColors drawnColors_;  ///< of the drawing that goes on, as are the next three
  int drawnSelection_ = -1;
  bool drawnFocus_ = false;
  // Of one row: asking the list for those of each cell takes it longer than drawing them.
  RowPlaces drawnPlaces_;
  frmTip tip_;
  std::optional<std::pair<int, int>> tipCell_;  ///< the row and the column under the pointer
  POINT pointerBefore_{};  ///< where it was on the screen when the list came up
  bool hasPointerMoved_ = false;
  Unique<HFONT> font_;
  Unique<HIMAGELIST> ilsListView_;
  Unique<HIMAGELIST> ilsColumnHeader_;
};

}  // namespace tessera
