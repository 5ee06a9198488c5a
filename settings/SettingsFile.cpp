// The one way into "vantor.ini", and the one way back.
#include "settings/SettingsFile.h"

#include "settings/Paths.h"

namespace tessera {
namespace {

/// A clock for tries that are not worth a wait.
class ClockWithoutSleep final : public Clock {
 public:
  explicit ClockWithoutSleep(Clock& clock) : clock_(clock) {}

  [[nodiscard]] DateAndTime Now() const override { return clock_.Now(); }
  [[nodiscard]] float SecondsSinceMidnight() const override {
    return clock_.SecondsSinceMidnight();
  }
  [[nodiscard]] std::uint64_t Milliseconds() const override { return clock_.Milliseconds(); }
  void DoEvents() override { clock_.DoEvents(); }
  void Sleep(int /*milliseconds*/) override {}

 private:
  Clock& clock_;
};

}  // namespace

std::wstring SettingsPath(const Environment& environment) {
  return AddBackslash(environment.ProgramDirectory()) + L"vantor.ini";
}

SettingsFile::SettingsFile(Files& files, Clock& clock, const Environment& environment)
    : files_(files), clock_(clock), environment_(environment) {}

ProfileFile SettingsFile::Read() {
  const std::wstring path = SettingsPath(environment_);
  ClearLeftOvers(files_, path, KeepCopies::No);
  ProfileFile file(files_, clock_, path);
  unread_ = file.Unread();
  return file;
}

FileError SettingsFile::Change(const std::function<void(ProfileFile&)>& change) {
  const std::wstring path = SettingsPath(environment_);
  ClearLeftOvers(files_, path, KeepCopies::No);
  // A folder that refuses a file once does so again: only the first time may it be a scanner's
  // doing, which passes.
  ClockWithoutSleep impatient(clock_);
  Clock& clock = refused_ ? impatient : clock_;
  return SaveFromTheStart([&] {
    ProfileFile file(files_, clock, path);
    // Defaults must not replace what the user once chose.
    if (unread_ && file.ReadError() == FileError::None) return FileError::AccessDenied;
    change(file);
    const FileError error = file.Save(files_, clock, KeepCopies::No);
    refused_ = error == FileError::AccessDenied || (refused_ && error != FileError::None);
    return error;
  });
}

}  // namespace tessera
