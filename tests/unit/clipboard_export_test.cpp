#include <gtest/gtest.h>

#include "export/ClipboardExport.h"
#include "export/HtmlFormat.h"
#include "export/HtmlTable.h"
#include "tests/support/FakeClipboard.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::clipboard_export_test {
namespace {

const std::wstring SettingsName = L"C:\\Tessera\\vantor.ini";

class ClipboardExportTest : public testing::Test {
 protected:
  void Ok() { export_.Ok(); }

  Catalogue catalogue_ = SampleCatalogue();
  HotkeyNotation notation_;
  MemoryFiles files_;
  FakeClock clock_;
  FakeEnvironment environment_;
  FakeClipboard clipboard_;
  SettingsFile settingsFile_{files_, clock_, environment_};
  Texts texts_{files_};
  ClipboardExport export_{catalogue_, notation_, texts_, settingsFile_};
};

TEST_F(ClipboardExportTest, WithoutAStoredSelectionTheDescriptionIsOff) {
  export_.Load(settingsFile_.Read());
  EXPECT_EQ(export_.Selection().ClipOptions(), L"0,1,1,1");
}

TEST_F(ClipboardExportTest, OkStoresTheSelectionForTheNextRun) {
  files_.Contents[SettingsName] = "[Tessera]\r\nClipOptions=1,1,1,1\r\nSortOrder=1\r\n";
  export_.Load(settingsFile_.Read());
  export_.Click(Column::Defaults);
  Ok();
  EXPECT_EQ(files_.Contents[SettingsName], "[Tessera]\r\nClipOptions=1,1,0,1\r\nSortOrder=1\r\n");
  ClipboardExport next(catalogue_, notation_, texts_, settingsFile_);
  next.Load(settingsFile_.Read());
  EXPECT_EQ(next.Selection().ClipOptions(), L"1,1,0,1");
}

TEST_F(ClipboardExportTest, CancelStoresNothingAndLeavesTheClipboardAlone) {
  export_.Load(settingsFile_.Read());
  export_.Click(Column::Description);
  export_.Cancel();
  EXPECT_TRUE(export_.CopyTo(clipboard_, true));
  EXPECT_TRUE(clipboard_.Texts.empty());
  EXPECT_FALSE(files_.Contents.contains(SettingsName));
}

TEST_F(ClipboardExportTest, CancelForgetsTheTableOfTheOkBefore) {
  Ok();
  ASSERT_FALSE(export_.ExportText().empty());
  export_.Cancel();
  EXPECT_EQ(export_.ExportText(), L"");
}

TEST_F(ClipboardExportTest, BeforeTheFirstOkNothingIsCopied) {
  EXPECT_TRUE(export_.CopyTo(clipboard_, true));
  EXPECT_TRUE(clipboard_.Texts.empty());
}

TEST_F(ClipboardExportTest, TheTableOfTheLastOkIsCopiedAgainWhenTheDialogIsOnlyClosed) {
  Ok();
  const std::wstring table = export_.ExportText();
  export_.Click(Column::Description);
  catalogue_.ListView1.Edit(sample::Pack).CurrentKeys = L"X";
  EXPECT_TRUE(export_.CopyTo(clipboard_, false));
  EXPECT_TRUE(export_.CopyTo(clipboard_, false));
  EXPECT_EQ(clipboard_.Texts, (std::vector<std::wstring>{table + L"\r\n", table + L"\r\n"}));
  Ok();
  EXPECT_NE(export_.ExportText(), table);
}

TEST_F(ClipboardExportTest, OkTakesTheChosenColumnsAndTheUndefinedMarkerInForce) {
  notation_.UndefinedHotkey = L"F6";
  export_.Load(settingsFile_.Read());
  export_.Click(Column::Defaults);
  Ok();
  EXPECT_EQ(export_.ExportText(),
            BuildExportText(catalogue_.ListView1, {false, true, false, true}, texts_, L"F6"));
  EXPECT_EQ(export_.ExportText().find(L"cm_View"), std::wstring::npos);
}

TEST_F(ClipboardExportTest, StartMenuKeysFollowTheTable) {
  catalogue_.StartMenuKeys[2] = {L"Ctrl + Alt + F3", L"Notes", L"key3"};
  Ok();
  EXPECT_TRUE(export_.CopyTo(clipboard_, false));
  ASSERT_EQ(clipboard_.Texts.size(), 1U);
  EXPECT_TRUE(clipboard_.Texts[0].starts_with(export_.ExportText()));
  EXPECT_TRUE(clipboard_.Texts[0].ends_with(L"=\r\nNotes\tCtrl + Alt + F3\r\n"));
}

TEST_F(ClipboardExportTest, EachExportOfUnsavedChangesWarnsAndNoneAfterASave) {
  Ok();
  EXPECT_TRUE(export_.CopyTo(clipboard_, true));
  Ok();
  EXPECT_TRUE(export_.CopyTo(clipboard_, true));
  Ok();
  EXPECT_TRUE(export_.CopyTo(clipboard_, false));
  ASSERT_EQ(clipboard_.Texts.size(), 3U);
  EXPECT_NE(clipboard_.Texts[0].find(L"=   Important   ="), std::wstring::npos);
  EXPECT_EQ(clipboard_.Texts[1], clipboard_.Texts[0]);
  EXPECT_EQ(clipboard_.Texts[2].find(L"Important"), std::wstring::npos);
}

TEST_F(ClipboardExportTest, TheTableIsCopiedAsTextAndAsHtml) {
  export_.Load(settingsFile_.Read());
  EXPECT_TRUE(export_.CopyTable(clipboard_));
  const ExportColumns columns{false, true, true, true};
  const DisplayTable& rows = catalogue_.ListView1;
  EXPECT_EQ(clipboard_.Texts,
            (std::vector<std::wstring>{BuildExportText(rows, columns, texts_, L"---")}));
  EXPECT_EQ(clipboard_.Htmls,
            (std::vector<std::string>{HtmlFormat(BuildHtmlTable(rows, columns, texts_, L"---"))}));
  EXPECT_FALSE(files_.Contents.contains(SettingsName)) << "nothing is stored";
}

TEST_F(ClipboardExportTest, TheTableHasTheColumnsOfTheLastOk) {
  files_.Contents[SettingsName] = "[Tessera]\r\nClipOptions=1,1,1,1\r\n";
  export_.Load(settingsFile_.Read());
  export_.Click(Column::Defaults);
  export_.Cancel();
  EXPECT_TRUE(export_.CopyTable(clipboard_));
  EXPECT_NE(clipboard_.Htmls.back().find("<th>Description</th>"), std::string::npos);
  EXPECT_NE(clipboard_.Htmls.back().find("Default Hotkey"), std::string::npos);
  export_.Ok();
  EXPECT_TRUE(export_.CopyTable(clipboard_));
  EXPECT_EQ(clipboard_.Htmls.back().find("Default Hotkey"), std::string::npos);
}

TEST_F(ClipboardExportTest, AClipboardThatIsHeldTakesNoTable) {
  clipboard_.IsHeld = true;
  EXPECT_FALSE(export_.CopyTable(clipboard_));
  EXPECT_TRUE(clipboard_.Htmls.empty());
}

TEST_F(ClipboardExportTest, ExportStaysPlainText) {
  Ok();
  EXPECT_TRUE(export_.CopyTo(clipboard_, false));
  EXPECT_TRUE(clipboard_.Htmls.empty());
}

TEST_F(ClipboardExportTest, ASettingsFileThatCannotBeWrittenSpoilsNoExport) {
  files_.WriteErrors = {FileError::AccessDenied};
  Ok();
  EXPECT_TRUE(export_.CopyTo(clipboard_, false));
  EXPECT_EQ(clipboard_.Texts.size(), 1U);
}

}  // namespace
}  // namespace tessera::clipboard_export_test
