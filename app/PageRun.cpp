// A start of the editor whose boxes are failures.
#include "app/PageRun.h"

#include "app/Editor.h"
#include "app/SilentSystem.h"
#include "settings/ini/ReplaceContent.h"
#include "text/ControlCharacters.h"

namespace tessera {
namespace {

class PageRun : Pinned {
 public:
  explicit PageRun(const System& system) : system_(system), silent_(system) {}

  /// Gives why there is no page.
  [[nodiscard]] std::wstring Write(const Arguments& arguments) {
    editor_.Load(arguments.File);
    const std::wstring page = arguments.Page.value_or(L"");
    if (page.empty()) return TextOf(TextId::PageNeedsFile);
    std::wstring failure = ReadInput(arguments.File);
    if (!failure.empty()) return failure;
    const bool isWritten = !silent_.Files().IsInput(page) &&
                           ReplaceContent(system_.Files, system_.Clock, page, editor_.KeysPage(),
                                          KeepCopies::No) == FileError::None;
    return isWritten ? L"" : TextOf(TextId::CannotWriteThisFile) + L" " + page;
  }

 private:
  /// Gives what could not be read.
  [[nodiscard]] std::wstring ReadInput(const std::wstring& file) {
    // A window would show the file that is found in its place.
    if (!file.empty() && !system_.Files.Exists(file)) {
      return TextOf(TextId::CannotFindThisFile) + L" " + file;
    }
    editor_.Activate();
    if (!silent_.Boxes().FirstText().empty()) return silent_.Boxes().FirstText();
    const std::optional<std::wstring> unread = silent_.Files().Unread();
    return unread ? TextOf(TextId::CannotReadThisFile) + L" " + *unread : L"";
  }

  [[nodiscard]] std::wstring TextOf(TextId id) const { return editor_.Language().GetLangText(id); }

  System system_;
  SilentSystem silent_;
  Editor editor_{silent_.Seams(), [](const LoadProgress&) {}};
};

}  // namespace

std::wstring WriteKeysPage(const System& system, const Arguments& arguments) {
  return WithoutControls(PageRun(system).Write(arguments));
}

}  // namespace tessera
