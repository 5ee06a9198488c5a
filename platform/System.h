// The seams to the system, bundled for those who need more than one of them.
#pragma once

#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "platform/Programs.h"
#include "platform/Registry.h"

namespace tessera {

/// References to the one implementation of each seam, named as its interface; whoever makes it
/// keeps them alive.
struct System {
  tessera::Files& Files;
  tessera::Registry& Registry;
  tessera::Environment& Environment;
  tessera::MessageBoxes& MessageBoxes;
  tessera::Dialogs& Dialogs;
  tessera::Programs& Programs;
  tessera::Clock& Clock;
  tessera::Clipboard& Clipboard;
};

}  // namespace tessera
