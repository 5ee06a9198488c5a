// What is kept and told before the program ends by an exception.
#include "app/Failure.h"

#include <stdexcept>

#include "localisation/TextTable.h"
#include "tests/support/FaultyFiles.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::failure_test {
namespace {

using namespace installation;

const std::wstring UnsavedFile = IniFile + L".unsaved";

/// No box can be shown.
class NoMessageBoxes final : public MessageBoxes {
 public:
  BoxAnswer Show(const std::wstring& /*text*/, BoxButtons /*buttons*/, BoxIcon /*icon*/,
                 BoxDefault /*defaultButton*/) override {
    throw std::runtime_error("no box");
  }
  void Beep() override {}
};

template <typename Program>
void ExpectTold(const Program& program, TextId text) {
  ASSERT_EQ(program.MessageBoxes.Shown.size(), 1U);
  const FakeMessageBoxes::Box& box = program.MessageBoxes.Shown.front();
  EXPECT_EQ(box.Text, BuiltInTextOf(text));
  EXPECT_EQ(box.Buttons, BoxButtons::Ok);
  EXPECT_EQ(box.Icon, BoxIcon::Critical);
}

class FailureTest : public EditorTest {
 protected:
  [[nodiscard]] bool KeyIsKept() {
    return Files.Contents[UnsavedFile].find("X=cm_Pack") != std::string::npos;
  }
};

TEST_F(FailureTest, UnsavedKeysLieBesideTheFileBeforeTheUserIsTold) {
  Start();
  Assign(Pack, L"X");
  KeepAndTell(Editor, MessageBoxes);
  EXPECT_TRUE(KeyIsKept());
  EXPECT_EQ(Ini(), IniContent);
  ExpectTold(*this, TextId::MustEnd);
}

TEST_F(FailureTest, NothingIsSaidToBeKeptWithoutChanges) {
  Start();
  KeepAndTell(Editor, MessageBoxes);
  EXPECT_FALSE(Files.Contents.contains(UnsavedFile));
  ExpectTold(*this, TextId::MustEndNothingKept);
}

TEST_F(FailureTest, KeysAreKeptWhereNoBoxCanBeShown) {
  Start();
  Assign(Pack, L"X");
  NoMessageBoxes none;
  KeepAndTell(Editor, none);
  EXPECT_TRUE(KeyIsKept());
}

TEST(Failure, UserIsToldOfTheEndWhereKeepingFailsByAnException) {
  SampleProgram<FaultyFiles> program;
  program.Start();
  program.Assign(Pack, L"X");
  program.Files.StepsUntilKilled = 0;
  KeepAndTell(program.Editor, program.MessageBoxes);
  ExpectTold(program, TextId::MustEndNothingKept);
}

}  // namespace
}  // namespace tessera::failure_test
