#ifndef NAVMSG_ENCODECOMMAND_H
#define NAVMSG_ENCODECOMMAND_H

// navmsg encode: messages from field values, read as the JSON Lines that decode and batch
// write, or given by --format and --set on the command line; written as batch lines or
// bare hex.

#include <cstdint>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace Navmsg {

class Output;

class EncodeCommand {
  public:
    // Adds the subcommand, its options and its help to `app`.
    explicit EncodeCommand(CLI::App& app);
    [[nodiscard]] bool selected() const;
    // The exit status; a usage or input error throws UsageError.
    int run(Output& out) const;

  private:
    CLI::App* command_;
    std::string format_;
    std::string sat_;
    std::int32_t subframe_ = 0;
    std::int32_t page_ = 0;
    std::string from_;
    std::vector<std::string> sets_;
    std::vector<std::string> raws_;
    std::vector<std::int32_t> flips_;
    bool keepChecks_ = false;
    bool hexOnly_ = false;
    std::string path_;
};

}  // namespace Navmsg

#endif
