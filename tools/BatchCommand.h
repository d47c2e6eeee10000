#ifndef NAVMSG_BATCHCOMMAND_H
#define NAVMSG_BATCHCOMMAND_H

// navmsg batch: every line "SAT FORMAT SUBFRAME PAGE HEX" of a file.

#include <string>

#include "MessageDecode.h"

namespace CLI {
class App;
}

namespace Navmsg {

class Output;

class BatchCommand {
  public:
    // Adds the subcommand, its options and its help to `app`.
    explicit BatchCommand(CLI::App& app);
    [[nodiscard]] bool selected() const;
    // The exit status; a usage or input error throws UsageError.
    int run(Output& out) const;

  private:
    CLI::App* command_;
    std::string path_;
    MessageOptions options_;
};

}  // namespace Navmsg

#endif
