#ifndef NAVMSG_DECODECOMMAND_H
#define NAVMSG_DECODECOMMAND_H

// navmsg decode: the messages given on the command line, or one per line of
// standard input for "-".

#include <cstdint>
#include <string>
#include <vector>

#include "MessageDecode.h"

namespace CLI {
class App;
}

namespace Navmsg {

class Output;

class DecodeCommand {
  public:
    // Adds the subcommand, its options and its help to `app`.
    explicit DecodeCommand(CLI::App& app);
    [[nodiscard]] bool selected() const;
    // The exit status; a usage or input error throws UsageError.
    int run(Output& out) const;

  private:
    CLI::App* command_;
    std::string sat_;
    std::string format_;
    std::int32_t subframe_ = 0;
    std::int32_t page_ = 0;
    MessageOptions options_;
    std::vector<std::string> hex_;
};

}  // namespace Navmsg

#endif
