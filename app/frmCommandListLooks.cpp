// How the command list looks: its texts, icons, font and colours.
#include <utility>

#include "app/Borders.h"
#include "app/Columns.h"
#include "app/frmCommandList.h"
#include "app/ListFont.h"
#include "platform/win32/Icons.h"
#include "resources/icons.h"

namespace tessera {
namespace {

constexpr TextId ListName = TextId::CommandColumn;
constexpr int RowIcons[] = {IDI_COMMENTBLOCK, IDI_HASKEY};
constexpr int HeaderIcons[] = {IDI_ASCENDING, IDI_DESCENDING};

LOGFONTW FontOf(const Settings& settings, int dpi) {
  const ListFont chosen = ReadListFont(settings, dpi);
  LOGFONTW font = chosen.HasMessageFace ? MessageFont(dpi, chosen.CharacterSet) : LOGFONTW{};
  if (!chosen.HasMessageFace) {
    lstrcpynW(font.lfFaceName, chosen.FaceName.c_str(), LF_FACESIZE);
    font.lfCharSet = static_cast<BYTE>(chosen.CharacterSet);
  }
  font.lfHeight = -chosen.HeightPixels;
  font.lfWidth = 0;
  font.lfWeight = chosen.Bold ? FW_BOLD : FW_NORMAL;
  font.lfItalic = chosen.Italic ? TRUE : FALSE;
  font.lfStrikeOut = chosen.StrikeOut ? TRUE : FALSE;
  font.lfUnderline = chosen.Underline ? TRUE : FALSE;
  return font;
}

}  // namespace

void frmCommandList::ApplyLanguage() {
  const Texts& texts = editor_.Language();
  SetText(lblListView1_, texts.GetLangText(ListName));
  for (std::size_t column = 0; column < ColumnHeadings.size(); ++column) {
    std::wstring text = texts.GetLangText(ColumnHeadings[column]);
    LVCOLUMNW label{};
    label.mask = LVCF_TEXT;
    label.pszText = text.data();
    SendMessageW(ListView1_, LVM_SETCOLUMNW, column, reinterpret_cast<LPARAM>(&label));
  }
}

void frmCommandList::ApplyDpi(int dpi) {
  const std::array<int, 4> widths = Columns().Widths;
  dpi_ = dpi;
  LoadIcons();
  ApplyColumnWidths(widths);
}

int frmCommandList::IconSize() const { return Scaled(16, dpi_); }

void frmCommandList::LoadIcons() {
  Unique<HIMAGELIST> rows = LoadImages(RowIcons, IconSize());
  Unique<HIMAGELIST> headers = LoadImages(HeaderIcons, IconSize());
  ListView_SetImageList(ListView1_, rows.get(), LVSIL_SMALL);
  Header_SetImageList(ListView_GetHeader(ListView1_), headers.get());
  ilsListView_ = std::move(rows);
  ilsColumnHeader_ = std::move(headers);
}

void frmCommandList::ApplyFont() {
  const LOGFONTW description = FontOf(editor_.Options(), dpi_);
  Unique<HFONT> font(CreateFontIndirectW(&description));
  // The list passes it on to its header, and places its rows below that: a header with a font of
  // its own would make them jump.
  GiveFont(ListView1_, font.get());
  font_ = std::move(font);
  HideTip();
}

void frmCommandList::ApplyColumnWidths(const std::array<int, 4>& twips) {
  const std::array<int, 4> pixels = WidthsInPixels(twips, dpi_);
  for (std::size_t column = 0; column < pixels.size(); ++column) {
    ListView_SetColumnWidth(ListView1_, static_cast<int>(column), pixels[column]);
  }
}

void frmCommandList::ApplyDisplaySettings() {
  const Settings& settings = editor_.Options();
  const Border border = ListBorder(settings);
  SetStyleBits(ListView1_, GWL_STYLE, WS_BORDER, border == Border::Line);
  SetStyleBits(ListView1_, GWL_EXSTYLE, WS_EX_CLIENTEDGE, border == Border::Sunken);
  const DWORD lines = settings.CommandListShowLines != 0 ? LVS_EX_GRIDLINES : 0;
  // A mirrored list may draw its texts mirrored too while it is buffered.
  const DWORD buffer = editor_.Language().RightToLeft() ? 0 : LVS_EX_DOUBLEBUFFER;
  ListView_SetExtendedListViewStyle(ListView1_,
                                    LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP | buffer | lines);
  ListView_SetTextColor(ListView1_, ColorOf(settings.ForegroundColor));
  ListView_SetBkColor(ListView1_, ColorOf(settings.BackgroundColor));
  InvalidateRect(ListView1_, nullptr, TRUE);
}

}  // namespace tessera
