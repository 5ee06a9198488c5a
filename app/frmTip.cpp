// One tool of a tool tip control; it moves from part to part with the pointer.
#include "app/frmTip.h"

namespace tessera {
namespace {

constexpr UINT_PTR Tool = 1;

/// Some texts take a while to read.
constexpr WORD ShownMilliseconds = 30000;

TTTOOLINFOW ToolOf(HWND window) {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.hwnd = window;
  tool.uId = Tool;
  return tool;
}

void Tell(HWND tip, UINT message, const void* parameter) {
  SendMessageW(tip, message, 0, reinterpret_cast<LPARAM>(parameter));
}

}  // namespace

void frmTip::Create(HWND window) {
  tip_ =
      CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0, 0,
                      GetAncestor(window, GA_ROOT), nullptr, GetModuleHandleW(nullptr), nullptr);
  SendMessageW(tip_, TTM_SETDELAYTIME, TTDT_AUTOPOP, ShownMilliseconds);
  const TTTOOLINFOW tool = ToolOf(window);
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
  TTTOOLINFOW tool = ToolOf(window);
  tool.uFlags = IsRightToLeft(window) ? TTF_RTLREADING : 0;
  tool.rect = part;
  tool.lpszText = shown.data();
  Tell(tip_, TTM_SETTOOLINFOW, &tool);
}

void frmTip::Follow(const MSG& message) const {
  if (tip_ != nullptr) Tell(tip_, TTM_RELAYEVENT, &message);
}

}  // namespace tessera
