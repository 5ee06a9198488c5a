// A fork.
#include "benchmarks/portable/OwnProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace tessera {

bool RunInOwnProcess(const std::function<bool()>& step) {
  const pid_t process = fork();
  if (process == 0) std::_Exit(step() ? EXIT_SUCCESS : EXIT_FAILURE);
  int status = EXIT_FAILURE;
  return waitpid(process, &status, 0) == process && status == EXIT_SUCCESS;
}

}  // namespace tessera
