#ifndef NAVMSG_FORMATSCOMMAND_H
#define NAVMSG_FORMATSCOMMAND_H

// navmsg formats: the names the other subcommands take, and what decodes.

namespace CLI {
class App;
}

namespace Navmsg {

class Output;

class FormatsCommand {
  public:
    // Adds the subcommand and its help to `app`.
    explicit FormatsCommand(CLI::App& app);
    [[nodiscard]] bool selected() const;
    static int run(Output& out);

  private:
    CLI::App* command_;
};

}  // namespace Navmsg

#endif
