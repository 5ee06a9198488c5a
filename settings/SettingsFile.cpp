// The one way into "vantor.ini", and the one way back.
#include "settings/SettingsFile.h"

#include "settings/Paths.h"

namespace tessera {

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
  return SaveFromTheStart([&] {
    ProfileFile file(files_, clock_, path);
    // Defaults must not replace what the user once chose.
    if (unread_ && file.ReadError() == FileError::None) return FileError::AccessDenied;
    change(file);
    return file.Save(files_, clock_, KeepCopies::No);
  });
}

}  // namespace tessera
