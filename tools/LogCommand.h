#ifndef NAVMSG_LOGCOMMAND_H
#define NAVMSG_LOGCOMMAND_H

// navmsg log: every navigation message of u-blox UBX and Septentrio SBF receiver logs.

#include <string>
#include <vector>

#include "MessageDecode.h"

namespace CLI {
class App;
}

namespace Navmsg {

class Output;

class LogCommand {
  public:
    explicit LogCommand(CLI::App& app);
    [[nodiscard]] bool selected() const;
    // The exit status; a usage or input error throws UsageError.
    int run(Output& out) const;

  private:
    CLI::App* command_;
    std::vector<std::string> paths_;
    std::string format_;  // only messages of this format
    std::string sat_;     // only this satellite, or this system's letter
    bool extract_ = false;
    MessageOptions options_;
};

}  // namespace Navmsg

#endif
