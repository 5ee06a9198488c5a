// The file that tests replace, what a save may leave beside it, and the seams that fail.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "settings/ini/ReplaceContent.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FaultyFiles.h"

namespace tessera::replaced_file {

const std::wstring Path = L"C:\\TC\\Wincmd.ini";
const std::wstring Prepared = Path + L".tessera-new";
const std::wstring Former = Path + L".tessera-old";
const std::wstring Backup = Path + L".bak";
const std::wstring Unsaved = Path + L".unsaved";

using FileTable = std::map<std::wstring, std::string>;

class ReplaceContentTest : public testing::Test {
 protected:
  FileError Save(KeepCopies copies) { return ReplaceContent(files_, clock_, Path, "new", copies); }

  FaultyFiles files_;
  FakeClock clock_;
};

}  // namespace tessera::replaced_file
