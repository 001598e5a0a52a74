#include "process/ProgramStarter.h"

#include <new>

#include "base/linux/Spawn.h"

namespace launcher {
namespace {

struct SpawnedProgram : RunningProcess {
  void terminate() override { child->terminate(); }

  std::shared_ptr<SpawnedChild> child;
};

class SpawnStarter : public ProgramStarter {
 public:
  std::shared_ptr<RunningProcess> start(const std::string& path,
                                        const std::vector<std::string>& arguments) override try {
    const auto program = std::make_shared<SpawnedProgram>();
    program->child = spawn({.path = path, .arguments = arguments});
    return program->child != nullptr ? program : nullptr;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
};

}  // namespace

std::unique_ptr<ProgramStarter> makeProgramStarter() { return std::make_unique<SpawnStarter>(); }

}  // namespace launcher
