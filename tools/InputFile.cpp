#include "InputFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "ExitStatus.h"

namespace Navmsg {

namespace {

[[noreturn]] void throwCannotRead(const std::string& name, int error) {
    throw UsageError{"cannot read " + name + ": " + std::strerror(error)};
}

}  // namespace

InputFile::InputFile(const std::string& path) {
    if (path == "-") {
        fd_ = STDIN_FILENO;
        name_ = "standard input";
        return;
    }
    name_ = path;
    fd_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ < 0) {
        throwCannotRead(name_, errno);
    }
    owned_ = true;
}

InputFile::~InputFile() {
    if (owned_) {
        ::close(fd_);
    }
}

std::size_t InputFile::read(char* data, std::size_t size) {
    for (;;) {
        const ssize_t got = ::read(fd_, data, size);
        if (got >= 0) {
            return static_cast<std::size_t>(got);
        }
        if (errno != EINTR) {
            throwCannotRead(name_, errno);
        }
    }
}

}  // namespace Navmsg
