// One tool of a tool tip control; it moves from part to part with the pointer.
#include "app/frmTip.h"

namespace tessera {
namespace {

constexpr UINT_PTR Tool = 1;

/// Some texts take a while to read.
constexpr WORD ShownMilliseconds = 30000;

void Tell(HWND tip, UINT message, const void* parameter) {
  SendMessageW(tip, message, 0, reinterpret_cast<LPARAM>(parameter));
}

}  // namespace

HWND CreateTip(HWND window) {
  return CreatePopup(GetAncestor(window, GA_ROOT), TOOLTIPS_CLASSW, TTS_NOPREFIX, WS_EX_TOPMOST);
}

TTTOOLINFOW TipTool(HWND window, UINT_PTR id) {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = IsRightToLeft(window) ? TTF_RTLREADING : 0;
  tool.hwnd = window;
  tool.uId = id;
  return tool;
}

void frmTip::Create(HWND window) {
  tip_ = CreateTip(window);
  SendMessageW(tip_, TTM_SETDELAYTIME, TTDT_AUTOPOP, ShownMilliseconds);
  const TTTOOLINFOW tool = TipTool(window, Tool);
  Tell(tip_, TTM_ADDTOOLW, &tool);
}

void frmTip::Set(HWND window, const RECT& part, const std::wstring& text, HFONT font) {
  if (tip_ == nullptr && text.empty()) return;
  if (tip_ == nullptr) Create(window);
  SendMessageW(tip_, TTM_POP, 0, 0);
  GiveFont(tip_, font);
  // With a greatest width it takes line breaks.
  SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, WorkArea(window).Width / 2);
  std::wstring shown = text;
  TTTOOLINFOW tool = TipTool(window, Tool);
  tool.rect = part;
  tool.lpszText = shown.data();
  Tell(tip_, TTM_SETTOOLINFOW, &tool);
}

void frmTip::Follow(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
  const MSG relayed{window, message, wParam, lParam, {}, {}};
  if (tip_ != nullptr) Tell(tip_, TTM_RELAYEVENT, &relayed);
}

}  // namespace tessera
