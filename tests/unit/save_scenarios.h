// The ways of saving, each as a program that is about to save, and the files before and after it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/FaultyFiles.h"
#include "tests/support/SampleProgram.h"

namespace tessera::saves {

using World = SampleProgram<FaultyFiles>;
using FileTable = std::map<std::wstring, std::string>;

const std::wstring OtherFile = L"C:\\TC\\keys.ini";

/// One way of saving: the files that it writes, and how.
struct Scenario {
  const char* Name;
  std::vector<std::wstring> Written;
  bool KeepsCopies;
  std::function<void(World&)> Prepare;  ///< from the start of the program to the save
  std::function<void(World&)> Save;
};

inline constexpr const char* Content =
    "[Configuration]\nkey = value ; kept\r\n\n[Shortcuts]\r\nC+F3=cm_View\r\nF3=cm_Copy\r\n"
    "[user]\r\nmenu1=Paint\r\nkey1=1\r\n;end";

/// A line that a save drops, and what it has dropped before.
inline constexpr const char* OwnCommand = "A+F5=em_Mine\r\n";
inline constexpr const char* Earlier = "; of an earlier save\r\n";

/// Opens the files, and takes a key from the Start Menu.
inline void TakeKeys(World& world) {
  world.Start();
  world.MessageBoxes.Answers = {BoxAnswer::Yes};
  world.Assign(installation::Pack, 3, L"F1");
}

inline std::vector<Scenario> Scenarios() {
  const auto save = [](World& world) { world.Editor.FileSave(); };
  return {
      {"Wincmd.ini",
       {IniFile},
       true,
       [](World& world) {
         world.Files.Contents[IniFile] = Content;
         TakeKeys(world);
       },
       save},
      {"both sections in two files",
       {IniFile, OtherFile},
       true,
       [](World& world) {
         world.Files.Contents[IniFile] =
             "[Shortcuts]\r\nRedirectSection=keys.ini\r\n[user]\r\nmenu1=Paint\r\nkey1=1\r\n";
         world.Files.Contents[OtherFile] = "[a]\nb\n[Shortcuts]\nF3=cm_Copy\nF8=cm_View\n[c]\nd=e";
         TakeKeys(world);
       },
       save},
      {"lines that are dropped",
       {IniFile},
       true,
       [](World& world) {
         world.Files.Contents[IniFile] = std::string("[Shortcuts]\n") + OwnCommand + "F8=cm_View\n";
         world.Files.Contents[IniFile + L".dropped"] = Earlier;
         TakeKeys(world);
       },
       save},
      {"vantor.ini",
       {VantorFile},
       false,
       [](World& world) {
         world.Files.Contents[IniFile] = Content;
         world.Files.Contents[VantorFile] =
             "[Other]\nx=1\n[Tessera]\r\nFontSize=12\r\nMainWindowLeft=7";
         world.Start();
       },
       [](World& world) { world.Editor.Unload({.Left = 100, .Width = 9000}, {}); }},
  };
}

/// A program that is about to save, with a backup from an earlier save.
inline std::unique_ptr<World> Prepared(const Scenario& scenario) {
  auto world = std::make_unique<World>();
  scenario.Prepare(*world);
  if (scenario.KeepsCopies) {
    for (const std::wstring& path : scenario.Written) {
      world->Files.Contents[path + L".bak"] = "older";
    }
  }
  world->Files.Calls.clear();
  world->Files.CallCount = 0;
  return world;
}

/// The files before and after an undisturbed save.
struct Contents {
  FileTable Old, New;
};

inline Contents ContentsOf(const Scenario& scenario) {
  Contents contents;
  const auto world = Prepared(scenario);
  contents.Old = world->Files.Contents;
  scenario.Save(*world);
  contents.New = world->Files.Contents;
  for (const std::wstring& path : scenario.Written) {
    EXPECT_NE(contents.Old.at(path), contents.New.at(path));
  }
  return contents;
}

/// True when the file is there with just that content.
inline bool Holds(const FaultyFiles& files, const std::wstring& path, const std::string& content) {
  const auto found = files.Contents.find(path);
  return found != files.Contents.end() && found->second == content;
}

}  // namespace tessera::saves
