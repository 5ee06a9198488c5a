// The real file system: reading, replacing and what the system's errors become.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>
#include <vector>

#include "platform/win32/Handle.h"
#include "platform/win32/WindowsClock.h"
#include "platform/win32/WindowsFiles.h"
#include "settings/ini/ReplaceContent.h"

namespace tessera::windows_files_test {
namespace {

std::wstring TemporaryFolder() {
  std::wstring path(MAX_PATH + 1, L'\0');
  path.resize(GetTempPathW(static_cast<DWORD>(path.size()), path.data()));
  return path + L"tessera files " + std::to_wstring(GetCurrentProcessId());
}

bool UnderWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

class WindowsFilesTest : public testing::Test {
 protected:
  WindowsFilesTest() { CreateDirectoryW(folder_.c_str(), nullptr); }
  ~WindowsFilesTest() override {
    for (const wchar_t* const name : {L"a", L"b", L"c", L"a.bak", L"a.unsaved"}) {
      SetFileAttributesW(At(name).c_str(), FILE_ATTRIBUTE_NORMAL);
      files_.Remove(At(name));
    }
    RemoveDirectoryW(folder_.c_str());
  }

  [[nodiscard]] std::wstring At(const std::wstring& name) const { return folder_ + L'\\' + name; }

  void Put(const std::wstring& name, std::string_view bytes) {
    ASSERT_EQ(files_.Write(At(name), bytes), FileError::None);
  }

  [[nodiscard]] std::string ContentOf(const std::wstring& name) const {
    std::string bytes;
    return files_.Read(At(name), bytes) == FileError::None ? bytes : "(cannot be read)";
  }

  /// Holds a file open and lets others read it, but not replace it.
  [[nodiscard]] UniqueHandle Hold(const std::wstring& name) const {
    return Own(CreateFileW(At(name).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                           0, nullptr));
  }

