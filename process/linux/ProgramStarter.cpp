#include "process/ProgramStarter.h"

#include <new>
#include <utility>

#include "base/linux/Spawn.h"

namespace launcher {
namespace {

class SpawnedProgram : public RunningProcess {
 public:
  /// False if the program cannot be started.
  bool start(const std::string& path, const std::vector<std::string>& arguments) {
    child_ = spawn({.path = path, .arguments = arguments});
    return child_ != nullptr;
  }

  void terminate() override { child_->terminate(); }

 private:
  std::shared_ptr<SpawnedChild> child_;
};

class SpawnStarter : public ProgramStarter {
 public:
  std::shared_ptr<RunningProcess> start(const std::string& path,
                                        const std::vector<std::string>& arguments) override try {
    auto program = std::make_shared<SpawnedProgram>();
    return program->start(path, arguments) ? program : nullptr;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
};

}  // namespace

std::unique_ptr<ProgramStarter> makeProgramStarter() { return std::make_unique<SpawnStarter>(); }

}  // namespace launcher
