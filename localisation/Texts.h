// Every visible text, by text ID: from the language file in use, else the built-in English one.
#pragma once

#include <optional>
#include <string>

#include "localisation/TextId.h"
#include "platform/Files.h"
#include "platform/Pinned.h"
#include "settings/ini/ProfileFile.h"

namespace tessera {

class Texts : Pinned {
 public:
  /// Starts with the built-in texts.
  explicit Texts(const Files& files);

  /// The text in the language in use; the built-in one where that language lacks it or has it
  /// empty; "" for an ID that neither has.
  [[nodiscard]] std::wstring GetLangText(TextId id) const;

  /// True when the language in use is written from right to left.
  [[nodiscard]] bool RightToLeft() const;

  /// Goes back to the built-in texts.
  void UseBuiltIn();

  /// Reads a language file, once. False when it does not exist; the texts then stay as they were.
  bool UseLanguageFile(const std::wstring& path);

 private:
  const Files& files_;
  std::optional<ProfileFile> language_;
  bool rightToLeft_ = false;
};

}  // namespace tessera