  WindowsFiles files_;
  std::wstring folder_ = TemporaryFolder();
};

TEST_F(WindowsFilesTest, EveryByteIsWrittenAndRead) {
  std::string bytes;
  for (int i = 0; i < 256 * 300; ++i) bytes += static_cast<char>(i & 255);
  Put(L"a", bytes);
  EXPECT_EQ(ContentOf(L"a"), bytes);
  Put(L"a", "");
  EXPECT_EQ(ContentOf(L"a"), "");
}

TEST_F(WindowsFilesTest, OnlyAFileExists) {
  Put(L"a", "x");
  EXPECT_TRUE(files_.Exists(At(L"a")));
  EXPECT_FALSE(files_.Exists(At(L"b")));
  EXPECT_FALSE(files_.Exists(folder_));
  EXPECT_FALSE(files_.Exists(L"///can\\not/find\\this/data\\\\\\"));
  EXPECT_FALSE(files_.Exists(L""));
}

TEST_F(WindowsFilesTest, ProtectionFromBeingWrittenIsTold) {
  EXPECT_FALSE(files_.IsReadOnly(At(L"a")));
  Put(L"a", "x");
  EXPECT_FALSE(files_.IsReadOnly(At(L"a")));
  ASSERT_TRUE(SetFileAttributesW(At(L"a").c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_TRUE(files_.IsReadOnly(At(L"a")));
}

TEST_F(WindowsFilesTest, StampTellsThatAFileWasWritten) {
  EXPECT_EQ(files_.Stamp(At(L"a")), FileStamp{});
  Put(L"a", "old");
  const FileStamp first = files_.Stamp(At(L"a"));
  EXPECT_EQ(first.Length, 3U);
  EXPECT_EQ(files_.Stamp(At(L"a")), first);
  Sleep(50);  // beyond a tick
  Put(L"a", "new");
  EXPECT_NE(files_.Stamp(At(L"a")), first);
}

TEST_F(WindowsFilesTest, MissingFileAndMissingFolderAreNotFound) {
  std::string bytes = "x";
  EXPECT_EQ(files_.Read(At(L"b"), bytes), FileError::NotFound);
  EXPECT_EQ(bytes, "");
  EXPECT_EQ(files_.Read(At(L"none\\b"), bytes), FileError::NotFound);
  EXPECT_EQ(files_.Write(At(L"none\\b"), "x"), FileError::NotFound);
  EXPECT_EQ(files_.Remove(At(L"b")), FileError::NotFound);
  EXPECT_EQ(files_.Move(At(L"b"), At(L"c")), FileError::NotFound);
}

TEST_F(WindowsFilesTest, AppendedBytesComeBehindWhatTheFileHolds) {
  EXPECT_EQ(files_.Append(At(L"a"), "one"), FileError::None);
  EXPECT_EQ(files_.Append(At(L"a"), ""), FileError::None);
  EXPECT_EQ(files_.Append(At(L"a"), std::string("\0two", 4)), FileError::None);
  EXPECT_EQ(ContentOf(L"a"), std::string("one\0two", 7));
}

TEST_F(WindowsFilesTest, AppendingWhereThatIsRefusedChangesNothing) {
  Put(L"a", "x");
  {
    const UniqueHandle held = Hold(L"a");
    EXPECT_EQ(files_.Append(At(L"a"), "y"), FileError::SharingViolation);
  }
  EXPECT_EQ(ContentOf(L"a"), "x");
  EXPECT_NE(files_.Append(folder_, "y"), FileError::None);
  EXPECT_EQ(files_.Append(At(L"none\\b"), "y"), FileError::NotFound);
}

TEST_F(WindowsFilesTest, NothingIsAppendedToAProtectedFile) {
  if (UnderWine()) {
    GTEST_SKIP() << "Wine lets an administrator of the system write it";
  }
  Put(L"a", "x");
  ASSERT_TRUE(SetFileAttributesW(At(L"a").c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_EQ(files_.Append(At(L"a"), "y"), FileError::AccessDenied);
  EXPECT_EQ(ContentOf(L"a"), "x");
}

TEST_F(WindowsFilesTest, FullDiskIsTold) {
  if (!UnderWine()) {
    GTEST_SKIP() << "Linux has a file that is always full";
  }
  const std::wstring full = L"\\\\?\\unix\\dev\\full";
  EXPECT_EQ(files_.Write(full, "x"), FileError::DiskFull);
  EXPECT_EQ(files_.Append(full, "x"), FileError::DiskFull);
}

TEST_F(WindowsFilesTest, ReplaceLeavesTheFormerFileAsBackup) {
  Put(L"a", "old");
  Put(L"b", "new");
  Put(L"c", "older");
  EXPECT_EQ(files_.Replace(At(L"a"), At(L"b"), At(L"c")), FileError::None);
  EXPECT_EQ(ContentOf(L"a"), "new");
  EXPECT_EQ(ContentOf(L"c"), "old");
  EXPECT_FALSE(files_.Exists(At(L"b")));
}

TEST_F(WindowsFilesTest, ReplaceOfAMissingTargetIsNotFound) {
  Put(L"b", "new");
  EXPECT_EQ(files_.Replace(At(L"a"), At(L"b"), At(L"c")), FileError::NotFound);
  EXPECT_EQ(ContentOf(L"b"), "new");
}

TEST_F(WindowsFilesTest, FolderIsNotReplaced) {
  ASSERT_TRUE(CreateDirectoryW(At(L"a").c_str(), nullptr));
  Put(L"b", "new");
  EXPECT_EQ(files_.Replace(At(L"a"), At(L"b"), At(L"c")), FileError::AccessDenied);
  EXPECT_EQ(ContentOf(L"b"), "new");
  EXPECT_TRUE(RemoveDirectoryW(At(L"a").c_str()));
}

TEST_F(WindowsFilesTest, MoveReplacesItsTarget) {
  Put(L"a", "old");
  Put(L"b", "new");
  EXPECT_EQ(files_.Move(At(L"b"), At(L"a")), FileError::None);
  EXPECT_EQ(ContentOf(L"a"), "new");
  EXPECT_FALSE(files_.Exists(At(L"b")));
}

// Wine replaces it in any case; Windows only when it is no longer protected.
TEST_F(WindowsFilesTest, MoveReplacesAReadOnlyTarget) {
  Put(L"a", "old");
  Put(L"b", "new");
  ASSERT_TRUE(SetFileAttributesW(At(L"a").c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_EQ(files_.Move(At(L"b"), At(L"a")), FileError::None);
  EXPECT_EQ(ContentOf(L"a"), "new");
}

// Under Wine the protection is never in the way of a move, so that it is not taken off there.
TEST_F(WindowsFilesTest, ReadOnlyTargetThatCannotBeReplacedStaysReadOnly) {
  Put(L"a", "old");
  Put(L"b", "new");
  ASSERT_TRUE(SetFileAttributesW(At(L"a").c_str(), FILE_ATTRIBUTE_READONLY));
  const UniqueHandle held = Hold(L"a");
  ASSERT_TRUE(held);
  EXPECT_NE(files_.Move(At(L"b"), At(L"a")), FileError::None);
  EXPECT_TRUE(files_.IsReadOnly(At(L"a")));
  EXPECT_EQ(ContentOf(L"a"), "old");
}

TEST_F(WindowsFilesTest, FileHeldOpenIsReadButNotReplaced) {
  Put(L"a", "old");
  Put(L"b", "new");
  const UniqueHandle held = Hold(L"a");
  ASSERT_TRUE(held);
  EXPECT_EQ(ContentOf(L"a"), "old");
  EXPECT_NE(files_.Replace(At(L"a"), At(L"b"), At(L"c")), FileError::None);
  EXPECT_EQ(ContentOf(L"a"), "old");
  EXPECT_EQ(ContentOf(L"b"), "new");
  EXPECT_EQ(files_.Write(At(L"a"), "x"), FileError::SharingViolation);
}

void SetLength(HANDLE file, LONGLONG length) {
  FILE_END_OF_FILE_INFO end{};
  end.EndOfFile.QuadPart = length;
  SetFileInformationByHandle(file, FileEndOfFileInfo, &end, sizeof end);
}

/// Changes the length of a file of `Long` bytes, as a program does that writes it, until it ends.
class RestlessWriter {
 public:
  static constexpr LONGLONG Short = 1000;
  /// Reading so many takes so long that the writer has its turn meanwhile on one processor too.
  static constexpr LONGLONG Long = 1 << 25;

  /// `next` gives the length that follows another.
  RestlessWriter(const std::wstring& path, LONGLONG (*next)(LONGLONG))
      : file_(Own(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, 0, nullptr))),
        thread_([this, next] {
          for (LONGLONG length = next(Long); !ends_; length = next(length)) {
            SetLength(file_.get(), length);
          }
        }) {}
  ~RestlessWriter() {
    ends_ = true;
    thread_.join();
  }
  RestlessWriter(const RestlessWriter&) = delete;
  RestlessWriter& operator=(const RestlessWriter&) = delete;

 private:
  std::atomic<bool> ends_ = false;
  UniqueHandle file_;
  std::thread thread_;
};

TEST_F(WindowsFilesTest, PartOfAFileThatIsBeingWrittenIsNotTakenForTheWhole) {
  Put(L"a", std::string(RestlessWriter::Long, 'x'));
  const RestlessWriter writer(At(L"a"), [](LONGLONG length) {
    return RestlessWriter::Short + RestlessWriter::Long - length;
  });
  int refused = 0;
  // As many reads as meet a change of the length for certain.
  for (int read = 0; read < 500 && refused < 5; ++read) {
    std::string bytes;
    const FileError error = files_.Read(At(L"a"), bytes);
    if (error == FileError::None) {
      // Wine lengthens a file by a byte more, and then cuts that off.
      const std::array<std::size_t, 3> whole{RestlessWriter::Short, RestlessWriter::Long,
                                             RestlessWriter::Long + 1};
      ASSERT_NE(std::ranges::find(whole, bytes.size()), whole.end()) << bytes.size();
    } else {
      ASSERT_EQ(error, FileError::SharingViolation);
      ASSERT_EQ(bytes, "");
      ++refused;
    }
  }
  EXPECT_GT(refused, 0);
}

TEST_F(WindowsFilesTest, BeginningOfAFileThatIsGrowingIsNotTakenForTheWhole) {
  Put(L"a", std::string(RestlessWriter::Long, 'x'));
  const RestlessWriter writer(At(L"a"), [](LONGLONG length) { return length + 1; });
  FileError error = FileError::None;
  // As many reads as meet a change of the length for certain.
  for (int read = 0; read < 100 && error == FileError::None; ++read) {
    std::string bytes;
    error = files_.Read(At(L"a"), bytes);
  }
  EXPECT_EQ(error, FileError::SharingViolation);
}

TEST_F(WindowsFilesTest, FileBeyondAllMeasureIsNotRead) {
  Put(L"a", "x");
  SetLength(Own(CreateFileW(At(L"a").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr))
                .get(),
            (LONGLONG{1} << 30) + 1);
  std::string bytes = "x";
  EXPECT_EQ(files_.Read(At(L"a"), bytes), FileError::Other);
  EXPECT_TRUE(bytes.empty());
}

TEST_F(WindowsFilesTest, LockedPartOfAFileIsToldApart) {
  if (UnderWine()) {
    GTEST_SKIP() << "Wine reads what another handle has locked";
  }
  Put(L"a", "x");
  const UniqueHandle held =
      Own(CreateFileW(At(L"a").c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                      OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(LockFile(held.get(), 0, 0, 1, 0));
  std::string bytes;
  EXPECT_EQ(files_.Read(At(L"a"), bytes), FileError::LockViolation);
}

TEST_F(WindowsFilesTest, FileThatIsNoLinkResolvesToItself) {
  Put(L"a", "x");
  EXPECT_EQ(files_.Resolve(At(L"a")), At(L"a"));
  EXPECT_EQ(files_.Resolve(At(L"b")), At(L"b"));
  EXPECT_EQ(files_.Resolve(L"C:\\"), L"C:\\") << "has no name";
  EXPECT_EQ(files_.Resolve(At(L"*")), At(L"*")) << "names no file, though it suits one";
}

TEST_F(WindowsFilesTest, FileResolvesToItsNameOnTheDisk) {
  Put(L"a.Bak", "x");
  EXPECT_EQ(files_.Resolve(At(L"A.bAK")), At(L"a.Bak"));
  EXPECT_EQ(files_.Resolve(folder_ + L"/A.bAK"), folder_ + L"/a.Bak");
}

TEST_F(WindowsFilesTest, PathOfMoreThan260CharactersWorks) {
  const std::wstring prefix = L"\\\\?\\";
  std::wstring deep = folder_;
  std::vector<std::wstring> folders;
  for (int i = 0; i < 4; ++i) {
    deep += L'\\' + std::wstring(80, L'd');
    ASSERT_TRUE(CreateDirectoryW((prefix + deep).c_str(), nullptr));
    folders.push_back(deep);
  }
  const std::wstring path = deep + L"\\a.ini";
  std::string bytes;
  EXPECT_EQ(files_.Write(path, "x"), FileError::None);
  EXPECT_TRUE(files_.Exists(path));
  EXPECT_EQ(files_.Read(path, bytes), FileError::None);
  EXPECT_EQ(bytes, "x");
  EXPECT_EQ(files_.Remove(path), FileError::None);
  for (auto folder = folders.rbegin(); folder != folders.rend(); ++folder) {
    EXPECT_TRUE(RemoveDirectoryW((prefix + *folder).c_str()));
  }
}

TEST_F(WindowsFilesTest, SaveReplacesTheFileAndLeavesItsBackup) {
  WindowsClock clock;
  Put(L"a", "old");
  EXPECT_EQ(ReplaceContent(files_, clock, At(L"a"), "new", KeepCopies::Yes), FileError::None);
  EXPECT_EQ(ContentOf(L"a"), "new");
  EXPECT_EQ(ContentOf(L"a.bak"), "old");
  EXPECT_FALSE(files_.Exists(At(L"a.tessera-new")));
  EXPECT_FALSE(files_.Exists(At(L"a.tessera-old")));
}

TEST_F(WindowsFilesTest, SavedFileKeepsTheLetterCaseOfItsName) {
  WindowsClock clock;
  Put(L"c", "old");
  EXPECT_EQ(ReplaceContent(files_, clock, At(L"C"), "new", KeepCopies::No), FileError::None);
  WIN32_FIND_DATAW found{};
  FindClose(FindFirstFileW(At(L"C").c_str(), &found));
  EXPECT_EQ(std::wstring(found.cFileName), L"c");
}

TEST_F(WindowsFilesTest, ReplaceKeepsTheAttributesOfTheTarget) {
  if (UnderWine()) {
    GTEST_SKIP() << "a replace under Wine gives the attributes of the replacement";
  }
  Put(L"a", "old");
  Put(L"b", "new");
  ASSERT_TRUE(SetFileAttributesW(At(L"a").c_str(), FILE_ATTRIBUTE_HIDDEN));
  EXPECT_EQ(files_.Replace(At(L"a"), At(L"b"), At(L"c")), FileError::None);
  EXPECT_NE(GetFileAttributesW(At(L"a").c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(WindowsFilesTest, SaveOfAFileHeldForAMomentWaitsForIt) {
  WindowsClock clock;
  for (const int held : {10, 100, 600}) {
    Put(L"a", "old");
    UniqueHandle handle = Hold(L"a");
    ASSERT_TRUE(handle);
    std::thread holder([&handle, held] {
      Sleep(static_cast<DWORD>(held));
      handle.reset();
    });
    EXPECT_EQ(ReplaceContent(files_, clock, At(L"a"), "new", KeepCopies::Yes), FileError::None);
    holder.join();
    EXPECT_EQ(ContentOf(L"a"), "new");
    EXPECT_EQ(ContentOf(L"a.bak"), "old");
    EXPECT_FALSE(files_.Exists(At(L"a.unsaved")));
  }
}

TEST_F(WindowsFilesTest, SaveOfAFileHeldOpenLeavesItAndTheUnsavedContent) {
  WindowsClock clock;
  Put(L"a", "old");
  const UniqueHandle held = Hold(L"a");
  ASSERT_TRUE(held);
  EXPECT_NE(ReplaceContent(files_, clock, At(L"a"), "new", KeepCopies::Yes), FileError::None);
  EXPECT_EQ(ContentOf(L"a"), "old");
  EXPECT_EQ(ContentOf(L"a.unsaved"), "new");
  EXPECT_FALSE(files_.Exists(At(L"a.tessera-new")));
}

}  // namespace
}  // namespace tessera::windows_files_test
