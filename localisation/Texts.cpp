// Looking up texts in the language file in use and in the built-in table.
#include "localisation/Texts.h"

#include <string_view>

#include "localisation/TextTable.h"
#include "text/Numbers.h"

namespace tessera {
namespace {

constexpr std::wstring_view LanguageSection = L"UserLanguage";

int IntegerOf(const ProfileFile& language, std::wstring_view key) {
  return RoundTo32Bits(language.ReadInteger(LanguageSection, key, L"0"));
}

}  // namespace

Texts::Texts(const Files& files) : files_(files) {}

std::wstring Texts::GetLangText(TextId id) const {
  if (language_) {
    std::wstring text = language_->ReadString(LanguageSection, std::to_wstring(NumberOf(id)), L"");
    if (!text.empty()) return text;
  }
  return std::wstring(BuiltInTextOf(id));
}

bool Texts::RightToLeft() const { return rightToLeft_; }

void Texts::UseBuiltIn() {
  language_.reset();
  rightToLeft_ = false;
}

bool Texts::UseLanguageFile(const std::wstring& path) {
  if (!files_.Exists(path)) return false;

  language_.emplace(files_, path);
  language_->PassOverMark();
  rightToLeft_ = IntegerOf(*language_, L"RightToLeftLanguage") != 0;
  language_->UseCodePage(static_cast<unsigned>(IntegerOf(*language_, L"CodePage")));
  return true;
}

}  // namespace tessera
