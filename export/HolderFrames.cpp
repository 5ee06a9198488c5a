// Parts the texts of the language once, at the place for the name.
#include "export/HolderFrames.h"

#include "export/Html.h"

namespace tessera {
namespace {

constexpr std::wstring_view Place = L"%1";

HolderFrame Parted(const std::wstring& text) {
  HolderFrame frame;
  const std::size_t at = text.find(Place);
  AppendText(frame.Before, std::wstring_view(text).substr(0, at));
  if (at != std::wstring::npos) {
    AppendText(frame.After, std::wstring_view(text).substr(at + Place.size()));
  }
  return frame;
}

}  // namespace

HolderFrames::HolderFrames(const Texts& texts)
    : free_(Parted(texts.GetLangText(TextId::KeyIsFree))) {
  constexpr std::array<TextId, 4> Ids{TextId::HolderNow, TextId::HolderByDefault,
                                      TextId::HolderOverridden, TextId::HolderInStartMenu};
  for (std::size_t kind = 0; kind < Ids.size(); ++kind) {
    frames_[kind] = Parted(texts.GetLangText(Ids[kind]));
  }
}

}  // namespace tessera
