// Runs the end-to-end tests. TESSERA_DIST and TESSERA_DEMO in the environment name the folders that
// each test copies: what a user unzips, and a Total Commander folder.
#include <windows.h>
#include <gtest/gtest.h>

int main(int argumentCount, char** arguments) {
  // Places on the screen are pixels here as they are in the program.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  testing::InitGoogleTest(&argumentCount, arguments);
  return RUN_ALL_TESTS();
}
