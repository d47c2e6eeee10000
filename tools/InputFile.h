#ifndef NAVMSG_INPUTFILE_H
#define NAVMSG_INPUTFILE_H

#include <cstddef>
#include <string>

namespace Navmsg {

// A file, or standard input for "-", read with every read checked: a file that cannot
// be opened, a directory, a read error or a closed standard input throws UsageError
// "cannot read NAME: <reason>".
class InputFile {
  public:
    explicit InputFile(const std::string& path);
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile();

    // Up to `size` bytes into `data`; 0 at the end of the input.
    std::size_t read(char* data, std::size_t size);
    // "standard input" or the path, as reports name it.
    [[nodiscard]] const std::string& name() const { return name_; }

  private:
    int fd_ = -1;
    bool owned_ = false;
    std::string name_;
};

}  // namespace Navmsg

#endif
