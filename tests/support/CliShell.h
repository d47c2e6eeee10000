#ifndef ZELTNAVMSG_TESTS_SUPPORT_CLISHELL_H
#define ZELTNAVMSG_TESTS_SUPPORT_CLISHELL_H

// The navmsg tool run by sh in a scratch directory, for the command-line tests (built
// where NAVMSG_PATH names the tool).

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace ZeltNavMsg::Testing {

inline std::string slurp(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

inline void replaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (std::size_t p = text.find(from); p != std::string::npos; p = text.find(from, p)) {
        text.replace(p, from.size(), to);
        p += to.size();
    }
}

struct CliRun {
    int status = -1;
    std::string out;
    std::string err;
};

// A scratch directory, and `script` run by sh in it with `input` on standard input,
// where `navmsg` is the tool and $D the directory.
class Shell {
  public:
    Shell() {
        const char* tmp = std::getenv("TMPDIR");
        std::string pattern = std::string(tmp != nullptr ? tmp : "/tmp") + "/navmsg-cli-XXXXXX";
        dir_ = ::mkdtemp(pattern.data()) != nullptr ? pattern : "";
    }
    ~Shell() { std::filesystem::remove_all(dir_); }
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    [[nodiscard]] const std::string& dir() const { return dir_; }
    void file(const std::string& name, const std::string& content) const {
        std::ofstream(dir_ + "/" + name, std::ios::binary) << content;
    }

    CliRun run(const std::string& script, const std::string& input = "") const {
        file(".in", input);
        file(".script",
             "D='" + dir_ + "'\nnavmsg() { '" + NAVMSG_PATH + "' \"$@\"; }\n" + script + "\n");
        const std::string command = "sh '" + dir_ + "/.script' <'" + dir_ + "/.in' >'" + dir_ +
                                    "/.out' 2>'" + dir_ + "/.err'";
        const int raw = std::system(command.c_str());
        return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, slurp(dir_ + "/.out"),
                slurp(dir_ + "/.err")};
    }

  private:
    std::string dir_;
};

// `script` in a fresh scratch directory.
inline CliRun shell(const std::string& script, const std::string& input = "") {
    return Shell().run(script, input);
}

}  // namespace ZeltNavMsg::Testing

#endif
