// The program without its window, with as many commands as a measurement wants.
#pragma once

#include "tests/support/SampleProgram.h"

namespace tessera {

/// It answers every question with Yes, and no time passes.
class LargeProgram : public SampleProgram<> {
 public:
  explicit LargeProgram(int commands) : SampleProgram(LargeInstallation(commands)) {
    MessageBoxes.AnswerToAll = BoxAnswer::Yes;
    Clock.StepPerReading = 0;
  }
};

}  // namespace tessera
